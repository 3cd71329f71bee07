#include "pages/theme/previewicon.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QStyle>
#include <QStyleOption>

namespace {

constexpr int fastest = 1; // of zlib's levels; most of a preview is empty or repeats
constexpr int bytesPerPixel = 4;

class PreviewIconEngine : public QIconEngine
{
public:
    explicit PreviewIconEngine(const QImage &preview)
        : m_size(preview.size())
    {
        const QImage image = preview.convertToFormat(QImage::Format_ARGB32_Premultiplied);
        m_pixels = qCompress(image.constBits(), int(image.sizeInBytes()), fastest);
    }

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        painter->drawPixmap(rect, pixmap(rect.size(), mode, state));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State /*state*/) override
    {
        const QByteArray pixels = qUncompress(m_pixels);
        if (pixels.isEmpty())
            return {};
        const QImage image(reinterpret_cast<const uchar *>(pixels.constData()), m_size.width(),
                           m_size.height(), m_size.width() * bytesPerPixel,
                           QImage::Format_ARGB32_Premultiplied);
        QPixmap pixmap = QPixmap::fromImage(image.copy());
        const QSize shown = actualSize(size, mode, QIcon::Off);
        if (shown != m_size)
            pixmap = pixmap.scaled(shown, Qt::IgnoreAspectRatio, Qt::SmoothTransformation);
        if (mode == QIcon::Normal)
            return pixmap;
        QStyleOption option;
        option.palette = QGuiApplication::palette();
        return QApplication::style()->generatedIconPixmap(mode, pixmap, &option);
    }

    QSize actualSize(const QSize &size, QIcon::Mode /*mode*/, QIcon::State /*state*/) override
    {
        const bool fits = size.width() >= m_size.width() && size.height() >= m_size.height();
        return fits ? m_size : m_size.scaled(size, Qt::KeepAspectRatio);
    }

    QList<QSize> availableSizes(QIcon::Mode /*mode*/, QIcon::State /*state*/) const override
    {
        return {m_size};
    }
    QString key() const override { return QStringLiteral("PreviewIconEngine"); }
    QIconEngine *clone() const override { return new PreviewIconEngine(*this); }

private:
    QSize m_size;
    QByteArray m_pixels;
};

} // namespace

QIcon previewIcon(const QImage &preview)
{
    return QIcon(new PreviewIconEngine(preview));
}
