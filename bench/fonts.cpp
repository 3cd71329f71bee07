#include <QApplication>
#include <QDir>
#include <QElapsedTimer>
#include <QFontDatabase>
#include <QFontInfo>
#include <QProcess>
#include <QStackedWidget>
#include <QTemporaryDir>
#include <QX11Info>

#include "bench/figures.h"
#include "bench/fontfaces.h"
#include "fonts/fontpage.h"
#include "platform/qazinit.h"
#include "platform/qazsettings.h"

#include <X11/Xlib.h>

namespace {

constexpr int rounds = 9;
constexpr int faces = 2000;
constexpr double limit = 1.3;

double elapsedMs(const QElapsedTimer &timer)
{
    return double(timer.nsecsElapsed()) / 1e6;
}

void finishPainting()
{
    QCoreApplication::processEvents();
    XSync(QX11Info::display(), False);
}

/// Prints what the first query of the font database costs, and what the first show of the page costs after it, until
/// it is painted. As in the editor, the window is there before.
int measureOnce(int &argc, char **argv)
{
    qputenv("QT_XCB_GL_INTEGRATION", "none");
    QApplication application(argc, argv);
    qazInit("benchmark", "benchmark");
    QElapsedTimer timer;
    timer.start();
    const QString family = QFontInfo(QApplication::font()).family();
    const double query = elapsedMs(timer);

    QStackedWidget window;
    window.addWidget(new QWidget(&window));
    FontPage page(&window);
    window.addWidget(&page);
    window.resize(640, 480);
    window.show();
    finishPainting();

    timer.restart();
    QazSettings store(QDir::homePath() + QLatin1String("/bench.themerc"));
    store.sync(true);
    page.loadValues(&store);
    window.setCurrentIndex(1);
    finishPainting();
    const double firstShow = elapsedMs(timer);
    std::printf("%d %f %f\n", family.isEmpty() ? 0 : QFontDatabase().families().size(), query, firstShow);
    window.removeWidget(&page);
    return 0;
}

/// A fontconfig configuration of the installed fonts and those in \a directory, with a cache of its own.
bool writeConfiguration(const QString &directory, const QString &file)
{
    QFile configuration(file);
    return configuration.open(QIODevice::WriteOnly)
           && configuration.write("<?xml version=\"1.0\"?>\n<fontconfig><dir>" + directory.toUtf8()
                                  + "</dir><dir>/usr/share/fonts</dir><cachedir>" + directory.toUtf8()
                                  + "-cache</cachedir></fontconfig>\n")
                  > 0;
}

/// The three numbers of a process of its own: Qt fills its database once.
QList<QByteArray> measured(const QString &self)
{
    QProcess process;
    process.start(self, {QStringLiteral("once")});
    process.waitForFinished(-1);
    return process.readAllStandardOutput().trimmed().split(' ');
}

} // namespace

/// What the first show of the Fonts page costs beside Qt's own font database, with many fonts installed. Takes
/// the font file to make them from, where there is no other.
int main(int argc, char **argv)
{
    if (argc == 2 && QByteArray(argv[1]) == "once")
        return measureOnce(argc, argv);

    const QCoreApplication application(argc, argv);
    const QString source = argc == 2 ? QFile::decodeName(argv[1])
                                     : QStringLiteral("/usr/share/fonts/truetype/dejavu/DejaVuSansMono.ttf");
    const QTemporaryDir directory;
    const QString configuration = directory.filePath(QStringLiteral("fonts.conf"));
    if (!writeFontFaces(source, directory.path(), faces)
        || !writeConfiguration(directory.path(), configuration)) {
        std::printf("can't make the fonts from %s\n", qPrintable(source));
        return 1;
    }
    qputenv("FONTCONFIG_FILE", QFile::encodeName(configuration));
    const QString self = QCoreApplication::applicationFilePath();
    measured(self); // fills fontconfig's cache
    std::vector<double> ratios;
    int families = 0;
    for (int round = 0; round < rounds; ++round) {
        const QList<QByteArray> numbers = measured(self);
        families = numbers.value(0).toInt();
        const double query = numbers.value(1).toDouble();
        const double page = numbers.value(2).toDouble();
        std::printf("first query %7.2f ms, first show after it %7.2f ms\n", query, page);
        ratios.push_back((query + page) / query);
    }
    std::printf("medians of %d rounds, %d families\n", rounds, families);
    const bool kept = report("first show of the page to first query", median(ratios), limit, "x");
    return kept && families >= faces ? 0 : 1;
}
