#pragma once

#include "tools/qaz-theme/arguments.h"

// Commands on the copies that were kept of removed and rewritten files.

Status listBackups(const Arguments &arguments);
Status restore(const Arguments &arguments);
