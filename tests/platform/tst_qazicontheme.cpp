#include "base/chandle.h"
#include "platform/qazicontheme.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/rows.h"
#include "tests/support/samplethemes.h"
#include "tests/support/standarderror.h"
#include "tests/support/temporaryhome.h"

#include <QX11Info>

#include <sys/resource.h>

#include <X11/Xcursor/Xcursor.h>
#include <X11/extensions/Xfixes.h>

namespace {

const QString defaultIndex = ".icons/default/index.theme"_s;
const QString resources = ".Xresources"_s;
const QString far = ".icons/Far"_s;

using DisplayPtr = std::unique_ptr<Display, Release<XCloseDisplay>>;

/// What a program that starts now takes for its cursor theme.
QByteArray themeOfNewClient()
{
    const DisplayPtr display(XOpenDisplay(nullptr));
    return QByteArray(XcursorGetTheme(display.get()));
}

/// The pixel in the middle of the cursor that the user sees.
QColor shownCursor(Display *display)
{
    XFixesCursorImage *image = XFixesGetCursorImage(display);
    QColor color = QColor::fromRgba(QRgb(image->pixels[image->height / 2 * image->width + image->width / 2]));
    XFree(image);
    return color;
}

QByteArray iconIndex(const QByteArray &inherits)
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
    void settingReachesNewClients()
    {
        // What is special, the theme, the user's "default" theme before (null: none) and after, and what Xcursor takes
        // it to inherit from.
        for (const QStringList &row : rowsOf("platform/cursorthemes.json"_s)) {
            const TemporaryHome home;
            const QByteArray theme = row[1].toUtf8();
            makeCursorTheme(home, ".icons/"_s + row[1], Qt::red);
            if (!row[2].isNull())
                home.write(defaultIndex, row[2].toUtf8());
            home.write(resources, "! mine\nXcursor.theme: Old\nXcursor.size: 24\n");
            QVERIFY(QazIconTheme::setCurrentCursorThemeName(theme.constData()));
            QCOMPARE(QString::fromUtf8(home.read(defaultIndex)), row[3]);
            const QByteArray value = QByteArray(theme).replace(" a\\", "\\ a\\\\");
            QCOMPARE(home.read(resources), "! mine\nXcursor.theme: " + value + "\nXcursor.size: 24\n");
            QCOMPARE(themeOfNewClient(), theme);
            QCOMPARE(QByteArray(QazIconTheme::getCurrentCursorThemeName(QX11Info::display())), theme);
            QCOMPARE(QString::fromUtf8(QazIconTheme::getCurrentCursorThemeName(nullptr)), row[4]);
        }
    }

    void linkedDefaultThemeStaysWhole()
    {
        const TemporaryHome home;
        const QString index = ".icons/Linked/index.theme"_s;
        const QByteArray content = "[Icon Theme]\nName=Linked\nInherits=hicolor\n";
        makeCursorTheme(home, ".icons/Linked"_s, Qt::blue);
        makeCursorTheme(home, ".icons/Red"_s, Qt::red);
        home.write(index, content);
        home.write(resources, "Xcursor.theme: Red\n");
        QVERIFY(QFile::link("Linked"_s, home.path(".icons/default"_s)));
        // A limit on the file size makes the write fail, as a full disk would.
        rlimit usual = {};
        ::getrlimit(RLIMIT_FSIZE, &usual);
        const rlimit tight = {10, usual.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &tight);
        const bool isSet = QazIconTheme::setCurrentCursorThemeName("Red");
        ::setrlimit(RLIMIT_FSIZE, &usual);
        QVERIFY(!isSet);
        QCOMPARE(home.read(defaultIndex), content);

        QVERIFY(QazIconTheme::setCurrentCursorThemeName("Red"));
        QCOMPARE(home.read(index), content);
        QCOMPARE(home.read(defaultIndex), QByteArray("[Icon Theme]\nInherits=Red\n"));

        QVERIFY(QFile::remove(home.path(defaultIndex)));
        QVERIFY(QFile::link(home.path(index), home.path(defaultIndex)));
        QVERIFY(QazIconTheme::setCurrentCursorThemeName("Red"));
        QCOMPARE(home.read(index), content);
        QCOMPARE(home.read(defaultIndex), QByteArray("[Icon Theme]\nName=Linked\nInherits=Red\n"));
    }

    void linksThemesThatClientsWouldNotFind()
    {
        const TemporaryHome home;
        const ScopedEnvironment data("QAZ_DATA_DIR", QFile::encodeName(home.path("data"_s)));
        makeCursorTheme(home, "data/icons/Far"_s, Qt::red);
        for (const bool isLinked : {false, true}) { // to a theme that has moved
            if (isLinked)
                QVERIFY(QFile::remove(home.path(far)) && QFile::link("gone"_s, home.path(far)));
            QVERIFY(QazIconTheme::setCurrentCursorThemeName("Far"));
            QCOMPARE(QFile::symLinkTarget(home.path(far)), home.path("data/icons/Far"_s));
            QCOMPARE(themeOfNewClient(), QByteArray("Far"));
        }
        QVERIFY(QazIconTheme::setCurrentCursorThemeName("Missing"));
        QCOMPARE(themeOfNewClient(), QByteArray("Missing"));
        QCOMPARE(home.names(".icons"_s), "default Far"_s);
    }

    void runningProgramsGetTheCursor()
    {
        const TemporaryHome home;
        const QStringList names = {"left_ptr"_s, "hand2"_s};
        makeCursorTheme(home, ".icons/Green"_s, Qt::green, names);
        makeCursorTheme(home, ".icons/Blue"_s, Qt::blue, names);
        const DisplayPtr other(XOpenDisplay(nullptr));
        XcursorSetTheme(other.get(), "Green");
        const Window root = DefaultRootWindow(other.get());
        const Window window = XCreateSimpleWindow(other.get(), root, 0, 0, 100, 100, 0, 0, 0);
        XDefineCursor(other.get(), window, XcursorLibraryLoadCursor(other.get(), "hand2"));
        XMapRaised(other.get(), window);
        XWarpPointer(other.get(), 0, root, 0, 0, 0, 0, 50, 50);
        QTRY_COMPARE(shownCursor(other.get()), QColor(Qt::green));
        QVERIFY(QazIconTheme::setCurrentCursorThemeName("Blue"));
        QTRY_COMPARE(shownCursor(other.get()), QColor(Qt::blue));
        XWarpPointer(other.get(), 0, root, 0, 0, 0, 0, 500, 500);
        QTRY_COMPARE(shownCursor(other.get()), QColor(Qt::blue)); // the root window's
    }

    void failurePutsEverythingBack()
    {
        // What is special, a directory (or a link to one) where a file should be, what runs as xrdb (null:
        // nothing), the X resources (null: none), and what is told.
        for (const QStringList &row : rowsOf("platform/cursorfailures.json"_s)) {
            const TemporaryHome home;
            const ScopedEnvironment data("QAZ_DATA_DIR", QFile::encodeName(home.path("data"_s)));
            makeCursorTheme(home, "data/icons/Far"_s, Qt::red);
            if (row[1] == far)
                QVERIFY(home.makeDirectory(".icons"_s) && QFile::link(home.path(), home.path(far)));
            QVERIFY(home.makeDirectory(row[1]));
            if (!row[3].isNull())
                home.write(resources, row[3].toUtf8());
            FakePrograms programs(FakePrograms::Path::Instead);
            if (!row[2].isNull())
                programs.add("xrdb"_s, row[2].toUtf8());
            const auto state = [&] {
                const QByteArray current = QazIconTheme::getCurrentCursorThemeName(QX11Info::display());
                return QByteArrayList{current,
                                      themeOfNewClient(),
                                      home.read(resources),
                                      QByteArray::number(home.exists(resources)),
                                      QByteArray::number(home.exists(defaultIndex)),
                                      QFile::encodeName(QFile::symLinkTarget(home.path(far)))};
            };
            const QByteArrayList before = state();
            StandardError errors;
            QVERIFY(!QazIconTheme::setCurrentCursorThemeName("Far"));
            QCOMPARE(QString::fromUtf8(errors.take()).replace(home.path(), "HOME"_s),
                     "qaz-admin-theme: "_s + row[4] + u'\n');
            QCOMPARE(state(), before);
        }
    }

    void namesAreThoseOfIconThemes()
    {
        const TemporaryHome home;
        const ScopedEnvironment data("QAZ_DATA_DIR", "/none");
        for (const char *path : {".icons/Home/index.theme", ".local/share/icons/Data/index.theme",
                                 ".icons/Data/index.theme", "system/share/icons/Shared/index.theme",
                                 ".icons/not a theme", ".icons/not a file/index.theme/x"})
            home.write(QLatin1String(path), iconIndex("hicolor"));
        home.write(".icons/not of icons/index.theme"_s, "[Icon Theme]\nInherits=x\n");
        home.write(".icons/not text/index.theme"_s, "");
        home.write(".icons/not readable/index.theme"_s, "\0\xff[[[=\n[Icon Theme\n=x");
        QVERIFY(home.makeDirectory(".icons/not indexed/32"_s));
        List<char> list;
        QVERIFY(QazIconTheme::getThemesNames(&list));
        QByteArrayList names;
        for (int i = 0; i < list.count(); ++i)
            names.append(list.at(i));
        std::sort(names.begin(), names.end());
        QCOMPARE(names, QByteArrayList({"Data", "Home", "Shared"}));
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
        // What is special, theme/icon or theme/icon/context, and files with blanks between them; a star marks the one
        // to find.
        for (const QStringList &row : rowsOf("platform/icons.json"_s)) {
            const TemporaryHome home;
            home.write("system/share/icons/hicolor/index.theme"_s, iconIndex(""));
            for (const auto &[theme, parents] : {std::pair("Own"_s, "hicolor,Parent,Circle"),
                                                 {"Parent"_s, "hicolor"},
                                                 {"Circle"_s, "Own,Circle"}})
                home.write(".icons/%1/index.theme"_s.arg(theme), iconIndex(parents));
            QString expected, found;
            for (const QString &path : row[2].split(u' ')) {
                home.write(QString(path).remove(u'*'), "x");
                if (path.startsWith(u'*'))
                    expected = home.path(path.mid(1));
            }
            const QByteArrayList names = row[1].toUtf8().split('/');
            QazIconTheme theme(names[0].constData(), nullptr, false);
            QCOMPARE(theme.load(), names[0] != "Missing");
            const QByteArray context = names.value(2, "Places");
            QCOMPARE(theme.getIcon(names[1].constData(), 32, context.constData(), &found),
                     !expected.isEmpty());
            QVERIFY2(found == expected, qPrintable(row[0] + u'\n' + found));
        }
    }
};

QTEST_MAIN(TestQazIconTheme)
#include "tst_qazicontheme.moc"
