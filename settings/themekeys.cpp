#include "settings/themekeys.h"

#include "settings/colortexts.h"
#include "settings/rolefonttext.h"
#include "settings/textvalues.h"
#include "settings/wallpapertexts.h"

#include <algorithm>

namespace {

constexpr int longestText = 4096; // beyond what the desktop's programs have buffers for

QString translated(const char *text)
{
    return QCoreApplication::translate("ThemeKeys", text);
}

bool isNumber(const QString &text, int minimum, int maximum)
{
    bool ok = false;
    const int number = text.toInt(&ok);
    return ok && number >= minimum && number <= maximum;
}

bool isColor(const QString &text)
{
    return text == QLatin1String("Qt") || text == QLatin1String("qt") || desktopColor(text).isValid();
}

/// Stricter than reading, which takes a missing size for the toolkit's own.
bool isRoleFont(const QString &text)
{
    if (isXlfdName(text))
        return true;
    const QString family = text.section(QLatin1Char('-'), 0, 0).trimmed();
    const QString traits = text.section(QLatin1Char(':'), 1);
    const QStringList known = {QString(), QStringLiteral("normal"), QStringLiteral("bold"),
                               QStringLiteral("normal:italic"), QStringLiteral("bold:italic")};
    const QString size = text.section(QLatin1Char(':'), 0, 0).section(QLatin1Char('-'), 1);
    return !family.isEmpty() && known.contains(traits) && isNumber(size, 1, 999);
}

/// A directory's name, which must not lead elsewhere.
bool isThemeName(const QString &text)
{
    return !text.contains(QLatin1Char('/')) && text != QLatin1String(".") && text != QLatin1String("..");
}

bool isFileOrName(const QString &text)
{
    if (isColorText(text))
        return desktopColor(text).isValid();
    return text.startsWith(QLatin1Char('/')) || isThemeName(text);
}

bool mayBeEmpty(const ThemeKey &key, const QString &text)
{
    return !text.isEmpty() || *key.defaultText == '\0';
}

} // namespace

const ThemeKey *findThemeKey(const QString &name)
{
    const auto *found = std::find_if(
        std::begin(themeKeys), std::end(themeKeys),
        [&name](const ThemeKey &key) { return name == QLatin1String(key.name); });
    return found == std::end(themeKeys) ? nullptr : found;
}

QString meaning(const ThemeKey &key)
{
    QString title = key.part ? translated(key.part) : QCoreApplication::translate(key.context, key.title);
    const QLatin1String name(key.name);
    if (key.kind == KeyKind::Color && name.endsWith(QLatin1Char('2')))
        return translated(QT_TRANSLATE_NOOP("ThemeKeys", "Color at the end of the gradient: %1")).arg(title);
    if (key.kind == KeyKind::Color)
        return translated(QT_TRANSLATE_NOOP("ThemeKeys", "Color: %1")).arg(title);
    if (key.kind == KeyKind::Font)
        return translated(QT_TRANSLATE_NOOP("ThemeKeys", "Font: %1")).arg(title);
    if (name.endsWith(QLatin1String("Sound")) && key.kind == KeyKind::File)
        return translated(QT_TRANSLATE_NOOP("ThemeKeys", "Sound: %1")).arg(title);
    return title;
}

QStringList closedSet(const ThemeKey &key)
{
    if (key.kind == KeyKind::Truth)
        return {boolText(true), boolText(false)};
    return QString::fromLatin1(key.words).split(QLatin1Char(','), Qt::SkipEmptyParts);
}

QString allowedValues(const ThemeKey &key)
{
    switch (key.kind) {
    case KeyKind::Text:
        return QStringLiteral("the name of a theme");
    case KeyKind::Number:
        return QStringLiteral("a whole number from %1 to %2").arg(key.minimum).arg(key.maximum);
    case KeyKind::Color:
        return QStringLiteral("a color: #rrggbb or a name such as \"navy\"");
    case KeyKind::Font:
        return QStringLiteral("a font such as \"Verdana-10:normal\", with :normal or :bold, and :italic");
    case KeyKind::File:
        return QStringLiteral("an absolute path or a name without \"/\"");
    case KeyKind::Truth:
    case KeyKind::Word:
        break;
    }
    return QStringLiteral("one of %1").arg(closedSet(key).join(QLatin1String(", ")));
}

bool fits(const ThemeKey &key, const QString &text)
{
    if (!fitsAnyKey(text))
        return false;
    switch (key.kind) {
    case KeyKind::Text:
        return isThemeName(text) && mayBeEmpty(key, text);
    case KeyKind::Number:
        return isNumber(text, key.minimum, key.maximum);
    case KeyKind::Color:
        return isColor(text);
    case KeyKind::Font:
        return isRoleFont(text);
    case KeyKind::File:
        return isFileOrName(text) && mayBeEmpty(key, text);
    case KeyKind::Truth:
        // What else may count as true or false is nothing to be set anew.
        return text == QLatin1String("True") || text == QLatin1String("False")
               || closedSet(key).contains(text);
    case KeyKind::Word:
        break;
    }
    return closedSet(key).contains(text);
}

bool fitsAnyKey(const QString &text)
{
    // A command to the window manager is one line, and ends with a NUL.
    return text.size() <= longestText && std::none_of(text.cbegin(), text.cend(), [](QChar character) {
               return character.category() == QChar::Other_Control;
           });
}

bool isKeyName(const QString &name)
{
    // What begins with one of these is a comment or a group.
    return !name.isEmpty() && name == name.simplified() && !name.contains(QLatin1Char('='))
           && !QStringLiteral("#;[").contains(name.at(0)) && fitsAnyKey(name);
}

QString storedForm(const ThemeKey &key, const QString &text)
{
    if (key.kind == KeyKind::Truth)
        return boolText(countsAsTrue(text));
    return key.kind == KeyKind::Number ? QString::number(text.toInt()) : text;
}

bool differs(const ThemeKey &key, const QString &stored, const QString &text)
{
    if (key.kind == KeyKind::Truth)
        return countsAsTrue(stored) != countsAsTrue(text);
    if (key.kind == KeyKind::Number)
        return stored.toInt() != text.toInt();
    return stored != text;
}
