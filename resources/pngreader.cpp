#define QT_STATICPLUGIN

#include <QImageIOPlugin>
#include <QImageReader>

#include <memory>

namespace {

/// Set while Qt's own decoder is asked for: it would find this one first.
thread_local bool wantsBuiltInDecoder = false;

bool isPng(QIODevice *device)
{
    return device && device->isReadable() && device->peek(8) == QByteArrayLiteral("\x89PNG\r\n\x1a\n");
}

/// Hands everything on to Qt's own decoder.
class PngHandler : public QImageIOHandler
{
public:
    /// Qt asks first while it holds a lock that a new decoder would wait for.
    bool canRead() const override { return m_reader ? m_reader->canRead() : isPng(device()); }
    bool read(QImage *image) override { return reader().read(image); }
    bool supportsOption(ImageOption option) const override { return option == Size || option == ImageFormat; }
    QVariant option(ImageOption option) const override
    {
        return option == Size          ? QVariant(reader().size())
               : option == ImageFormat ? QVariant(reader().imageFormat())
                                       : QVariant();
    }

private:
    QImageReader &reader() const
    {
        if (!m_reader) {
            m_reader = std::make_unique<QImageReader>(device(), format());
            m_reader->setAutoDetectImageFormat(false);
            wantsBuiltInDecoder = true;
            m_reader->canRead(); // finds the decoder
            wantsBuiltInDecoder = false;
        }
        return *m_reader;
    }

    mutable std::unique_ptr<QImageReader> m_reader;
};

} // namespace

/// Qt has its own decoder for PNG, but asks all image plug-ins first unless one claims the file by its ending: it loads
/// ten of them, and what they need, to show one icon. This one claims it.
class PngReader : public QImageIOPlugin
{
    Q_OBJECT
    Q_PLUGIN_METADATA(IID "org.qt-project.Qt.QImageIOHandlerFactoryInterface" FILE "pngreader.json")
public:
    Capabilities capabilities(QIODevice *device, const QByteArray &format) const override
    {
        return !wantsBuiltInDecoder && format == "png" && isPng(device) ? CanRead : Capabilities();
    }
    QImageIOHandler *create(QIODevice *device, const QByteArray &format) const override
    {
        auto *handler = new PngHandler;
        handler->setDevice(device);
        handler->setFormat(format);
        return handler;
    }
};

#include "pngreader.moc"
