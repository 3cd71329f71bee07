#include "platform/commandreceiver.h"

#include <cstring>

QByteArray CommandReceiver::take(std::uint64_t sender, bool begins, const char *data)
{
    if (begins)
        m_unfinished[sender] = QByteArray("");
    const auto command = m_unfinished.find(sender);
    if (command == m_unfinished.end())
        return {};
    const auto *end = static_cast<const char *>(std::memchr(data, '\0', messageBytes));
    command->append(data, end ? int(end - data) : messageBytes);
    if (!end && command->size() <= longestCommand)
        return {};
    QByteArray finished = end && command->size() <= longestCommand ? *command : QByteArray();
    m_unfinished.erase(command);
    return finished;
}
