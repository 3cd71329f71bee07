#include "fonts/fontpage.h"

#include "pages/common/waitcursor.h"
#include "settings/renderingstore.h"
#include "settings/wmcommands.h"

FontPage::FontPage(QWidget *parent)
    : KFonts(parent)
{
    setObjectName(QStringLiteral("FontPage"));
}

bool FontPage::loadValues(QazSettings *settings)
{
    const WaitCursor waitCursor;
    loadSettings(settings);
    // Loading may run again, so the connection is unique.
    connect(this, &KFonts::changed, this, &FontPage::changedSignal, Qt::UniqueConnection);
    loaded = true;
    return true;
}

bool FontPage::saveValues(QazSettings *settings)
{
    if (saveSettings(settings))
        sendToWindowManager(xftSettingsCommand(ownSettingsFile()));
    return true;
}
