#include "pages/effects/comptonconfig.h"
#include "pages/effects/libconfigtext.h"
#include "tests/fuzz/fuzzing.h"

#include <QDir>
#include <QFile>
#include <QTemporaryDir>

// A switch that was set in a file that can be read is read back as it was set.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    static const QTemporaryDir home;
    static const QString path = home.filePath(QStringLiteral("compton.conf"));
    const FuzzInput input(data, size);
    QFile file(path);
    require(file.open(QIODevice::WriteOnly) && file.write(input.content) == input.content.size());
    file.close();

    std::optional<ComptonConfig> config = ComptonConfig::read(path);
    if (!config)
        return 0;
    const bool shadow = input.argument.isEmpty();
    const std::optional<bool> transparency = config->boolean(comptonTransparency);
    config->updateBoolean(comptonShadow, shadow);
    QString error;
    require(config->write(&error));

    const std::optional<ComptonConfig> written = ComptonConfig::read(path);
    require(written.has_value());
    require(written->boolean(comptonShadow) == shadow);
    require(written->boolean(comptonTransparency) == transparency);
    return 0;
}
