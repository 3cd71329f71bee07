#include "fonts/fontsxml.h"

#include "base/chandle.h"
#include "fonts/fontsitem.h"

#include <memory>
#include <type_traits>

#include <expat.h>

namespace {

// A tree this deep holds no configuration, but could exhaust the stack of whoever walks it.
constexpr int depthLimit = 200;

/// One pass over the text. Nodes are made of the elements only that may hold a setting, which are few.
class Reader
{
public:
    Reader(const QByteArray &text, FontsXml *xml);
    bool read(QString *error);

private:
    static Reader *self(void *data) { return static_cast<Reader *>(data); }
    void doctype(const char *systemId, bool hasSubset);
    void startElement(const char *name, const char **attributes);
    void startChild(const char *name, const char **attributes);
    void endElement();
    void characters(const char *text, int size);
    void skippedEntity(const char *name);
    void flushCharacters();
    void dropChild();
    QDomElement createElement(const char *name, const char **attributes);
    void refuse(const QString &reason);
    int eventStart() const { return int(XML_GetCurrentByteIndex(m_parser.get())); }
    int eventEnd() const { return eventStart() + XML_GetCurrentByteCount(m_parser.get()); }

    const QByteArray &m_text;
    FontsXml *m_xml;
    const std::unique_ptr<std::remove_pointer_t<XML_Parser>, Release<XML_ParserFree>> m_parser;
    QDomElement m_node;      // null inside elements that are only skipped
    QByteArray m_characters; // they come in pieces
    QString m_refusal;
    int m_depth = 0;
};

QLatin1String attribute(const char **attributes, const char *name)
{
    for (; *attributes; attributes += 2) {
        if (qstrcmp(attributes[0], name) == 0)
            return QLatin1String(attributes[1]);
    }
    return {};
}

Reader::Reader(const QByteArray &text, FontsXml *xml)
    : m_text(text)
    , m_xml(xml)
    , m_parser(XML_ParserCreate("UTF-8"))
{
    XML_SetUserData(m_parser.get(), this);
    XML_SetStartDoctypeDeclHandler(m_parser.get(),
                                   [](void *data, const char *, const char *systemId, const char *,
                                      int hasSubset) { self(data)->doctype(systemId, hasSubset); });
    XML_SetElementHandler(
        m_parser.get(),
        [](void *data, const char *name, const char **attributes) {
            self(data)->startElement(name, attributes);
        },
        [](void *data, const char *) { self(data)->endElement(); });
    XML_SetCharacterDataHandler(
        m_parser.get(), [](void *data, const char *text, int size) { self(data)->characters(text, size); });
    XML_SetSkippedEntityHandler(m_parser.get(), [](void *data, const char *name, int isParameter) {
        if (!isParameter)
            self(data)->skippedEntity(name);
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
    if (!systemId && !hasSubset)
        m_xml->doctype = m_text.lastIndexOf("<!DOCTYPE", eventStart());
}

QDomElement Reader::createElement(const char *name, const char **attributes)
{
    QDomElement element = m_xml->document.createElement(QString::fromUtf8(name));
    for (; *attributes; attributes += 2)
        element.setAttribute(QString::fromUtf8(attributes[0]), QString::fromUtf8(attributes[1]));
    return element;
}

void Reader::startElement(const char *name, const char **attributes)
{
    flushCharacters();
    if (++m_depth > depthLimit)
        return refuse(QStringLiteral("elements are nested too deeply"));
    if (m_depth == 1) {
        if (qstrcmp(name, "fontconfig") != 0)
            refuse(QStringLiteral("the root element is '%1', not 'fontconfig'").arg(QString::fromUtf8(name)));
        m_xml->document.appendChild(createElement(name, attributes));
        m_xml->rootOpenEnd = eventEnd();
    } else if (m_depth == 2) {
        startChild(name, attributes);
    } else if (!m_node.isNull()) {
        if (canBePartOfItem(QLatin1String(name), attribute(attributes, "name")))
            m_node = m_node.appendChild(createElement(name, attributes)).toElement();
        else
            dropChild();
    }
}

void Reader::startChild(const char *name, const char **attributes)
{
    FontsXml::Child child;
    child.start = eventStart();
    child.startTagEnd = eventEnd();
    const bool isMatch = qstrcmp(name, "match") == 0
                         && attribute(attributes, "target") == QLatin1String("font");
    // What an entity stands for has no place in the text, so it can't be changed there.
    const bool isInText = m_text.at(child.start) == '<';
    if (isInText && (isMatch || qstrcmp(name, "dir") == 0))
        child.node
            = m_xml->document.documentElement().appendChild(createElement(name, attributes)).toElement();
    m_node = child.node;
    m_xml->children.append(child);
}

void Reader::endElement()
{
    flushCharacters();
    if (m_depth == 1)
        m_xml->rootClose = eventEnd() == m_xml->rootOpenEnd ? -1 : eventStart();
    else if (m_depth == 2)
        m_xml->children.last().end = eventEnd();
    m_node = m_depth > 2 && !m_node.isNull() ? m_node.parentNode().toElement() : QDomElement();
    --m_depth;
}

void Reader::characters(const char *text, int size)
{
    if (!m_node.isNull())
        m_characters.append(text, size);
}

void Reader::flushCharacters()
{
    if (!m_characters.trimmed().isEmpty() && !m_node.isNull())
        m_node.appendChild(m_xml->document.createTextNode(QString::fromUtf8(m_characters)));
    m_characters.clear();
}

void Reader::skippedEntity(const char *name)
{
    // Nobody here knows what it stands for, so the element around it is not one of ours.
    if (!m_node.isNull())
        m_node.appendChild(m_xml->document.createEntityReference(QString::fromUtf8(name)));
}

void Reader::dropChild()
{
    FontsXml::Child &child = m_xml->children.last();
    m_xml->document.documentElement().removeChild(child.node);
    child.node = QDomElement();
    m_node = QDomElement();
    m_characters.clear();
}

} // namespace

bool readFontsXml(const QByteArray &text, FontsXml *xml, QString *error)
{
    *xml = {};
    return Reader(text, xml).read(error);
}
