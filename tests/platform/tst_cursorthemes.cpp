#include "platform/qazicontheme.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/samplethemes.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/testing.h"

#include <QX11Info>

#include <X11/Xcursor/Xcursor.h>
#include <X11/extensions/Xfixes.h>

namespace {

const QString defaultIndex = ".icons/default/index.theme"_s;
const QString resources = ".Xresources"_s;

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
        } rows[] = {{"Red One", {}, "[Icon Theme]\nInherits=Red One\n"},
                    {"A", "[Other]\nInherits=z\n[Icon Theme]\nName=D",
                     "[Other]\nInherits=z\n[Icon Theme]\nName=D\nInherits=A\n"},
                    {"A", "[Other]\na=1", "[Other]\na=1\n[Icon Theme]\nInherits=A\n"},
                    // which does not inherit from itself
                    {"default", "[Icon Theme]\nInherits=B\nName=D\n", "[Icon Theme]\nName=D\n"}};
        for (const auto &row : rows) {
            const TemporaryHome home;
            makeCursorTheme(home, ".icons/"_s + QString::fromLatin1(row.theme), Qt::red);
            if (!row.before.isNull())
                home.write(defaultIndex, row.before);
            home.write(resources, "! mine\nXcursor.theme: Old\nXcursor.size: 24\n");
            QVERIFY(QazIconTheme::setCurrentCursorThemeName(row.theme.constData()));
            QCOMPARE(home.read(defaultIndex), row.after);
            QCOMPARE(home.read(resources), "! mine\nXcursor.theme: " + row.theme + "\nXcursor.size: 24\n");
            QCOMPARE(themeOfNewClient(), row.theme);
            QCOMPARE(QByteArray(QazIconTheme::getCurrentCursorThemeName(QX11Info::display())), row.theme);
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
        QVERIFY(QFile::link("Linked"_s, home.path(".icons/default"_s)));
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
        QVERIFY(home.makeDirectory(".icons"_s));
        QVERIFY(QFile::link("gone"_s, home.path(".icons/Far"_s)));
        QVERIFY(QazIconTheme::setCurrentCursorThemeName("Far"));
        QCOMPARE(QFile::symLinkTarget(home.path(".icons/Far"_s)), home.path("data/icons/Far"_s));
        QCOMPARE(themeOfNewClient(), QByteArray("Far"));
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
        const struct {
            QString inTheWay; // a directory where a file should be
            bool hasXrdb;
            QByteArray file; // of X resources; null: there is none
        } rows[] = {{defaultIndex, true, "Xcursor.theme :\tGreen\n! mine"},
                    {defaultIndex, true, {}},
                    {resources, true, {}},
                    {"unused"_s, false, "A.a: 1\\"},
                    {"unused"_s, false, {}}};
        for (const auto &row : rows) {
            const TemporaryHome home;
            const ScopedEnvironment data("QAZ_DATA_DIR", QFile::encodeName(home.path("data"_s)));
            makeCursorTheme(home, "data/icons/Far"_s, Qt::red);
            QVERIFY(home.makeDirectory(row.inTheWay) && home.makeDirectory(".icons"_s));
            if (!row.file.isNull())
                home.write(resources, row.file);
            std::unique_ptr<FakePrograms> programs;
            if (!row.hasXrdb)
                programs = std::make_unique<FakePrograms>(FakePrograms::Path::Instead);
            const QByteArray theme = themeOfNewClient();
            const QByteArray current(QazIconTheme::getCurrentCursorThemeName(QX11Info::display()));
            QVERIFY(!QazIconTheme::setCurrentCursorThemeName("Far"));
            QCOMPARE(QByteArray(QazIconTheme::getCurrentCursorThemeName(QX11Info::display())), current);
            QCOMPARE(themeOfNewClient(), theme);
            QCOMPARE(home.read(resources), row.file);
            QCOMPARE(home.exists(resources), !row.file.isNull() || row.inTheWay == resources);
            QVERIFY(!QFileInfo(home.path(".icons/Far"_s)).isSymLink());
            QVERIFY(row.hasXrdb || !home.exists(defaultIndex));
        }
    }
};

QTEST_MAIN(TestCursorThemes)
#include "tst_cursorthemes.moc"
