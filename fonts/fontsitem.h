#pragma once

#include "fonts/fontrendering.h"

#include <QByteArray>
#include <QMap>
#include <QString>

#include <optional>
#include <vector>

/// An element as the reader hands it over, comments left out.
struct FontsElement {
    QByteArray tag;
    QMap<QByteArray, QByteArray> attributes; ///< UTF-8
    QByteArray text;                         ///< UTF-8, pieces of blanks alone left out
    bool hasUnknown = false;                 ///< an entity of which nobody here knows what it stands for
    std::vector<FontsElement> children;
};

/// One rendering setting of a fontconfig file.
struct FontsItem {
    enum class Kind { Directory, SubPixel, HintStyle, Hinting, AntiAliasing, ExcludePoints, ExcludePixels };

    Kind kind = Kind::Directory;
    QString text;       ///< the directory or value as the file has it
    ExcludeRange range; ///< of the two exclude kinds

    /// Whether a Hinting or AntiAliasing item is switched on.
    bool isOn() const;
};

/// The setting that a child of the root element holds; nothing for an element that no item owns.
std::optional<FontsItem> readFontsItem(const FontsElement &element);

/// The XML form of a sub-pixel, hint style, hinting or anti-aliasing item with the file's \a value, for
/// FontsDocument::Change.
QString valueForm(FontsItem::Kind kind, const QString &value);
/// The XML form of an exclude range.
QString excludeForm(FontsItem::Kind kind, const ExcludeRange &range);
/// The XML form of a directory; a leading \a home is written as "~".
QString directoryForm(const QString &directory, const QString &home);

/// \a path without double slashes and with one at its end; a leading "~" stands for \a home.
QString directoryFormOfPath(QString path, const QString &home = QStringLiteral("~"));
/// \a path without a slash at its end.
QString fileFormOfPath(QString path);
