#include "fonts/previewlabel.h"

#include <QGuiApplication>
#include <QPainter>
#include <QStyle>

PreviewLabel::PreviewLabel(QWidget *parent)
    : QLabel(parent)
{
    // Family names are anybody's text.
    setTextFormat(Qt::PlainText);
}

QSize PreviewLabel::minimumSizeHint() const
{
    const QSize natural = QLabel::minimumSizeHint();
    const QFontMetrics ordinary(QGuiApplication::font());
    const QSize least(ordinary.averageCharWidth() * 10, ordinary.height() * 2);
    return natural.boundedTo(least);
}

void PreviewLabel::paintEvent(QPaintEvent * /*event*/)
{
    QPainter painter(this);
    drawFrame(&painter);
    const int indent = indentWidth();
    const QRect area = contentsRect().adjusted(indent, 0, -indent, 0);
    const QString shown = fontMetrics().elidedText(text(), Qt::ElideRight, area.width());
    const Qt::Alignment place = QStyle::visualAlignment(layoutDirection(), Qt::AlignLeft | Qt::AlignVCenter);
    style()->drawItemText(&painter, area, int(place), palette(), isEnabled(), shown, foregroundRole());
}

int PreviewLabel::indentWidth() const
{
    return QFontMetrics(QGuiApplication::font()).horizontalAdvance(QLatin1Char('x')) / 2;
}
