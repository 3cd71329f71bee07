#pragma once

/// Makes the compiled-in images and the user guide available; a static library's are not by themselves.
void registerResources();
