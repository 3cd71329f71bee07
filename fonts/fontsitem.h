#pragma once

#include "fonts/fontrendering.h"

#include <QDomElement>
#include <QString>

#include <optional>

/// One rendering setting of a fontconfig file.
struct FontsItem {
    enum class Kind { Directory, SubPixel, HintStyle, Hinting, AntiAliasing, ExcludePoints, ExcludePixels };

    Kind kind = Kind::Directory;
    QString text;       ///< the directory in directory form, or the value as the file has it
    ExcludeRange range; ///< of the two exclude kinds

    /// Whether a Hinting or AntiAliasing item is switched on.
    bool isOn() const;
};

/// The setting that a child of the root element holds; nothing for an element that no item owns. A leading "~"
/// of a directory stands for \a home.
std::optional<FontsItem> readFontsItem(const QDomElement &element, const QString &home);

/// Whether an element inside a "match" can be part of an item, from its \a tag and its attribute \a name.
bool canBePartOfItem(QLatin1String tag, QLatin1String name);

/// The XML form of a sub-pixel, hint style, hinting or anti-aliasing item with the file's \a value, for
/// FontsDocument::Change.
QString valueForm(FontsItem::Kind kind, const QString &value);
/// The XML form of an exclude range.
QString excludeForm(FontsItem::Kind kind, const ExcludeRange &range);
/// The XML form of a directory; a leading \a home is written as "~".
QString directoryForm(const QString &directory, const QString &home);

/// \a path without double slashes and with one at its end.
QString directoryFormOfPath(QString path);
/// \a path without a slash at its end.
QString fileFormOfPath(QString path);
