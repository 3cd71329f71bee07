#pragma once

#include <QIcon>
#include <QImage>

#include <functional>

/// An icon that shows \a preview and keeps it compressed: a user may have hundreds of themes, of which a
/// list shows a few at a time.
QIcon previewIcon(const QImage &preview);

/// The same, of \a size, with a preview that \a draw makes when it is shown for the first time.
QIcon previewIcon(const QSize &size, const std::function<QImage()> &draw);
