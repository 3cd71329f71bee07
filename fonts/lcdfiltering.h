#pragma once

/// Whether the FreeType library can filter for the sub-pixels of a display; yes while it can't be asked.
bool isLcdFilteringSupported();
