#include "platform/qazinit.h"

#include "base/xdgdirectories.h"
#include "freedesktop/dataroot.h"
#include "platform/getqazdir.h"

#include <QApplication>
#include <QFile>
#include <QIcon>
#include <QLibraryInfo>
#include <QLocale>
#include <QScreen>
#include <QTranslator>

#include <algorithm>

namespace {

void installCatalogue(const QString &name, const QString &directory)
{
    auto *translator = new QTranslator(QCoreApplication::instance());
    if (translator->load(QLocale(), name, QStringLiteral("_"), directory))
        QCoreApplication::installTranslator(translator);
}

void useOwnIconsAsFallback()
{
    QStringList paths = QIcon::themeSearchPaths();
    paths.append(dataRoot() + QLatin1String("/icons"));
    QIcon::setThemeSearchPaths(paths);
    QIcon::setFallbackThemeName(QStringLiteral("qaz-tirsk"));
    // Without a chosen theme Qt looks every name up in hundreds of directories of "hicolor" first.
    if (QIcon::themeName() == QLatin1String("hicolor"))
        QIcon::setThemeName(QIcon::fallbackThemeName());
}

} // namespace

bool qazInit(const char *version, const char * /*title*/)
{
    makeDirectories(QFile::decodeName(GetQazDir(2)));
    QCoreApplication::setOrganizationName(QStringLiteral("qaz"));
    QCoreApplication::setApplicationName(QStringLiteral("qaz-admin-theme"));
    // The title is no display name on purpose: Qt would append it to every window title.
    QCoreApplication::setApplicationVersion(QString::fromLocal8Bit(version));
    installCatalogue(QStringLiteral("qtbase"), QLibraryInfo::location(QLibraryInfo::TranslationsPath));
    installCatalogue(QStringLiteral("qaz-admin-theme"), dataRoot() + QLatin1String("/translations"));
    useOwnIconsAsFallback();
    return true;
}

char *qazSessionConfigSuffix(int kind)
{
    const QByteArray session = kind == 0 ? qgetenv("QAZ_SESSION") : QByteArray();
    const bool isValid = std::all_of(session.cbegin(), session.cend(), [](char c) {
        return (c >= 'a' && c <= 'z') || (c >= 'A' && c <= 'Z') || (c >= '0' && c <= '9') || c == '_'
               || c == '.' || c == '-';
    });
    const QByteArray suffix = isValid && !session.isEmpty() ? '-' + session : QByteArray();
    return qstrdup(suffix.constData());
}

bool qazInTabletMode()
{
    const QByteArray mode = qgetenv("QAZ_TABLET_MODE");
    return mode == "1" || mode == "true";
}

double qazDpiScaled(double length)
{
    const QScreen *screen = QGuiApplication::primaryScreen();
    return screen ? length * screen->logicalDotsPerInch() / 96.0 : length;
}
