#include "platform/slidingstackedwidget.h"

#include <QResizeEvent>
#include <QVariantAnimation>

namespace {

constexpr int slideMs = 300;

// Where the page that comes in starts, seen from its final place, in the order of the directions.
constexpr QPoint starts[] = {{-1, 0}, {1, 0}, {0, -1}, {0, 1}};

} // namespace

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

    const QPoint place = contentsRect().topLeft();
    const QPoint start = starts[direction >= LeftToRight && direction <= BottomToTop ? direction : 0];
    const QPoint offset(start.x() * contentsRect().width(), start.y() * contentsRect().height());
    incoming->setGeometry(contentsRect().translated(offset));
    incoming->show();
    incoming->raise();
    m_target = index;
    m_slide = new QVariantAnimation(this);
    m_slide->setDuration(slideMs);
    m_slide->setEasingCurve(QEasingCurve::OutCubic);
    m_slide->setStartValue(offset);
    m_slide->setEndValue(QPoint());
    connect(m_slide, &QVariantAnimation::valueChanged, this, [=](const QVariant &left) {
        incoming->move(place + left.toPoint());
        outgoing->move(place + left.toPoint() - offset);
    });
    connect(m_slide, &QVariantAnimation::finished, this, &SlidingStackedWidget::finishSlide);
    m_slide->start();
}

void SlidingStackedWidget::resizeEvent(QResizeEvent *event)
{
    QStackedWidget::resizeEvent(event);
    // The pages' way no longer fits the new size; the layout puts both in place.
    finishSlide();
}

void SlidingStackedWidget::finishSlide()
{
    if (!m_slide)
        return;
    m_slide->disconnect(this);
    m_slide->stop();
    m_slide->deleteLater();
    m_slide = nullptr;
    QWidget *outgoing = currentWidget();
    setCurrentIndex(m_target);
    currentWidget()->setGeometry(contentsRect());
    outgoing->setGeometry(contentsRect());
    emit animationFinished();
}
