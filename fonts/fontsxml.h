#pragma once

#include "fonts/fontsitem.h"

#include <QStringList>
#include <QVector>

/// What is where in the text of a fontconfig file.
struct FontsXml {
    /// An element directly below the root.
    struct Child {
        std::optional<FontsItem> item; ///< the setting that it holds
        int start = 0;
        int end = 0;
        QString startTag;    ///< where it has more attributes than a setting's element needs
        QStringList remarks; ///< comments and processing instructions inside
        QString essence;     ///< without them and the blanks between tags
    };

    QVector<Child> children;
    bool holdsMore = false; ///< remarks, text or attributes beside the children
    bool hasRoot = false;
    int rootOpenEnd = 0;          ///< behind the root's start tag
    std::optional<int> rootClose; ///< the root's end tag; none: the root is an empty-element tag
};

/// Reads \a text. Returns false when it is not well-formed or its root is no fontconfig element; \a error says why.
[[nodiscard]] bool readFontsXml(const QString &text, FontsXml *xml, QString *error);
