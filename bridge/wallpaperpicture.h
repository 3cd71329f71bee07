#pragma once

#include <QString>

/// Whether a regular file with an image of a size that can be shown is at \a path.
bool isImageFile(const QString &path);

/// The image file after \a path in its directory, by name and round again; \a path itself when there is no other.
QString nextPicture(const QString &path);
