#pragma once

#include <QCoreApplication>
#include <QString>

/// Order of the red, green and blue stripes of a display's pixels.
enum class SubPixelOrder { None, Rgb, Bgr, VerticalRgb, VerticalBgr, Count };

/// How strongly outlines are fitted to the pixel grid.
enum class HintStyle { NotSet, None, Slight, Medium, Full, Count };

/// Sizes from \a from to \a to, in points or in pixels.
struct ExcludeRange {
    double from = 0;
    double to = 0;

    bool isZero() const;
    /// Whether the bounds are the same up to what a settings file can tell.
    bool equals(const ExcludeRange &other) const;
};

/// The names of the values in fontconfig files and on screen.
class FontRendering
{
    Q_DECLARE_TR_FUNCTIONS(FontRendering)
public:
    /// "none" for an unknown order.
    static QString fileName(SubPixelOrder order);
    /// "hintmedium" for a style that is not set or unknown.
    static QString fileName(HintStyle style);
    static QString displayName(SubPixelOrder order);
    static QString displayName(HintStyle style);
    /// An unknown text reads as SubPixelOrder::None.
    static SubPixelOrder subPixelOrder(const QString &fileName);
    /// An unknown text reads as HintStyle::NotSet.
    static HintStyle hintStyle(const QString &fileName);
};

/// Brings a range in points and its twin in pixels into agreement on a screen of \a dpi dots per inch: pixels count
/// when there are any, else points. Returns whether there is something to write, which is always so for a
/// range in pixels.
bool bringIntoAgreement(ExcludeRange *points, ExcludeRange *pixels, double dpi);
