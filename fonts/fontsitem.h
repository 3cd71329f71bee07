#pragma once

#include "fonts/fontrendering.h"

#include <QByteArray>
#include <QMap>
#include <QString>

#include <optional>
#include <vector>

/// An element as the reader hands it over, comments left out.
struct FontsElement {
    QString tag;
    QMap<QByteArray, QByteArray> attributes; ///< UTF-8
    QString text;                            ///< pieces of blanks alone left out
    bool hasUnknown = false;                 ///< an entity of which nobody here knows what it stands for
    std::vector<FontsElement> children;
};

/// One rendering setting of a fontconfig file.
struct FontsItem {
    enum class Kind { SubPixel, HintStyle, Hinting, AntiAliasing, ExcludePoints, ExcludePixels };

    Kind kind = Kind::SubPixel;
    QString text = {};       ///< the value as the file has it
    ExcludeRange range = {}; ///< of the two exclude kinds

    /// Whether there is nothing to say: no element stands for it.
    bool isEmpty() const { return text.isEmpty() && range.isZero(); }
    bool isRange() const { return kind == Kind::ExcludePoints || kind == Kind::ExcludePixels; }
};

/// The setting that a child of the root element holds; nothing for an element that no item owns.
std::optional<FontsItem> readFontsItem(const FontsElement &element);

/// The XML form of \a item; every line below the first begins with a tab for each level.
QString fontsItemForm(const FontsItem &item);
