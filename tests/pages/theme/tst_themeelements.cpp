#include "tests/pages/theme/loadedpage.h"

#include "pages/theme/themesettings.h"
#include "tests/support/modaldriver.h"

#include <QClipboard>
#include <QColorDialog>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputDialog>
#include <QMimeData>
#include <QScopeGuard>

namespace {

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

/// The colours and sizes of the page.
class TestThemeElements : public QObject
{
    Q_OBJECT
private slots:
    void showsColorsAndSizes();
    void elementsInTheOrderOfTheirKeys();
    void editsColors();
    void colorsAreDroppedAndPasted();
    void everyColorIsSavedUnderItsKeys();
    void editsSizes_data();
    void editsSizes();
    void sizesFollowTheResolution();
};

void TestThemeElements::showsColorsAndSizes()
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

void TestThemeElements::elementsInTheOrderOfTheirKeys()
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

void TestThemeElements::editsColors()
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

void TestThemeElements::colorsAreDroppedAndPasted()
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

void TestThemeElements::everyColorIsSavedUnderItsKeys()
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

void TestThemeElements::editsSizes_data()
{
    QTest::addColumn<int>("entry");
    QTest::addColumn<int>("chosen");
    QTest::addColumn<QByteArray>("saved");
    QTest::newRow("icons") << 0 << 64 << QByteArray("DesktopIconSize 64\n");
    QTest::newRow("icons, cancelled") << 0 << -64 << QByteArray();
    QTest::newRow("taskbar") << 1 << 280 << QByteArray("TaskbarHeight 280\n");
    QTest::newRow("taskbar, unchanged") << 1 << 60 << QByteArray();
}

void TestThemeElements::editsSizes()
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

void TestThemeElements::sizesFollowTheResolution()
{
    const std::pair<double, const char *> sizes[] // 0 dpi: unknown
        = {{0, "48 49"}, {75.9, "48 49"}, {76, "32 39"}, {95.86, "48 49"}, {119.9, "64 49"}, {120, "48 49"}};
    for (const auto &[dpi, both] : sizes)
        QCOMPARE(defaultSize(sizeElements[0], dpi) + QLatin1Char(' ') + defaultSize(sizeElements[1], dpi),
                 QLatin1String(both));
}

QTEST_MAIN(TestThemeElements)
#include "tst_themeelements.moc"
