#include "fonts/fontaasettings.h"
#include "platform/qazhelp.h"
#include "tests/app/description.h"
#include "tests/app/dialogtest.h"
#include "tests/support/modaldriver.h"

namespace {

QStringList captured(const QString &text, const QString &pattern)
{
    QStringList found;
    for (auto all = QRegularExpression(pattern).globalMatch(text); all.hasNext();)
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
        const auto *tabs = qobject_cast<const QTabBar *>(widget);
        const auto *box = qobject_cast<const QComboBox *>(widget);
        for (int i = 0; (tabs || box) && i < widget->property("count").toInt(); ++i)
            texts.append(bare(tabs ? tabs->tabText(i) : box->itemText(i)));
        for (const char *property : {"text", "title"})
            if (!qobject_cast<const QLineEdit *>(widget)) // which holds the user's text
                texts.append(bare(widget->property(property).toString()));
    }
    return texts;
}

QTextBrowser *helpWindow()
{
    for (QWidget *window : QApplication::topLevelWidgets())
        if (window->objectName() == "helpWindow"_s && window->isVisible())
            return qobject_cast<QTextBrowser *>(window);
    return nullptr;
}

} // namespace

/// The user guide in each language, and the window that shows it.
class TestGuide : public DialogTest
{
    Q_OBJECT

private slots:
    void everyLanguageHasItsGuide_data()
    {
        QTest::addColumn<QString>("language"); // and the ending of its file
        for (const char *language : {"en_GB", "de_AT_de", "fr_FR_fr", "es_MX_es", "ja_JP"})
            QTest::newRow(language) << QString::fromLatin1(language);
    }

    void everyLanguageHasItsGuide()
    {
        QFETCH(QString, language);
        QLocale::setDefault(QLocale(language.left(5)));
        qazInit("1", "title");
        QFile guide(":/guide/guide%1.html"_s.arg(language.mid(5)));
        QVERIFY(guide.open(QIODevice::ReadOnly));
        const QString text = QString::fromUtf8(guide.readAll());
        verifyLinks(text);

        open();
        QTextBrowser *help = nullptr;
        for (int row = 0; row < m_list->count(); ++row) {
            m_list->setCurrentRow(row);
            m_dialog->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
            m_dialog->helpSlot();
            help = helpWindow();
            QVERIFY(help);
            const QWidget *page = m_stack->currentWidget();
            const QString name
                = QString::fromLatin1(page->metaObject()->className()).toLower().remove("page"_s);
            QCOMPARE(help->source().toString(), "qrc"_s + guide.fileName() + u'#' + name);
            QCOMPARE(help->horizontalScrollBar()->maximum(),
                     0); // no line and no picture is wider than the window

            const QString chapter = text.section("<h2><a name=\"%1\">"_s.arg(name), 1)
                                        .section("<h2>"_s, 0, 0);
            const QStringList shown = shownTexts(page), named = captured(chapter, "(?s)<[bi]>(.*?)</[bi]>"_s);
            QVERIFY2(!named.isEmpty(), qPrintable(name));
            for (const QString &control : named)
                QVERIFY2(shown.contains(bare(control)), qPrintable(name + ": "_s + control));
            // The picture is the page's own, in the guide's language.
            const QString ending = language.mid(5).isEmpty() ? "_en"_s : language.mid(5);
            QCOMPARE(captured(chapter, "<img src=\"([^\"]*)\\.png\""_s), QStringList{name + ending});
        }
        QVERIFY(help->verticalScrollBar()->value() > 0); // at the last page's chapter
        QVERIFY(QTest::qWaitForWindowActive(help));
        QTest::keyClick(help, Qt::Key_Escape);
        QVERIFY(!help->isVisible());
        QCoreApplication::sendPostedEvents(help, QEvent::DeferredDelete);
    }

    void theWindowHasABarBelowTheText()
    {
        QPointer<QTextBrowser> help = shownHelp();
        Description description;
        description.add(help);
        verifyText("resources/helpwindow.txt"_s, description.text());
        QCOMPARE(help->size(), QSize(760, 640));
        QCOMPARE(help->windowIcon().name(), "help-contents"_s);
        const auto *row = help->findChild<QHBoxLayout *>();
        const auto *label = qobject_cast<QLabel *>(row->itemAt(2)->widget());
        QCOMPARE(label->text() + label->buddy()->objectName(), "Search:searchLineEdit"_s);
        QCOMPARE(row->count(), 7);

        QRect text = help->contentsRect(), bar = text;
        text.setHeight(text.height() - row->sizeHint().height());
        bar.setTop(text.bottom() + 1);
        QCOMPARE(row->parentWidget()->geometry(), bar);
        QCOMPARE(help->viewport()->geometry().adjusted(0, 0, help->verticalScrollBar()->width(), 0), text);
        const auto widthOfFirstPicture = [help] {
            const QTextCursor picture = help->document()->find(QString(QChar::ObjectReplacementCharacter));
            return int(picture.charFormat().toImageFormat().width());
        };
        QCOMPARE(widthOfFirstPicture(), 660);
        help->resize(540, 400);
        QCOMPARE(widthOfFirstPicture(), help->viewport()->width() - 2 * 16);
        help->close();
        QTRY_VERIFY(!help);
    }

    void theTextIsSearchedAndZoomed()
    {
        QTextBrowser *help = shownHelp();
        auto *text = help->findChild<QLineEdit *>("searchLineEdit"_s);
        const auto *result = help->findChild<QLabel *>("resultLabel"_s);
        const auto press = [help, text](const char *what) {
            auto *button = help->findChild<QToolButton *>(QLatin1String(what));
            button ? button->click() : QTest::keySequence(text, QKeySequence(QLatin1String(what)));
        };
        press("Ctrl+F");
        QVERIFY(text->hasFocus());
        QTest::keyClicks(text, "window manager"_s);
        const QString guide = help->toPlainText().toLower();
        QVector<int> places; // that the steps lead to: first to last is 1 to 0
        for (const char *step : {"Return", "F3", "nextButton", "previousButton", "Shift+F3", "previousButton",
                                 "Enter", "nextButton"}) {
            press(step);
            QCOMPARE(help->textCursor().selectedText().toLower() + result->text(), "window manager"_s);
            const int number = guide.leftRef(help->textCursor().position()).count("window manager"_s);
            places.append(number % guide.count("window manager"_s));
        }
        QCOMPARE(places, (QVector<int>{1, 2, 3, 2, 1, 0, 1, 2}));
        for (const auto &[searched, told] : {std::pair("no such words"_s, "Not found"_s), {""_s, ""_s}}) {
            text->setText(searched);
            QCOMPARE(result->text(), QString());
            press("Return");
            QCOMPARE(result->text(), told);
            QCOMPARE(help->textCursor().selectedText().toLower(), "window manager"_s);
        }

        const int usual = help->fontInfo().pointSize();
        QCOMPARE(usual, QFontInfo(QApplication::font()).pointSize());
        // A key, how often it is pressed, and by how many points the text is larger then.
        const std::tuple<const char *, int, int> zooms[] = {{"Ctrl++", 1, 1},   {"Ctrl+=", 1, 2},
                                                            {"Ctrl+-", 1, 1},   {"Ctrl+0", 1, 0},
                                                            {"Ctrl++", 25, 20}, {"Ctrl+-", 30, -6}};
        for (const auto &[zoom, times, larger] : zooms) {
            for (int i = 0; i < times; ++i)
                press(zoom);
            QCOMPARE(help->fontInfo().pointSize(), usual + larger);
        }

        qazHelpShow("sound"_s);
        press("backButton");
        QCOMPARE(help->source().fragment(), "index"_s);
        press("forwardButton");
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
    static void verifyLinks(const QString &text)
    {
        QCOMPARE(
            captured(text, "<a name=\"(\\w+)\">"_s).join(u' '),
            "index wallpaper theme font antialiasing screensaver effect sound restore session command files keys"_s);
        QStringList links = captured(text, "href=\"([^\"]*)\""_s);
        links.removeDuplicates();
        QCOMPARE(links.join(u' '),
                 "#wallpaper #theme #font #screensaver #effect #sound #restore #session #command "
                 "#files #keys #index #antialiasing"_s);
        const QStringList pictures = captured(text, "<img src=\"([^\"]*)\""_s);
        QCOMPARE(pictures.size(), 7); // the window and its six pages
        for (const QString &picture : pictures)
            QVERIFY2(!QImage(":/guide/"_s + picture).isNull(), qPrintable(picture));
    }
};

QTEST_MAIN(TestGuide)
#include "tst_guide.moc"
