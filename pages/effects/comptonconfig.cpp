#include "pages/effects/comptonconfig.h"

#include "base/atomicfile.h"
#include "base/chandle.h"
#include "base/editfile.h"
#include "pages/effects/libconfigtext.h"
#include "settings/backup.h"

#include <QFileInfo>

#include <memory>

#include <libconfig.h>

namespace {

constexpr char transparencyName[] = "enable-transparency";
constexpr char shadowName[] = "shadow";

// The files in use are a few kilobytes long.
constexpr int sizeLimit = 1024 * 1024;

std::optional<QByteArray> expanded(const QByteArray &text, const QString &path)
{
    return withIncludes(text, QFileInfo(path).path(), sizeLimit);
}

std::optional<bool> boolean(const config_t &config, const char *name)
{
    int value = 0;
    return ::config_lookup_bool(&config, name, &value) == CONFIG_TRUE ? std::optional<bool>(value)
                                                                      : std::nullopt;
}

/// What libconfig finds in \a text of the file at \a path; nothing when it is no configuration.
std::optional<ComptonValues> valuesOf(const QByteArray &text, const QString &path)
{
    const std::optional<QByteArray> wholeText = expanded(text, path);
    config_t config;
    ::config_init(&config);
    const std::unique_ptr<config_t, Release<config_destroy>> owned(&config);
    if (!wholeText || wholeText->contains('\0')
        || ::config_read_string(&config, wholeText->constData()) != CONFIG_TRUE)
        return {};
    return ComptonValues{boolean(config, transparencyName), boolean(config, shadowName)};
}

/// \a text of the file at \a path with other values; nothing when it is no configuration.
std::optional<QByteArray> updated(const QByteArray &text, const QString &path, bool transparency, bool shadow)
{
    const std::optional<ComptonValues> stored = valuesOf(text, path);
    if (!stored)
        return {};
    // A name may stand only once, and it may stand in an included file.
    for (QByteArray edited : {text, *expanded(text, path)}) {
        if (stored->shadow != shadow)
            edited = withRootBoolean(edited, shadowName, shadow);
        if (stored->transparency != transparency)
            edited = withRootBoolean(edited, transparencyName, transparency);
        const std::optional<ComptonValues> values = valuesOf(edited, path);
        if (values && values->transparency == transparency && values->shadow == shadow)
            return edited;
    }
    return {};
}

} // namespace

std::optional<ComptonValues> readComptonFile(const QString &path)
{
    // Not config_read_file(): it may end the program, or block, on what is no regular file.
    const FileContent file = readRegularFile(path, sizeLimit);
    return file.state == FileState::Regular ? valuesOf(file.content, path) : std::nullopt;
}

bool updateComptonFile(const QString &path, bool transparency, bool shadow, QString *error)
{
    const auto edit = [&](const QByteArray &text) {
        std::optional<QByteArray> result = updated(text, path, transparency, shadow);
        if (!result)
            *error = QStringLiteral("No configuration");
        return result;
    };
    EditFileOptions options;
    options.limit = sizeLimit;
    options.beforeReplace = [](const QString &original) { backUp(original); };
    return editFile(path, edit, error, options);
}
