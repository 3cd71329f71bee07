#include "app/windowsize.h"

#include "settings/inifile.h"

#include <QCoreApplication>
#include <QScreen>
#include <QWidget>

namespace {

constexpr int largestExtent = 32767; // an X window can't be larger
// What Qt, too, takes for the frame of a window that is not shown yet.
constexpr QSize frame(10, 40);

QString ownSettings()
{
    return iniFile(QCoreApplication::organizationName(), QCoreApplication::applicationName());
}

int storedExtent(const QString &key, int defaultExtent)
{
    const int extent = iniValue(ownSettings(), key, defaultExtent).toInt();
    return extent > 0 && extent <= largestExtent ? extent : defaultExtent;
}

} // namespace

QSize storedWindowSize(const QSize &defaultSize)
{
    return {storedExtent(QStringLiteral("width"), defaultSize.width()),
            storedExtent(QStringLiteral("height"), defaultSize.height())};
}

void storeWindowSize(const QSize &size)
{
    QString error; // told on standard error
    [[maybe_unused]] const bool stored = writeIniValues(
        ownSettings(), QString(),
        {{QStringLiteral("width"), size.width()}, {QStringLiteral("height"), size.height()}}, &error);
}

QSize sizeOnScreen(const QSize &size, const QWidget *window)
{
    return size.boundedTo(window->screen()->availableSize() - frame);
}
