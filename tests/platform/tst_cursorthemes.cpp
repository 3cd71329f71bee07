#include "platform/qazicontheme.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/samplethemes.h"
#include "tests/support/standarderror.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/testing.h"

#include <QX11Info>

#include <sys/resource.h>

#include <X11/Xcursor/Xcursor.h>
#include <X11/extensions/Xfixes.h>

namespace {

const QString defaultIndex = ".icons/default/index.theme"_s;
const QString resources = ".Xresources"_s;
const QString far = ".icons/Far"_s;

struct CloseDisplay {
    void operator()(Display *display) const { XCloseDisplay(display); }
};

/// What a program that starts now takes for its cursor theme.
QByteArray themeOfNewClient()
{
    const std::unique_ptr<Display, CloseDisplay> display(XOpenDisplay(nullptr));
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

} // namespace

class TestCursorThemes : public QObject
{
    Q_OBJECT
private slots:
    void settingReachesNewClients()
    {
        const struct {
            QByteArray theme;
            QByteArray before; // of the user's "default" theme; null: there is none
            QByteArray after;
            QByteArray inherited; // by the "default" theme, as Xcursor reads it
        } rows[] = {{"Red One", {}, "[Icon Theme]\nInherits=Red One\n", "Red"},
                    {"A", "[Other]\nInherits=z\n[Icon Theme]\nName=D",
                     "[Other]\nInherits=z\n[Icon Theme]\nName=D\nInherits=A\n", "z"},
                    {"A", "[Other]\na=1", "[Other]\na=1\n[Icon Theme]\nInherits=A\n", "A"},
                    {"A", "[Icon Theme]\nInherits=A\n#", "[Icon Theme]\nInherits=A\n#", "A"},
                    {" a\\b", {}, "[Icon Theme]\nInherits= a\\b\n", "a\\b"},
                    // which does not inherit from itself
                    {"default", "[Icon Theme]\nInherits=B\nName=D\n", "[Icon Theme]\nName=D\n", {}}};
        for (const auto &row : rows) {
            const TemporaryHome home;
            makeCursorTheme(home, ".icons/"_s + QString::fromLatin1(row.theme), Qt::red);
            if (!row.before.isNull())
                home.write(defaultIndex, row.before);
            home.write(resources, "! mine\nXcursor.theme: Old\nXcursor.size: 24\n");
            QVERIFY(QazIconTheme::setCurrentCursorThemeName(row.theme.constData()));
            QCOMPARE(home.read(defaultIndex), row.after);
            const QByteArray value = QByteArray(row.theme).replace(" a\\", "\\ a\\\\");
            QCOMPARE(home.read(resources), "! mine\nXcursor.theme: " + value + "\nXcursor.size: 24\n");
            QCOMPARE(themeOfNewClient(), row.theme);
            QCOMPARE(QByteArray(QazIconTheme::getCurrentCursorThemeName(QX11Info::display())), row.theme);
            QCOMPARE(QByteArray(QazIconTheme::getCurrentCursorThemeName(nullptr)), row.inherited);
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
        const std::unique_ptr<Display, CloseDisplay> other(XOpenDisplay(nullptr));
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
        const QByteArray index = "Can't write HOME/.icons/default/index.theme: Is a directory";
        const struct {
            QString inTheWay; // a directory, or a link to one, where a file should be
            QByteArray xrdb;  // a script in its place; null: itself; empty: none
            QByteArray file;  // of X resources; null: there is none
            QByteArray error;
        } rows[] = {{defaultIndex, {}, "Xcursor.theme :\tGreen\n! mine", index},
                    {defaultIndex, {}, {}, index},
                    {resources, {}, {}, "Can't write HOME/.Xresources: Is a directory"},
                    {far, {}, {}, "Can't write HOME/.icons/Far: the cursor theme can't be linked"},
                    {"unused"_s, "", "A.a: 1\\", "Can't merge the cursor theme into the X server"},
                    {"unused"_s,
                     "echo no >&2; exit 1",
                     {},
                     "xrdb failed: no\nqaz-admin-theme: Can't merge the cursor theme into the X server"}};
        for (const auto &row : rows) {
            const TemporaryHome home;
            const ScopedEnvironment data("QAZ_DATA_DIR", QFile::encodeName(home.path("data"_s)));
            makeCursorTheme(home, "data/icons/Far"_s, Qt::red);
            if (row.inTheWay == far)
                QVERIFY(home.makeDirectory(".icons"_s) && QFile::link(home.path(), home.path(far)));
            QVERIFY(home.makeDirectory(row.inTheWay));
            if (!row.file.isNull())
                home.write(resources, row.file);
            FakePrograms programs(row.xrdb == "" && !row.xrdb.isNull() ? FakePrograms::Path::Instead
                                                                       : FakePrograms::Path::InFront);
            if (!row.xrdb.isEmpty())
                programs.add("xrdb"_s, row.xrdb);
            const QByteArray theme = themeOfNewClient();
            const QByteArray current(QazIconTheme::getCurrentCursorThemeName(QX11Info::display()));
            const QString link = QFile::symLinkTarget(home.path(far));
            StandardError errors;
            QVERIFY(!QazIconTheme::setCurrentCursorThemeName("Far"));
            QCOMPARE(errors.take().replace(QFile::encodeName(home.path()), "HOME"),
                     "qaz-admin-theme: " + row.error + '\n');
            QCOMPARE(QByteArray(QazIconTheme::getCurrentCursorThemeName(QX11Info::display())), current);
            QCOMPARE(themeOfNewClient(), theme);
            QCOMPARE(home.read(resources), row.file);
            QCOMPARE(home.exists(resources), !row.file.isNull() || row.inTheWay == resources);
            QCOMPARE(QFile::symLinkTarget(home.path(far)), link);
            QVERIFY(row.inTheWay == defaultIndex || !home.exists(defaultIndex));
        }
    }
};

QTEST_MAIN(TestCursorThemes)
#include "tst_cursorthemes.moc"
