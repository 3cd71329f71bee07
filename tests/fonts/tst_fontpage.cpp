#include "fonts/fontpage.h"

#include "fonts/fontuseitem.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/modaldriver.h"
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

    void loadAgain() { load(content()); }
    QString stored(const char *key) const { return QSettings().value(QLatin1String(key)).toString(); }
    /// Saves; a message box must come up. Its texts.
    QString saveAndAnswer()
    {
        ModalDriver driver;
        driver.thenAnswer(QMessageBox::Ok);
        commands = save();
        return driver.isDone() ? driver.seen().constFirst() : QString();
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

    QString commands;
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
        QSignalSpy changed(&editor.page, &FontPage::changedSignal);
        QSignalSpy edited(&editor.page, &KFonts::changed);
        {
            ModalDriver driver;
            driver.then([](QDialog *dialog) {
                dialog->findChild<QCheckBox *>("excludeRangeCheckBox"_s)->click();
                dialog->accept();
            });
            editor.chooseAntiAliasing(0);
            editor.find<QPushButton>("configureButton")->click();
        }
        QCOMPARE(edited.count({true}), 2);
        editor.loadAgain();
        QCOMPARE(changed.size(), edited.size());

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

    void dpiSnaps()
    {
        const Editor editor, other;
        QList<int> shown;
        // Each depends on where the last snap went, on any page.
        for (const int entered : {50, 40, 69, 70, 1, 120, 1, 60, 70, 1, 0, 1, 30}) {
            editor.dpi()->setValue(entered);
            shown += editor.dpi()->value();
        }
        other.dpi()->setValue(30);
        QCOMPARE(shown << other.dpi()->value(),
                 (QList<int>{70, 0, 70, 70, 0, 120, 70, 0, 70, 70, 0, 0, 70, 0}));
    }

    void dpiIsForcedAndNoLongerForced()
    {
        const QString file = ".Xresources"_s, xrdb = "xrdb"_s;
        Editor editor;
        editor.home.write(file, "A.a: 1\n");
        QSignalSpy changed(&editor.page, &KFonts::changed);
        auto *line = editor.dpi()->findChild<QLineEdit *>();
        line->selectAll();
        QTest::keyClicks(line, "120"_s);
        QVERIFY2(changed.value(0).value(0).toBool(), "typing is an edit before the field is left");
        QCOMPARE(editor.saveAndAnswer(), messageBox);
        QCOMPARE(editor.home.read(file), QByteArray("A.a: 1\nXft.dpi: 120\n"));
        QCOMPARE(editor.commands.section(u'|', -1), "XftSettings 120 unknown rgb hintmedium"_s);
        QCOMPARE(editor.save(), QString());

        QProcess::execute(xrdb, {"-merge"_s, editor.home.write("server"_s, "Xft.dpi: 119.9\n")});
        editor.loadAgain();
        QCOMPARE(editor.dpi()->value(), 119);
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
        QCOMPARE(editor.home.read(file), QByteArray("A.a: 1\n"));
        QCOMPARE(programs.calls(xrdb).size(), 3);
        QCOMPARE(editor.home.read("removed"_s), QByteArray("Xft.dpi\nXft.dpi\n"));
        editor.save();
        QCOMPARE(programs.calls(xrdb).size(), 5); // removed by the merge alone
    }

    void fileMadeForTheDpiGoesWithIt()
    {
        const QString file = ".Xresources"_s;
        for (const bool isOurs : {true, false}) {
            Editor editor;
            if (!isOurs)
                editor.home.write(file, {});
            for (const int dpi : {120, 0}) {
                editor.loadAgain();
                editor.dpi()->setValue(dpi);
                QCOMPARE(editor.saveAndAnswer(), messageBox);
                QCOMPARE(editor.home.read(file), QByteArray(dpi != 0 ? "Xft.dpi: 120\n" : ""));
            }
            QCOMPARE(editor.home.exists(file), !isOurs);
            QVERIFY(isOurs || QFile::remove(editor.home.path(file)));
            QSettings().setValue("forceFontDPI"_s, 120);
            editor.loadAgain();
            editor.dpi()->setValue(0); // nothing to remove, nothing made
            QCOMPARE(editor.saveAndAnswer(), messageBox);
            QCOMPARE(editor.stored("madeXresources"), isOurs ? "false"_s : QString());
        }
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

    void antiAliasingModes()
    {
        const char *words[] = {"true", "unknown", "false"};
        Editor editor;
        for (const int mode : {0, 2, 1}) {
            editor.chooseAntiAliasing(mode);
            QCOMPARE(editor.saveAndAnswer(), messageBox);
            QCOMPARE(editor.commands.section(u'|', -1),
                     "XftSettings 0 %1 none hintmedium"_s.arg(QLatin1String(words[mode])));
            const QByteArray file = editor.home.read(place);
            QVERIFY(file.contains("<bool>false</bool>") == (mode == 2) && file.isEmpty() == (mode == 1));
            editor.loadAgain();
            QCOMPARE(editor.antiAliasing()->currentIndex(), mode);
            QCOMPARE(editor.find<QPushButton>("configureButton")->isEnabled(), mode == 0);
        }
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
        const Editor editor;
        QSignalSpy changed(&editor.page, &KFonts::changed);
        auto *ofIcons = editor.role("IconFont")->findChild<QPushButton *>();
        for (auto *button : {ofIcons, editor.find<QPushButton>("adjustAllButton")}) {
            ModalDriver driver;
            driver.then([](QDialog *dialog) {
                qobject_cast<QFontDialog *>(dialog)->setCurrentFont(mono);
                dialog->accept();
            });
            driver.thenReject();
            button->click();
            button->click(); // this choice is cancelled
            QVERIFY(driver.isDone());
            QCOMPARE(changed.count({true}), button == ofIcons ? 1 : 13); // of each role, and once for all
        }
        for (const auto *label : editor.page.findChildren<QLabel *>("previewLabel"_s))
            QCOMPARE(label->text(), "DejaVu Sans Mono 12"_s);
    }
};

QTEST_MAIN(TestFontPage)
#include "tst_fontpage.moc"
