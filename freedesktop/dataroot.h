#pragma once

#include <QString>

/// The root of the desktop's shared data, the first of: `$QAZ_DATA_DIR`; `../share/qaz` beside the
/// executable's directory, if it exists; in development builds the source tree's data directory; else the
/// second one's path all the same.
QString dataRoot();
