#pragma once

#include <QByteArray>

#include <functional>

class QString;

/// The `themerc` of an Openbox theme in the colours of a theme file; \a value gives the stored text of a key, or the
/// default. A text that names no colour counts as its default.
QByteArray openboxTheme(const std::function<QString(const char *key, const char *defaultText)> &value);
