#include "tests/pages/theme/loadedpage.h"

#include "tests/support/modaldriver.h"
#include "tests/support/standarderror.h"

/// The themes of the page, and how the page is loaded and saved.
class TestThemePage : public QObject
{
    Q_OBJECT
private slots:
    void listsWholeThemesWithPreviews()
    {
        LoadedPage test;
        makeCursorTheme(test.home, ".icons/half"_s, Qt::red, {"left_ptr"_s});
        makeCursorTheme(test.home, ".icons/garbage"_s, Qt::red);
        test.home.write(".icons/garbage/cursors/watch"_s, "Xcur\0\0\0garbage");
        makeIconTheme(test.home, ".icons/no %1 clock"_s, Qt::red);
        test.remove(".icons/no %1 clock/a/preferences-system-time.png");
        test.home.write(".icons/preferences-system-time.png"_s, "outside all themes");
        makeIconTheme(test.home, ".icons/unreadable icons"_s, Qt::red);
        test.home.write(".icons/unreadable icons/p/user-home.png"_s, "\x89PNG\r\n");
        makeDecorTheme(test.home, "data/themes/eight"_s, Qt::red);
        test.remove("data/themes/eight/closeA.xpm");
        makeDecorTheme(test.home, "data/themes/bad"_s, Qt::red);
        test.home.write("data/themes/bad/frameAL.xpm"_s, "/* XPM */ 10000 10000");
        makeDecorTheme(test.home, "data/themes/nameless"_s, Qt::red);
        test.remove("data/themes/nameless/default.theme");
        StandardError errors;
        test.load();
        QCOMPARE(
            errors.take(),
            QByteArray(
                "qaz-admin-theme: theme no %1 clock is not full (no preferences-system-time in apps)\n"));
        QCOMPARE(test.texts("cursorThemeCombo"), "B|b"_s);
        QCOMPARE(test.texts("iconThemeCombo"), "Round|square|unreadable icons"_s);
        QCOMPARE(test.pixel("iconThemeCombo", 2, 0, 16), QColor(Qt::transparent));
        QCOMPARE(test.pixel("iconThemeCombo", 2, 36, 16), QColor(Qt::red));
        QCOMPARE(test.texts("decorThemeCombo"), "No theme|No theme|Wood|glass"_s);
        QCOMPARE(test.pixel("cursorThemeCombo", 0, 72, 16), QColor(Qt::blue));
        QCOMPARE(test.pixel("decorThemeCombo", 0, 50, 16), QColor(Qt::transparent));
        QCOMPARE(test.pixel("decorThemeCombo", 2, 50, 9), QColor(Qt::blue));
        // Loading again doubles neither entries nor connections.
        QCOMPARE(test.combo("elementComboBox")->count(), 34);
        QCOMPARE(test.combo("sizeComboBox")->count(), 2);
        test.choose("iconThemeCombo", 1);
        QCOMPARE(test.changed.count(), 1);
    }

    void unselectedBoxesShowAPlaceholder()
    {
        LoadedPage test("IconTheme=gone\n");
        const int plainHeight = test.combo("sizeComboBox")->height();
        for (const char *name : {"cursorThemeCombo", "iconThemeCombo"}) {
            QComboBox *box = test.combo(name);
            QCOMPARE(box->placeholderText(), "Default"_s);
            QCOMPARE(box->currentText(), QString());
            QCOMPARE(box->height(), plainHeight);
            const QImage shown = box->grab().toImage();
            box->setPlaceholderText(QString());
            QVERIFY2(shown != box->grab().toImage(), name);
            test.choose(name, 0);
            QTRY_VERIFY2(box->height() > plainHeight, name);
        }
        // A theme in use that is not listed is told by its name, as it stands.
        test.home.write(".icons/default/index.theme"_s, "[Icon Theme]\nInherits=<b>x\n");
        test.load();
        QCOMPARE(test.combo("cursorThemeCombo")->placeholderText(), "<b>x"_s);
        QCOMPARE(test.combo("cursorThemeCombo")->currentIndex(), -1);
    }

    void untouchedPage()
    {
        // What is stored, the themes selected (no cursor theme is named "default"), and what is saved.
        const std::tuple<QByteArray, QByteArray, QByteArray> rows[] = {
            {"", "-1 -1 0", ""},
            {"DecorTheme=\n", "-1 -1 0", ""},
            {"IconTheme=square\nDecorTheme=glass\n", "-1 1 3", ""},
            {"DecorTheme=No theme\n", "-1 -1 1", ""},
            {"IconTheme=gone\nDecorTheme=gone, too\n", "-1 -1 -1", ""},
            {"MenuColor=rgb(1,2,3)\nMenuColor2=\nFrameColor=nonsense\n", "-1 -1 0", ""},
            {"DesktopIconSize=4,8\nTaskbarHeight=tall\n", "-1 -1 0", ""},
            {"MenuColor=qvblue\nTitlebarColor=Qt\nTitlebarColor2=qt\n", "-1 -1 0",
             "MenuColor #000080\nTitlebarColor #606060\nTitlebarColor2 #c0c0c0\n"}};
        for (const auto &[stored, selected, saved] : rows) {
            LoadedPage test(stored);
            QByteArrayList indexes;
            for (const char *name : {"cursorThemeCombo", "iconThemeCombo", "decorThemeCombo"}) {
                indexes.append(QByteArray::number(test.combo(name)->currentIndex()));
                QVERIFY2(test.combo(name)->isEnabled(), name);
            }
            QCOMPARE(indexes.join(' '), selected);
            test.choose("elementComboBox", 5); // only to look at it
            test.choose("sizeComboBox", 1);
            QCOMPARE(test.changed.count(), 0);
            QCOMPARE(test.save(), saved);
            if (saved.isEmpty())
                QCOMPARE(test.home.read(themeFile), stored);
            QCOMPARE(test.save(), QByteArray());
        }
    }

    void savesChosenThemes()
    {
        LoadedPage test("IconTheme=square\nDecorTheme=Wood\n");
        test.choose("iconThemeCombo", 0);
        test.choose("decorThemeCombo", 1);
        QCOMPARE(test.changed.count(), 2);
        QCOMPARE(test.save(), QByteArray("IconTheme Round\nDecorTheme No theme\n"));
        test.choose("decorThemeCombo", 0);
        QCOMPARE(test.save(), QByteArray("DecorTheme \n"));
        QCOMPARE(test.home.read(themeFile), QByteArray("IconTheme=Round\nDecorTheme=\n"));
    }

    void cursorThemeIsSetOnce()
    {
        LoadedPage test;
        test.choose("cursorThemeCombo", 1);
        ModalDriver driver;
        driver.thenAnswer(QMessageBox::Ok);
        QCOMPARE(test.save(), QByteArray("CursorTheme b\n"));
        QCOMPARE(driver.seen(),
                 QStringList({"Warning|New cursor theme will be applied to newly started apps"_s}));
        QCOMPARE(test.home.read(".Xresources"_s), QByteArray("Xcursor.theme: b\n"));
        QCOMPARE(test.save(), QByteArray());
        QVERIFY(driver.isDone());
        test.load();
        QCOMPARE(test.combo("cursorThemeCombo")->currentIndex(), 1);
    }
};

QTEST_MAIN(TestThemePage)
#include "tst_themepage.moc"
