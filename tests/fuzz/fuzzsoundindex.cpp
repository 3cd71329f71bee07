#include "freedesktop/indextheme.h"
#include "tests/fuzz/fuzzing.h"

#include <QStringList>

// Any bytes can be read; no item of a list is empty.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const FuzzInput input(data, size);
    const IndexThemeGroups groups = parseIndexTheme(input.content);
    for (const auto &group : groups) {
        for (const QString &value : group)
            require(!indexThemeList(value).contains(QString()));
    }
    return 0;
}
