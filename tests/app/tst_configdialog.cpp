#include "app/configdialog.h"
#include "fonts/fontpage.h"
#include "pages/effects/effectpage.h"
#include "pages/screensaver/screensaverpage.h"
#include "pages/sounds/soundpage.h"
#include "pages/theme/themepage.h"
#include "pages/wallpaper/wallpaperpage.h"
#include "platform/qazinit.h"
#include "platform/slidingstackedwidget.h"
#include "resources/registerresources.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/literals.h"
#include "tests/support/modaldriver.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QWheelEvent>
#include <QtTest>

#include <malloc.h>

namespace {

/// Bytes that this process has allocated and not freed; sanitizers, which look for leaks themselves, tell none.
qint64 bytesInUse()
{
    const struct mallinfo2 info = ::mallinfo2();
    return qint64(info.uordblks) + qint64(info.hblkhd);
}

/// Turns the wheel over \a widget by one step.
void turnWheel(QWidget *widget)
{
    QWheelEvent event(QPointF(5, 5), widget->mapToGlobal(QPoint(5, 5)), QPoint(), QPoint(0, -120),
                      Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
    QCoreApplication::sendEvent(widget, &event);
}

} // namespace

class TestConfigDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const TemporaryHome home;
        registerResources();
        qazInit("1", "title");
    }

    void init() { m_home = std::make_unique<TemporaryHome>(); }

    void cleanup()
    {
        m_dialog.reset();
        m_home.reset();
    }

    void itOpensCleanAndLoadsPagesWhenFirstShown()
    {
        open();
        QStringList rows;
        QStringList pages;
        for (int row = 0; row < m_list->count(); ++row) {
            rows.append(m_list->item(row)->text());
            pages.append(QLatin1String(m_stack->widget(row)->metaObject()->className()));
            QCOMPARE(m_list->item(row)->flags(), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
            QVERIFY2(!m_list->item(row)->icon().isNull(), "the fallback icon theme has every icon");
        }
        QCOMPARE(rows.join(u' '), "Wallpaper Theme Fonts Screensaver Effects Sounds"_s);
        QCOMPARE(pages.join(u' '), "WallpaperPage ThemePage FontPage ScreensaverPage EffectPage SoundPage"_s);
        QCOMPARE(m_list->currentRow(), 0);
        QCOMPARE(m_stack->currentIndex(), 0);
        QCOMPARE(m_list->width(), m_list->gridSize().width() + 20);
        QCOMPARE(m_dialog->windowTitle(), "Qaz Theme Editor - t[*]"_s);
        verifyEdited(false);
        QCOMPARE(m_dialog->requestToSave(true), int(QMessageBox::No));

        const auto loaded = [this] {
            return QList<bool>{find<WallpaperPage>()->loaded, find<ThemePage>()->loaded,
                               find<FontPage>()->loaded,      find<ScreensaverPage>()->loaded,
                               find<EffectPage>()->loaded,    find<SoundPage>()->loaded};
        };
        QList<bool> expected{true, false, false, false, false, false};
        QCOMPARE(loaded(), expected);
        for (int row = 5; row > 0; --row) {
            m_list->setCurrentRow(row);
            expected[row] = true;
            QCOMPARE(loaded(), expected);
            QCOMPARE(m_stack->currentIndex(), row);
            QVERIFY2(!m_dialog->isWindowModified(), qPrintable(rows.at(row)));
        }
        QVERIFY2(!QGuiApplication::overrideCursor(), "every page gives the cursor back");
    }

    void sizesAreKept()
    {
        const std::pair<const char *, QSize> rows[] = {
            {"", {}},
            {"width=1000\nheight=900\n", {1000, 900}},
            {"width=wide\nheight=-3\n", {}},
            {"width=99999999\nheight=0\n", {}}}; // empty: the default
        for (const auto &[stored, size] : rows) {
            m_home->write(".config/qaz/qaz-admin-theme.conf"_s, QByteArray("[General]\n") + stored);
            QSettings().sync();
            open();
            const QSize usual(qMax(800, m_dialog->minimumSizeHint().width()),
                              (m_list->fontMetrics().height() + 74) * 7);
            const QSize expected = size.isEmpty() ? usual : size;
            QCOMPARE(m_dialog->size(), expected);
            m_dialog.reset();
            QCOMPARE(QSettings().value("width"_s).toInt(), expected.width());
            QCOMPARE(QSettings().value("height"_s).toInt(), expected.height());
        }
    }

    void onlyVisitedPagesAreSavedInOrderAndOnce()
    {
        open("ScreenSaverDelay=600\nOpaqueMove=false\nEnableSound=TRUE\n");
        WmListener listener;
        editTheDelay(7);
        verifyEdited(true);
        showPage("Effects");
        showPage("Screensaver"); // which is not loaded again
        find<QCheckBox>("opaqueMoveCheckBox")->click();
        find<QComboBox>("wallpaperPositionCombo")->setCurrentIndex(1);
        button(QDialogButtonBox::Apply)->click();
        QStringList keys;
        for (const QString &command : listener.take())
            keys.append(command.section(u' ', 1, 1));
        QVERIFY2(keys.indexOf("WallPaperPos"_s) == 0, qPrintable(keys.join(u' ')));
        QVERIFY(keys.indexOf("OpaqueMove"_s) > 0);
        QCOMPARE(keys.last(), "ScreenSaverDelay"_s);
        QCOMPARE(delay()->value(), 7);
        const QByteArray saved = m_home->read("t"_s);
        QVERIFY2(saved.contains("\nEnableSound=TRUE\n") && !saved.contains("Color"), saved.constData());
        verifyEdited(false);

        const QString before = m_home->fingerprint();
        m_dialog->applySlot();
        QCOMPARE(listener.take(), QStringList());
        QCOMPARE(m_home->fingerprint(), before);
    }

    void unsavedEditsAreGuarded()
    {
        for (const auto answer : {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel}) {
            open("ScreenSaverDelay=600\n");
            editTheDelay(5);
            ModalDriver driver;
            if (answer == QMessageBox::Cancel)
                driver.then([](QDialog *box) { QTest::keyClick(box, Qt::Key_Escape); });
            else
                driver.thenAnswer(answer);
            QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
            QVERIFY(driver.isDone());
            QCOMPARE(driver.seen(), QStringList{"Save ?|Save changes?"_s});
            QCOMPARE(m_dialog->isVisible(), answer == QMessageBox::Cancel);
            QCOMPARE(m_home->read("t"_s), QByteArray(answer == QMessageBox::Yes ? "ScreenSaverDelay=300\n"
                                                                                : "ScreenSaverDelay=600\n"));
        }

        ModalDriver driver;
        driver.then([](QDialog *dialog) {
            auto *box = qobject_cast<QMessageBox *>(dialog);
            QVERIFY(box && box->buttons().size() == 2 && !box->button(QMessageBox::Cancel));
            box->button(QMessageBox::No)->click();
        });
        QCOMPARE(m_dialog->requestToSave(false), int(QMessageBox::No));
        QVERIFY(driver.isDone());
    }

    void returnPressesOkOnEveryPage()
    {
        open();
        for (int row = 0; row < m_list->count(); ++row) {
            m_list->setCurrentRow(row);
            m_dialog->changedSlot();
            const auto buttons = m_stack->currentWidget()->findChildren<QPushButton *>();
            for (QPushButton *pageButton : buttons) {
                if (!pageButton->isVisible() || !pageButton->isEnabled())
                    continue;
                pageButton->setFocus();
                QVERIFY2(pageButton->hasFocus() && !pageButton->isDefault(),
                         qPrintable(pageButton->objectName()));
                QVERIFY(button(QDialogButtonBox::Ok)->isDefault());
            }
        }
        editTheDelay(5);
        delay()->setFocus();
        QTest::keyClick(delay(), Qt::Key_Return);
        QVERIFY(!m_dialog->isVisible());
        QVERIFY(m_home->read("t"_s).contains("ScreenSaverDelay=300\n"));
    }

    void theWheelChangesNothingUnfocused()
    {
        open();
        int turned = 0;
        for (int row = 0; row < m_list->count(); ++row) {
            m_list->setCurrentRow(row);
            m_list->setFocus();
            for (auto *widget : m_stack->currentWidget()->findChildren<QWidget *>()) {
                const char *property = qobject_cast<QSpinBox *>(widget)    ? "value"
                                       : qobject_cast<QComboBox *>(widget) ? "currentIndex"
                                                                           : nullptr;
                if (!property)
                    continue;
                const QVariant before = widget->property(property);
                turnWheel(widget);
                QVERIFY2(widget->property(property) == before && !widget->hasFocus(),
                         qPrintable(widget->objectName()));
                ++turned;
            }
        }
        QVERIFY(turned > 20);
        verifyEdited(false);
        showPage("Screensaver");
        delay()->setFocus();
        turnWheel(delay());
        QCOMPARE(delay()->value(), 9);
    }

    void fastClicksSlideToTheLastPage()
    {
        const ScopedEnvironment tablet("QAZ_TABLET_MODE", "1");
        open();
        QSignalSpy finished(m_stack, &SlidingStackedWidget::animationFinished);
        const QList<int> rows{3, 4, 5, 3, 0, 4};
        for (const int row : rows)
            QTest::mouseClick(m_list->viewport(), Qt::LeftButton, {},
                              m_list->visualItemRect(m_list->item(row)).center());
        QTRY_COMPARE(finished.count(), rows.size());
        QCOMPARE(m_list->currentRow(), rows.last());
        QCOMPARE(m_stack->currentIndex(), rows.last());
        QVERIFY(find<EffectPage>()->isVisible());
    }

    void theWindowCanBeSmall()
    {
        open();
        for (int row = 0; row < m_list->count(); ++row)
            m_list->setCurrentRow(row);
        m_dialog->resize(1024, 560);
        QTRY_COMPARE(m_dialog->size(), QSize(1024, 560));
        for (const QAbstractButton *each : m_dialog->buttonBox()->buttons())
            QVERIFY(m_dialog->rect().contains(QRect(each->mapTo(m_dialog.get(), QPoint()), each->size())));
    }

    void aMessageBringsTheWindowUp()
    {
        open();
        m_dialog->showMinimized();
        QVERIFY(m_dialog->messageReceived("anything"_s));
        QVERIFY(!m_dialog->isMinimized());
        m_dialog->hide();
        QVERIFY(m_dialog->messageReceived(QString()));
        QVERIFY(m_dialog->isVisible());
    }

    void memoryStaysFlat()
    {
        FakePrograms programs;
        programs.add("xrdb"_s);
        open();
        const auto switchPage = [this](int) {
            m_list->setCurrentRow((m_list->currentRow() + 1) % m_list->count());
        };
        const auto apply = [this](int time) {
            delay()->setValue(time % 2 == 0 ? 20 : 30);
            button(QDialogButtonBox::Apply)->click();
        };
        const auto growth = [](int times, const auto &act) {
            qint64 before = 0;
            for (int i = -times / 10; i < times; ++i) {
                before = i == 0 ? bytesInUse() : before;
                act(i);
                QCoreApplication::processEvents();
            }
            return bytesInUse() - before;
        };
        // Caches grow a little; a leak of 100 bytes each time would show.
        QVERIFY(growth(1000, switchPage) < 100 * 1000);
        QVERIFY(growth(200, apply) < 100 * 200);
    }

private:
    /// Opens the window over the theme file "t" with \a content; a null array makes no file.
    void open(const QByteArray &content = {})
    {
        if (!content.isNull())
            m_home->write("t"_s, content);
        m_dialog.reset(); // of two windows, either may have the focus
        m_dialog = std::make_unique<ConfigDialog>(m_home->path("t"_s));
        m_list = find<QListWidget>("contentsWidget");
        m_stack = find<SlidingStackedWidget>();
        m_dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
        m_dialog->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    }
    void showPage(const char *name)
    {
        m_list->setCurrentItem(m_list->findItems(QLatin1String(name), Qt::MatchExactly).value(0));
    }
    void editTheDelay(int minutes)
    {
        showPage("Screensaver");
        delay()->setValue(minutes);
    }
    void verifyEdited(bool isEdited)
    {
        QCOMPARE(m_dialog->isWindowModified(), isEdited);
        QCOMPARE(button(QDialogButtonBox::Ok)->isEnabled(), isEdited);
        QCOMPARE(button(QDialogButtonBox::Apply)->isEnabled(), isEdited);
    }
    QPushButton *button(QDialogButtonBox::StandardButton which)
    {
        return m_dialog->buttonBox()->button(which);
    }
    template<typename Widget>
    Widget *find(const char *name = nullptr)
    {
        return m_dialog->findChild<Widget *>(QLatin1String(name));
    }
    QSpinBox *delay() { return find<QSpinBox>("minutesToStartSpinBox"); }

    std::unique_ptr<TemporaryHome> m_home;
    std::unique_ptr<ConfigDialog> m_dialog;
    QListWidget *m_list = nullptr;
    SlidingStackedWidget *m_stack = nullptr;
};

QTEST_MAIN(TestConfigDialog)
#include "tst_configdialog.moc"
