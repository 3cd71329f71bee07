#pragma once

#include <QStackedWidget>

/// A stack of pages that can slide the next one in.
class SlidingStackedWidget : public QStackedWidget
{
    Q_OBJECT
public:
    enum Direction { LeftToRight = 0, RightToLeft = 1, TopToBottom = 2, BottomToTop = 3 };

    using QStackedWidget::QStackedWidget;

public slots:
    /// Slides the page at \a index in, moving in \a direction (see Direction; other codes slide as 0).
    /// A slide that still runs ends first. An index out of range, and the page in view, end at once.
    void slideInIdx(int index, int direction = LeftToRight);

signals:
    /// The page of the last slideInIdx() is in place; emitted for each call.
    void animationFinished();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void finishSlide();

    class QVariantAnimation *m_slide = nullptr;
    int m_target = -1;
};
