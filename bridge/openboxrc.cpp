#include "bridge/openboxrc.h"

#include "settings/rolefonttext.h"

#include <QFont>
#include <QMap>
#include <QStringList>

#include <memory>

#include <expat.h>

namespace {

const QString themePath = QStringLiteral("openbox_config/theme");

/// An element: from its start tag to its end tag, and what lies between.
struct Range {
    int begin = 0;
    int contentBegin = 0;
    int contentEnd = 0;
    int end = 0;
};

/// Notes where the elements of the theme stand. A font's path ends in its place: openbox_config/theme/font=MenuItem.
struct Scanner {
    XML_Parser parser = nullptr;
    QStringList path;
    QVector<Range> open;
    QMap<QString, Range> found;
};

void XMLCALL startElement(void *data, const XML_Char *name, const XML_Char **attributes)
{
    auto *scanner = static_cast<Scanner *>(data);
    QString step = QString::fromUtf8(name);
    for (int i = 0; attributes[i]; i += 2) {
        if (step == QLatin1String("font") && qstrcmp(attributes[i], "place") == 0)
            step += QLatin1Char('=') + QString::fromUtf8(attributes[i + 1]);
    }
    const int begin = int(XML_GetCurrentByteIndex(scanner->parser));
    scanner->path.append(step);
    scanner->open.append({begin, begin + XML_GetCurrentByteCount(scanner->parser), 0, 0});
}

void XMLCALL endElement(void *data, const XML_Char * /*name*/)
{
    auto *scanner = static_cast<Scanner *>(data);
    Range range = scanner->open.takeLast();
    range.contentEnd = int(XML_GetCurrentByteIndex(scanner->parser));
    range.end = range.contentEnd + XML_GetCurrentByteCount(scanner->parser);
    const QString path = scanner->path.join(QLatin1Char('/'));
    if (!scanner->found.contains(path))
        scanner->found.insert(path, range);
    scanner->path.removeLast();
}

/// Texts to put in the place of ranges; those further back first keep the others' places right.
using Edits = QMap<int, QPair<int, QByteArray>>;

void setElement(const Scanner &scanner, const QString &parent, const QByteArray &name, const QString &text,
                Edits *edits)
{
    const QByteArray content = text.toHtmlEscaped().toUtf8();
    const QByteArray whole = '<' + name + '>' + content + "</" + name + '>';
    const auto element = scanner.found.constFind(parent + QLatin1Char('/') + QString::fromLatin1(name));
    if (element == scanner.found.constEnd()) {
        const int end = scanner.found.value(parent).contentEnd;
        (*edits)[end] = {end, (*edits)[end].second + whole};
    } else if (element->contentEnd == element->end) { // <name/>
        edits->insert(element->begin, {element->end, whole});
    } else {
        edits->insert(element->contentBegin, {element->contentEnd, content});
    }
}

struct FontPart {
    const char *name;
    QString text;
};

void setFont(const Scanner &scanner, const QString &place, const QString &roleText, Edits *edits)
{
    const QFont font = textToFont(roleText);
    const FontPart parts[] = {{"name", font.family()},
                              {"size", QString::number(font.pointSize())},
                              {"weight", QLatin1String(font.bold() ? "bold" : "normal")},
                              {"slant", QLatin1String(font.italic() ? "italic" : "normal")}};
    const QString path = themePath + QLatin1String("/font=") + place;
    const auto element = scanner.found.constFind(path);
    if (element != scanner.found.constEnd() && element->contentEnd != element->end) {
        for (const FontPart &part : parts)
            setElement(scanner, path, part.name, part.text, edits);
        return;
    }
    QByteArray block = "<font place=\"" + place.toUtf8() + "\">";
    for (const FontPart &part : parts)
        block += QByteArray("<") + part.name + '>' + part.text.toHtmlEscaped().toUtf8() + "</" + part.name
                 + '>';
    block += "</font>";
    const int begin = element == scanner.found.constEnd() ? scanner.found.value(themePath).contentEnd
                                                          : element->begin;
    const int end = element == scanner.found.constEnd() ? begin : element->end;
    (*edits)[begin] = {end, (*edits)[begin].second + block};
}

bool scan(const QByteArray &xml, Scanner *scanner)
{
    const std::unique_ptr<XML_ParserStruct, void (*)(XML_Parser)> parser(XML_ParserCreate(nullptr),
                                                                         XML_ParserFree);
    scanner->parser = parser.get();
    XML_SetUserData(parser.get(), scanner);
    XML_SetElementHandler(parser.get(), startElement, endElement);
    return XML_Parse(parser.get(), xml.constData(), xml.size(), 1) == XML_STATUS_OK;
}

} // namespace

std::optional<QByteArray> withOpenboxTheme(const QByteArray &xml, const QString &theme,
                                           const QString &titleFont, const QString &menuFont, QString *error)
{
    Scanner scanner;
    const bool isXml = scan(xml, &scanner);
    const Range element = scanner.found.value(themePath);
    if (!isXml || element.contentEnd == element.end) {
        *error = QStringLiteral("it is no configuration file of Openbox with a theme");
        return std::nullopt;
    }
    Edits edits;
    setElement(scanner, themePath, "name", theme, &edits);
    struct Place {
        const char *name;
        const QString &font;
    };
    for (const Place &place : {Place{"ActiveWindow", titleFont},
                               {"InactiveWindow", titleFont},
                               {"MenuHeader", menuFont},
                               {"MenuItem", menuFont}}) {
        if (isFontText(place.font))
            setFont(scanner, QString::fromLatin1(place.name), place.font, &edits);
    }
    QByteArray text = xml;
    for (auto edit = edits.constEnd(); edit != edits.constBegin();) {
        --edit;
        text.replace(edit.key(), edit->first - edit.key(), edit->second);
    }
    return text;
}
