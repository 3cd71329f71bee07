#include "platform/findfileinpath.h"
#include "platform/findinps.h"
#include "platform/findwallpaperbyname.h"
#include "platform/wallpapersizeforscreen.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/rows.h"
#include "tests/support/standarderror.h"
#include "tests/support/temporaryhome.h"

#include <csignal>
#include <filesystem>

#include <unistd.h>

namespace {

QString inPath(const QString &name)
{
    char buffer[PATH_MAX] = "untouched";
    const bool found = FindFileInPATH(QFile::encodeName(name).constData(), buffer);
    return found == (buffer[0] != '\0') ? QFile::decodeName(buffer) : "contradiction"_s;
}

const char command[] = "qaz-svg2png -w %d -h %d -i \"%s\" -o \"%s\"";
const QString converter = "qaz-svg2png"_s;
const QString own = ".local/share/wallpapers/"_s;

QString find(const QString &name, const char *convertCommand = command)
{
    char result[4096] = "untouched";
    FindWallPaperByName(name.toLocal8Bit().constData(), result, 1366, 768, convertCommand);
    return QFile::decodeName(result);
}

} // namespace

/// Programs and wallpapers by their names.
class TestSearches : public QObject
{
    Q_OBJECT
private slots:
    void firstExecutableFileInPathIsFound()
    {
        const TemporaryHome home;
        home.write("a/manager"_s, "not executable");
        home.makeDirectory("b/manager"_s);
        const QString program = home.path("c d/manager"_s);
        for (const char *directory : {"c d", "e"})
            QVERIFY(home.makeDirectory(QLatin1String(directory))
                    && QFile::copy("/bin/sleep"_s, home.path(QLatin1String(directory) + "/manager"_s)));
        const ScopedEnvironment search("PATH", QFile::encodeName("%1/a:%1/b:%1/c d:%1/e"_s.arg(home.path())));
        // A name with a slash stands for itself, wherever PATH leads.
        for (const QString &name : {"manager"_s, program, QDir().relativeFilePath(program)})
            QCOMPARE(inPath(name), program);
        for (const QString &name : {QString(), "anager"_s, home.path("a/manager"_s), home.path("b/manager"_s),
                                    "../c d/manager"_s, u'/' + QString(2 * PATH_MAX, u'x')})
            QCOMPARE(inPath(name), QString());
    }

    void runningProcessIsFoundByName()
    {
        // Longer than the fifteen characters that the kernel keeps, and made to mislead a reader of its tables.
        const QByteArray file = "qaz) Z (test-manager-" + QByteArray::number(::getpid());
        const QByteArray alias = "qaz-test-alias-" + QByteArray::number(::getpid());
        // argv[0], a name, and whether it is found.
        const std::tuple<QByteArray, QByteArray, bool> cases[] = {
            {"something else", file, true}, {"/opt/x/" + alias, alias, true},   {file, file.mid(4), false},
            {file, file.left(15), false},   {'/' + alias + "/x", alias, false}, {{}, "", false},
            {file, "3600", false}};
        const TemporaryHome home;
        const QString program = home.path(QFile::decodeName(file));
        QVERIFY(QFile::copy("/bin/sleep"_s, program));
        for (const auto &[argument0, name, found] : cases) {
            QVERIFY(!findInPS(name.constData()));
            QProcess process;
            process.start("/bin/bash"_s,
                          {"-c"_s, "exec -a \"$1\" \"$0\" 3600"_s, program, QString::fromLatin1(argument0)});
            QTRY_COMPARE(QFile::symLinkTarget("/proc/%1/exe"_s.arg(process.processId())), program);
            QTRY_VERIFY2(findInPS(name.constData()) == found, (argument0 + ' ' + name).constData());
            process.kill();
            QVERIFY(process.waitForFinished());
        }
        QProcess parent; // which never asks what became of its child
        parent.start("/bin/bash"_s, {"-c"_s, "exec -a x \"$0\" 60 & echo $!; exec sleep 60"_s, program});
        QTRY_VERIFY(findInPS(file.constData()) && parent.canReadLine());
        QVERIFY(QFile::remove(program));
        QVERIFY(findInPS(file.constData()));
        ::kill(parent.readLine().toInt(), SIGKILL);
        QTRY_VERIFY2(!findInPS(file.constData()), "a zombie");
        parent.kill();
        QVERIFY(parent.waitForFinished());
    }

    void standardSizeIsTheNearestRatios()
    {
        // A screen's size, the standard size, and the ratio.
        for (const QStringList &row : rowsOf("platform/screensizes.json"_s)) {
            int w1 = 0, h1 = 0, w2 = 0, h2 = 0;
            WallpaperSizeForScreen(row[0].toInt(), row[1].toInt(), &w1, &h1, &w2, &h2);
            QCOMPARE("%1 %2 %3 %4"_s.arg(w1).arg(h1).arg(w2).arg(h2), row.mid(2).join(u' '));
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
                     "cat; while [ $# -gt 1 ]; do [ \"$1\" = -o ] && touch -d @1 \"$2\"; shift 2; done");
        const QString name = "a \"quoted\" $(touch x)"_s;
        const QString source = home.write(own + name + ".svg"_s, "<svg/>");
        const QByteArray sourceName = QFile::encodeName(source);
        const QString converted = find(name);
        QVERIFY2(converted.startsWith(home.path(".cache/qaz/wallpapers/svg_1366x768_"_s))
                     && converted.endsWith(".png"_s),
                 qPrintable(converted));
        const QVector<QStringList> calls = {
            {"-w"_s, "1366"_s, "-h"_s, "768"_s, "-i"_s, source, "-o"_s, converted}};
        QCOMPARE(programs.calls(converter), calls);
        const auto time = std::filesystem::last_write_time(converted.toStdString());
        std::filesystem::last_write_time(sourceName.constData(), time - std::chrono::seconds(1));
        QCOMPARE(find(name), converted);
        QCOMPARE(programs.calls(converter), calls);
        std::filesystem::last_write_time(sourceName.constData(), time);
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
        QFile::remove(source);
        home.write(own + "1366x768/"_s + name + ".svg"_s, "<svg/>");
        QCOMPARE(find(name, ""), home.write(own + name + ".png"_s, "x"));
        QCOMPARE(errors.take(), "why\nqaz-admin-theme: Can't convert " + sourceName
                                    + ": missing-program is not installed\n");
    }
};

QTEST_GUILESS_MAIN(TestSearches)
#include "tst_searches.moc"
