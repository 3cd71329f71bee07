// The real program in processes of its own: start, single instance, signals, loss of the X server.

#include "tests/support/editorprocess.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"

#include <QDirIterator>
#include <QSettings>
#include <QtTest>

#include <csignal>
#include <vector>

namespace {

/// A second X server, which a test may end.
class PrivateServer
{
public:
    PrivateServer()
    {
        // A reset, which the last client's end would start, refuses those who connect meanwhile.
        m_process.start(QStringLiteral("Xvfb"),
                        {QStringLiteral("-displayfd"), QStringLiteral("1"), QStringLiteral("-noreset"),
                         QStringLiteral("-nolisten"), QStringLiteral("tcp"), QStringLiteral("-screen"),
                         QStringLiteral("0"), QStringLiteral("1024x768x24")});
        if (m_process.waitForReadyRead(60000))
            m_display = ':' + m_process.readLine().trimmed();
    }
    ~PrivateServer() { end(); }
    QByteArray display() const { return m_display; }
    void end()
    {
        m_process.kill();
        m_process.waitForFinished();
    }

private:
    QProcess m_process;
    QByteArray m_display;
};

bool isAsking(EditorProcess &editor)
{
    return !EditorProcess::xdotool({QStringLiteral("search"), QStringLiteral("--onlyvisible"),
                                    QStringLiteral("--all"), QStringLiteral("--pid"),
                                    QString::number(editor.process().processId()), QStringLiteral("--name"),
                                    QStringLiteral("Save \\?")})
                .isEmpty();
}

} // namespace

class TestProgram : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void helpPrintsOneLine_data();
    void helpPrintsOneLine();
    void theArgumentNamesTheThemeFile_data();
    void theArgumentNamesTheThemeFile();
    void aSecondStartRaisesTheFirst();
    void ofManyStartsOneRuns();
    void aKilledInstanceBlocksNothing();
    void terminationStoresTheSize_data();
    void terminationStoresTheSize();
    void losingTheServerStoresTheSize_data();
    void losingTheServerStoresTheSize();
    void withoutXItEditsAllTheSame();
    void startAndCloseWriteNothingElse();
    void closingAsksOnlyAfterAnEdit();
    void applyWritesAndAnnouncesOneValue();
    void helpNeverKeepsTheProgramAlive();

private:
    void verifySizeStored();
    void editTheDelay();

    std::unique_ptr<TemporaryHome> m_home;
};

void TestProgram::init()
{
    m_home.reset(); // the old home's environment goes first
    m_home = std::make_unique<TemporaryHome>();
}

/// Finds the Screensaver page by its first letter, Tabs to its delay, and makes it 5 minutes. Other pages
/// are not visited, so that they are not saved.
void TestProgram::editTheDelay()
{
    EditorProcess::press({QStringLiteral("s"), QStringLiteral("Tab"), QStringLiteral("Tab"),
                          QStringLiteral("ctrl+a"), QStringLiteral("5")});
}

void TestProgram::verifySizeStored()
{
    const QSettings stored(m_home->path(QStringLiteral(".config/qaz/qaz-admin-theme.conf")),
                           QSettings::IniFormat);
    QVERIFY2(stored.value(QStringLiteral("width")).toInt() >= 800,
             m_home->read(QStringLiteral(".config/qaz/qaz-admin-theme.conf")).constData());
    QVERIFY(stored.value(QStringLiteral("height")).toInt() > 0);
}

void TestProgram::helpPrintsOneLine_data()
{
    QTest::addColumn<QString>("option");
    QTest::newRow("long") << QStringLiteral("--help");
    QTest::newRow("short") << QStringLiteral("-h");
}

void TestProgram::helpPrintsOneLine()
{
    QFETCH(QString, option);
    const ScopedEnvironment data("QAZ_DATA_DIR", "/nonexistent");
    EditorProcess editor({option, QStringLiteral("further")});
    QVERIFY(editor.waitForEnd());
    QCOMPARE(editor.process().exitCode(), 1);
    QCOMPARE(editor.process().readAllStandardOutput(), QByteArray("Qaz\n"));
}

void TestProgram::theArgumentNamesTheThemeFile_data()
{
    QTest::addColumn<QStringList>("arguments");
    QTest::addColumn<QString>("name");
    const QString usual = QStringLiteral("current.themerc");
    QTest::newRow("none") << QStringList() << usual;
    QTest::newRow("a file") << QStringList{QStringLiteral("mine.themerc")} << QStringLiteral("mine.themerc");
    QTest::newRow("a file with an odd name")
        << QStringList{QStringLiteral("[*] ö.rc")} << QStringLiteral("[*] ö.rc");
    QTest::newRow("Qt takes its own")
        << QStringList{QStringLiteral("-style"), QStringLiteral("fusion"), QStringLiteral("mine.themerc")}
        << QStringLiteral("mine.themerc");
    QTest::newRow("no such file") << QStringList{QStringLiteral("missing.themerc")} << usual;
    QTest::newRow("a directory") << QStringList{QStringLiteral("directory")} << usual;
    QTest::newRow("two files") << QStringList{QStringLiteral("mine.themerc"), QStringLiteral("mine.themerc")}
                               << usual;
    QTest::newRow("help comes second")
        << QStringList{QStringLiteral("mine.themerc"), QStringLiteral("--help")} << usual;
}

void TestProgram::theArgumentNamesTheThemeFile()
{
    QFETCH(QStringList, arguments);
    QFETCH(QString, name);
    m_home->write(QStringLiteral("mine.themerc"), "");
    m_home->write(QStringLiteral("[*] ö.rc"), "");
    m_home->makeDirectory(QStringLiteral("directory"));
    const QString before = QDir::currentPath();
    QDir::setCurrent(m_home->path());
    EditorProcess editor(arguments);
    QDir::setCurrent(before);
    QVERIFY(editor.waitForWindow());
    QCOMPARE(editor.title(), QLatin1String("Qaz Theme Editor - ") + name);
}

void TestProgram::aSecondStartRaisesTheFirst()
{
    EditorProcess first;
    QVERIFY(first.waitForWindow());
    EditorProcess::xdotool({QStringLiteral("search"), QStringLiteral("--name"),
                            QStringLiteral("Qaz Theme Editor"), QStringLiteral("windowunmap"),
                            QStringLiteral("--sync")});
    EditorProcess second({QStringLiteral("--help")});
    QVERIFY(second.waitForEnd());
    QCOMPARE(second.process().exitCode(), 0);
    QCOMPARE(second.process().readAllStandardOutput(), QByteArray());
    const QDir runtime(QFile::decodeName(qgetenv("XDG_RUNTIME_DIR")));
    for (const QFileInfo &file :
         runtime.entryInfoList({QStringLiteral("qtsingleapp-*")}, QDir::AllEntries | QDir::System))
        QVERIFY2(!(file.permissions() & (QFile::ReadGroup | QFile::ReadOther)), qPrintable(file.filePath()));

    PrivateServer server;
    const ScopedEnvironment display("DISPLAY", server.display());
    EditorProcess elsewhere;
    QVERIFY2(elsewhere.waitForWindow(), "another display has an instance of its own");
    QCOMPARE(first.process().state(), QProcess::Running);
}

void TestProgram::ofManyStartsOneRuns()
{
    constexpr int starts = 30;
    std::vector<std::unique_ptr<EditorProcess>> editors;
    for (int i = 0; i < starts; ++i)
        editors.push_back(std::make_unique<EditorProcess>());
    const auto running = [&editors] {
        int count = 0;
        for (const auto &editor : editors) {
            editor->process().waitForFinished(0);
            count += editor->process().state() == QProcess::NotRunning ? 0 : 1;
        }
        return count;
    };
    QTRY_COMPARE_WITH_TIMEOUT(running(), 1, 120000);
    for (const auto &editor : editors) {
        if (editor->process().state() == QProcess::NotRunning)
            QCOMPARE(editor->process().exitCode(), 0);
        else
            QVERIFY(editor->waitForWindow());
    }
}

void TestProgram::aKilledInstanceBlocksNothing()
{
    for (int i = 0; i < 2; ++i) {
        EditorProcess editor;
        QVERIFY(editor.waitForWindow());
        editor.process().kill();
        QVERIFY(editor.waitForEnd());
    }
    EditorProcess editor;
    QVERIFY(editor.waitForWindow());
}

void TestProgram::terminationStoresTheSize_data()
{
    QTest::addColumn<bool>("inModalDialog");
    QTest::newRow("in the event loop") << false;
    QTest::newRow("in a modal dialog") << true;
}

void TestProgram::terminationStoresTheSize()
{
    QFETCH(bool, inModalDialog);
    EditorProcess editor;
    QVERIFY(editor.waitForWindow());
    if (inModalDialog) {
        editTheDelay();
        EditorProcess::press({QStringLiteral("Escape")});
        QVERIFY(editor.waitForWindow(QStringLiteral("Save \\?")));
    }
    editor.process().terminate();
    QVERIFY(editor.waitForEnd());
    QCOMPARE(editor.process().exitStatus(), QProcess::NormalExit);
    QCOMPARE(editor.process().exitCode(), 0);
    verifySizeStored();
    QVERIFY(!m_home->exists(QStringLiteral(".config/qaz/current.themerc")));
}

void TestProgram::losingTheServerStoresTheSize_data()
{
    terminationStoresTheSize_data();
}

void TestProgram::losingTheServerStoresTheSize()
{
    QFETCH(bool, inModalDialog);
    PrivateServer server;
    const ScopedEnvironment display("DISPLAY", server.display());
    EditorProcess editor;
    QVERIFY2(editor.waitForWindow(), qPrintable(editor.errors()));
    if (inModalDialog) {
        editTheDelay();
        EditorProcess::press({QStringLiteral("Escape")});
        QVERIFY(editor.waitForWindow(QStringLiteral("Save \\?")));
    }
    QVERIFY(!m_home->read(QStringLiteral(".config/qaz/qaz-admin-theme.conf")).contains("width"));
    server.end();
    QVERIFY(editor.waitForEnd());
    QCOMPARE(editor.process().exitStatus(), QProcess::NormalExit);
    verifySizeStored();
}

void TestProgram::withoutXItEditsAllTheSame()
{
    const ScopedEnvironment platform("QT_QPA_PLATFORM", "offscreen");
    EditorProcess editor;
    const auto settled = [&editor] { return editor.process().state() == QProcess::Running; };
    QVERIFY(settled());
    QTRY_VERIFY_WITH_TIMEOUT(m_home->exists(QStringLiteral(".config/qaz")), 60000);
    // A second start finds it only when its event loop runs.
    EditorProcess second;
    QVERIFY(second.waitForEnd());
    QCOMPARE(second.process().exitCode(), 0);
    QVERIFY(settled());
    editor.process().terminate();
    QVERIFY(editor.waitForEnd());
    QCOMPARE(editor.process().exitStatus(), QProcess::NormalExit);
}

void TestProgram::startAndCloseWriteNothingElse()
{
    const QString theme = m_home->write(QStringLiteral("t.themerc"), "# mine\nScreenSaverDelay=90\n");
    const QString before = m_home->fingerprint();
    EditorProcess editor({theme});
    QVERIFY(editor.waitForWindow());
    EditorProcess::press({QStringLiteral("Escape")});
    QVERIFY(editor.waitForEnd());
    QCOMPARE(editor.process().exitCode(), 0);
    const QString own = m_home->path(QStringLiteral(".config"));
    const QString cache = m_home->path(QStringLiteral(".cache"));
    QStringList after = m_home->fingerprint().split(QLatin1Char('\n'));
    after.erase(
        std::remove_if(after.begin(), after.end(),
                       [&](const QString &line) { return line.startsWith(own) || line.startsWith(cache); }),
        after.end());
    QCOMPARE(after.join(QLatin1Char('\n')), before);
    QStringList written;
    for (QDirIterator files(own, QDir::Files | QDir::Hidden, QDirIterator::Subdirectories); files.hasNext();)
        written.append(QDir(own).relativeFilePath(files.next()));
    QCOMPARE(written, QStringList{QStringLiteral("qaz/qaz-admin-theme.conf")});
}

void TestProgram::closingAsksOnlyAfterAnEdit()
{
    const QString theme = m_home->write(QStringLiteral("t.themerc"), "ScreenSaverDelay=600\n");
    EditorProcess editor({theme});
    QVERIFY(editor.waitForWindow());
    editTheDelay();
    // Escape in the question is its Cancel.
    for (int i = 0; i < 2; ++i) {
        EditorProcess::press({QStringLiteral("Escape")});
        QVERIFY(editor.waitForWindow(QStringLiteral("Save \\?")));
        EditorProcess::press({QStringLiteral("Escape")});
        QTRY_VERIFY_WITH_TIMEOUT(!isAsking(editor), 60000);
        QVERIFY(editor.waitForWindow());
        QCOMPARE(editor.title(), QStringLiteral("Qaz Theme Editor - t.themerc*"));
    }
    QCOMPARE(m_home->read(QStringLiteral("t.themerc")), QByteArray("ScreenSaverDelay=600\n"));
    // Return presses OK, which saves and closes without a question.
    EditorProcess::press({QStringLiteral("Return")});
    QVERIFY(editor.waitForEnd());
    QCOMPARE(editor.process().exitCode(), 0);
    QCOMPARE(m_home->read(QStringLiteral("t.themerc")), QByteArray("ScreenSaverDelay=300\n"));
}

void TestProgram::applyWritesAndAnnouncesOneValue()
{
    const QByteArray text
        = "# mine\n\nunknown line\nScreenSaverDelay=600\n; more\n[Group]\nScreenSaverDelay=1\n";
    const QString theme = m_home->write(QStringLiteral("t.themerc"), text);
    WmListener listener;
    EditorProcess editor({theme});
    QVERIFY(editor.waitForWindow());
    editTheDelay();
    QTRY_COMPARE_WITH_TIMEOUT(editor.title(), QStringLiteral("Qaz Theme Editor - t.themerc*"), 60000);
    // Backwards from the delay: its box, the page list, then around to the last buttons.
    const QString back = QStringLiteral("shift+Tab");
    EditorProcess::press({back, back, back, back, QStringLiteral("space")});
    const QStringList expected{QStringLiteral("QAZWM_UPDATE_VAL ScreenSaverDelay 300")};
    QTRY_COMPARE_WITH_TIMEOUT(listener.commands(), expected, 60000);
    QTRY_COMPARE_WITH_TIMEOUT(editor.title(), QStringLiteral("Qaz Theme Editor - t.themerc"), 60000);
    QCOMPARE(m_home->read(QStringLiteral("t.themerc")), QByteArray(text).replace("=600", "=300"));
}

void TestProgram::helpNeverKeepsTheProgramAlive()
{
    EditorProcess editor;
    QVERIFY(editor.waitForWindow());
    EditorProcess::press({QStringLiteral("F1")});
    QVERIFY(editor.waitForWindow(QStringLiteral("Help")));
    QVERIFY(editor.waitForWindow(QStringLiteral("Qaz Theme Editor - ")));
    EditorProcess::press({QStringLiteral("Escape")});
    QVERIFY(editor.waitForEnd());
    QCOMPARE(editor.process().exitCode(), 0);
}

QTEST_MAIN(TestProgram)
#include "tst_program.moc"
