#include "fonts/fontaasettings.h"
#include "tests/fonts/elements.h"
#include "tests/support/modaldriver.h"
#include "tests/support/steps.h"
#include "tests/support/temporaryhome.h"

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
        : path(home.write(place, fontsFile(elements)))
    {}

    template<typename Widget>
    Widget *find(const char *name) const
    {
        return dialog.findChild<Widget *>(QLatin1String(name));
    }
    QPushButton *ok() const { return find<QDialogButtonBox>("buttonBox")->button(QDialogButtonBox::Ok); }
    /// All that the widgets show, brackets around what is disabled.
    QString shown() const
    {
        return shownBy(&dialog,
                       "excludeRangeCheckBox useSubPixelCheckBox excludeFromSpinBox excludeToSpinBox "
                       "subPixelTypeCombo hintStyleCombo"_s)
               + (ok()->isEnabled() ? " OK"_s : QString());
    }
    /// What comes of a step: a widget that is clicked or typed into, or what the page does with the dialog.
    QString outcome(const QString &step)
    {
        const QString what = step.section(u' ', 0, 0), text = step.section(u' ', 1);
        QString error;
        if (what == "file"_s)
            return QString::fromUtf8(home.read(place) == fontsFile(text.toUtf8()) ? "yes" : home.read(place));
        if (what == "save"_s) {
            const bool isNew = dialog.save(text == "true"_s, &error);
            return (isNew ? "changed: "_s : "same: "_s) + stored() + error.remove(home.path());
        }
        if (what == "load"_s)
            home.write(place, fontsFile(text.toUtf8()));
        if (what.endsWith("load"_s)) {
            canFilter = what != "unfilteredReload"_s;
            const bool isOn = dialog.load();
            return (isOn ? "on: "_s : "off: "_s) + shown();
        }
        if (what == "defaults"_s)
            dialog.defaults();
        else
            operate(&dialog, step);
        return shown();
    }
    /// The sub-pixel order, the anti-aliasing and the hint style of the program's own settings.
    static QString stored()
    {
        const auto text = [](const QString &key) { return QSettings().value(key, "-"_s).toString(); };
        return text("XftSubPixel"_s) + u' ' + text("XftAntialias"_s) + u' ' + text("XftHintStyle"_s);
    }

    const TemporaryHome home;
    const QString path;
    FontAASettings dialog{nullptr};
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
    void initTestCase() { QCoreApplication::setOrganizationName("qaz"_s); }

    void itemsHaveAPicture()
    {
        const DialogOverFile file({});
        QCOMPARE(file.find<QWidget>("buttonBox")->contentsMargins(), QMargins(10, 0, 10, 10));
        // A style that is not set is stored at once, the file stays.
        QCOMPARE(DialogOverFile::stored(), "- - hintmedium"_s);
        QCOMPARE(file.home.read(place), fontsFile({}));

        QString stripes;
        for (int i = 0; i < 4; ++i) {
            const QImage image = file.find<QComboBox>("subPixelTypeCombo")->itemIcon(i).pixmap(12).toImage();
            QCOMPARE(image.size(), QSize(12, 12));
            for (const int at : {0, 3, 4, 7, 8, 11}) {
                const auto digit = [&](int along) {
                    return (i > 1 ? image.pixelColor(along, at) : image.pixelColor(at, along)).name().at(1);
                };
                stripes += digit(3);
                QCOMPARE(digit(9), digit(3));
            }
        }
        QCOMPARE(stripes, "ee22111122eeee22111122ee"_s); // the first digits of red, green and blue
    }

    void stepsShowAndSave()
    {
        // The file, then steps with what comes of each.
        for (const QStringList &row : rowsOf("fonts/dialog.json"_s)) {
            DialogOverFile file(row[1].toUtf8());
            playSteps(row, 2, [&file](const QString &step) { return file.outcome(step); });
        }
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
        QCOMPARE(file.dialog.exec(), 0);
        QCOMPARE(file.shown(), "false false (0) (14) (RGB) Slight OK"_s);

        // One edit counts for ever, also one that was rejected.
        driver.then([&file](QDialog *) { file.ok()->click(); });
        QCOMPARE(file.dialog.exec(), 1);
        QVERIFY(driver.isDone());
    }
};

QTEST_MAIN(TestFontAASettings)
#include "tst_fontaasettings.moc"
