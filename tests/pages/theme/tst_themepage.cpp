#include "tests/pages/theme/loadedpage.h"

#include "tests/support/modaldriver.h"
#include "tests/support/standarderror.h"

/// The themes of the page, and how the page is loaded and saved.
class TestThemePage : public QObject
{
    Q_OBJECT
private slots:
    void listsWholeThemesWithPreviews();
    void unselectedBoxesShowAPlaceholder();
    void untouchedPage_data();
    void untouchedPage();
    void savesChosenThemes();
    void cursorThemeIsSetOnce();
};

void TestThemePage::listsWholeThemesWithPreviews()
{
    LoadedPage test;
    makeCursorTheme(test.home, QStringLiteral(".icons/half"), Qt::red, {QStringLiteral("left_ptr")});
    makeCursorTheme(test.home, QStringLiteral(".icons/garbage"), Qt::red);
    test.home.write(QStringLiteral(".icons/garbage/cursors/watch"), "Xcur\0\0\0garbage");
    makeIconTheme(test.home, QStringLiteral(".icons/no %1 clock"), Qt::red);
    test.remove(".icons/no %1 clock/a/preferences-system-time.png");
    test.home.write(QStringLiteral(".icons/preferences-system-time.png"), "outside all themes");
    makeIconTheme(test.home, QStringLiteral(".icons/unreadable icons"), Qt::red);
    test.home.write(QStringLiteral(".icons/unreadable icons/p/user-home.png"), "\x89PNG\r\n");
    makeDecorTheme(test.home, QStringLiteral("data/themes/eight"), Qt::red);
    test.remove("data/themes/eight/closeA.xpm");
    makeDecorTheme(test.home, QStringLiteral("data/themes/bad"), Qt::red);
    test.home.write(QStringLiteral("data/themes/bad/frameAL.xpm"), "/* XPM */ 10000 10000");
    makeDecorTheme(test.home, QStringLiteral("data/themes/nameless"), Qt::red);
    test.remove("data/themes/nameless/default.theme");
    StandardError errors;
    test.load();
    QCOMPARE(
        errors.take(),
        QByteArray("qaz-admin-theme: theme no %1 clock is not full (no preferences-system-time in apps)\n"));
    QCOMPARE(test.texts("cursorThemeCombo"), QStringLiteral("B|b"));
    QCOMPARE(test.texts("iconThemeCombo"), QStringLiteral("Round|square|unreadable icons"));
    QCOMPARE(test.pixel("iconThemeCombo", 2, 0, 16), QColor(Qt::transparent));
    QCOMPARE(test.pixel("iconThemeCombo", 2, 36, 16), QColor(Qt::red));
    QCOMPARE(test.texts("decorThemeCombo"), QStringLiteral("No theme|No theme|Wood|glass"));
    QCOMPARE(test.pixel("cursorThemeCombo", 0, 72, 16), QColor(Qt::blue));
    QCOMPARE(test.pixel("decorThemeCombo", 0, 50, 16), QColor(Qt::transparent));
    QCOMPARE(test.pixel("decorThemeCombo", 2, 50, 9), QColor(Qt::blue));
    // Loading again doubles neither entries nor connections.
    QCOMPARE(test.combo("elementComboBox")->count(), 34);
    QCOMPARE(test.combo("sizeComboBox")->count(), 2);
    test.choose("iconThemeCombo", 1);
    QCOMPARE(test.changed.count(), 1);
}

void TestThemePage::unselectedBoxesShowAPlaceholder()
{
    LoadedPage test("IconTheme=gone\n");
    const int plainHeight = test.combo("sizeComboBox")->height();
    for (const char *name : {"cursorThemeCombo", "iconThemeCombo"}) {
        QComboBox *box = test.combo(name);
        QCOMPARE(box->placeholderText(), QStringLiteral("Default"));
        QCOMPARE(box->currentText(), QString());
        QCOMPARE(box->height(), plainHeight);
        const QImage shown = box->grab().toImage();
        box->setPlaceholderText(QString());
        QVERIFY2(shown != box->grab().toImage(), name);
        test.choose(name, 0);
        QTRY_VERIFY2(box->height() > plainHeight, name);
    }
    // A theme in use that is not listed is told by its name, as it stands.
    test.home.write(QStringLiteral(".icons/default/index.theme"), "[Icon Theme]\nInherits=<b>x\n");
    test.load();
    QCOMPARE(test.combo("cursorThemeCombo")->placeholderText(), QStringLiteral("<b>x"));
    QCOMPARE(test.combo("cursorThemeCombo")->currentIndex(), -1);
}

void TestThemePage::untouchedPage_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QByteArray>("selected"); // themes; no cursor theme is named "default"
    QTest::addColumn<QByteArray>("saved");
    const auto row = [](const char *name, const char *stored, const char *selected, const char *saved) {
        QTest::newRow(name) << QByteArray(stored) << QByteArray(selected) << QByteArray(saved);
    };
    row("nothing stored", "", "-1 -1 0", "");
    row("no decoration theme wanted", "DecorTheme=\n", "-1 -1 0", "");
    row("listed themes", "IconTheme=square\nDecorTheme=glass\n", "-1 1 3", "");
    row("a theme named like none", "DecorTheme=No theme\n", "-1 -1 1", "");
    row("themes that are gone", "IconTheme=gone\nDecorTheme=gone, too\n", "-1 -1 -1", "");
    row("odd colors", "MenuColor=rgb(1,2,3)\nMenuColor2=\nFrameColor=nonsense\n", "-1 -1 0", "");
    row("odd sizes", "DesktopIconSize=4,8\nTaskbarHeight=tall\n", "-1 -1 0", "");
    row("old colors", "MenuColor=qvblue\nTitlebarColor=Qt\nTitlebarColor2=qt\n", "-1 -1 0",
        "MenuColor #000080\nTitlebarColor #606060\nTitlebarColor2 #c0c0c0\n");
}

void TestThemePage::untouchedPage()
{
    QFETCH(QByteArray, stored);
    QFETCH(QByteArray, saved);
    LoadedPage test(stored);
    QByteArray selected;
    for (const char *name : {"cursorThemeCombo", "iconThemeCombo", "decorThemeCombo"}) {
        selected += QByteArray::number(test.combo(name)->currentIndex()) + ' ';
        QVERIFY2(test.combo(name)->isEnabled(), name);
    }
    QTEST(selected.trimmed(), "selected");
    test.choose("elementComboBox", 5); // only to look at it
    test.choose("sizeComboBox", 1);
    QCOMPARE(test.changed.count(), 0);
    QCOMPARE(test.save(), saved);
    if (saved.isEmpty())
        QCOMPARE(test.home.read(themeFile), stored);
    QCOMPARE(test.save(), QByteArray());
}

void TestThemePage::savesChosenThemes()
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

void TestThemePage::cursorThemeIsSetOnce()
{
    LoadedPage test;
    test.choose("cursorThemeCombo", 1);
    ModalDriver driver;
    driver.thenAnswer(QMessageBox::Ok);
    QCOMPARE(test.save(), QByteArray("CursorTheme b\n"));
    QCOMPARE(driver.seen(),
             QStringList({QStringLiteral("Warning|New cursor theme will be applied to newly started apps")}));
    QCOMPARE(test.home.read(QStringLiteral(".Xresources")), QByteArray("Xcursor.theme: b\n"));
    QCOMPARE(test.save(), QByteArray());
    QVERIFY(driver.isDone());
    test.load();
    QCOMPARE(test.combo("cursorThemeCombo")->currentIndex(), 1);
}

QTEST_MAIN(TestThemePage)
#include "tst_themepage.moc"
