#include "freedesktop/soundinfo.h"

#include "base/atomicfile.h"

#include <QtEndian>

namespace {

constexpr qint64 largestSound = 64 * 1024 * 1024; // bytes

/// A number at \a offset; 0 behind the end.
template<typename T>
T numberAt(const QByteArray &bytes, qint64 offset, bool isBigEndian)
{
    if (offset + qint64(sizeof(T)) > bytes.size())
        return 0;
    const char *place = bytes.constData() + offset;
    return isBigEndian ? qFromBigEndian<T>(place) : qFromLittleEndian<T>(place);
}

/// The length of the samples from \a offset on, of which \a stated bytes are said to be there.
double secondsOf(const SoundInfo &info, const QByteArray &bytes, qint64 offset, qint64 stated)
{
    const double bytesPerSecond = double(info.rate) * info.channels * info.bits / 8;
    return bytesPerSecond ? double(qBound<qint64>(0, bytes.size() - offset, stated)) / bytesPerSecond : 0;
}

std::optional<SoundInfo> wavInfo(const QByteArray &bytes)
{
    SoundInfo info = {QStringLiteral("WAV")};
    constexpr qint64 header = 12, chunkHeader = 8;
    for (qint64 chunk = header; chunk + chunkHeader <= bytes.size();) {
        const QByteArray name = bytes.mid(int(chunk), 4);
        const qint64 size = numberAt<quint32>(bytes, chunk + 4, false);
        const qint64 content = chunk + chunkHeader;
        if (name == "fmt ") {
            info.channels = numberAt<quint16>(bytes, content + 2, false);
            info.rate = numberAt<quint32>(bytes, content + 4, false);
            info.bits = numberAt<quint16>(bytes, content + 14, false);
        } else if (name == "data") {
            info.seconds = secondsOf(info, bytes, content, size);
            return info;
        }
        chunk = content + size + size % 2;
    }
    return {};
}

std::optional<SoundInfo> auInfo(const QByteArray &bytes)
{
    const auto field = [&bytes](int number) { return numberAt<quint32>(bytes, qint64(number) * 4, true); };
    constexpr int bitsOfEncoding[] = {0, 8, 8, 16, 24, 32, 32, 64}; // by their numbers; 27 is A-law
    SoundInfo info = {QStringLiteral("AU"), field(4), int(field(5))};
    const quint32 encoding = field(3);
    info.bits = encoding < std::size(bitsOfEncoding) ? bitsOfEncoding[encoding] : encoding == 27 ? 8 : 0;
    info.seconds = secondsOf(info, bytes, field(1), field(2));
    return info;
}

} // namespace

std::optional<SoundInfo> soundInfo(const QString &path)
{
    const QByteArray bytes = readRegularFile(path, largestSound).content;
    if (bytes.startsWith("RIFF") && bytes.mid(8, 4) == "WAVE")
        return wavInfo(bytes);
    return bytes.startsWith(".snd") ? auInfo(bytes) : std::nullopt;
}
