#include "platform/qazicontheme.h"

#include "platform/finddpi.h"
#include "platform/iconthemeindex.h"

#include <QTest>

#include <algorithm>

#include <unistd.h>

#include "tests/support/temporaryhome.h"

#include <QX11Info>

#include <X11/Xlib.h>

namespace {

QStringList iconThemes()
{
    List<char> list;
    QazIconTheme::getThemesNames(&list);
    QStringList names;
    for (int i = 0; i < list.count(); ++i)
        names.append(QString::fromLocal8Bit(list.at(i)));
    std::sort(names.begin(), names.end());
    return names;
}

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
    void sizesForResolutions_data();
    void sizesForResolutions();
    void inheritsLineIsEdited_data();
    void inheritsLineIsEdited();
    void findsResolution();
};

void TestQazIconTheme::namesAreThoseOfIconThemes()
{
    const TemporaryHome home;
    const QByteArray complete = index("hicolor", "32/p:Places:32");
    home.write(QStringLiteral(".icons/Home/index.theme"), complete);
    home.write(QStringLiteral(".local/share/icons/Data/index.theme"), complete);
    home.write(QStringLiteral("system/share/icons/Shared/index.theme"), complete);
    home.write(QStringLiteral(".icons/CursorsOnly/index.theme"), "[Icon Theme]\nInherits=x\n");
    home.write(QStringLiteral(".icons/Empty/index.theme"), "");
    home.write(QStringLiteral(".icons/Garbage/index.theme"), "\0\xff[[[=\n[Icon Theme\n=x");
    home.write(QStringLiteral(".icons/NotATheme"), complete);
    QVERIFY(home.makeDirectory(QStringLiteral(".icons/WithoutIndex/32")));
    QVERIFY(home.makeDirectory(QStringLiteral(".icons/IndexIsDirectory/index.theme")));
    const QStringList names = iconThemes();
    for (const char *listed : {"Home", "Data", "Shared"})
        QCOMPARE(names.count(QLatin1String(listed)), 1);
    for (const char *other :
         {"CursorsOnly", "Empty", "Garbage", "NotATheme", "WithoutIndex", "IndexIsDirectory"})
        QVERIFY2(!names.contains(QLatin1String(other)), other);
}

void TestQazIconTheme::findsIcons_data()
{
    QTest::addColumn<QByteArray>("theme");
    QTest::addColumn<QByteArray>("icon");
    QTest::addColumn<QString>("path");
    const auto row = [](const char *name, const char *theme, const char *icon, const char *path) {
        QTest::newRow(name) << QByteArray(theme) << QByteArray(icon) << QString::fromLatin1(path);
    };
    row("the exact size before nearer directories in the index", "Own", "both", ".icons/Own/32/p/both.png");
    row("the nearest size otherwise", "Own", "far", ".icons/Own/48/p/far.png");
    row("PNG before SVG", "Own", "formats", ".icons/Own/32/p/formats.png");
    row("SVG alone", "Own", "vector", ".icons/Own/32/p/vector.svg");
    row("spread over base directories", "Own", "spread", ".local/share/icons/Own/32/p/spread.png");
    row("not of another context", "Own", "wrong", "");
    row("from the parent", "Own", "inherited", ".icons/Parent/32/p/inherited.png");
    row("inheritance in a circle", "Circle", "nowhere", "");
    row("hicolor, which nobody names", "Own", "common", "system/share/icons/hicolor/32/p/common.png");
    row("outside themes", "Own", "single", ".icons/single.png");
    row("a theme that isn't there", "Missing", "both", "");
    row("a directory named like an icon", "Own", "folder", "");
}

void TestQazIconTheme::findsIcons()
{
    const TemporaryHome home;
    const auto write = [&home](const char *path, const QByteArray &content = "x") {
        home.write(QString::fromLatin1(path), content);
    };
    write(".icons/Own/index.theme",
          index("Parent,Circle", "12/p:Places:12 48/p:places:48 32/p:Places:32 32/a:Applications:32"));
    write(".icons/Parent/index.theme", index("hicolor", "32/p:Places:32"));
    write(".icons/Circle/index.theme", index("Own,Circle", "32/p:Places:32"));
    write("system/share/icons/hicolor/index.theme", index("", "32/p:Places:32"));
    for (const char *path :
         {"12/p/both.png", "48/p/both.png", "32/p/both.png", "12/p/far.png", "48/p/far.png",
          "32/p/formats.png", "32/p/formats.svg", "32/p/vector.svg", "32/a/wrong.png", "32/p/folder.png/x"})
        home.write(QLatin1String(".icons/Own/") + QLatin1String(path), "x");
    write(".local/share/icons/Own/32/p/spread.png");
    write(".icons/Parent/32/p/inherited.png");
    write("system/share/icons/hicolor/32/p/common.png");
    write(".icons/single.png");
    QFETCH(QByteArray, theme);
    QFETCH(QByteArray, icon);
    QFETCH(QString, path);
    QazIconTheme iconTheme(theme.constData(), nullptr, false);
    QCOMPARE(iconTheme.load(), theme != "Missing");
    QString found;
    QCOMPARE(iconTheme.getIcon(icon.constData(), 32, "Places", &found), !path.isEmpty());
    QCOMPARE(found, path.isEmpty() ? QString() : home.path(path));
}

void TestQazIconTheme::matchesSizes_data()
{
    QTest::addColumn<QByteArray>("group");
    QTest::addColumn<bool>("matches");
    QTest::addColumn<int>("distance"); // for 32 pixels
    QTest::newRow("fixed") << QByteArray("Type=Fixed\nSize=32") << true << 0;
    QTest::newRow("fixed, another size") << QByteArray("Type=Fixed\nSize=30") << false << 2;
    QTest::newRow("scalable, inside")
        << QByteArray("Type=Scalable\nSize=64\nMinSize=8\nMaxSize=512") << true << 0;
    QTest::newRow("scalable, below") << QByteArray("Type=Scalable\nSize=64\nMinSize=40") << false << 8;
    QTest::newRow("threshold, its default is 2") << QByteArray("Size=30") << true << 0;
    QTest::newRow("threshold, beyond") << QByteArray("Size=24\nThreshold=3") << false << 5;
    QTest::newRow("double scale") << QByteArray("Type=Fixed\nSize=32\nScale=2") << false << 32;
    QTest::newRow("absurd numbers") << QByteArray("Size=2147483647\nScale=2147483647") << false << INT_MAX;
}

void TestQazIconTheme::matchesSizes()
{
    QFETCH(QByteArray, group);
    const IconThemeIndex theme = parseIconThemeIndex("[Icon Theme]\nDirectories=a,unknown\n[a]\n" + group
                                                     + '\n');
    QCOMPARE(theme.directories.size(), 1);
    QTEST(matchesSize(theme.directories.first(), 32), "matches");
    QTEST(sizeDistance(theme.directories.first(), 32), "distance");
}

void TestQazIconTheme::sizesForResolutions_data()
{
    QTest::addColumn<double>("dpi");
    QTest::addColumn<int>("desktop");
    QTest::addColumn<int>("other");
    QTest::newRow("96 dpi") << 96.0 << 48 << 32;
    QTest::newRow("just below, as servers round") << 95.86 << 48 << 32;
    QTest::newRow("76 dpi") << 76.0 << 32 << 22;
    QTest::newRow("119 dpi") << 119.0 << 64 << 32;
    QTest::newRow("beyond the largest") << 1000.0 << 256 << 256;
}

void TestQazIconTheme::sizesForResolutions()
{
    QFETCH(double, dpi);
    QTEST(QazIconTheme::GetIconSizeForDPI(dpi, 1), "desktop");
    QTEST(QazIconTheme::GetIconSizeForDPI(dpi, 0), "other");
}

void TestQazIconTheme::inheritsLineIsEdited_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("name"); // empty: no line
    QTest::addColumn<QByteArray>("after");
    // clang-format off
    QTest::newRow("new file") << QByteArray() << QByteArray("A") << QByteArray("[Icon Theme]\nInherits=A\n");
    QTest::newRow("replaced in place") << QByteArray("# c\n[Icon Theme]\nName=D\n Inherits = B\nX=1\n") << QByteArray("A") << QByteArray("# c\n[Icon Theme]\nName=D\nInherits=A\nX=1\n");
    QTest::newRow("added to the group") << QByteArray("[Other]\nInherits=z\n[Icon Theme]\nName=D") << QByteArray("A") << QByteArray("[Other]\nInherits=z\n[Icon Theme]\nInherits=A\nName=D");
    QTest::newRow("group added") << QByteArray("[Other]\na=1") << QByteArray("A") << QByteArray("[Other]\na=1\n[Icon Theme]\nInherits=A\n");
    QTest::newRow("removed, also twice") << QByteArray("[Icon Theme]\nInherits=B\nName=D\nInherits=C\n") << QByteArray() << QByteArray("[Icon Theme]\nName=D\n");
    // clang-format on
}

void TestQazIconTheme::inheritsLineIsEdited()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, name);
    QTEST(withInherits(before, name), "after");
}

void TestQazIconTheme::findsResolution()
{
    double vertical = 0;
    const double horizontal = FindDPI(QX11Info::display(), 0, &vertical);
    QVERIFY2(qAbs(horizontal - 96) < 1,
             qPrintable(QString::number(horizontal))); // the test's server states 96 dpi
    QVERIFY2(qAbs(vertical - 96) < 1, qPrintable(QString::number(vertical)));
}

QTEST_MAIN(TestQazIconTheme)
#include "tst_qazicontheme.moc"
