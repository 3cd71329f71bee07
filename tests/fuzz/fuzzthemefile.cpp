#include "platform/themefiletext.h"
#include "tests/fuzz/fuzzing.h"

// A value that was set is read back as it was, and no other key's value changes.
void check(const FuzzInput &input)
{
    const QString key = QStringLiteral("ScreenSaverDelay");
    const QString otherKey = QStringLiteral("TitleFont");
    const QString value = QString::fromUtf8(input.argument);

    const ThemeFileText before(input.content);
    require(before.withValues({}) == input.content);
    const QByteArray text = before.withValues({{key, value}});
    const ThemeFileText after(text);
    require(after.value(key) == value);
    require(after.value(otherKey) == before.value(otherKey));
    require(after.withValues({{key, value}}) == text);
}
