#include "fonts/fontsfile.h"
#include "fonts/kxftconfig.h"
#include "tests/fonts/corpus.h"
#include "tests/support/literals.h"
#include "tests/support/standarderror.h"
#include "tests/support/temporaryhome.h"

#include <QProcess>
#include <QX11Info>

#include <functional>

#include <unistd.h>

namespace {

constexpr int allButDirectories = 0x1E;
const QString place = ".config/fontconfig/fonts.conf"_s;

/// As the dialog uses it: chosen and read, the reason of a failure not asked for.
class Config : public KXftConfig
{
public:
    explicit Config(int required = allButDirectories)
        : KXftConfig(required)
    {
        reset();
    }
    bool apply()
    {
        QString error;
        const bool isApplied = KXftConfig::apply(&error);
        if (isApplied != error.isEmpty())
            qFatal("A reason belongs to a failure alone: %s", qPrintable(error));
        return isApplied;
    }
};

const std::function<void(KXftConfig &)> edits[] = {[](KXftConfig &config) {
                                                       config.setSubPixelType(SubPixelOrder::VerticalRgb);
                                                       config.setHintStyle(HintStyle::Slight);
                                                       config.setExcludePixelRange({3, 7});
                                                   },
                                                   [](KXftConfig &config) {
                                                       config.setSubPixelType(SubPixelOrder::None);
                                                       config.setHintStyle(HintStyle::NotSet);
                                                       config.setExcludePixelRange({});
                                                   },
                                                   [](KXftConfig &config) {
                                                       config.setAntiAliasing(!config.antiAliasing());
                                                       config.setExcludeRange({3, 7});
                                                   }};

QByteArray sample(const char *name)
{
    return corpus().value(QLatin1String(name));
}

/// A home with a fontconfig file.
class HomeWithFile : public TemporaryHome
{
public:
    explicit HomeWithFile(const QByteArray &content) { write(place, content); }
    QByteArray content() const { return read(place); }
    /// No lock, no temporary file.
    bool holdsOnlyTheFile() const
    {
        const QDir directory(path(".config/fontconfig"_s));
        return directory.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size() == 1;
    }
};

QString summary(const KXftConfig &config)
{
    const ExcludeRange points = config.excludeRange();
    const ExcludeRange pixels = config.excludePixelRange();
    QString text;
    QTextStream(&text) << FontRendering::fileName(config.subPixelType()) << ' ' << int(config.hintStyle())
                       << ' ' << config.hinting() << ' ' << config.antiAliasing() << ' ' << points.from << '-'
                       << points.to << ' ' << pixels.from << '-' << pixels.to;
    return text;
}

/// What the run of another editor does: many changes, one after the other.
int editRepeatedly(int style)
{
    int applied = 0;
    for (int i = 0; i < 6; ++i) {
        Config config;
        config.setHintStyle(i % 2 ? HintStyle::Full : HintStyle(style));
        config.setSubPixelType(SubPixelOrder(1 + i % 4));
        applied += config.apply();
    }
    return applied > 0 ? 0 : 1;
}

} // namespace

class TestKXftConfig : public QObject
{
    Q_OBJECT
private slots:
    void newFileIsMadeInThePrivateDirectory()
    {
        const TemporaryHome home;
        StandardError standardError;
        Config config;
        QCOMPARE(standardError.take(), "qaz-admin-theme: user fontconfig file to use: "
                                           + QFile::encodeName(home.path(place)) + '\n');
        QCOMPARE(QFileInfo(home.path(".config/fontconfig"_s)).permissions() & 0x0777,
                 QFile::Permissions(0x0700));
        QVERIFY(config.apply());
        QVERIFY(!home.exists(place)); // nothing had changed

        config.setHintStyle(HintStyle::None);
        QVERIFY(config.changed());
        QVERIFY(config.apply());
        QVERIFY(!config.changed());
        const QByteArray content = home.read(place);
        const int style = content.indexOf("<const>hintnone</const>");
        QVERIFY2(style > 0 && content.indexOf("hinting") < style, content.constData());
        QCOMPARE(summary(Config()), summary(config));
        QVERIFY(!home.exists(".local"_s)); // ours alone: no copy
    }

    void foreignContentSurvivesEveryEdit_data() { addCorpusRows(); }
    void foreignContentSurvivesEveryEdit()
    {
        QFETCH(QByteArray, content);
        for (const auto &edit : edits) {
            const HomeWithFile home(content);
            Config config;
            edit(config);
            const QString wanted = summary(config);
            QVERIFY(config.apply());
            QCOMPARE(foreignPieces(home.content()), foreignPieces(content));
            QCOMPARE(summary(config), wanted);
            QCOMPARE(summary(Config()), wanted);
            QVERIFY(home.holdsOnlyTheFile());
        }
    }

    void pixelRangeIsRewrittenOnceAtEachRead()
    {
        QCOMPARE(QX11Info::appDpiY(), 96);
        const HomeWithFile home(sample("pixel-range"));
        StandardError standardError;
        Config config;
        const QByteArray told = standardError.take().trimmed();
        QFile copy(QFile::decodeName(told.mid(told.lastIndexOf(" as ") + 4)));
        QVERIFY2(copy.open(QIODevice::ReadOnly), told.constData());
        QCOMPARE(copy.readAll(), sample("pixel-range"));
        QCOMPARE(summary(config).section(u' ', 4), "6-11 8-15"_s);
        QVERIFY(!config.changed());
        const QByteArray content = home.content();
        QVERIFY2(content.contains("name=\"size\"") && content.contains("name=\"pixelsize\""),
                 content.constData());
        QCOMPARE(home.backups().size(), 1);

        const QString before = home.fingerprint();
        Config again;
        again.setExcludePixelRange({8, 15});
        QVERIFY(!again.changed());
        QVERIFY(home.fingerprint() != before);
        QCOMPARE(home.content(), content);
        QCOMPARE(home.backups().size(), 1);
    }

    void newAntiAliasingStandsBeforeTheRange()
    {
        const QByteArray range = "  <match target=\"font\">\n"
                                 "    <test qual=\"any\" name=\"size\" compare=\"more_eq\">\n"
                                 "      <double>3</double>\n    </test>\n"
                                 "    <test qual=\"any\" name=\"size\" compare=\"less_eq\">\n"
                                 "      <double>7</double>\n    </test>\n"
                                 "    <edit mode=\"assign\" name=\"antialias\">\n"
                                 "      <bool>false</bool>\n    </edit>\n  </match>\n";
        const QByteArray pixels
            = QByteArray(range).replace("\"size", "\"pixelsize").replace("3<", "4<").replace("7<", "9<");
        const QByteArray prolog = "<?xml version=\"1.0\"?>\n<fontconfig>\n  <dir>/a</dir>\n";
        const HomeWithFile home(prolog + range + "  <!-- mine -->\n</fontconfig>\n");
        Config config(KXftConfig::AntiAlias | KXftConfig::ExcludedRange);
        config.setAntiAliasing(!config.antiAliasing());
        const QByteArray value = config.antiAliasing() ? "true" : "false";
        QVERIFY(config.apply());
        QCOMPARE(
            home.content(),
            prolog + "  <match target=\"font\">\n    <edit mode=\"assign\" name=\"antialias\">\n      <bool>"
                + value + "</bool>\n    </edit>\n  </match>\n" + range + "  <!-- mine -->\n" + pixels
                + "</fontconfig>\n");

        // Not in front of a range that goes.
        home.write(place, prolog + range + "</fontconfig>\n");
        config.reset();
        config.setAntiAliasing(!config.antiAliasing());
        config.setExcludeRange({});
        QVERIFY(config.apply());
        QCOMPARE(home.content().count("<match"), 1);
    }

    void removalTakesOlderElementsAlong()
    {
        const QByteArray rgba
            = "<match target='font'><edit mode='assign' name='rgba'><const>rgb</const></edit></match>\n";
        const HomeWithFile home("<fontconfig>\n" + rgba + rgba + "</fontconfig>\n");
        Config config(KXftConfig::SubPixelType);
        config.setSubPixelType(SubPixelOrder::None);
        QVERIFY(config.apply());
        QCOMPARE(home.content(), QByteArray("<?xml version=\"1.0\"?>\n<fontconfig>\n</fontconfig>\n"));
    }

    void directoriesAreAddedAndRemoved()
    {
        const HomeWithFile home(sample("all-settings"));
        Config config(KXftConfig::Directories);
        config.addDirectory(home.path("my fonts"_s));
        config.addDirectory("/srv/fonts/"_s);
        QVERIFY(config.apply());
        QVERIFY(home.content().contains("  <dir>~/my fonts</dir>\n  <dir>/srv/fonts</dir>\n</fontconfig>"));
        QCOMPARE(config.directories(), (QStringList{home.path("my fonts/"_s), "/srv/fonts/"_s}));
        config.removeDirectory("/srv/fonts"_s);
        config.removeDirectory(home.path("my fonts"_s));
        QVERIFY(config.apply());
        QCOMPARE(home.content(), sample("all-settings"));
    }

    void linkAndModeStay()
    {
        const TemporaryHome home;
        const QString target = home.write("dotfiles/fonts"_s, "<fontconfig/>\n");
        QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
        home.makeDirectory(".config/fontconfig"_s);
        QVERIFY(QFile::link(target, home.path(place)));
        Config config;
        config.setSubPixelType(SubPixelOrder::Bgr);
        QVERIFY(config.apply());
        QCOMPARE(QFileInfo(home.path(place)).symLinkTarget(), target);
        QVERIFY(home.read("dotfiles/fonts"_s).contains("<const>bgr</const>"));
        QCOMPARE(QFileInfo(target).permissions() & 0x7077, QFile::Permissions(0x6000));
        QCOMPARE(QDir(home.path("dotfiles"_s)).count(), 3u); // with . and ..
    }

    void whatCannotBeReadIsLeftAlone()
    {
        const auto check = [](const TemporaryHome &home) {
            const QString before = home.fingerprint();
            StandardError standardError;
            Config config;
            QVERIFY(!config.reset());
            QVERIFY(standardError.take().contains("qaz-admin-theme: Can't use "));
            config.setSubPixelType(SubPixelOrder::Bgr);
            QVERIFY(!config.apply());
            QCOMPARE(home.fingerprint(), before);
        };
        check(HomeWithFile("<fontconfig><match></fontconfig>"));
        check(HomeWithFile("<html/>"));
        check(HomeWithFile("<fontconfig>" + QByteArray(17 << 20, ' ') + "</fontconfig>"));
        TemporaryHome home;
        QVERIFY(home.makeDirectory(place));
        check(home);
        for (const QString &target : {"nowhere"_s, place}) { // dangling, and to itself
            QVERIFY(QDir().rmdir(home.path(place)) || QFile::remove(home.path(place)));
            QVERIFY(QFile::link(home.path(target), home.path(place)));
            check(home);
        }
    }

    void readOnlyDirectoryIsLeftAlone()
    {
        const HomeWithFile home("<fontconfig/>\n");
        QFile::setPermissions(home.path(), QFile::Permissions(0x7755));
        QFile::setPermissions(home.path(".config/fontconfig"_s), QFile::Permissions(0x5555));
        const QString before = home.fingerprint();
        // The administrator may write everywhere.
        const uid_t user = ::geteuid();
        QVERIFY(user != 0 || ::seteuid(65534) == 0);
        Config config;
        config.setSubPixelType(SubPixelOrder::Bgr);
        const bool applied = config.apply();
        QVERIFY(user != 0 || ::seteuid(user) == 0);
        QVERIFY(!applied);
        QCOMPARE(home.fingerprint(), before);
        QFile::setPermissions(home.path(".config/fontconfig"_s), QFile::Permissions(0x7755));
    }

    void bothChangesSurviveARewrite()
    {
        const HomeWithFile home("<fontconfig>\n</fontconfig>\n");
        Config config;
        config.setExcludePixelRange({3, 10});
        config.setHintStyle(HintStyle::Full);
        home.write(place, sample("near-misses"));
        StandardError standardError;
        QVERIFY(config.apply());
        QVERIFY(standardError.take().startsWith(
            "qaz-admin-theme: font config file was rewritten since we last read!\n"));
        QCOMPARE(foreignPieces(home.content()), foreignPieces(sample("near-misses")));
        QCOMPARE(config.hintStyle(), HintStyle::Full);
        QVERIFY(config.excludePixelRange().equals({3, 10}));
        QVERIFY(!config.changed());

        // The merge has read the file again: the next change needs none.
        config.setSubPixelType(SubPixelOrder::Rgb);
        QVERIFY(config.apply());
        QVERIFY(!standardError.take().contains("rewritten"));
    }

    void heldLockIsRespected()
    {
        const HomeWithFile home("<fontconfig/>\n");
        Config config;
        config.setSubPixelType(SubPixelOrder::Bgr);
        const QString lock = home.write(place + ".LCK"_s, QByteArray::number(::getpid()));
        QString error;
        QVERIFY(!config.KXftConfig::apply(&error));
        QCOMPARE(error, "Another program has locked it"_s);
        QCOMPARE(home.content(), QByteArray("<fontconfig/>\n"));
        QVERIFY(QFile::remove(lock) && config.changed() && config.apply());
        QVERIFY(home.holdsOnlyTheFile());
    }

    void halfWrittenFileIsLeftAlone()
    {
        const HomeWithFile home("<fontconfig>\n</fontconfig>\n");
        Config config;
        config.setSubPixelType(SubPixelOrder::Bgr);
        home.write(place, "<fontconfig>");
        StandardError standardError;
        QVERIFY(!config.apply() && config.changed());
        QCOMPARE(standardError.take().count("font config file was rewritten since we last read!\n"), 1);
        QCOMPARE(home.content(), QByteArray("<fontconfig>"));
    }

    void editorsAtTheSameTimeLeaveAWholeFile()
    {
        const HomeWithFile home(sample("aliases"));
        QProcess editors[3];
        for (int i = 0; i < 3; ++i)
            editors[i].start(QCoreApplication::applicationFilePath(),
                             {"--edit-repeatedly"_s, QString::number(i + 1)});
        for (QProcess &editor : editors) {
            QVERIFY(editor.waitForFinished(60000));
            QVERIFY2(editor.exitCode() == 0, editor.readAllStandardError().constData());
        }
        QCOMPARE(foreignPieces(home.content()), foreignPieces(sample("aliases")));
        QVERIFY(home.holdsOnlyTheFile());
    }
};

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--edit-repeatedly") == 0)
        return editRepeatedly(QByteArray(argv[2]).toInt());
    TestKXftConfig test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_kxftconfig.moc"
