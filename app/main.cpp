#include "app/configdialog.h"
#include "app/myapplication.h"
#include "app/shutdown.h"
#include "fonts/fontsfile.h"
#include "platform/qazinit.h"
#include "resources/registerresources.h"
#include "settings/directories.h"

#include <QAccessible>
#include <QFile>
#include <QOpenGLContext>
#include <QScopeGuard>
#include <QStandardPaths>

#include <cstdio>
#include <utility>

namespace {

constexpr Qt::WindowFlags windowFlags = Qt::Window | Qt::CustomizeWindowHint | Qt::WindowTitleHint
                                        | Qt::WindowSystemMenuHint | Qt::WindowMinimizeButtonHint
                                        | Qt::WindowMaximizeButtonHint | Qt::WindowCloseButtonHint;

/// Sets what Qt reads from the environment once, where the user has not. As before when the returned guard ends: the
/// programs that the pages start inherit the environment.
auto setForQt(const char *variable, const char *value)
{
    const bool wasSet = qEnvironmentVariableIsSet(variable);
    if (!wasSet)
        qputenv(variable, value);
    return qScopeGuard([=] { wasSet || qunsetenv(variable); });
}

/// Starts Qt without what costs half the time of a start and is of no use here: the GL stack, and, where no session
/// bus is and none can be started, the child process in which the accessibility bridge looks for one.
MyApplication *createApplication(int &argc, char **argv)
{
    guardFontconfig();
    const auto withoutGl = setForQt("QT_XCB_GL_INTEGRATION", "none");
    // Each display has an instance of its own.
    const QString id = QString::fromLocal8Bit(qgetenv("DISPLAY")) + QLatin1String("qaz-admin-theme");
    auto *application = new MyApplication(id, argc, argv);
    // The X11 plugin reads the variables when it is first asked for what GL can do and for accessibility.
    QOpenGLContext::supportsThreadedOpenGL();
    if (!QFile::exists(qEnvironmentVariable("XDG_RUNTIME_DIR") + QLatin1String("/bus"))
        && QStandardPaths::findExecutable(QStringLiteral("dbus-launch")).isEmpty()) {
        const auto withoutBus = setForQt("DBUS_SESSION_BUS_ADDRESS", "none:");
        QAccessible::isActive();
    }
    return application;
}

/// Everything after the check for a running instance; returns the exit status.
int runEditor(int argc, char **argv)
{
    registerResources();
    qazInit("2.2.5-12", "Qaz theme editor");
    if (const QString first = MyApplication::arguments().value(1);
        first == QLatin1String("--help") || first == QLatin1String("-h")) {
        // Only a catalogue has the whole line: the call's comment is its source.
        std::puts(
            qPrintable(QObject::tr("Qaz", "Usage: qaz-admin-theme themefile - open and edit theme file\n")));
        return 1;
    }
    loadFontconfig();
    dlg = new ConfigDialog(chooseThemeFile(argc, argv), nullptr, windowFlags);
    dlg->show();
    handleTermination();
    handleLostDisplay();
    QObject::connect(myApp, &MyApplication::messageReceived, dlg, &ConfigDialog::messageReceived);
    QObject::connect(myApp, &MyApplication::lastWindowClosed, myApp, &MyApplication::quit);
    const int result = MyApplication::exec();
    delete std::exchange(dlg, nullptr);
    return result;
}

} // namespace

int main(int argc, char *argv[])
{
    QCoreApplication::setAttribute(Qt::AA_UseHighDpiPixmaps);
    myApp = createApplication(argc, argv);
    int result = 0;
    if (myApp->isRunning())
        myApp->sendMessage(QStringLiteral("show"), 5000);
    else
        result = runEditor(argc, argv);
    delete std::exchange(myApp, nullptr);
    return result;
}
