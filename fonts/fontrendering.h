#pragma once

#include <QString>

/// Order of the red, green and blue stripes of a display's pixels.
enum class SubPixelOrder { None, Rgb, Bgr, VerticalRgb, VerticalBgr, Count };

/// How strongly outlines are fitted to the pixel grid.
enum class HintStyle { NotSet, None, Slight, Medium, Full, Count };

/// Sizes from \a from to \a to, in points or in pixels.
struct ExcludeRange {
    double from = 0;
    double to = 0;

    bool isZero() const { return equals({}); }
    /// Whether the bounds are the same up to what a settings file can tell.
    bool equals(const ExcludeRange &other) const;
};

/// The names of the values in fontconfig files and on screen.
namespace FontRendering {
QString fileName(SubPixelOrder order);
/// "hintmedium" for a style that is not set.
QString fileName(HintStyle style);
QString displayName(SubPixelOrder order);
QString displayName(HintStyle style);
/// An unknown text reads as SubPixelOrder::None.
SubPixelOrder subPixelOrder(const QString &fileName);
/// An unknown text reads as HintStyle::NotSet.
HintStyle hintStyle(const QString &fileName);
} // namespace FontRendering

/// Brings a range in points and its twin in pixels into agreement on a screen of \a dpi dots per inch: pixels count
/// when there are any, else points. Returns whether there is something to write, which is always so for a
/// range in pixels.
bool bringIntoAgreement(ExcludeRange *points, ExcludeRange *pixels, double dpi);
