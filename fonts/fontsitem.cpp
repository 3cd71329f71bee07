#include "fonts/fontsitem.h"

#include <algorithm>
#include <cmath>
#include <iterator>

namespace {

struct ValueElement {
    FontsItem::Kind kind;
    const char *name; // of the font property
    const char *tag;  // of the value
};

constexpr ValueElement valueElements[] = {{FontsItem::Kind::SubPixel, "rgba", "const"},
                                          {FontsItem::Kind::HintStyle, "hintstyle", "const"},
                                          {FontsItem::Kind::Hinting, "hinting", "bool"},
                                          {FontsItem::Kind::AntiAliasing, "antialias", "bool"}};

/// The value in the child \a tag, if that is all that \a element holds.
std::optional<QString> onlyValue(const FontsElement &element, const char *tag)
{
    if (element.children.size() != 1 || !element.text.isEmpty() || element.hasUnknown)
        return {};
    const FontsElement &child = element.children.front();
    const bool fits = child.tag == tag && child.attributes.isEmpty() && child.children.empty()
                      && !child.hasUnknown;
    return fits ? std::make_optional(QString::fromUtf8(child.text)) : std::nullopt;
}

/// The value \a tag of an "edit" that assigns \a name.
std::optional<QString> assignedValue(const FontsElement &edit, const char *name, const char *tag)
{
    const bool fits = edit.tag == "edit" && edit.attributes.size() == 2
                      && edit.attributes.value("mode") == "assign" && edit.attributes.value("name") == name;
    return fits ? onlyValue(edit, tag) : std::nullopt;
}

std::optional<FontsItem> readValue(const FontsElement &edit)
{
    for (const ValueElement &element : valueElements) {
        if (const auto value = assignedValue(edit, element.name, element.tag))
            return FontsItem{element.kind, *value, {}};
    }
    return {};
}

struct Bound {
    QByteArray name;
    bool isLower = false;
    double value = 0;
};

std::optional<Bound> readBound(const FontsElement &test)
{
    const QByteArray name = test.attributes.value("name");
    const QByteArray compare = test.attributes.value("compare");
    const bool isLower = compare == "more" || compare == "more_eq";
    const bool isUpper = compare == "less" || compare == "less_eq";
    if (test.tag != "test" || test.attributes.size() != 3 || test.attributes.value("qual") != "any"
        || (name != "size" && name != "pixelsize") || (!isLower && !isUpper))
        return {};
    bool isNumber = false;
    const double value = onlyValue(test, "double").value_or(QString()).toDouble(&isNumber);
    if (!isNumber || !std::isfinite(value))
        return {};
    return Bound{name, isLower, value};
}

std::optional<FontsItem> readExcludeRange(const std::vector<FontsElement> &children)
{
    const std::optional<Bound> one = readBound(children[0]);
    const std::optional<Bound> other = readBound(children[1]);
    // With other tests or none the match says something else, and writing it as a range would change it.
    if (!one || !other || one->name != other->name || one->isLower == other->isLower
        || assignedValue(children[2], "antialias", "bool") != QLatin1String("false"))
        return {};
    return FontsItem{one->name == "pixelsize" ? FontsItem::Kind::ExcludePixels
                                              : FontsItem::Kind::ExcludePoints,
                     {},
                     {one->isLower ? one->value : other->value, one->isLower ? other->value : one->value}};
}

QString boundForm(QLatin1String name, const char *compare, double value)
{
    return QStringLiteral(
               "\t<test qual=\"any\" name=\"%1\" compare=\"%2\">\n\t\t<double>%3</double>\n\t</test>\n")
        .arg(name, QLatin1String(compare), QString::number(value, 'g', 6));
}

QString editForm(QLatin1String name, QLatin1String tag, const QString &value)
{
    return QStringLiteral("\t<edit mode=\"assign\" name=\"%1\">\n\t\t<%2>%3</%2>\n\t</edit>\n")
        .arg(name, tag, value);
}

QString matchForm(const QString &content)
{
    return QLatin1String("<match target=\"font\">\n") + content + QLatin1String("</match>");
}

} // namespace

bool FontsItem::isOn() const
{
    return text.toLower() == QLatin1String("true");
}

std::optional<FontsItem> readFontsItem(const FontsElement &element)
{
    if (element.hasUnknown)
        return {};
    if (element.tag == "dir" && element.children.empty() && !element.text.isEmpty())
        return FontsItem{FontsItem::Kind::Directory, QString::fromUtf8(element.text), {}};
    if (element.tag != "match" || element.attributes.value("target") != "font" || !element.text.isEmpty())
        return {};
    switch (element.children.size()) {
    case 1:
        return readValue(element.children.front());
    case 3:
        return readExcludeRange(element.children);
    default:
        return {};
    }
}

QString valueForm(FontsItem::Kind kind, const QString &value)
{
    const auto *element = std::find_if(std::begin(valueElements), std::end(valueElements),
                                       [kind](const ValueElement &element) { return element.kind == kind; });
    Q_ASSERT(element != std::end(valueElements));
    return matchForm(editForm(QLatin1String(element->name), QLatin1String(element->tag), value));
}

QString excludeForm(FontsItem::Kind kind, const ExcludeRange &range)
{
    const QLatin1String name(kind == FontsItem::Kind::ExcludePixels ? "pixelsize" : "size");
    return matchForm(boundForm(name, "more_eq", range.from) + boundForm(name, "less_eq", range.to)
                     + editForm(QLatin1String("antialias"), QLatin1String("bool"), QStringLiteral("false")));
}

QString directoryForm(const QString &directory, const QString &home)
{
    QString path = fileFormOfPath(directory);
    const QString homeInDirectoryForm = directoryFormOfPath(home);
    if (homeInDirectoryForm.size() > 1 && directoryFormOfPath(path).startsWith(homeInDirectoryForm))
        path.replace(0, homeInDirectoryForm.size() - 1, QLatin1Char('~'));
    path = path.toHtmlEscaped();
    // A line break would start a new line of the form.
    path.replace(QLatin1Char('\n'), QLatin1String("&#10;")).replace(QLatin1Char('\t'), QLatin1String("&#9;"));
    return QLatin1String("<dir>") + path + QLatin1String("</dir>");
}

QString directoryFormOfPath(QString path, const QString &home)
{
    if (path.startsWith(QLatin1Char('~')))
        path.replace(0, 1, home);
    while (path.contains(QLatin1String("//")))
        path.replace(QLatin1String("//"), QLatin1String("/"));
    return path.endsWith(QLatin1Char('/')) ? path : path + QLatin1Char('/');
}

QString fileFormOfPath(QString path)
{
    if (path.size() > 1 && path.endsWith(QLatin1Char('/')))
        path.chop(1);
    return path;
}
