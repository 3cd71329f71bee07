#include <QByteArray>
#include <QDir>
#include <QFile>

#include <cerrno>
#include <chrono>
#include <csignal>
#include <cstdio>
#include <cstdlib>
#include <map>
#include <optional>
#include <string>
#include <vector>

#include <poll.h>
#include <spawn.h>
#include <sys/wait.h>
#include <unistd.h>

#include "bench/figures.h"
#include "bench/photograph.h"

#include <X11/Xlib.h>
#include <X11/extensions/Xdamage.h>

namespace {

constexpr int rounds = 31;
constexpr double memoryLimit = 0.5;

using Clock = std::chrono::steady_clock;

struct Start {
    double milliseconds;
    double peakMegabytes;
};

/// Sees from outside when a program's first window is mapped and painted.
class WindowWatch
{
public:
    WindowWatch()
        : m_display(XOpenDisplay(nullptr))
    {
        if (!m_display || !XDamageQueryExtension(m_display, &m_damageEvent, &m_damageError)) {
            std::fputs("bench/startup needs an X server with the DAMAGE extension\n", stderr);
            std::exit(2);
        }
        // Windows of a program that has just ended may be gone before a request for them arrives.
        XSetErrorHandler([](Display *, XErrorEvent *) { return 0; });
        XSelectInput(m_display, DefaultRootWindow(m_display), SubstructureNotifyMask);
        XSync(m_display, False);
    }

    /// When the first top-level window was both mapped and painted over half of its area; empty after 30 s.
    std::optional<Clock::time_point> waitForPaintedWindow()
    {
        m_windows.clear();
        const auto deadline = Clock::now() + std::chrono::seconds(30);
        while (Clock::now() < deadline) {
            while (XPending(m_display)) {
                XEvent event;
                XNextEvent(m_display, &event);
                if (isFirstPaint(event))
                    return Clock::now();
            }
            pollfd connection{ConnectionNumber(m_display), POLLIN, 0};
            poll(&connection, 1, 1000);
        }
        return {};
    }

    /// Takes the events of windows that the ending program leaves.
    void forget() { XSync(m_display, True); }

private:
    struct Seen {
        bool mapped = false;
        long painted = 0;
    };

    bool isFirstPaint(const XEvent &event)
    {
        if (event.type == CreateNotify) {
            // The damage must exist before the window is mapped: the server reports all of a visible one.
            XDamageCreate(m_display, event.xcreatewindow.window, XDamageReportRawRectangles);
            XFlush(m_display);
            m_windows[event.xcreatewindow.window] = {};
            return false;
        }
        if (event.type == MapNotify) {
            m_windows[event.xmap.window].mapped = true;
            return false;
        }
        if (event.type != m_damageEvent + XDamageNotify)
            return false;
        const auto &damage = reinterpret_cast<const XDamageNotifyEvent &>(event);
        Seen &seen = m_windows[damage.drawable];
        seen.painted += long(damage.area.width) * damage.area.height;
        return seen.mapped && seen.painted * 2 >= long(damage.geometry.width) * damage.geometry.height;
    }

    Display *m_display;
    int m_damageEvent = 0;
    int m_damageError = 0;
    std::map<Window, Seen> m_windows;
};

QByteArray readProc(pid_t process, const char *name)
{
    QFile file(QStringLiteral("/proc/%1/%2").arg(process).arg(QLatin1String(name)));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

long cpuTicks(pid_t process)
{
    // The name in parentheses may hold blanks; user and system time are the 12th and 13th field after it.
    const QByteArray stat = readProc(process, "stat");
    const QList<QByteArray> fields = stat.mid(stat.lastIndexOf(')') + 2).split(' ');
    return fields.size() > 12 ? fields[11].toLong() + fields[12].toLong() : 0;
}

/// Waits until the process has nothing left to do, so that work put off until after the first paint counts too.
void waitUntilIdle(pid_t process)
{
    long before = -1;
    for (long now = cpuTicks(process); now != before; now = cpuTicks(process)) {
        before = now;
        poll(nullptr, 0, 150);
    }
}

double peakMegabytes(pid_t process)
{
    for (const QByteArray &line : readProc(process, "status").split('\n')) {
        if (line.startsWith("VmHWM:"))
            return line.mid(6).trimmed().split(' ').first().toDouble() / 1024;
    }
    return 0;
}

Start measure(const std::vector<std::string> &command, WindowWatch &watch)
{
    watch.forget();
    const std::string &program = command.front();
    std::vector<char *> arguments;
    arguments.reserve(command.size() + 1);
    for (const std::string &argument : command)
        arguments.push_back(const_cast<char *>(argument.c_str()));
    arguments.push_back(nullptr);
    pid_t process = 0;
    const auto begin = Clock::now();
    if (const int error = posix_spawn(&process, program.c_str(), nullptr, nullptr, arguments.data(),
                                      environ)) {
        errno = error;
        std::perror(program.c_str());
        std::exit(2);
    }
    const auto painted = watch.waitForPaintedWindow();
    if (!painted) {
        std::fprintf(stderr, "%s showed no window\n", program.c_str());
        kill(process, SIGKILL);
        std::exit(2);
    }
    waitUntilIdle(process);
    const double memory = peakMegabytes(process);
    kill(process, SIGTERM);
    waitpid(process, nullptr, 0);
    return {std::chrono::duration<double, std::milli>(*painted - begin).count(), memory};
}

/// Gives the (temporary) home a theme file with a large wallpaper.
bool writeLargeWallpaper(const QString &home)
{
    const QString picture = home + QLatin1String("/photograph.jpg");
    QFile theme(home + QLatin1String("/large.themerc"));
    if (!photograph().save(picture, "JPG", 90) || !theme.open(QIODevice::WriteOnly))
        return false;
    return theme.write("WallPaper=" + QFile::encodeName(picture) + '\n') > 0;
}

struct Figures {
    const char *what;
    std::vector<double> times, memory;
    double timeLimit; // over the floor's
};

void take(Figures *figures, const Start &start)
{
    figures->times.push_back(start.milliseconds);
    figures->memory.push_back(start.peakMegabytes);
}

} // namespace

/// From exec to the first mapped and painted window: the editor against bench/floor, in alternating rounds. It is started
/// with an empty cache, again, and with a large wallpaper that it has shown before.
int main(int argc, char **argv)
{
    const QString home = QFile::decodeName(qgetenv("HOME"));
    if (argc != 3 || !writeLargeWallpaper(home)) {
        std::fprintf(stderr, "usage: %s EDITOR FLOOR\n", argv[0]);
        return 2;
    }
    const std::string large = QFile::encodeName(home + QLatin1String("/large.themerc")).toStdString();
    WindowWatch watch;
    Figures floor = {"floor", {}, {}, 1}, first = {"first start", {}, {}, 0.8},
            later = {"later start", {}, {}, 0.62}, wallpaper = {"later start, 4K wallpaper", {}, {}, 0.62};
    for (int round = 0; round < rounds; ++round) {
        take(&floor, measure({argv[2]}, watch));
        measure({argv[1], large}, watch);
        take(&wallpaper, measure({argv[1], large}, watch));
        QDir(home + QLatin1String("/.cache")).removeRecursively();
        take(&first, measure({argv[1]}, watch));
        take(&later, measure({argv[1]}, watch));
    }
    bool kept = true;
    for (const Figures *figures : {&floor, &first, &later, &wallpaper})
        std::printf("%-28s %8.1f ms %8.1f MB\n", figures->what, median(figures->times),
                    median(figures->memory));
    for (const Figures *figures : {&first, &later, &wallpaper}) {
        kept &= report(figures->what, median(figures->times) / median(floor.times), figures->timeLimit, "");
        kept &= report("  peak memory", median(figures->memory) / median(floor.memory), memoryLimit, "");
    }
    return kept ? 0 : 1;
}
