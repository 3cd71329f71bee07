#include "fonts/kxftconfig.h"

#include "fonts/fontsfile.h"
#include "settings/directories.h"
#include "tests/fonts/elements.h"
#include "tests/support/standarderror.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/testing.h"

#include <fcntl.h>

namespace {

bool applies(KXftConfig *config)
{
    QString error;
    return config->apply(&error) || error.isEmpty(); // who fails tells why
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
    QString text;
    QTextStream(&text) << FontRendering::fileName(config.subPixelType()) << ' ' << int(config.hintStyle())
                       << ' ' << config.hinting() << ' ' << config.antiAliasing() << ' ' << from << '-' << to;
    return text;
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
        KXftConfig config;
        QCOMPARE(standardError.take(), "qaz-admin-theme: user fontconfig file to use: "
                                           + QFile::encodeName(home.path(place)) + '\n');
        QCOMPARE(home.mode(".config/fontconfig"_s), 0700u);
        QVERIFY(applies(&config) && !home.exists(place)); // nothing had changed
        config.setHintStyle(HintStyle::None);
        QVERIFY(config.changed() && applies(&config) && !config.changed());
        QCOMPARE(home.read(place), fontsFile("hinting=false hintstyle=hintnone antialias=true")
                                       .insert(22, "<!DOCTYPE fontconfig SYSTEM \"fonts.dtd\">\n"));
        QCOMPARE(summary(KXftConfig()), "none 1 0 1 0-0"_s);
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
        QCOMPARE(summary(KXftConfig()), "none 0 1 0 0-0"_s);
        const TemporaryHome other;
        FcInitReinitialize();
        QCOMPARE(summary(KXftConfig()), "none 0 1 1 0-0"_s);
    }

    void settingsAreWrittenThroughALink()
    {
        const TemporaryHome home;
        const QString dotfile = "dotfiles/fonts"_s;
        const QString target = home.write(
            dotfile, fontsFile("<dir>/a</dir> rgba=bgr hintstyle=hintslight antialias=FALSE <!--mine-->"));
        QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
        QVERIFY(home.makeDirectory(".config/fontconfig"_s) && QFile::link(target, home.path(place)));
        KXftConfig config;
        QCOMPARE(summary(config), "bgr 2 1 0 0-0"_s);
        config.setExcludePixelRange({36, 48});
        config.setHintStyle(HintStyle::NotSet);
        config.setHinting(false);
        config.setSubPixelType(SubPixelOrder::None);
        config.setAntiAliasing(true);
        QVERIFY(applies(&config));
        QCOMPARE(summary(config), "none 0 0 1 36-48"_s);
        QCOMPARE(home.read(dotfile), fontsFile("<dir>/a</dir> antialias=true <!--mine--> hinting=false "
                                               "size=27-36 pixelsize=36-48"));
        QCOMPARE(QFileInfo(home.path(place)).symLinkTarget(), target);
        QCOMPARE(home.mode(dotfile), 0600u);
        QCOMPARE(home.names("dotfiles"_s) + home.names(".config/fontconfig"_s), "fontsfonts.conf"_s);
        home.write(place, fontsFile("size=27-36"));
        QCOMPARE(summary(KXftConfig()), "none 0 1 1 36-48"_s);
    }

    void pixelRangeIsRewrittenOnceAtEachRead()
    {
        const HomeWithFile home("<!--mine--> size=1-2 pixelsize=8-15");
        const QByteArray before = home.read(place);
        StandardError standardError;
        KXftConfig config;
        QVERIFY(
            standardError.take().contains("Saved a copy of " + QFile::encodeName(home.path(place)) + " as "));
        QCOMPARE(home.backups(), QByteArrayList{before});
        QVERIFY(!config.changed());
        const QByteArray content = home.read(place);
        QCOMPARE(content, fontsFile("<!--mine--> antialias=true size=6-11 pixelsize=8-15 hinting=true"));

        const timespec longAgo[2] = {{1, 0}, {1, 0}}; // so that no rewrite falls into the same tick
        QCOMPARE(::utimensat(AT_FDCWD, QFile::encodeName(home.path(place)).constData(), longAgo, 0), 0);
        const QString fingerprint = home.fingerprint();
        KXftConfig again;
        again.setExcludePixelRange({8, 15});
        QVERIFY(!again.changed());
        QVERIFY(home.fingerprint() != fingerprint);
        QCOMPARE(home.read(place), content);
        QCOMPARE(home.backups().size(), 1);
    }

    void whatCannotBeReadIsLeftAlone()
    {
        const TemporaryHome home;
        const QString path = home.path(place), directory = ".config/fontconfig"_s;
        const std::function<bool()> obstacles[] = {
            [&] { return !home.write(directory, {}).isEmpty(); },
            [&] {
                return QFile::remove(home.path(directory)) && home.write(place, fontsFile("<match>")) == path;
            },
            [&] { return home.write(place, QByteArray((16 << 20) + 1, ' ')) == path; },
            [&] { return QFile::remove(path) && QDir().mkdir(path); },
            [&] { return QDir().rmdir(path) && QFile::link(home.path("nowhere"_s), path); },
            [&] { return QFile::remove(path) && QFile::link(path, path); }};
        for (const auto &obstacle : obstacles) {
            QVERIFY(obstacle());
            const QString before = home.fingerprint();
            StandardError standardError;
            KXftConfig config;
            config.setSubPixelType(SubPixelOrder::Bgr);
            QVERIFY(!applies(&config));
            const QByteArray told = standardError.take();
            QVERIFY(told.contains("qaz-admin-theme: Can't write "));
            QVERIFY(told.contains("qaz-admin-theme: Can't use ") == (&obstacle != obstacles));
            QCOMPARE(home.fingerprint(), before);
        }
        QCOMPARE(FontsFileLock(path).error(), "No file can be made in its directory"_s);
    }

    void bothChangesSurviveARewrite()
    {
        const HomeWithFile home({});
        KXftConfig config;
        config.setExcludePixelRange({3, 10});
        config.setHintStyle(HintStyle::Full);
        home.write(place, fontsFile("<alias/> rgba=rgb"));
        StandardError standardError;
        QVERIFY(applies(&config));
        QVERIFY(standardError.take().startsWith(
            "qaz-admin-theme: font config file was rewritten since we last read!\n"));
        const QByteArray both
            = "<alias/> hinting=true hintstyle=hintfull antialias=true size=2-8 pixelsize=3-10";
        QCOMPARE(home.read(place), fontsFile(both));
        QCOMPARE(summary(config), "none 4 1 1 3-10"_s);
        // The merge has read the file again: the next change needs none.
        config.setSubPixelType(SubPixelOrder::Rgb);
        QVERIFY(QFile::remove(home.path(place))); // nor when the file is gone
        QVERIFY(applies(&config) && !standardError.take().contains("rewritten"));
        QCOMPARE(home.read(place), fontsFile(both + " rgba=rgb"));

        config.setSubPixelType(SubPixelOrder::Bgr);
        home.write(place, "<fontconfig>"); // the half of it, perhaps
        QVERIFY(!applies(&config) && config.changed());
        QCOMPARE(standardError.take().count("font config file was rewritten since we last read!\n"), 1);
        QCOMPARE(home.read(place), QByteArray("<fontconfig>"));
    }

    void whatCannotBeWrittenWaits()
    {
        const HomeWithFile home("pixelsize=8-15");
        const QByteArray told = "qaz-admin-theme: Can't write " + QFile::encodeName(home.path(place))
                                + ": Is a directory\n";
        home.makeDirectory(place + ".NEW"_s);
        StandardError standardError;
        KXftConfig config; // would bring the ranges into agreement
        QVERIFY(standardError.take().endsWith(told) && !config.changed());
        config.setSubPixelType(SubPixelOrder::Bgr);
        QVERIFY(!applies(&config));
        QCOMPARE(standardError.take(), told);
        QCOMPARE(home.read(place), fontsFile("pixelsize=8-15"));
        QVERIFY(QDir().rmdir(home.path(place + ".NEW"_s)) && config.changed() && applies(&config));
        QCOMPARE(home.names(".config/fontconfig"_s), "fonts.conf"_s);
    }

    void lockOfAKilledProgramGoes()
    {
        // Whose it is (null: the lock is a directory) and its age in seconds.
        const QByteArray alive = QByteArray::number(QCoreApplication::applicationPid());
        const QPair<QByteArray, int> locks[] = {
            {"999999999\n", 5}, {alive, 700}, {"", 70}, {{}, 3600}, {alive, 500}};
        QString errors;
        for (const auto &[owner, age] : locks) {
            const HomeWithFile home({});
            const QString lock = place + ".LCK"_s;
            QVERIFY(owner.isNull() ? home.makeDirectory(lock) : !home.write(lock, owner).isEmpty());
            timespec times[2] = {};
            times[0].tv_sec = times[1].tv_sec = ::time(nullptr) - age;
            QCOMPARE(::utimensat(AT_FDCWD, QFile::encodeName(home.path(lock)).constData(), times, 0), 0);
            errors += FontsFileLock(home.path(place)).error() + u'|';
        }
        QCOMPARE(errors, "||||Another program has locked it|"_s);
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
        QVERIFY(home.makeDirectory(place + ".NEW"_s) && !lock.replace("ours", {}, &error));
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
        const QStringList loaded = fontconfigFiles();
        QVERIFY(loaded.contains(own) && FcInitReinitialize());
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
