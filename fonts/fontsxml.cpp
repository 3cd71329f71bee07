#include "fonts/fontsxml.h"

#include <QXmlStreamReader>

#include <utility>

namespace {

// A tree this deep below the root holds no configuration, but could exhaust the stack of whoever walks it.
constexpr std::size_t depthLimit = 199;

/// One pass over the text.
class Reader
{
public:
    Reader(const QString &text, FontsXml *xml)
        : m_text(text)
        , m_xml(xml)
        , m_reader(text)
    {
        m_reader.setNamespaceProcessing(false);
    }
    bool read(QString *error);

private:
    void readToken(QXmlStreamReader::TokenType token);
    void startElement();
    void endElement();
    int start() const { return m_end - m_token.size(); }

    const QString &m_text;
    FontsXml *m_xml;
    QXmlStreamReader m_reader;
    std::vector<FontsElement> m_open; // the elements around the place, from the child of the root on
    QStringRef m_token;               // as it stands in the text; empty in what an entity stands for
    int m_end = 0;                    // behind it
};

bool Reader::read(QString *error)
{
    while (!m_reader.atEnd())
        readToken(m_reader.readNext());
    if (m_reader.hasError())
        *error = QStringLiteral("line %1: %2")
                     .arg(QString::number(m_reader.lineNumber()), m_reader.errorString());
    return !m_reader.hasError();
}

void Reader::readToken(QXmlStreamReader::TokenType token)
{
    // The reader looks a character ahead to find the end of a text; the next tag begins there.
    if (token != QXmlStreamReader::Characters || m_reader.isCDATA()) {
        const int start = m_text.indexOf(QLatin1Char('<'), m_end);
        m_end = int(m_reader.characterOffset());
        m_token = m_text.leftRef(m_end).mid(start);
    }
    if (token == QXmlStreamReader::StartElement)
        return startElement();
    if (token == QXmlStreamReader::EndElement)
        return endElement();
    const bool isRemark = token == QXmlStreamReader::Comment
                          || token == QXmlStreamReader::ProcessingInstruction;
    const bool isText = token == QXmlStreamReader::Characters && !m_reader.text().trimmed().isEmpty();
    const bool isUnknown = token == QXmlStreamReader::EntityReference;
    if (m_open.empty()) {
        const bool hasSubset = token == QXmlStreamReader::DTD && m_reader.text().contains(QLatin1Char('['));
        m_xml->holdsMore = m_xml->holdsMore || isRemark || isText || isUnknown || hasSubset;
        return;
    }
    FontsXml::Child &child = m_xml->children.last();
    if (isRemark && !m_token.isEmpty())
        child.remarks.append(m_token.toString());
    if (isText) {
        m_open.back().text += m_reader.text();
        child.essence += m_reader.text();
    }
    m_open.back().hasUnknown = m_open.back().hasUnknown || isUnknown;
}

void Reader::startElement()
{
    const QXmlStreamAttributes attributes = m_reader.attributes();
    if (m_open.size() == depthLimit)
        return m_reader.raiseError(QStringLiteral("elements are nested too deeply"));
    if (!m_xml->hasRoot) {
        if (m_reader.qualifiedName() != QLatin1String("fontconfig"))
            m_reader.raiseError(QStringLiteral("the root element is '%1', not 'fontconfig'")
                                    .arg(m_reader.qualifiedName().toString()));
        m_xml->hasRoot = true;
        m_xml->rootOpenEnd = m_end;
        m_xml->holdsMore = m_xml->holdsMore || !attributes.isEmpty();
        return;
    }
    FontsElement element;
    element.tag = m_reader.qualifiedName().toString();
    for (const QXmlStreamAttribute &attribute : attributes)
        element.attributes.insert(attribute.qualifiedName().toUtf8(), attribute.value().toUtf8());
    if (m_open.empty()) {
        FontsXml::Child child;
        child.start = start();
        if (attributes.size() > 1)
            child.startTag = m_token.toString();
        m_xml->children.append(child);
    }
    m_xml->children.last().essence += m_token;
    m_open.push_back(std::move(element));
}

void Reader::endElement()
{
    if (m_open.empty()) {
        if (m_end != m_xml->rootOpenEnd)
            m_xml->rootClose = start();
        return;
    }
    FontsXml::Child &child = m_xml->children.last();
    child.essence += m_token;
    FontsElement element = std::move(m_open.back());
    m_open.pop_back();
    if (!m_open.empty()) {
        m_open.back().children.push_back(std::move(element));
        return;
    }
    child.end = m_end;
    // What comes out of an entity can't be changed in the text.
    if (child.start != child.end)
        child.item = readFontsItem(element);
}

} // namespace

bool readFontsXml(const QString &text, FontsXml *xml, QString *error)
{
    *xml = {};
    return Reader(text, xml).read(error);
}
