#include <QApplication>
#include <QComboBox>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QProcess>
#include <QTemporaryDir>

#include "bench/figures.h"
#include "pages/theme/themepage.h"
#include "platform/qazsettings.h"

#include <cstring>

#include <X11/Xcursor/Xcursor.h>

namespace {

constexpr int defaultCount = 400;
constexpr int rounds = 7;
constexpr double timeLimit = 2.5;  // times the floor
constexpr double memoryLimit = 20; // MB at 400 themes of each kind
constexpr int cursorSize = 24;
constexpr int iconSize = 32;

constexpr const char *cursorNames[] = {"left_ptr", "watch", "xterm"};
constexpr const char *placeNames[] = {"user-home", "user-trash", "user-desktop"};

struct Xpm {
    const char *name;
    int width;
    int height;
};
constexpr Xpm decorImages[] = {{"titleAT", 16, 20},   {"frameAT", 16, 4},    {"frameATL", 8, 24},
                               {"frameATR", 8, 24},   {"frameAL", 4, 16},    {"frameAR", 4, 16},
                               {"minimizeA", 18, 40}, {"maximizeA", 18, 40}, {"closeA", 18, 40}};

/// A picture of its own for each \a seed, shaded like a drawn one: nothing in it can be shared.
QImage picture(int size, int seed)
{
    QImage image(size, size, QImage::Format_ARGB32_Premultiplied);
    image.fill(Qt::transparent);
    for (int y = 0; y < size; ++y) {
        for (int x = 0; x < size; ++x) {
            if ((x - size / 2) * (x - size / 2) + (y - size / 2) * (y - size / 2) < size * size / 5)
                image.setPixel(x, y, qRgb((seed * 37 + x * 3) % 256, (seed * 11 + y * 3) % 256, seed % 256));
        }
    }
    return image;
}

void writeFile(const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("Can't write %s", qPrintable(path));
}

void writeCursor(const QString &path, int seed)
{
    const QImage pixels = picture(cursorSize, seed);
    XcursorImages *images = XcursorImagesCreate(1);
    images->images[0] = XcursorImageCreate(cursorSize, cursorSize);
    images->nimage = 1;
    images->images[0]->size = cursorSize;
    images->images[0]->xhot = images->images[0]->yhot = images->images[0]->delay = 0;
    std::memcpy(images->images[0]->pixels, pixels.constBits(), std::size_t(pixels.sizeInBytes()));
    if (!XcursorFilenameSaveImages(QFile::encodeName(path).constData(), images))
        qFatal("Can't write %s", qPrintable(path));
    XcursorImagesDestroy(images);
}

QByteArray xpm(const Xpm &image, int seed)
{
    QByteArray text = "/* XPM */\nstatic char *" + QByteArray(image.name) + "[] = {\n\""
                      + QByteArray::number(image.width) + ' ' + QByteArray::number(image.height)
                      + " 8 1\",\n";
    for (int color = 0; color < 8; ++color)
        text += '"' + QByteArray(1, char('a' + color)) + " c "
                + QColor((seed * 7 + color * 20) % 256, (seed * 3) % 256, color * 30).name().toLatin1()
                + "\",\n";
    for (int y = 0; y < image.height; ++y) {
        QByteArray row;
        for (int x = 0; x < image.width; ++x)
            row += char('a' + (x + y + seed) % 8);
        text += '"' + row + "\",\n";
    }
    return text + "};\n";
}

/// Makes theme \a number of each kind below \a home.
void makeThemes(const QString &home, int number)
{
    const QString suffix = QString::number(number).rightJustified(5, QLatin1Char('0'));
    const QString icons = home + QLatin1String("/.icons/icons") + suffix;
    const QString cursors = home + QLatin1String("/.icons/cursors") + suffix + QLatin1String("/cursors/");
    const QString decor = home + QLatin1String("/data/themes/decor") + suffix + QLatin1Char('/');
    for (const QString &directory :
         {icons + QLatin1String("/32x32/places"), icons + QLatin1String("/32x32/apps"), cursors, decor})
        QDir().mkpath(directory);
    writeFile(icons + QLatin1String("/index.theme"),
              "[Icon "
              "Theme]\nName=Bench\nInherits=hicolor\nDirectories=32x32/places,32x32/apps\n\n[32x32/"
              "places]\nSize=32\n"
              "Context=Places\n\n[32x32/apps]\nSize=32\nContext=Applications\n");
    int seed = number * 3;
    for (const char *name : placeNames)
        picture(iconSize, seed++)
            .save(icons + QLatin1String("/32x32/places/") + QLatin1String(name) + QLatin1String(".png"));
    picture(iconSize, seed).save(icons + QLatin1String("/32x32/apps/preferences-system-time.png"));
    seed = number * 3;
    for (const char *name : cursorNames)
        writeCursor(cursors + QLatin1String(name), seed++);
    writeFile(decor + QLatin1String("default.theme"), "Name=Bench\n");
    for (const Xpm &image : decorImages)
        writeFile(decor + QLatin1String(image.name) + QLatin1String(".xpm"), xpm(image, number));
}

/// What nobody can do without: decoding the previews' files, whose paths are known.
int decodeOnly(const QString &home, int count)
{
    QElapsedTimer timer;
    timer.start();
    for (int number = 0; number < count; ++number) {
        const QString suffix = QString::number(number).rightJustified(5, QLatin1Char('0'));
        const QString places = home + QLatin1String("/.icons/icons") + suffix
                               + QLatin1String("/32x32/places/");
        const QString cursors = home + QLatin1String("/.icons/cursors") + suffix + QLatin1String("/cursors/");
        const QString decor = home + QLatin1String("/data/themes/decor") + suffix + QLatin1Char('/');
        for (const char *name : placeNames)
            QImage image(places + QLatin1String(name) + QLatin1String(".png"), "PNG");
        for (const char *name : cursorNames)
            XcursorImageDestroy(XcursorFilenameLoadImage(
                QFile::encodeName(cursors + QLatin1String(name)).constData(), cursorSize));
        for (const Xpm &image : decorImages)
            QImage decoded(decor + QLatin1String(image.name) + QLatin1String(".xpm"), "XPM");
    }
    std::printf("%.3f\n", double(timer.nsecsElapsed()) / 1e6);
    return 0;
}

double residentMegabytes()
{
    QFile file(QStringLiteral("/proc/self/statm"));
    if (!file.open(QIODevice::ReadOnly))
        return 0;
    return file.readAll().split(' ').value(1).toDouble() * 4096 / 1e6;
}

/// Prints the first show's time and the memory that it took.
int showPage(int count)
{
    QWidget window;
    ThemePage page(&window);
    QazSettings settings(QStringLiteral("/nonexistent/bench.themerc"));
    settings.sync(true);
    const double before = residentMegabytes();
    QElapsedTimer timer;
    timer.start();
    page.loadValues(&settings);
    for (const char *combo : {"cursorThemeCombo", "iconThemeCombo", "decorThemeCombo"}) {
        if (page.findChild<QComboBox *>(QLatin1String(combo))->count() < count)
            qFatal("%s lists too few themes", combo);
    }
    window.resize(800, 600);
    page.resize(800, 600);
    window.show();
    QCoreApplication::processEvents();
    std::printf("%.3f\n", double(timer.nsecsElapsed()) / 1e6);
    std::printf("%.3f\n", residentMegabytes() - before);
    return 0;
}

QList<QByteArray> runSelf(const QString &mode, const QString &home, int count)
{
    QProcess process;
    QProcessEnvironment environment = QProcessEnvironment::systemEnvironment();
    environment.insert(QStringLiteral("HOME"), home);
    environment.insert(QStringLiteral("XDG_DATA_HOME"), home + QLatin1String("/.local/share"));
    environment.insert(QStringLiteral("XDG_DATA_DIRS"), home + QLatin1String("/system"));
    environment.insert(QStringLiteral("XCURSOR_PATH"), home + QLatin1String("/.icons"));
    environment.insert(QStringLiteral("QAZ_DATA_DIR"), home + QLatin1String("/data"));
    process.setProcessEnvironment(environment);
    process.setProcessChannelMode(QProcess::ForwardedErrorChannel);
    process.start(QCoreApplication::applicationFilePath(), {mode, home, QString::number(count)});
    if (!process.waitForFinished(-1) || process.exitCode() != 0)
        qFatal("bench/themes %s failed", qPrintable(mode));
    return process.readAllStandardOutput().split('\n');
}

struct Result {
    double floor;
    double page;
    double megabytes;
};

Result measure(int count)
{
    QTemporaryDir home;
    for (int number = 0; number < count; ++number)
        makeThemes(home.path(), number);
    std::vector<double> floors;
    std::vector<double> pages;
    double megabytes = 0;
    for (int round = 0; round < rounds; ++round) {
        floors.push_back(runSelf(QStringLiteral("floor"), home.path(), count).value(0).toDouble());
        const QList<QByteArray> page = runSelf(QStringLiteral("page"), home.path(), count);
        pages.push_back(page.value(0).toDouble());
        megabytes = page.value(1).toDouble();
    }
    return {median(floors), median(pages), megabytes};
}

} // namespace

/// What the first show of the Theme page costs with many themes: bench/themes [N].
int main(int argc, char **argv)
{
    QApplication application(argc, argv);
    const QStringList arguments = application.arguments();
    if (arguments.value(1) == QLatin1String("floor"))
        return decodeOnly(arguments.value(2), arguments.value(3).toInt());
    if (arguments.value(1) == QLatin1String("page"))
        return showPage(arguments.value(3).toInt());
    const int count = arguments.size() > 1 ? arguments.at(1).toInt() : defaultCount;
    const Result one = measure(1);
    const Result half = measure(count / 2);
    const Result all = measure(count);
    std::printf("medians of %d alternating rounds; decoding alone: %.1f ms for %d themes of each kind\n",
                rounds, all.floor, count);
    std::printf("first show with 1, %d and %d themes: %.1f, %.1f and %.1f ms\n", count / 2, count, one.page,
                half.page, all.page);
    bool kept = report("first show, against decoding alone", all.page / all.floor, timeLimit, "times");
    kept = report("memory for the themes", all.megabytes - one.megabytes, memoryLimit * count / defaultCount,
                  "MB")
           && kept;
    return kept ? 0 : 1;
}
