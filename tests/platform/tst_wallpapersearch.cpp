#include "platform/findwallpaperbyname.h"
#include "platform/wallpapersizeforscreen.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/standarderror.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/testing.h"

namespace {

const char command[] = "qaz-svg2png -w %d -h %d -i \"%s\" -o \"%s\"";
const QString converter = "qaz-svg2png"_s;
const QString own = ".local/share/wallpapers/"_s;

QString find(const QString &name, const char *convertCommand = command)
{
    char result[4096] = "untouched";
    FindWallPaperByName(name.toLocal8Bit().constData(), result, 1366, 768, convertCommand);
    return QFile::decodeName(result);
}

bool makeOlder(const QString &path, int seconds)
{
    QFile file(path);
    return file.open(QIODevice::ReadWrite)
           && file.setFileTime(QDateTime::currentDateTime().addSecs(-seconds),
                               QFileDevice::FileModificationTime);
}

} // namespace

class TestWallpaperSearch : public QObject
{
    Q_OBJECT
private slots:
    void standardSizeIsTheNearestRatios()
    {
        const int rows[][6] = {{1280, 1024, 1280, 1024, 5, 4}, {1024, 768, 1600, 1200, 4, 3},
                               {2256, 1504, 2160, 1440, 3, 2}, {1440, 900, 1920, 1200, 16, 10},
                               {1366, 768, 1920, 1080, 16, 9}, {3440, 1440, 2560, 1080, 21, 9},
                               {1080, 1920, 1280, 1024, 5, 4}, {3840, 1080, 2560, 1080, 21, 9},
                               {0, 0, 1280, 1024, 5, 4},       {2, 0, 1920, 1080, 16, 9}};
        for (const auto &row : rows) {
            int w1 = 0, h1 = 0, w2 = 0, h2 = 0;
            WallpaperSizeForScreen(row[0], row[1], &w1, &h1, &w2, &h2);
            QCOMPARE(QRect(w1, h1, w2, h2), QRect(row[2], row[3], row[4], row[5]));
        }
    }

    void betterPlacesComeFirst()
    {
        const TemporaryHome home;
        const ScopedEnvironment data("QAZ_DATA_DIR", QFile::encodeName(home.path("data"_s)));
        for (const char *worstFirst :
             {"data/wallpapers/tst-paper.jpg", "data/wallpapers/1920x1080/tst-paper.xpm",
              ".local/share/wallpapers/tst-paper.jpeg", ".local/share/wallpapers/tst-paper.png",
              ".local/share/wallpapers/tst-paper", ".local/share/wallpapers/16:9/tst-paper.xpm",
              ".local/share/wallpapers/1920x1080/tst-paper.jpeg",
              ".local/share/wallpapers/1366x768/tst-paper.jpeg"}) {
            const QString path = home.write(QLatin1String(worstFirst), "image");
            QCOMPARE(find("tst-paper"_s), path);
        }
        QCOMPARE(find("tst-paper.png"_s), home.path(own + "tst-paper.png"_s));
        home.write(".local/share/secret"_s, "secret");
        home.write(own + ".png"_s, "image");
        for (const QString &name : {QString(), ".."_s, "../secret"_s, "1920x1080"_s, QString(5000, u'a')})
            QCOMPARE(find(name), QString());
    }

    void svgIsConvertedUntilItChanges()
    {
        const TemporaryHome home;
        FakePrograms programs;
        programs.add(converter,
                     "cat; while [ $# -gt 1 ]; do [ \"$1\" = -o ] && echo png > \"$2\"; shift 2; done");
        const QString name = "a \"quoted\" $(touch x)"_s;
        const QString source = home.write(own + name + ".svg"_s, "<svg/>");
        QVERIFY(makeOlder(source, 60));
        const QString converted = find(name);
        QVERIFY2(converted.startsWith(home.path(".cache/qaz/wallpapers/svg_1366x768_"_s))
                     && converted.endsWith(".png"_s),
                 qPrintable(converted));
        const QVector<QStringList> calls = {
            {"-w"_s, "1366"_s, "-h"_s, "768"_s, "-i"_s, source, "-o"_s, converted}};
        QCOMPARE(programs.calls(converter), calls);
        QCOMPARE(find(name), converted);
        QCOMPARE(programs.calls(converter), calls);
        QVERIFY(makeOlder(source, -60));
        QCOMPARE(find(name), converted);
        QCOMPARE(programs.calls(converter), calls + calls);
        home.write(own + "packed.svgz"_s, "x");
        QVERIFY(find("packed"_s).startsWith(home.path(".cache/qaz/wallpapers/svg_1366x768_"_s)));

        programs.add(converter, "echo why >&2; exit 1");
        StandardError errors;
        QCOMPARE(find(name, "qaz-svg2png %d %d %d %s %s %s"), QString());
        QCOMPARE(programs.calls(converter).constLast(),
                 QStringList({"1366"_s, "768"_s, "%d"_s, source, converted, "%s"_s}));
        for (const char *none : {"", "missing-program -x"})
            QCOMPARE(find(name, none), QString());
        QCOMPARE(errors.take(), "why\nqaz-admin-theme: Can't convert " + QFile::encodeName(source)
                                    + ": missing-program is not installed\n");
    }
};

QTEST_GUILESS_MAIN(TestWallpaperSearch)
#include "tst_wallpapersearch.moc"
