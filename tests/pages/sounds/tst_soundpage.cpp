#include "pages/sounds/soundpage.h"
#include "platform/qazsettings.h"
#include "settings/soundassignments.h"
#include "tests/support/childprocesses.h"
#include "tests/support/environment.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/literals.h"
#include "tests/support/modaldriver.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"

#include <QClipboard>
#include <QComboBox>
#include <QDropEvent>
#include <QFileDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QMimeData>
#include <QToolButton>
#include <QTreeWidget>
#include <QtTest>

#include <sys/stat.h>

namespace {

/// The page over a theme file and sounds of its own: one built-in file, and themes named after their files' ending.
struct PageOverFile {
    explicit PageOverFile(const QByteArray &content)
    {
        home.write(".asoundrc"_s, "pcm.!default { type null }\n");
        home.write("some.themerc"_s, content);
        home.write("data/sounds/x-qaz-wm-chimes.wav"_s, "sound");
        home.write("data/sounds/broken/index.theme"_s, "");
        home.write("data/sounds/x.ogg/a -o x.ogg"_s, "sound");
        for (const QString &theme : {"wav"_s, "oga"_s, "flac"_s, "x.ogg"_s}) {
            const QString ending = theme.section(u'.', -1);
            home.write("data/sounds/%1/menu-popup.%2"_s.arg(theme, ending), "sound");
            home.write("data/sounds/%1/desktop-login.%2"_s.arg(theme, ending), "sound");
            home.write("data/sounds/%1/index.theme"_s.arg(theme),
                       "[Sound Theme]\nName=Fine sounds\nDirectories=.\n");
        }
        visitFile(&SoundPage::loadValues);
        page->show();
    }

    QString path(const char *name) const { return home.path(QLatin1String(name)); }
    void visitFile(bool (SoundPage::*pass)(QazSettings *)) const
    {
        QazSettings store(path("some.themerc"));
        store.sync(true);
        (page.get()->*pass)(&store);
    }
    /// Saves; returns what was announced.
    QString save() const
    {
        WmListener windowManager;
        visitFile(&SoundPage::saveValues);
        return windowManager.take().join(QLatin1Char('\n')).remove(QLatin1String("QAZWM_UPDATE_VAL "));
    }
    QWidget *find(const char *name) const { return page->findChild<QWidget *>(QLatin1String(name)); }
    void click(const char *button) const { QTest::mouseClick(find(button), Qt::LeftButton); }
    void choose(const QString &theme) const
    {
        themes->setCurrentIndex(themes->findText(theme));
        emit themes->activated(themes->currentIndex());
    }
    void assign(int row, const QString &text) const { list->topLevelItem(row)->setText(1, text); }
    /// The assignments that are not empty, as "row=text".
    QString assignments() const
    {
        QString result;
        for (int row = 0; row < list->topLevelItemCount(); ++row) {
            if (const QString text = list->topLevelItem(row)->text(1); !text.isEmpty())
                result += "%1=%2 "_s.arg(QString::number(row), text);
        }
        return result.trimmed();
    }
    /// The beginnings of the enabled controls' names.
    QString enabled() const
    {
        QStringList result;
        for (const char *name :
             {"soundThemeCombo", "defaultSoundsButton", "clearSoundsButton", "soundListView",
              "selectSoundButton", "removeSoundButton", "playButton", "stopButton"}) {
            if (find(name)->isEnabled())
                result << QString::fromLatin1(name).remove(QLatin1String("sound")).left(4);
        }
        return result.join(QLatin1Char(' '));
    }

    const TemporaryHome home;
    const ScopedEnvironment dataRoot{"QAZ_DATA_DIR", QFile::encodeName(path("data"))};
    std::unique_ptr<SoundPage> page = std::make_unique<SoundPage>();
    QComboBox *const themes = page->findChild<QComboBox *>();
    QGroupBox *const group = page->findChild<QGroupBox *>();
    QTreeWidget *const list = page->findChild<QTreeWidget *>();
};

const QString allButStop = "Them defa clea List sele remo play"_s;
const QString themesOnly = "Them"_s;

} // namespace

class TestSoundPage : public QObject
{
    Q_OBJECT
private slots:
    void untouchedPageChangesNothing()
    {
        const QByteArray content
            = "EnableSound=True\nEnableAlsa=true\nSoundTheme=oga\nOpenSound=/not there.wav\n"
              "CloseSound=window-close\nPagingSound=built.wav\n";
        PageOverFile over(content);
        over.assign(4, "edited"_s);
        over.group->setChecked(false);
        QSignalSpy changes(over.page.get(), &SoundPage::changedSignal);
        over.visitFile(&SoundPage::loadValues); // a repeated load is no edit
        QCOMPARE(over.themes->currentText(), "oga"_s);
        QCOMPARE(over.assignments(), "2=/not there.wav 3=window-close 13=built.wav"_s);
        QCOMPARE(over.save(), QString());
        QCOMPARE(over.home.read("some.themerc"_s), content);
        QCOMPARE(changes.count(), 0);
        QVERIFY(over.page->loaded);
    }

    void savesEveryEvent()
    {
        QByteArray content = "EnableSound=true\nSoundTheme=not installed\n";
        QString expected = "EnableSound false\n"_s;
        for (const SoundEvent &event : soundEvents) {
            content += QByteArray(event.key) + "=x\n";
            expected += QLatin1String(event.key) + QLatin1String(" \n");
        }
        PageOverFile over(content);
        QCOMPARE(over.themes->currentText(), "No theme"_s);
        over.click("clearSoundsButton");
        over.group->setChecked(false);
        QCOMPARE(over.save(), expected + QLatin1String("SoundTheme "));
        QCOMPARE(over.save(), QString());
    }

    void themesReplaceEverythingButOwnFiles()
    {
        const QString builtIn = "8=x-qaz-wm-chimes.wav 9=x-qaz-wm-chimes.wav 10=x-qaz-wm-chimes.wav"_s;
        PageOverFile over(
            "EnableSound=true\nMenuCommandSound=/own.wav\nSystemStartSound=/own.wav\nPagingSound=x\n");
        over.click("defaultSoundsButton"); // no theme is open before one is chosen
        QCOMPARE(over.assignments(), builtIn);
        over.assign(1, "/own.wav"_s);
        over.assign(8, "/own.wav"_s);
        over.choose("wav"_s);
        QCOMPARE(over.assignments(), "0=menu-popup 1=/own.wav 8=/own.wav"_s);
        over.click("defaultSoundsButton");
        QCOMPARE(over.assignments(), "0=menu-popup 8=desktop-login"_s);
        over.choose("No theme"_s);
        QCOMPARE(over.assignments(), builtIn);
    }

    void tellsWhatIsWrongWithATheme_data()
    {
        const QString attention = "Attention|Not all files in theme 'Fine sounds' are in wav format\n"_s;
        const QString question = attention + "Would you like to convert them to wav now?"_s;
        const QString refusal
            = "\nWarning|File 'DIR/%1/menu-popup.%1' is not wav.\nSelect other theme or conver to wav,\n"
              "for example ogg/oga to wav by oggdev utility."_s;
        QTest::addColumn<QString>("theme");
        QTest::addColumn<int>("answer");
        QTest::addColumn<QString>("messages"); // at the choice and at a play
        const int ok = QMessageBox::Ok, no = QMessageBox::No, yes = QMessageBox::Yes;
        QTest::newRow("broken") << "broken" << ok << "Warning|Can't load sound theme 'broken'";
        QTest::newRow("flac") << "flac" << ok
                              << attention + "You should convert them to wav."_s + refusal.arg("flac"_s);
        const QString unsafe = "They can't be converted: 'DIR/x.ogg/a -o x.ogg' has to be renamed first.\n"
                               "Blanks, quotation marks, backslashes and control characters are not safe."_s;
        QTest::newRow("unsafe") << "x.ogg" << ok
                                << attention + unsafe
                                       + QString(refusal).replace("%1/menu-popup.%1"_s,
                                                                  "x.ogg/menu-popup.ogg"_s);
        QTest::newRow("oga") << "oga" << no << question + refusal.arg("oga"_s);
        QTest::newRow("converted") << "oga" << yes << question;
    }
    void tellsWhatIsWrongWithATheme()
    {
        QFETCH(QString, theme);
        QFETCH(int, answer);
        const bool converted = answer == QMessageBox::Yes;
        FakePrograms programs;
        programs.add("qaz-su"_s, "exec sh \"$@\"");
        programs.add("oggdec"_s, "for file; do cp \"$file\" \"${file%.oga}.wav\"; done");
        PageOverFile over("EnableSound=true\nCloseSound=/own.wav\n");
        QSignalSpy changes(over.page.get(), &SoundPage::changedSignal);
        ModalDriver driver;
        driver.thenAnswer(QMessageBox::StandardButton(answer));
        over.choose(theme);
        QVERIFY(changes.count() > 0); // the choice is an edit, also when no row changes
        QCOMPARE(over.assignments(),
                 theme == "broken"_s ? "3=/own.wav"_s : "0=menu-popup 3=/own.wav 8=desktop-login"_s);
        const QStringList call{
            "-c"_s, "find %1 -name \"*.og[ga]\" | xargs oggdec"_s.arg(over.path("data/sounds/oga"))};
        QCOMPARE(programs.calls("qaz-su"_s).value(0), converted ? call : QStringList());

        driver.thenAnswer(QMessageBox::Ok);
        over.click("playButton");
        QCOMPARE(over.enabled() == "stop"_s, converted);
        QTEST(driver.seen().join(QLatin1Char('\n')).replace(over.path("data/sounds"), "DIR"_s), "messages");
    }

    void controlsFollowTheSelection()
    {
        PageOverFile over("EnableSound=true\nMenuCommandSound=x\n");
        const QString emptyRow = "Them defa clea List sele"_s;
        QCOMPARE(over.enabled(), emptyRow); // the first row is selected
        over.list->setCurrentItem(over.list->topLevelItem(1));
        QCOMPARE(over.enabled(), allButStop);
        over.group->setChecked(false);
        QCOMPARE(over.enabled(), themesOnly);
        over.group->setChecked(true);
        QCOMPARE(over.enabled(), allButStop);
        over.click("removeSoundButton");
        QCOMPARE(over.enabled(), emptyRow);
        QCOMPARE(over.assignments(), QString());
        over.list->clearSelection();
        QCOMPARE(over.enabled(), "Them defa clea List"_s);
    }

    void playsUntilStopped()
    {
        PageOverFile over("EnableSound=true\n");
        QFile pipe(over.path("endless.wav"));
        QCOMPARE(::mkfifo(QFile::encodeName(pipe.fileName()).constData(), 0600), 0);
        over.assign(0, pipe.fileName());
        const auto play = [&over] {
            over.click("playButton");
            QCOMPARE(over.enabled(), "stop"_s);
            QTRY_VERIFY(!QGuiApplication::overrideCursor());
            QVERIFY(hasChildProcesses());
        };
        play();
        over.click("stopButton");
        QCOMPARE(over.enabled(), allButStop);
        QVERIFY(!hasChildProcesses());

        play();
        QVERIFY(pipe.open(QIODevice::WriteOnly)); // nothing comes: the player gives up
        pipe.close();
        QTRY_COMPARE(over.enabled(), allButStop);

        play();
        over.group->setChecked(false);
        QCOMPARE(over.enabled(), themesOnly);
        over.group->setChecked(true);
        QCOMPARE(over.enabled(), allButStop);
        QVERIFY(!hasChildProcesses());

        over.click("playButton");
        over.page.reset(); // hardly started
        QVERIFY(!hasChildProcesses());
    }

    void tellsWhatCannotBePlayed()
    {
        PageOverFile over("EnableSound=true\nMenuPopupSound=menu-popup\n");
        ModalDriver driver;
        driver.thenAnswer(QMessageBox::Ok);
        over.click("playButton");
        QCOMPARE(driver.seen().last(),
                 "Error|Sound '%1' doesn't exist"_s.arg(over.path("data/sounds/menu-popup")));
        QCOMPARE(over.enabled(), "Them defa clea List sele remo"_s);
        const FakePrograms none(FakePrograms::Path::Instead);
        driver.thenAnswer(QMessageBox::Ok);
        over.page->callMixer();
        QCOMPARE(driver.seen().last(), "Error|Can't start 'qasmixer'"_s);
        QVERIFY(driver.isDone());
    }

    void takesTheChosenFile()
    {
        PageOverFile over("EnableSound=true\n");
        ModalDriver driver;
        const auto take = [&](const char *name) {
            QString found;
            driver.then([&found, path = over.path(name)](QDialog *dialog) {
                found = qobject_cast<QFileDialog *>(dialog)->directory().path() + u' '
                        + dialog->findChild<QLineEdit *>()->text();
                dialog->findChild<QLineEdit *>()->setText(path);
                dialog->accept();
            });
            emit over.list->itemDoubleClicked(over.list->topLevelItem(0), 1);
            found += QLatin1Char(' ') + over.assignments();
            return found.replace(over.path("data/sounds"), "DIR"_s);
        };
        QCOMPARE(take("data/sounds/x-qaz-wm-chimes.wav"), "DIR  0=x-qaz-wm-chimes.wav"_s);
        QCOMPARE(take("data/sounds/wav/menu-popup.wav"),
                 "DIR x-qaz-wm-chimes.wav 0=DIR/wav/menu-popup.wav"_s);
        const QString before = over.assignments();
        driver.thenReject();
        over.click("selectSoundButton");
        QCOMPARE(over.assignments(), before);
        QCOMPARE(driver.seen().last(), "Open File|QazFileDialog"_s);
        QVERIFY(driver.isDone());
    }

    void keysActOnTheSelectedRow()
    {
        PageOverFile over("EnableSound=true\nMenuPopupSound=a.wav\nMenuCommandSound=b.wav\n");
        QSignalSpy changes(over.page.get(), &SoundPage::changedSignal);
        over.page->activateWindow();
        over.list->setFocus();
        QVERIFY(QTest::qWaitForWindowActive(over.page.get()));
        ModalDriver driver;
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
            driver.thenReject();
            QTest::keyClick(over.list, key);
            QCOMPARE(driver.seen().last(), "Open File|QazFileDialog"_s);
        }
        QCOMPARE(changes.count(), 0);
        QTest::keyClick(over.list, Qt::Key_Down);
        QTest::keyClick(over.list, Qt::Key_Delete);
        QCOMPARE(over.assignments(), "0=a.wav"_s);
        QCOMPARE(changes.count(), 1);
        QVERIFY(driver.isDone());
    }

    void soundFilesAreDroppedAndPasted()
    {
        const QString builtIn = "data/sounds/x-qaz-wm-chimes.wav"_s;
        const QPoint paste(-1, 0), header(5, -5), below(5, 600);
        const struct {
            QString file; // below the home
            QPoint place; // in the list's viewport; the height of a row counts as 1
            QString assignments;
        } rows[] = {{"own a.WAV"_s, {5, 2}, "2=HOME/own a.WAV"_s},
                    {builtIn, {5, 13}, "13=x-qaz-wm-chimes.wav"_s},
                    {builtIn, paste, "3=x-qaz-wm-chimes.wav"_s},
                    {"some.themerc"_s, {5, 2}, {}},
                    {"some.themerc"_s, paste, {}},
                    {builtIn, header, {}},
                    {builtIn, below, {}}};
        for (const auto &[file, place, assignments] : rows) {
            PageOverFile over("EnableSound=true\n");
            over.home.write("own a.WAV"_s, "sound");
            over.page->resize(400, 700);
            over.list->setCurrentItem(over.list->topLevelItem(3));
            auto *data = new QMimeData;
            data->setUrls({QUrl::fromLocalFile(over.home.path(file))});
            QGuiApplication::clipboard()->setMimeData(data);
            const int height = over.list->visualItemRect(over.list->topLevelItem(0)).height();
            const QPoint at(5, place.y() < 0 || place == below ? place.y() : place.y() * height + height / 2);
            const auto actions = Qt::MoveAction | Qt::CopyAction;
            QDragEnterEvent enter(at, actions, data, Qt::LeftButton, {});
            QDragMoveEvent move(at, actions, data, Qt::LeftButton, {});
            QDropEvent drop(at, actions, data, Qt::LeftButton, {});
            for (QDropEvent *event : std::initializer_list<QDropEvent *>{&enter, &move, &drop}) {
                if (place == paste)
                    break;
                QCOMPARE(over.assignments(), QString());
                QCoreApplication::sendEvent(over.list->viewport(), event);
                // What enters at an unfit place may fit at another one. A file manager must not move the file.
                QCOMPARE(event->isAccepted(),
                         event == &enter ? file != "some.themerc"_s : !assignments.isEmpty());
                QVERIFY(!event->isAccepted() || event->dropAction() == Qt::CopyAction);
            }
            if (place == paste)
                QTest::keyClick(over.list, Qt::Key_V, Qt::ControlModifier);
            QCOMPARE(over.assignments().replace(over.home.path(), "HOME"_s), assignments);
        }
    }
};

QTEST_MAIN(TestSoundPage)
#include "tst_soundpage.moc"
