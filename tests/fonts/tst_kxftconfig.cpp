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
    Config()
        : KXftConfig(0x1E)
    {
        reset();
    }
    bool apply()
    {
        QString error;
        return KXftConfig::apply(&error) && error.isEmpty();
    }
};

/// A home with a fontconfig file.
class HomeWithFile : public TemporaryHome
{
public:
    explicit HomeWithFile(const QByteArray &children) { write(place, fontsFile(children)); }
    /// No lock, no temporary file.
    bool holdsOnlyTheFile() const
    {
        return QDir(path(".config/fontconfig"_s)).entryList(QDir::AllEntries | QDir::Hidden).size() == 3;
    }
};

QString summary(const KXftConfig &config)
{
    const ExcludeRange points = config.excludeRange(), pixels = config.excludePixelRange();
    QString text;
    QTextStream(&text) << FontRendering::fileName(config.subPixelType()) << ' ' << int(config.hintStyle())
                       << ' ' << config.hinting() << ' ' << config.antiAliasing() << ' ' << points.from << '-'
                       << points.to << ' ' << pixels.from << '-' << pixels.to;
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
        Config config;
        QCOMPARE(standardError.take(), "qaz-admin-theme: user fontconfig file to use: "
                                           + QFile::encodeName(home.path(place)) + '\n');
        QCOMPARE(home.mode(".config/fontconfig"_s), 0700u);
        QCOMPARE(summary(config), "none 0 1 1 0-0 0-0"_s);
        QVERIFY(config.apply() && !home.exists(place)); // nothing had changed

        config.setHintStyle(HintStyle::None);
        QVERIFY(config.changed() && config.apply() && !config.changed());
        QCOMPARE(home.read(place),
                 fontsFile(element("hinting", "bool", "false") + element("hintstyle", "const", "hintnone")
                           + element("antialias", "bool", "true"))
                     .insert(22, "<!DOCTYPE fontconfig SYSTEM \"fonts.dtd\">\n"));
        QCOMPARE(summary(Config()), "none 1 0 1 0-0 0-0"_s);
        QVERIFY(!home.exists(".local"_s)); // ours alone: no copy
    }

    void settingsAreReadAndWritten()
    {
        const HomeWithFile home("  <dir>/a</dir>\n" + element("rgba", "const", "bgr")
                                + element("hintstyle", "const", "hintslight")
                                + element("antialias", "bool", "FALSE") + "  <!-- mine -->\n");
        Config config;
        QCOMPARE(summary(config), "bgr 2 1 0 0-0 0-0"_s);
        config.setExcludeRange({3, 7});
        config.setHintStyle(HintStyle::NotSet);
        config.setHinting(false);
        config.setSubPixelType(SubPixelOrder::None);
        config.setAntiAliasing(true);
        QVERIFY(config.apply());
        QCOMPARE(summary(config) + FontRendering::fileName(config.hintStyle()),
                 "none 0 0 1 3-7 4-9hintmedium"_s);
        QCOMPARE(home.read(place), fontsFile("  <dir>/a</dir>\n" + element("antialias", "bool", "true")
                                             + "  <!-- mine -->\n" + element("hinting", "bool", "false")
                                             + range("size", "3", "7") + range("pixelsize", "4", "9")));
        QVERIFY(home.holdsOnlyTheFile());
    }

    void pixelRangeIsRewrittenOnceAtEachRead()
    {
        const HomeWithFile home("<!-- mine -->\n" + range("size", "1", "2") + range("pixelsize", "8", "15"));
        const QByteArray before = home.read(place);
        Config config;
        QCOMPARE(home.backups(), QByteArrayList{before});
        QCOMPARE(summary(config).section(u' ', 4), "6-11 8-15"_s);
        QVERIFY(!config.changed());
        const QByteArray content = home.read(place);
        QVERIFY2(content.contains(range("size", "6", "11")), content.constData());

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
            QVERIFY(!config.reset());
            config.setSubPixelType(SubPixelOrder::Bgr);
            QVERIFY(!config.apply());
            QVERIFY(standardError.take().contains("qaz-admin-theme: Can't use "));
            QCOMPARE(home.fingerprint(), before);
        };
        check(HomeWithFile("<match>"));
        check(HomeWithFile(QByteArray(16 << 20, ' ')));
        TemporaryHome home;
        QVERIFY(home.makeDirectory(place));
        check(home);
        for (const QString &target : {"nowhere"_s, place}) { // dangling, and to itself
            QVERIFY(QDir().rmdir(home.path(place)) || QFile::remove(home.path(place)));
            QVERIFY(QFile::link(home.path(target), home.path(place)));
            check(home);
        }
    }

    void bothChangesSurviveARewrite()
    {
        const HomeWithFile home({});
        Config config;
        config.setExcludePixelRange({3, 10});
        config.setHintStyle(HintStyle::Full);
        home.write(place, fontsFile("  <alias/>\n" + element("rgba", "const", "rgb")));
        StandardError standardError;
        QVERIFY(config.apply());
        QVERIFY(standardError.take().startsWith(
            "qaz-admin-theme: font config file was rewritten since we last read!\n"));
        QVERIFY(home.read(place).contains("  <alias/>\n" + element("hinting", "bool", "true")));
        QCOMPARE(summary(config), "none 4 1 1 2-8 3-10"_s);
        QVERIFY(!config.changed());

        // The merge has read the file again: the next change needs none.
        config.setSubPixelType(SubPixelOrder::Rgb);
        QVERIFY(config.apply() && !standardError.take().contains("rewritten"));
    }

    void heldLockIsRespected()
    {
        const HomeWithFile home({});
        const QByteArray before = home.read(place);
        Config config;
        config.setSubPixelType(SubPixelOrder::Bgr);
        const QString lock = home.write(place + ".LCK"_s,
                                        QByteArray::number(QCoreApplication::applicationPid()));
        QString error;
        QVERIFY(!config.KXftConfig::apply(&error));
        QCOMPARE(error, "Another program has locked it"_s);
        QCOMPARE(home.read(place), before);
        QVERIFY(QFile::remove(lock) && config.changed() && config.apply());
        QVERIFY(home.holdsOnlyTheFile());
    }

    void halfWrittenFileIsLeftAlone()
    {
        const HomeWithFile home({});
        Config config;
        config.setSubPixelType(SubPixelOrder::Bgr);
        home.write(place, "<fontconfig>");
        StandardError standardError;
        QVERIFY(!config.apply() && config.changed());
        QCOMPARE(standardError.take().count("font config file was rewritten since we last read!\n"), 1);
        QCOMPARE(home.read(place), QByteArray("<fontconfig>"));
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
            const TemporaryHome home;
            home.write(place, "<fontconfig/>\n");
            const QString lock = place + ".LCK"_s;
            QVERIFY(owner.isNull() ? home.makeDirectory(lock) : !home.write(lock, owner).isEmpty());
            timespec times[2] = {};
            times[0].tv_sec = times[1].tv_sec = ::time(nullptr) - age;
            QCOMPARE(::utimensat(AT_FDCWD, QFile::encodeName(home.path(lock)).constData(), times, 0), 0);
            const FontsFileLock held(home.path(place));
            QVERIFY2(held.isHeld() && held.error().isEmpty(), owner.constData());
        }
    }

    void overtakenReplacementLeavesTheFile()
    {
        const TemporaryHome home;
        home.write(place, "<fontconfig/>\n");
        FontsFileLock lock(home.path(place));
        QString error;
        QVERIFY(!lock.replace(
            "ours", [] { return false; }, &error));
        QCOMPARE(error, QString());
        QCOMPARE(home.read(place), QByteArray("<fontconfig/>\n"));
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

    void fileIsChosenAmongFontconfigsOwn()
    {
        const TemporaryHome home;
        const auto file = [&home](const char *name) { return home.write(QLatin1String(name), ""); };
        const QString main = file("system/fonts.conf");
        const QString local = file("system/local.conf");
        const QString other = file(".config/fontconfig/conf.d/10-mine.conf");
        const QString own = file(".fonts.conf");
        const QString snippets = home.path(".config/fontconfig/conf.d"_s);
        QCOMPARE(chooseFontsFile({other, own}, false), own);
        QCOMPARE(chooseFontsFile({other, home.path("missing"_s)}, false), other);
        QCOMPARE(chooseFontsFile({main, local}, true), local);
        QCOMPARE(chooseFontsFile({main, snippets, local}, true), snippets + "/29-qaz-rendering.conf"_s);
        QCOMPARE(chooseFontsFile({home.path()}, true), "/etc/fonts/local.conf"_s);

        // A home of the same beginning is another home.
        QVERIFY(home.makeDirectory("me"_s));
        const QString neighbour = file("menu/fonts.conf");
        const ScopedEnvironment inner("HOME", qgetenv("HOME") + "/me");
        QCOMPARE(chooseFontsFile({main, own, neighbour}, false), home.path(place));
        const ScopedEnvironment unset("XDG_CONFIG_HOME", {});
        QCOMPARE(chooseFontsFile({}, false), home.path("me/.config/fontconfig/fonts.conf"_s));

        const ScopedEnvironment homeless("HOME", {}); // the password database knows a home
        QCOMPARE(userFontsFile(), directoryPath(DirectoryKind::Home) + "/.config/fontconfig/fonts.conf"_s);
    }
};

QTEST_MAIN(TestKXftConfig)
#include "tst_kxftconfig.moc"
