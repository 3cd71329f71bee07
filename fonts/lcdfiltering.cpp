#include "fonts/lcdfiltering.h"

#include "base/chandle.h"

#include <memory>
#include <optional>
#include <type_traits>

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_LCD_FILTER_H

namespace {

std::optional<bool> probe()
{
    FT_Library handle = nullptr;
    if (FT_Init_FreeType(&handle) != 0)
        return {};
    const std::unique_ptr<std::remove_pointer_t<FT_Library>, Release<FT_Done_FreeType>> library(handle);
    return FT_Library_SetLcdFilter(library.get(), FT_LCD_FILTER_DEFAULT) != FT_Err_Unimplemented_Feature;
}

} // namespace

bool isLcdFilteringSupported()
{
    static std::optional<bool> answer;
    if (!answer)
        answer = probe();
    return answer.value_or(true);
}
