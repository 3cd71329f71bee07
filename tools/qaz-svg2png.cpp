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
    QSize size;
    QString in;
    QString out;
};

/// Every option takes the argument after it, whatever that begins with.
bool parse(int argc, char **argv, Options *options)
{
    if (argc % 2 == 0)
        return false;
    for (char **argument = argv + 1; *argument; argument += 2) {
        const QByteArray option = argument[0];
        const char *value = argument[1];
        if (option == "-w")
            options->size.setWidth(QByteArray(value).toInt());
        else if (option == "-h")
            options->size.setHeight(QByteArray(value).toInt());
        else if (option == "-i")
            options->in = QFile::decodeName(value);
        else if (option == "-o")
            options->out = QFile::decodeName(value);
        else
            return false;
    }
    return !options->in.isEmpty() && !options->out.isEmpty();
}

bool isPossible(const QSize &size)
{
    return !size.isEmpty() && size == size.boundedTo({largestExtent, largestExtent})
           && qint64(size.width()) * size.height() <= largestPicture;
}

QByteArray formatOf(const QString &path)
{
    const QByteArray ending = QFileInfo(path).suffix().toLatin1().toLower();
    return QImageWriter::supportedImageFormats().contains(ending) ? ending : QByteArrayLiteral("png");
}

bool render(const Options &options, QByteArray *encoded, QString *error)
{
    const FileContent file = readRegularFile(options.in);
    if (file.state != FileState::Regular)
        return failed(error, file.state == FileState::Missing ? QStringLiteral("No such file") : file.error);
    const QImage picture = drawSvg(file.content, options.size, Qt::white);
    if (picture.isNull())
        return failed(error, QStringLiteral("Not an SVG image"));
    QBuffer buffer(encoded);
    QImageWriter writer(&buffer, formatOf(options.out));
    if (writer.format().startsWith("jp"))
        writer.setQuality(jpegQuality);
    return writer.write(picture) || failed(error, writer.errorString());
}

ExitStatus fail(const QString &text, ExitStatus status = Failure)
{
    printDiagnosticAs("qaz-svg2png", text);
    return status;
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
    if (!isPossible(options.size))
        return fail(QStringLiteral("The size must be 1x1 or more, and at most 256 megapixels"), WrongUsage);

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
