#include "platform/commandreceiver.h"
#include "tests/fuzz/fuzzing.h"

#include <cstring>

// Messages of any senders, in any order: a command has no NUL and keeps the limit. A command that is sent whole arrives
// whole, whatever came before.
void check(const FuzzInput &input)
{
    constexpr int stride = 1 + commandMessageBytes;
    CommandReceiver receiver;
    for (int at = 0; at + stride <= input.bytes.size(); at += stride) {
        const auto head = std::uint8_t(input.bytes.at(at));
        const QByteArray command = receiver.take(head >> 1, head & 1, input.bytes.constData() + at + 1);
        require(command.size() <= longestCommand && !command.contains('\0'));
    }

    const QByteArray text = input.bytes.left(input.bytes.indexOf('\0'));
    const QByteArray sent = text.leftJustified((text.size() / commandMessageBytes + 1) * commandMessageBytes,
                                               '\0');
    QByteArray arrived;
    for (int at = 0; at < sent.size(); at += commandMessageBytes) {
        require(arrived.isNull());
        arrived = receiver.take(1, at == 0, sent.constData() + at);
    }
    require(arrived == text && !arrived.isNull());
}
