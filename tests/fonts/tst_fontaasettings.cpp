#include "fonts/fontaasettings.h"
#include "tests/fonts/elements.h"
#include "tests/support/modaldriver.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/testing.h"

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_LCD_FILTER_H

namespace {

bool canFilter = true;

/// The dialog over a fontconfig file of its own.
class DialogOverFile
{
public:
    explicit DialogOverFile(const QByteArray &elements)
    {
        write(elements);
        QCoreApplication::setOrganizationName("qaz"_s);
        dialog = std::make_unique<FontAASettings>(nullptr);
    }

    void write(const QByteArray &elements) { home.write(place, fontsFile(elements)); }
    bool save(bool useAntiAliasing) const
    {
        QString error;
        return dialog->save(useAntiAliasing, &error) || !error.isEmpty();
    }
    template<typename Widget>
    Widget *find(const char *name) const
    {
        return dialog->findChild<Widget *>(QLatin1String(name));
    }
    QPushButton *ok() const { return find<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Ok); }
    /// All that the widgets show, brackets around what is disabled.
    QString shown() const
    {
        QStringList texts;
        for (const char *name : {"excludeRangeCheckBox", "useSubPixelCheckBox", "excludeFromSpinBox",
                                 "excludeToSpinBox", "subPixelTypeCombo", "hintStyleCombo"}) {
            const auto *widget = find<QWidget>(name);
            const QString text = widget->property(widget->metaObject()->userProperty().name()).toString();
            texts += widget->isEnabled() ? text : u'(' + text + u')';
        }
        return texts.join(u' ');
    }
    /// The sub-pixel order, the anti-aliasing and the hint style of the program's own settings.
    static QString stored()
    {
        const auto text = [](const QString &key) { return QSettings().value(key, "-"_s).toString(); };
        return text("XftSubPixel"_s) + u' ' + text("XftAntialias"_s) + u' ' + text("XftHintStyle"_s);
    }

    const TemporaryHome home;
    std::unique_ptr<FontAASettings> dialog;
};

} // namespace

/// In place of the library's own.
FT_Error FT_Library_SetLcdFilter(FT_Library library, FT_LcdFilter filter)
{
    return library && filter == FT_LCD_FILTER_DEFAULT && !canFilter ? FT_Err_Unimplemented_Feature : 0;
}

class TestFontAASettings : public QObject
{
    Q_OBJECT
private slots:
    void emptyFileShowsTheDefaults()
    {
        DialogOverFile file({});
        QCOMPARE(file.shown(), "false false (0) (14) (RGB) Medium"_s);
        QCOMPARE(file.find<QWidget>("buttonBox")->contentsMargins(), QMargins(10, 0, 10, 10));
        // A style that is not set is stored at once, the file stays.
        QCOMPARE(DialogOverFile::stored(), "- - hintmedium"_s);
        QCOMPARE(file.home.read(place), fontsFile({}));

        QString stripes;
        for (int i = 0; i < 4; ++i) {
            const QImage image = file.find<QComboBox>("subPixelTypeCombo")->itemIcon(i).pixmap(12).toImage();
            QCOMPARE(image.size(), QSize(12, 12));
            for (const int at : {0, 3, 4, 7, 8, 11})
                stripes += (i > 1 ? image.pixelColor(3, at) : image.pixelColor(at, 3)).name().at(1);
        }
        QCOMPARE(stripes, "ee22111122eeee22111122ee"_s); // the first digits of red, green and blue
    }

    void fileIsShown()
    {
        DialogOverFile file("pixelsize=8-15 rgba=vbgr hintstyle=hintslight antialias=false");
        QCOMPARE(file.shown(), "true true 8 15 Vertical BGR Slight"_s);
        QVERIFY(!file.dialog->load());
        QCOMPARE(DialogOverFile::stored(), "- - -"_s);

        file.write("antialias=true");
        QVERIFY(file.dialog->load());
        QCOMPARE(file.shown(), "false false (0) (14) (Vertical BGR) Medium"_s);
        QVERIFY(!file.ok()->isEnabled()); // what was read is no edit
        canFilter = false;
        file.write("rgba=bgr");
        file.dialog->load();
        QCOMPARE(file.shown(), "false (false) (0) (14) (BGR) Medium"_s);
        canFilter = true;

        file.write("rgba=vbgr");
        file.dialog->load();
        file.dialog->defaults();
        QCOMPARE(file.shown(), "true false 0 14 (Vertical BGR) Medium"_s);

        file.write("pixelsize=0-14.04"); // shows as the default's 14, which is meant exactly
        file.dialog->load();
        file.dialog->defaults();
        QVERIFY(file.save(true) && file.home.read(place).contains("<double>14</double>"));
    }

    void editsAreSaved()
    {
        for (const char *name : {"excludeRangeCheckBox", "useSubPixelCheckBox", "excludeFromSpinBox",
                                 "excludeToSpinBox", "subPixelTypeCombo", "hintStyleCombo"}) {
            const DialogOverFile other("rgba=bgr pixelsize=2-9");
            auto *widget = other.find<QWidget>(name);
            QTest::keyClick(widget, qobject_cast<QCheckBox *>(widget) ? Qt::Key_Space : Qt::Key_Down);
            QVERIFY2(other.ok()->isEnabled(), name);
        }
        DialogOverFile file({});
        file.find<QCheckBox>("excludeRangeCheckBox")->click();
        file.find<QDoubleSpinBox>("excludeToSpinBox")->setValue(9.5);
        file.find<QCheckBox>("useSubPixelCheckBox")->click();
        QTest::keyClick(file.find<QComboBox>("subPixelTypeCombo"), Qt::Key_Down);
        QTest::keyClick(file.find<QComboBox>("hintStyleCombo"), Qt::Key_End);
        QVERIFY(file.save(true));
        QCOMPARE(file.home.read(place), fontsFile("rgba=bgr hinting=true hintstyle=hintfull antialias=true "
                                                  "size=0-7 pixelsize=0-9.5"));
        QCOMPARE(DialogOverFile::stored(), "bgr true hintfull"_s);
        QVERIFY(!file.save(true)); // nothing new

        file.find<QCheckBox>("useSubPixelCheckBox")->click();
        file.find<QCheckBox>("excludeRangeCheckBox")->click();
        QVERIFY(file.save(false));
        QCOMPARE(file.home.read(place), fontsFile("hinting=true hintstyle=hintfull antialias=false"));
        QCOMPARE(DialogOverFile::stored(), "none false hintfull"_s);
    }

    void rangeThatWasNotEditedStays()
    {
        DialogOverFile file("pixelsize=8.35-60 hintstyle=hintfull antialias=true");
        auto *fromBox = file.find<QDoubleSpinBox>("excludeFromSpinBox");
        auto *toBox = file.find<QDoubleSpinBox>("excludeToSpinBox");
        QCOMPARE(toBox->value(), 48.0);
        QVERIFY(file.save(true)); // the hint style is new to the store
        QVERIFY(!file.save(true));
        QVERIFY(file.home.read(place).contains("<double>8.35</double>"));

        fromBox->setValue(5);
        file.dialog->load();
        QVERIFY(!file.save(true)); // the edit was taken back
        toBox->selectAll();
        QTest::keyClicks(toBox, "48"_s); // what is shown already, but now on purpose
        QVERIFY(file.save(true));
        QCOMPARE(file.home.read(place), fontsFile("pixelsize=8.3-48 hintstyle=hintfull antialias=true "
                                                  "hinting=true size=6-36"));
    }

    void rejectedDialogShowsTheFileAgain()
    {
        DialogOverFile file("hintstyle=hintslight");
        ModalDriver driver;
        driver.then([&file](QDialog *) {
            file.find<QCheckBox>("excludeRangeCheckBox")->click();
            file.find<QDoubleSpinBox>("excludeToSpinBox")->setValue(20);
            file.find<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Cancel)->click();
        });
        const QString before = file.shown();
        QCOMPARE(file.dialog->exec(), 0);
        QCOMPARE(file.shown(), before);

        // One edit counts for ever, also one that was rejected.
        driver.then([&file](QDialog *) { file.ok()->click(); });
        QCOMPARE(file.dialog->exec(), 1);
        QVERIFY(driver.isDone());
    }
};

QTEST_MAIN(TestFontAASettings)
#include "tst_fontaasettings.moc"
