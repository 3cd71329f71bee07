#include "bench/figures.h"
#include "pages/effects/effectpage.h"
#include "platform/findinps.h"
#include "platform/qazsettings.h"

#include "ui_effectform.h"

#include <QApplication>
#include <QElapsedTimer>
#include <QFile>
#include <QTemporaryDir>

#include <csignal>
#include <cstdlib>

#include <sys/prctl.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

constexpr int processCount = 5000;
constexpr int scanRounds = 30;
constexpr double scanLimit = 90;

constexpr int showRounds = 40;
constexpr double showLimit = 1.5;

double milliseconds(const QElapsedTimer &timer)
{
    return double(timer.nsecsElapsed()) / 1e6;
}

/// Child processes that idle when the constructor returns, until the end of the scope.
class Crowd
{
public:
    explicit Crowd(int size)
    {
        const pid_t parent = ::getpid();
        int ready[2];
        if (::pipe(ready) != 0)
            return;
        for (int i = 0; i < size; ++i) {
            const pid_t child = ::fork();
            if (child == 0) {
                ::prctl(PR_SET_PDEATHSIG, SIGKILL);
                ::close(ready[0]);
                ::close(ready[1]);
                while (::getppid() == parent)
                    ::pause();
                ::_exit(0);
            }
            if (child < 0) {
                std::perror("bench/effects: fork");
                break;
            }
            m_processes.push_back(child);
        }
        // Every child closes the pipe as its last act before it idles.
        ::close(ready[1]);
        char byte = 0;
        while (::read(ready[0], &byte, 1) > 0) {}
        ::close(ready[0]);
    }
    ~Crowd()
    {
        for (const pid_t process : m_processes)
            ::kill(process, SIGKILL);
        for (const pid_t process : m_processes)
            ::waitpid(process, nullptr, 0);
    }
    Crowd(const Crowd &) = delete;
    Crowd &operator=(const Crowd &) = delete;

    int size() const { return int(m_processes.size()); }

private:
    std::vector<pid_t> m_processes;
};

bool measureProcessScan()
{
    const Crowd crowd(processCount);
    if (crowd.size() < processCount)
        return false;
    std::vector<double> times;
    for (int round = 0; round < scanRounds; ++round) {
        QElapsedTimer timer;
        timer.start();
        if (findInPS("a manager that nobody has"))
            return false;
        times.push_back(milliseconds(timer));
    }
    return report("findInPS over 5,000 processes", median(times), scanLimit, "ms");
}

/// The milliseconds that \a page takes from \a load to its first painted picture.
template<typename Load>
double firstShow(QWidget *page, Load load)
{
    page->resize(860, 490);
    QElapsedTimer timer;
    timer.start();
    load();
    page->show();
    QCoreApplication::processEvents();
    page->repaint();
    const double time = milliseconds(timer);
    page->hide();
    return time;
}

double showPage(const QString &themeFile)
{
    EffectPage page;
    return firstShow(&page, [&page, &themeFile] {
        QazSettings store(themeFile);
        store.sync(true);
        page.loadValues(&store);
    });
}

double showForm()
{
    QWidget page;
    Ui::EffectForm form;
    form.setupUi(&page);
    return firstShow(&page, [] {});
}

QByteArray compton(const QTemporaryDir &home)
{
    // A manager that is found and whose file is the slower one to read.
    const QString program = home.filePath(QStringLiteral("compton"));
    QFile::copy(QStringLiteral("/bin/sleep"), program);
    QFile file(home.filePath(QStringLiteral("compton.conf")));
    if (file.open(QIODevice::WriteOnly)) {
        for (int i = 0; i < 100; ++i)
            file.write("setting-" + QByteArray::number(i) + " = [ 1.5, 2.5 ]; # one of many\n");
        file.write("shadow = true;\n");
    }
    return QFile::encodeName(program);
}

bool measureFirstShow()
{
    const QTemporaryDir home;
    for (const char *variable : {"HOME", "XDG_CONFIG_HOME"})
        qputenv(variable, QFile::encodeName(home.path()));
    QFile theme(home.filePath(QStringLiteral("a.themerc")));
    if (!theme.open(QIODevice::WriteOnly))
        return false;
    theme.write("CompositeManager=" + compton(home) + "\nUseComposite=false\nPagingBeltSize=3\n");
    theme.close();

    std::vector<double> pageTimes;
    std::vector<double> formTimes;
    for (int round = -2; round < showRounds; ++round) {
        const double form = showForm();
        const double page = showPage(theme.fileName());
        if (round < 0) // warms fonts and style
            continue;
        formTimes.push_back(form);
        pageTimes.push_back(page);
    }
    std::printf("first show: page %.2f ms, form alone %.2f ms\n", median(pageTimes), median(formTimes));
    return report("first show, page over form", median(pageTimes) / median(formTimes), showLimit, "");
}

} // namespace

/// The process scan among 5,000 processes, and the page's first show against its bare form.
int main(int argc, char **argv)
{
    const bool scanKept = measureProcessScan(); // while this process is small to fork
    const QApplication application(argc, argv);
    const bool showKept = measureFirstShow();
    return scanKept && showKept ? 0 : 1;
}
