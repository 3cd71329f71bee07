#include "fonts/kxftconfig.h"

#include "fonts/fontsfile.h"
#include "settings/directories.h"
#include "tests/fonts/elements.h"
#include "tests/support/standarderror.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/testing.h"

#include <fcntl.h>

namespace {

/// As the dialog uses it: chosen and read, the reason of a failure not asked for.
class Config : public KXftConfig
{
public:
    Config() { reset(); }
    bool apply()
    {
        QString error;
        return KXftConfig::apply(&error) && error.isEmpty();
    }
};

/// A lock of \a owner (null: as a directory) with an age in seconds.
void writeLock(const TemporaryHome &home, const QByteArray &owner, int age)
{
    const QString lock = place + ".LCK"_s;
    QVERIFY(owner.isNull() ? home.makeDirectory(lock) : !home.write(lock, owner).isEmpty());
    timespec times[2] = {};
    times[0].tv_sec = times[1].tv_sec = ::time(nullptr) - age;
    QCOMPARE(::utimensat(AT_FDCWD, QFile::encodeName(home.path(lock)).constData(), times, 0), 0);
}

/// A home with a fontconfig file.
class HomeWithFile : public TemporaryHome
{
public:
    explicit HomeWithFile(const QByteArray &children) { write(place, fontsFile(children)); }
};

QString summary(const KXftConfig &config)
{
    const auto [from, to] = config.excludePixelRange();
    const QString order = FontRendering::fileName(config.subPixelType());
    return "%1 %2 %3 %4 %5-%6"_s.arg(order)
        .arg(int(config.hintStyle()))
        .arg(config.hinting())
        .arg(config.antiAliasing())
        .arg(from)
        .arg(to);
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
        QCOMPARE(home.mode(".config/fontconfig"_s), 0700u);
        QCOMPARE(summary(config), "none 0 1 1 0-0"_s);
        QVERIFY(config.apply() && !home.exists(place)); // nothing had changed

        config.setHintStyle(HintStyle::None);
        QVERIFY(config.changed() && config.apply() && !config.changed());
        QCOMPARE(home.read(place), fontsFile("hinting=false hintstyle=hintnone antialias=true")
                                       .insert(22, "<!DOCTYPE fontconfig SYSTEM \"fonts.dtd\">\n"));
        QCOMPARE(summary(Config()), "none 1 0 1 0-0"_s);
        QVERIFY(!home.exists(".local"_s)); // ours alone: no copy
        home.write("other"_s, {});
        QCOMPARE(home.mode(place), home.mode("other"_s));
    }

    void antiAliasingIsTheSystemsUnlessTheFileTells()
    {
        const TemporaryHome home;
        home.write(place, "<fontconfig><match><edit name='antialias' mode='assign'><bool>false</bool></edit>"
                          "</match></fontconfig>");
        FcInitReinitialize();
        QCOMPARE(summary(Config()), "none 0 1 0 0-0"_s);
        const TemporaryHome other;
        FcInitReinitialize();
        QCOMPARE(summary(Config()), "none 0 1 1 0-0"_s);
    }

    void settingsAreReadAndWritten()
    {
        const HomeWithFile home("<dir>/a</dir> rgba=bgr hintstyle=hintslight antialias=FALSE <!--mine-->");
        Config config;
        QCOMPARE(summary(config), "bgr 2 1 0 0-0"_s);
        config.setExcludePixelRange({36, 48});
        config.setHintStyle(HintStyle::NotSet);
        config.setHinting(false);
        config.setSubPixelType(SubPixelOrder::None);
        config.setAntiAliasing(true);
        QVERIFY(config.apply());
        QCOMPARE(summary(config) + FontRendering::fileName(config.hintStyle()),
                 "none 0 0 1 36-48hintmedium"_s);
        QCOMPARE(home.read(place),
                 fontsFile("<dir>/a</dir> antialias=true <!--mine--> hinting=false size=27-36 "
                           "pixelsize=36-48"));
        QCOMPARE(home.names(".config/fontconfig"_s), "fonts.conf"_s);
        home.write(place, fontsFile("size=27-36"));
        QCOMPARE(summary(Config()), "none 0 1 1 36-48"_s);
    }

    void pixelRangeIsRewrittenOnceAtEachRead()
    {
        const HomeWithFile home("<!--mine--> size=1-2 pixelsize=8-15");
        const QByteArray before = home.read(place);
        StandardError standardError;
        Config config;
        QVERIFY(
            standardError.take().contains("Saved a copy of " + QFile::encodeName(home.path(place)) + " as "));
        QCOMPARE(home.backups(), QByteArrayList{before});
        QVERIFY(!config.changed());
        const QByteArray content = home.read(place);
        QCOMPARE(content, fontsFile("<!--mine--> antialias=true size=6-11 pixelsize=8-15 hinting=true"));

        const QString fingerprint = home.fingerprint();
        Config again;
        again.setExcludePixelRange({8, 15});
        QVERIFY(!again.changed());
        QVERIFY(home.fingerprint() != fingerprint);
        QCOMPARE(home.read(place), content);
        QCOMPARE(home.backups().size(), 1);
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
        QCOMPARE(home.mode("dotfiles/fonts"_s), 0600u);
        QCOMPARE(QDir(home.path("dotfiles"_s)).count(), 3u); // with . and ..
    }

    void whatCannotBeReadIsLeftAlone()
    {
        const auto check = [](const TemporaryHome &home) {
            const QString before = home.fingerprint();
            StandardError standardError;
            Config config;
            config.setSubPixelType(SubPixelOrder::Bgr);
            QVERIFY(!config.apply());
            QVERIFY(standardError.take().contains("qaz-admin-theme: Can't "));
            QCOMPARE(home.fingerprint(), before);
        };
        const TemporaryHome fileInTheWay;
        fileInTheWay.write(".config/fontconfig"_s, {});
        check(fileInTheWay);
        const HomeWithFile broken("<match>");
        check(broken);
        broken.write(place, QByteArray((16 << 20) + 1, ' '));
        check(broken);
        TemporaryHome home;
        QVERIFY(home.makeDirectory(place));
        check(home);
        for (const QString &target : {"nowhere"_s, place}) { // dangling, and to itself
            QVERIFY(QDir().rmdir(home.path(place)) || QFile::remove(home.path(place)));
            QVERIFY(QFile::link(home.path(target), home.path(place)));
            check(home);
        }
        QCOMPARE(FontsFileLock(home.path(place)).error(), "No file can be made in its directory"_s);
    }

    void bothChangesSurviveARewrite()
    {
        const HomeWithFile home({});
        Config config;
        config.setExcludePixelRange({3, 10});
        config.setHintStyle(HintStyle::Full);
        home.write(place, fontsFile("<alias/> rgba=rgb"));
        StandardError standardError;
        QVERIFY(config.apply());
        QVERIFY(standardError.take().startsWith(
            "qaz-admin-theme: font config file was rewritten since we last read!\n"));
        QCOMPARE(home.read(place),
                 fontsFile("<alias/> hinting=true hintstyle=hintfull antialias=true size=2-8 "
                           "pixelsize=3-10"));
        QCOMPARE(summary(config), "none 4 1 1 3-10"_s);
        QVERIFY(!config.changed());

        // The merge has read the file again: the next change needs none.
        config.setSubPixelType(SubPixelOrder::Rgb);
        QVERIFY(QFile::remove(home.path(place))); // nor when the file is gone
        QVERIFY(config.apply() && !standardError.take().contains("rewritten"));

        config.setSubPixelType(SubPixelOrder::Bgr);
        home.write(place, "<fontconfig>"); // the half of it, perhaps
        QVERIFY(!config.apply() && config.changed());
        QCOMPARE(standardError.take().count("font config file was rewritten since we last read!\n"), 1);
        QCOMPARE(home.read(place), QByteArray("<fontconfig>"));
    }

    void whatCannotBeWrittenWaits()
    {
        const HomeWithFile home("pixelsize=8-15");
        const QByteArray before = home.read(place);
        const QString inTheWay = place + ".NEW"_s, lock = place + ".LCK"_s;
        const auto told = [&home](const char *why) {
            return "qaz-admin-theme: Can't write " + QFile::encodeName(home.path(place)) + ": " + why + '\n';
        };
        home.makeDirectory(inTheWay);
        StandardError standardError;
        Config config; // would bring the ranges into agreement
        QVERIFY(standardError.take().endsWith(told("Is a directory")) && !config.changed());
        config.setSubPixelType(SubPixelOrder::Bgr);
        QVERIFY(!config.apply());
        QCOMPARE(standardError.take(), told("Is a directory"));
        QVERIFY(QDir().rmdir(home.path(inTheWay)));

        writeLock(home, QByteArray::number(QCoreApplication::applicationPid()), 500);
        QVERIFY(!config.apply());
        QCOMPARE(standardError.take(), told("Another program has locked it"));
        QCOMPARE(home.read(place), before);
        QVERIFY(QFile::remove(home.path(lock)) && config.changed() && config.apply());
        QCOMPARE(home.names(".config/fontconfig"_s), "fonts.conf"_s);
    }

    void lockOfAKilledProgramGoes()
    {
        // Whose it is (null: the lock is a directory) and its age in seconds.
        const QPair<QByteArray, int> locks[] = {
            {"999999999\n", 5},                                            // has ended
            {QByteArray::number(QCoreApplication::applicationPid()), 700}, // given out again
            {"", 70},
            {{}, 3600}};
        for (const auto &[owner, age] : locks) {
            const HomeWithFile home({});
            writeLock(home, owner, age);
            const FontsFileLock held(home.path(place));
            QVERIFY2(held.isHeld() && held.error().isEmpty(), owner.constData());
        }
    }

    void overtakenReplacementLeavesTheFile()
    {
        const HomeWithFile home({});
        const QString path = home.path(place);
        FontsFileLock lock(path);
        QString error;
        QVERIFY(!lock.replace(
            "ours", [] { return false; }, &error));
        QCOMPARE(error, QString());
        QCOMPARE(home.read(place), fontsFile({}));
        const auto putDirectoryInTheWay = [&path] { return QFile::remove(path) && QDir().mkdir(path); };
        QVERIFY(!lock.replace("ours", putDirectoryInTheWay, &error));
        QCOMPARE(error, "Is a directory"_s);
        QCOMPARE(home.names(".config/fontconfig"_s), "fonts.conf fonts.conf.LCK"_s);
    }

    void fontconfigDoesNotWaitForAFifo()
    {
        const TemporaryHome home;
        home.write(place, "<fontconfig/>\n");
        StandardError standardError;
        guardFontconfig();
        QCOMPARE(FcConfigEnableHome(FcTrue), FcTrue);
        const QByteArray fifo = QFile::encodeName(home.makeFifo(".fonts.conf"_s));
        guardFontconfig();
        QCOMPARE(standardError.take(), "qaz-admin-theme: Can't use " + fifo + ": Not a regular file\n");
        QCOMPARE(FcConfigEnableHome(FcTrue), FcFalse);
    }

    void theUsersFontconfigFileIsLoaded()
    {
        const TemporaryHome home;
        const QString own = home.write(place, "<fontconfig/>\n");
        loadFontconfig();
        QVERIFY(fontconfigFiles().contains(own));
        const QStringList loaded = fontconfigFiles();
        QVERIFY(FcInitReinitialize());
        QCOMPARE(fontconfigFiles(), loaded);
    }

    void fileIsChosenAmongFontconfigsOwn()
    {
        const TemporaryHome home;
        const auto file = [&home](const char *name) { return home.write(QLatin1String(name), ""); };
        const QString main = file("system/fonts.conf");
        const QString other = file(".config/fontconfig/conf.d/10-mine.conf");
        const QString own = file(".fonts.conf");
        QCOMPARE(chooseFontsFile({other, own}), own);
        QCOMPARE(chooseFontsFile({home.path("missing"_s), other}), other);

        // A home of the same beginning is another home.
        QVERIFY(home.makeDirectory("me"_s));
        const QString neighbour = file("menu/fonts.conf");
        const ScopedEnvironment inner("HOME", qgetenv("HOME") + "/me");
        QCOMPARE(chooseFontsFile({main, own, neighbour}), home.path(place));
        const ScopedEnvironment unset("XDG_CONFIG_HOME", {});
        QCOMPARE(chooseFontsFile({}), home.path("me/.config/fontconfig/fonts.conf"_s));

        const ScopedEnvironment homeless("HOME", {}); // the password database knows a home
        QCOMPARE(userFontsFile(), directoryPath(DirectoryKind::Home) + "/.config/fontconfig/fonts.conf"_s);
    }
};

QTEST_MAIN(TestKXftConfig)
#include "tst_kxftconfig.moc"
