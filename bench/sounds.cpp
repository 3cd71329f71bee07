#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QMap>
#include <QProcess>
#include <QRegularExpression>
#include <QTemporaryDir>
#include <QTemporaryFile>

#include "bench/figures.h"
#include "pages/sounds/soundpage.h"
#include "platform/qazsettings.h"
#include "settings/soundassignments.h"

#include <unistd.h>

namespace {

constexpr int rounds = 40;
constexpr int themeCount = 100;
constexpr double showLimit = 1.5;
constexpr double listLimit = 1;
constexpr char choicePhase[] = "/qaz-bench-choice";
constexpr char endPhase[] = "/qaz-bench-end";

void write(const QString &path, const QByteArray &content)
{
    QDir().mkpath(path.left(path.lastIndexOf(QLatin1Char('/'))));
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("Can't write %s", qPrintable(path));
}

/// Complete themes that inherit from the one before, below the XDG data directory \a data.
void makeThemes(const QString &data, int count)
{
    for (int i = 0; i < count; ++i) {
        const QString theme = QStringLiteral("%1/sounds/theme-%2").arg(data).arg(i, 3, 10, QLatin1Char('0'));
        write(theme + QLatin1String("/index.theme"),
              "[Sound Theme]\nName=A theme\nName[de]=Ein Thema\nDirectories=stereo,surround\nHidden=false\n"
              "Inherits=theme-"
                  + QByteArray::number(i - 1).rightJustified(3, '0')
                  + "\n[stereo]\nOutputProfile=stereo\n[surround]\nOutputProfile=5.1\n");
        for (const SoundEvent &event : soundEvents)
            write(theme + QLatin1String("/stereo/") + QLatin1String(event.themeSound) + QLatin1String(".wav"),
                  "x");
    }
}

void load(SoundPage &page)
{
    QazSettings store(QDir::homePath() + QLatin1String("/bench.themerc"));
    store.sync(true);
    page.loadValues(&store);
}

/// The milliseconds from the load of a new page to its first painted picture.
double firstShow(const QString &data)
{
    qputenv("XDG_DATA_HOME", QFile::encodeName(data));
    SoundPage page;
    page.resize(640, 560);
    QElapsedTimer timer;
    timer.start();
    load(page);
    page.show();
    QCoreApplication::processEvents();
    page.repaint();
    return double(timer.nsecsElapsed()) / 1e6;
}

bool measureFirstShow(const QString &none, const QString &many)
{
    firstShow(many);
    std::vector<double> without;
    std::vector<double> with;
    for (int round = 0; round < rounds; ++round) {
        without.push_back(firstShow(none));
        with.push_back(firstShow(many));
    }
    std::printf("medians of %d alternating rounds: %.2f ms without themes, %.2f ms with %d\n", rounds,
                median(without), median(with), themeCount);
    return report("first show with themes / without", median(with) / median(without), showLimit, "x");
}

/// Tells strace's record that a phase begins.
void beginPhase(const char *name)
{
    [[maybe_unused]] const int missing = ::access(name, F_OK);
}

/// The traced side: chooses the theme with the most ancestors.
int chooseTheme()
{
    SoundPage page;
    load(page);
    auto *themes = page.findChild<QComboBox *>(QStringLiteral("soundThemeCombo"));
    themes->setCurrentIndex(themes->count() - 1);
    QElapsedTimer timer;
    timer.start();
    beginPhase(choicePhase);
    page.themeSelected(themes->currentIndex());
    beginPhase(endPhase);
    std::printf("choosing theme %s took %.2f ms, traced\n", qPrintable(themes->currentText()),
                double(timer.nsecsElapsed()) / 1e6);
    return 0;
}

/// Counts how often a choice of a theme opens each directory to list it.
bool countListings(const QString &self, const QString &data)
{
    qputenv("XDG_DATA_HOME", QFile::encodeName(data));
    QTemporaryFile record;
    if (!record.open())
        return false;
    QProcess::execute(QStringLiteral("strace"),
                      {QStringLiteral("-f"), QStringLiteral("-e"), QStringLiteral("trace=%file"),
                       QStringLiteral("-o"), record.fileName(), self, QStringLiteral("choose")});
    const QString text = QString::fromLocal8Bit(record.readAll());
    const int begin = text.indexOf(QLatin1String(choicePhase));
    const int end = text.indexOf(QLatin1String(endPhase), begin);
    static const QRegularExpression listing(
        QStringLiteral("openat\\(AT_FDCWD, \"([^\"]+)\", [^)]*O_DIRECTORY"));
    QMap<QString, int> listed;
    auto matches = listing.globalMatch(text.mid(begin, end - begin));
    while (matches.hasNext())
        ++listed[matches.next().captured(1)];
    int most = 0;
    for (auto directory = listed.cbegin(); directory != listed.cend(); ++directory) {
        std::printf("  %s listed %d time(s)\n", qPrintable(directory.key()), directory.value());
        most = std::max(most, directory.value());
    }
    return begin >= 0 && !listed.isEmpty() && report("listings of one directory", most, listLimit, "");
}

} // namespace

/// What installed sound themes cost. With the argument "choose": the traced side of that.
int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    if (argc == 2)
        return chooseTheme();
    const QTemporaryDir home;
    for (const char *variable : {"HOME", "XDG_CONFIG_HOME", "XDG_DATA_DIRS", "QAZ_DATA_DIR"})
        qputenv(variable, QFile::encodeName(home.path()));
    const QString none = home.filePath(QStringLiteral("none"));
    const QString many = home.filePath(QStringLiteral("many"));
    makeThemes(many, themeCount);
    const bool showKept = measureFirstShow(none, many);
    const bool listKept = countListings(QCoreApplication::applicationFilePath(), many);
    return showKept && listKept ? 0 : 1;
}
