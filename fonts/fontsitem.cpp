#include "fonts/fontsitem.h"

#include <cmath>

namespace {

using Kind = FontsItem::Kind;
using Attributes = QMap<QByteArray, QByteArray>;

struct Property {
    Kind kind;
    const char *name; // of the font property
    const char *tag;  // of the value
};

constexpr Property properties[] = {
    {Kind::SubPixel, "rgba", "const"},       {Kind::HintStyle, "hintstyle", "const"},
    {Kind::Hinting, "hinting", "bool"},      {Kind::AntiAliasing, "antialias", "bool"},
    {Kind::ExcludePoints, "size", "double"}, {Kind::ExcludePixels, "pixelsize", "double"}};

/// The value in the child \a tag, if that is all that \a element holds.
std::optional<QString> onlyValue(const FontsElement &element, const char *tag)
{
    if (element.children.size() != 1 || !element.text.isEmpty() || element.hasUnknown)
        return {};
    const FontsElement &child = element.children.front();
    const bool fits = child.tag == QLatin1String(tag) && child.attributes.isEmpty() && child.children.empty()
                      && !child.hasUnknown;
    return fits ? std::make_optional(child.text) : std::nullopt;
}

/// The value \a tag of an "edit" that assigns \a name.
std::optional<QString> assignedValue(const FontsElement &edit, const char *name, const char *tag)
{
    const bool fits = edit.tag == QLatin1String("edit")
                      && edit.attributes == Attributes{{"mode", "assign"}, {"name", name}};
    return fits ? onlyValue(edit, tag) : std::nullopt;
}

/// The bound of the sizes \a name that \a test sets with \a compare, or with the same and "equal".
std::optional<double> readBound(const FontsElement &test, const char *name, const QByteArray &compare)
{
    Attributes wanted{{"qual", "any"}, {"name", name}, {"compare", compare}};
    if (test.attributes != wanted)
        wanted["compare"] += "_eq";
    if (test.tag != QLatin1String("test") || test.attributes != wanted)
        return {};
    bool isNumber = false;
    const double value = onlyValue(test, "double").value_or(QString()).toDouble(&isNumber);
    return isNumber && std::isfinite(value) ? std::make_optional(value) : std::nullopt;
}

std::optional<FontsItem> readRange(const Property &property, const FontsElement &lower,
                                   const FontsElement &upper)
{
    const std::optional<double> from = readBound(lower, property.name, "more");
    const std::optional<double> to = readBound(upper, property.name, "less");
    if (!from || !to)
        return {};
    return FontsItem{property.kind, {}, {*from, *to}};
}

QString boundForm(const char *name, const char *compare, double value)
{
    return QStringLiteral(
               "\t<test qual=\"any\" name=\"%1\" compare=\"%2\">\n\t\t<double>%3</double>\n\t</test>\n")
        .arg(QLatin1String(name), QLatin1String(compare), QString::number(value, 'g', 6));
}

QString editForm(const char *name, const char *tag, const QString &value)
{
    return QStringLiteral("\t<edit mode=\"assign\" name=\"%1\">\n\t\t<%2>%3</%2>\n\t</edit>\n")
        .arg(QLatin1String(name), QLatin1String(tag), value);
}

} // namespace

std::optional<FontsItem> readFontsItem(const FontsElement &element)
{
    if (element.hasUnknown || element.tag != QLatin1String("match")
        || element.attributes.value("target") != "font" || !element.text.isEmpty())
        return {};
    const std::vector<FontsElement> &children = element.children;
    // With other tests or none a match with sizes says something else, and writing it as a range would change it.
    const bool mayBeRange = children.size() == 3
                            && assignedValue(children[2], "antialias", "bool") == QLatin1String("false");
    for (const Property &property : properties) {
        const bool isRange = FontsItem{property.kind}.isRange();
        if (!isRange && children.size() == 1) {
            if (const auto value = assignedValue(children[0], property.name, property.tag))
                return FontsItem{property.kind, *value, {}};
        } else if (isRange && mayBeRange) {
            for (const int lower : {0, 1}) {
                if (auto range = readRange(property, children[lower], children[1 - lower]))
                    return range;
            }
        }
    }
    return {};
}

QString fontsItemForm(const FontsItem &item)
{
    const Property &property = properties[int(item.kind)];
    const QString content = item.isRange() ? boundForm(property.name, "more_eq", item.range.from)
                                                 + boundForm(property.name, "less_eq", item.range.to)
                                                 + editForm("antialias", "bool", QStringLiteral("false"))
                                           : editForm(property.name, property.tag, item.text);
    return QLatin1String("<match target=\"font\">\n") + content + QLatin1String("</match>");
}
