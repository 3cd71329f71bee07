#include "freedesktop/iconthemeindex.h"
#include "tests/fuzz/fuzzing.h"

// A theme that was set as the inherited one is the inherited one, in whatever file.
void check(const FuzzInput &input)
{
    const IconThemeIndex index = parseIconThemeIndex(input.content);
    for (const IconDirectory &directory : index.directories) {
        for (const int pixels : {0, 16, 48, 1 << 30})
            require(sizeDistance(directory, pixels) >= -1);
    }

    const QByteArray theme = QByteArrayLiteral("qaz-arrow");
    const QByteArray content = withInherits(input.content, theme);
    require(parseIconThemeIndex(content).inherits == QByteArrayList{theme});
    require(withInherits(content, theme) == content);
    require(parseIconThemeIndex(withInherits(content, QByteArray())).inherits.isEmpty());
}
