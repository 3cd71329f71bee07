#include "platform/commandreceiver.h"
#include "tests/fuzz/fuzzing.h"

#include <cstring>

// Messages of any senders, in any order: a command has no NUL and keeps the limit. A command that is sent whole arrives
// whole, whatever came before.
int LLVMFuzzerTestOneInput(const std::uint8_t *data, std::size_t size)
{
    const QByteArray input(reinterpret_cast<const char *>(data), int(size));
    constexpr int stride = 1 + commandMessageBytes;
    CommandReceiver receiver;
    for (int at = 0; at + stride <= input.size(); at += stride) {
        const auto head = std::uint8_t(input.at(at));
        const QByteArray command = receiver.take(head >> 1, head & 1, input.constData() + at + 1);
        require(command.size() <= longestCommand && !command.contains('\0'));
    }

    const QByteArray text = input.left(input.indexOf('\0'));
    const QByteArray sent = text.leftJustified((text.size() / commandMessageBytes + 1) * commandMessageBytes,
                                               '\0');
    QByteArray arrived;
    for (int at = 0; at < sent.size(); at += commandMessageBytes) {
        require(arrived.isNull());
        arrived = receiver.take(1, at == 0, sent.constData() + at);
    }
    require(arrived == text && !arrived.isNull());
    return 0;
}
