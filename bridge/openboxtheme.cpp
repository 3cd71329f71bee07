#include "bridge/openboxtheme.h"

#include "settings/colortexts.h"
#include "settings/themekeys.h"

#include <QColor>

namespace {

using ValueOf = std::function<QString(const char *key, const char *defaultText)>;

/// Where an element's colour goes; lines end with the colour, or with a gradient between two.
struct Part {
    const char *key;
    const char *lines; // ended by blanks
};

constexpr Part plainParts[] = {
    {"TitleStringColor", "window.inactive.label.text.color window.inactive.button.*.image.color"},
    {"TitleStringActiveColor", "window.active.label.text.color window.active.button.*.image.color"},
    {"FrameColor",
     "window.inactive.border.color window.inactive.client.color window.inactive.title.separator.color "
     "window.inactive.handle.bg.color window.inactive.grip.bg.color"},
    {"FrameActiveColor",
     "window.active.border.color window.active.client.color window.active.title.separator.color "
     "window.active.handle.bg.color window.active.grip.bg.color menu.border.color"},
    {"MenuActiveColor", "menu.items.active.bg.color"},
    {"MenuStringColor", "menu.items.text.color"},
    {"MenuStringActiveColor", "menu.items.active.text.color"},
};
constexpr Part filledParts[] = {{"TitlebarColor", "window.inactive.title.bg"},
                                {"TitlebarActiveColor", "window.active.title.bg menu.title.bg"},
                                {"MenuColor", "menu.items.bg"}};

constexpr char fixedLines[] = "border.width: 1\n"
                              "window.active.label.bg: Parentrelative\n"
                              "window.inactive.label.bg: Parentrelative\n"
                              "window.active.button.*.bg: Parentrelative\n"
                              "window.inactive.button.*.bg: Parentrelative\n"
                              "window.active.handle.bg: Flat Solid\n"
                              "window.inactive.handle.bg: Flat Solid\n"
                              "window.active.grip.bg: Flat Solid\n"
                              "window.inactive.grip.bg: Flat Solid\n"
                              "menu.items.active.bg: Flat Solid\n"
                              "window.label.text.justify: left\n";

QByteArray colorName(const ValueOf &value, const QByteArray &key)
{
    const QString fallback = QString::fromLatin1(themeKey(key.constData()).defaultText);
    const QColor color(
        currentColorText(value(key.constData(), themeKey(key.constData()).defaultText), fallback));
    return (color.isValid() ? color : QColor(fallback)).name().toLatin1();
}

} // namespace

QByteArray openboxTheme(const ValueOf &value)
{
    QByteArray text = fixedLines;
    for (const Part &part : plainParts) {
        const QByteArray color = colorName(value, part.key);
        for (const QByteArray &line : QByteArray(part.lines).split(' '))
            text += line + ": " + color + '\n';
    }
    for (const Part &part : filledParts) {
        const QByteArray from = colorName(value, part.key);
        const QByteArray to = colorName(value, QByteArray(part.key) + '2');
        for (const QByteArray &line : QByteArray(part.lines).split(' '))
            text += line + (from == to ? ": Flat Solid\n" : ": Flat Gradient Horizontal\n") + line
                    + ".color: " + from + '\n' + line + ".colorTo: " + to + '\n';
    }
    return text + "menu.title.text.color: " + colorName(value, "TitleStringActiveColor") + '\n';
}
