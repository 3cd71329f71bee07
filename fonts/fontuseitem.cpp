#include "fonts/fontuseitem.h"

#include "platform/qazsettings.h"
#include "settings/inifile.h"
#include "settings/rolefonttext.h"
#include "settings/updatevalues.h"

#include <QFontInfo>

FontUseItem::FontUseItem(QWidget *parent, const QString &name, const QString &key, const QFont &defaultFont,
                         bool onlyFixed)
    : KFontRequester(parent, onlyFixed)
    , m_key(key)
    , m_defaultFont(defaultFont)
{
    setTitle(name);
}

void FontUseItem::loadFont(QazSettings *settings)
{
    const QString stored = settings->value(m_key, QString()).toString();
    setFont(storedRoleFont(stored, m_defaultFont), isFixedOnly());
}

void FontUseItem::saveFont(QazSettings *settings)
{
    if (!updateStringValue(settings, m_key, QString(), fontToText(font())))
        return;
    // What programs built on the toolkit take for their font, too.
    if (m_key == QLatin1String("DefaultFont"))
        writeIniValues(iniFile(QStringLiteral("Trolltech")), "Qt",
                       {{QStringLiteral("font"), font().toString()}});
}

void FontUseItem::restoreDefault()
{
    setFont(m_defaultFont, isFixedOnly());
}

void FontUseItem::applyChosenFont(const QFont &chosen)
{
    QFont result = font();
    // The style name of the current face would win over the weight and slant set here.
    result.setStyleName(QString());
    result.setPointSize(chosen.pointSize());
    if (!isFixedOnly() || QFontInfo(chosen).fixedPitch())
        result.setFamily(chosen.family());
    result.setWeight(chosen.weight() < 58 ? QFont::Normal : QFont::Bold);
    result.setStyle(chosen.style() != QFont::StyleNormal ? QFont::StyleItalic : QFont::StyleNormal);
    setFont(result, isFixedOnly());
}
