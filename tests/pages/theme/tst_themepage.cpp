#include "pages/theme/swatches.h"
#include "pages/theme/themepage.h"
#include "pages/theme/themesettings.h"
#include "tests/support/pageoverfile.h"
#include "tests/support/samplethemes.h"

namespace {

/// Whether the box looks like the kit's own with one entry: all of it, or the field with the placeholder as a text.
bool looksLikeTheKits(QComboBox *box)
{
    const bool isSelected = box->currentIndex() >= 0;
    QStyleOptionComboBox option;
    option.initFrom(box);
    option.editable = false;
    const QRect field = box->style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                     QStyle::SC_ComboBoxEditField);
    const QString placeholder = box->fontMetrics().elidedText(box->placeholderText(), Qt::ElideRight,
                                                              field.width() - 2);
    QComboBox kits;
    kits.setStyle(box->style());
    kits.setIconSize(box->iconSize());
    kits.addItem(box->itemIcon(box->currentIndex()), isSelected ? box->currentText() : placeholder);
    QPalette palette;
    for (const QPalette::ColorRole role : {QPalette::Text, QPalette::ButtonText, QPalette::WindowText})
        palette.setColor(role, palette.color(isSelected ? QPalette::Text : QPalette::PlaceholderText));
    kits.setPalette(palette);
    kits.resize(box->size());
    const auto picture = [part = isSelected ? box->rect() : field](QComboBox *each) {
        return each->grab(part).toImage().convertToFormat(QImage::Format_RGB32);
    };
    return picture(box) == picture(&kits);
}

/// A page on a theme file, in a home with themes of each kind.
struct Page : PageOverFile<ThemePage> {
    Page()
    {
        makeCursorTheme(home, ".icons/b"_s, Qt::red);
        makeCursorTheme(home, ".icons/B"_s, Qt::blue);
        makeIconTheme(home, ".icons/square"_s, Qt::red);
        makeIconTheme(home, ".icons/Round"_s, Qt::blue);
        makeDecorTheme(home, "data/themes/glass"_s, Qt::red);
        makeDecorTheme(home, "data/themes/No theme"_s, Qt::green);
        makeDecorTheme(home, "data/themes/Wood"_s, Qt::blue);
        page.show();
    }
    explicit Page(const QByteArray &content)
        : Page()
    {
        load(content);
    }

    QComboBox *combo(const char *name) const { return find<QComboBox>(name); }
    /// The first and the last pixel of the picture of the element in view, roughly.
    QString swatch() const
    {
        const QImage image = elements->itemIcon(elements->currentIndex()).pixmap(1000).toImage();
        return "%1 %2"_s.arg(image.pixel(0, 0) & 0xf0f0f0f0, 0, 16)
            .arg(image.pixel(109, 31) & 0xf0f0f0f0, 0, 16);
    }
    /// The element in view, as its entry's data.
    QString element() const { return elements->currentData().toString(); }

    const ScopedEnvironment data{"QAZ_DATA_DIR", home.path("data"_s).toLocal8Bit()};
    const ScopedEnvironment cursors{"XCURSOR_PATH", "~/.icons"};
    QComboBox *const elements = combo("elementComboBox");
    QPushButton *const main = find<QPushButton>("color1Button");
    QPushButton *const end = find<QPushButton>("color2Button");
    QPushButton *const size = find<QPushButton>("sizeButton");
};

} // namespace

/// The themes, colours and sizes of the page, and how they are loaded and saved.
class TestThemePage : public QObject
{
    Q_OBJECT
private slots:
    void showsColorsAndSizes()
    {
        Page test("ButtonActiveColor=#010203\nFrameColor=#c0c0c0c0\nMenuColor=nonsense\nMenuColor2=red\n");
        QCOMPARE(test.main->palette().color(QPalette::Disabled, QPalette::Window), QColor(1, 2, 3));
        QVERIFY(test.end->isHidden() && !test.end->isEnabled());
        const QSize pageSize = test.page.minimumSizeHint();
        test.elements->setCurrentText("Menu"_s);
        QCOMPARE(test.page.minimumSizeHint(), pageSize); // nothing moves
        QCOMPARE(test.swatch(), "f0f0f0f0 f0f0f0f0"_s);
        QVERIFY(test.end->isVisible() && test.end->isEnabled());
        QCOMPARE(test.elements->whatsThis() + u'|' + test.main->whatsThis() + u'|' + test.end->whatsThis(),
                 "Color: background of menus|Color: background of menus|"
                 "Color at the end of the gradient: background of menus"_s);
        const QColor textColor = QApplication::palette().color(QPalette::ButtonText);
        QCOMPARE(test.end->icon().pixmap(1000), colorButtonPixmap(Qt::red, textColor, 16, 1));
        QCOMPARE(test.size->icon().pixmap(1000), ellipsisPixmap(textColor, 16, 1));
        // An entry's picture has a frame in the box and in its list, though not its own.
        test.elements->setCurrentText("Frame"_s);
        QCOMPARE(test.swatch(), "c0909090 c0909090"_s); // premultiplied
        test.elements->showPopup();
        const QAbstractItemView *view = test.elements->view();
        const QRect entry = view->visualRect(view->currentIndex().siblingAtRow(11)); // of the same colour
        const QImage pictures[] = {test.elements->grab(QRect(3, 15, 6, 1)).toImage(),
                                   view->viewport()->grab({0, entry.center().y(), 12, 1}).toImage()};
        for (const QImage &picture : pictures) {
            const QImage gray = picture.convertToFormat(QImage::Format_Grayscale8);
            const uchar darkest = *std::min_element(gray.constBits(), gray.constBits() + gray.width());
            QVERIFY2(darkest > 60 && darkest < 140, QByteArray::number(darkest).constData());
        }
        QVERIFY(test.elements->view()->sizeHintForColumn(0) > 110); // the swatch and the name
    }

    void everyColorIsShownAndSaved()
    {
        Page test("");
        QStringList expected;
        for (int i = 0; i < test.elements->count(); ++i) {
            test.elements->setCurrentIndex(i);
            const QString data = test.element();
            for (QPushButton *button : {test.main, test.end}) {
                if (!button->isVisible())
                    continue;
                const QString color = "#%1"_s.arg(256 * i + (button == test.end), 6, 16, QLatin1Char('0'));
                QGuiApplication::clipboard()->setText(color);
                QTest::keyClick(button, Qt::Key_V, Qt::ControlModifier);
                expected += data.section(u',', 0, 0) + (button == test.end ? "2 "_s : " "_s) + color;
            }
        }
        QCOMPARE(QPoint(expected.size(), test.changed.count()), QPoint(39, 39));
        QCOMPARE(test.save(), expected.join(u'|'));
    }

    void editsColors()
    {
        Page test("TitlebarColor=rgb(1,2,3)\nTitlebarColor2=red\n");
        test.elements->setCurrentText("Titlebar"_s);
        const auto choose = [&](QPushButton *button, const QColor &color) {
            test.driver.thenEnter(color.name());
            button->click();
        };
        choose(test.end, Qt::green);
        QCOMPARE(test.end->palette().color(QPalette::Window), QColor(Qt::green));
        test.driver.thenReject();
        test.main->click();
        QCOMPARE(test.save(), "TitlebarColor2 #00ff00"_s);
        choose(test.main, Qt::yellow);
        choose(test.main, Qt::yellow); // no edit
        QCOMPARE(test.driver.seen().join(u' '),
                 "Select Color|QColorDialog|#ff0000 Select Color|QColorDialog "
                 "Select Color|QColorDialog|#000000 Select Color|QColorDialog|#ffff00"_s);
        QGuiApplication::clipboard()->setText("#0000ff"_s);
        QTest::keyClick(test.elements, Qt::Key_V, Qt::ControlModifier);
        QCOMPARE(test.element(), "TitlebarColor,#0000ff,#00ff00"_s);
        QCOMPARE(test.swatch(), "f00000f0 f000f000"_s);
        QCOMPARE(test.changed.count(), 3);
    }

    void editsSizes()
    {
        Page test("DesktopIconSize=50\nTaskbarHeight=60,9\n");
        QStringList seen;
        const std::pair<int, int> choices[] = {{0, 22}, {0, 64}, {1, 60}, {1, 280}}; // the first is rejected
        for (const auto &choice : choices) {
            test.combo("sizeComboBox")->setCurrentIndex(choice.first);
            test.driver.then([&](QDialog *dialog) {
                auto *input = qobject_cast<QInputDialog *>(dialog);
                seen += "%1 %2 %3 %4"_s.arg(input->intMinimum())
                            .arg(input->intMaximum())
                            .arg(input->intStep())
                            .arg(input->intValue());
                seen << input->textValue() << input->comboBoxItems().join(u' ') << input->labelText();
                input->setIntValue(choice.second);
                input->setTextValue(QString::number(choice.second));
                input->done(choice.second != 22);
                QVERIFY(!input->isComboBoxEditable());
            });
            test.size->click();
            seen += test.driver.takeSeen() + QStringList(test.combo("sizeComboBox")->currentText());
        }
        // 50, the stored size of icons, is not among the choices.
        QCOMPARE(seen.join(u'|'),
                 "%1|50,   Desktop icon size|%1|64,   Desktop icon size|%2|60,9,   Taskbar height|"
                 "%2|280,   Taskbar height"_s.arg(
                     "0 99 1 0|16|16 22 32 48 64 96 128 256|Desktop icon size|Select size|QInputDialog"_s,
                     "21 280 1 60|||Taskbar height|Select size|QInputDialog"_s));
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

    void unselectedBoxesShowAPlaceholder()
    {
        const std::unique_ptr<QStyle> windows(QStyleFactory::create("Windows"_s));
        Page test("IconTheme=gone\n");
        QComboBox *icons = test.combo("iconThemeCombo");
        QComboBox *cursors = test.combo("cursorThemeCombo");
        // A theme in use that is not listed is told by its name, as it stands.
        const QString name = "<b>a-theme-with-a-name-that-is-longer-than-the-box"_s;
        test.home.write(".icons/default/index.theme"_s, "[Icon Theme]\nInherits=" + name.toLatin1());
        test.load(test.content());
        QCOMPARE(cursors->placeholderText() + cursors->currentText(), name);
        const int plainHeight = test.combo("sizeComboBox")->height();
        for (QComboBox *box : {cursors, icons}) {
            QCOMPARE(box->height(), plainHeight);
            for (QStyle *style : {box->style(), windows.get()}) {
                box->setStyle(style);
                QVERIFY(looksLikeTheKits(box));
            }
            box->setCurrentIndex(0);
            QTRY_VERIFY(box->height() > plainHeight);
            QVERIFY(looksLikeTheKits(box));
        }
    }

    void themesAreShownChosenAndSaved()
    {
        playOnPages<Page>("pages/theme/steps.json"_s, "cursorThemeCombo iconThemeCombo decorThemeCombo"_s);
    }

    void repeatedLoadDoublesNothing()
    {
        Page test("");
        test.load("");
        QStringList names;
        for (const char *name : {"cursorThemeCombo", "iconThemeCombo", "decorThemeCombo"})
            for (int i = 0; i < test.combo(name)->count(); ++i)
                names += test.combo(name)->itemText(i);
        QCOMPARE(names.join(u'|'), "B|b|Round|square|No theme|No theme|Wood|glass"_s);
        QCOMPARE(test.elements->count() + test.combo("sizeComboBox")->count(), 36);
    }
};

QTEST_MAIN(TestThemePage)
#include "tst_themepage.moc"
