#pragma once

#include "fonts/fontrendering.h"

#include <QPixmap>

/// A picture of one pixel, 12 by 12, that shows where its red, green and blue stripes lie.
QPixmap subPixelSwatch(SubPixelOrder order);
