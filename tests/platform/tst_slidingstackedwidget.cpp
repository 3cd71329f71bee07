#include "platform/slidingstackedwidget.h"
#include "tests/support/testing.h"

class TestSlidingStackedWidget : public QObject
{
    Q_OBJECT
private slots:
    void init()
    {
        m_stack = std::make_unique<SlidingStackedWidget>();
        for (int i = 0; i < 3; ++i)
            m_stack->addWidget(new QLabel(QString::number(i), m_stack.get()));
        m_stack->resize(320, 240);
        m_stack->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_stack.get()));
        m_finished = std::make_unique<QSignalSpy>(m_stack.get(), &SlidingStackedWidget::animationFinished);
    }

    void bothPagesMoveUntilTheSlideEnds()
    {
        // Codes of directions, and where the page comes from.
        const std::pair<int, QPoint> rows[] = {{0, {-320, 0}}, {1, {320, 0}},  {2, {0, -240}},
                                               {3, {0, 240}},  {4, {-320, 0}}, {-1, {-320, 0}}};
        for (const auto &[direction, side] : rows) {
            const QWidget *outgoing = m_stack->currentWidget();
            const int page = (m_stack->currentIndex() + 1) % 3;
            m_finished->clear();
            m_stack->slideInIdx(page, direction);
            const QWidget *incoming = m_stack->widget(page);
            QCOMPARE(incoming->geometry(), QRect(side, QSize(320, 240)));
            auto *slide = m_stack->findChildren<QVariantAnimation *>().constLast();
            QCOMPARE(slide->duration(), 300);
            slide->setCurrentTime(150);
            QCOMPARE(incoming->pos(), side / 8); // it is slowest at its end
            QCOMPARE(outgoing->pos(), incoming->pos() - side);
            QVERIFY(incoming->isVisible() && outgoing->isVisible());
            QCOMPARE(m_finished->count(), 0);
            QVERIFY(m_finished->wait());
            QCOMPARE(outgoing->geometry(), m_stack->contentsRect());
            verifyInPlace(page);
        }
    }

    void slidesWithoutAMoveAndOldOnesEndAtOnce()
    {
        for (const int index : {0, 7, -1})
            m_stack->slideInIdx(index);
        QCOMPARE(m_finished->count(), 3);
        verifyInPlace(0);

        m_stack->slideInIdx(1);
        m_stack->slideInIdx(2);
        QCOMPARE(m_finished->count(), 4);
        QCOMPARE(m_stack->currentIndex(), 1);
        m_stack->resize(500, 400);
        QCOMPARE(m_finished->count(), 5);
        verifyInPlace(2);

        m_stack->hide();
        m_stack->slideInIdx(0);
        QCOMPARE(m_finished->count(), 6);
        m_stack->show();
        verifyInPlace(0);
    }

private:
    void verifyInPlace(int index)
    {
        QCOMPARE(m_stack->currentIndex(), index);
        for (int i = 0; i < m_stack->count(); ++i)
            QCOMPARE(m_stack->widget(i)->isVisible(), i == index);
        QCOMPARE(m_stack->currentWidget()->geometry(), m_stack->contentsRect());
    }

    std::unique_ptr<SlidingStackedWidget> m_stack;
    std::unique_ptr<QSignalSpy> m_finished;
};

QTEST_MAIN(TestSlidingStackedWidget)
#include "tst_slidingstackedwidget.moc"
