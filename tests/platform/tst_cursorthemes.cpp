#include "platform/qazicontheme.h"

#include <QFile>
#include <QTest>
#include <QX11Info>

#include <memory>

#include "tests/support/environment.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/samplethemes.h"
#include "tests/support/temporaryhome.h"

#include <X11/Xcursor/Xcursor.h>
#include <X11/extensions/Xfixes.h>

namespace {

const QString defaultIndex = QStringLiteral(".icons/default/index.theme");
const QString resources = QStringLiteral(".Xresources");

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
    void cleanup() { QCoreApplication::processEvents(); } // ends the reading pass
    void settingReachesNewClients_data();
    void settingReachesNewClients();
    void linkedDefaultThemeStaysWhole();
    void linksThemesThatClientsWouldNotFind();
    void runningProgramsGetTheCursor();
    void failurePutsEverythingBack_data();
    void failurePutsEverythingBack();
};

void TestCursorThemes::settingReachesNewClients_data()
{
    QTest::addColumn<QByteArray>("theme");
    QTest::addColumn<QByteArray>("before"); // of the user's "default" theme; null: there is none
    QTest::addColumn<QByteArray>("after");
    const auto row = [](const char *name, const char *theme, const char *before, const char *after) {
        QTest::newRow(name) << QByteArray(theme) << QByteArray(before) << QByteArray(after);
    };
    row("new file", "Red One", nullptr, "[Icon Theme]\nInherits=Red One\n");
    row("replaced in place", "A", "# c\n[Icon Theme]\nName=D\n Inherits = B\nX=1\n[Other]\nInherits=z\n",
        "# c\n[Icon Theme]\nName=D\n Inherits = A\nX=1\n[Other]\nInherits=z\n");
    row("added to the group", "A", "[Other]\nInherits=z\n[Icon Theme]\nName=D",
        "[Other]\nInherits=z\n[Icon Theme]\nName=D\nInherits=A\n");
    row("group added", "A", "[Other]\na=1", "[Other]\na=1\n[Icon Theme]\nInherits=A\n");
    row("default inherits not from itself", "default", "[Icon Theme]\nInherits=B\nName=D\nInherits=C\n",
        "[Icon Theme]\nName=D\n");
}

void TestCursorThemes::settingReachesNewClients()
{
    QFETCH(QByteArray, theme);
    QFETCH(QByteArray, before);
    const TemporaryHome home;
    makeCursorTheme(home, QStringLiteral(".icons/") + QString::fromLatin1(theme), Qt::red);
    if (!before.isNull())
        home.write(defaultIndex, before);
    home.write(resources, "! mine\nXcursor.theme: Old\nXcursor.size: 24\n");
    QVERIFY(QazIconTheme::setCurrentCursorThemeName(theme.constData()));
    QTEST(home.read(defaultIndex), "after");
    QCOMPARE(home.read(resources), "! mine\nXcursor.theme: " + theme + "\nXcursor.size: 24\n");
    QCOMPARE(themeOfNewClient(), theme);
    QCOMPARE(QByteArray(QazIconTheme::getCurrentCursorThemeName(QX11Info::display())), theme);
}

void TestCursorThemes::linkedDefaultThemeStaysWhole()
{
    const TemporaryHome home;
    const QString index = QStringLiteral(".icons/Linked/index.theme");
    const QByteArray content = "[Icon Theme]\nName=Linked\nInherits=hicolor\n";
    makeCursorTheme(home, QStringLiteral(".icons/Linked"), Qt::blue);
    makeCursorTheme(home, QStringLiteral(".icons/Red"), Qt::red);
    home.write(index, content);
    QVERIFY(QFile::link(QStringLiteral("Linked"), home.path(QStringLiteral(".icons/default"))));
    QVERIFY(QazIconTheme::setCurrentCursorThemeName("Red"));
    QCOMPARE(home.read(index), content);
    QCOMPARE(home.read(defaultIndex), QByteArray("[Icon Theme]\nInherits=Red\n"));

    QVERIFY(QFile::remove(home.path(defaultIndex)));
    QVERIFY(QFile::link(home.path(index), home.path(defaultIndex)));
    QVERIFY(QazIconTheme::setCurrentCursorThemeName("Red"));
    QCOMPARE(home.read(index), content);
    QCOMPARE(home.read(defaultIndex), QByteArray("[Icon Theme]\nName=Linked\nInherits=Red\n"));
}

void TestCursorThemes::linksThemesThatClientsWouldNotFind()
{
    const TemporaryHome home;
    const ScopedEnvironment data("QAZ_DATA_DIR", QFile::encodeName(home.path(QStringLiteral("data"))));
    makeCursorTheme(home, QStringLiteral("data/icons/Far"), Qt::red);
    QVERIFY(home.makeDirectory(QStringLiteral(".icons")));
    QVERIFY(QFile::link(QStringLiteral("gone"), home.path(QStringLiteral(".icons/Far"))));
    QVERIFY(QazIconTheme::setCurrentCursorThemeName("Far"));
    QCOMPARE(QFile::symLinkTarget(home.path(QStringLiteral(".icons/Far"))),
             home.path(QStringLiteral("data/icons/Far")));
    QCOMPARE(themeOfNewClient(), QByteArray("Far"));
}

void TestCursorThemes::runningProgramsGetTheCursor()
{
    const TemporaryHome home;
    const QStringList names = {QStringLiteral("left_ptr"), QStringLiteral("hand2")};
    makeCursorTheme(home, QStringLiteral(".icons/Green"), Qt::green, names);
    makeCursorTheme(home, QStringLiteral(".icons/Blue"), Qt::blue, names);
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

void TestCursorThemes::failurePutsEverythingBack_data()
{
    QTest::addColumn<QString>("inTheWay"); // a directory where a file should be
    QTest::addColumn<bool>("hasXrdb");
    QTest::addColumn<QByteArray>("file"); // of X resources; null: there is none
    QTest::newRow("index.theme") << defaultIndex << true << QByteArray("Xcursor.theme :\tGreen\n! mine");
    QTest::newRow("index.theme, no resources") << defaultIndex << true << QByteArray();
    QTest::newRow("resources") << resources << true << QByteArray();
    QTest::newRow("server") << QStringLiteral("unused") << false << QByteArray("A.a: 1\\");
    QTest::newRow("server, no resources") << QStringLiteral("unused") << false << QByteArray();
}

void TestCursorThemes::failurePutsEverythingBack()
{
    QFETCH(QString, inTheWay);
    QFETCH(bool, hasXrdb);
    QFETCH(QByteArray, file);
    const TemporaryHome home;
    const ScopedEnvironment data("QAZ_DATA_DIR", QFile::encodeName(home.path(QStringLiteral("data"))));
    makeCursorTheme(home, QStringLiteral("data/icons/Far"), Qt::red);
    QVERIFY(home.makeDirectory(inTheWay));
    QVERIFY(home.makeDirectory(QStringLiteral(".icons")));
    if (!file.isNull())
        home.write(resources, file);
    std::unique_ptr<FakePrograms> programs;
    if (!hasXrdb)
        programs = std::make_unique<FakePrograms>(FakePrograms::Path::Instead);
    const QByteArray theme = themeOfNewClient();
    const QByteArray current(QazIconTheme::getCurrentCursorThemeName(QX11Info::display()));
    QVERIFY(!QazIconTheme::setCurrentCursorThemeName("Far"));
    QCOMPARE(QByteArray(QazIconTheme::getCurrentCursorThemeName(QX11Info::display())), current);
    QCOMPARE(themeOfNewClient(), theme);
    QCOMPARE(home.read(resources), file);
    QCOMPARE(home.exists(resources), !file.isNull() || inTheWay == resources);
    QVERIFY(!QFileInfo(home.path(QStringLiteral(".icons/Far"))).isSymLink());
    QVERIFY(hasXrdb || !home.exists(defaultIndex));
}

QTEST_MAIN(TestCursorThemes)
#include "tst_cursorthemes.moc"
