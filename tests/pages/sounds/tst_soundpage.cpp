#include "pages/sounds/soundpage.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/pageoverfile.h"

namespace {

const QString themeSounds
    = "menu-popup item-selected window-new window-close window-unminimized window-unmaximized "
      "window-minimized window-maximized desktop-login desktop-logout desktop-screen-lock dialog-error "
      "window-attention-active desktop-switch-left"_s;
const QString builtIn = "data/sounds/x-qaz-wm-chimes.wav"_s;

/// A page with built-in files, a theme "wav" of all sounds, and others named after the ending of their menu's sound.
struct Page : PageOverFile<SoundPage> {
    Page()
    {
        home.write(".asoundrc"_s, "pcm.!default { type null }\n");
        for (const QString &file :
             {builtIn, "data/sounds/x-qaz-wm-slide.wav"_s, "data/sounds/x.ogg/a -o x.ogg"_s, "own a.WAV"_s})
            home.write(file, "sound");
        home.write("data/sounds/broken/index.theme"_s, "");
        for (const QString &theme : {"wav"_s, "au"_s, "oga"_s, "flac"_s, "x.ogg"_s}) {
            const QString directory = "data/sounds/"_s + theme + u'/';
            home.write(directory + "index.theme"_s, "[Sound Theme]\nName=Fine sounds\nDirectories=.\n");
            home.write(directory + "menu-popup."_s + theme.section(u'.', -1), "sound");
            home.write(directory + "desktop-login.wav"_s, "sound");
        }
        for (const QString &name : themeSounds.split(u' '))
            home.write("data/sounds/wav/%1.wav"_s.arg(name), "sound");
        programs.add("qaz-su"_s, "exec sh \"$@\"");
        programs.add("oggdec"_s, "for file; do cp \"$file\" \"${file%.oga}.wav\"; done");
        page.show();
        activate();
    }
    explicit Page(const QByteArray &content)
        : Page()
    {
        load(content);
    }

    /// What comes of a step that only this page knows, else of one that all know.
    QString outcome(const QString &step, const QString &view)
    {
        const QString what = step.section(u' ', 0, 0), text = step.section(u' ', 1);
        if (what == "sounds"_s)
            return assignments();
        if (what == "state"_s)
            return state();
        if (what == "converted"_s)
            return programs.calls("qaz-su"_s).value(0).join(u' ').replace(home.path(), "HOME"_s);
        if (what == "theme"_s)
            choose(text);
        else if (what == "assign"_s)
            assign(text.section(u' ', 0, 0).toInt(), text.section(u' ', 1));
        else if (what == "unselect"_s)
            list->clearSelection();
        else if (what == "click"_s)
            click(text.toLatin1().constData());
        else
            return PageOverFile::outcome(step, view);
        return {};
    }
    void activate()
    {
        page.activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(&page));
    }
    void click(const char *button)
    {
        activate(); // also when a dialog was closed
        QTest::mouseClick(find<QWidget>(button), Qt::LeftButton);
    }
    void choose(const QString &theme) const
    {
        themes->setCurrentIndex(themes->findText(theme));
        emit themes->activated(themes->currentIndex());
    }
    void assign(int row, const QString &text) const { list->topLevelItem(row)->setText(1, text); }
    void select(int row) const { list->setCurrentItem(list->topLevelItem(row)); }
    /// The assignments that are not empty, as "row=text".
    QString assignments() const
    {
        QStringList result;
        for (int row = 0; row < 14; ++row)
            result += QString::number(row) + u'=' + list->topLevelItem(row)->text(1);
        return result.filter(QRegularExpression("=."_s)).join(u' ').replace(home.path(), "HOME"_s);
    }
    /// Whether a player runs, the beginnings of the enabled controls' names, and the name of that with the focus.
    QString state() const
    {
        QString result = hasChildProcesses() ? "playing "_s : QString();
        for (const QString &name : "soundThemeCombo defaultSoundsButton clearSoundsButton soundListView "
                                   "selectSoundButton removeSoundButton playButton stopButton"_s.split(u' '))
            if (page.findChild<QWidget *>(name)->isEnabled())
                result += QString(name).remove("sound"_s).left(4) + u' ';
        return result + (page.focusWidget() ? page.focusWidget()->objectName() : QString());
    }

    FakePrograms programs;
    const ScopedEnvironment dataRoot{"QAZ_DATA_DIR", QFile::encodeName(home.path("data"_s))};
    QComboBox *const themes = page.findChild<QComboBox *>();
    QGroupBox *const group = page.findChild<QGroupBox *>();
    QTreeWidget *const list = page.findChild<QTreeWidget *>();
};

} // namespace

class TestSoundPage : public QObject
{
    Q_OBJECT
private slots:
    void soundsAreShownEditedAndSaved()
    {
        playOnPages<Page>("pages/sounds/steps.json"_s, "wmSoundsGroupBox soundThemeCombo"_s);
    }

    void repeatedLoadKeepsTheLook()
    {
        Page over("EnableSound=true\n");
        over.list->setColumnWidth(0, over.list->columnWidth(0) * 2);
        over.load(over.content());
        QCOMPARE(over.themes->count(), 7);
        QVERIFY(over.list->isColumnHidden(2) && over.list->columnWidth(0) > 200
                && over.find<QWidget>("mixerButton")->isHidden());
    }

    void takesTheChosenFileAndKeys()
    {
        Page over("EnableSound=true\nMenuCommandSound=b.wav\n");
        QStringList found;
        for (const QString &name : {builtIn, "own a.WAV"_s}) {
            over.driver.then([&](QDialog *dialog) {
                auto *files = qobject_cast<QFileDialog *>(dialog);
                auto *field = dialog->findChild<QLineEdit *>();
                found << files->directory().path() << field->text() << files->nameFilters();
                field->setText(over.home.path(name));
                dialog->accept();
            });
            emit over.list->itemDoubleClicked(over.list->topLevelItem(0), 1);
        }
        QCOMPARE(
            found.join(u'|').replace(over.home.path(), "HOME"_s),
            "HOME/data/sounds||Sounds (*.wav *.au)|HOME/data/sounds|x-qaz-wm-chimes.wav|Sounds (*.wav *.au)"_s);
        over.driver.thenReject();
        over.click("selectSoundButton");
        QCOMPARE(over.driver.seen().last(), "Open File|QazFileDialog"_s);

        over.list->setFocus();
        over.activate();
        for (const Qt::Key key : {Qt::Key_Return, Qt::Key_Enter, Qt::Key_Space}) {
            over.driver.thenReject();
            QTest::keyClick(over.list, key);
        }
        QTest::keyClick(over.list, Qt::Key_Down);
        QTest::keyClick(over.list, Qt::Key_Delete);
        over.themes->setFocus();
        over.select(0);
        QTest::keyClick(over.themes, Qt::Key_Delete); // is no key of the list's
        QCOMPARE(over.assignments(), "0=HOME/own a.WAV"_s);
        QCOMPARE(over.changed.count(), 3);
        QVERIFY(over.driver.isDone());
    }

    void playsUntilStopped()
    {
        auto over = std::make_unique<Page>("EnableSound=true\n");
        QFile pipe(over->home.makeFifo("endless.wav"_s));
        over->assign(0, pipe.fileName());
        const auto play = [&over] {
            over->click("playButton");
            QCOMPARE(over->state(), "playing stop stopButton"_s);
            QVERIFY(QGuiApplication::overrideCursor());
            QTRY_VERIFY(!QGuiApplication::overrideCursor());
        };
        play();
        over->click("stopButton");
        QCOMPARE(over->state(), "Them defa clea List sele remo play playButton"_s);

        play();
        QVERIFY(pipe.open(QIODevice::WriteOnly)); // nothing comes: the player gives up
        pipe.close();
        QTRY_COMPARE(over->state(), "Them defa clea List sele remo play playButton"_s);

        over->click("playButton");
        over->group->setChecked(false); // hardly started
        QVERIFY(!QGuiApplication::overrideCursor());
        QCOMPARE(over->state(), "Them wmSoundsGroupBox"_s);

        over->group->setChecked(true);
        over->click("playButton");
        over.reset();
        QVERIFY(!hasChildProcesses());
    }

    void tellsWhatCannotBePlayed()
    {
        FakePrograms programs(FakePrograms::Path::Instead);
        playOnPages<Page>("pages/sounds/unplayable.json"_s, "playButton"_s);
        programs.add("qasmixer"_s);
        Page().find<QPushButton>("mixerButton")->click();
        QTRY_COMPARE(programs.calls("qasmixer"_s).size(), 1);
    }

    void soundFilesAreDroppedAndPasted()
    {
        for (const QStringList &each : rowsOf("pages/sounds/drops.json"_s)) {
            const int row = each[1].section(u',', 0, 0).toInt();
            const QString dropped = each[2];
            const bool isSound = each[0] != "t"_s;
            Page over("EnableSound=true\n");
            over.page.resize(400, 700);
            over.select(3);
            auto *data = new QMimeData;
            data->setUrls({QUrl::fromLocalFile(over.home.path(each[0]))});
            QGuiApplication::clipboard()->setMimeData(data);
            const int height = over.list->visualItemRect(over.list->topLevelItem(0)).height();
            const QPoint at(5, row * height + height / 2);
            QDragEnterEvent enter(at, Qt::CopyAction, data, Qt::LeftButton, {});
            QDropEvent drop(at, Qt::CopyAction, data, Qt::LeftButton, {});
            for (QDropEvent *event : {static_cast<QDropEvent *>(&enter), &drop}) {
                QCOMPARE(over.assignments(), QString());
                QCoreApplication::sendEvent(over.list->viewport(), event);
                // What enters at an unfit place may fit at another one.
                QCOMPARE(event->isAccepted(), event == &enter ? isSound : !dropped.isEmpty());
            }
            QCOMPARE(over.assignments(), dropped);
            QCOMPARE(over.list->currentIndex().row(), dropped.isEmpty() ? 3 : row);
            QTest::keyClick(over.list, Qt::Key_V, Qt::ControlModifier); // to the selected row
            const QString third = isSound ? "3=x-qaz-wm-chimes.wav"_s : QString();
            QCOMPARE(over.assignments(), dropped.isEmpty() ? third : dropped);
        }
    }
};

QTEST_MAIN(TestSoundPage)
#include "tst_soundpage.moc"
