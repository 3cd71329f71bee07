#pragma once

/// Gives for a screen of \a width x \a height pixels the nearest standard wallpaper size (\a w1 x \a h1) and the
/// aspect ratio \a w2 : \a h2 that it has (such as 16:10), which names a directory of wallpapers.
void WallpaperSizeForScreen(int width, int height, int *w1, int *h1, int *w2, int *h2);
