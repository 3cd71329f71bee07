#include "tests/pages/sounds/pageoverfile.h"
#include "tests/support/childprocesses.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/modaldriver.h"

#include <QClipboard>
#include <QDropEvent>
#include <QMimeData>

#include <sys/stat.h>

namespace {

const QString allButStop = "Them defa clea List sele remo play"_s;
const QString themesOnly = "Them"_s;

} // namespace

class TestSoundActions : public QObject
{
    Q_OBJECT
private slots:
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

QTEST_MAIN(TestSoundActions)
#include "tst_soundactions.moc"
