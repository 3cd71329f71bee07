#include "fonts/fontpage.h"

#include "fonts/fontuseitem.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/pageoverfile.h"
#include "tests/support/standarderror.h"
#include "tests/support/testing.h"

namespace {

const QString messageBox
    = "Font Settings Changed|<p>Some changes such as anti-aliasing or DPI will only affect newly started "
      "applications.</p>"_s;
const QString place = ".config/fontconfig/fonts.conf"_s, toolkitsFile = ".config/Trolltech.conf"_s;
const QFont mono("DejaVu Sans Mono"_s, 12, QFont::Bold);

struct Editor : PageOverFile<FontPage> {
    explicit Editor(const QByteArray &theme = "") { load(theme); }

    /// What comes of a step; of "save" the command about rendering alone, as the fonts differ between machines.
    QString outcome(const QString &step, const QString &view)
    {
        const QString result = PageOverFile::outcome(step, view);
        return step == "save"_s ? result.section(u'|', -1) : result;
    }
    void loadAgain() { load(content()); }
    QString stored(const char *key) const { return QSettings().value(QLatin1String(key)).toString(); }
    /// Saves; a message box must come up. Its texts.
    QString saveAndAnswer()
    {
        driver.thenAnswer(QMessageBox::Ok);
        save();
        return driver.takeSeen().join(u'|');
    }

    FontUseItem *role(const char *key) const { return find<FontUseItem>(key); }
    QComboBox *antiAliasing() const { return find<QComboBox>("aaComboBox"); }
    QSpinBox *dpi() const { return find<QSpinBox>("dpiSpinBox"); }
    /// As a user's choice: the index and the notice of it.
    void chooseAntiAliasing(int index) const
    {
        antiAliasing()->setCurrentIndex(index);
        emit antiAliasing()->activated(index);
    }
};

} // namespace

class TestFontPage : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QCoreApplication::setOrganizationName("qaz"_s); }
    void init() { QProcess::execute("xrdb"_s, {"-quiet"_s, "-remove"_s}); }

    void rolesAreShownAndSavedInTheirOrder()
    {
        Editor editor;
        QByteArray theme;
        QByteArrayList stored, shown, saved;
        QCOMPARE(editor.page.layout()->contentsMargins(), QMargins());
        const auto items = editor.page.findChildren<FontUseItem *>();
        for (const FontUseItem *item : items) {
            const QByteArray role = item->objectName().toUtf8(), size = QByteArray::number(stored.size() + 6);
            theme += role + "=DejaVu Sans-" + size + ":bold\n";
            stored += role + " DejaVu Sans " + size;
            saved += role + " DejaVu Sans-10:" + (role == "TaskbarBoldFont" ? "bold" : "normal");
        }
        editor.load(theme);
        QCOMPARE(editor.save(), QString());
        for (FontUseItem *item : items) {
            shown += (item->objectName() + u' ' + item->findChild<QLabel *>()->text()).toUtf8();
            item->restoreDefault();
        }
        QCOMPARE(shown, stored);
        QCOMPARE(editor.save().toUtf8(), saved.join('|'));
        QCOMPARE(editor.home.read(toolkitsFile),
                 "[Qt]\nfont=\"" + editor.role("DefaultFont")->font().toString().toUtf8() + "\"\n");
        const QString files = editor.home.fingerprint();
        QCOMPARE(editor.save(), QString());
        QCOMPARE(editor.home.fingerprint(), files);
    }

    void editsAreAnnounced()
    {
        Editor editor("DefaultFont=DejaVu Sans-10:normal\n");
        QSignalSpy edited(&editor.page, &KFonts::changed);
        editor.driver.then([](QDialog *dialog) {
            dialog->findChild<QCheckBox *>("excludeRangeCheckBox"_s)->click();
            dialog->accept();
        });
        editor.chooseAntiAliasing(0);
        editor.find<QPushButton>("configureButton")->click();
        QCOMPARE(edited.count({true}), 2);
        QCOMPARE(editor.driver.takeSeen().join(u' '), "Configure Anti-Alias Settings|FontAASettings"_s);
        editor.loadAgain();
        QCOMPARE(editor.changed.size(), edited.size());

        editor.chooseAntiAliasing(0);
        editor.role("TitleFont")->applyChosenFont(mono);
        QCOMPARE(editor.saveAndAnswer(), messageBox);
        QVERIFY(!editor.home.exists(toolkitsFile));
        editor.find<QCheckBox>("useSubPixelCheckBox")->click();
        QCOMPARE(editor.saveAndAnswer(), messageBox); // of the file alone
        QCOMPARE(editor.save(), QString());
        editor.dpi()->setValue(80);
        editor.chooseAntiAliasing(2);
        editor.page.resetToDefaults();
        QVERIFY(editor.antiAliasing()->currentIndex() == 1 && editor.dpi()->value() == 0);
        QVERIFY(editor.find<QCheckBox>("excludeRangeCheckBox")->isChecked());
        QCOMPARE(editor.role("IconFont")->font(), editor.role("TitleFont")->font());
        QCOMPARE(edited.count({false}), 4); // the load and each save
    }

    void dpiIsNoLongerForced()
    {
        const QString file = ".Xresources"_s, xrdb = "xrdb"_s;
        Editor editor;
        editor.home.write(file, "A.a: 1\nXft.dpi: 120\n");
        QSettings().setValue("forceFontDPI"_s, 120);
        QProcess::execute(xrdb, {"-merge"_s, editor.home.write("server"_s, "Xft.dpi: 119.9\n")});
        editor.loadAgain();
        QCOMPARE(editor.dpi()->value(), 119);
        FakePrograms programs;
        programs.add(xrdb, "[ \"$1\" = -merge ] || cat >>\"$HOME/removed\"");
        // The resources are merged last, after the message; merging without a DPI removes once more.
        editor.driver.then([&](QDialog *box) {
            QVERIFY(qobject_cast<QMessageBox *>(box)->textFormat() != Qt::PlainText); // it has markup
            box->accept();
            QCOMPARE(programs.calls(xrdb).size(), 1);
        });
        editor.dpi()->setValue(0);
        editor.save();
        QVERIFY(editor.driver.isDone());
        QCOMPARE(editor.home.read(file), QByteArray("A.a: 1\n"));
        QCOMPARE(programs.calls(xrdb).size(), 3);
        QCOMPARE(editor.home.read("removed"_s), QByteArray("Xft.dpi\nXft.dpi\n"));
        editor.save();
        QCOMPARE(programs.calls(xrdb).size(), 5); // removed by the merge alone
    }

    void settingsAreStoredForTheirReaders()
    {
        playOnPages<Editor>("fonts/page.json"_s, "aaComboBox configureButton dpiSpinBox"_s);
    }

    void failureIsToldAndStaysEdited()
    {
        Editor editor;
        QVERIFY(editor.home.makeDirectory(place));
        editor.chooseAntiAliasing(2);
        QSignalSpy changed(&editor.page, &KFonts::changed);
        for (int attempt = 0; attempt < 2; ++attempt) {
            QCOMPARE(editor.saveAndAnswer(), "Error|The font settings could not be saved in the "
                                             "file '%1': Is a directory"_s.arg(editor.home.path(place)));
            QCOMPARE(editor.stored("XftAntialias"), QString());
            QTRY_VERIFY(changed.last().value(0).toBool());
        }
        QVERIFY(QDir().rmdir(editor.home.path(place)));
        QCOMPARE(editor.saveAndAnswer(), messageBox);
        QVERIFY(editor.home.read(place).contains("<bool>false</bool>"));
    }

    void theSystemsChoiceRemovesTheUsersFiles()
    {
        Editor editor;
        editor.save();
        const QByteArray mine = "<fontconfig><!-- mine --></fontconfig>\n";
        const QString files[] = {editor.home.write(".fonts.conf"_s, mine), editor.home.write(place, mine)};
        StandardError standardError;
        QCOMPARE(editor.save(), QString());
        const QByteArray told = standardError.take();
        for (const QString &file : files)
            QVERIFY2(!QFile::exists(file) && told.contains("Removed " + QFile::encodeName(file)),
                     told.constData());
        QCOMPARE(editor.home.backups().count(mine), 2);
        QCOMPARE(editor.stored("dontChangeAASettings"), "true"_s);
        const ScopedEnvironment noBackups("XDG_STATE_HOME", "/dev/null");
        editor.home.write(place, mine);
        QCOMPARE(editor.save(), QString());
        QVERIFY(!editor.home.exists(place) && !standardError.take().contains("Removed"));
    }

    void fontsAreChosen()
    {
        Editor editor;
        QSignalSpy changed(&editor.page, &KFonts::changed);
        auto *ofIcons = editor.role("IconFont")->findChild<QPushButton *>();
        for (auto *button : {ofIcons, editor.find<QPushButton>("adjustAllButton")}) {
            editor.driver.then([](QDialog *dialog) {
                qobject_cast<QFontDialog *>(dialog)->setCurrentFont(mono);
                dialog->accept();
            });
            editor.driver.thenReject();
            button->click();
            button->click(); // this choice is cancelled
            QVERIFY(editor.driver.isDone());
            QCOMPARE(changed.count({true}), button == ofIcons ? 1 : 13); // of each role, and once for all
        }
        for (const auto *label : editor.page.findChildren<QLabel *>("previewLabel"_s))
            QCOMPARE(label->text(), "DejaVu Sans Mono 12"_s);
    }
};

QTEST_MAIN(TestFontPage)
#include "tst_fontpage.moc"
