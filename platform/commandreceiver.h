#pragma once

#include <QByteArray>
#include <QVector>

#include <cstdint>

struct _XDisplay;
union _XEvent;

// How a command to the window manager travels: as client messages of format 8 to the root window.
inline constexpr char firstCommandAtom[] = "_QAZWM_COMMAND_BEGIN"; ///< type of a command's first message
inline constexpr char nextCommandAtom[] = "_QAZWM_COMMAND";        ///< type of the following ones
inline constexpr int commandMessageBytes = 20;                     ///< in each message
inline constexpr int longestCommand = 65536; ///< bytes; the NUL that ends a command travels besides

/// Puts window-manager commands together from the client messages that carry them.
/// Messages of several senders may come interleaved; of more than 64 unfinished commands the oldest is dropped.
class CommandReceiver
{
public:
    /// Without a \a display, whose events are taken, there is nothing but take() of bytes.
    explicit CommandReceiver(_XDisplay *display = nullptr);

    /// Takes an event of the display, where somebody has selected SubstructureNotifyMask on the root window. Returns
    /// the command when this event ended it, else a null array.
    QByteArray take(const _XEvent &event);

    /// Takes the bytes of one message at \a data from \a sender; \a begins tells the first message of a command from
    /// the following ones. Returns as above. A following message without a first one, and a command that grows too
    /// long, are dropped.
    QByteArray take(std::uint64_t sender, bool begins, const char *data);

private:
    struct Unfinished {
        std::uint64_t sender;
        QByteArray text;
    };

    unsigned long m_firstAtom = 0;
    unsigned long m_nextAtom = 0;
    QVector<Unfinished> m_unfinished; // oldest first
};
