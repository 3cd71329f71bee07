#include "resources/registerresources.h"
#include "tests/support/literals.h"
#include "tests/support/temporaryhome.h"

#include <QImageReader>
#include <QtTest>

namespace {

bool hasImagePlugins()
{
    QFile maps("/proc/self/maps"_s);
    return maps.open(QIODevice::ReadOnly) && maps.readAll().contains("/imageformats/");
}

} // namespace

class TestPngReader : public QObject
{
    Q_OBJECT
private slots:
    void pngNeedsNoPlugins()
    {
        registerResources();
        const TemporaryHome home;
        const QString copy = home.path("A copy.PNG"_s);
        QVERIFY(QFile::copy(":/images/monitor.png"_s, copy));
        for (const QString &path : {":/images/monitor.png"_s, copy}) {
            QImageReader reader(path);
            QCOMPARE(reader.size(), QSize(301, 307));
            QCOMPARE(reader.format(), QByteArray("png"));
            const QImage image = reader.read();
            QCOMPARE(image.size(), QSize(301, 307));
            QVERIFY(image.hasAlphaChannel() && image.pixelColor(150, 100).alpha() == 255);
            QCOMPARE(QPixmap(path).size(), QSize(301, 307));
        }
        QVERIFY(!hasImagePlugins());
    }

    void endingsMayLie()
    {
        const TemporaryHome home;
        const QString xpm = home.write("picture.png"_s,
                                       "/* XPM */\nstatic char *x[] = {\"1 1 1 1\", \"a c red\", \"a\"};\n");
        QCOMPARE(QImage(xpm).pixelColor(0, 0), QColor(Qt::red));
        QVERIFY(QImage(home.write("cut.png"_s, "\x89PNG\r\n\x1a\n")).isNull());
        QVERIFY(QImage(home.write("empty.png"_s, {})).isNull());
        QVERIFY(hasImagePlugins()); // the check above can fail
    }
};

QTEST_MAIN(TestPngReader)
#include "tst_pngreader.moc"
