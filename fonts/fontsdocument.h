#pragma once

#include "fonts/fontsxml.h"

#include <QList>
#include <QString>

class QTextCodec;

/// A fontconfig configuration file in memory. It is changed in its original text: only the children of the root
/// that a change names are touched, every other byte stays.
class FontsDocument
{
public:
    using Child = FontsXml::Child;

    /// What is to become of one child of the root.
    struct Change {
        int child = -1; ///< the child to replace; -1: \a form is added
        /// The new element; every line below the first begins with a tab for each level. Empty: the child is removed.
        QString form;
        int before = -1; ///< the child in front of which a new element goes; -1: behind the last one
    };

    FontsDocument();

    /// Takes over a file's \a content. Blank content and a file without a root element read as an empty
    /// configuration. Returns false, and holds an empty configuration, when the content is not well-formed,
    /// not in its declared encoding or not a fontconfig configuration; \a error says why.
    [[nodiscard]] bool setContent(const QByteArray &content, QString *error);

    const QVector<Child> &children() const { return m_xml.children; }

    /// The file's content after \a changes, in the file's own encoding, line ends and indentation.
    QByteArray withChanges(const QVector<Change> &changes) const;

    /// Whether the file holds nothing but settings, each once: no comment, no other element.
    bool holdsOnlySettings() const;

private:
    struct Edit {
        int start;
        int end;
        QByteArray text;
    };

    void clear();
    [[nodiscard]] bool decode(const QByteArray &content, QString *error);
    bool isUtf8() const;
    QByteArray encoded(const QByteArray &text) const;
    void addPrologEdits(QVector<Edit> *edits) const;
    Edit changeOf(const Child &child, const QByteArray &form) const;
    /// Where the removal of \a child begins: with the line break before it when it has its lines for itself.
    int removalStart(const Child &child, const QByteArray &indentation) const;
    Edit additionOf(const QVector<QByteArray> &forms) const;
    QByteArray laidOut(QList<QByteArray> lines, const QByteArray &indentation) const;
    QByteArray lineIndentation(int position) const;
    QByteArray indentationStep() const;
    QByteArray newLine() const;

    QByteArray m_text;   // UTF-8
    QTextCodec *m_codec; // of the file; Qt's
    QByteArray m_byteOrderMark;
    FontsXml m_xml;
};
