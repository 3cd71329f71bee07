#include "platform/slidingstackedwidget.h"

#include <QVariantAnimation>
#include <QVector>

#include <utility>

void SlidingStackedWidget::slideInIdx(int index, int direction)
{
    finishSlide();
    QWidget *incoming = widget(index);
    QWidget *outgoing = currentWidget();
    if (!incoming || incoming == outgoing || !isVisible()) {
        setCurrentIndex(index); // which ignores a wrong one
        emit animationFinished();
        return;
    }

    // Where the page that comes in starts, seen from its final place, in the order of the directions.
    const int width = contentsRect().width();
    const int height = contentsRect().height();
    const QVector<QPoint> starts = {{-width, 0}, {width, 0}, {0, -height}, {0, height}};
    const QPoint start = starts.value(direction, starts.first());
    incoming->setGeometry(contentsRect().translated(start));
    incoming->show();
    m_target = index;
    m_slide = new QVariantAnimation(this);
    m_slide->setDuration(300);
    m_slide->setEasingCurve(QEasingCurve::OutCubic);
    m_slide->setStartValue(start);
    m_slide->setEndValue(QPoint());
    connect(m_slide, &QVariantAnimation::valueChanged, this, [=](const QVariant &left) {
        incoming->move(contentsRect().topLeft() + left.toPoint());
        outgoing->move(incoming->pos() - start);
    });
    connect(m_slide, &QVariantAnimation::finished, this, &SlidingStackedWidget::finishSlide);
    m_slide->start(QAbstractAnimation::DeleteWhenStopped);
}

void SlidingStackedWidget::resizeEvent(QResizeEvent * /*event*/)
{
    // The pages' way no longer fits the new size; the layout puts both in place.
    finishSlide();
}

void SlidingStackedWidget::finishSlide()
{
    if (!m_slide)
        return;
    std::exchange(m_slide, nullptr)->stop();
    QWidget *outgoing = currentWidget();
    setCurrentIndex(m_target);
    currentWidget()->setGeometry(contentsRect());
    outgoing->setGeometry(contentsRect());
    emit animationFinished();
}
