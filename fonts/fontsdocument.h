#pragma once

#include "fonts/fontsxml.h"

class QTextCodec;

/// A fontconfig configuration file in memory. It is changed in its original text: only the elements of the settings
/// that are changed are touched, every other byte stays.
class FontsDocument
{
public:
    FontsDocument();

    /// Takes over a file's \a content. Blank content and a file without a root element read as an empty
    /// configuration. Returns false, and holds an empty configuration, when the content is not well-formed,
    /// not in its declared encoding or not a fontconfig configuration; \a error says why.
    [[nodiscard]] bool setContent(const QByteArray &content, QString *error);

    const QVector<FontsXml::Child> &children() const { return m_xml.children; }

    /// The setting of \a kind that is in force; an empty one when there is none.
    FontsItem item(FontsItem::Kind kind) const;

    /// The file's content with \a items in place of its own ones of the same kinds, in the file's own encoding, line
    /// ends and indentation. An empty item removes.
    QByteArray withItems(const QVector<FontsItem> &items) const;

    /// Whether the file holds nothing but settings, each once: no comment, no other element.
    bool holdsOnlySettings() const;

private:
    struct Edit {
        int start;
        int end;
        QString text;
    };

    [[nodiscard]] bool understand(const QByteArray &content, QString *error);
    [[nodiscard]] bool decode(const QByteArray &content, QString *error);
    QByteArray encoded(const QString &text) const;
    void addPrologEdits(QVector<Edit> *edits) const;
    Edit replacement(const FontsXml::Child &child, const FontsItem &item) const;
    Edit removal(const FontsXml::Child &child) const;
    Edit addition(const QString &elements) const;
    /// The child of the root in front of which a new \a item goes; the end: behind the last one.
    QVector<FontsXml::Child>::const_iterator placeOf(const FontsItem &item,
                                                     const QVector<FontsItem> &items) const;
    QString laidOut(const FontsItem &item, const QString &indentation) const;
    QString blanksBefore(int position) const;
    QString lineIndentation(int position) const;
    QString indentationStep() const;
    QString newLine() const;

    QString m_byteOrderMark; // or nothing
    QString m_text;
    QTextCodec *m_codec = nullptr; // of the file; Qt's
    FontsXml m_xml;
};
