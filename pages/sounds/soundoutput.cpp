#include "pages/sounds/soundoutput.h"

#include <QCoreApplication>
#include <QLibrary>

std::unique_ptr<SoundOutput> createQSound(const QString &path)
{
    // Loaded when it is needed: twenty libraries come with it, which the start would wait for.
    QLibrary module(QCoreApplication::applicationDirPath()
                    + QLatin1String("/../lib/qaz-admin-theme/modules/qsound"));
    using Create = SoundOutput *(*)(const QString &);
    const auto create = reinterpret_cast<Create>(module.resolve("createQSoundOutput"));
    return std::unique_ptr<SoundOutput>(create ? create(path) : nullptr);
}
