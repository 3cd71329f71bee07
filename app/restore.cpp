#include "app/configdialog.h"

void ConfigDialog::restoreSlot() {}
