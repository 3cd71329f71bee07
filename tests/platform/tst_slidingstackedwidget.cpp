#include "platform/slidingstackedwidget.h"
#include "tests/support/testing.h"

class TestSlidingStackedWidget : public QObject
{
    Q_OBJECT
private slots:
    void bothPagesMoveUntilTheSlideEnds()
    {
        SlidingStackedWidget stack;
        for (int i = 0; i < 3; ++i)
            stack.addWidget(new QLabel(QString::number(i), &stack));
        stack.resize(320, 240);
        stack.show();
        QVERIFY(QTest::qWaitForWindowExposed(&stack));
        QSignalSpy finished(&stack, &SlidingStackedWidget::animationFinished);
        // The slides that ended since the last look, the current page, and all that are in view.
        const auto look = [&] {
            QString text = "%1 %2:"_s.arg(finished.count()).arg(stack.currentIndex());
            finished.clear();
            for (int i = 0; i < 3; ++i)
                text += stack.widget(i)->isVisible() ? QString::number(i) : QString();
            return stack.currentWidget()->geometry() == stack.contentsRect() ? text : text + " moved"_s;
        };
        // Codes of directions, and where the page comes from.
        const std::pair<int, QPoint> rows[] = {{0, {-320, 0}}, {1, {320, 0}},  {2, {0, -240}},
                                               {3, {0, 240}},  {4, {-320, 0}}, {-1, {-320, 0}}};
        for (const auto &[direction, side] : rows) {
            const QWidget *outgoing = stack.currentWidget();
            const int page = (stack.currentIndex() + 1) % 3;
            stack.slideInIdx(page, direction);
            const QWidget *incoming = stack.widget(page);
            QCOMPARE(incoming->geometry(), QRect(side, QSize(320, 240)));
            auto *slide = stack.findChildren<QVariantAnimation *>().constLast();
            QCOMPARE(slide->duration(), 300);
            slide->setCurrentTime(150);
            QCOMPARE(incoming->pos(), side / 8); // it is slowest at its end
            QCOMPARE(outgoing->pos(), incoming->pos() - side);
            QVERIFY(incoming->isVisible() && outgoing->isVisible() && finished.isEmpty());
            QVERIFY(finished.wait());
            QCOMPARE(outgoing->geometry(), stack.contentsRect());
            QCOMPARE(look(), "1 %1:%1"_s.arg(page));
        }

        for (const int index : {0, 7, -1}) // without a move
            stack.slideInIdx(index);
        QCOMPARE(look(), "3 0:0"_s);
        stack.slideInIdx(1);
        stack.slideInIdx(2);
        QCOMPARE(look(), "1 1:12"_s);
        stack.resize(500, 400);
        QCOMPARE(look(), "1 2:2"_s);
        stack.hide();
        stack.slideInIdx(0);
        stack.show();
        QCOMPARE(look(), "1 0:0"_s);
    }
};

QTEST_MAIN(TestSlidingStackedWidget)
#include "tst_slidingstackedwidget.moc"
