#include "app/configdialog.h"
#include "platform/qazhelp.h"
#include "platform/slidingstackedwidget.h"
#include "resources/registerresources.h"
#include "tests/support/temporaryhome.h"

#include <QListWidget>
#include <QRegularExpression>
#include <QScrollBar>
#include <QTextBrowser>
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
};

void TestGuide::cleanup()
{
    QLocale::setDefault(QLocale::system());
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
                          QStringLiteral("font"), QStringLiteral("screensaver"), QStringLiteral("effect"),
                          QStringLiteral("sound"), QStringLiteral("restore"), QStringLiteral("files"),
                          QStringLiteral("keys")}));
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
        const QWidgetList windows = QApplication::topLevelWidgets();
        for (QWidget *window : windows) {
            if (window->objectName() == QLatin1String("helpWindow"))
                help = qobject_cast<QTextBrowser *>(window);
        }
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

QTEST_MAIN(TestGuide)
#include "tst_guide.moc"
