#include "pages/sounds/soundassignments.h"
#include "pages/sounds/soundpage.h"
#include "platform/qazsettings.h"
#include "tests/support/childprocesses.h"
#include "tests/support/environment.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/modaldriver.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"

#include <QComboBox>
#include <QFileDialog>
#include <QGroupBox>
#include <QLineEdit>
#include <QPushButton>
#include <QToolButton>
#include <QTreeWidget>
#include <QtTest>

#include <sys/stat.h>

namespace {

/// The page over a theme file and sound themes of its own.
class PageOverFile
{
public:
    explicit PageOverFile(const QByteArray &content)
        : m_dataRoot("QAZ_DATA_DIR", m_home.path(QStringLiteral("data")).toLocal8Bit())
    {
        m_home.write(QStringLiteral(".asoundrc"), "pcm.!default { type null }\n");
        m_home.write(QStringLiteral("some.themerc"), content);
        m_home.write(QStringLiteral("data/sounds/x-qaz-wm-chimes.wav"), "sound");
        addTheme("Wav", "wav");
        addTheme("Ogg", "oga");
        addTheme("Flac", "flac");
        m_home.write(QStringLiteral("data/sounds/Broken/index.theme"), "");
        page = std::make_unique<SoundPage>();
        load();
        page->show();
    }

    QString path(const char *name) const { return m_home.path(QLatin1String(name)); }
    QByteArray content() const { return m_home.read(QStringLiteral("some.themerc")); }
    void load()
    {
        QazSettings store(path("some.themerc"));
        store.sync(true);
        page->loadValues(&store);
    }
    /// Saves; returns the commands without their common start.
    QStringList save()
    {
        WmListener windowManager;
        {
            QazSettings store(path("some.themerc"));
            store.sync(true);
            page->saveValues(&store);
        }
        return windowManager.take().replaceInStrings(QStringLiteral("QAZWM_UPDATE_VAL "), QString());
    }
    template<typename Widget>
    Widget *find(const char *name) const
    {
        return page->findChild<Widget *>(QLatin1String(name));
    }
    QComboBox *themes() const { return find<QComboBox>("soundThemeCombo"); }
    QTreeWidget *list() const { return find<QTreeWidget>("soundListView"); }
    QGroupBox *group() const { return find<QGroupBox>("wmSoundsGroupBox"); }
    void choose(const char *theme) const
    {
        themes()->setFocus();
        themes()->setCurrentIndex(themes()->findText(QLatin1String(theme)));
        emit themes()->activated(themes()->currentIndex());
    }
    void select(int row) const { list()->setCurrentItem(list()->topLevelItem(row)); }
    void click(const char *button) const { QTest::mouseClick(find<QAbstractButton>(button), Qt::LeftButton); }
    /// The assignments that are not empty, as "row=text".
    QStringList assignments() const
    {
        QStringList result;
        for (int row = 0; row < list()->topLevelItemCount(); ++row) {
            if (const QString text = list()->topLevelItem(row)->text(1); !text.isEmpty())
                result << QStringLiteral("%1=%2").arg(QString::number(row), text);
        }
        return result;
    }
    /// The enabled controls.
    QString enabled() const
    {
        QString result;
        for (const char *name :
             {"soundThemeCombo", "defaultSoundsButton", "clearSoundsButton", "soundListView",
              "selectSoundButton", "removeSoundButton", "playButton", "stopButton"}) {
            if (find<QWidget>(name)->isEnabled())
                result += QString::fromLatin1(name).left(4) + QLatin1Char(' ');
        }
        return result.trimmed();
    }

private:
    void addTheme(const char *name, const char *ending)
    {
        const QString directory = QLatin1String("data/sounds/") + QLatin1String(name);
        m_home.write(directory + QLatin1String("/index.theme"),
                     "[Sound Theme]\nName=Fine sounds\nDirectories=s\n");
        for (const char *sound : {"menu-popup", "desktop-login"})
            m_home.write(
                QStringLiteral("%1/s/%2.%3").arg(directory, QLatin1String(sound), QLatin1String(ending)),
                "sound");
    }

    const TemporaryHome m_home;
    const ScopedEnvironment m_dataRoot;

public:
    std::unique_ptr<SoundPage> page;
};

const QString allButStop = QStringLiteral("soun defa clea soun sele remo play");
const QString themesOnly = QStringLiteral("soun");

QStringList texts(std::initializer_list<const char *> items)
{
    QStringList result;
    for (const char *item : items)
        result << QString::fromUtf8(item);
    return result;
}

} // namespace

class TestSoundPage : public QObject
{
    Q_OBJECT
private slots:
    void untouchedPageChangesNothing()
    {
        const QByteArray content
            = "EnableSound=True\nEnableAlsa=true\nSoundTheme=Ogg\nOpenSound=/not there.wav\n"
              "CloseSound=window-close\nPagingSound=built.wav\n";
        PageOverFile over(content);
        QSignalSpy changes(over.page.get(), &SoundPage::changedSignal);
        over.load();
        QCOMPARE(over.themes()->currentText(), QStringLiteral("Ogg"));
        QCOMPARE(over.assignments(), texts({"2=/not there.wav", "3=window-close", "13=built.wav"}));
        QCOMPARE(over.save(), QStringList());
        QCOMPARE(over.content(), content);
        QCOMPARE(changes.count(), 0);
        QVERIFY(over.page->loaded);
    }

    void savesEveryEvent()
    {
        QByteArray content = "EnableSound=true\nSoundTheme=not installed\n";
        QStringList expected = texts({"EnableSound false"});
        for (const SoundEvent &event : soundEvents) {
            content += QByteArray(event.key) + "=x\n";
            expected << QLatin1String(event.key) + QLatin1Char(' ');
        }
        PageOverFile over(content);
        QCOMPARE(over.themes()->currentText(), QStringLiteral("No theme"));
        over.click("clearSoundsButton");
        over.group()->setChecked(false);
        QCOMPARE(over.save(), expected << QStringLiteral("SoundTheme "));
        QCOMPARE(over.save(), QStringList());
    }

    void themesReplaceEverythingButOwnFiles()
    {
        PageOverFile over(
            "EnableSound=true\nMenuCommandSound=/own.wav\nSystemStartSound=/own.wav\nPagingSound=x\n");
        over.click("defaultSoundsButton"); // no theme is open before one is chosen
        const QStringList builtIn = texts(
            {"8=x-qaz-wm-chimes.wav", "9=x-qaz-wm-chimes.wav", "10=x-qaz-wm-chimes.wav"});
        QCOMPARE(over.assignments(), builtIn);
        over.list()->topLevelItem(1)->setText(1, QStringLiteral("/own.wav"));
        over.list()->topLevelItem(8)->setText(1, QStringLiteral("/own.wav"));
        over.choose("Wav");
        QCOMPARE(over.assignments(), texts({"0=menu-popup", "1=/own.wav", "8=/own.wav"}));
        over.click("defaultSoundsButton");
        QCOMPARE(over.assignments(), texts({"0=menu-popup", "8=desktop-login"}));
        over.choose("No theme");
        QCOMPARE(over.assignments(), builtIn);
    }

    void aBrokenThemeEmptiesTheList()
    {
        PageOverFile over("OpenSound=window-new\nCloseSound=/own.wav\n");
        QSignalSpy changes(over.page.get(), &SoundPage::changedSignal);
        ModalDriver driver;
        driver.thenAnswer(QMessageBox::Ok);
        over.choose("Broken");
        QCOMPARE(driver.seen(), texts({"Warning|Can't load sound theme 'Broken'"}));
        QCOMPARE(over.assignments(), texts({"3=/own.wav"}));
        over.save();
        changes.clear();
        driver.thenAnswer(QMessageBox::Ok);
        over.choose("Broken"); // changes no row now
        QCOMPARE(changes.count(), 1);
    }

    void offersToConvertOggFiles_data()
    {
        QTest::addColumn<int>("answer");
        QTest::newRow("no") << int(QMessageBox::No);
        QTest::newRow("yes") << int(QMessageBox::Yes);
    }
    void offersToConvertOggFiles()
    {
        QFETCH(int, answer);
        const bool converted = answer == QMessageBox::Yes;
        FakePrograms programs;
        programs.add(QStringLiteral("qaz-su"), "exec sh \"$@\"");
        programs.add(QStringLiteral("oggdec"), "for file; do cp \"$file\" \"${file%.oga}.wav\"; done");
        PageOverFile over("EnableSound=true\n");
        ModalDriver driver;
        driver.thenAnswer(QMessageBox::StandardButton(answer));
        over.choose("Ogg");
        QVERIFY(driver.isDone());
        QCOMPARE(over.assignments(), texts({"0=menu-popup", "8=desktop-login"}));
        QCOMPARE(QFile::exists(over.path("data/sounds/Ogg/s/menu-popup.wav")), converted);

        if (!converted)
            driver.thenAnswer(QMessageBox::Ok);
        over.click("playButton");
        QTRY_COMPARE(over.enabled().contains(QLatin1String("play")), converted);
        QStringList expected = texts({"Attention|Not all files in theme 'Fine sounds' are in wav format\n"
                                      "Would you like to convert them to wav now?"});
        if (!converted)
            expected << QStringLiteral("Warning|File '%1' is not wav.\nSelect other theme or conver to wav,\n"
                                       "for example ogg/oga to wav by oggdev utility.")
                            .arg(over.path("data/sounds/Ogg/s/menu-popup.oga"));
        QCOMPARE(driver.seen(), expected);
        QVERIFY(driver.isDone());
    }

    void tellsOfOtherFormats()
    {
        PageOverFile over("EnableSound=true\n");
        ModalDriver driver;
        driver.thenAnswer(QMessageBox::Ok);
        over.choose("Flac");
        QCOMPARE(driver.seen(), texts({"Attention|Not all files in theme 'Fine sounds' are in wav format\n"
                                       "You should convert them to wav."}));
    }

    void controlsFollowTheSelection()
    {
        PageOverFile over("EnableSound=true\nMenuCommandSound=x\n");
        QCOMPARE(over.enabled(), QStringLiteral("soun defa clea soun sele")); // the first row is selected
        over.select(1);
        QCOMPARE(over.enabled(), allButStop);
        over.group()->setChecked(false);
        QCOMPARE(over.enabled(), themesOnly);
        over.group()->setChecked(true);
        over.list()->clearSelection();
        QCOMPARE(over.enabled(), QStringLiteral("soun defa clea soun"));
        over.select(1);
        over.click("removeSoundButton");
        QCOMPARE(over.enabled(), QStringLiteral("soun defa clea soun sele"));
        QCOMPARE(over.assignments(), QStringList());
    }

    void playsUntilStopped()
    {
        PageOverFile over("EnableSound=true\n");
        const QString pipe = over.path("endless.wav");
        QCOMPARE(::mkfifo(QFile::encodeName(pipe).constData(), 0600), 0);
        over.list()->topLevelItem(0)->setText(1, pipe);
        const QString playing = QStringLiteral("stop");
        const auto play = [&over, playing] {
            over.click("playButton");
            QCOMPARE(over.enabled(), playing);
            QTRY_VERIFY(!QGuiApplication::overrideCursor());
            QVERIFY(hasChildProcesses());
        };
        play();
        over.click("stopButton");
        QCOMPARE(over.enabled(), allButStop);
        QVERIFY(!hasChildProcesses());

        play();
        QFile end(pipe);
        QVERIFY(end.open(QIODevice::WriteOnly)); // nothing comes: the player gives up
        end.close();
        QTRY_COMPARE(over.enabled(), allButStop);

        play();
        over.group()->setChecked(false);
        QCOMPARE(over.enabled(), themesOnly);
        over.group()->setChecked(true);
        QCOMPARE(over.enabled(), allButStop);
        QVERIFY(!hasChildProcesses());

        play();
        over.page.reset();
        QVERIFY(!hasChildProcesses());
    }

    void tellsWhatCannotBePlayed()
    {
        PageOverFile over("EnableSound=true\nMenuPopupSound=menu-popup\n");
        ModalDriver driver;
        driver.thenAnswer(QMessageBox::Ok);
        over.click("playButton");
        QCOMPARE(
            driver.seen(),
            QStringList(
                QStringLiteral("Error|Sound '%1' doesn't exist").arg(over.path("data/sounds/menu-popup"))));
        QCOMPARE(over.enabled(), QStringLiteral("soun defa clea soun sele remo"));
        const FakePrograms none(FakePrograms::Path::Instead);
        driver.thenAnswer(QMessageBox::Ok);
        over.page->callMixer();
        QCOMPARE(driver.seen().last(), QStringLiteral("Error|Can't start 'qasmixer'"));
        QVERIFY(driver.isDone());
    }

    void takesTheChosenFile()
    {
        PageOverFile over("EnableSound=true\n");
        QStringList directories;
        ModalDriver driver;
        const auto chooseFile = [&](const char *name) {
            driver.then([&directories, path = over.path(name)](QDialog *dialog) {
                directories << qobject_cast<QFileDialog *>(dialog)->directory().path();
                auto *name = dialog->findChild<QLineEdit *>(QStringLiteral("fileNameEdit"));
                QApplication::setActiveWindow(dialog);
                name->setFocus();
                name->selectAll();
                QTest::keyClicks(name, path); // as a user does: the dialog treats a text put there otherwise
                dialog->accept();
            });
            emit over.list()->itemDoubleClicked(over.list()->topLevelItem(0), 1);
        };
        chooseFile("data/sounds/x-qaz-wm-chimes.wav");
        QCOMPARE(over.assignments(), texts({"0=x-qaz-wm-chimes.wav"}));
        chooseFile("data/sounds/Wav/s/menu-popup.wav");
        QCOMPARE(over.assignments(),
                 QStringList(QLatin1String("0=") + over.path("data/sounds/Wav/s/menu-popup.wav")));
        driver.thenReject();
        over.click("selectSoundButton");
        QCOMPARE(over.assignments().size(), 1);
        QCOMPARE(directories, QStringList({over.path("data/sounds"), over.path("data/sounds")}));
        QCOMPARE(driver.seen().first(), QStringLiteral("Open File|QazFileDialog"));
        QVERIFY(driver.isDone());
    }
};

QTEST_MAIN(TestSoundPage)
#include "tst_soundpage.moc"
