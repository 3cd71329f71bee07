#pragma once

#include <QString>

/// The theme file to edit: the only argument, if it names an existing regular file, as an absolute path; else
/// the user's current theme file of this session. \a argc and \a argv are main's, without Qt's own options.
QString chooseThemeFile(int argc, char **argv);
