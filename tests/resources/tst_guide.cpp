#include "app/configdialog.h"
#include "fonts/fontaasettings.h"
#include "platform/qazhelp.h"
#include "platform/qazinit.h"
#include "platform/slidingstackedwidget.h"
#include "resources/registerresources.h"
#include "tests/support/modaldriver.h"
#include "tests/support/temporaryhome.h"

#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QListWidget>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBrowser>
#include <QToolButton>
#include <QtTest>

namespace {

QStringList captured(const QString &text, const QString &pattern)
{
    QStringList found;
    QRegularExpressionMatchIterator all = QRegularExpression(pattern).globalMatch(text);
    while (all.hasNext())
        found.append(all.next().captured(1));
    return found;
}

/// A text as it is compared: without its accelerator, colon and capitals.
QString bare(QString text)
{
    text = text.simplified().toLower().remove(QLatin1Char('&'));
    return text.endsWith(QLatin1Char(':')) ? text.chopped(1).trimmed() : text;
}

/// What the controls of \a page are called: labels, buttons, groups, tabs and the entries of boxes.
QStringList shownTexts(const QWidget *page)
{
    QStringList texts;
    for (const QLabel *label : page->findChildren<QLabel *>())
        texts.append(bare(label->text()));
    for (const QAbstractButton *button : page->findChildren<QAbstractButton *>())
        texts.append(bare(button->text()));
    for (const QGroupBox *group : page->findChildren<QGroupBox *>())
        texts.append(bare(group->title()));
    for (const QTabWidget *tabs : page->findChildren<QTabWidget *>()) {
        for (int i = 0; i < tabs->count(); ++i)
            texts.append(bare(tabs->tabText(i)));
    }
    for (const QComboBox *box : page->findChildren<QComboBox *>()) {
        for (int i = 0; i < box->count(); ++i)
            texts.append(bare(box->itemText(i)));
    }
    return texts;
}

/// The chapter \a name of the guide's \a text.
QString chapter(const QString &text, const QString &name)
{
    const int begin = text.indexOf(QStringLiteral("<h2><a name=\"%1\">").arg(name));
    return begin < 0 ? QString() : text.mid(begin, text.indexOf(QStringLiteral("<h2>"), begin + 1) - begin);
}

QTextBrowser *helpWindow()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->objectName() == QLatin1String("helpWindow") && window->isVisible())
            return qobject_cast<QTextBrowser *>(window);
    }
    return nullptr;
}

} // namespace

/// The user guide in each language, and the window that shows it.
class TestGuide : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase() { registerResources(); }
    void cleanup();
    void chaptersLinksAndPicturesAreThere_data();
    void chaptersLinksAndPicturesAreThere();
    void helpShowsTheChapterOfEachPage_data() { chaptersLinksAndPicturesAreThere_data(); }
    void helpShowsTheChapterOfEachPage();
    void theTextIsSearchedAndZoomed();
    void theAntiAliasingDialogHasItsChapter();
    void chaptersNameWhatStandsOnTheirPages_data() { chaptersLinksAndPicturesAreThere_data(); }
    void chaptersNameWhatStandsOnTheirPages();
};

void TestGuide::cleanup()
{
    QLocale::setDefault(QLocale::system());
    qDeleteAll(qApp->findChildren<QTranslator *>()); // which takes them out of use
}

void TestGuide::chaptersLinksAndPicturesAreThere_data()
{
    QTest::addColumn<QString>("language");
    QTest::addColumn<QString>("file");
    QTest::newRow("English") << QStringLiteral("en_GB") << QStringLiteral(":/guide/guide.html");
    QTest::newRow("German") << QStringLiteral("de_AT") << QStringLiteral(":/guide/guide_de.html");
    QTest::newRow("French") << QStringLiteral("fr_FR") << QStringLiteral(":/guide/guide_fr.html");
    QTest::newRow("Spanish") << QStringLiteral("es_MX") << QStringLiteral(":/guide/guide_es.html");
    QTest::newRow("none") << QStringLiteral("ja_JP") << QStringLiteral(":/guide/guide.html");
}

void TestGuide::chaptersLinksAndPicturesAreThere()
{
    QFETCH(QString, file);
    QFile guide(file);
    QVERIFY(guide.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(guide.readAll());
    QVERIFY(!text.contains(QChar::ReplacementCharacter));

    const QStringList chapters = captured(text, QStringLiteral("<a name=\"(\\w+)\">"));
    QCOMPARE(chapters,
             QStringList({QStringLiteral("index"), QStringLiteral("wallpaper"), QStringLiteral("theme"),
                          QStringLiteral("font"), QStringLiteral("antialiasing"),
                          QStringLiteral("screensaver"), QStringLiteral("effect"), QStringLiteral("sound"),
                          QStringLiteral("restore"), QStringLiteral("session"), QStringLiteral("command"),
                          QStringLiteral("files"), QStringLiteral("keys")}));
    const QStringList links = captured(text, QStringLiteral("href=\"([^\"]*)\""));
    QCOMPARE(QSet<QString>(links.cbegin(), links.cend()).size(), chapters.size());
    for (const QString &link : links)
        QVERIFY2(chapters.contains(link.mid(1)), qPrintable(link));
    const QStringList pictures = captured(text, QStringLiteral("<img src=\"([^\"]*)\""));
    QCOMPARE(pictures.size(), 7); // the window and its six pages
    for (const QString &picture : pictures)
        QVERIFY2(!QImage(QStringLiteral(":/guide/") + picture).isNull(), qPrintable(picture));
}

void TestGuide::helpShowsTheChapterOfEachPage()
{
    QFETCH(QString, language);
    QFETCH(QString, file);
    const TemporaryHome home;
    QLocale::setDefault(QLocale(language));
    ConfigDialog dialog(home.path(QStringLiteral("a.themerc")));
    dialog.show();
    auto *list = dialog.findChild<QListWidget *>(QStringLiteral("contentsWidget"));
    QTextBrowser *help = nullptr;
    int lastPosition = -1;
    for (int row = 0; row < list->count(); ++row) {
        list->setCurrentRow(row);
        dialog.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&dialog));
        dialog.helpSlot();
        help = helpWindow();
        QVERIFY(help && help->isVisible());
        QCOMPARE(help->source().adjusted(QUrl::RemoveFragment), QUrl(QLatin1String("qrc") + file));
        const QString page = QString::fromLatin1(
            dialog.findChild<SlidingStackedWidget *>()->currentWidget()->metaObject()->className());
        QCOMPARE(help->source().fragment() + QLatin1String("page"), page.toLower());
        // The chapters stand in the order of the pages.
        QVERIFY2(help->verticalScrollBar()->value() > lastPosition, qPrintable(page));
        lastPosition = help->verticalScrollBar()->value();
        QVERIFY2(help->horizontalScrollBar()->maximum() == 0, "a line or a picture is wider than the window");
    }
    QVERIFY(QTest::qWaitForWindowActive(help));
    QTest::keyClick(help, Qt::Key_Escape);
    QVERIFY(!help->isVisible());
    QCoreApplication::sendPostedEvents(help, QEvent::DeferredDelete);
}

void TestGuide::chaptersNameWhatStandsOnTheirPages()
{
    QFETCH(QString, language);
    QFETCH(QString, file);
    const TemporaryHome home;
    QLocale::setDefault(QLocale(language));
    qazInit("1", "title");
    QFile guide(file);
    QVERIFY(guide.open(QIODevice::ReadOnly));
    const QString text = QString::fromUtf8(guide.readAll());
    ConfigDialog dialog(home.path(QStringLiteral("a.themerc")));
    const auto *stack = dialog.findChild<SlidingStackedWidget *>();
    for (int row = 0; row < stack->count(); ++row) {
        const QWidget *page = stack->widget(row);
        const QString name
            = QString::fromLatin1(page->metaObject()->className()).toLower().remove(QStringLiteral("page"));
        const QString own = chapter(text, name);
        const QStringList named = captured(own, QStringLiteral("(?s)<[bi]>(.*?)</[bi]>"));
        QVERIFY2(!named.isEmpty(), qPrintable(name));
        const QStringList shown = shownTexts(page);
        for (const QString &control : named)
            QVERIFY2(shown.contains(bare(control)), qPrintable(name + QLatin1String(": ") + control));
        // The picture is the page's own, in the guide's language.
        const QString ending = file.contains(QLatin1Char('_')) ? file.mid(file.indexOf(QLatin1Char('_')), 3)
                                                               : QStringLiteral("_en");
        const QStringList pictures = captured(own, QStringLiteral("<img src=\"([^\"]*)\\.png\""));
        QVERIFY2(pictures.size() == 1 && pictures.first().startsWith(name)
                     && pictures.first().endsWith(ending),
                 qPrintable(pictures.join(QLatin1Char(' '))));
    }
}

void TestGuide::theTextIsSearchedAndZoomed()
{
    QLocale::setDefault(QLocale(QStringLiteral("en_GB")));
    qazHelpShow(QStringLiteral("index"));
    QTextBrowser *help = helpWindow();
    QVERIFY(help && QTest::qWaitForWindowActive(help));
    auto *text = help->findChild<QLineEdit *>(QStringLiteral("searchLineEdit"));
    auto *result = help->findChild<QLabel *>(QStringLiteral("resultLabel"));
    QTest::keyClick(help, Qt::Key_F, Qt::ControlModifier);
    QVERIFY(text->hasFocus());
    QTest::keyClicks(text, QStringLiteral("window manager"));
    QList<int> places;
    for (int i = 0; i < 3; ++i) {
        QTest::keyClick(text, Qt::Key_Return);
        QCOMPARE(help->textCursor().selectedText().toLower(), QStringLiteral("window manager"));
        places.append(help->textCursor().position());
    }
    QVERIFY(places.at(0) < places.at(1));
    help->moveCursor(QTextCursor::End);
    QTest::keyClick(text, Qt::Key_F3); // and around
    QCOMPARE(help->textCursor().position(), places.at(0));
    QTest::keyClick(text, Qt::Key_F3);
    QTest::keyClick(text, Qt::Key_F3, Qt::ShiftModifier);
    QCOMPARE(help->textCursor().position(), places.at(0));
    QCOMPARE(result->text(), QString());
    text->setText(QStringLiteral("no such words"));
    QTest::keyClick(text, Qt::Key_Return);
    QCOMPARE(result->text(), QStringLiteral("Not found"));
    QCOMPARE(help->textCursor().position(), places.at(0));

    const int usual = help->fontInfo().pointSize();
    QCOMPARE(usual, QFontInfo(QApplication::font()).pointSize());
    QTest::keyClick(help, Qt::Key_Plus, Qt::ControlModifier);
    QTest::keyClick(help, Qt::Key_Plus, Qt::ControlModifier);
    QCOMPARE(help->fontInfo().pointSize(), usual + 2);
    QTest::keyClick(help, Qt::Key_Minus, Qt::ControlModifier);
    QCOMPARE(help->fontInfo().pointSize(), usual + 1);
    QTest::keyClick(help, Qt::Key_0, Qt::ControlModifier);
    QCOMPARE(help->fontInfo().pointSize(), usual);

    auto *back = help->findChild<QToolButton *>(QStringLiteral("backButton"));
    qazHelpShow(QStringLiteral("sound"));
    QVERIFY(back->isEnabled());
    back->click();
    QCOMPARE(help->source().fragment(), QStringLiteral("index"));
    help->findChild<QToolButton *>(QStringLiteral("forwardButton"))->click();
    QCOMPARE(help->source().fragment(), QStringLiteral("sound"));
    help->resize(540, 400);
    QTRY_COMPARE(help->horizontalScrollBar()->maximum(), 0);
    help->close();
}

void TestGuide::theAntiAliasingDialogHasItsChapter()
{
    const TemporaryHome home;
    FontAASettings dialog(nullptr);
    ModalDriver driver;
    driver.then([](QDialog *shown) {
        QVERIFY(QTest::qWaitForWindowActive(shown));
        QTest::keyClick(shown, Qt::Key_F1);
        QTextBrowser *help = helpWindow();
        QVERIFY(help && QTest::qWaitForWindowActive(help)); // though the dialog is modal
        QCOMPARE(help->source().fragment(), QStringLiteral("antialiasing"));
        QTest::keyClick(help, Qt::Key_Escape);
        shown->reject();
    });
    dialog.exec();
    QVERIFY(driver.isDone());
}

QTEST_MAIN(TestGuide)
#include "tst_guide.moc"
