#pragma once

#include <QString>

/// The user's current theme file of this session.
QString defaultThemeFile();

/// The theme file to edit: the only argument, if it names an existing regular file, as an absolute path; else
/// defaultThemeFile(). \a argc and \a argv are main's, without Qt's own options.
QString chooseThemeFile(int argc, char **argv);
