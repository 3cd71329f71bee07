#include "platform/qazicontheme.h"

#include "platform/finddpi.h"
#include "platform/iconthemeindex.h"

#include <QTest>
#include <QX11Info>

#include <algorithm>
#include <climits>

#include "tests/support/temporaryhome.h"

namespace {

QByteArray index(const QByteArray &inherits, const QByteArray &directories)
{
    QByteArray text = "[Icon Theme]\nName=x\nInherits=" + inherits + "\nDirectories=";
    QByteArray groups;
    for (const QByteArray &directory : directories.split(' ')) {
        const QByteArrayList parts = directory.split(':'); // path:context:size
        text += parts.at(0) + ',';
        groups += "\n[" + parts.at(0) + "]\nSize=" + parts.at(2) + "\nContext=" + parts.at(1)
                  + "\nThreshold=0\n";
    }
    return text + '\n' + groups;
}

} // namespace

class TestQazIconTheme : public QObject
{
    Q_OBJECT
private slots:
    void cleanup() { QCoreApplication::processEvents(); } // ends the reading pass
    void namesAreThoseOfIconThemes();
    void findsIcons_data();
    void findsIcons();
    void matchesSizes_data();
    void matchesSizes();
    void findsResolution();
};

void TestQazIconTheme::namesAreThoseOfIconThemes()
{
    const TemporaryHome home;
    const QByteArray complete = index("hicolor", "32/p:Places:32");
    for (const char *path :
         {".icons/Home/index.theme", ".local/share/icons/Data/index.theme", ".icons/Data/index.theme",
          "system/share/icons/Shared/index.theme", ".icons/not a theme", ".icons/not a file/index.theme/x"})
        home.write(QLatin1String(path), complete);
    home.write(QStringLiteral(".icons/not of icons/index.theme"), "[Icon Theme]\nInherits=x\n");
    home.write(QStringLiteral(".icons/not text/index.theme"), "");
    home.write(QStringLiteral(".icons/not readable/index.theme"), "\0\xff[[[=\n[Icon Theme\n=x");
    QVERIFY(home.makeDirectory(QStringLiteral(".icons/not indexed/32")));
    List<char> list;
    QVERIFY(QazIconTheme::getThemesNames(&list));
    QByteArrayList names;
    for (int i = 0; i < list.count(); ++i)
        names.append(list.at(i));
    for (const char *listed : {"Home", "Data", "Shared"})
        QCOMPARE(names.count(listed), 1);
    for (const QByteArray &name : qAsConst(names))
        QVERIFY2(!name.startsWith("not "), name.constData());
}

void TestQazIconTheme::findsIcons_data()
{
    QTest::addColumn<QByteArray>("icon"); // theme/icon@context
    QTest::addColumn<QString>("path");
    const auto row = [](const char *name, const char *icon, const char *path) {
        QTest::newRow(name) << QByteArray(icon) << QString::fromLatin1(path);
    };
    row("the exact size before nearer directories in the index", "Own/both@Places",
        ".icons/Own/32/p/both.png");
    row("the nearest size otherwise", "Own/far@Places", ".icons/Own/48/p/far.png");
    row("PNG before SVG", "Own/formats@Places", ".icons/Own/32/p/formats.png");
    row("SVG alone", "Own/vector@Places", ".icons/Own/32/p/vector.svg");
    row("spread over base directories", "Own/spread@Places", ".local/share/icons/Own/32/p/spread.png");
    row("not of another context", "Own/wrong@Places", "");
    row("from the parent", "Own/inherited@Places", ".icons/Parent/32/p/inherited.png");
    row("inheritance in a circle", "Circle/nowhere@Places", "");
    row("hicolor, which nobody names", "Own/common@Places", "system/share/icons/hicolor/32/p/common.png");
    row("outside themes", "Own/single@", ".icons/single.png");
    row("outside themes is no context", "Own/single@Places", "");
    row("a theme that isn't there", "Missing/both@Places", "");
    row("a directory named like an icon", "Own/folder@Places", "");
}

void TestQazIconTheme::findsIcons()
{
    const TemporaryHome home;
    home.write(QStringLiteral(".icons/Own/index.theme"),
               index("Parent,Circle", "12/p:Places:12 48/p:places:48 32/p:Places:32 32/a:Applications:32"));
    home.write(QStringLiteral(".icons/Parent/index.theme"), index("hicolor", "32/p:Places:32"));
    home.write(QStringLiteral(".icons/Circle/index.theme"), index("Own,Circle", "32/p:Places:32"));
    home.write(QStringLiteral("system/share/icons/hicolor/index.theme"), index("", "32/p:Places:32"));
    for (const char *path :
         {"12/p/both.png", "48/p/both.png", "32/p/both.png", "12/p/far.png", "48/p/far.png",
          "32/p/formats.png", "32/p/formats.svg", "32/p/vector.svg", "32/a/wrong.png", "32/p/folder.png/x"})
        home.write(QLatin1String(".icons/Own/") + QLatin1String(path), "x");
    for (const char *path : {".local/share/icons/Own/32/p/spread.png", ".icons/Parent/32/p/inherited.png",
                             "system/share/icons/hicolor/32/p/common.png", ".icons/single.png"})
        home.write(QLatin1String(path), "x");
    QFETCH(QByteArray, icon);
    QFETCH(QString, path);
    const QByteArray context = icon.mid(icon.indexOf('@') + 1);
    const QByteArrayList names = icon.left(icon.indexOf('@')).split('/');
    QazIconTheme theme(names.at(0).constData(), nullptr, false);
    QCOMPARE(theme.load(), names.at(0) != "Missing");
    QString found;
    QCOMPARE(theme.getIcon(names.at(1).constData(), 32, context.constData(), &found), !path.isEmpty());
    QCOMPARE(found, path.isEmpty() ? QString() : home.path(path));
}

void TestQazIconTheme::matchesSizes_data()
{
    QTest::addColumn<QByteArray>("group");
    QTest::addColumn<int>("distance"); // from 32 pixels; -1: a match
    QTest::newRow("fixed") << QByteArray("Type=Fixed\nSize=32") << -1;
    QTest::newRow("fixed, another size") << QByteArray("Type=Fixed\nSize=30") << 2;
    QTest::newRow("scalable, inside") << QByteArray("Type=Scalable\nSize=64\nMinSize=8\nMaxSize=512") << -1;
    QTest::newRow("scalable, below") << QByteArray("Type=Scalable\nSize=64\nMinSize=40") << 8;
    QTest::newRow("threshold, its default is 2") << QByteArray("Size=30") << -1;
    QTest::newRow("threshold, beyond") << QByteArray("Size=24\nThreshold=3") << 5;
    QTest::newRow("double scale") << QByteArray("Type=Fixed\nSize=32\nScale=2") << 32;
    QTest::newRow("absurd numbers") << QByteArray("Size=2147483647\nScale=2147483647") << INT_MAX;
}

void TestQazIconTheme::matchesSizes()
{
    QFETCH(QByteArray, group);
    QFETCH(int, distance);
    const IconThemeIndex theme = parseIconThemeIndex("[Icon Theme]\nDirectories=a,unknown\n[a]\n" + group);
    QCOMPARE(theme.directories.size(), 1);
    QCOMPARE(matchesSize(theme.directories.first(), 32), distance < 0);
    QCOMPARE(sizeDistance(theme.directories.first(), 32), qMax(0, distance));
}

void TestQazIconTheme::findsResolution()
{
    double vertical = 0;
    const double horizontal = FindDPI(QX11Info::display(), 0, &vertical);
    QVERIFY2(qAbs(horizontal - 96) < 1 && qAbs(vertical - 96) < 1, // the test's server states 96 dpi
             qPrintable(QStringLiteral("%1, %2").arg(horizontal).arg(vertical)));
}

QTEST_MAIN(TestQazIconTheme)
#include "tst_qazicontheme.moc"
