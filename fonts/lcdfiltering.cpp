#include "fonts/lcdfiltering.h"

#include "base/chandle.h"

#include <memory>
#include <type_traits>
#include <utility>

#include <ft2build.h>
#include FT_FREETYPE_H
#include FT_LCD_FILTER_H

LcdFiltering probeLcdFiltering()
{
    FT_Library handle = nullptr;
    if (FT_Init_FreeType(&handle) != 0)
        return LcdFiltering::Unknown;
    const std::unique_ptr<std::remove_pointer_t<FT_Library>, Release<FT_Done_FreeType>> library(handle);
    const FT_Error error = FT_Library_SetLcdFilter(library.get(), FT_LCD_FILTER_DEFAULT);
    return error == FT_Err_Unimplemented_Feature ? LcdFiltering::No : LcdFiltering::Yes;
}

LcdFilterSupport::LcdFilterSupport(std::function<LcdFiltering()> probe)
    : m_probe(std::move(probe))
{}

bool LcdFilterSupport::isSupported()
{
    if (m_answer == LcdFiltering::Unknown)
        m_answer = m_probe();
    return m_answer != LcdFiltering::No;
}
