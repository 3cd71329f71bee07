#pragma once

#include "bridge/compositor.h"
#include "bridge/openbox.h"
#include "bridge/sounds.h"
#include "bridge/wallpaper.h"
#include "bridge/windowwatcher.h"
#include "bridge/xsettings.h"
#include "platform/commandreceiver.h"

#include <QElapsedTimer>
#include <QObject>
#include <QTimer>

#include <functional>
#include <memory>
#include <vector>

/// Carries out what the theme file says and what is announced of it, for as long as the session lasts.
class Bridge : public QObject
{
    Q_OBJECT
public:
    /// Applies everything at once. Without Options::once it goes on until something ends the event loop.
    explicit Bridge(const Session &session);

    /// Applies everything anew from the file.
    void applyAnew();
    /// Plays the sound of the session's end, then leaves the event loop with status 0.
    void endSession();

private:
    /// What is to be done when one of some keys has a new value.
    struct Action {
        QStringList keys;
        std::function<void()> carryOut;
        bool isDue = true;
    };

    void follow();
    void take(const _XEvent &event);
    void takeCommand(const QByteArray &command);
    bool demand(const QString &key);
    void waitForMore();
    void carryOut();
    void applyScreensaver();
    void rootPropertyChanged(unsigned long property);
    void selectionChanged();

    Session m_session;
    Wallpaper m_wallpaper;
    XSettings m_xsettings;
    Compositor m_compositor;
    Openbox m_openbox;
    Sounds m_sounds;
    CommandReceiver m_receiver;
    std::unique_ptr<WindowWatcher> m_watcher;
    std::vector<Action> m_actions;
    QTimer m_burstTimer;
    QElapsedTimer m_burst;
    int m_desktop = 0;
    QByteArray m_windowManager;
};
