#include "settings/colortexts.h"
#include "settings/rolefonttext.h"
#include "tests/fuzz/fuzzing.h"

#include <QColor>
#include <QGuiApplication>

// Colour and font texts as a theme file may hold them. What the program writes for a font reads as a font text.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    // Fonts are resolved by the platform's font database, which needs an application object. It is never destroyed:
    // at the process's end the leak check would find it half taken apart.
    static int argc = 3;
    static const char *argv[] = {"fuzztexts", "-platform", "offscreen", nullptr};
    static const auto *const application = new QGuiApplication(argc, const_cast<char **>(argv));
    Q_UNUSED(application)
    const FuzzInput input(data, size);
    const QString text = QString::fromUtf8(input.content);

    const QColor color = desktopColor(text);
    require(!color.isValid() || QColor(color.name()) == QColor(color.rgb()));
    require(!currentColorText(text, QStringLiteral("#c0c0c0")).isNull() || text.isNull());

    const QFont font = storedRoleFont(text, QFont(QStringLiteral("Sans"), 10));
    require(isFontText(fontToText(font)));
    familyDisplayName(text);
    return 0;
}
