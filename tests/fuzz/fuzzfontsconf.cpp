#include "fonts/fontsdocument.h"
#include "tests/fuzz/fuzzing.h"

// A file that was understood is understood after a change, too, with one child more for an added one, one less for a
// removed one.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const FuzzInput input(data, size);
    QString error;
    FontsDocument document;
    if (!document.setContent(input.content, &error)) {
        require(!error.isEmpty());
        require(document.children().isEmpty());
        return 0;
    }
    FontsDocument changed; // an untouched file may get a prolog
    require(changed.setContent(document.withChanges({}), &error));
    require(changed.children().size() == document.children().size());

    FontsDocument::Change addition;
    addition.form = QStringLiteral("<dir>/usr/share/fonts</dir>");
    require(changed.setContent(document.withChanges({addition}), &error));
    require(changed.children().size() == document.children().size() + 1);

    for (int child = 0; child < document.children().size(); ++child) {
        if (!document.children().at(child).item)
            continue;
        require(changed.setContent(document.withChanges({{child, {}, -1}}), &error));
        require(changed.children().size() == document.children().size() - 1);
    }
    return 0;
}
