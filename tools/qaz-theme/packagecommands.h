#pragma once

#include "tools/qaz-theme/arguments.h"

// Commands on packed themes.

Status pack(const Arguments &arguments);
Status unpack(const Arguments &arguments);
