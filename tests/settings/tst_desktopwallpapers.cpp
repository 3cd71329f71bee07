#include "settings/desktopwallpapers.h"
#include "tests/support/literals.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"

#include <QFile>
#include <QTest>

#include <sys/stat.h>

static const QString first = "Desktops/Desktop1/.directory"_s;

class TestDesktopWallpapers : public QObject
{
    Q_OBJECT
private slots:
    void removingKeepsEveryOtherByte()
    {
        const QByteArray signature = "\xEF\xBB\xBF"; // which goes with the key
        const QByteArray head = "; mine\r\n\r\n\r\n[Z]\r\nb = 1\r\na=2  \r\n[Desktop Entry]\r\n"
                                "Name=\xFF\r\n# why\r\nX-QAZ-WallPaper[de]=x\r\n";
        const QByteArray tail = "x-qaz-wallpaper=lower\r\n\r\n[Y]\r\nX-QAZ-WallPaper=other group";
        const QByteArray before = signature + head + "X-QAZ-WallPaper = \"#a6caf0\"\r\n" + tail;
        const TemporaryHome home;
        home.write(first, before);
        removeDesktopWallpapers();
        QCOMPARE(home.read(first), head + tail);
        QCOMPARE(home.backups(), QByteArrayList{before});
    }

    void removingGoesThroughAllDesktops()
    {
        const TemporaryHome home;
        const QByteArray content = "[Desktop Entry]\nX-QAZ-WallPaper=a\n";
        const QString stripped[] = {first, "Desktops/Desktop/.directory"_s,
                                    "Desktops/Desktop 22 b/.directory"_s};
        const QString kept[] = {"Desktops/DesktopFile"_s,          "Desktops/desktop1/.directory"_s,
                                "Desktops/MyDesktop/.directory"_s, "Desktops/.directory"_s,
                                "Desktops/Desktop1/other"_s,       "Desktops/Desktop1/sub/.directory"_s};
        for (const QString &file : stripped)
            home.write(file, content);
        for (const QString &file : kept)
            home.write(file, content);
        // None of these may stop the others or make the program wait.
        QVERIFY(home.makeDirectory("Desktops/DesktopDir/.directory"_s)
                && home.makeDirectory("Desktops/DesktopFifo"_s));
        QCOMPARE(
            ::mkfifo(QFile::encodeName(home.path("Desktops/DesktopFifo/.directory"_s)).constData(), 0600), 0);

        removeDesktopWallpapers();
        for (const QString &file : stripped)
            QCOMPARE(home.read(file), QByteArray("[Desktop Entry]\n"));
        for (const QString &file : kept)
            QCOMPARE(home.read(file), content);
    }

    void filesWithoutTheKeyAreNotTouched()
    {
        const TemporaryHome home;
        home.write("Desktops/Desktop2/.directory"_s, "# X-QAZ-WallPaper=a\n[Other]\nX-QAZ-WallPaper=a\n"
                                                     "[Desktop Entry]\nX-QAZ-WallPaper[de]=a\n");
        const QString before = home.fingerprint();
        WmListener listener;
        removeDesktopWallpapers();
        setCurrentDesktopWallpaper("/a.png"_s); // this desktop has no file
        QCOMPARE(home.fingerprint(), before);
        QCOMPARE(listener.take(), QStringList());
    }

    void settingChangesOneLineAndTells()
    {
        const QString wallpapers[][2] = {
            {"/a b/\\n c.png"_s, "/a b/\\n c.png"_s},   {"#a6caf0"_s, "\"#a6caf0\""_s},
            {QString(4095, u'a'), QString(4095, u'a')}, {QString(4096, u'a'), {}}, // refused, as all below
            {u'#' + QString(4093, u'a'), {}},           {"/a\nIcon=b"_s, {}}};
        for (const auto &[wallpaper, stored] : wallpapers) {
            const TemporaryHome home;
            const QByteArray before = "# mine\n[Desktop Entry]\nName=One  \n\n[Other]\nA=1";
            home.write(first, before);
            const QByteArray line = stored.isNull() ? "" : "X-QAZ-WallPaper=" + stored.toLatin1() + '\n';
            const QStringList command = {"QAZWM_UPDATE_VAL WallPaperLocal "_s + stored};
            WmListener listener;
            for (int times = 0; times < 2; ++times) {
                setCurrentDesktopWallpaper(wallpaper);
                QCOMPARE(home.read(first), QByteArray(before).replace("\n\n", '\n' + line + '\n'));
                QCOMPARE(listener.take(), stored.isNull() ? QStringList() : command);
            }
            QCOMPARE(currentDesktopWallpaper(), stored);
        }
    }
};

QTEST_MAIN(TestDesktopWallpapers)
#include "tst_desktopwallpapers.moc"
