#include "settings/desktopwallpapers.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"

class TestDesktopWallpapers : public QObject
{
    Q_OBJECT
private slots:
    void removingCutsTheKeyOutOfEveryDesktopsFile()
    {
        const QByteArray signature = "\xEF\xBB\xBF"; // which goes with the key
        const QByteArray head = "; mine\r\n\r\n[Z]\r\nb = 1\r\n[Desktop Entry]\r\nName=\xFF\r\n# why\r\n"
                                "X-QAZ-WallPaper[de]=x\r\n";
        const QByteArray tail = "x-qaz-wallpaper=lower\r\n\r\n[Y]\r\nX-QAZ-WallPaper=other group";
        const QByteArray content = signature + head + "X-QAZ-WallPaper = \"#a6caf0\"\r\n" + tail;
        const TemporaryHome home;
        WmListener listener;
        setCurrentDesktopWallpaper("/a.png"_s); // this desktop has no file
        QVERIFY(!home.exists("Desktops"_s));
        // None of these may stop the others or make the program wait.
        QVERIFY(home.makeDirectory("Desktops/DesktopDir/.directory"_s)
                && home.makeDirectory("Desktops/DesktopFifo"_s));
        home.makeFifo("Desktops/DesktopFifo/.directory"_s);
        const QByteArray without = signature + head + "# X-QAZ-WallPaper=a\r\n" + tail;
        home.write("Desktops/Desktop2/.directory"_s, without);
        const QStringList files // the first three are those of desktops
            = "Desktop1/.directory,Desktop/.directory,Desktop 22 "
              "b/.directory,DesktopFile,desktop1/.directory,"
              "MyDesktop/.directory,.directory,Desktop1/other,Desktop1/sub/.directory"_s.split(u',');
        for (const QString &file : files)
            home.write("Desktops/"_s + file, content);
        removeDesktopWallpapers();
        for (int i = 0; i < files.size(); ++i)
            QCOMPARE(home.read("Desktops/"_s + files.at(i)), i < 3 ? head + tail : content);
        QCOMPARE(home.read("Desktops/Desktop2/.directory"_s), without);
        QCOMPARE(home.backups(), QByteArrayList({content, content, content}));
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
            const QString first = "Desktops/Desktop1/.directory"_s;
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
