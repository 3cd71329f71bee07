#pragma once

#include <QStringList>

#include <memory>

class CommandReceiver;
struct _XDisplay;

/// The window manager's ears: a real X client, on a connection of its own, that receives commands from the
/// root window. Construct it before the program sends.
class WmListener
{
public:
    WmListener();
    ~WmListener();
    WmListener(const WmListener &) = delete;
    WmListener &operator=(const WmListener &) = delete;

    /// The commands that arrived since the last call, each with its final newline cut off. Asks the server first, so
    /// that every command sent before this call by this process, or by one that has ended, is among them.
    QStringList take();
    /// The values that were announced since the last call: "Key 1|Other 2".
    QString takeUpdates();

private:
    _XDisplay *m_display;
    std::unique_ptr<CommandReceiver> m_receiver;
};
