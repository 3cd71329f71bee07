#pragma once

#include <QByteArray>
#include <QString>

#include <optional>

/// \a xml, the content of an Openbox configuration file, with the theme \a theme and with the role texts \a titleFont
/// and \a menuFont as the fonts of titles and menus; an empty one is left as it is. Every other byte stays. Nothing,
/// with the reason in \a error, for what is no such file.
std::optional<QByteArray> withOpenboxTheme(const QByteArray &xml, const QString &theme,
                                           const QString &titleFont, const QString &menuFont, QString *error);
