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

#include <cstring>

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
    constexpr char safe[] = "ABCDEFGHIJKLMNOPQRSTUVWXYZabcdefghijklmnopqrstuvwxyz0123456789_.-";
    const bool isSafe = !session.isEmpty()
                        && std::strspn(session.constData(), safe) == size_t(session.size());
    return qstrdup(isSafe ? ('-' + session).constData() : "");
}

bool qazInTabletMode()
{
    const QByteArray mode = qgetenv("QAZ_TABLET_MODE");
    return mode == "1" || mode == "true";
}

double qazDpiScaled(double length)
{
    return length * QGuiApplication::primaryScreen()->logicalDotsPerInch() / 96.0;
}
