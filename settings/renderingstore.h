#pragma once

#include <QByteArray>
#include <QMap>
#include <QString>
#include <QVariant>

/// Keys of the program's own Qt settings that hold how fonts are rendered.
namespace RenderingKey {
inline constexpr char forceFontDpi[] = "forceFontDPI";                 ///< integer, 0 when not forced
inline constexpr char dontChangeAaSettings[] = "dontChangeAASettings"; ///< true: the system's files decide
inline constexpr char antialias[] = "XftAntialias";                    ///< boolean
inline constexpr char subPixel[] = "XftSubPixel";          ///< name in fontconfig's files, such as rgb
inline constexpr char hintStyle[] = "XftHintStyle";        ///< name in fontconfig's files, such as hintmedium
inline constexpr char madeXresources[] = "madeXresources"; ///< whether ~/.Xresources was made for the DPI
} // namespace RenderingKey

/// The file of the running program's own settings.
QString ownSettingsFile();

/// What the program's own settings hold under \a key; invalid when it was never stored.
QVariant storedRendering(const char *key);

/// Stores \a values, by their keys, in the program's own settings. Why that failed is told on standard error.
void storeRendering(const QMap<QString, QVariant> &values);

/// The command that tells the window manager what the settings \a file holds. It is cut to what fits into 256 bytes
/// with the final NUL.
QByteArray xftSettingsCommand(const QString &file);

/// The X resource lines of what the settings \a file holds, each ended by a newline. A key that is absent gives no
/// line.
QString xftResourceLines(const QString &file);

/// The DPI that is forced, 0 for none. The number at the start of the X resource \a resource counts, without its
/// fraction; \a stored only decides whether any DPI is forced, and stands in for a resource without a number.
int forcedDpi(int stored, const QByteArray &resource);
