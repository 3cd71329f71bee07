// Draws scalable icons as pictures of one size, for the build: render-icons SIZE DIRECTORY SVG...

#include <QDir>
#include <QFileInfo>
#include <QGuiApplication>
#include <QImage>
#include <QPainter>
#include <QSvgRenderer>

#include <cstdio>

int main(int argc, char **argv)
{
    qputenv("QT_QPA_PLATFORM", "minimal"); // a build has no display
    const QGuiApplication application(argc, argv);
    const QStringList arguments = QGuiApplication::arguments();
    const int extent = arguments.value(1).toInt();
    const QDir directory(arguments.value(2));
    if (extent <= 0 || !directory.mkpath(QStringLiteral("."))) {
        std::fputs("usage: render-icons SIZE DIRECTORY SVG...\n", stderr);
        return 2;
    }
    for (const QString &drawing : arguments.mid(3)) {
        QSvgRenderer renderer(drawing);
        QImage picture(extent, extent, QImage::Format_ARGB32_Premultiplied);
        picture.fill(Qt::transparent);
        QPainter painter(&picture);
        renderer.render(&painter);
        painter.end();
        const QString file = directory.filePath(QFileInfo(drawing).completeBaseName()
                                                + QLatin1String(".png"));
        // Not compressed: every start of a program reads some.
        if (!renderer.isValid() || !picture.save(file, nullptr, 100)) {
            std::fprintf(stderr, "render-icons: can't draw %s as %s\n", qPrintable(drawing),
                         qPrintable(file));
            return 1;
        }
    }
    return 0;
}
