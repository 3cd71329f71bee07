#include "app/configdialog.h"
#include "fonts/fontaasettings.h"
#include "platform/qazhelp.h"
#include "platform/qazinit.h"
#include "platform/slidingstackedwidget.h"
#include "resources/registerresources.h"
#include "tests/app/description.h"
#include "tests/support/modaldriver.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/testing.h"

#include <functional>

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
    text = text.simplified().toLower().remove(u'&');
    return text.endsWith(u':') ? text.chopped(1).trimmed() : text;
}

/// What the controls of \a page are called: labels, buttons, groups, tabs and the entries of boxes.
QStringList shownTexts(const QWidget *page)
{
    QStringList texts;
    for (const QWidget *widget : page->findChildren<QWidget *>()) {
        for (const char *property : {"text", "title"}) {
            if (!qobject_cast<const QLineEdit *>(widget)) // which holds the user's text
                texts.append(bare(widget->property(property).toString()));
        }
    }
    for (const QTabBar *tabs : page->findChildren<QTabBar *>()) {
        for (int i = 0; i < tabs->count(); ++i)
            texts.append(bare(tabs->tabText(i)));
    }
    for (const QComboBox *box : page->findChildren<QComboBox *>()) {
        for (int i = 0; i < box->count(); ++i)
            texts.append(bare(box->itemText(i)));
    }
    return texts;
}

QTextBrowser *helpWindow()
{
    const QWidgetList windows = QApplication::topLevelWidgets();
    for (QWidget *window : windows) {
        if (window->objectName() == "helpWindow"_s && window->isVisible())
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
    void cleanup()
    {
        QLocale::setDefault(QLocale::system());
        qDeleteAll(qApp->findChildren<QTranslator *>()); // which takes them out of use
    }

    void everyLanguageHasItsGuide_data()
    {
        QTest::addColumn<QString>("language");
        QTest::addColumn<QString>("ending");
        for (const char *row : {"en_GB", "de_AT_de", "fr_FR_fr", "es_MX_es", "ja_JP"})
            QTest::newRow(row) << QString::fromLatin1(row).left(5) << QString::fromLatin1(row).mid(5);
    }

    void everyLanguageHasItsGuide()
    {
        QFETCH(QString, language);
        QFETCH(QString, ending);
        QLocale::setDefault(QLocale(language));
        qazInit("1", "title");
        QFile guide(":/guide/guide%1.html"_s.arg(ending));
        QVERIFY(guide.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(guide.readAll());
        QVERIFY(!text.contains(QChar::ReplacementCharacter));
        verifyLinks(text);

        ConfigDialog dialog(m_home.path("a.themerc"_s));
        dialog.show();
        auto *list = dialog.findChild<QListWidget *>("contentsWidget"_s);
        QTextBrowser *help = nullptr;
        int lastPosition = -1;
        for (int row = 0; row < list->count(); ++row) {
            list->setCurrentRow(row);
            dialog.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&dialog));
            dialog.helpSlot();
            help = helpWindow();
            QVERIFY(help);
            const QWidget *page = dialog.findChild<SlidingStackedWidget *>()->currentWidget();
            const QString name
                = QString::fromLatin1(page->metaObject()->className()).toLower().remove("page"_s);
            QCOMPARE(help->source().toString(), "qrc"_s + guide.fileName() + u'#' + name);
            // The chapters stand in the order of the pages.
            QVERIFY2(help->verticalScrollBar()->value() > lastPosition, qPrintable(name));
            lastPosition = help->verticalScrollBar()->value();
            QVERIFY2(help->horizontalScrollBar()->maximum() == 0,
                     "a line or a picture is wider than the window");

            const QString chapter = text.section("<h2><a name=\"%1\">"_s.arg(name), 1)
                                        .section("<h2>"_s, 0, 0);
            const QStringList named = captured(chapter, "(?s)<[bi]>(.*?)</[bi]>"_s);
            QVERIFY2(!named.isEmpty(), qPrintable(name));
            const QStringList shown = shownTexts(page);
            for (const QString &control : named)
                QVERIFY2(shown.contains(bare(control)), qPrintable(name + ": "_s + control));
            // The picture is the page's own, in the guide's language.
            const QString picture = captured(chapter, "<img src=\"([^\"]*)\\.png\""_s).join(u' ');
            QVERIFY2(picture.startsWith(name) && !picture.contains(u' ')
                         && picture.endsWith(ending.isEmpty() ? "_en"_s : ending),
                     qPrintable(picture));
        }
        QVERIFY(QTest::qWaitForWindowActive(help));
        QTest::keyClick(help, Qt::Key_Escape);
        QVERIFY(!help->isVisible());
        QCoreApplication::sendPostedEvents(help, QEvent::DeferredDelete);
    }

    void theWindowHasABarBelowTheText()
    {
        QPointer<QTextBrowser> help = shownHelp();
        const auto *row = help->findChild<QHBoxLayout *>();
        Description description;
        description.add(help);
        m_home.write(QAZ_BINARY_DIR "/helpwindow.txt"_s, description.text().toUtf8()); // to see what differs
        QCOMPARE(
            description.text().split(u'\n'),
            QString::fromUtf8(m_home.read(QAZ_SOURCE_DIR "/tests/resources/helpwindow.txt"_s)).split(u'\n'));
        QCOMPARE(help->size(), QSize(760, 640));
        QCOMPARE(help->windowIcon().name(), "help-contents"_s);
        const auto *label = qobject_cast<QLabel *>(row->itemAt(2)->widget());
        QCOMPARE(label->text() + label->buddy()->objectName(), "Search:searchLineEdit"_s);
        QCOMPARE(row->count(), 7);

        const QRect bar = row->parentWidget()->geometry();
        const QRect text = help->viewport()->geometry().adjusted(0, 0, help->verticalScrollBar()->width(), 0);
        QCOMPARE(text.united(bar), help->contentsRect());
        QCOMPARE(bar.height(), row->sizeHint().height());
        QCOMPARE(bar.top(), text.bottom() + 1);
        QCOMPARE(bar.width(), help->contentsRect().width());
        QCOMPARE(widthOfFirstPicture(help), 660);
        help->resize(540, 400);
        QCOMPARE(widthOfFirstPicture(help), help->viewport()->width() - 2 * 16);
        help->close();
        QTRY_VERIFY(!help);
    }

    void theTextIsSearchedAndZoomed()
    {
        QTextBrowser *help = shownHelp();
        auto *text = help->findChild<QLineEdit *>("searchLineEdit"_s);
        const auto *result = help->findChild<QLabel *>("resultLabel"_s);
        QTest::keyClick(help, Qt::Key_F, Qt::ControlModifier);
        QVERIFY(text->hasFocus());
        QTest::keyClicks(text, "window manager"_s);
        const auto key = [text](Qt::Key key, Qt::KeyboardModifiers modifiers = {}) {
            return [=] { QTest::keyClick(text, key, modifiers); };
        };
        const auto button = [help](const QString &name) {
            return [=] { help->findChild<QToolButton *>(name)->click(); };
        };
        QList<int> places;
        // What is done, and the place that it leads to, counted from the first one.
        const std::pair<std::function<void()>, int> steps[] = {
            {key(Qt::Key_Return), 0},
            {key(Qt::Key_F3), 1},
            {button("nextButton"_s), 2},
            {button("previousButton"_s), 1},
            {key(Qt::Key_F3, Qt::ShiftModifier), 0},
            {[=] { help->moveCursor(QTextCursor::End), QTest::keyClick(text, Qt::Key_Enter); }, 0},
            {button("nextButton"_s), 1},
            {[=] { help->moveCursor(QTextCursor::Start), button("previousButton"_s)(); }, 3},
            {key(Qt::Key_F3), 0}};
        for (const auto &[step, place] : steps) {
            step();
            QCOMPARE(help->textCursor().selectedText().toLower(), "window manager"_s);
            QCOMPARE(result->text(), QString());
            const int found = help->textCursor().position();
            if (place == places.size())
                places.append(found);
            QCOMPARE(found, places.at(place));
        }
        QVERIFY(std::is_sorted(places.cbegin(), places.cend()));
        for (const auto &[searched, told] : {std::pair("no such words"_s, "Not found"_s), {""_s, ""_s}}) {
            text->setText(searched);
            QCOMPARE(result->text(), QString());
            QTest::keyClick(text, Qt::Key_Return);
            QCOMPARE(result->text(), told);
            QCOMPARE(help->textCursor().position(), places.at(0));
        }

        const int usual = help->fontInfo().pointSize();
        QCOMPARE(usual, QFontInfo(QApplication::font()).pointSize());
        // A key, how often it is pressed, and by how many points the text is larger then.
        const std::tuple<Qt::Key, int, int> zooms[] = {{Qt::Key_Plus, 1, 1},   {Qt::Key_Equal, 1, 2},
                                                       {Qt::Key_Minus, 1, 1},  {Qt::Key_0, 1, 0},
                                                       {Qt::Key_Plus, 25, 20}, {Qt::Key_Minus, 30, -6}};
        for (const auto &[zoom, times, larger] : zooms) {
            for (int i = 0; i < times; ++i)
                QTest::keyClick(help, zoom, Qt::ControlModifier);
            QCOMPARE(help->fontInfo().pointSize(), usual + larger);
        }

        qazHelpShow("sound"_s);
        button("backButton"_s)();
        QCOMPARE(help->source().fragment(), "index"_s);
        button("forwardButton"_s)();
        QCOMPARE(help->source().fragment(), "sound"_s);
        help->close();
    }

    void theAntiAliasingDialogHasItsChapter()
    {
        FontAASettings dialog(nullptr);
        ModalDriver driver;
        driver.then([](QDialog *shown) {
            QVERIFY(QTest::qWaitForWindowActive(shown));
            QTest::keyClick(shown, Qt::Key_F1);
            QTextBrowser *help = helpWindow();
            QVERIFY(help && QTest::qWaitForWindowActive(help)); // though the dialog is modal
            QCOMPARE(help->source().fragment(), "antialiasing"_s);
            QTest::keyClick(help, Qt::Key_Escape);
            shown->reject();
        });
        dialog.exec();
        QVERIFY(driver.isDone());
    }

private:
    const TemporaryHome m_home;

    /// A new window, with the keyboard's focus, at the topic of no page.
    static QTextBrowser *shownHelp()
    {
        QLocale::setDefault(QLocale("en_GB"_s));
        qazInit("1", "title");
        qazHelpShow(qazHelpLookForWidget());
        QTextBrowser *help = helpWindow();
        if (!help || !QTest::qWaitForWindowActive(help) || help->source().fragment() != "index"_s)
            qFatal("No help window");
        return help;
    }
    static int widthOfFirstPicture(const QTextBrowser *help)
    {
        const QTextCursor picture = help->document()->find(QString(QChar::ObjectReplacementCharacter));
        return int(picture.charFormat().toImageFormat().width());
    }
    void verifyLinks(const QString &text)
    {
        const QStringList chapters = captured(text, "<a name=\"(\\w+)\">"_s);
        QCOMPARE(chapters.join(u' '),
                 "index wallpaper theme font antialiasing screensaver effect sound restore session "
                 "command files keys"_s);
        const QStringList links = captured(text, "href=\"([^\"]*)\""_s);
        QCOMPARE(QSet<QString>(links.cbegin(), links.cend()).size(), chapters.size());
        for (const QString &link : links)
            QVERIFY2(chapters.contains(link.mid(1)), qPrintable(link));
        const QStringList pictures = captured(text, "<img src=\"([^\"]*)\""_s);
        QCOMPARE(pictures.size(), 7); // the window and its six pages
        for (const QString &picture : pictures)
            QVERIFY2(!QImage(":/guide/"_s + picture).isNull(), qPrintable(picture));
    }
};

QTEST_MAIN(TestGuide)
#include "tst_guide.moc"
