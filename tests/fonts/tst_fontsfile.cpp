#include "fonts/fontsfile.h"

#include "settings/directories.h"
#include "tests/support/temporaryhome.h"

#include <QtTest>

#include <fcntl.h>
#include <sys/stat.h>
#include <unistd.h>

namespace {

const QString place = QStringLiteral(".config/fontconfig/fonts.conf");

} // namespace

class TestFontsFile : public QObject
{
    Q_OBJECT
private slots:
    void lockOfAKilledProgramGoes_data()
    {
        QTest::addColumn<QByteArray>("owner"); // null: the lock is a directory
        QTest::addColumn<int>("age");          // seconds
        QTest::addColumn<bool>("goes");
        QTest::newRow("its process has ended") << QByteArray("999999999\n") << 5 << true;
        QTest::newRow("its process hangs") << QByteArray::number(::getpid()) << 500 << false;
        QTest::newRow("its number was given out again") << QByteArray::number(::getpid()) << 700 << true;
        QTest::newRow("an old one of nobody") << QByteArray("") << 70 << true;
        QTest::newRow("an old directory") << QByteArray() << 3600 << true;
    }
    void lockOfAKilledProgramGoes()
    {
        QFETCH(QByteArray, owner);
        QFETCH(int, age);
        QFETCH(bool, goes);
        const TemporaryHome home;
        home.write(place, "<fontconfig/>\n");
        const QString lock = place + QLatin1String(".LCK");
        if (owner.isNull())
            QVERIFY(home.makeDirectory(lock));
        else
            home.write(lock, owner);
        timespec times[2] = {};
        times[0].tv_sec = times[1].tv_sec = ::time(nullptr) - age;
        QCOMPARE(::utimensat(AT_FDCWD, QFile::encodeName(home.path(lock)).constData(), times, 0), 0);
        const FontsFileLock held(home.path(place));
        QTEST(held.isHeld(), "goes");
        QCOMPARE(held.error(), goes ? QString() : QStringLiteral("Another program has locked it"));
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

QTEST_GUILESS_MAIN(TestFontsFile)
#include "tst_fontsfile.moc"
