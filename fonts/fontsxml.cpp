#include "fonts/fontsxml.h"

#include "base/chandle.h"

#include <memory>
#include <type_traits>
#include <utility>

#include <expat.h>

namespace {

// A tree this deep holds no configuration, but could exhaust the stack of whoever walks it.
constexpr int depthLimit = 200;

/// One pass over the text.
class Reader
{
public:
    Reader(const QByteArray &text, FontsXml *xml);
    bool read(QString *error);

private:
    static Reader *self(void *data) { return static_cast<Reader *>(data); }
    void setHandlers();
    void doctype(const char *systemId, bool hasSubset);
    void startElement(const char *name, const char **attributes);
    void endElement();
    void characters(const char *text, int size);
    void remark();
    void skippedEntity();
    void flushCharacters();
    void refuse(const QString &reason);
    int eventStart() const { return int(XML_GetCurrentByteIndex(m_parser.get())); }
    int eventEnd() const { return eventStart() + XML_GetCurrentByteCount(m_parser.get()); }
    QByteArray eventText() const { return m_text.mid(eventStart(), eventEnd() - eventStart()); }

    const QByteArray &m_text;
    FontsXml *m_xml;
    const std::unique_ptr<std::remove_pointer_t<XML_Parser>, Release<XML_ParserFree>> m_parser;
    std::vector<FontsElement> m_open; // the elements around the place, from the child of the root on
    QByteArray m_characters;          // they come in pieces
    QByteArray m_rawCharacters;       // as they stand in the text
    QString m_refusal;
    int m_depth = 0;
};

Reader::Reader(const QByteArray &text, FontsXml *xml)
    : m_text(text)
    , m_xml(xml)
    , m_parser(XML_ParserCreate("UTF-8"))
{
    XML_SetUserData(m_parser.get(), this);
    setHandlers();
}

void Reader::setHandlers()
{
    const XML_Parser parser = m_parser.get();
    XML_SetStartDoctypeDeclHandler(parser, [](void *data, const char *, const char *systemId, const char *,
                                              int hasSubset) { self(data)->doctype(systemId, hasSubset); });
    XML_SetElementHandler(
        parser,
        [](void *data, const char *name, const char **attributes) {
            self(data)->startElement(name, attributes);
        },
        [](void *data, const char *) { self(data)->endElement(); });
    XML_SetCharacterDataHandler(
        parser, [](void *data, const char *text, int size) { self(data)->characters(text, size); });
    XML_SetCommentHandler(parser, [](void *data, const char *) { self(data)->remark(); });
    XML_SetProcessingInstructionHandler(parser,
                                        [](void *data, const char *, const char *) { self(data)->remark(); });
    XML_SetSkippedEntityHandler(parser, [](void *data, const char *, int isParameter) {
        if (!isParameter)
            self(data)->skippedEntity();
    });
}

bool Reader::read(QString *error)
{
    if (XML_Parse(m_parser.get(), m_text.constData(), m_text.size(), 1) == XML_STATUS_OK)
        return true;
    const QString reason = m_refusal.isEmpty()
                               ? QString::fromLatin1(XML_ErrorString(XML_GetErrorCode(m_parser.get())))
                               : m_refusal;
    *error = QStringLiteral("line %1: %2")
                 .arg(QString::number(XML_GetCurrentLineNumber(m_parser.get())), reason);
    return false;
}

void Reader::refuse(const QString &reason)
{
    m_refusal = reason;
    XML_StopParser(m_parser.get(), XML_FALSE);
}

void Reader::doctype(const char *systemId, bool hasSubset)
{
    m_xml->holdsMore = m_xml->holdsMore || hasSubset;
    if (!systemId && !hasSubset)
        m_xml->doctype = m_text.lastIndexOf("<!DOCTYPE", eventStart());
}

void Reader::startElement(const char *name, const char **attributes)
{
    flushCharacters();
    if (++m_depth > depthLimit)
        return refuse(QStringLiteral("elements are nested too deeply"));
    if (m_depth == 1) {
        if (qstrcmp(name, "fontconfig") != 0)
            refuse(QStringLiteral("the root element is '%1', not 'fontconfig'").arg(QString::fromUtf8(name)));
        m_xml->hasRoot = true;
        m_xml->rootOpenEnd = eventEnd();
        m_xml->holdsMore = m_xml->holdsMore || *attributes;
        return;
    }
    FontsElement element;
    element.tag = name;
    for (; *attributes; attributes += 2)
        element.attributes.insert(attributes[0], attributes[1]);
    if (m_depth == 2) {
        FontsXml::Child child;
        child.start = eventStart();
        child.startTagEnd = eventEnd();
        child.hasMoreAttributes = element.attributes.size() > 1;
        m_xml->children.append(child);
    }
    m_xml->children.last().essence += eventText();
    m_open.push_back(std::move(element));
}

void Reader::endElement()
{
    flushCharacters();
    if (--m_depth == 0) {
        m_xml->rootClose = eventEnd() == m_xml->rootOpenEnd ? -1 : eventStart();
        return;
    }
    FontsXml::Child &child = m_xml->children.last();
    child.essence += eventText();
    FontsElement element = std::move(m_open.back());
    m_open.pop_back();
    if (!m_open.empty()) {
        m_open.back().children.push_back(std::move(element));
        return;
    }
    child.end = eventEnd();
    // What an entity stands for has no place in the text, so it can't be changed there.
    if (m_text.at(child.start) == '<')
        child.item = readFontsItem(element);
    if (!child.item)
        child.essence.clear();
}

void Reader::characters(const char *text, int size)
{
    m_characters.append(text, size);
    m_rawCharacters += eventText();
}

void Reader::flushCharacters()
{
    if (!m_characters.trimmed().isEmpty() && m_open.empty()) {
        m_xml->holdsMore = true;
    } else if (!m_characters.trimmed().isEmpty()) {
        m_open.back().text += m_characters;
        m_xml->children.last().essence += m_rawCharacters;
    }
    m_characters.clear();
    m_rawCharacters.clear();
}

void Reader::remark()
{
    if (m_open.empty())
        m_xml->holdsMore = true;
    else if (m_text.at(eventStart()) == '<') // not out of an entity
        m_xml->children.last().remarks.append(eventText());
}

void Reader::skippedEntity()
{
    if (m_open.empty())
        m_xml->holdsMore = true;
    else
        m_open.back().hasUnknown = true;
}

} // namespace

bool readFontsXml(const QByteArray &text, FontsXml *xml, QString *error)
{
    *xml = {};
    return Reader(text, xml).read(error);
}
