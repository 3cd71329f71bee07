#pragma once

#include <QByteArray>
#include <QHash>
#include <QString>

/// The groups of an `index.theme` file: group name -> key -> value, decoded as UTF-8 with the blanks around names
/// and values cut off. Lines that are no key of a group are ignored; of a repeated key the first line counts.
using IndexThemeGroups = QHash<QString, QHash<QString, QString>>;

IndexThemeGroups parseIndexTheme(const QByteArray &content);

/// The items of a list value, separated by commas (or, as older files do, semicolons); empty items are left out.
QStringList indexThemeList(const QString &value);
