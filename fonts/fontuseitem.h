#pragma once

#include "fonts/kfontrequester.h"

#include <QFont>

class QazSettings;

/// The font of one role of the desktop, bound to its key in the theme file.
class FontUseItem : public KFontRequester
{
    Q_OBJECT
public:
    FontUseItem(QWidget *parent, const QString &name, const QString &key, const QFont &defaultFont,
                bool onlyFixed = false);

    /// Selects the stored font; the default one when nothing usable is stored.
    void loadFont(QazSettings *settings);
    /// Stores and announces the font if it differs from the stored one. The font of the role "General" also
    /// becomes the default of all programs built on the toolkit.
    void saveFont(QazSettings *settings);
    void restoreDefault();
    /// Takes over size, bold and slant of \a chosen, and its family unless only fixed pitch is wanted here and
    /// \a chosen has none.
    void applyChosenFont(const QFont &chosen);

private:
    QString m_key;
    QFont m_defaultFont;
};
