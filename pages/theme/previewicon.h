#pragma once

#include <QIcon>
#include <QImage>

/// An icon that shows \a preview and keeps it compressed: a user may have hundreds of themes, of which a
/// list shows a few at a time.
QIcon previewIcon(const QImage &preview);
