#include "freedesktop/dataroot.h"
#include "platform/finddpi.h"
#include "platform/getqazdir.h"
#include "platform/qazinit.h"
#include "tests/support/temporaryhome.h"

#include <QX11Info>

#include <X11/Xatom.h>
#include <X11/Xlib.h>

static QString directory(int kind)
{
    return QString::fromLocal8Bit(GetQazDir(kind));
}

class TestDirectories : public QObject
{
    Q_OBJECT
private slots:
    void kindsFollowTheEnvironment()
    {
        const TemporaryHome home;
        const ScopedEnvironment data("QAZ_DATA_DIR", "/data/root/");
        const QString config = home.path(".config/qaz"_s);
        QStringList paths;
        for (const int kind : {2, 3, 14, 18, 21, 27, 0, 4, 5, 7, 13, 22, 99, -1})
            paths += directory(kind);
        QCOMPARE(paths.join(u' ').replace(home.path(), "HOME"_s),
                 "HOME/.config/qaz HOME/.config/qaz /data/root/sounds HOME HOME/.local/share/wallpapers "
                 "/data/root/themes        "_s);
        const char *personal = GetQazDir(2);
        const ScopedEnvironment elsewhere("XDG_CONFIG_HOME", "/elsewhere");
        GetQazDir(14);
        GetQazDir(18);
        QCOMPARE(QFile::decodeName(personal), config);
        QCOMPARE(directory(2), "/elsewhere/qaz"_s);
        for (const char *value : {static_cast<const char *>(nullptr), "", "relative"}) {
            const ScopedEnvironment variable("XDG_CONFIG_HOME", value), dataHome("XDG_DATA_HOME", value),
                cacheHome("XDG_CACHE_HOME", value);
            QCOMPARE(directory(2) + directory(21) + directory(1),
                     config + home.path(".local/share/wallpapers"_s) + home.path(".cache/qaz/wallpapers"_s));
        }
        QCOMPARE(home.mode(directory(1)), 0700U);
        const ScopedEnvironment cache("XDG_CACHE_HOME", QFile::encodeName(home.write("file"_s, "")));
        QCOMPARE(directory(1), QString());
        const ScopedEnvironment unset("HOME", QByteArray());
        QVERIFY2(directory(18).startsWith(u'/'), "the password database knows a home");
    }

    void theCurrentDesktopIsTheRootWindows()
    {
        const TemporaryHome home;
        QCOMPARE(directory(6), home.path("Desktops/Desktop1"_s));
        Display *display = QX11Info::display();
        const Atom current = XInternAtom(display, "_NET_CURRENT_DESKTOP", False);
        const long number = 2;
        for (const auto &[type, format, value, name] :
             {std::tuple(XA_CARDINAL, 32, reinterpret_cast<const unsigned char *>(&number), "Desktop3"_s),
              {XA_STRING, 8, reinterpret_cast<const unsigned char *>("7"), "Desktop1"_s}}) {
            XChangeProperty(display, DefaultRootWindow(display), current, type, format, PropModeReplace,
                            value, 1);
            QCOMPARE(directory(6), home.path("Desktops/"_s + name));
        }
        XDeleteProperty(display, DefaultRootWindow(display), current);
    }

    void theSessionSuffixTakesSafeNamesOnly()
    {
        QByteArray suffixes;
        for (const char *session :
             {static_cast<const char *>(nullptr), "", "aZ0_.-", "../x", "a b", "a\n", "ä"}) {
            const ScopedEnvironment name("QAZ_SESSION", session);
            for (const int kind : {0, 1})
                suffixes.append(std::unique_ptr<char[]>(qazSessionConfigSuffix(kind)).get()).append('|');
        }
        QCOMPARE(suffixes, QByteArray("||||-aZ0_.-||||||||||"));
    }

    void initNamesTheProgramAndItsResources()
    {
        const TemporaryHome home;
        QLocale::setDefault(QLocale("de_AT"_s));
        for (const auto &[chosen, theme] :
             {std::pair("hicolor"_s, "qaz-tirsk"_s), {"Chosen"_s, "Chosen"_s}}) {
            QIcon::setThemeName(chosen);
            QVERIFY(qazInit("1.2-3", "A title"));
            QCOMPARE(QIcon::themeName(), theme);
        }
        QLocale::setDefault(QLocale::system());
        const QStringList named{QCoreApplication::organizationName(),
                                QCoreApplication::applicationName(),
                                QCoreApplication::applicationVersion(),
                                QIcon::fallbackThemeName(),
                                QCoreApplication::translate("QPlatformTheme", "Cancel"),
                                QCoreApplication::translate("Help", "Search:")};
        QCOMPARE(named.join(u' '), "qaz qaz-admin-theme 1.2-3 qaz-tirsk Abbrechen Suchen:"_s);
        QCOMPARE(QIcon::themeSearchPaths().constLast(), dataRoot() + "/icons"_s);
        QCOMPARE(home.mode(".config/qaz"_s), 0700U);
        QCOMPARE(home.names(), ".config"_s);
        for (const char *mode : {"1", "true", "yes"}) {
            const ScopedEnvironment tablet("QAZ_TABLET_MODE", mode);
            QCOMPARE(qazInTabletMode(), *mode != 'y');
        }
        QCOMPARE(qazDpiScaled(10), 10.0);
        QCOMPARE(qRound(FindDPI(QX11Info::display(), 0)), 96);
        QCOMPARE(FindDPI(nullptr, 0), 0.0);
    }
};

QTEST_MAIN(TestDirectories)
#include "tst_directories.moc"
