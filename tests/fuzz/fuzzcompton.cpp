#include "pages/effects/comptonconfig.h"
#include "tests/fuzz/fuzzing.h"
#include "tests/support/temporaryhome.h"

// A switch that was set in a file that can be read is read back as it was set. A file whose text can't be edited, such as
// one with a name right behind a number, stands as it was.
void check(const FuzzInput &input)
{
    static const TemporaryHome home; // locks are kept in the home, too
    const QString path = home.write(QStringLiteral("compton.conf"), input.content);
    if (!readComptonFile(path))
        return;
    const bool shadow = input.argument.isEmpty();
    QString error;
    if (!updateComptonFile(path, false, shadow, &error)) {
        require(!error.isEmpty() && home.read(QStringLiteral("compton.conf")) == input.content);
        return;
    }

    const std::optional<ComptonValues> written = readComptonFile(path);
    require(written.has_value());
    require(written->shadow == shadow);
    require(written->transparency == false);
}
