#include "bridge/openboxrc.h"

#include "settings/rolefonttext.h"

#include <QHash>

#include <memory>

#include <expat.h>

namespace {

const QByteArray themePath = "/openbox_config/theme";

/// An element: from its start tag to its end tag, and what lies between.
struct Range {
    int begin;
    int contentBegin;
    int contentEnd = 0;
    int end = 0;

    bool isEmptyTag() const { return contentEnd == end; } // <name/>
};

/// Notes where elements stand, by their paths: "/openbox_config/theme/font place="MenuItem"/size".
struct Scanner {
    std::unique_ptr<XML_ParserStruct, void (*)(XML_Parser)> parser{XML_ParserCreate(nullptr), XML_ParserFree};
    QVector<QByteArray> paths{QByteArray()}; // of the elements that are open
    QHash<QByteArray, Range> found;
};

void XMLCALL startElement(void *data, const XML_Char *name, const XML_Char **attributes)
{
    auto *scanner = static_cast<Scanner *>(data);
    QByteArray path = scanner->paths.constLast() + '/' + name;
    for (int i = 0; attributes[i]; i += 2) {
        if (qstrcmp(attributes[i], "place") == 0)
            path += QByteArray(" place=\"") + attributes[i + 1] + '"';
    }
    const int begin = int(XML_GetCurrentByteIndex(scanner->parser.get()));
    const int end = begin + XML_GetCurrentByteCount(scanner->parser.get());
    // Of several with one path the first counts, which has got its end already.
    const Range range = scanner->found.value(path, {begin, end});
    scanner->found.insert(path, range);
    scanner->paths.append(path);
}

void XMLCALL endElement(void *data, const XML_Char * /*name*/)
{
    auto *scanner = static_cast<Scanner *>(data);
    Range &range = scanner->found[scanner->paths.takeLast()];
    if (range.end != 0)
        return;
    range.contentEnd = int(XML_GetCurrentByteIndex(scanner->parser.get()));
    range.end = range.contentEnd + XML_GetCurrentByteCount(scanner->parser.get());
}

/// The elements of \a xml; none when it is no XML.
QHash<QByteArray, Range> elements(const QByteArray &xml)
{
    Scanner scanner;
    XML_SetUserData(scanner.parser.get(), &scanner);
    XML_SetElementHandler(scanner.parser.get(), startElement, endElement);
    const bool isXml = XML_Parse(scanner.parser.get(), xml.constData(), xml.size(), 1) == XML_STATUS_OK;
    return isXml ? scanner.found : QHash<QByteArray, Range>();
}

/// Sets the element that \a startTag begins ("size") in the element \a parent, which it is added to when it is missing.
/// A null \a text leaves the content of an element that has any as it is.
void setElement(QByteArray *xml, const QByteArray &parent, const QByteArray &startTag, const QString &text)
{
    const QHash<QByteArray, Range> all = elements(*xml);
    const QByteArray content = text.toHtmlEscaped().toUtf8();
    const QByteArray whole = '<' + startTag + '>' + content + "</" + startTag.split(' ').constFirst() + '>';
    const auto element = all.constFind(parent + '/' + startTag);
    if (element == all.constEnd())
        xml->insert(all.value(parent).contentEnd, whole);
    else if (element->isEmptyTag())
        xml->replace(element->begin, element->end - element->begin, whole);
    else if (!text.isNull())
        xml->replace(element->contentBegin, element->contentEnd - element->contentBegin, content);
}

void setFont(QByteArray *xml, const QByteArray &place, const QString &roleText)
{
    if (!isFontText(roleText))
        return;
    const QFont font = textToFont(roleText);
    const QByteArray startTag = "font place=\"" + place + '"';
    const QByteArray path = themePath + '/' + startTag;
    setElement(xml, themePath, startTag, {});
    setElement(xml, path, "name", font.family());
    setElement(xml, path, "size", QString::number(font.pointSize()));
    setElement(xml, path, "weight", QLatin1String(font.bold() ? "bold" : "normal"));
    setElement(xml, path, "slant", QLatin1String(font.italic() ? "italic" : "normal"));
}

} // namespace

std::optional<QByteArray> withOpenboxTheme(const QByteArray &xml, const QString &theme,
                                           const QString &titleFont, const QString &menuFont, QString *error)
{
    if (elements(xml).value(themePath).isEmptyTag()) {
        *error = QStringLiteral("it is no configuration file of Openbox with a theme");
        return {};
    }
    QByteArray text = xml;
    setElement(&text, themePath, "name", theme);
    for (const char *place : {"ActiveWindow", "InactiveWindow"})
        setFont(&text, place, titleFont);
    for (const char *place : {"MenuHeader", "MenuItem"})
        setFont(&text, place, menuFont);
    return text;
}
