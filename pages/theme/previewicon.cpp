#include "pages/theme/previewicon.h"

#include "pages/theme/packedimage.h"

#include <QApplication>
#include <QIconEngine>
#include <QPainter>
#include <QPixmap>
#include <QStyle>
#include <QStyleOption>

namespace {

class PreviewIconEngine : public QIconEngine
{
public:
    PreviewIconEngine(const QSize &size, const std::function<QImage()> &draw)
        : m_size(size)
        , m_draw(draw)
    {}

    explicit PreviewIconEngine(const QImage &preview)
        : m_size(preview.size())
        , m_packed(packImage(preview))
    {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        painter->drawPixmap(rect, pixmap(rect.size(), mode, state));
    }

    QPixmap pixmap(const QSize &size, QIcon::Mode mode, QIcon::State state) override
    {
        if (m_draw) {
            m_packed = packImage(m_draw());
            m_draw = nullptr;
        }
        QPixmap pixmap = QPixmap::fromImage(unpackImage(m_packed, m_size));
        const QSize shown = actualSize(size, mode, state);
        if (shown != m_size && !pixmap.isNull())
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
    QByteArray m_packed;
    std::function<QImage()> m_draw; ///< empty as soon as the preview is packed
};

} // namespace

QIcon previewIcon(const QImage &preview)
{
    return QIcon(new PreviewIconEngine(preview));
}

QIcon previewIcon(const QSize &size, const std::function<QImage()> &draw)
{
    return QIcon(new PreviewIconEngine(size, draw));
}
