#pragma once

#include <QString>

/// Fills the directory \a directory with \a count font files, each a family of its own, made from the font file
/// \a source without its outlines. Returns false when something can't be read or written.
bool writeFontFaces(const QString &source, const QString &directory, int count);
