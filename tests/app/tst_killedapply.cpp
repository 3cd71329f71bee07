#include "tests/app/dialogtest.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/modaldriver.h"
#include "tests/support/steps.h"

#include <csignal>

#include <poll.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

// Copies of a process can't share its connection to an X server.
const ScopedEnvironment offscreen("QT_QPA_PLATFORM", "offscreen");

struct File {
    QString path; // below the home
    QByteArray before;
    QByteArray after;
};

} // namespace

/// The program is killed while it applies: every file is whole, in its old or its new form.
class TestKilledApply : public DialogTest
{
    Q_OBJECT

private slots:
    void everyFileIsOldOrNew()
    {
        FakePrograms programs;
        for (const char *name : {"compton", "xrdb"})
            programs.add(QLatin1String(name));
        for (const File &file : qAsConst(m_files))
            m_home->write(file.path, file.before);
        open();
        onEachPage([](const QWidget *) {});
        for (File &file : m_files)
            file.before = m_home->read(file.path); // loading notes there that no compositing manager runs
        // On each page whose settings go to a file of its own.
        for (const QString &edit :
             {"minutesToStartSpinBox 5"_s, "shadowCheckBox"_s, "dpiSpinBox 120"_s, "press aaComboBox Home"_s,
              "wallpaperForCurrDesktopCheckBox"_s, "wallpaperLineEdit #204060"_s})
            operate(m_dialog.get(), edit);

        int status = -1;
        QElapsedTimer timer;
        for (int i = 0; i < 2; ++i) { // the second time with everything in memory
            timer.start();
            QVERIFY(::waitpid(applyInAnotherProcess(), &status, 0) > 0);
            QCOMPARE(status, 0);
        }
        const int duration = int(timer.elapsed()) + 1;
        for (File &file : m_files) {
            file.after = m_home->read(file.path);
            QVERIFY2(file.after != file.before, qPrintable(file.path)); // else it would prove nothing
        }

        QRandomGenerator random(1);
        constexpr int rounds = 150;
        int finished = 0;
        for (int round = 0; round < rounds; ++round) {
            const pid_t process = applyInAnotherProcess();
            QVERIFY(process > 0);
            ::poll(nullptr, 0, random.bounded(duration * 5 / 4)); // some rounds reach the end
            ::kill(-process, SIGKILL);
            ::kill(process, SIGKILL);
            QVERIFY(::waitpid(process, &status, 0) > 0);
            finished += WIFEXITED(status) ? 1 : 0;
            for (const File &file : m_files) {
                const QByteArray content = m_home->read(file.path);
                QVERIFY2(content == file.before || content == file.after, content.right(300).constData());
            }
        }
        QVERIFY(finished < rounds);
    }

private:
    /// Puts the files back. A copy of this process presses Apply and ends.
    pid_t applyInAnotherProcess()
    {
        for (const File &file : qAsConst(m_files))
            m_home->write(file.path, file.before);
        const pid_t process = ::fork();
        if (process != 0)
            return process;
        ::setpgid(0, 0);
        ModalDriver driver;
        driver.thenAnswer(QMessageBox::Ok); // "Some changes such as anti-aliasing or DPI ..."
        button(QDialogButtonBox::Apply)->click();
        ::_exit(0);
    }
    /// Remarks that make a file long enough to be caught half written.
    static QByteArray remarks(const char *line) { return QByteArray(line).repeated(10000); }

    // clang-format off
    QVector<File> m_files = {
        {"t"_s,
         remarks("# mine\n") + "ScreenSaverDelay=600\nWallPaper=qaz-lagoon\nCompositeManager=compton\n[Other]\nx=1\n", {}},
        {".config/fontconfig/fonts.conf"_s,
         "<?xml version=\"1.0\"?>\n<!DOCTYPE fontconfig SYSTEM \"fonts.dtd\">\n<fontconfig>\n <dir>/fonts</dir>\n"
             + remarks(" <!-- mine -->\n") + "</fontconfig>\n", {}},
        {".config/compton.conf"_s, remarks("# mine\n") + "shadow = false;\nfade = true;\n", {}},
        {".Xresources"_s, remarks("! mine\n") + "Xft.dpi: 96\nother: 1\n", {}},
        {"Desktops/Desktop1/.directory"_s,
         "[Desktop Entry]\nName=Desk\nX-QAZ-WallPaper=\"/a.png\"\n" + remarks("# mine\n"), {}}};
    // clang-format on
};

QTEST_MAIN(TestKilledApply)
#include "tst_killedapply.moc"
