#pragma once

#include "fonts/kfonts.h"

/// The fonts page of the configuration dialog.
class FontPage : public KFonts
{
    Q_OBJECT
public:
    explicit FontPage(QWidget *parent = nullptr);

    bool loaded = false;

signals:
    void changedSignal();

public slots:
    /// Fills the page from \a settings, which is not kept.
    bool loadValues(QazSettings *settings);
    /// Saves the page, and tells the window manager about rendering choices that changed; always true.
    bool saveValues(QazSettings *settings);
};
