#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// The values that the page edits in a compton file; one that is missing, or of another type, has no value.
struct ComptonValues {
    std::optional<bool> transparency;
    std::optional<bool> shadow;
};

/// The values of the file at \a path with all that it includes; nothing when it can't be read, is no configuration or
/// is larger than any configuration can sensibly be.
std::optional<ComptonValues> readComptonFile(const QString &path);

/// Sets both values, whatever stood in their place, after a backup. The file belongs to the user: every other byte
/// stays. A setting that stands in an included file isn't changed there: then the texts of the included files take the
/// places of the includes. On failure the old file stands whole and \a error says why.
[[nodiscard]] bool updateComptonFile(const QString &path, bool transparency, bool shadow, QString *error);
