#include "pages/wallpaper/desktopwallpapers.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <sys/stat.h>

namespace {

const QString first = QStringLiteral("Desktops/Desktop1/.directory");

QStringList backups(const TemporaryHome &home)
{
    return QDir(home.path(QStringLiteral(".local/state/qaz/backup")))
        .entryList({QStringLiteral("*directory")}, QDir::Files | QDir::Hidden);
}

} // namespace

class TestDesktopWallpapers : public QObject
{
    Q_OBJECT
private slots:
    void removingKeepsEveryOtherByte_data();
    void removingKeepsEveryOtherByte();
    void removingGoesThroughAllDesktops();
    void filesWithoutTheKeyAreNotTouched();
    void settingChangesOneLineAndTells_data();
    void settingChangesOneLineAndTells();
    void refusedValuesChangeNothing_data();
    void refusedValuesChangeNothing();
    void withoutAFileNothingIsSaid();
};

void TestDesktopWallpapers::removingKeepsEveryOtherByte_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");

    const QByteArray head = "\xEF\xBB\xBF; mine\r\n\r\n\r\n[Z]\r\nb = 1\r\na=2  \r\n[Desktop Entry]\r\n"
                            "Name=\xFF\r\n# why\r\nX-QAZ-WallPaper[de]=x\r\n";
    const QByteArray tail = "x-qaz-wallpaper=lower\r\n\r\n[Y]\r\nX-QAZ-WallPaper=other group";
    QTest::newRow("foreign content") << head + "X-QAZ-WallPaper = \"#a6caf0\"\r\n" + tail << head + tail;
    QTest::newRow("only key") << QByteArray("[Desktop Entry]\nX-QAZ-WallPaper=/a.png")
                              << QByteArray("[Desktop Entry]\n");
    QTest::newRow("empty value") << QByteArray("[Desktop Entry]\nX-QAZ-WallPaper=\nA=1\n")
                                 << QByteArray("[Desktop Entry]\nA=1\n");
    QTest::newRow("group in two parts")
        << QByteArray("[Desktop Entry]\nX-QAZ-WallPaper=1\n[A]\nX-QAZ-WallPaper=a\n"
                      "[Desktop Entry]\nX-QAZ-WallPaper=2\nA=1\n[Broken\nX-QAZ-WallPaper=3")
        << QByteArray("[Desktop Entry]\n[A]\nX-QAZ-WallPaper=a\n[Desktop Entry]\nA=1\n[Broken\n");
    QTest::newRow("twice") << QByteArray("[Desktop Entry]\nX-QAZ-WallPaper=a\nA=1\n X-QAZ-WallPaper=b\n")
                           << QByteArray("[Desktop Entry]\nA=1\n");
}

void TestDesktopWallpapers::removingKeepsEveryOtherByte()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const TemporaryHome home;
    home.write(first, before);
    removeDesktopWallpapers();
    QCOMPARE(home.read(first), after);
    QCOMPARE(backups(home).size(), 1);
    QCOMPARE(home.read(QStringLiteral(".local/state/qaz/backup/") + backups(home).constFirst()), before);
}

void TestDesktopWallpapers::removingGoesThroughAllDesktops()
{
    const TemporaryHome home;
    const QByteArray content = "[Desktop Entry]\nX-QAZ-WallPaper=a\n";
    const QString stripped[] = {first, QStringLiteral("Desktops/Desktop/.directory"),
                                QStringLiteral("Desktops/Desktop 22 b/.directory")};
    const QString kept[] = {QStringLiteral("Desktops/desktop1/.directory"),
                            QStringLiteral("Desktops/MyDesktop/.directory"),
                            QStringLiteral("Desktops/.directory"), QStringLiteral("Desktops/Desktop1/other"),
                            QStringLiteral("Desktops/Desktop1/sub/.directory")};
    for (const QString &file : stripped)
        home.write(file, content);
    for (const QString &file : kept)
        home.write(file, content);
    // None of these may stop the others or make the program wait.
    home.write(QStringLiteral("Desktops/DesktopFile"), content);
    QVERIFY(home.makeDirectory(QStringLiteral("Desktops/DesktopEmpty")));
    QVERIFY(home.makeDirectory(QStringLiteral("Desktops/DesktopDir/.directory")));
    QVERIFY(home.makeDirectory(QStringLiteral("Desktops/DesktopFifo")));
    QCOMPARE(
        ::mkfifo(QFile::encodeName(home.path(QStringLiteral("Desktops/DesktopFifo/.directory"))).constData(),
                 0600),
        0);

    removeDesktopWallpapers();
    for (const QString &file : stripped)
        QCOMPARE(home.read(file), QByteArray("[Desktop Entry]\n"));
    for (const QString &file : kept)
        QCOMPARE(home.read(file), content);
}

void TestDesktopWallpapers::filesWithoutTheKeyAreNotTouched()
{
    const TemporaryHome home;
    home.write(first,
               "# X-QAZ-WallPaper=a\n[Other]\nX-QAZ-WallPaper=a\n[Desktop Entry]\nX-QAZ-WallPaper[de]=a\n");
    const QString before = home.fingerprint();
    removeDesktopWallpapers();
    QCOMPARE(home.fingerprint(), before);
}

void TestDesktopWallpapers::settingChangesOneLineAndTells_data()
{
    QTest::addColumn<QString>("wallpaper");
    QTest::addColumn<QByteArray>("stored");

    QTest::newRow("path with blanks") << QStringLiteral("/a b/\\n c.png") << QByteArray("/a b/\\n c.png");
    QTest::newRow("colour") << QStringLiteral("#a6caf0") << QByteArray("\"#a6caf0\"");
    QTest::newRow("longest") << QString(4095, QLatin1Char('a')) << QByteArray(4095, 'a');
}

void TestDesktopWallpapers::settingChangesOneLineAndTells()
{
    QFETCH(QString, wallpaper);
    QFETCH(QByteArray, stored);
    const TemporaryHome home;
    home.write(first, "# mine\n[Desktop Entry]\nName=One  \n\n[Other]\nA=1");
    const QByteArray expected = "# mine\n[Desktop Entry]\nName=One  \nX-QAZ-WallPaper=" + stored
                                + "\n\n[Other]\nA=1";
    WmListener listener;
    for (int times = 0; times < 2; ++times) {
        setCurrentDesktopWallpaper(wallpaper);
        QCOMPARE(home.read(first), expected);
        QCOMPARE(listener.take(), QStringList{QStringLiteral("QAZWM_UPDATE_VAL WallPaperLocal ")
                                              + QString::fromLatin1(stored)});
    }
    QCOMPARE(currentDesktopWallpaper(), QString::fromLatin1(stored));
}

void TestDesktopWallpapers::refusedValuesChangeNothing_data()
{
    QTest::addColumn<QString>("wallpaper");
    QTest::newRow("too long") << QString(4096, QLatin1Char('a'));
    QTest::newRow("too long with its quotes") << QLatin1Char('#') + QString(4093, QLatin1Char('a'));
    QTest::newRow("a line of its own") << QStringLiteral("/a\nIcon=b");
}

void TestDesktopWallpapers::refusedValuesChangeNothing()
{
    QFETCH(QString, wallpaper);
    const TemporaryHome home;
    home.write(first, "[Desktop Entry]\nX-QAZ-WallPaper=old\n");
    const QString before = home.fingerprint();
    WmListener listener;
    setCurrentDesktopWallpaper(wallpaper);
    QCOMPARE(home.fingerprint(), before);
    QCOMPARE(listener.take(), QStringList());
}

void TestDesktopWallpapers::withoutAFileNothingIsSaid()
{
    const TemporaryHome home;
    WmListener listener;
    const QString before = home.fingerprint();
    setCurrentDesktopWallpaper(QStringLiteral("/a.png"));
    removeDesktopWallpapers();
    QCOMPARE(home.fingerprint(), before);
    QCOMPARE(listener.take(), QStringList());
    QCOMPARE(currentDesktopWallpaper(), QString());
}

QTEST_MAIN(TestDesktopWallpapers)
#include "tst_desktopwallpapers.moc"
