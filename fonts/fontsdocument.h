#pragma once

#include <QDomDocument>
#include <QVector>

class QTextCodec;

/// A fontconfig configuration file in memory. It is read on a QDomDocument and changed in its original text: only
/// the children of the root that a change names are touched, every other byte stays.
class FontsDocument
{
public:
    /// An element directly below the root.
    struct Child {
        QDomElement node; ///< null for an element that holds no rendering setting
        int start = 0;    ///< where it stands in the text
        int startTagEnd = 0;
        int end = 0;
    };

    /// What is to become of one child of the root.
    struct Change {
        QDomElement node; ///< the child to replace; null: \a form is appended to the root
        /// The new element; every line below the first begins with a tab for each level. Empty: the child is removed.
        QString form;
    };

    FontsDocument();

    /// Takes over a file's \a content. Blank content and a file without a root element read as an empty
    /// configuration. Returns false, and holds an empty configuration, when the content is not well-formed,
    /// not in its declared encoding or not a fontconfig configuration; \a error says why.
    [[nodiscard]] bool setContent(const QByteArray &content, QString *error);

    const QVector<Child> &children() const { return m_children; }

    /// The file's content after \a changes, in the file's own encoding, line ends and indentation.
    QByteArray withChanges(const QVector<Change> &changes) const;

    /// Whether the file holds nothing but the children \a owned: no comment, no other element.
    bool holdsOnly(const QVector<QDomElement> &owned) const;

private:
    class Reader;
    struct Edit {
        int start;
        int end;
        QString text;
    };

    void clear();
    [[nodiscard]] bool decode(const QByteArray &content, QString *error);
    void addPrologEdits(QVector<Edit> *edits) const;
    Edit changeOf(const Child &child, const QString &form) const;
    /// Where the removal of \a child begins: with the line break before it when it has its lines for itself.
    int removalStart(const Child &child, const QString &indentation) const;
    Edit insertionOf(const QStringList &forms) const;
    QString laidOut(QStringList lines, const QString &indentation) const;
    QString lineIndentation(int position) const;
    QString indentationStep() const;
    QString newLine() const;

    QString m_text;
    QTextCodec *m_codec; // Qt's
    QByteArray m_byteOrderMark;
    QDomDocument m_document;
    QVector<Child> m_children;
    int m_doctype = -1; // where a document type without a DTD stands
    int m_rootOpenEnd = 0;
    int m_rootClose = -1; // where "</" stands; -1: the root is an empty-element tag
};
