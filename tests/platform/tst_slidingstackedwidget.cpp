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
        m_stack->resize(300, 200);
        m_stack->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_stack.get()));
        m_finished = std::make_unique<QSignalSpy>(m_stack.get(), &SlidingStackedWidget::animationFinished);
    }

    void everySlideEndsOnItsPage()
    {
        // In the order of the directions' codes: where the page comes from.
        const QPoint sides[] = {{-300, 0}, {300, 0}, {0, -200}, {0, 200}};
        for (int direction = 0; direction < 4; ++direction) {
            const int page = 1 + direction % 2;
            m_stack->slideInIdx(page, direction);
            QCOMPARE(m_finished->count(), direction);
            QCOMPARE(m_stack->widget(page)->pos(), sides[direction]);
            QTRY_COMPARE(m_finished->count(), direction + 1);
            verifyInPlace(page);
        }
    }

    void slidesWithoutAMoveAndOldOnesEndAtOnce()
    {
        for (const int index : {0, 7, -1})
            m_stack->slideInIdx(index);
        QCOMPARE(m_finished->count(), 3);
        verifyInPlace(0);

        for (const int index : {1, 2, 0})
            m_stack->slideInIdx(index);
        QCOMPARE(m_finished->count(), 5);
        QTRY_COMPARE(m_finished->count(), 6);
        verifyInPlace(0);

        m_stack->slideInIdx(2, SlidingStackedWidget::BottomToTop);
        m_stack->resize(500, 400);
        QTRY_COMPARE(m_finished->count(), 7);
        verifyInPlace(2);
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
