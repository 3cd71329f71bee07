#pragma once

#include <QByteArray>
#include <QByteArrayList>
#include <QHash>

#include <cstdint>

/// Puts window-manager commands together from the client messages that carry them, 20 bytes each.
/// Messages of several senders may come interleaved.
class CommandReceiver
{
public:
    static constexpr int messageBytes = 20;
    static constexpr int longestCommand = 65536;

    /// Takes the 20 bytes at \a data from \a sender; \a begins tells the first message of a command from the
    /// following ones. Returns the command when this message ended it, else a null array. A following
    /// message without a first one, and a command that grows too long, are dropped.
    QByteArray take(std::uint64_t sender, bool begins, const char *data);

private:
    QHash<quint64, QByteArray> m_unfinished;
};
