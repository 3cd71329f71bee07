#include "platform/slidingstackedwidget.h"

#include <QLabel>
#include <QSignalSpy>
#include <QtTest>

class TestSlidingStackedWidget : public QObject
{
    Q_OBJECT

private slots:
    void init();
    void everySlideEndsOnItsPage_data();
    void everySlideEndsOnItsPage();
    void callsWithoutAMoveEndAtOnce();
    void aNewSlideEndsTheOldOne();
    void resizingPutsThePagesInPlace();

private:
    void verifyInPlace(int index);

    std::unique_ptr<SlidingStackedWidget> m_stack;
};

void TestSlidingStackedWidget::init()
{
    m_stack = std::make_unique<SlidingStackedWidget>();
    for (int i = 0; i < 3; ++i)
        m_stack->addWidget(new QLabel(QString::number(i), m_stack.get()));
    m_stack->resize(300, 200);
    m_stack->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_stack.get()));
}

void TestSlidingStackedWidget::verifyInPlace(int index)
{
    QCOMPARE(m_stack->currentIndex(), index);
    for (int i = 0; i < m_stack->count(); ++i)
        QCOMPARE(m_stack->widget(i)->isVisible(), i == index);
    QCOMPARE(m_stack->currentWidget()->geometry(), m_stack->contentsRect());
}

void TestSlidingStackedWidget::everySlideEndsOnItsPage_data()
{
    QTest::addColumn<int>("direction");
    QTest::addColumn<QPoint>("side"); // where the page comes from
    QTest::newRow("left to right") << 0 << QPoint(-1, 0);
    QTest::newRow("right to left") << 1 << QPoint(1, 0);
    QTest::newRow("top to bottom") << 2 << QPoint(0, -1);
    QTest::newRow("bottom to top") << 3 << QPoint(0, 1);
}

void TestSlidingStackedWidget::everySlideEndsOnItsPage()
{
    QFETCH(int, direction);
    QFETCH(QPoint, side);
    QSignalSpy finished(m_stack.get(), &SlidingStackedWidget::animationFinished);
    m_stack->slideInIdx(1, direction);
    QCOMPARE(finished.count(), 0);
    const QPoint start = m_stack->widget(1)->pos();
    QCOMPARE(start, QPoint(side.x() * m_stack->width(), side.y() * m_stack->height()));
    QTRY_COMPARE(finished.count(), 1);
    verifyInPlace(1);
}

void TestSlidingStackedWidget::callsWithoutAMoveEndAtOnce()
{
    QSignalSpy finished(m_stack.get(), &SlidingStackedWidget::animationFinished);
    m_stack->slideInIdx(0);
    m_stack->slideInIdx(7);
    m_stack->slideInIdx(-1);
    QCOMPARE(finished.count(), 3);
    verifyInPlace(0);
}

void TestSlidingStackedWidget::aNewSlideEndsTheOldOne()
{
    QSignalSpy finished(m_stack.get(), &SlidingStackedWidget::animationFinished);
    m_stack->slideInIdx(1);
    m_stack->slideInIdx(2);
    m_stack->slideInIdx(0);
    QCOMPARE(finished.count(), 2);
    QTRY_COMPARE(finished.count(), 3);
    verifyInPlace(0);
}

void TestSlidingStackedWidget::resizingPutsThePagesInPlace()
{
    QSignalSpy finished(m_stack.get(), &SlidingStackedWidget::animationFinished);
    m_stack->slideInIdx(2, SlidingStackedWidget::BottomToTop);
    m_stack->resize(500, 400);
    QTRY_COMPARE(finished.count(), 1);
    verifyInPlace(2);
}

QTEST_MAIN(TestSlidingStackedWidget)
#include "tst_slidingstackedwidget.moc"
