#include "base/keyfiletext.h"
#include "tests/fuzz/fuzzing.h"

namespace {

constexpr char group[] = "Desktop Entry";
constexpr char key[] = "X-QAZ-WallPaper";
constexpr char otherKey[] = "Name";

void checkFormat(const QByteArray &content, const QByteArray &value, const KeyFileFormat &format)
{
    const KeyFileText text(content, format);
    const std::optional<QByteArray> other = text.value(group, otherKey);
    const bool wasThere = text.value(group, key).has_value();
    const KeyFileText changed(text.withValues(group, {{key, value}}), format);
    require(changed.value(group, key).value_or(QByteArray()) == value);
    require(changed.value(group, otherKey) == other);

    const KeyFileText cut(text.withoutKey(group, key), format);
    require(!cut.value(group, key).has_value());
    require(cut.value(group, otherKey) == other);
    require(wasThere || cut.content() == content);
}

} // namespace

// A value that was set is read back; a removed key is gone; no other key's value changes.
void check(const FuzzInput &input)
{
    QByteArray value = input.argument;
    value.replace('\n', ' ').replace('\r', ' ').replace(';', ' ').replace('"', ' ').replace('\\', ' ');
    value = value.trimmed();
    checkFormat(input.content, value, {});
    checkFormat(input.content, value, {"#;", false, false});
    // A quote that nobody ends takes in all that follows, new lines, too.
    if (!input.content.contains('"') && !input.content.contains('\\'))
        checkFormat(input.content, value, {";", true, true});
}
