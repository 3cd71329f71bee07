#pragma once

#include "bridge/session.h"

/// Keeps a theme for Openbox in the colours of the theme file, where Openbox is the window manager.
class Openbox
{
public:
    explicit Openbox(const Session &session);

    void apply();

private:
    void editConfiguration() const;

    Session m_session;
};

/// The `themerc` of an Openbox theme in the colours that \a values hold. A text that names no colour counts as its
/// default.
QByteArray openboxTheme(const Values &values);
