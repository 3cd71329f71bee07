#include "pages/theme/previewcombobox.h"

#include "pages/theme/swatches.h"

#include <QIconEngine>
#include <QStylePainter>
#include <QStyledItemDelegate>

namespace {

/// An icon with a frame around it. It draws the frame anew each time: the kit would keep every new pixmap in its cache.
class OutlinedIconEngine : public QIconEngine
{
public:
    OutlinedIconEngine(const QIcon &icon, const QColor &frame)
        : m_icon(icon)
        , m_frame(frame)
    {}

    void paint(QPainter *painter, const QRect &rect, QIcon::Mode mode, QIcon::State state) override
    {
        painter->drawPixmap(rect, pixmap(rect.size(), mode, state));
    }
    QPixmap pixmap(const QSize &size, QIcon::Mode /*mode*/, QIcon::State /*state*/) override
    {
        return outlined(m_icon.pixmap(size), m_frame); // a selection does not tint a swatch
    }
    QIconEngine *clone() const override { return new OutlinedIconEngine(*this); }

private:
    QIcon m_icon;
    QColor m_frame;
};

QIcon withOutline(const QIcon &icon, const QPalette &palette)
{
    QColor frame = palette.color(QPalette::Text);
    frame.setAlphaF(0.6); // shows on every swatch, but is not harder than the swatches themselves
    return QIcon(new OutlinedIconEngine(icon, frame));
}

class OutliningDelegate : public QStyledItemDelegate
{
public:
    using QStyledItemDelegate::QStyledItemDelegate;

protected:
    void initStyleOption(QStyleOptionViewItem *option, const QModelIndex &index) const override
    {
        QStyledItemDelegate::initStyleOption(option, index);
        option->icon = withOutline(option->icon, option->palette);
    }
};

} // namespace

PreviewComboBox::PreviewComboBox(QWidget *parent)
    : QComboBox(parent)
{
    connect(this, qOverload<int>(&QComboBox::currentIndexChanged), this, [this] { updateGeometry(); });
}

void PreviewComboBox::outlineIcons()
{
    m_outlinesIcons = true;
    setItemDelegate(new OutliningDelegate(this));
}

QSize PreviewComboBox::sizeHint() const
{
    return withoutPreview(QComboBox::sizeHint());
}

QSize PreviewComboBox::minimumSizeHint() const
{
    return withoutPreview(QComboBox::minimumSizeHint());
}

QSize PreviewComboBox::withoutPreview(QSize hint) const
{
    if (currentIndex() >= 0)
        return hint;
    QStyleOptionComboBox option;
    initStyleOption(&option);
    hint.setHeight(fontMetrics().height() + 2); // as the kit's box without icons
    hint.setHeight(style()->sizeFromContents(QStyle::CT_ComboBox, &option, hint, this).height());
    return hint;
}

void PreviewComboBox::paintEvent(QPaintEvent * /*event*/)
{
    QStylePainter painter(this);
    QStyleOptionComboBox option;
    initStyleOption(&option);
    painter.drawComplexControl(QStyle::CC_ComboBox, option);
    if (currentIndex() < 0) {
        const QRect field = style()->subControlRect(QStyle::CC_ComboBox, &option,
                                                    QStyle::SC_ComboBoxEditField, this);
        option.currentText = fontMetrics().elidedText(placeholderText(), Qt::ElideRight, field.width() - 2);
        // Styles differ in whose colour they take.
        for (const QPalette::ColorRole role : {QPalette::Text, QPalette::ButtonText, QPalette::WindowText})
            option.palette.setColor(role, palette().color(QPalette::PlaceholderText));
    } else if (m_outlinesIcons) {
        option.currentIcon = withOutline(option.currentIcon, option.palette);
    }
    painter.setPen(option.palette.color(QPalette::Text));
    painter.drawControl(QStyle::CE_ComboBoxLabel, option);
}
