#include "fonts/fontsdocument.h"
#include "tests/fuzz/fuzzing.h"

// A file that was understood is understood after a change, too, and holds what was set or removed.
void check(const FuzzInput &input)
{
    QString error;
    FontsDocument document;
    if (!document.setContent(input.content, &error)) {
        require(!error.isEmpty());
        require(document.children().isEmpty());
        return;
    }
    const FontsItem wanted[] = {{FontsItem::Kind::SubPixel, QStringLiteral("vbgr")},
                                {FontsItem::Kind::AntiAliasing, QStringLiteral("true")},
                                {FontsItem::Kind::ExcludePixels, {}, {8, 15}}};
    for (const FontsItem &item : wanted) {
        FontsDocument changed;
        require(changed.setContent(document.withItems({item}), &error));
        require(changed.item(item.kind).text == item.text);
        require(changed.item(item.kind).range.equals(item.range));
        require(changed.setContent(document.withItems({FontsItem{item.kind}}), &error));
        require(changed.item(item.kind).isEmpty());
        require(changed.children().size() <= document.children().size());
    }
}
