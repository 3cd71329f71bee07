#pragma once

#include <QList>
#include <QWidget>

class FontAASettings;
class FontUseItem;
class QazSettings;
class QComboBox;
class QGridLayout;
class QPushButton;
class QSpinBox;

/// Chooses the fonts of the desktop's roles and how fonts are rendered. The fonts live in the theme file, the
/// rendering choices in the program's own Qt settings, the fontconfig file and the X resources.
class KFonts : public QWidget
{
    Q_OBJECT
public:
    explicit KFonts(QWidget *parent = nullptr);

    virtual void loadSettings(QazSettings *settings);
    /// Saves everything. Returns whether a rendering choice changed; the roles' fonts do not count.
    virtual bool saveSettings(QazSettings *settings);
    virtual void resetToDefaults();

signals:
    void changed(bool isChanged);

public slots:
    void fontSelected();
    void slotApplyFontDiff();
    void slotUseAntiAliasing();
    void slotCfgAa();
    void slotCfgDpi(int value);

private:
    void addRoles(QGridLayout *grid);
    void addAntiAliasingRow(QGridLayout *grid);
    void addDpiRow(QGridLayout *grid);
    void showAntiAliasing(int mode);

    QList<FontUseItem *> m_fontUseItems; // in the order of the role table
    int aaMode;                          // index in the combo box
    int aaModeAtLoad;                    // aaMode at the last load or effective save
    QComboBox *m_aaComboBox = nullptr;
    QPushButton *m_configureButton = nullptr;
    FontAASettings *m_aaSettings = nullptr;
    int dpiAtLoad = 0; // 0: not forced
    QSpinBox *m_dpiSpinBox = nullptr;
};
