#pragma once

#include "settings/wallpapertexts.h"

#include <QColor>
#include <QImage>
#include <QString>

/// What a preview shows beside the image.
struct PreviewLook {
    Fit fit;
    QColor fill;
    QSize label;  ///< of the preview label, in pixels
    QSize screen; ///< in pixels
};

/// What the monitor picture shows of \a image: a picture 10 pixels narrower and lower than the preview label. A null
/// image gives a picture of the fill colour alone.
QImage drawPreview(const QImage &image, const PreviewLook &look);
