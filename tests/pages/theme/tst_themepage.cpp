#include "pages/theme/themepage.h"
#include "pages/theme/themesettings.h"
#include "tests/support/modaldriver.h"
#include "tests/support/pageoverfile.h"
#include "tests/support/samplethemes.h"
#include "tests/support/standarderror.h"

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

/// A page on a theme file, in a home with themes of each kind.
struct Page : PageOverFile<ThemePage> {
    explicit Page(const QByteArray &content)
    {
        makeCursorTheme(home, ".icons/b"_s, Qt::red);
        makeCursorTheme(home, ".icons/B"_s, Qt::blue);
        makeIconTheme(home, ".icons/square"_s, Qt::red);
        makeIconTheme(home, ".icons/Round"_s, Qt::blue);
        home.write(".icons/hicolor/index.theme"_s, "[Icon Theme]\nDirectories=p\n[p]\nSize=32\n");
        makeDecorTheme(home, "data/themes/glass"_s, Qt::red);
        makeDecorTheme(home, "data/themes/No theme"_s, Qt::green);
        makeDecorTheme(home, "data/themes/Wood"_s, Qt::blue);
        load(content);
        page.show();
    }

    QComboBox *combo(const char *name) const { return find<QComboBox>(name); }
    QString texts(const char *name) const
    {
        QStringList texts;
        for (int i = 0; i < combo(name)->count(); ++i)
            texts.append(combo(name)->itemText(i));
        return texts.join(u'|');
    }
    QColor pixel(const char *name, int index, int x, int y) const
    {
        return combo(name)->itemIcon(index).pixmap(110, 32).toImage().pixelColor(x, y);
    }
    void choose(const char *name, int index) const
    {
        combo(name)->setCurrentIndex(index);
        emit combo(name)->activated(index); // as the user's choice does
    }
    /// The element in view, as its entry's data.
    QString element() const { return elements->currentData().toString(); }
    void remove(const QString &path) const { QVERIFY(QFile::remove(home.path(path))); }

    const ScopedEnvironment data{"QAZ_DATA_DIR", home.path("data"_s).toLocal8Bit()};
    const ScopedEnvironment cursors{"XCURSOR_PATH", "~/.icons"};
    QComboBox *const elements = combo("elementComboBox");
    QPushButton *const main = find<QPushButton>("color1Button");
    QPushButton *const end = find<QPushButton>("color2Button");
    QPushButton *const size = find<QPushButton>("sizeButton");
    QSignalSpy changed{&page, &ThemePage::changedSignal};
};

} // namespace

/// The themes, colours and sizes of the page, and how they are loaded and saved.
class TestThemePage : public QObject
{
    Q_OBJECT
private slots:
    void showsColorsAndSizes()
    {
        Page test("ButtonActiveColor=#010203\nMenuColor=nonsense\nMenuColor2=red\nTaskbarHeight=77\n");
        QCOMPARE(test.elements->currentText() + u' ' + test.element(),
                 "Button active ButtonActiveColor,#010203"_s);
        QCOMPARE(test.main->palette().color(QPalette::Disabled, QPalette::Window), QColor(1, 2, 3));
        QVERIFY(test.end->isHidden() && !test.end->isEnabled());
        const QSize pageSize = test.page.minimumSizeHint();
        test.elements->setCurrentText("Menu"_s);
        QCOMPARE(test.page.minimumSizeHint(), pageSize); // nothing moves
        QCOMPARE(test.element(), "MenuColor,nonsense,red"_s);
        QCOMPARE(test.pixel("elementComboBox", test.elements->currentIndex(), 109, 16), QColor(Qt::white));
        QVERIFY(test.end->isVisible() && test.end->isEnabled());
        const QString meaning = "Color: background of menus"_s;
        QCOMPARE(test.elements->whatsThis() + test.main->whatsThis(), meaning + meaning);
        QCOMPARE(test.end->whatsThis(), "Color at the end of the gradient: background of menus"_s);
        // The swatch has a frame of the text's colour.
        QImage swatch(48, 16, QImage::Format_RGB32);
        swatch.fill(test.end->palette().color(QPalette::ButtonText));
        QPainter(&swatch).fillRect(1, 1, 46, 14, Qt::red);
        QCOMPARE(test.end->icon().pixmap(1000).toImage().convertToFormat(QImage::Format_RGB32), swatch);
        QCOMPARE(test.end->iconSize(), swatch.size());
        const QImage dots = test.size->icon().pixmap(1000).toImage();
        QString middle;
        for (int x = 0; x < dots.width(); ++x)
            middle += QString::number(dots.pixelColor(x, 8).alpha() / 26);
        QCOMPARE(middle, "0799003993009970"_s);
        // So has the entry's in the box, though not its own.
        test.elements->setCurrentText("Taskbar"_s);
        QCOMPARE(test.pixel("elementComboBox", test.elements->currentIndex(), 0, 0),
                 QColor(0xc0, 0xc0, 0xc0));
        const QImage box
            = test.elements->grab(QRect(3, 15, 6, 1)).toImage().convertToFormat(QImage::Format_Grayscale8);
        QVERIFY(*std::min_element(box.constBits(), box.constBits() + 6) < 140);
        QVERIFY(test.elements->view()->sizeHintForColumn(0) > 110); // the swatch and the name
        QCOMPARE(test.texts("sizeComboBox"), "48,   Desktop icon size|77,   Taskbar height"_s);
        QCOMPARE(test.combo("sizeComboBox")->itemData(1).toString(), "TaskbarHeight"_s);
    }

    void everyColorIsShownAndSaved()
    {
        Page test("");
        QStringList entries, expected;
        for (int i = 0; i < test.elements->count(); ++i) {
            test.elements->setCurrentIndex(i);
            const QString data = test.element();
            entries.append(test.elements->currentText() + u' ' + data);
            for (QPushButton *button : {test.main, test.end}) {
                if (!button->isVisible())
                    continue;
                const QString color = "#%1"_s.arg(256 * i + (button == test.end), 6, 16, QLatin1Char('0'));
                QGuiApplication::clipboard()->setText(color);
                QTest::keyClick(button, Qt::Key_V, Qt::ControlModifier);
                expected += data.section(u',', 0, 0) + (button == test.end ? "2 "_s : " "_s) + color;
            }
        }
        QCOMPARE(entries.join(u'|'), elementEntries);
        QCOMPARE(expected.size(), 39);
        QCOMPARE(test.changed.count(), 39);
        QCOMPARE(test.save(), expected.join(u'|'));
        QCOMPARE(test.content(), expected.replaceInStrings(" "_s, "="_s).join(u'\n').toLatin1() + '\n');
    }

    void editsColors()
    {
        Page test("TitlebarColor=rgb(1,2,3)\nTitlebarColor2=red\n");
        test.elements->setCurrentText("Titlebar"_s);
        ModalDriver driver;
        driver.then([](QDialog *dialog) {
            auto *colors = qobject_cast<QColorDialog *>(dialog);
            const QColor offered = colors->currentColor();
            colors->setCurrentColor(Qt::green);
            colors->accept();
            QCOMPARE(offered, QColor(Qt::red));
        });
        test.end->click();
        QCOMPARE(test.element(), "TitlebarColor,rgb(1,2,3),#00ff00"_s);
        QCOMPARE(test.end->palette().color(QPalette::Window), QColor(Qt::green));
        driver.thenReject();
        test.main->click();
        QVERIFY(driver.isDone());
        QCOMPARE(test.save(), "TitlebarColor2 #00ff00"_s);
        const std::tuple<QWidget *, QColor, const char *> drops[] = {
            {test.main, Qt::red, "TitlebarColor,#ff0000,#00ff00"},
            {test.end, Qt::blue, "TitlebarColor,#ff0000,#0000ff"},
            {test.elements, Qt::green, "TitlebarColor,#00ff00,#0000ff"}};
        for (const auto &[target, color, entry] : drops) {
            QMimeData data;
            data.setColorData(color);
            QDragEnterEvent enter({1, 1}, Qt::CopyAction, &data, Qt::LeftButton, {});
            QDropEvent drop({1, 1}, Qt::CopyAction, &data, Qt::LeftButton, {});
            QCoreApplication::sendEvent(target, &enter);
            QCoreApplication::sendEvent(target, &drop);
            QVERIFY(target->acceptDrops());
            QCOMPARE(test.element(), QLatin1String(entry));
        }
        const int index = test.elements->currentIndex();
        QVERIFY(test.pixel("elementComboBox", index, 0, 16).green() > 250);
        QVERIFY(test.pixel("elementComboBox", index, 109, 16).blue() > 250);
        QCOMPARE(test.changed.count(), 4);
    }

    void editsSizes()
    {
        Page test("DesktopIconSize=50\nTaskbarHeight=60\n");
        QStringList seen;
        const std::pair<int, int> choices[] = {{0, 22}, {0, 64}, {1, 60}, {1, 280}}; // the first is rejected
        for (const auto &choice : choices) {
            test.combo("sizeComboBox")->setCurrentIndex(choice.first);
            ModalDriver driver;
            driver.then([&](QDialog *dialog) {
                auto *input = qobject_cast<QInputDialog *>(dialog);
                for (const int number : {input->intMinimum(), input->intMaximum(), input->intValue()})
                    seen += QString::number(number);
                seen << input->textValue() << input->comboBoxItems().join(u' ') << input->labelText();
                input->setIntValue(choice.second);
                input->setTextValue(QString::number(choice.second));
                input->done(choice.second != 22);
                QVERIFY(!input->isComboBoxEditable());
            });
            test.size->click();
            seen += driver.seen() + QStringList(test.combo("sizeComboBox")->currentText());
        }
        // 50, the stored size of icons, is not among the choices.
        const QString icons
            = "0|99|0|16|16 22 32 48 64 96 128 256|Desktop icon size|Select size|QInputDialog|"_s;
        const QString taskbar = "|21|280|60|||Taskbar height|Select size|QInputDialog|"_s;
        QCOMPARE(seen.join(u'|'), icons + "50,   Desktop icon size|"_s + icons + "64,   Desktop icon size"_s
                                      + taskbar + "60,   Taskbar height"_s + taskbar
                                      + "280,   Taskbar height"_s);
        QCOMPARE(test.changed.count(), 2);
        QCOMPARE(test.save(), "DesktopIconSize 64|TaskbarHeight 280"_s);
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
        Page test("");
        makeCursorTheme(test.home, ".icons/half"_s, Qt::red, {"left_ptr"_s});
        makeCursorTheme(test.home, ".icons/garbage"_s, Qt::red);
        test.home.write(".icons/garbage/cursors/watch"_s, "Xcur\0\0\0garbage");
        makeCursorTheme(test.home, ".icons/pipe"_s, Qt::red, {"left_ptr"_s, "watch"_s});
        test.home.makeFifo(".icons/pipe/cursors/xterm"_s);
        makeIconTheme(test.home, ".icons/no %1 clock"_s, Qt::red);
        test.remove(".icons/no %1 clock/a/preferences-system-time.png"_s);
        test.home.write(".icons/preferences-system-time.png"_s, "outside all themes");
        makeIconTheme(test.home, ".icons/unreadable icons"_s, Qt::red);
        test.home.write(".icons/unreadable icons/p/user-home.png"_s, "\x89PNG\r\n");
        for (const QString &decor : {"eight"_s, "bad"_s, "nameless"_s, ".hidden"_s, "tall"_s})
            makeDecorTheme(test.home, "data/themes/"_s + decor, Qt::red);
        test.remove("data/themes/eight/closeA.xpm"_s);
        test.home.write("data/themes/bad/frameAL.xpm"_s, "/* XPM */ 10000 10000");
        test.remove("data/themes/nameless/default.theme"_s);
        test.home.write("data/themes/tall/titleAT.xpm"_s,
                        "/* XPM */\nstatic char *t[] = {\"1 9000 1 1\", \"a c blue\""
                            + QByteArray(", \"a\"").repeated(9000) + "};\n");
        StandardError errors;
        test.load(test.content());
        const QByteArray told = "theme no %1 clock is not full (no preferences-system-time in apps)\n";
        QCOMPARE(errors.take(), "qaz-admin-theme: " + told);
        QCOMPARE(test.texts("cursorThemeCombo"), "B|b"_s);
        QCOMPARE(test.texts("iconThemeCombo"), "Round|square|unreadable icons"_s);
        QCOMPARE(test.texts("decorThemeCombo"), "No theme|No theme|Wood|glass|tall"_s);
        const std::tuple<const char *, int, int, int, QColor> pixels[] = {
            {"iconThemeCombo", 2, 0, 16, Qt::transparent}, {"iconThemeCombo", 2, 36, 16, Qt::red},
            {"cursorThemeCombo", 0, 72, 16, Qt::blue},     {"decorThemeCombo", 0, 50, 16, Qt::transparent},
            {"decorThemeCombo", 2, 50, 9, Qt::blue},       {"decorThemeCombo", 4, 50, 31, Qt::blue}};
        for (const auto &[name, index, x, y, color] : pixels)
            QCOMPARE(test.pixel(name, index, x, y), color);
        // Loading again doubles nothing.
        QCOMPARE(test.elements->count(), 34);
        QCOMPARE(test.combo("sizeComboBox")->count(), 2);
    }

    void unselectedBoxesShowAPlaceholder()
    {
        Page test("IconTheme=gone\n");
        const int plainHeight = test.combo("sizeComboBox")->height();
        for (const char *name : {"cursorThemeCombo", "iconThemeCombo"}) {
            QComboBox *box = test.combo(name);
            QCOMPARE(box->placeholderText() + box->currentText(), "Default"_s);
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
        QComboBox *cursors = test.combo("cursorThemeCombo");
        QCOMPARE(cursors->placeholderText() + cursors->currentText(), "<b>x"_s);
    }

    void untouchedPage()
    {
        // What is stored, the themes selected (no cursor theme is named "default"), and what is saved.
        const std::tuple<QByteArray, QString, QString> rows[] = {
            {"DecorTheme=\n", "-1 -1 0"_s, {}},
            {"IconTheme=square\nDecorTheme=glass\n", "-1 1 3"_s, {}},
            {"DecorTheme=No theme\n", "-1 -1 1"_s, {}},
            {"IconTheme=gone\nDecorTheme=gone, too\n", "-1 -1 -1"_s, {}},
            {"MenuColor=rgb(1,2,3)\nMenuColor2=\nFrameColor=nonsense\n", "-1 -1 0"_s, {}},
            {"DesktopIconSize=4,8\nTaskbarHeight=tall\n", "-1 -1 0"_s, {}},
            {"MenuColor=qvblue\nTitlebarColor=Qt\nTitlebarColor2=qt\n", "-1 -1 0"_s,
             "MenuColor #000080|TitlebarColor #606060|TitlebarColor2 #c0c0c0"_s}};
        for (const auto &[stored, selected, saved] : rows) {
            Page test(stored);
            QString indexes;
            for (const char *name : {"cursorThemeCombo", "iconThemeCombo", "decorThemeCombo"})
                indexes += QString::number(test.combo(name)->currentIndex()) + u' ';
            QCOMPARE(indexes.trimmed(), selected);
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
        Page test("IconTheme=square\nDecorTheme=Wood\n");
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
