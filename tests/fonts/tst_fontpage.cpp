#include "fonts/fontpage.h"

#include "fonts/fontuseitem.h"
#include "platform/qazsettings.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/literals.h"
#include "tests/support/modaldriver.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"

#include <QComboBox>
#include <QFontDialog>
#include <QLabel>
#include <QLineEdit>
#include <QProcess>
#include <QPushButton>
#include <QSettings>
#include <QSpinBox>
#include <QtTest>

namespace {

const QString messageBox
    = "Font Settings Changed|<p>Some changes such as anti-aliasing or DPI will only affect newly started "
      "applications.</p>"_s;
const QFont mono("DejaVu Sans Mono"_s, 12, QFont::Bold);

constexpr const char *roles[][3] = {{"DefaultFont", "General", "Default."},
                                    {"TitleFont", "Title", "Window titles."},
                                    {"StartMenuFont", "Start Menu", "Start menu."},
                                    {"CascadeMenuFont", "Cascade Menu", "Cascade menus, context menus."},
                                    {"CtrlMenuFont", "Control Menu", "Control menus."},
                                    {"DialogFont", "Dialog", "Dialogs."},
                                    {"TaskbarFont", "Taskbar", "Taskbar."},
                                    {"TaskbarBoldFont", "Taskbar bold", "Taskbar bold."},
                                    {"TaskbarClockFont", "Taskbar clock", "Taskbar clock."},
                                    {"IconFont", "Icon", "Icons."},
                                    {"TooltipFont", "Tooltip", "Tooltips."}};

/// The page as the dialog uses it: a fresh store on the theme file for each load and save.
class Editor
{
public:
    explicit Editor(const TemporaryHome &home)
        : m_themeFile(home.path("theme"_s))
    {
        load();
    }
    /// Saves; a message box must come up. Its texts.
    QString saveAndAnswer()
    {
        ModalDriver driver;
        driver.thenAnswer(QMessageBox::Ok);
        save();
        return driver.isDone() ? driver.seen().constFirst() : QString();
    }

    void load() { run(&FontPage::loadValues); }
    void save() { run(&FontPage::saveValues); }
    FontUseItem *role(const char *key) const { return page.findChild<FontUseItem *>(QLatin1String(key)); }
    QComboBox *antiAliasing() const { return page.findChild<QComboBox *>("aaComboBox"_s); }
    QSpinBox *dpi() const { return page.findChild<QSpinBox *>(); }
    QPushButton *button(const char *name) const { return page.findChild<QPushButton *>(QLatin1String(name)); }
    /// As a user's choice: the index and the notice of it.
    void chooseAntiAliasing(int index) const
    {
        antiAliasing()->setCurrentIndex(index);
        emit antiAliasing()->activated(index);
    }

    FontPage page;

private:
    void run(bool (FontPage::*pass)(QazSettings *))
    {
        QazSettings store(m_themeFile);
        store.sync(true);
        (page.*pass)(&store);
    }

    QString m_themeFile;
};

} // namespace

class TestFontPage : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QCoreApplication::setOrganizationName("qaz"_s); }
    void init() { QProcess::execute("xrdb"_s, {"-quiet"_s, "-remove"_s}); }

    void rolesStandInTheirOrder()
    {
        const TemporaryHome home;
        QByteArray theme;
        int size = 6;
        for (const auto &role : roles)
            theme += QByteArray(role[0]) + "=DejaVu Sans-" + QByteArray::number(size++) + ":bold\n";
        home.write("theme"_s, theme);
        const Editor editor(home);
        QVERIFY(editor.page.loaded);
        const QList<FontUseItem *> items = editor.page.findChildren<FontUseItem *>();
        QCOMPARE(items.size(), 11);
        for (int i = 0; i < items.size(); ++i) {
            QCOMPARE(items.at(i)->objectName(), QLatin1String(roles[i][0]));
            const auto *preview = items.at(i)->findChild<QLabel *>();
            QCOMPARE(preview->text(), "DejaVu Sans %1"_s.arg(6 + i));
            const QString name = QLatin1String(roles[i][1]);
            QCOMPARE(preview->toolTip(), "Preview of the \"%1\" font"_s.arg(name));
            const auto *label = editor.page.findChild<QLabel *>(items.at(i)->objectName() + "Label"_s);
            QCOMPARE(label->text(), name);
            QCOMPARE(label->whatsThis(), QLatin1String(roles[i][2]));
            items.at(i)->restoreDefault();
            QCOMPARE(items.at(i)->font().bold(), i == 7);
            QCOMPARE(items.at(i)->font().pointSize(), 10);
        }
    }

    void rolesAreSavedOnce()
    {
        const TemporaryHome home;
        WmListener manager;
        home.write("theme"_s, "TitleFont=DejaVu Sans-10:normal\nTooltipFont=no font\n");
        Editor editor(home);
        editor.save();
        const QByteArray saved = home.read("theme"_s);
        QStringList announced;
        for (const QString &command : manager.take())
            announced.append(command.section(u' ', 0, 1));
        QStringList expected;
        for (const auto &role : roles) {
            QVERIFY2(saved.contains(QByteArray(role[0]) + "=DejaVu Sans"), saved.constData());
            expected.append("QAZWM_UPDATE_VAL "_s + QLatin1String(role[0]));
        }
        expected.removeAt(1); // the title's font is the stored one
        QCOMPARE(announced, expected);
        const QString files = home.fingerprint();
        editor.save();
        QCOMPARE(manager.take(), QStringList());
        QCOMPARE(home.fingerprint(), files);
    }

    void generalFontBecomesTheToolkitsDefault()
    {
        const TemporaryHome home;
        home.write("theme"_s, "DefaultFont=DejaVu Sans-10:normal\n");
        Editor editor(home);
        const QString file = ".config/Trolltech.conf"_s;
        editor.role("TitleFont")->applyChosenFont(mono);
        editor.save();
        QVERIFY2(!home.exists(file), home.read(file).constData());
        home.write(file, "; mine\n[Qt]\nstyle=x, y\nfont=\"Old,9\"\n[Other]\nfont=z\n");
        editor.role("DefaultFont")->applyChosenFont(mono);
        editor.save();
        QVERIFY(home.read(file).startsWith("; mine\n[Qt]\nstyle=x, y\nfont=\"DejaVu Sans Mono,12,"));
        QVERIFY(home.read(file).endsWith("\"\n[Other]\nfont=z\n"));
        const QSettings toolkit(home.path(file), QSettings::IniFormat);
        QCOMPARE(toolkit.value("Qt/font"_s).toString(), editor.role("DefaultFont")->font().toString());
    }

    void editsAreAnnounced()
    {
        const TemporaryHome home;
        Editor editor(home);
        QSignalSpy changed(&editor.page, &FontPage::changedSignal);
        editor.role("IconFont")->applyChosenFont(mono);
        editor.dpi()->setValue(80);
        editor.chooseAntiAliasing(2);
        QCOMPARE(changed.size(), 3);
        changed.clear();
        QSignalSpy edited(&editor.page, &KFonts::changed);
        editor.load();
        QCOMPARE(changed.size(), edited.size());
        QCOMPARE(edited.last().value(0).toBool(), false);

        editor.page.resetToDefaults();
        QCOMPARE(edited.last().value(0).toBool(), true);
        QCOMPARE(editor.antiAliasing()->currentIndex(), 1);
        QCOMPARE(editor.dpi()->value(), 0);
        QCOMPARE(editor.role("IconFont")->font(), editor.role("TitleFont")->font());
    }

    void dpiSnaps()
    {
        const TemporaryHome home;
        const Editor editor(home);
        QCOMPARE(editor.dpi()->text(), "Disabled"_s);
        // One row after the other: each depends on where the last snap went.
        const QPair<int, int> steps[] = {{50, 70}, {40, 0},    {69, 70}, {70, 70},
                                         {1, 0},   {120, 120}, {1, 70},  {60, 0}};
        for (const auto &[entered, shown] : steps) {
            editor.dpi()->setValue(entered);
            QCOMPARE(editor.dpi()->value(), shown);
        }
        editor.dpi()->stepUp();
        QCOMPARE(editor.dpi()->text(), "70dpi"_s);
        editor.dpi()->stepDown();
        // The remembered value is shared: a second page goes on where the first one ended.
        editor.dpi()->setValue(30);
        const Editor other(home);
        other.dpi()->setValue(30);
        QCOMPARE(other.dpi()->value(), 0);
    }

    void typedDpiIsForced()
    {
        const TemporaryHome home;
        home.write(".Xresources"_s, "A.a: 1\n");
        Editor editor(home);
        editor.save();
        WmListener manager;
        QSignalSpy changed(&editor.page, &FontPage::changedSignal);
        auto *line = editor.dpi()->findChild<QLineEdit *>();
        line->selectAll();
        QTest::keyClicks(line, "120"_s);
        QVERIFY2(!changed.isEmpty(), "typing is an edit before the field is left");
        QCOMPARE(editor.saveAndAnswer(), messageBox);
        QCOMPARE(home.read(".Xresources"_s), QByteArray("A.a: 1\nXft.dpi: 120\n"));
        QCOMPARE(QSettings().value("forceFontDPI"_s).toInt(), 120);
        QCOMPARE(manager.take(), QStringList("QAZWM_UPDATE_VAL XftSettings 120 unknown rgb hintmedium"_s));
        editor.save();
        QCOMPARE(manager.take(), QStringList());
    }

    void fileMadeForTheDpiGoesWithIt()
    {
        const QString file = ".Xresources"_s;
        for (const bool isOurs : {true, false}) {
            const TemporaryHome home;
            if (!isOurs)
                home.write(file, "");
            for (const int dpi : {120, 0}) {
                Editor editor(home);
                editor.dpi()->setValue(dpi);
                QCOMPARE(editor.saveAndAnswer(), messageBox);
                QCOMPARE(home.read(file), QByteArray(dpi != 0 ? "Xft.dpi: 120\n" : ""));
            }
            QCOMPARE(home.exists(file), !isOurs);
        }
    }

    void dpiIsNoLongerForced()
    {
        const TemporaryHome home;
        const QString resources = home.write(".Xresources"_s, "Xft.dpi: 119.9\nA.a: 1\n");
        const QString xrdb = "xrdb"_s;
        QProcess::execute(xrdb, {"-merge"_s, resources});
        QSettings().setValue("forceFontDPI"_s, 120);
        Editor editor(home);
        QCOMPARE(editor.dpi()->text(), "119dpi"_s);
        FakePrograms programs;
        programs.add(xrdb, "[ \"$1\" = -merge ] || cat >>\"$HOME/removed\"");
        ModalDriver driver;
        // The resources are merged last, after the message; merging without a DPI removes once more.
        driver.then([&](QDialog *box) {
            QVERIFY(qobject_cast<QMessageBox *>(box)->textFormat() != Qt::PlainText); // it has markup
            box->accept();
            QCOMPARE(programs.calls(xrdb).size(), 1);
        });
        editor.dpi()->setValue(0);
        editor.save();
        QVERIFY(driver.isDone());
        QCOMPARE(home.read(".Xresources"_s), QByteArray("A.a: 1\n"));
        QCOMPARE(programs.calls(xrdb).size(), 3);
        QCOMPARE(home.read("removed"_s), QByteArray("Xft.dpi\nXft.dpi\n"));
    }

    void systemSettingsRemoveTheUsersFiles()
    {
        const TemporaryHome home;
        const QString files[] = {".fonts.conf"_s, ".config/fontconfig/fonts.conf"_s};
        for (const QString &file : files)
            home.write(file, "<?xml version=\"1.0\"?>\n<fontconfig><!-- mine --></fontconfig>\n");
        Editor editor(home);
        QCOMPARE(editor.antiAliasing()->currentText(), "System Settings"_s);
        editor.save();
        QVERIFY(!home.exists(files[0]) && !home.exists(files[1]));
        const QDir backups(home.path(".local/state/qaz/backup"_s));
        QCOMPARE(backups.entryList({"*fonts.conf"_s}, QDir::Files | QDir::Hidden).size(), 2);
        QCOMPARE(QSettings().value("dontChangeAASettings"_s).toString(), "true"_s);
    }

    void failureIsToldAndStaysEdited()
    {
        const TemporaryHome home;
        Editor editor(home);
        const QString place = ".config/fontconfig/fonts.conf"_s;
        QVERIFY(home.makeDirectory(place));
        editor.chooseAntiAliasing(2);
        QSignalSpy changed(&editor.page, &KFonts::changed);
        for (int attempt = 0; attempt < 2; ++attempt) {
            QCOMPARE(editor.saveAndAnswer(), "Error|The font settings could not be saved in the "
                                             "file '%1': Is a directory"_s.arg(home.path(place)));
            QVERIFY(!QSettings().contains("XftAntialias"_s));
            QTRY_VERIFY(changed.last().value(0).toBool());
        }
        QVERIFY(QDir().rmdir(home.path(place)));
        QCOMPARE(editor.saveAndAnswer(), messageBox);
        QVERIFY(home.read(place).contains("<bool>false</bool>"));
    }

    void antiAliasingModes()
    {
        const TemporaryHome home;
        WmListener manager;
        const char *words[] = {"true", "unknown", "false"};
        for (const int mode : {0, 2, 1}) {
            Editor editor(home);
            editor.chooseAntiAliasing(mode);
            QCOMPARE(editor.saveAndAnswer(), messageBox);
            QCOMPARE(manager.take().constLast(),
                     "QAZWM_UPDATE_VAL XftSettings 0 %1 none hintmedium"_s.arg(QLatin1String(words[mode])));
            const QByteArray file = home.read(".config/fontconfig/fonts.conf"_s);
            QCOMPARE(file.isEmpty(), mode == 1);
            QVERIFY2(mode == 1 || file.contains(mode == 0 ? "<bool>true</bool>" : "<bool>false</bool>"),
                     file.constData());
            editor.load();
            QCOMPARE(editor.antiAliasing()->currentIndex(), mode);
            QCOMPARE(editor.button("configureButton")->isEnabled(), mode == 0);
        }
    }

    void adjustingAllFonts()
    {
        const TemporaryHome home;
        const Editor editor(home);
        ModalDriver driver;
        driver.then([](QDialog *dialog) {
            qobject_cast<QFontDialog *>(dialog)->setCurrentFont(mono);
            dialog->accept();
        });
        driver.thenReject();
        editor.button("adjustAllButton")->click();
        for (const FontUseItem *item : editor.page.findChildren<FontUseItem *>())
            QCOMPARE(item->findChild<QLabel *>()->text(), "DejaVu Sans Mono 12"_s);
        QSignalSpy changed(&editor.page, &KFonts::changed);
        editor.button("adjustAllButton")->click();
        QVERIFY(driver.isDone());
        QCOMPARE(changed.size(), 0);
    }
};

QTEST_MAIN(TestFontPage)
#include "tst_fontpage.moc"
