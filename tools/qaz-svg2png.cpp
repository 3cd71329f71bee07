// Renders an SVG image to a file, as the desktop asks for it when a wallpaper's name means an SVG:
// qaz-svg2png -w WIDTH -h HEIGHT -i IN -o OUT

#include "base/atomicfile.h"
#include "base/diagnostics.h"
#include "freedesktop/images.h"

#include <QBuffer>
#include <QFile>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImageWriter>

#include <cstdio>

namespace {

constexpr int largestExtent = 32767;
constexpr int jpegQuality = 90;

constexpr char usage[]
    = "Usage: qaz-svg2png -w WIDTH -h HEIGHT -i IN -o OUT\n"
      "Renders the SVG image IN over all of a white picture of WIDTH x HEIGHT pixels and writes\n"
      "it to OUT, in the format of its ending (PNG without a known one).\n";

enum ExitStatus { Success = 0, Failure = 1, WrongUsage = 2 };

struct Options {
    int width = 0;
    int height = 0;
    QString in;
    QString out;
};

/// Every option takes the argument after it, whatever that begins with.
bool parse(int argc, char **argv, Options *options)
{
    for (int i = 1; i < argc; i += 2) {
        const QByteArray option = argv[i];
        if (i + 1 == argc)
            return false;
        const char *value = argv[i + 1];
        if (option == "-w")
            options->width = QByteArray(value).toInt();
        else if (option == "-h")
            options->height = QByteArray(value).toInt();
        else if (option == "-i")
            options->in = QFile::decodeName(value);
        else if (option == "-o")
            options->out = QFile::decodeName(value);
        else
            return false;
    }
    return !options->in.isEmpty() && !options->out.isEmpty();
}

bool isPossible(int width, int height)
{
    return width > 0 && height > 0 && width <= largestExtent && height <= largestExtent
           && qint64(width) * height <= largestPicture;
}

QByteArray formatOf(const QString &path)
{
    const QByteArray ending = QFileInfo(path).suffix().toLatin1().toLower();
    return QImageWriter::supportedImageFormats().contains(ending) ? ending : QByteArrayLiteral("png");
}

bool render(const Options &options, QByteArray *encoded, QString *error)
{
    const FileContent file = readRegularFile(options.in);
    if (file.state != FileState::Regular) {
        *error = file.state == FileState::Missing ? QStringLiteral("No such file") : file.error;
        return false;
    }
    const QImage picture = drawSvg(file.content, {options.width, options.height}, Qt::white);
    if (picture.isNull()) {
        *error = QStringLiteral("Not an SVG image");
        return false;
    }
    QBuffer buffer(encoded);
    QImageWriter writer(&buffer, formatOf(options.out));
    if (writer.format().startsWith("jp"))
        writer.setQuality(jpegQuality);
    if (!buffer.open(QIODevice::WriteOnly) || !writer.write(picture)) {
        *error = writer.errorString();
        return false;
    }
    return true;
}

ExitStatus fail(const QString &text)
{
    printDiagnosticAs("qaz-svg2png", text);
    return Failure;
}

} // namespace

int main(int argc, char **argv)
{
    if (argc == 2 && QByteArray(argv[1]) == "--help") {
        std::fputs(usage, stdout);
        return Success;
    }
    Options options;
    if (!parse(argc, argv, &options)) {
        std::fputs(usage, stderr);
        return WrongUsage;
    }
    if (!isPossible(options.width, options.height)) {
        fail(QStringLiteral("The size must be 1x1 or more, and at most 256 megapixels"));
        return WrongUsage;
    }

    // Text needs the font database of an application object, which needs no X display like this. Qt must not
    // see the arguments: it would take some for its own.
    qputenv("QT_QPA_PLATFORM", "minimal:enable_fonts");
    int qtArgc = 1;
    const QGuiApplication application(qtArgc, argv);
    QByteArray encoded;
    QString error;
    if (!render(options, &encoded, &error))
        return fail(QStringLiteral("Can't render %1: %2").arg(options.in, error));
    if (!replaceFile(options.out, encoded, &error))
        return fail(QStringLiteral("Can't write %1: %2").arg(options.out, error));
    return Success;
}
