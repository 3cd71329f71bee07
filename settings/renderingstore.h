#pragma once

#include <QByteArray>
#include <QString>

class QSettings;
class QVariant;

/// Keys of the program's own Qt settings that hold how fonts are rendered.
namespace RenderingKey {
inline constexpr char forceFontDpi[] = "forceFontDPI";                 ///< integer, 0 when not forced
inline constexpr char dontChangeAaSettings[] = "dontChangeAASettings"; ///< true: the system's files decide
inline constexpr char antialias[] = "XftAntialias";                    ///< boolean
inline constexpr char subPixel[] = "XftSubPixel";          ///< name in fontconfig's files, such as rgb
inline constexpr char hintStyle[] = "XftHintStyle";        ///< name in fontconfig's files, such as hintmedium
inline constexpr char madeXresources[] = "madeXresources"; ///< whether ~/.Xresources was made for the DPI
} // namespace RenderingKey

/// Stores \a value unless it is there already: Qt writes the file even when every value set was the old one.
/// Returns whether it was new.
bool storeValue(QSettings *store, const char *key, const QVariant &value);

/// The command that tells the window manager what \a store holds. It is cut to what fits into 256 bytes with
/// the final NUL.
QByteArray xftSettingsCommand(const QSettings &store);

/// The X resource lines of what \a store holds, each ended by a newline. A key that is absent gives no line.
QString xftResourceLines(const QSettings &store);

/// The DPI that is forced, 0 for none. The number at the start of the X resource \a resource counts, without its
/// fraction; \a stored only decides whether any DPI is forced, and stands in for a resource without a number.
int forcedDpi(int stored, const QByteArray &resource);
