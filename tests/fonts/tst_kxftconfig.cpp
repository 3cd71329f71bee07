#include "fonts/fontsfile.h"
#include "fonts/kxftconfig.h"
#include "settings/directories.h"
#include "tests/fonts/corpus.h"
#include "tests/support/standarderror.h"
#include "tests/support/temporaryhome.h"

#include <QProcess>
#include <QX11Info>

#include <functional>

#include <unistd.h>

namespace {

constexpr int allButDirectories = 0x1E;
constexpr auto everything = QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot;
const QString place = QStringLiteral(".config/fontconfig/fonts.conf");

constexpr ExcludeRange otherRange{3, 7};
const std::function<void(KXftConfig &)> edits[] = {
    [](KXftConfig &config) { config.setSubPixelType(SubPixelOrder::VerticalRgb); },
    [](KXftConfig &config) { config.setSubPixelType(SubPixelOrder::None); },
    [](KXftConfig &config) { config.setHintStyle(HintStyle::Slight); },
    [](KXftConfig &config) { config.setHintStyle(HintStyle::NotSet); },
    [](KXftConfig &config) { config.setAntiAliasing(!config.antiAliasing()); },
    [](KXftConfig &config) { config.setExcludePixelRange(otherRange); },
    [](KXftConfig &config) { config.setExcludeRange(otherRange); },
    [](KXftConfig &config) { config.setExcludePixelRange({}); }};

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
    QStringList namesIn(const char *directory) const
    {
        return QDir(path(QLatin1String(directory))).entryList(everything);
    }
    /// No lock, no temporary file.
    bool holdsOnlyTheFile() const
    {
        return namesIn(".config/fontconfig").join(QString()) == QLatin1String("fonts.conf");
    }
    /// Copies and their list.
    int backups() const { return namesIn(".local/state/qaz/backup").size(); }
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
    for (int i = 0; i < 20; ++i) {
        KXftConfig config(allButDirectories);
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
        KXftConfig config(allButDirectories);
        QCOMPARE(standardError.take(), "qaz-admin-theme: user fontconfig file to use: "
                                           + QFile::encodeName(home.path(place)) + '\n');
        QCOMPARE(QFileInfo(home.path(QStringLiteral(".config/fontconfig"))).permissions() & 0x0777,
                 QFile::Permissions(0x0700));
        QVERIFY(config.apply());
        QVERIFY(!home.exists(place)); // nothing had changed

        config.setHintStyle(HintStyle::None);
        QVERIFY(config.changed());
        QVERIFY(config.apply());
        QVERIFY(!config.changed());
        const QByteArray content = home.read(place);
        QVERIFY2(content.contains("<const>hintnone</const>"), content.constData());
        QVERIFY2(content.indexOf("hinting") < content.indexOf("hintstyle"), content.constData());
        QCOMPARE(summary(KXftConfig(allButDirectories)), summary(config));
        QVERIFY(!home.exists(QStringLiteral(".local"))); // ours alone: no copy
    }

    void foreignContentSurvivesEveryEdit_data() { addCorpusRows(); }
    void foreignContentSurvivesEveryEdit()
    {
        QFETCH(QByteArray, content);
        for (const auto &edit : edits) {
            const HomeWithFile home(content);
            KXftConfig config(allButDirectories);
            edit(config);
            const QString wanted = summary(config);
            QVERIFY(config.apply());
            QCOMPARE(foreignPieces(home.content()), foreignPieces(content));
            QCOMPARE(summary(config), wanted);
            QCOMPARE(summary(KXftConfig(allButDirectories)), wanted);
            QVERIFY(home.holdsOnlyTheFile());
        }
    }

    void everyHashSeedWritesTheSame()
    {
        QSet<QByteArray> written;
        for (int seed = 0; seed < 20; ++seed) {
            qSetGlobalQHashSeed(seed ? -1 : 0);
            const HomeWithFile home(sample("unknown-content"));
            KXftConfig config(allButDirectories);
            config.setExcludePixelRange(otherRange);
            QVERIFY(config.apply());
            written.insert(home.content());
        }
        QCOMPARE(written.size(), 1);
    }

    void pixelRangeIsRewrittenOnceAtEachRead()
    {
        QCOMPARE(QX11Info::appDpiY(), 96);
        const HomeWithFile home(sample("pixel-range"));
        StandardError standardError;
        KXftConfig config(allButDirectories);
        const QByteArray told = standardError.take().trimmed();
        QFile copy(QFile::decodeName(told.mid(told.lastIndexOf(" as ") + 4)));
        QVERIFY2(copy.open(QIODevice::ReadOnly), told.constData());
        QCOMPARE(copy.readAll(), sample("pixel-range"));
        QCOMPARE(summary(config).section(QLatin1Char(' '), 4), QStringLiteral("6-11 8-15"));
        QVERIFY(!config.changed());
        const QByteArray content = home.content();
        QVERIFY2(content.contains("name=\"size\"") && content.contains("name=\"pixelsize\""),
                 content.constData());
        QCOMPARE(home.backups(), 2);

        const QString stamp = fontsFileStamp(home.path(place));
        KXftConfig again(allButDirectories);
        again.setExcludePixelRange({8, 15});
        QVERIFY(!again.changed());
        QVERIFY(fontsFileStamp(home.path(place)) != stamp);
        QCOMPARE(home.content(), content);
        QCOMPARE(home.backups(), 2);
    }

    void removalTakesOlderElementsAlong()
    {
        const QByteArray rgba
            = "<match target='font'><edit mode='assign' name='rgba'><const>rgb</const></edit></match>\n";
        const HomeWithFile home("<fontconfig>\n" + rgba + rgba + "</fontconfig>\n");
        KXftConfig config(KXftConfig::SubPixelType);
        config.setSubPixelType(SubPixelOrder::None);
        QVERIFY(config.apply());
        QCOMPARE(home.content(), QByteArray("<?xml version=\"1.0\"?>\n<fontconfig>\n</fontconfig>\n"));
    }

    void directoriesAreAddedAndRemoved()
    {
        const HomeWithFile home(sample("all-settings"));
        KXftConfig config(KXftConfig::Directories);
        config.addDirectory(home.path(QStringLiteral("my fonts")));
        config.addDirectory(QStringLiteral("/srv/fonts/"));
        QVERIFY(config.apply());
        QVERIFY(home.content().contains("  <dir>~/my fonts</dir>\n  <dir>/srv/fonts</dir>\n</fontconfig>"));
        QCOMPARE(config.directories(),
                 (QStringList{home.path(QStringLiteral("my fonts/")), QStringLiteral("/srv/fonts/")}));
        config.removeDirectory(QStringLiteral("/srv/fonts"));
        config.removeDirectory(home.path(QStringLiteral("my fonts")));
        QVERIFY(config.apply());
        QCOMPARE(home.content(), sample("all-settings"));
    }

    void linkAndModeStay()
    {
        const TemporaryHome home;
        const QString target = home.write(QStringLiteral("dotfiles/fonts"), "<fontconfig/>\n");
        QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
        home.makeDirectory(QStringLiteral(".config/fontconfig"));
        QVERIFY(QFile::link(target, home.path(place)));
        KXftConfig config(allButDirectories);
        config.setSubPixelType(SubPixelOrder::Bgr);
        QVERIFY(config.apply());
        QCOMPARE(QFileInfo(home.path(place)).symLinkTarget(), target);
        QVERIFY(home.read(QStringLiteral("dotfiles/fonts")).contains("<const>bgr</const>"));
        QCOMPARE(QFileInfo(target).permissions() & 0x7077, QFile::Permissions(0x6000));
        QCOMPARE(QDir(home.path(QStringLiteral("dotfiles"))).count(), 3u); // with . and ..
    }

    void whatCannotBeReadIsLeftAlone()
    {
        const auto check = [](const TemporaryHome &home) {
            const QString before = home.fingerprint();
            StandardError standardError;
            KXftConfig config(allButDirectories);
            QVERIFY(!config.reset());
            QVERIFY(standardError.take().contains("qaz-admin-theme: Can't use "));
            config.setSubPixelType(SubPixelOrder::Bgr);
            QVERIFY(!config.apply());
            QCOMPARE(home.fingerprint(), before);
        };
        check(HomeWithFile("<fontconfig><match></fontconfig>"));
        check(HomeWithFile("<html/>"));
        check(HomeWithFile("<fontconfig>" + QByteArray(20000000, ' ') + "</fontconfig>"));
        TemporaryHome home;
        QVERIFY(home.makeDirectory(place));
        check(home);
        for (const QString &target : {QStringLiteral("nowhere"), place}) { // dangling, and to itself
            QVERIFY(QDir().rmdir(home.path(place)) || QFile::remove(home.path(place)));
            QVERIFY(QFile::link(home.path(target), home.path(place)));
            check(home);
        }
    }

    void readOnlyDirectoryIsLeftAlone()
    {
        const HomeWithFile home("<fontconfig/>\n");
        QFile::setPermissions(home.path(), QFile::Permissions(0x7755));
        QFile::setPermissions(home.path(QStringLiteral(".config/fontconfig")), QFile::Permissions(0x5555));
        const QString before = home.fingerprint();
        // The administrator may write everywhere.
        const uid_t user = ::geteuid();
        QVERIFY(user != 0 || ::seteuid(65534) == 0);
        KXftConfig config(allButDirectories);
        config.setSubPixelType(SubPixelOrder::Bgr);
        const bool applied = config.apply();
        QVERIFY(user != 0 || ::seteuid(user) == 0);
        QVERIFY(!applied);
        QCOMPARE(home.fingerprint(), before);
        QFile::setPermissions(home.path(QStringLiteral(".config/fontconfig")), QFile::Permissions(0x7755));
    }

    void bothChangesSurviveARewrite()
    {
        const HomeWithFile home("<fontconfig>\n</fontconfig>\n");
        KXftConfig config(allButDirectories);
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
        KXftConfig config(allButDirectories);
        config.setSubPixelType(SubPixelOrder::Bgr);
        {
            const FontsFileLock lock(home.path(place));
            QVERIFY(lock.isHeld());
            QVERIFY(!config.apply());
            QCOMPARE(home.content(), QByteArray("<fontconfig/>\n"));
        }
        QVERIFY(config.changed());
        QVERIFY(config.apply());
        QVERIFY(home.holdsOnlyTheFile());
    }

    void editorsAtTheSameTimeLeaveAWholeFile()
    {
        const HomeWithFile home(sample("aliases"));
        QProcess editors[3];
        for (int i = 0; i < 3; ++i)
            editors[i].start(QCoreApplication::applicationFilePath(),
                             {QStringLiteral("--edit-repeatedly"), QString::number(i + 1)});
        for (QProcess &editor : editors) {
            QVERIFY(editor.waitForFinished(60000));
            QVERIFY2(editor.exitCode() == 0, editor.readAllStandardError().constData());
        }
        QCOMPARE(foreignPieces(home.content()), foreignPieces(sample("aliases")));
        QVERIFY(home.holdsOnlyTheFile());
    }

    void fileIsChosenAmongFontconfigsOwn()
    {
        const TemporaryHome home;
        const auto file = [&home](const char *name) { return home.write(QLatin1String(name), ""); };
        const QString main = file("system/fonts.conf");
        const QString local = file("system/local.conf");
        const QString other = file(".config/fontconfig/conf.d/10-mine.conf");
        const QString own = file(".fonts.conf");
        const QString snippets = home.path(QStringLiteral(".config/fontconfig/conf.d"));
        QCOMPARE(chooseFontsFile({other, own}, false), own);
        QCOMPARE(chooseFontsFile({other, home.path(QStringLiteral("missing"))}, false), other);
        QCOMPARE(chooseFontsFile({main, local}, true), local);
        QCOMPARE(chooseFontsFile({main, snippets, local}, true),
                 snippets + QLatin1String("/29-qaz-rendering.conf"));
        QCOMPARE(chooseFontsFile({home.path()}, true), QStringLiteral("/etc/fonts/local.conf"));

        // A home of the same beginning is another home.
        QVERIFY(home.makeDirectory(QStringLiteral("me")));
        const QString neighbour = file("menu/fonts.conf");
        const ScopedEnvironment inner("HOME", qgetenv("HOME") + "/me");
        QCOMPARE(chooseFontsFile({main, own, neighbour}, false), home.path(place));
        const ScopedEnvironment unset("XDG_CONFIG_HOME", {});
        QCOMPARE(chooseFontsFile({}, false), home.path(QStringLiteral("me/.config/fontconfig/fonts.conf")));

        const ScopedEnvironment homeless("HOME", {}); // the password database knows a home
        QCOMPARE(userFontsFile(),
                 directoryPath(DirectoryKind::Home) + QLatin1String("/.config/fontconfig/fonts.conf"));
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
