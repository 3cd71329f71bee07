#pragma once

#include <QImage>
#include <QVector>

/// The images of a decoration theme's active window.
struct DecorImages {
    QImage title;
    QImage topFrame;
    QImage topLeftCorner;
    QImage topRightCorner;
    QImage leftFrame;      ///< only its width counts
    QImage rightFrame;     ///< only its width counts
    QImage minimizeButton; ///< the released button above the pressed one, as in the next two
    QImage maximizeButton;
    QImage closeButton;
};

// All previews are premultiplied 32-bit images of the given size. Images are copied over what is there, with
// their alpha and without blending; what reaches over an edge is cut off.

/// Three images side by side on a transparent canvas, each in the middle of its height. Null images leave
/// their place empty.
QImage threeImagesPreview(const QSize &size, const QVector<QImage> &images);

/// A miniature of a title bar: corners, title, top frame, and the three buttons.
QImage decorPreview(const QSize &size, const DecorImages &images);
