#include "tests/pages/theme/loadedpage.h"

#include "pages/theme/themesettings.h"
#include "tests/support/modaldriver.h"
#include "tests/support/standarderror.h"

#include <QClipboard>
#include <QColorDialog>
#include <QDropEvent>
#include <QGuiApplication>
#include <QInputDialog>
#include <QMimeData>

namespace {

// What is shown, the key, and the defaults: of the colour and of a gradient's end.
const QString elementEntries
    = "Button active ButtonActiveColor,#c0c0c0|Button ButtonColor,#c0c0c0|"
      "Button string active ButtonStringActiveColor,black|Button string ButtonStringColor,black|"
      "Clock string ClockStringColor,black|Desktop active DesktopActiveColor,#000080|"
      "Desktop DesktopColor,#3a6ea5,#3a6ea5|Dialog DialogColor,#c0c0c0|"
      "Dialog string DialogStringColor,black|Frame active FrameActiveColor,#c0c0c0|"
      "Frame FrameColor,#c0c0c0|Icon background IconBackColor,#c0c0c0|"
      "Icon foreground IconForeColor,#000080|Icon string active IconStringActiveColor,white|"
      "Icon string IconStringColor,white|Menu active MenuActiveColor,#000080|"
      "Menu MenuColor,#a4a3be,#fbfcfd|Menu string active MenuStringActiveColor,white|"
      "Menu string MenuStringColor,black|Pager miniatire active MiniatureActiveColor,red|"
      "Pager miniature MiniatureColor,black|Pager active PagerActiveColor,#606060|"
      "Pager PagerColor,#a4a3be,#fbfcfd|Start menu logo StartMenuLogoColor,#501414|"
      "Switcher active SwitcherActiveColor,#000080|Switcher SwitcherColor,#c0c0c0|"
      "Switcher string SwitcherStringColor,black|Taskbar TaskbarColor,#c0c0c0|"
      "Title string active TitleStringActiveColor,white|Title string TitleStringColor,white|"
      "Titlebar active TitlebarActiveColor,#000080,#a6caf0|Titlebar TitlebarColor,#606060,#c0c0c0|"
      "Tooltip TooltipColor,#ffffe1|Tooltip string TooltipStringColor,black"_s;

} // namespace

/// The themes, colours and sizes of the page, and how they are loaded and saved.
class TestThemePage : public QObject
{
    Q_OBJECT
private slots:
    void showsColorsAndSizes()
    {
        LoadedPage test("ButtonActiveColor=#010203\nMenuColor=nonsense\nMenuColor2=red\nTaskbarHeight=77\n");
        QComboBox *elements = test.combo("elementComboBox");
        QPushButton *end = test.button("color2Button");
        const auto shown = [&] {
            return elements->currentText() + u' ' + elements->currentData().toString();
        };
        QCOMPARE(shown(), "Button active ButtonActiveColor,#010203"_s);
        QCOMPARE(test.button("color1Button")->palette().color(QPalette::Disabled, QPalette::Window),
                 QColor(1, 2, 3));
        QVERIFY(end->isHidden() && !end->isEnabled());
        elements->setCurrentText("Menu"_s);
        QCOMPARE(shown(), "Menu MenuColor,nonsense,red"_s);
        QCOMPARE(test.pixel("elementComboBox", elements->currentIndex(), 109, 16), QColor(Qt::white));
        QVERIFY(end->isVisible() && end->isEnabled());
        QCOMPARE(elements->whatsThis() + u'|' + end->whatsThis(),
                 "Color: background of menus|Color at the end of the gradient: background of menus"_s);
        const QImage image = end->grab().toImage();
        QCOMPARE(image.pixelColor(image.rect().center()), QColor(Qt::red));
        QCOMPARE(test.texts("sizeComboBox"), "48,   Desktop icon size|77,   Taskbar height"_s);
        QCOMPARE(test.combo("sizeComboBox")->itemData(1).toString(), "TaskbarHeight"_s);
    }

    void elementsInTheOrderOfTheirKeys()
    {
        LoadedPage test("");
        QComboBox *elements = test.combo("elementComboBox");
        QStringList entries;
        for (int i = 0; i < elements->count(); ++i)
            entries.append(elements->itemText(i) + u' ' + elements->itemData(i).toString());
        QCOMPARE(entries.join(u'|'), elementEntries);
        // Typing a name finds it.
        QTest::keyClicks(elements, "tas"_s);
        QCOMPARE(elements->currentText(), "Taskbar"_s);
        QCOMPARE(test.changed.count(), 0);
        // The icon is the bare swatch; the frame around it is the box's.
        QCOMPARE(test.pixel("elementComboBox", elements->currentIndex(), 0, 0), QColor(0xc0, 0xc0, 0xc0));
        const QImage box = elements->grab().toImage();
        int darkest = 255;
        for (int x = 3; x < 12; ++x)
            darkest = qMin(darkest, box.pixelColor(x, box.height() / 2).lightness());
        QVERIFY2(darkest < 140, qPrintable(QString::number(darkest)));
    }

    void editsColors()
    {
        LoadedPage test("TitlebarColor=rgb(1,2,3)\nTitlebarColor2=red\n");
        QComboBox *elements = test.combo("elementComboBox");
        elements->setCurrentText("Titlebar"_s);
        ModalDriver driver;
        driver.then([](QDialog *dialog) {
            auto *colors = qobject_cast<QColorDialog *>(dialog);
            const QColor offered = colors->currentColor();
            colors->setCurrentColor(Qt::green);
            colors->accept();
            QCOMPARE(offered, QColor(Qt::red));
        });
        test.button("color2Button")->click();
        QCOMPARE(elements->currentData().toString(), "TitlebarColor,rgb(1,2,3),#00ff00"_s);
        QCOMPARE(test.button("color2Button")->palette().color(QPalette::Window), QColor(Qt::green));
        driver.thenReject();
        test.button("color1Button")->click();
        QVERIFY(driver.isDone());
        QCOMPARE(test.changed.count(), 1);
        QCOMPARE(test.save(), "TitlebarColor2 #00ff00"_s);
        QCOMPARE(test.content(), QByteArray("TitlebarColor=rgb(1,2,3)\nTitlebarColor2=#00ff00\n"));
    }

    void colorsAreDroppedAndPasted()
    {
        LoadedPage test("MenuColor=#010203\nMenuColor2=#040506\n");
        QComboBox *elements = test.combo("elementComboBox");
        elements->setCurrentText("Menu"_s);
        QMimeData color;
        color.setColorData(QColor(1, 1, 1));
        QMimeData text;
        text.setText(" #Fe0000\n"_s);
        QMimeData name;
        name.setText("red"_s);
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
        QGuiApplication::clipboard()->setText("#00ff7f"_s);
        QTest::keyClick(test.button("color1Button"), Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(elements->currentData().toString(), "MenuColor,#00ff7f,#fe0000"_s);
        QCOMPARE(test.changed.count(), 4);
        QCOMPARE(test.save(), "MenuColor #00ff7f|MenuColor2 #fe0000"_s);
    }

    void everyColorIsSavedUnderItsKeys()
    {
        LoadedPage test("");
        QComboBox *elements = test.combo("elementComboBox");
        QByteArray expected;
        for (int i = 0; i < elements->count(); ++i) {
            elements->setCurrentIndex(i);
            for (const char *end : {"1", "2"}) {
                QPushButton *button = test.button((QByteArray("color") + end + "Button").constData());
                if (!button->isVisible())
                    continue;
                const QString color = "#%1"_s.arg(256 * i + *end, 6, 16, QLatin1Char('0'));
                QGuiApplication::clipboard()->setText(color);
                QTest::keyClick(button, Qt::Key_V, Qt::ControlModifier);
                expected += elements->currentData().toString().section(u',', 0, 0).toLatin1()
                            + (*end == '2' ? "2" : "") + ' ' + color.toLatin1() + '\n';
            }
        }
        QCOMPARE(test.save(), QString::fromLatin1(expected.chopped(1)).replace(u'\n', u'|'));
        QCOMPARE(test.content(), expected.replace(' ', '='));
        QCOMPARE(expected.count('\n'), 39);
    }

    void editsSizes()
    {
        const std::tuple<int, int, QString>
            rows[] // the entry, what is chosen (negative: but cancelled), saved
            = {{0, 64, "DesktopIconSize 64"_s}, {0, -64, {}}, {1, 280, "TaskbarHeight 280"_s}, {1, 60, {}}};
        for (const auto &row : rows) {
            const int entry = std::get<0>(row);
            const int chosen = std::get<1>(row);
            LoadedPage test("DesktopIconSize=50\nTaskbarHeight=60\n");
            test.combo("sizeComboBox")->setCurrentIndex(entry);
            QString shown;
            ModalDriver driver;
            driver.then([&](QDialog *dialog) {
                auto *input = qobject_cast<QInputDialog *>(dialog);
                shown = input->labelText() + (input->isComboBoxEditable() ? ": "_s : "| "_s);
                if (entry == 0)
                    shown += input->comboBoxItems().join(u' ') + " at "_s + input->textValue();
                else
                    shown += "%1 to %2 at %3"_s.arg(input->intMinimum())
                                 .arg(input->intMaximum())
                                 .arg(input->intValue());
                entry == 0 ? input->setTextValue(QString::number(qAbs(chosen))) : input->setIntValue(chosen);
                input->done(chosen > 0); // accepted or rejected
            });
            test.button("sizeButton")->click();
            // 50, the stored size of icons, is not among the choices.
            QCOMPARE(shown, entry == 0 ? "Desktop icon size| 16 22 32 48 64 96 128 256 at 16"_s
                                       : "Taskbar height| 21 to 280 at 60"_s);
            QCOMPARE(driver.seen(), QStringList{"Select size|QInputDialog"_s});
            QCOMPARE(test.changed.count(), std::get<2>(row).isEmpty() ? 0 : 1);
            QCOMPARE(test.save(), std::get<2>(row));
        }
    }

    void sizesFollowTheResolution()
    {
        const std::pair<double, const char *> sizes[] // 0 dpi: unknown
            = {{0, "48 49"},     {75.9, "48 49"},  {76, "32 39"},
               {95.86, "48 49"}, {119.9, "64 49"}, {120, "48 49"}};
        for (const auto &[dpi, both] : sizes)
            QCOMPARE(defaultSize(sizeElements[0], dpi) + u' ' + defaultSize(sizeElements[1], dpi),
                     QLatin1String(both));
    }

    void listsWholeThemesWithPreviews()
    {
        LoadedPage test("");
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
        test.load(test.content());
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
        test.load(test.content());
        QCOMPARE(test.combo("cursorThemeCombo")->placeholderText(), "<b>x"_s);
        QCOMPARE(test.combo("cursorThemeCombo")->currentIndex(), -1);
    }

    void untouchedPage()
    {
        // What is stored, the themes selected (no cursor theme is named "default"), and what is saved.
        const std::tuple<QByteArray, QByteArray, QString> rows[] = {
            {"", "-1 -1 0", {}},
            {"DecorTheme=\n", "-1 -1 0", {}},
            {"IconTheme=square\nDecorTheme=glass\n", "-1 1 3", {}},
            {"DecorTheme=No theme\n", "-1 -1 1", {}},
            {"IconTheme=gone\nDecorTheme=gone, too\n", "-1 -1 -1", {}},
            {"MenuColor=rgb(1,2,3)\nMenuColor2=\nFrameColor=nonsense\n", "-1 -1 0", {}},
            {"DesktopIconSize=4,8\nTaskbarHeight=tall\n", "-1 -1 0", {}},
            {"MenuColor=qvblue\nTitlebarColor=Qt\nTitlebarColor2=qt\n", "-1 -1 0",
             "MenuColor #000080|TitlebarColor #606060|TitlebarColor2 #c0c0c0"_s}};
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
                QCOMPARE(test.content(), stored);
            QCOMPARE(test.save(), QString());
        }
    }

    void savesChosenThemes()
    {
        LoadedPage test("IconTheme=square\nDecorTheme=Wood\n");
        test.choose("iconThemeCombo", 0);
        test.choose("decorThemeCombo", 1);
        QCOMPARE(test.changed.count(), 2);
        QCOMPARE(test.save(), "IconTheme Round|DecorTheme No theme"_s);
        test.choose("decorThemeCombo", 0);
        test.choose("cursorThemeCombo", 1);
        ModalDriver driver;
        driver.thenAnswer(QMessageBox::Ok);
        QCOMPARE(test.save(), "CursorTheme b|DecorTheme "_s);
        QCOMPARE(driver.seen(),
                 QStringList{"Warning|New cursor theme will be applied to newly started apps"_s});
        QCOMPARE(test.home.read(".Xresources"_s), QByteArray("Xcursor.theme: b\n"));
        QCOMPARE(test.save(), QString()); // the cursor theme is set once
        QCOMPARE(test.content(), QByteArray("IconTheme=Round\nDecorTheme=\n"));
        test.load(test.content());
        QCOMPARE(test.combo("cursorThemeCombo")->currentIndex(), 1);
    }
};

QTEST_MAIN(TestThemePage)
#include "tst_themepage.moc"
