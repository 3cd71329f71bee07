#include "platform/qazicontheme.h"

#include <QTest>

#include "tests/support/temporaryhome.h"

namespace {

QByteArray index(const QByteArray &inherits)
{
    return "[Icon Theme]\nDirectories=12/p,48/p,32/p,32/a,\nInherits=" + inherits
           + "\n[12/p]\nSize=12\nContext=Places\n[48/p]\nSize=48\nContext=places\n"
             "[32/p]\nSize=32\nContext=Places\n[32/a]\nSize=32\nContext=Applications\n";
}

} // namespace

class TestQazIconTheme : public QObject
{
    Q_OBJECT
private slots:
    void namesAreThoseOfIconThemes();
    void findsIcons_data();
    void findsIcons();
};

void TestQazIconTheme::namesAreThoseOfIconThemes()
{
    const TemporaryHome home;
    for (const char *path :
         {".icons/Home/index.theme", ".local/share/icons/Data/index.theme", ".icons/Data/index.theme",
          "system/share/icons/Shared/index.theme", ".icons/not a theme", ".icons/not a file/index.theme/x"})
        home.write(QLatin1String(path), index("hicolor"));
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
    QTest::addColumn<QByteArray>("icon"); // theme/icon, or theme/icon/context
    QTest::addColumn<QString>("path");
    const auto row = [](const char *name, const char *icon, const char *path) {
        QTest::newRow(name) << QByteArray(icon) << QString::fromLatin1(path);
    };
    row("the exact size before nearer directories in the index", "Own/both", ".icons/Own/32/p/both.png");
    row("the nearest size otherwise", "Own/far", ".icons/Own/48/p/far.png");
    row("PNG before SVG", "Own/formats", ".icons/Own/32/p/formats.png");
    row("SVG alone", "Own/vector", ".icons/Own/32/p/vector.svg");
    row("spread over base directories", "Own/spread", ".local/share/icons/Own/32/p/spread.png");
    row("not of another context", "Own/wrong", "");
    row("from the parent", "Own/inherited", ".icons/Parent/32/p/inherited.png");
    row("inheritance in a circle", "Circle/nowhere", "");
    row("hicolor, which nobody names", "Own/common", "system/share/icons/hicolor/32/p/common.png");
    row("outside themes", "Own/single/", ".icons/single.png");
    row("outside themes is no context", "Own/single", "");
    row("a theme that isn't there", "Missing/both", "");
    row("a directory named like an icon", "Own/folder", "");
}

void TestQazIconTheme::findsIcons()
{
    const TemporaryHome home;
    home.write(QStringLiteral(".icons/Own/index.theme"), index("Parent,Circle"));
    home.write(QStringLiteral(".icons/Parent/index.theme"), index("hicolor"));
    home.write(QStringLiteral(".icons/Circle/index.theme"), index("Own,Circle"));
    home.write(QStringLiteral("system/share/icons/hicolor/index.theme"), index(""));
    for (const char *path :
         {"12/p/both.png", "48/p/both.png", "32/p/both.png", "12/p/far.png", "48/p/far.png",
          "32/p/formats.png", "32/p/formats.svg", "32/p/vector.svg", "32/a/wrong.png", "32/p/folder.png/x"})
        home.write(QLatin1String(".icons/Own/") + QLatin1String(path), "x");
    for (const char *path : {".local/share/icons/Own/32/p/spread.png", ".icons/Parent/32/p/inherited.png",
                             "system/share/icons/hicolor/32/p/common.png", ".icons/single.png"})
        home.write(QLatin1String(path), "x");
    QFETCH(QByteArray, icon);
    QFETCH(QString, path);
    const QByteArrayList names = icon.split('/');
    const QByteArray context = names.value(2, "Places");
    QazIconTheme theme(names.at(0).constData(), nullptr, false);
    QCOMPARE(theme.load(), names.at(0) != "Missing");
    QString found;
    QCOMPARE(theme.getIcon(names.at(1).constData(), 32, context.constData(), &found), !path.isEmpty());
    QCOMPARE(found, path.isEmpty() ? QString() : home.path(path));
}

QTEST_MAIN(TestQazIconTheme)
#include "tst_qazicontheme.moc"
