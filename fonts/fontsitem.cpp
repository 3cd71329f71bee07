#include "fonts/fontsitem.h"

#include <QVector>

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

/// The child elements; nothing when there is text or an unknown entity between them.
QVector<QDomElement> childElements(const QDomElement &element)
{
    QVector<QDomElement> children;
    for (QDomNode node = element.firstChild(); !node.isNull(); node = node.nextSibling()) {
        if (!node.isElement())
            return {};
        children.append(node.toElement());
    }
    return children;
}

bool holdsOnlyText(const QDomElement &element)
{
    for (QDomNode node = element.firstChild(); !node.isNull(); node = node.nextSibling()) {
        if (!node.isText())
            return false;
    }
    return true;
}

/// The text of the one child \a tag; nothing when the child holds more, which a new value would overwrite.
std::optional<QString> onlyValue(const QDomElement &element, QLatin1String tag)
{
    const QVector<QDomElement> children = childElements(element);
    const bool fits = children.size() == 1 && children.first().tagName() == tag
                      && children.first().attributes().isEmpty() && holdsOnlyText(children.first());
    return fits ? std::make_optional(children.first().text()) : std::nullopt;
}

/// The value \a tag of an "edit" that assigns \a name.
std::optional<QString> assignedValue(const QDomElement &edit, QLatin1String name, QLatin1String tag)
{
    const bool fits = edit.tagName() == QLatin1String("edit") && edit.attributes().size() == 2
                      && edit.attribute(QStringLiteral("mode")) == QLatin1String("assign")
                      && edit.attribute(QStringLiteral("name")) == name;
    return fits ? onlyValue(edit, tag) : std::nullopt;
}

std::optional<FontsItem> readValue(const QDomElement &edit)
{
    for (const ValueElement &element : valueElements) {
        if (const auto value = assignedValue(edit, QLatin1String(element.name), QLatin1String(element.tag)))
            return FontsItem{element.kind, *value, {}};
    }
    return {};
}

struct Bound {
    QString name;
    bool isLower = false;
    double value = 0;
};

std::optional<Bound> readBound(const QDomElement &test)
{
    const QString name = test.attribute(QStringLiteral("name"));
    const QString compare = test.attribute(QStringLiteral("compare"));
    const bool isLower = compare == QLatin1String("more") || compare == QLatin1String("more_eq");
    const bool isUpper = compare == QLatin1String("less") || compare == QLatin1String("less_eq");
    if (test.tagName() != QLatin1String("test") || test.attributes().size() != 3
        || test.attribute(QStringLiteral("qual")) != QLatin1String("any")
        || (name != QLatin1String("size") && name != QLatin1String("pixelsize")) || (!isLower && !isUpper))
        return {};
    bool isNumber = false;
    const double value = onlyValue(test, QLatin1String("double")).value_or(QString()).toDouble(&isNumber);
    if (!isNumber || !std::isfinite(value))
        return {};
    return Bound{name, isLower, value};
}

std::optional<FontsItem> readExcludeRange(const QVector<QDomElement> &children)
{
    const std::optional<Bound> one = readBound(children.at(0));
    const std::optional<Bound> other = readBound(children.at(1));
    // With other tests or none the match says something else, and writing it as a range would change it.
    if (!one || !other || one->name != other->name || one->isLower == other->isLower
        || assignedValue(children.at(2), QLatin1String("antialias"), QLatin1String("bool"))
               != QLatin1String("false"))
        return {};
    const bool isInPixels = one->name == QLatin1String("pixelsize");
    return FontsItem{isInPixels ? FontsItem::Kind::ExcludePixels : FontsItem::Kind::ExcludePoints,
                     {},
                     {one->isLower ? one->value : other->value, one->isLower ? other->value : one->value}};
}

std::optional<FontsItem> readDirectory(const QDomElement &element, const QString &home)
{
    QString directory = element.text();
    if (directory.isEmpty() || !holdsOnlyText(element))
        return {};
    if (directory.startsWith(QLatin1Char('~')))
        directory = home + QLatin1Char('/') + directory.mid(1);
    return FontsItem{FontsItem::Kind::Directory, directoryFormOfPath(directory), {}};
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

std::optional<FontsItem> readFontsItem(const QDomElement &element, const QString &home)
{
    if (element.tagName() == QLatin1String("dir"))
        return readDirectory(element, home);
    if (element.tagName() != QLatin1String("match")
        || element.attribute(QStringLiteral("target")) != QLatin1String("font"))
        return {};
    const QVector<QDomElement> children = childElements(element);
    switch (children.size()) {
    case 1:
        return readValue(children.first());
    case 3:
        return readExcludeRange(children);
    default:
        return {};
    }
}

bool canBePartOfItem(QLatin1String tag, QLatin1String name)
{
    if (tag == QLatin1String("test"))
        return name == QLatin1String("size") || name == QLatin1String("pixelsize");
    const bool isEdit = tag == QLatin1String("edit");
    return tag == QLatin1String("double")
           || std::any_of(std::begin(valueElements), std::end(valueElements),
                          [isEdit, tag, name](const ValueElement &element) {
                              return isEdit ? name == QLatin1String(element.name)
                                            : tag == QLatin1String(element.tag);
                          });
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

QString directoryFormOfPath(QString path)
{
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
