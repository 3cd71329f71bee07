#include "tests/app/dialogtest.h"

#include "app/themefilewatcher.h"
#include "pages/effects/effectpage.h"
#include "tests/support/modaldriver.h"
#include "tests/support/wmlistener.h"

#include <QX11Info>

/// The window: its size, its keys, and how it behaves around the pages.
class TestConfigDialog : public DialogTest
{
    Q_OBJECT

    const QString ownSettings = ".config/qaz/qaz-admin-theme.conf"_s;

private slots:
    void fontsDecideTheDefaultSize()
    {
        const auto restore = qScopeGuard([font = qApp->font()] { QApplication::setFont(font); });
        for (const int points : {3, 9, 14}) {
            QApplication::setFont(QFont("Sans"_s, points));
            m_dialog.reset();
            QFile::remove(m_home->path(ownSettings));
            open();
            QVERIFY(m_list->font().bold());
            const QFontMetrics metrics = m_list->fontMetrics();
            const int widest = qMax(64, metrics.horizontalAdvance("Screensaver"_s));
            QCOMPARE(m_list->gridSize(), QSize(widest + widest / 4, metrics.height() + 74));
            QCOMPARE(m_list->width(), m_list->gridSize().width() + 20);
            onEachPage([area = find<QScrollArea>("pageArea")](const QWidget *) {
                QTRY_COMPARE(area->verticalScrollBar()->maximum(), 0);
                QCOMPARE(area->horizontalScrollBar()->maximum(), 0);
            });
        }
    }

    void sizesAreKept()
    {
        const QSize room = qApp->primaryScreen()->availableSize() - QSize(10, 40);
        const std::pair<const char *, QSize> rows[] = {{"", {}}, // empty: the default
                                                       {"width=1000\nheight=900\n", {1000, 900}},
                                                       {"width=wide\nheight=-3\n", {}},
                                                       {"width=32768\nheight=0\n", {}},
                                                       {"width=32767\nheight=3000\n", {32767, 3000}}};
        for (const auto &[stored, size] : rows) {
            m_home->write(ownSettings, QByteArray("[General]\n") + stored);
            open();
            const QSize kept = size.isEmpty() ? QSize(800, (m_list->fontMetrics().height() + 74) * 7) : size;
            QCOMPARE(m_dialog->size(), kept.boundedTo(room));
            m_dialog.reset();
            const QSettings own(m_home->path(ownSettings), QSettings::IniFormat);
            QCOMPARE(QSize(own.value("width"_s).toInt(), own.value("height"_s).toInt()), kept);
        }
        open();
        m_dialog->resize(700, 400); // at will
        m_dialog.reset();
        QVERIFY(m_home->read(ownSettings).startsWith("[General]\nwidth=700\nheight=400\n"));
    }

    void keysSwitchPagesFromAnywhere()
    {
        open();
        QVector<int> rows;
        for (const char *key : {"Alt+4", "Ctrl+PgDown", "Ctrl+PgDown", "Ctrl+PgDown", "Alt+1", "Ctrl+PgUp",
                                "Alt+6", "Ctrl+PgUp", "Alt+2", "Alt+3", "Alt+5", "Alt+7"}) {
            // From whatever control has the focus there.
            m_stack->currentWidget()->setFocus();
            QTest::keyClick(m_dialog->focusWidget(), Qt::Key_Tab);
            QTest::keySequence(m_dialog->focusWidget(), QKeySequence(QLatin1String(key)));
            rows.append(m_list->currentRow());
        }
        QCOMPARE(rows, (QVector<int>{3, 4, 5, 5, 0, 0, 5, 4, 1, 2, 4, 4}));
        verifyEdited(false);
    }

    void onlyWhoMeansAControlChangesIt()
    {
        open("ScreenSaverDelay=600\n");
        onEachPage([this](const QWidget *page) {
            for (auto *box : page->findChildren<QSpinBox *>()) {
                box->setEnabled(true);
                box->setFocus();
                QTest::keyClick(box, Qt::Key_Return);
                QTest::keyClick(box, Qt::Key_Enter, Qt::KeypadModifier);
                QVERIFY2(m_dialog->isVisible() && !m_dialog->isWindowModified(),
                         qPrintable(box->objectName()));
            }
        });
        const auto turnWheel = [](QWidget *widget) {
            QWheelEvent event({5, 5}, widget->mapToGlobal({5, 5}), {}, {0, -120}, {}, {}, {}, false);
            QCoreApplication::sendEvent(widget, &event);
        };
        showPage("Screensaver");
        m_list->setFocus();
        turnWheel(delay());
        turnWheel(find<QComboBox>("wallpaperPositionCombo"));
        verifyEdited(false);
        delay()->setFocus();
        turnWheel(delay());
        QCOMPARE(delay()->value(), 9);
        delay()->setKeyboardTracking(false);
        delay()->selectAll();
        QTest::keyClicks(delay(), "8"_s);
        QTest::keyClick(delay(), Qt::Key_Return); // presses OK
        QVERIFY(!m_dialog->isVisible());
        QVERIFY(m_home->read("t"_s).contains("ScreenSaverDelay=480\n"));
    }

    void itFollowsTheFileUnlessThereAreEdits()
    {
        open("TaskbarShowDelay=100\nUseComposite=true\n");
        WmListener listener;
        for (int row = m_list->count(); row-- > 0;)
            m_list->setCurrentRow(row);
        const auto *taskbarDelay = find<QSpinBox>("taskbarShowDelaySpinBox");
        // In place, then by a new file, then none at all: by other programs, which may set what a page corrects.
        const QByteArray written
            = "TaskbarShowDelay=200\nWallPaper=#123456\nUseComposite=true\nTitleFont=Sans-8:bold\n"
              "LockerTTYLock=false\nEnableSound=true\nMenuColor=red\n";
        m_home->write("t"_s, written);
        QTRY_COMPARE(taskbarDelay->value(), 200);
        QCOMPARE(find<QLineEdit>("wallpaperLineEdit")->text(), "#123456"_s);
        verifyEdited(false);
        QCOMPARE(m_home->read("t"_s), written);
        m_home->write("new"_s, "TaskbarShowDelay=300\n");
        QCOMPARE(std::rename(qPrintable(m_home->path("new"_s)), qPrintable(m_home->path("t"_s))), 0);
        QTRY_COMPARE(taskbarDelay->value(), 300);
        m_home->write("t"_s, "TaskbarShowDelay=350\n");
        QTRY_COMPARE(taskbarDelay->value(), 350);
        QSignalSpy others(find<ThemeFileWatcher>(), &ThemeFileWatcher::changedByOthers);
        QVERIFY(QFile::remove(m_home->path("t"_s)) && m_home->makeDirectory("t"_s)); // which holds no values
        QVERIFY(others.wait());
        QCOMPARE(taskbarDelay->value(), 350);
        QVERIFY(QDir().rmdir(m_home->path("t"_s)));
        QTRY_COMPARE(taskbarDelay->value(), 500);
        QCOMPARE(listener.take(), QStringList());

        delay()->setValue(7);
        m_home->write("t"_s, "TaskbarShowDelay=400\nOther=1\n");
        QVERIFY(others.wait());
        QCOMPARE(taskbarDelay->value(), 500);
        button(QDialogButtonBox::Apply)->click();
        QVERIFY(m_home->read("t"_s).contains("ScreenSaverDelay=420\n"));
        QVERIFY(m_home->read("t"_s).startsWith("TaskbarShowDelay=500\nOther=1\n"));
    }

    void othersChangesAreToldOnce()
    {
        const QString path = m_home->write("t"_s, "before");
        ThemeFileWatcher watcher(path), witness(path);
        QSignalSpy told(&watcher, &ThemeFileWatcher::changedByOthers);
        QSignalSpy seen(&witness, &ThemeFileWatcher::changedByOthers);
        const auto write = [this] { m_home->write("t"_s, m_home->read("t"_s) + '.'); };
        QVector<int> counts;
        for (const char *writers : {"own", "other", "other own", "own"}) {
            for (const QString &writer : QString(QLatin1String(writers)).split(u' '))
                writer == "own"_s ? watcher.runOwnChange(write) : write();
            for (int i = 0; i < 3; ++i) { // longer than the other one takes
                QVERIFY(seen.wait());
                witness.lookAgain();
            }
            counts.append(told.count());
        }
        QCOMPARE(counts, (QVector<int>{0, 1, 2, 3}));
    }

    void fastClicksSlideToTheLastPage()
    {
        const ScopedEnvironment tablet("QAZ_TABLET_MODE", "1");
        open();
        QSignalSpy finished(m_stack, &SlidingStackedWidget::animationFinished);
        for (const int row : {3, 4, 5, 3, 0, 4})
            QTest::mouseClick(m_list->viewport(), Qt::LeftButton, {},
                              m_list->visualItemRect(m_list->item(row)).center());
        QTRY_COMPARE(finished.count(), 6);
        QCOMPARE(QPoint(m_list->currentRow(), m_stack->currentIndex()), QPoint(4, 4));
        QVERIFY(find<EffectPage>()->isVisible());
    }

    void theWindowCanBeSmall()
    {
        open();
        m_dialog->resize(790, 440);
        QTRY_COMPARE(m_dialog->size(), QSize(790, 440));
        for (const QAbstractButton *each : m_dialog->buttonBox()->buttons())
            QVERIFY(m_dialog->rect().contains(QRect(each->mapTo(m_dialog.get(), QPoint()), each->size())));
        onEachPage([this](const QWidget *page) {
            QCOMPARE(m_stack->minimumSizeHint(), page->minimumSizeHint());
            const auto *area = find<QScrollArea>("pageArea");
            QTRY_COMPARE(m_stack->height(),
                         qMax(area->viewport()->height(), page->minimumSizeHint().height()));
            QCOMPARE(area->horizontalScrollBar()->maximum(), 0);
        });
    }

    void aMessageBringsTheWindowUp()
    {
        open();
        m_dialog->showMinimized();
        QVERIFY(m_dialog->messageReceived("anything"_s) && !m_dialog->isMinimized());
        m_dialog->hide();
        QVERIFY(m_dialog->messageReceived(QString()) && m_dialog->isVisible());
        // Above the window, what it waits for.
        QWidget other;
        ModalDriver driver;
        driver.then([this, &other](QDialog *box) {
            other.setGeometry(m_dialog->geometry());
            other.show();
            QVERIFY(QTest::qWaitForWindowExposed(&other));
            QTRY_VERIFY(QX11Info::getTimestamp() > QX11Info::appTime());
            const auto lastEvent = QX11Info::appTime();
            m_dialog->messageReceived(QString());
            QVERIFY(QX11Info::appTime() > lastEvent);
            QTRY_VERIFY(box->isActiveWindow() && QApplication::topLevelAt(box->geometry().center()) == box);
            box->reject();
        });
        m_dialog->restoreSlot();
        QVERIFY(driver.isDone());
    }
};

QTEST_MAIN(TestConfigDialog)
#include "tst_configdialog.moc"
