#include "bench/figures.h"
#include "fonts/kxftconfig.h"

#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QGuiApplication>
#include <QTemporaryDir>

namespace {

constexpr int rounds = 15;
constexpr int fileSize = 1000000;
constexpr double limitMs = 100;

/// A configuration of a megabyte made of \a element, again and again.
QByteArray configuration(const QByteArray &element)
{
    QByteArray content
        = "<?xml version=\"1.0\"?>\n<!DOCTYPE fontconfig SYSTEM \"fonts.dtd\">\n<fontconfig>\n";
    for (int i = 0; content.size() < fileSize; ++i)
        content += "  <!-- rule " + QByteArray::number(i) + " -->\n" + element;
    return content + "</fontconfig>\n";
}

/// Milliseconds to read the file, change two settings and write it, the copy of the old file included.
double readAndWrite(int round)
{
    QElapsedTimer timer;
    timer.start();
    KXftConfig config;
    QString error;
    config.setHintStyle(round % 2 ? HintStyle::Full : HintStyle::Slight);
    config.setSubPixelType(round % 2 ? SubPixelOrder::Rgb : SubPixelOrder::Bgr);
    if (!config.changed() || !config.apply(&error))
        qFatal("The file was not written");
    return double(timer.nsecsElapsed()) / 1e6;
}

bool measure(const char *what, const QString &path, const QByteArray &content)
{
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("Can't write %s", qPrintable(path));
    file.close();
    std::vector<double> times;
    times.reserve(rounds);
    for (int round = 0; round < rounds; ++round)
        times.push_back(readAndWrite(round));
    return report(what, median(times), limitMs, "ms");
}

} // namespace

int main(int argc, char *argv[])
{
    const QTemporaryDir home;
    const QByteArray root = QFile::encodeName(home.path());
    qputenv("HOME", root);
    qputenv("XDG_CONFIG_HOME", root + "/.config");
    qputenv("XDG_STATE_HOME", root + "/.local/state");
    const QGuiApplication application(argc, argv);
    const QString directory = home.path() + QLatin1String("/.config/fontconfig");
    QDir().mkpath(directory);
    const QString path = directory + QLatin1String("/fonts.conf");

    const bool aliasesKept = measure(
        "1 MB fonts.conf of aliases", path,
        configuration("  <alias binding=\"same\">\n    <family>Helvetica</family>\n"
                      "    <accept><family>Liberation Sans</family></accept>\n"
                      "  </alias>\n"));
    const bool rulesKept = measure(
        "1 MB fonts.conf of rules for fonts", path,
        configuration("  <match target=\"font\">\n    <test name=\"family\" qual=\"any\">"
                      "<string>Terminus</string></test>\n"
                      "    <edit name=\"antialias\" mode=\"assign\"><bool>false</bool>"
                      "</edit>\n  </match>\n"));
    return aliasesKept && rulesKept ? 0 : 1;
}
