#pragma once

#include "fonts/fontsitem.h"

#include <QByteArray>
#include <QList>
#include <QVector>

/// What is where in the text of a fontconfig file. Places are bytes of the text.
struct FontsXml {
    /// An element directly below the root.
    struct Child {
        std::optional<FontsItem> item; ///< the setting that it holds
        int start = 0;
        int startTagEnd = 0;
        int end = 0;
        bool hasMoreAttributes = false; ///< than a setting's element needs
        QList<QByteArray> remarks;      ///< comments and processing instructions inside
        QByteArray essence; ///< without them and the blanks between tags; of an element with an item
    };

    QVector<Child> children;
    bool hasRoot = false;
    bool holdsMore = false; ///< remarks, text or attributes beside the children
    int doctype = -1;       ///< a document type declaration without a DTD; -1: there is none
    int rootOpenEnd = 0;    ///< behind the root's start tag
    int rootClose = -1;     ///< the root's end tag; -1: the root is an empty-element tag
};

/// Reads \a text, which is UTF-8 whatever its declaration says. Returns false when it is not well-formed or its
/// root is no fontconfig element; \a error says why.
[[nodiscard]] bool readFontsXml(const QByteArray &text, FontsXml *xml, QString *error);
