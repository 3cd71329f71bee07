#include "pages/theme/themepage.h"

#include "platform/qazsettings.h"

#include <QClipboard>
#include <QColorDialog>
#include <QComboBox>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputDialog>
#include <QMimeData>
#include <QPushButton>
#include <QScopeGuard>
#include <QSignalSpy>
#include <QTest>

#include "tests/support/environment.h"
#include "tests/support/modaldriver.h"
#include "tests/support/samplethemes.h"
#include "tests/support/standarderror.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"

namespace {

const QString themeFile = QStringLiteral("test.themerc");

// What is shown, the key, and the defaults: of the colour and of a gradient's end.
constexpr char elementEntries[] = "Button active ButtonActiveColor,#c0c0c0\n"
                                  "Button ButtonColor,#c0c0c0\n"
                                  "Button string active ButtonStringActiveColor,black\n"
                                  "Button string ButtonStringColor,black\n"
                                  "Clock string ClockStringColor,black\n"
                                  "Desktop active DesktopActiveColor,#000080\n"
                                  "Desktop DesktopColor,#3a6ea5,#3a6ea5\n"
                                  "Dialog DialogColor,#c0c0c0\n"
                                  "Dialog string DialogStringColor,black\n"
                                  "Frame active FrameActiveColor,#c0c0c0\n"
                                  "Frame FrameColor,#c0c0c0\n"
                                  "Icon background IconBackColor,#c0c0c0\n"
                                  "Icon foreground IconForeColor,#000080\n"
                                  "Icon string active IconStringActiveColor,white\n"
                                  "Icon string IconStringColor,white\n"
                                  "Menu active MenuActiveColor,#000080\n"
                                  "Menu MenuColor,#a4a3be,#fbfcfd\n"
                                  "Menu string active MenuStringActiveColor,white\n"
                                  "Menu string MenuStringColor,black\n"
                                  "Pager miniatire active MiniatureActiveColor,red\n"
                                  "Pager miniature MiniatureColor,black\n"
                                  "Pager active PagerActiveColor,#606060\n"
                                  "Pager PagerColor,#a4a3be,#fbfcfd\n"
                                  "Start menu logo StartMenuLogoColor,#501414\n"
                                  "Switcher active SwitcherActiveColor,#000080\n"
                                  "Switcher SwitcherColor,#c0c0c0\n"
                                  "Switcher string SwitcherStringColor,black\n"
                                  "Taskbar TaskbarColor,#c0c0c0\n"
                                  "Title string active TitleStringActiveColor,white\n"
                                  "Title string TitleStringColor,white\n"
                                  "Titlebar active TitlebarActiveColor,#000080,#a6caf0\n"
                                  "Titlebar TitlebarColor,#606060,#c0c0c0\n"
                                  "Tooltip TooltipColor,#ffffe1\n"
                                  "Tooltip string TooltipStringColor,black";

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
        load();
    }

    void pass(bool (ThemePage::*loadOrSave)(QazSettings *))
    {
        QazSettings settings(home.path(themeFile));
        settings.sync(true);
        (page.*loadOrSave)(&settings);
    }
    void load()
    {
        pass(&ThemePage::loadValues);
        page.show();
        QCoreApplication::processEvents(); // ends the reading pass
    }
    /// The updates that the window manager was told of, one a line.
    QByteArray save()
    {
        pass(&ThemePage::saveValues);
        QByteArray updates;
        for (const QString &command : windowManager.take())
            updates += command.section(QLatin1Char(' '), 1).toUtf8() + '\n';
        return updates;
    }
    QComboBox *combo(const char *name) { return page.findChild<QComboBox *>(QLatin1String(name)); }
    QPushButton *button(const char *name) { return page.findChild<QPushButton *>(QLatin1String(name)); }
    QString texts(const char *name)
    {
        QStringList texts;
        for (int i = 0; i < combo(name)->count(); ++i)
            texts.append(combo(name)->itemText(i));
        return texts.join(QLatin1Char('|'));
    }
    QColor pixel(const char *name, int index, int x, int y)
    {
        return combo(name)->itemIcon(index).pixmap(110, 32).toImage().pixelColor(x, y);
    }
    void choose(const char *name, int index)
    {
        combo(name)->setCurrentIndex(index);
        emit combo(name)->activated(index); // as the user's choice does
    }
    void remove(const char *path) { QVERIFY(QFile::remove(home.path(QString::fromLatin1(path)))); }

    TemporaryHome home;
    WmListener windowManager;
    ThemePage page;
    QSignalSpy changed{&page, &ThemePage::changedSignal};

private:
    ScopedEnvironment m_data;
    ScopedEnvironment m_cursors;
};

class TestThemePage : public QObject
{
    Q_OBJECT
private slots:
    void listsWholeThemesWithPreviews();
    void showsColorsAndSizes();
    void elementsInTheOrderOfTheirKeys();
    void unselectedBoxesShowAPlaceholder();
    void untouchedPage_data();
    void untouchedPage();
    void savesChosenThemes();
    void cursorThemeIsSetOnce();
    void editsColors();
    void colorsAreDroppedAndPasted();
    void everyColorIsSavedUnderItsKeys();
    void editsSizes_data();
    void editsSizes();
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

void TestThemePage::showsColorsAndSizes()
{
    LoadedPage test("ButtonActiveColor=#010203\nMenuColor=nonsense\nMenuColor2=red\nTaskbarHeight=77\n");
    QComboBox *elements = test.combo("elementComboBox");
    QPushButton *end = test.button("color2Button");
    QCOMPARE(elements->currentText(), QStringLiteral("Button active"));
    QCOMPARE(elements->currentData().toString(), QStringLiteral("ButtonActiveColor,#010203"));
    QCOMPARE(test.button("color1Button")->palette().color(QPalette::Disabled, QPalette::Window),
             QColor(1, 2, 3));
    QVERIFY(end->isHidden() && !end->isEnabled());
    elements->setCurrentText(QStringLiteral("Menu"));
    QCOMPARE(elements->currentData().toString(), QStringLiteral("MenuColor,nonsense,red"));
    QCOMPARE(test.pixel("elementComboBox", elements->currentIndex(), 109, 16), QColor(Qt::white));
    QVERIFY(end->isVisible() && end->isEnabled());
    QCOMPARE(elements->whatsThis(), QStringLiteral("Color: background of menus"));
    QCOMPARE(end->whatsThis(), QStringLiteral("Color at the end of the gradient: background of menus"));
    const QImage shown = end->grab().toImage();
    QCOMPARE(shown.pixelColor(shown.rect().center()), QColor(Qt::red));
    QCOMPARE(test.texts("sizeComboBox"), QStringLiteral("48,   Desktop icon size|77,   Taskbar height"));
    QCOMPARE(test.combo("sizeComboBox")->itemData(1).toString(), QStringLiteral("TaskbarHeight"));
}

void TestThemePage::elementsInTheOrderOfTheirKeys()
{
    LoadedPage test;
    QComboBox *elements = test.combo("elementComboBox");
    QStringList entries;
    for (int i = 0; i < elements->count(); ++i)
        entries.append(elements->itemText(i) + QLatin1Char(' ') + elements->itemData(i).toString());
    QCOMPARE(entries.join(QLatin1Char('\n')), QString::fromLatin1(elementEntries));
    // Typing a name finds it.
    QTest::keyClicks(elements, QStringLiteral("tas"));
    QCOMPARE(elements->currentText(), QStringLiteral("Taskbar"));
    QCOMPARE(test.changed.count(), 0);
    // The icon is the bare swatch; the frame around it is the box's.
    QCOMPARE(test.pixel("elementComboBox", elements->currentIndex(), 0, 0), QColor(0xc0, 0xc0, 0xc0));
    const QImage box = elements->grab().toImage();
    int darkest = 255;
    for (int x = 3; x < 12; ++x)
        darkest = qMin(darkest, box.pixelColor(x, box.height() / 2).lightness());
    QVERIFY2(darkest < 140, qPrintable(QString::number(darkest)));
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

void TestThemePage::editsColors()
{
    LoadedPage test("TitlebarColor=rgb(1,2,3)\nTitlebarColor2=red\n");
    QComboBox *elements = test.combo("elementComboBox");
    elements->setCurrentText(QStringLiteral("Titlebar"));
    ModalDriver driver;
    driver.then([](QDialog *dialog) {
        auto *colors = qobject_cast<QColorDialog *>(dialog);
        const QColor offered = colors->currentColor();
        colors->setCurrentColor(Qt::green);
        colors->accept();
        QCOMPARE(offered, QColor(Qt::red));
    });
    test.button("color2Button")->click();
    QCOMPARE(elements->currentData().toString(), QStringLiteral("TitlebarColor,rgb(1,2,3),#00ff00"));
    QCOMPARE(test.button("color2Button")->palette().color(QPalette::Window), QColor(Qt::green));
    driver.thenReject();
    test.button("color1Button")->click();
    QVERIFY(driver.isDone());
    QCOMPARE(test.changed.count(), 1);
    QCOMPARE(test.save(), QByteArray("TitlebarColor2 #00ff00\n"));
    QCOMPARE(test.home.read(themeFile), QByteArray("TitlebarColor=rgb(1,2,3)\nTitlebarColor2=#00ff00\n"));
}

void TestThemePage::colorsAreDroppedAndPasted()
{
    LoadedPage test("MenuColor=#010203\nMenuColor2=#040506\n");
    QComboBox *elements = test.combo("elementComboBox");
    elements->setCurrentText(QStringLiteral("Menu"));
    QMimeData color;
    color.setColorData(QColor(1, 1, 1));
    QMimeData text;
    text.setText(QStringLiteral(" #Fe0000\n"));
    QMimeData name;
    name.setText(QStringLiteral("red"));
    const std::tuple<QWidget *, const QMimeData *, const char *> drops[] = {
        {test.button("color1Button"), &color, "MenuColor,#010101,#040506"},
        {test.button("color2Button"), &text, "MenuColor,#010101,#fe0000"},
        {test.button("color2Button"), &name, "MenuColor,#010101,#fe0000"},
        {elements, &text, "MenuColor,#fe0000,#fe0000"}};
    for (const auto &[target, data, entry] : drops) {
        QDragEnterEvent enter({1, 1}, Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &enter);
        QCOMPARE(enter.isAccepted(), data != &name);
        QDropEvent drop({1, 1}, Qt::CopyAction, data, Qt::LeftButton, Qt::NoModifier);
        QCoreApplication::sendEvent(target, &drop);
        QCOMPARE(elements->currentData().toString(), QLatin1String(entry));
    }
    QCOMPARE(test.pixel("elementComboBox", elements->currentIndex(), 50, 16), QColor(0xfe, 0, 0));
    QGuiApplication::clipboard()->setText(QStringLiteral("#00ff7f"));
    QTest::keyClick(test.button("color1Button"), Qt::Key_V, Qt::ControlModifier);
    QCOMPARE(elements->currentData().toString(), QStringLiteral("MenuColor,#00ff7f,#fe0000"));
    QCOMPARE(test.changed.count(), 4);
    QCOMPARE(test.save(), QByteArray("MenuColor #00ff7f\nMenuColor2 #fe0000\n"));
}

void TestThemePage::everyColorIsSavedUnderItsKeys()
{
    LoadedPage test;
    QComboBox *elements = test.combo("elementComboBox");
    QByteArray expected;
    for (int i = 0; i < elements->count(); ++i) {
        elements->setCurrentIndex(i);
        for (const char *end : {"1", "2"}) {
            QPushButton *button = test.button((QByteArray("color") + end + "Button").constData());
            if (!button->isVisible())
                continue;
            const QString color = QStringLiteral("#%1").arg(256 * i + *end, 6, 16, QLatin1Char('0'));
            QGuiApplication::clipboard()->setText(color);
            QTest::keyClick(button, Qt::Key_V, Qt::ControlModifier);
            expected += elements->currentData().toString().section(QLatin1Char(','), 0, 0).toLatin1()
                        + (*end == '2' ? "2" : "") + ' ' + color.toLatin1() + '\n';
        }
    }
    QCOMPARE(test.save(), expected);
    QCOMPARE(test.home.read(themeFile), expected.replace(' ', '='));
    QCOMPARE(expected.count('\n'), 39);
}

void TestThemePage::editsSizes_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<int>("chosen");
    QTest::addColumn<QByteArray>("saved");
    QTest::newRow("icons") << 0 << 64 << QByteArray("DesktopIconSize 64\n");
    QTest::newRow("icons, cancelled") << 0 << -64 << QByteArray();
    QTest::newRow("taskbar") << 1 << 280 << QByteArray("TaskbarHeight 280\n");
    QTest::newRow("taskbar, unchanged") << 1 << 60 << QByteArray();
}

void TestThemePage::editsSizes()
{
    QFETCH(int, entry);
    QFETCH(int, chosen); // negative: but cancelled
    QFETCH(QByteArray, saved);
    LoadedPage test("DesktopIconSize=50\nTaskbarHeight=60\n");
    test.combo("sizeComboBox")->setCurrentIndex(entry);
    ModalDriver driver;
    driver.then([=](QDialog *dialog) {
        auto *input = qobject_cast<QInputDialog *>(dialog);
        const auto end = qScopeGuard([=] { input->done(chosen > 0); }); // accepted or rejected
        const QString choices = input->comboBoxItems().join(QLatin1Char(' '));
        const QString range = QStringLiteral("%1 to %2").arg(input->intMinimum()).arg(input->intMaximum());
        // 50, the stored size of icons, is not among the choices.
        QCOMPARE(entry == 0 ? choices + QLatin1String(" at ") + input->textValue() : range,
                 entry == 0 ? QStringLiteral("16 22 32 48 64 96 128 256 at 16")
                            : QStringLiteral("21 to 280"));
        QVERIFY(entry == 0 ? !input->isComboBoxEditable() : input->intValue() == 60);
        QCOMPARE(input->labelText(), QLatin1String(entry == 0 ? "Desktop icon size" : "Taskbar height"));
        entry == 0 ? input->setTextValue(QString::number(qAbs(chosen))) : input->setIntValue(chosen);
    });
    test.button("sizeButton")->click();
    QCOMPARE(driver.seen(), QStringList({QStringLiteral("Select size|QInputDialog")}));
    QCOMPARE(test.changed.count(), saved.isEmpty() ? 0 : 1);
    QCOMPARE(test.save(), saved);
}

QTEST_MAIN(TestThemePage)
#include "tst_themepage.moc"
