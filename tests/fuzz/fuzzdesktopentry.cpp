#include "base/desktopentrytext.h"
#include "tests/fuzz/fuzzing.h"

namespace {

constexpr char key[] = "X-QAZ-WallPaper";
constexpr char otherKey[] = "Name";

} // namespace

// A value that was set is read back less the blanks around it; a removed key is gone; no other key's value changes.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const FuzzInput input(data, size);
    QByteArray value = input.argument;
    value.replace('\n', ' ').replace('\r', ' ');

    DesktopEntryText text(input.content);
    const std::optional<QByteArray> other = text.value(otherKey);
    const bool wasThere = text.value(key).has_value();
    text.setValue(key, value);
    require(text.value(key).has_value());
    require(text.value(key)->trimmed() == value.trimmed());
    require(text.value(otherKey) == other);

    DesktopEntryText cut(input.content);
    require(cut.removeKey(key) == wasThere);
    require(!cut.value(key).has_value());
    require(cut.value(otherKey) == other);
    require(wasThere || cut.content() == input.content);
    return 0;
}
