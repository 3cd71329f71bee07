#include "platform/qazicontheme.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/testing.h"

namespace {

QByteArray index(const QByteArray &inherits)
{
    return "[Icon Theme]\nDirectories=12/p,48/p,32/p,32/q,32/a,./32/d\nInherits=" + inherits
           + "\n[12/p]\nSize=12\nContext=Places\n[48/p]\nSize=48\nContext=places\n"
             "[32/p]\nSize=32\nContext=Places\n[32/q]\nSize=32\nContext=Places\n[./32/d]\nSize=32\n"
             "[32/a]\nSize=32\nContext=Applications\n";
}

} // namespace

class TestQazIconTheme : public QObject
{
    Q_OBJECT
private slots:
    void namesAreThoseOfIconThemes()
    {
        const TemporaryHome home;
        for (const char *path : {".icons/Home/index.theme", ".local/share/icons/Data/index.theme",
                                 ".icons/Data/index.theme", "system/share/icons/Shared/index.theme",
                                 ".icons/not a theme", ".icons/not a file/index.theme/x"})
            home.write(QLatin1String(path), index("hicolor"));
        home.write(".icons/not of icons/index.theme"_s, "[Icon Theme]\nInherits=x\n");
        home.write(".icons/not text/index.theme"_s, "");
        home.write(".icons/not readable/index.theme"_s, "\0\xff[[[=\n[Icon Theme\n=x");
        QVERIFY(home.makeDirectory(".icons/not indexed/32"_s));
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

    void sizesAreTheNearestUsualOnes()
    {
        QStringList sizes;
        for (const int kind : {0, 1}) {
            for (const double dpi :
                 {1.0, 48.0, 66.0, 80.0, 81.0, 81.1, 96.0, 144.0, 192.0, 288.0, 384.0, 768.0, 9999.0})
                sizes += QString::number(QazIconTheme::GetIconSizeForDPI(dpi, kind));
        }
        QCOMPARE(sizes.join(u' '), "16 16 22 22 22 32 32 48 64 96 128 256 256 "
                                   "16 22 32 32 48 48 48 64 96 128 128 256 256"_s);
    }

    void findsIcons()
    {
        const TemporaryHome home;
        home.write(".icons/Own/index.theme"_s, index("hicolor,Parent,Circle"));
        home.write(".icons/Parent/index.theme"_s, index("hicolor"));
        home.write(".icons/Circle/index.theme"_s, index("Own,Circle"));
        home.write("system/share/icons/hicolor/index.theme"_s, index(""));
        for (const char *path :
             {"12/p/both.png", "48/p/both.png", "32/p/both.png", "32/q/both.png", "32/d/dotted.png",
              "12/p/far.png", "48/p/far.png", "32/p/formats.png", "32/p/formats.svg", "32/p/vector.svg",
              "32/a/wrong.png", "32/p/folder.png/x"})
            home.write(QLatin1String(".icons/Own/") + QLatin1String(path), "x");
        for (const char *path : {".local/share/icons/Own/32/p/spread.png", ".icons/Parent/32/p/inherited.png",
                                 "system/share/icons/hicolor/32/p/common.png",
                                 "system/share/icons/hicolor/32/p/inherited.png", ".icons/single.png"})
            home.write(QLatin1String(path), "x");
        // Theme/icon or theme/icon/context, and the file to find.
        const std::pair<QByteArray, const char *> rows[] = {
            {"Own/both", ".icons/Own/32/p/both.png"}, // before nearer directories in the index
            {"Own/far", ".icons/Own/48/p/far.png"},   // the nearest size
            {"Own/formats", ".icons/Own/32/p/formats.png"},
            {"Own/vector", ".icons/Own/32/p/vector.svg"},
            {"Own/dotted", ".icons/Own/./32/d/dotted.png"},
            {"Own/spread", ".local/share/icons/Own/32/p/spread.png"},
            {"Own/wrong", ""}, // of another context
            {"Own/inherited", ".icons/Parent/32/p/inherited.png"},
            {"Circle/nowhere", ""},
            {"Own/common", "system/share/icons/hicolor/32/p/common.png"}, // which nobody names
            {"Own/single/", ".icons/single.png"},
            {"Own/single", ""}, // outside themes is no context
            {"Missing/both", ""},
            {"Own/folder", ""}};
        for (const auto &[icon, path] : rows) {
            const QByteArrayList names = icon.split('/');
            QazIconTheme theme(names.at(0).constData(), nullptr, false);
            QCOMPARE(theme.load(), names.at(0) != "Missing");
            QString found;
            const QByteArray context = names.value(2, "Places");
            QCOMPARE(theme.getIcon(names.at(1).constData(), 32, context.constData(), &found), *path != '\0');
            QCOMPARE(found, *path ? home.path(QLatin1String(path)) : QString());
        }
    }
};

QTEST_MAIN(TestQazIconTheme)
#include "tst_qazicontheme.moc"
