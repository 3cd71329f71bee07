#include "pages/theme/themepage.h"

#include "platform/qazsettings.h"

#include <QColorDialog>
#include <QComboBox>
#include <QInputDialog>
#include <QLineEdit>
#include <QPushButton>
#include <QSignalSpy>
#include <QSpinBox>
#include <QTest>

#include <memory>

#include "tests/support/environment.h"
#include "tests/support/modaldriver.h"
#include "tests/support/samplethemes.h"
#include "tests/support/standarderror.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"

namespace {

const QString themeFile = QStringLiteral("test.themerc");
const QSize previewSize(110, 32);

QByteArray only(const TemporaryHome &home)
{
    return home.read(themeFile);
}

} // namespace

/// A page on a theme file, in a home with themes of each kind.
class LoadedPage
{
public:
    explicit LoadedPage(const QByteArray &themeFileContent = {})
        : m_data("QAZ_DATA_DIR", home.path(QStringLiteral("data")).toLocal8Bit())
        , m_cursors("XCURSOR_PATH", "~/.icons")
    {
        home.write(themeFile, themeFileContent);
        makeCursorTheme(home, QStringLiteral(".icons/b"), Qt::red);
        makeCursorTheme(home, QStringLiteral(".icons/B"), Qt::blue);
        makeIconTheme(home, QStringLiteral(".icons/square"), Qt::red);
        makeIconTheme(home, QStringLiteral(".icons/Round"), Qt::blue);
        home.write(QStringLiteral(".icons/hicolor/index.theme"),
                   "[Icon Theme]\nDirectories=p\n[p]\nSize=32\n");
        makeDecorTheme(home, QStringLiteral("data/themes/glass"), Qt::red);
        makeDecorTheme(home, QStringLiteral("data/themes/No theme"), Qt::green);
        makeDecorTheme(home, QStringLiteral("data/themes/Wood"), Qt::blue);
    }

    void load()
    {
        QazSettings settings(home.path(themeFile));
        settings.sync(true);
        page.loadValues(&settings);
        page.show();
        QCoreApplication::processEvents(); // ends the reading pass
    }
    QStringList save()
    {
        {
            QazSettings settings(home.path(themeFile));
            settings.sync(true);
            page.saveValues(&settings);
        }
        return windowManager.take();
    }
    template<typename Widget>
    Widget *find(const char *name)
    {
        return page.findChild<Widget *>(QLatin1String(name));
    }
    QComboBox *combo(const char *name) { return find<QComboBox>(name); }
    QPushButton *button(const char *name) { return find<QPushButton>(name); }
    QStringList texts(const char *name)
    {
        QStringList texts;
        for (int i = 0; i < combo(name)->count(); ++i)
            texts.append(combo(name)->itemText(i));
        return texts;
    }
    QImage preview(const char *name, int index)
    {
        return combo(name)->itemIcon(index).pixmap(previewSize).toImage();
    }
    void choose(const char *name, int index)
    {
        combo(name)->setCurrentIndex(index);
        emit combo(name)->activated(index); // as the user's choice does
    }

    TemporaryHome home;
    WmListener windowManager;
    ThemePage page;

private:
    ScopedEnvironment m_data;
    ScopedEnvironment m_cursors;
};

class TestThemePage : public QObject
{
    Q_OBJECT
private slots:
    void listsThemesWithPreviews();
    void leavesBrokenThemesOut();
    void showsColorsAndSizes();
    void untouchedPageSavesNothing();
    void translatesOldColors();
    void unlistedThemesStay();
    void savesChosenThemes();
    void cursorThemeIsSetOnce();
    void editsColors();
    void editsSizes_data();
    void editsSizes();
    void lookingAroundMarksNothing();
    void loadsAgain();
};

void TestThemePage::listsThemesWithPreviews()
{
    LoadedPage test("IconTheme=square\nDecorTheme=No theme\n");
    test.load();
    QCOMPARE(test.texts("cursorThemeCombo"), QStringList({QStringLiteral("B"), QStringLiteral("b")}));
    QCOMPARE(test.texts("iconThemeCombo"), QStringList({QStringLiteral("Round"), QStringLiteral("square")}));
    QCOMPARE(test.texts("decorThemeCombo"),
             QStringList({QStringLiteral("No theme"), QStringLiteral("No theme"), QStringLiteral("Wood"),
                          QStringLiteral("glass")}));
    QCOMPARE(test.preview("cursorThemeCombo", 0).pixelColor(72, 16), QColor(Qt::blue));
    QCOMPARE(test.preview("iconThemeCombo", 1).pixelColor(36, 16), QColor(Qt::red));
    QCOMPARE(test.preview("decorThemeCombo", 0).pixelColor(50, 16), QColor(Qt::transparent));
    QCOMPARE(test.preview("decorThemeCombo", 2).pixelColor(50, 9), QColor(Qt::blue));
    QCOMPARE(test.combo("iconThemeCombo")->currentIndex(), 1);
    QCOMPARE(test.combo("decorThemeCombo")->currentIndex(), 1);
    QVERIFY(test.page.loaded);
}

void TestThemePage::leavesBrokenThemesOut()
{
    LoadedPage test;
    makeCursorTheme(test.home, QStringLiteral(".icons/half"), Qt::red, {QStringLiteral("left_ptr")});
    makeCursorTheme(test.home, QStringLiteral(".icons/garbage"), Qt::red);
    test.home.write(QStringLiteral(".icons/garbage/cursors/watch"), "Xcur\0\0\0garbage");
    makeIconTheme(test.home, QStringLiteral(".icons/no %1 clock"), Qt::red);
    QVERIFY(
        QFile::remove(test.home.path(QStringLiteral(".icons/no %1 clock/a/preferences-system-time.png"))));
    makeIconTheme(test.home, QStringLiteral(".icons/unreadable icons"), Qt::red);
    test.home.write(QStringLiteral(".icons/unreadable icons/p/user-home.png"), "\x89PNG\r\n");
    makeDecorTheme(test.home, QStringLiteral("data/themes/eight"), Qt::red);
    QVERIFY(QFile::remove(test.home.path(QStringLiteral("data/themes/eight/closeA.xpm"))));
    makeDecorTheme(test.home, QStringLiteral("data/themes/bad"), Qt::red);
    test.home.write(QStringLiteral("data/themes/bad/frameAL.xpm"), "/* XPM */ 10000 10000");
    makeDecorTheme(test.home, QStringLiteral("data/themes/nameless"), Qt::red);
    QVERIFY(QFile::remove(test.home.path(QStringLiteral("data/themes/nameless/default.theme"))));
    StandardError errors;
    test.load();
    QCOMPARE(
        errors.take(),
        QByteArray("qaz-admin-theme: theme no %1 clock is not full (no preferences-system-time in apps)\n"));
    QCOMPARE(test.combo("cursorThemeCombo")->count(), 2);
    QCOMPARE(test.texts("iconThemeCombo").last(), QStringLiteral("unreadable icons"));
    QCOMPARE(test.combo("iconThemeCombo")->count(), 3);
    QCOMPARE(test.preview("iconThemeCombo", 2).pixelColor(0, 16), QColor(Qt::transparent));
    QCOMPARE(test.preview("iconThemeCombo", 2).pixelColor(36, 16), QColor(Qt::red));
    QCOMPARE(test.combo("decorThemeCombo")->count(), 4);
}

void TestThemePage::showsColorsAndSizes()
{
    LoadedPage test("ButtonActiveColor=#010203\nMenuColor=nonsense\nMenuColor2=red\nTaskbarHeight=77\n");
    test.load();
    QComboBox *elements = test.combo("elementComboBox");
    QCOMPARE(elements->count(), 34);
    QCOMPARE(elements->currentIndex(), 0);
    QCOMPARE(elements->itemText(0), QStringLiteral("Button active"));
    QCOMPARE(elements->itemData(0).toString(), QStringLiteral("ButtonActiveColor,#010203"));
    QCOMPARE(test.button("color1Button")->palette().color(QPalette::Disabled, QPalette::Window),
             QColor(1, 2, 3));
    QVERIFY(test.button("color2Button")->isHidden());
    QVERIFY(!test.button("color2Button")->isEnabled());
    const int menu = elements->findText(QStringLiteral("Menu"));
    elements->setCurrentIndex(menu);
    QCOMPARE(elements->itemData(menu).toString(), QStringLiteral("MenuColor,nonsense,red"));
    QCOMPARE(test.preview("elementComboBox", menu).pixelColor(109, 16), QColor(Qt::white));
    QVERIFY(test.button("color2Button")->isVisible());
    QVERIFY(test.button("color2Button")->isEnabled());
    const QImage shown = test.button("color2Button")->grab().toImage();
    QCOMPARE(shown.pixelColor(shown.rect().center()), QColor(Qt::red));
    QCOMPARE(test.texts("sizeComboBox"), QStringList({QStringLiteral("48,   Desktop icon size"),
                                                      QStringLiteral("77,   Taskbar height")}));
    QCOMPARE(test.combo("sizeComboBox")->itemData(1).toString(), QStringLiteral("TaskbarHeight"));
}

void TestThemePage::untouchedPageSavesNothing()
{
    const QByteArray content = "MenuColor=rgb(1,2,3)\nMenuColor2=\nPagerColor=\nFrameColor=nonsense\n"
                               "DesktopIconSize=4,8\nTaskbarHeight=tall\n";
    LoadedPage test(content);
    test.load();
    QCOMPARE(test.save(), QStringList());
    QCOMPARE(only(test.home), content);
}

void TestThemePage::translatesOldColors()
{
    LoadedPage test("MenuColor=qvblue\nTitlebarColor=Qt\nTitlebarColor2=qt\nFrameColor=qvlightray\n");
    test.load();
    QCOMPARE(test.save(), QStringList({QStringLiteral("QAZWM_UPDATE_VAL FrameColor light gray"),
                                       QStringLiteral("QAZWM_UPDATE_VAL MenuColor #000080"),
                                       QStringLiteral("QAZWM_UPDATE_VAL TitlebarColor #606060"),
                                       QStringLiteral("QAZWM_UPDATE_VAL TitlebarColor2 #c0c0c0")}));
    QCOMPARE(only(test.home), QByteArray("MenuColor=#000080\nTitlebarColor=#606060\nTitlebarColor2=#c0c0c0\n"
                                         "FrameColor=light gray\n"));
}

void TestThemePage::unlistedThemesStay()
{
    const QByteArray content = "IconTheme=gone\nDecorTheme=gone, too\n";
    LoadedPage test(content);
    test.load();
    for (const char *name : {"cursorThemeCombo", "iconThemeCombo", "decorThemeCombo"})
        QVERIFY2(test.combo(name)->currentIndex() == -1 && test.combo(name)->isEnabled(), name);
    QCOMPARE(test.save(), QStringList());
    QCOMPARE(only(test.home), content);
    LoadedPage fresh;
    fresh.load();
    QCOMPARE(fresh.combo("iconThemeCombo")->currentIndex(), -1);
    QCOMPARE(fresh.combo("decorThemeCombo")->currentIndex(), 0);
}

void TestThemePage::savesChosenThemes()
{
    LoadedPage test("IconTheme=square\nDecorTheme=Wood\n");
    test.load();
    QSignalSpy changed(&test.page, &ThemePage::changedSignal);
    test.choose("iconThemeCombo", 0);
    test.choose("decorThemeCombo", 1);
    QCOMPARE(changed.count(), 2);
    QCOMPARE(test.save(), QStringList({QStringLiteral("QAZWM_UPDATE_VAL IconTheme Round"),
                                       QStringLiteral("QAZWM_UPDATE_VAL DecorTheme No theme")}));
    test.choose("decorThemeCombo", 0);
    QCOMPARE(test.save(), QStringList({QStringLiteral("QAZWM_UPDATE_VAL DecorTheme ")}));
    QCOMPARE(only(test.home), QByteArray("IconTheme=Round\nDecorTheme=\n"));
}

void TestThemePage::cursorThemeIsSetOnce()
{
    LoadedPage test;
    test.load();
    test.choose("cursorThemeCombo", 1);
    ModalDriver driver;
    driver.thenAnswer(QMessageBox::Ok);
    QCOMPARE(test.save(), QStringList({QStringLiteral("QAZWM_UPDATE_VAL CursorTheme b")}));
    QCOMPARE(driver.seen(),
             QStringList({QStringLiteral("Warning|New cursor theme will be applied to newly started apps")}));
    QCOMPARE(test.home.read(QStringLiteral(".Xresources")), QByteArray("Xcursor.theme: b\n"));
    QCOMPARE(test.save(), QStringList());
    QVERIFY(driver.isDone());
    test.load();
    QCOMPARE(test.combo("cursorThemeCombo")->currentIndex(), 1);
}

void TestThemePage::editsColors()
{
    LoadedPage test("TitlebarColor=rgb(1,2,3)\nTitlebarColor2=red\n");
    test.load();
    QComboBox *elements = test.combo("elementComboBox");
    const int titlebar = elements->findText(QStringLiteral("Titlebar"));
    elements->setCurrentIndex(titlebar);
    QSignalSpy changed(&test.page, &ThemePage::changedSignal);
    ModalDriver driver;
    driver.then([](QDialog *dialog) {
        auto *colors = qobject_cast<QColorDialog *>(dialog);
        QCOMPARE(colors->currentColor(), QColor(Qt::red));
        colors->setCurrentColor(QColor(0, 255, 0));
        colors->accept();
    });
    test.button("color2Button")->click();
    QCOMPARE(changed.count(), 1);
    QCOMPARE(elements->itemData(titlebar).toString(), QStringLiteral("TitlebarColor,rgb(1,2,3),#00ff00"));
    QCOMPARE(test.button("color2Button")->palette().color(QPalette::Window), QColor(0, 255, 0));
    driver.thenReject();
    test.button("color1Button")->click();
    QCOMPARE(changed.count(), 1);
    QVERIFY(driver.isDone());
    QCOMPARE(test.save(), QStringList({QStringLiteral("QAZWM_UPDATE_VAL TitlebarColor2 #00ff00")}));
    QCOMPARE(only(test.home), QByteArray("TitlebarColor=rgb(1,2,3)\nTitlebarColor2=#00ff00\n"));
}

void TestThemePage::editsSizes_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<QByteArray>("offered");
    QTest::addColumn<int>("chosen");
    QTest::addColumn<bool>("isAccepted");
    QTest::addColumn<QStringList>("commands");
    const QByteArray icons = "16 22 32 48 64 96 128 256 at 16"; // 50, the stored size, is not among them
    QTest::newRow("icons") << 0 << icons << 64 << true
                           << QStringList({QStringLiteral("QAZWM_UPDATE_VAL DesktopIconSize 64")});
    QTest::newRow("icons, cancelled") << 0 << icons << 64 << false << QStringList();
    QTest::newRow("taskbar") << 1 << QByteArray("21 to 280 at 60") << 280 << true
                             << QStringList({QStringLiteral("QAZWM_UPDATE_VAL TaskbarHeight 280")});
    QTest::newRow("taskbar, unchanged") << 1 << QByteArray("21 to 280 at 60") << 60 << true << QStringList();
}

void TestThemePage::editsSizes()
{
    QFETCH(int, entry);
    QFETCH(int, chosen);
    QFETCH(bool, isAccepted);
    QFETCH(QStringList, commands);
    LoadedPage test("DesktopIconSize=50\nTaskbarHeight=60\n");
    test.load();
    test.combo("sizeComboBox")->setCurrentIndex(entry);
    QSignalSpy changed(&test.page, &ThemePage::changedSignal);
    QString offered;
    ModalDriver driver;
    driver.then([&](QDialog *dialog) {
        auto *input = qobject_cast<QInputDialog *>(dialog);
        if (entry == 0) {
            QVERIFY(!input->isComboBoxEditable());
            offered = input->comboBoxItems().join(QLatin1Char(' ')) + QLatin1String(" at ")
                      + input->textValue();
            input->setTextValue(QString::number(chosen));
        } else {
            offered = QStringLiteral("%1 to %2 at %3")
                          .arg(input->intMinimum())
                          .arg(input->intMaximum())
                          .arg(input->intValue());
            input->setIntValue(chosen);
        }
        QCOMPARE(input->labelText(),
                 entry == 0 ? QStringLiteral("Desktop icon size") : QStringLiteral("Taskbar height"));
        isAccepted ? input->accept() : input->reject();
    });
    test.button("sizeButton")->click();
    QCOMPARE(driver.seen(), QStringList({QStringLiteral("Select size|QInputDialog")}));
    QTEST(offered.toLatin1(), "offered");
    QCOMPARE(changed.count(), commands.size());
    QCOMPARE(test.save(), commands);
}

void TestThemePage::lookingAroundMarksNothing()
{
    LoadedPage test;
    test.load();
    QSignalSpy changed(&test.page, &ThemePage::changedSignal);
    test.choose("elementComboBox", 5);
    test.choose("sizeComboBox", 1);
    QCOMPARE(changed.count(), 0);
    QCOMPARE(test.save(), QStringList());
}

void TestThemePage::loadsAgain()
{
    LoadedPage test;
    test.load();
    makeDecorTheme(test.home, QStringLiteral("data/themes/new"), Qt::red);
    test.combo("elementComboBox")->setCurrentIndex(3);
    test.load();
    QCOMPARE(test.texts("decorThemeCombo").last(), QStringLiteral("new"));
    QCOMPARE(test.combo("elementComboBox")->count(), 34);
    QCOMPARE(test.combo("sizeComboBox")->count(), 2);
    QSignalSpy changed(&test.page, &ThemePage::changedSignal);
    test.choose("iconThemeCombo", 1);
    QCOMPARE(changed.count(), 1); // the connections are not doubled
}

QTEST_MAIN(TestThemePage)
#include "tst_themepage.moc"
