#pragma once

#include <QByteArray>
#include <QDomDocument>
#include <QVector>

/// What is where in the text of a fontconfig file. Places are bytes of the text.
struct FontsXml {
    /// An element directly below the root.
    struct Child {
        QDomElement node; ///< null for an element that can hold no rendering setting
        int start = 0;
        int startTagEnd = 0;
        int end = 0;
    };

    QDomDocument document; ///< the root, and below it the nodes of the children
    QVector<Child> children;
    int doctype = -1;    ///< a document type declaration without a DTD; -1: there is none
    int rootOpenEnd = 0; ///< behind the root's start tag
    int rootClose = -1;  ///< the root's end tag; -1: the root is an empty-element tag
};

/// Reads \a text, which is UTF-8 whatever its declaration says. Returns false when it is not well-formed or its
/// root is no fontconfig element; \a error says why, and the document has no root if none was found.
[[nodiscard]] bool readFontsXml(const QByteArray &text, FontsXml *xml, QString *error);
