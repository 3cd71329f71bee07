#include "fonts/fontsfile.h"
#include "fonts/kxftconfig.h"
#include "tests/fonts/corpus.h"
#include "tests/support/standarderror.h"
#include "tests/support/temporaryhome.h"

#include <QProcess>
#include <QX11Info>

#include <functional>

#include <unistd.h>

namespace {

constexpr int allButDirectories = 0x1E;
const QString place = QStringLiteral(".config/fontconfig/fonts.conf");

struct Edit {
    const char *name;
    std::function<void(KXftConfig *)> change;
};

const Edit edits[] = {
    {"sub-pixel order", [](KXftConfig *config) { config->setSubPixelType(SubPixelOrder::VerticalRgb); }},
    {"no sub-pixel order", [](KXftConfig *config) { config->setSubPixelType(SubPixelOrder::None); }},
    {"hint style", [](KXftConfig *config) { config->setHintStyle(HintStyle::Slight); }},
    {"no hint style", [](KXftConfig *config) { config->setHintStyle(HintStyle::NotSet); }},
    {"anti-aliasing", [](KXftConfig *config) { config->setAntiAliasing(!config->antiAliasing()); }},
    {"range",
     [](KXftConfig *config) {
         config->setExcludePixelRange({3, 7});
     }},
    {"range in points",
     [](KXftConfig *config) {
         config->setExcludeRange({3, 6});
     }},
    {"no range", [](KXftConfig *config) { config->setExcludePixelRange({}); }}};

QString summary(const KXftConfig &config)
{
    return QStringLiteral("%1 %2 %3 %4 %5-%6 %7-%8")
        .arg(FontRendering::fileName(config.subPixelType()), QString::number(int(config.hintStyle())),
             QString::number(config.hinting()), QString::number(config.antiAliasing()),
             QString::number(config.excludeRange().from), QString::number(config.excludeRange().to),
             QString::number(config.excludePixelRange().from),
             QString::number(config.excludePixelRange().to));
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

QStringList namesIn(const QString &directory)
{
    return QDir(directory).entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot);
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
        for (const Edit &edit : edits) {
            const TemporaryHome home;
            home.write(place, content);
            KXftConfig config(allButDirectories);
            edit.change(&config);
            const QString wanted = summary(config);
            QVERIFY(config.apply());
            const QByteArray after = home.read(place);
            QCOMPARE(foreignPieces(after), foreignPieces(content));
            QCOMPARE(summary(config), wanted);
            QCOMPARE(summary(KXftConfig(allButDirectories)), wanted);
            QCOMPARE(namesIn(home.path(QStringLiteral(".config/fontconfig"))),
                     QStringList(QStringLiteral("fonts.conf")));
        }
    }

    void everyHashSeedWritesTheSame()
    {
        QSet<QByteArray> written;
        for (int seed = 0; seed < 20; ++seed) {
            qSetGlobalQHashSeed(seed ? -1 : 0);
            const TemporaryHome home;
            home.write(place, corpus().value(QStringLiteral("unknown-content")));
            KXftConfig config(allButDirectories);
            config.setExcludePixelRange({3, 7});
            config.setSubPixelType(SubPixelOrder::Rgb);
            QVERIFY(config.apply());
            written.insert(home.read(place));
        }
        QCOMPARE(written.size(), 1);
    }

    void pixelRangeIsRewrittenOnceAtEachRead()
    {
        QCOMPARE(QX11Info::appDpiY(), 96);
        const TemporaryHome home;
        home.write(place, corpus().value(QStringLiteral("pixel-range")));
        KXftConfig config(allButDirectories);
        QCOMPARE(summary(config).section(QLatin1Char(' '), 4), QStringLiteral("6-11 8-15"));
        QVERIFY(!config.changed());
        const QByteArray content = home.read(place);
        QVERIFY2(content.contains("name=\"size\"") && content.contains("name=\"pixelsize\""),
                 content.constData());
        QCOMPARE(namesIn(home.path(QStringLiteral(".local/state/qaz/backup"))).size(), 2); // copy, manifest

        const QString stamp = fontsFileStamp(home.path(place));
        KXftConfig again(allButDirectories);
        again.setExcludePixelRange({8, 15});
        QVERIFY(!again.changed());
        QVERIFY(fontsFileStamp(home.path(place)) != stamp);
        QCOMPARE(home.read(place), content);
        QCOMPARE(namesIn(home.path(QStringLiteral(".local/state/qaz/backup"))).size(), 2);
    }

    void removalTakesOlderElementsAlong()
    {
        const TemporaryHome home;
        const QByteArray rgba
            = "<match target='font'><edit mode='assign' name='rgba'><const>rgb</const></edit></match>\n";
        home.write(place, "<fontconfig>\n" + rgba + rgba + "</fontconfig>\n");
        KXftConfig config(KXftConfig::SubPixelType);
        config.setSubPixelType(SubPixelOrder::None);
        QVERIFY(config.apply());
        QCOMPARE(home.read(place), QByteArray("<?xml version=\"1.0\"?>\n<fontconfig>\n</fontconfig>\n"));
    }

    void directoriesAreAddedAndRemoved()
    {
        const TemporaryHome home;
        home.write(place, corpus().value(QStringLiteral("all-settings")));
        KXftConfig config(KXftConfig::Directories);
        config.addDirectory(home.path(QStringLiteral("my fonts")));
        config.addDirectory(QStringLiteral("/srv/fonts/"));
        QVERIFY(config.apply());
        QVERIFY(home.read(place).contains("  <dir>~/my fonts</dir>\n  <dir>/srv/fonts</dir>\n</fontconfig>"));
        QCOMPARE(config.directories(),
                 (QStringList{home.path(QStringLiteral("my fonts/")), QStringLiteral("/srv/fonts/")}));
        config.removeDirectory(QStringLiteral("/srv/fonts"));
        config.removeDirectory(home.path(QStringLiteral("my fonts")));
        QVERIFY(config.apply());
        QCOMPARE(home.read(place), corpus().value(QStringLiteral("all-settings")));
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
        QCOMPARE(namesIn(home.path(QStringLiteral("dotfiles"))), QStringList(QStringLiteral("fonts")));
    }

    void whatCannotBeReadIsLeftAlone_data()
    {
        QTest::addColumn<QString>("what");
        for (const char *what :
             {"malformed", "foreign root", "20 MB", "directory", "dangling link", "link to itself"})
            QTest::newRow(what) << QString::fromLatin1(what);
    }
    void whatCannotBeReadIsLeftAlone()
    {
        QFETCH(QString, what);
        const TemporaryHome home;
        home.makeDirectory(QStringLiteral(".config/fontconfig"));
        if (what == QLatin1String("malformed"))
            home.write(place, "<fontconfig><match></fontconfig>");
        else if (what == QLatin1String("foreign root"))
            home.write(place, "<html/>");
        else if (what == QLatin1String("20 MB"))
            home.write(place, "<fontconfig>" + QByteArray(20000000, ' ') + "</fontconfig>");
        else if (what == QLatin1String("directory"))
            home.makeDirectory(place);
        else
            QFile::link(home.path(what == QLatin1String("dangling link") ? QStringLiteral("away") : place),
                        home.path(place));
        const QString before = home.fingerprint();
        StandardError standardError;
        KXftConfig config(allButDirectories);
        QVERIFY(!config.reset());
        QVERIFY(standardError.take().contains("qaz-admin-theme: Can't use "));
        config.setSubPixelType(SubPixelOrder::Bgr);
        QVERIFY(!config.apply());
        QCOMPARE(home.fingerprint(), before);
    }

    void readOnlyDirectoryIsLeftAlone()
    {
        const TemporaryHome home;
        home.write(place, "<fontconfig/>\n");
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

    void foreignFileIsBackedUpFirst()
    {
        const TemporaryHome home;
        const QByteArray content = corpus().value(QStringLiteral("aliases"));
        home.write(place, content);
        KXftConfig config(allButDirectories);
        config.setSubPixelType(SubPixelOrder::Bgr);
        StandardError standardError;
        QVERIFY(config.apply());
        const QList<QByteArray> lines = standardError.take().trimmed().split('\n');
        QCOMPARE(lines.size(), 1);
        QFile copy(QFile::decodeName(lines.first().mid(lines.first().lastIndexOf(" as ") + 4)));
        QVERIFY(copy.open(QIODevice::ReadOnly));
        QCOMPARE(copy.readAll(), content);
    }

    void bothChangesSurviveARewrite()
    {
        const TemporaryHome home;
        home.write(place, "<fontconfig>\n</fontconfig>\n");
        KXftConfig config(allButDirectories);
        config.setExcludePixelRange({3, 10});
        config.setHintStyle(HintStyle::Full);
        home.write(place, corpus().value(QStringLiteral("near-misses")));
        StandardError standardError;
        QVERIFY(config.apply());
        QVERIFY(standardError.take().startsWith(
            "qaz-admin-theme: font config file was rewritten since we last read!\n"));
        QCOMPARE(foreignPieces(home.read(place)),
                 foreignPieces(corpus().value(QStringLiteral("near-misses"))));
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
        const TemporaryHome home;
        home.write(place, "<fontconfig/>\n");
        KXftConfig config(allButDirectories);
        config.setSubPixelType(SubPixelOrder::Bgr);
        {
            const FontsFileLock lock(home.path(place));
            QVERIFY(lock.isHeld());
            QVERIFY(!config.apply());
            QCOMPARE(home.read(place), QByteArray("<fontconfig/>\n"));
        }
        QVERIFY(config.changed());
        QVERIFY(config.apply());
        QCOMPARE(namesIn(home.path(QStringLiteral(".config/fontconfig"))),
                 QStringList(QStringLiteral("fonts.conf")));
    }

    void editorsAtTheSameTimeLeaveAWholeFile()
    {
        const TemporaryHome home;
        const QByteArray content = corpus().value(QStringLiteral("aliases"));
        home.write(place, content);
        QProcess editors[3];
        for (int i = 0; i < 3; ++i)
            editors[i].start(QCoreApplication::applicationFilePath(),
                             {QStringLiteral("--edit-repeatedly"), QString::number(i + 1)});
        for (QProcess &editor : editors) {
            QVERIFY(editor.waitForFinished(60000));
            QVERIFY2(editor.exitCode() == 0, editor.readAllStandardError().constData());
        }
        QCOMPARE(foreignPieces(home.read(place)), foreignPieces(content));
        QCOMPARE(namesIn(home.path(QStringLiteral(".config/fontconfig"))),
                 QStringList(QStringLiteral("fonts.conf")));
    }

    void fileIsChosenAmongFontconfigsOwn()
    {
        const TemporaryHome home;
        const QString main = home.write(QStringLiteral("system/fonts.conf"), "");
        const QString other = home.write(QStringLiteral(".config/fontconfig/conf.d/10-mine.conf"), "");
        const QString own = home.write(QStringLiteral(".fonts.conf"), "");
        const QString local = home.write(QStringLiteral("system/local.conf"), "");
        const QString directory = home.path(QStringLiteral("system"));
        const QString snippets = home.path(QStringLiteral(".config/fontconfig/conf.d"));
        QVERIFY(QDir().mkpath(home.path(QStringLiteral("me"))));
        const QByteArray outer = qgetenv("HOME");

        QCOMPARE(chooseFontsFile({other, own}, false), own);
        QCOMPARE(chooseFontsFile({other, home.path(QStringLiteral("missing"))}, false), other);
        QCOMPARE(chooseFontsFile({main, local}, true), local);
        QCOMPARE(chooseFontsFile({main, snippets, local}, true),
                 snippets + QLatin1String("/29-qaz-rendering.conf"));
        QCOMPARE(chooseFontsFile({directory}, true), QStringLiteral("/etc/fonts/local.conf"));

        // A home of the same beginning is another home.
        const ScopedEnvironment inner("HOME", outer + "/me");
        const QString neighbour = home.write(QStringLiteral("menu/fonts.conf"), "");
        QCOMPARE(chooseFontsFile({main, own, neighbour}, false), home.path(place));
        const ScopedEnvironment unset("XDG_CONFIG_HOME", {});
        QCOMPARE(chooseFontsFile({}, false), home.path(QStringLiteral("me/.config/fontconfig/fonts.conf")));
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
