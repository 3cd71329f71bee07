#include "pages/theme/packedimage.h"

#include <zlib.h>

namespace {

// A list of many themes packs each preview while the user waits: zlib's usual buffers would take longer to set up
// than the few rows that repeat in a preview take to compress.
constexpr int fastest = 1;         // compression level
constexpr int rawWindowBits = -12; // negative: without zlib's header and checksum
constexpr int smallMemory = 4;
constexpr QImage::Format format = QImage::Format_ARGB32_Premultiplied;

} // namespace

QByteArray packImage(const QImage &image)
{
    const QImage pixels = image.convertToFormat(format);
    z_stream stream = {};
    if (pixels.isNull()
        || ::deflateInit2(&stream, fastest, Z_DEFLATED, rawWindowBits, smallMemory, Z_DEFAULT_STRATEGY)
               != Z_OK)
        return {};
    QByteArray buffer(int(::deflateBound(&stream, uLong(pixels.sizeInBytes()))), Qt::Uninitialized);
    stream.next_in = const_cast<Bytef *>(pixels.constBits()); // zlib only reads
    stream.avail_in = uInt(pixels.sizeInBytes());
    stream.next_out = reinterpret_cast<Bytef *>(buffer.data());
    stream.avail_out = uInt(buffer.size());
    const bool isDone = ::deflate(&stream, Z_FINISH) == Z_STREAM_END;
    ::deflateEnd(&stream);
    return isDone ? QByteArray(buffer.constData(), int(stream.total_out)) : QByteArray();
}

QImage unpackImage(const QByteArray &packed, const QSize &size)
{
    QImage image(size, format);
    z_stream stream = {};
    if (packed.isEmpty() || image.isNull() || ::inflateInit2(&stream, rawWindowBits) != Z_OK)
        return {};
    stream.next_in = reinterpret_cast<Bytef *>(const_cast<char *>(packed.constData()));
    stream.avail_in = uInt(packed.size());
    stream.next_out = image.bits();
    stream.avail_out = uInt(image.sizeInBytes());
    const bool isDone = ::inflate(&stream, Z_FINISH) == Z_STREAM_END && stream.avail_out == 0;
    ::inflateEnd(&stream);
    return isDone ? image : QImage();
}
