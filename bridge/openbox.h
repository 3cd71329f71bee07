#pragma once

#include "bridge/session.h"

/// Keeps a theme for Openbox in the colours of the theme file, where Openbox is the window manager.
class Openbox
{
public:
    explicit Openbox(const Session &session);

    void apply();

private:
    bool writeTheme() const;
    void editConfiguration() const;

    Session m_session;
};
