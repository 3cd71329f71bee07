#include "platform/commandreceiver.h"

#include <algorithm>
#include <cstring>

#include <X11/Xlib.h>

constexpr int mostUnfinished = 64;

CommandReceiver::CommandReceiver(Display *display)
{
    if (!display)
        return;
    m_firstAtom = XInternAtom(display, firstCommandAtom, False);
    m_nextAtom = XInternAtom(display, nextCommandAtom, False);
}

QByteArray CommandReceiver::take(const XEvent &event)
{
    const XClientMessageEvent &message = event.xclient;
    const bool begins = message.message_type == m_firstAtom;
    if (event.type != ClientMessage || message.format != 8 || !(begins || message.message_type == m_nextAtom))
        return {};
    return take(message.window, begins, message.data.b);
}

QByteArray CommandReceiver::take(std::uint64_t sender, bool begins, const char *data)
{
    auto command = std::find_if(m_unfinished.begin(), m_unfinished.end(),
                                [sender](const Unfinished &other) { return other.sender == sender; });
    if (begins) {
        if (command != m_unfinished.end())
            m_unfinished.erase(command);
        else if (m_unfinished.size() == mostUnfinished)
            m_unfinished.removeFirst();
        m_unfinished.append({sender, QByteArray("")});
        command = m_unfinished.end() - 1;
    }
    if (command == m_unfinished.end())
        return {};
    const auto *end = static_cast<const char *>(std::memchr(data, '\0', commandMessageBytes));
    command->text.append(data, end ? int(end - data) : commandMessageBytes);
    const bool isTooLong = command->text.size() > longestCommand;
    if (!end && !isTooLong)
        return {};
    QByteArray finished = isTooLong ? QByteArray() : command->text;
    m_unfinished.erase(command);
    return finished;
}
