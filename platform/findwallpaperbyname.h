#pragma once

/// Resolves the wallpaper \a name to an image file for a screen of \a width x \a height pixels and writes its path
/// into \a result, a buffer of 4096 bytes; an empty text when there is none. An SVG is converted by
/// \a convertCommand, whose arguments may be %d (width, then height) and %s (source, then target); no shell
/// sees it. It is converted once, until the source changes.
void FindWallPaperByName(const char *name, char *result, int width, int height, const char *convertCommand);
