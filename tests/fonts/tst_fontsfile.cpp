#include "fonts/fontsfile.h"

#include "settings/directories.h"
#include "tests/support/standarderror.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/testing.h"

#include <fcntl.h>
#include <unistd.h>

namespace {
const QString place = ".config/fontconfig/fonts.conf"_s;
}

class TestFontsFile : public QObject
{
    Q_OBJECT
private slots:
    void lockOfAKilledProgramGoes()
    {
        // Whose it is (null: the lock is a directory) and its age in seconds.
        const QPair<QByteArray, int> locks[] = {{"999999999\n", 5},                    // has ended
                                                {QByteArray::number(::getpid()), 700}, // given out again
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

QTEST_GUILESS_MAIN(TestFontsFile)
#include "tst_fontsfile.moc"
