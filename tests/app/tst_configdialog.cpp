#include "app/configdialog.h"
#include "fonts/fontpage.h"
#include "pages/effects/effectpage.h"
#include "pages/screensaver/screensaverpage.h"
#include "pages/sounds/soundpage.h"
#include "pages/theme/themepage.h"
#include "pages/wallpaper/wallpaperpage.h"
#include "platform/qazhelp.h"
#include "platform/qazinit.h"
#include "platform/slidingstackedwidget.h"
#include "resources/registerresources.h"
#include "tests/support/modaldriver.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"

#include <QCheckBox>
#include <QComboBox>
#include <QDialogButtonBox>
#include <QListWidget>
#include <QPushButton>
#include <QSettings>
#include <QSignalSpy>
#include <QSpinBox>
#include <QWheelEvent>
#include <QtTest>

class TestConfigDialog : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void init();
    void cleanup();
    void itOpensCleanOnTheFirstPage();
    void sizesAreKept_data();
    void sizesAreKept();
    void pagesAreLoadedOnceWhenFirstShown();
    void editsSurviveSwitchingPages();
    void onlyVisitedPagesAreSavedInOrder();
    void applyingTwiceWritesAndSendsNothing();
    void unsavedEditsAreGuarded_data();
    void unsavedEditsAreGuarded();
    void returnPressesOkOnEveryPage();
    void theWheelChangesNothingUnfocused();
    void fastClicksSlideToTheLastPage();
    void theWindowCanBeSmall();
    void whateverTheFileIsNothingBreaks_data();
    void whateverTheFileIsNothingBreaks();
    void helpOpensAtThePageInView();
    void aMessageBringsTheWindowUp();

private:
    void open(const QString &file);
    void showPage(const QString &name);
    QPushButton *button(QDialogButtonBox::StandardButton which)
    {
        return m_dialog->buttonBox()->button(which);
    }
    QListWidget *list() { return m_dialog->findChild<QListWidget *>(QStringLiteral("contentsWidget")); }
    SlidingStackedWidget *stack() { return m_dialog->findChild<SlidingStackedWidget *>(); }
    template<typename Page>
    Page *page()
    {
        return m_dialog->findChild<Page *>();
    }
    QSpinBox *delay() { return m_dialog->findChild<QSpinBox *>(QStringLiteral("minutesToStartSpinBox")); }

    std::unique_ptr<TemporaryHome> m_home;
    std::unique_ptr<ConfigDialog> m_dialog;
};

void TestConfigDialog::initTestCase()
{
    const TemporaryHome home;
    registerResources();
    qazInit("1", "title");
}

void TestConfigDialog::init()
{
    m_home = std::make_unique<TemporaryHome>();
}

void TestConfigDialog::cleanup()
{
    m_dialog.reset();
    m_home.reset();
}

void TestConfigDialog::open(const QString &file)
{
    m_dialog = std::make_unique<ConfigDialog>(file);
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
    m_dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

void TestConfigDialog::showPage(const QString &name)
{
    const QList<QListWidgetItem *> items = list()->findItems(name, Qt::MatchExactly);
    QCOMPARE(items.size(), 1);
    list()->setCurrentItem(items.first());
}

void TestConfigDialog::itOpensCleanOnTheFirstPage()
{
    open(m_home->path(QStringLiteral("none.themerc")));
    QStringList rows;
    for (int row = 0; row < list()->count(); ++row) {
        rows.append(list()->item(row)->text());
        QCOMPARE(list()->item(row)->flags(), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
        QVERIFY2(!list()->item(row)->icon().isNull(), "the fallback icon theme has every icon");
    }
    QCOMPARE(rows.join(QLatin1Char(' ')), QStringLiteral("Wallpaper Theme Fonts Screensaver Effects Sounds"));
    const QWidgetList pages = {page<WallpaperPage>(),   page<ThemePage>(),  page<FontPage>(),
                               page<ScreensaverPage>(), page<EffectPage>(), page<SoundPage>()};
    for (int index = 0; index < pages.size(); ++index)
        QCOMPARE(stack()->widget(index), pages.at(index));
    QCOMPARE(list()->currentRow(), 0);
    QCOMPARE(stack()->currentIndex(), 0);
    QCOMPARE(list()->width(), list()->gridSize().width() + 20);
    QCOMPARE(m_dialog->windowTitle(), QStringLiteral("Qaz Theme Editor - none.themerc[*]"));
    QVERIFY(!m_dialog->isWindowModified());
    QVERIFY(!button(QDialogButtonBox::Ok)->isEnabled());
    QVERIFY(button(QDialogButtonBox::Ok)->isDefault());
    QVERIFY(!button(QDialogButtonBox::Apply)->isEnabled());
    QVERIFY(button(QDialogButtonBox::Close)->isEnabled());
    QVERIFY(button(QDialogButtonBox::Help)->isEnabled());
    QCOMPARE(m_dialog->requestToSave(true), int(QMessageBox::No));
}

void TestConfigDialog::sizesAreKept_data()
{
    QTest::addColumn<QByteArray>("stored");
    QTest::addColumn<QSize>("size"); // invalid: the default
    QTest::newRow("nothing stored") << QByteArray() << QSize();
    QTest::newRow("stored") << QByteArray("[General]\nwidth=1000\nheight=900\n") << QSize(1000, 900);
    QTest::newRow("garbage") << QByteArray("[General]\nwidth=wide\nheight=-3\n") << QSize();
    QTest::newRow("beyond X") << QByteArray("[General]\nwidth=99999999\nheight=0\n") << QSize();
}

void TestConfigDialog::sizesAreKept()
{
    QFETCH(QByteArray, stored);
    QFETCH(QSize, size);
    m_home->write(QStringLiteral(".config/qaz/qaz-admin-theme.conf"), stored);
    open(m_home->path(QStringLiteral("t")));
    const int row = QFontMetrics(list()->font()).height() + 74;
    const QSize expected = size.isValid() ? size
                                          : QSize(qMax(800, m_dialog->minimumSizeHint().width()), row * 7);
    QCOMPARE(m_dialog->size(), expected);
    m_dialog.reset();
    const QSettings settings;
    QCOMPARE(settings.value(QStringLiteral("width")).toInt(), expected.width());
    QCOMPARE(settings.value(QStringLiteral("height")).toInt(), expected.height());
}

void TestConfigDialog::pagesAreLoadedOnceWhenFirstShown()
{
    open(m_home->path(QStringLiteral("t")));
    const auto loaded = [this] {
        return QList<bool>{page<WallpaperPage>()->loaded, page<ThemePage>()->loaded,
                           page<FontPage>()->loaded,      page<ScreensaverPage>()->loaded,
                           page<EffectPage>()->loaded,    page<SoundPage>()->loaded};
    };
    QList<bool> expected{true, false, false, false, false, false};
    QCOMPARE(loaded(), expected);
    for (int row = 5; row > 0; --row) {
        list()->setCurrentRow(row);
        expected[row] = true;
        QCOMPARE(loaded(), expected);
        QCOMPARE(stack()->currentIndex(), row);
        QVERIFY2(!m_dialog->isWindowModified(), qPrintable(list()->currentItem()->text()));
    }
    QVERIFY2(!QGuiApplication::overrideCursor(), "every page gives the cursor back");
}

void TestConfigDialog::editsSurviveSwitchingPages()
{
    open(m_home->write(QStringLiteral("t"), "ScreenSaverDelay=600\n"));
    showPage(QStringLiteral("Screensaver"));
    delay()->setValue(7);
    m_home->write(QStringLiteral("t"), "ScreenSaverDelay=900\n");
    showPage(QStringLiteral("Wallpaper"));
    showPage(QStringLiteral("Screensaver"));
    QCOMPARE(delay()->value(), 7);
    QVERIFY(m_dialog->isWindowModified());
    QVERIFY(button(QDialogButtonBox::Ok)->isEnabled());
    QVERIFY(button(QDialogButtonBox::Apply)->isEnabled());
}

void TestConfigDialog::onlyVisitedPagesAreSavedInOrder()
{
    open(m_home->write(QStringLiteral("t"), "ScreenSaverDelay=90\nOpaqueMove=false\nEnableSound=TRUE\n"));
    WmListener listener;
    showPage(QStringLiteral("Screensaver"));
    showPage(QStringLiteral("Effects"));
    m_dialog->findChild<QCheckBox *>(QStringLiteral("opaqueMoveCheckBox"))->click();
    m_dialog->findChild<QComboBox *>(QStringLiteral("wallpaperPositionCombo"))->setCurrentIndex(1);
    button(QDialogButtonBox::Apply)->click();
    QStringList keys;
    for (const QString &command : listener.take())
        keys.append(command.section(QLatin1Char(' '), 1, 1));
    QVERIFY2(keys.indexOf(QStringLiteral("WallPaperPos")) == 0, qPrintable(keys.join(QLatin1Char(' '))));
    QVERIFY(keys.indexOf(QStringLiteral("OpaqueMove")) > 0);
    QCOMPARE(keys.last(), QStringLiteral("ScreenSaverDelay"));
    const QByteArray saved = m_home->read(QStringLiteral("t"));
    QVERIFY2(saved.contains("\nEnableSound=TRUE\n") && !saved.contains("Color"), saved.constData());
    QVERIFY(!m_dialog->isWindowModified());
    QVERIFY(!button(QDialogButtonBox::Apply)->isEnabled());
}

void TestConfigDialog::applyingTwiceWritesAndSendsNothing()
{
    open(m_home->path(QStringLiteral("t")));
    WmListener listener;
    showPage(QStringLiteral("Screensaver"));
    delay()->setValue(5);
    m_dialog->applySlot();
    QCOMPARE(listener.take(), QStringList{QStringLiteral("QAZWM_UPDATE_VAL ScreenSaverDelay 300")});
    const QString before = m_home->fingerprint();
    m_dialog->applySlot();
    QCOMPARE(listener.take(), QStringList());
    QCOMPARE(m_home->fingerprint(), before);
}

void TestConfigDialog::unsavedEditsAreGuarded_data()
{
    QTest::addColumn<int>("answer");
    QTest::addColumn<bool>("closes");
    QTest::addColumn<QByteArray>("saved");
    QTest::newRow("Yes") << int(QMessageBox::Yes) << true << QByteArray("ScreenSaverDelay=300\n");
    QTest::newRow("No") << int(QMessageBox::No) << true << QByteArray("ScreenSaverDelay=600\n");
    QTest::newRow("Cancel") << int(QMessageBox::Cancel) << false << QByteArray("ScreenSaverDelay=600\n");
}

void TestConfigDialog::unsavedEditsAreGuarded()
{
    QFETCH(int, answer);
    QFETCH(bool, closes);
    QFETCH(QByteArray, saved);
    open(m_home->write(QStringLiteral("t"), "ScreenSaverDelay=600\n"));
    showPage(QStringLiteral("Screensaver"));
    delay()->setValue(5);
    ModalDriver driver;
    driver.thenAnswer(QMessageBox::StandardButton(answer));
    QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
    QVERIFY(driver.isDone());
    QCOMPARE(driver.seen(), QStringList{QStringLiteral("Save ?|Save changes?")});
    QCOMPARE(m_dialog->isVisible(), !closes);
    QCOMPARE(m_home->read(QStringLiteral("t")), saved);

    m_dialog->changedSlot();
    driver.then([](QDialog *dialog) {
        auto *box = qobject_cast<QMessageBox *>(dialog);
        QVERIFY(box && box->buttons().size() == 2 && !box->button(QMessageBox::Cancel));
        box->button(QMessageBox::No)->click();
    });
    QCOMPARE(m_dialog->requestToSave(false), int(QMessageBox::No));
    QVERIFY(driver.isDone());
}

void TestConfigDialog::returnPressesOkOnEveryPage()
{
    open(m_home->path(QStringLiteral("t")));
    for (int row = 0; row < list()->count(); ++row) {
        list()->setCurrentRow(row);
        m_dialog->changedSlot();
        const QList<QPushButton *> buttons = stack()->currentWidget()->findChildren<QPushButton *>();
        for (QPushButton *pageButton : buttons) {
            if (!pageButton->isVisible() || !pageButton->isEnabled())
                continue;
            pageButton->setFocus();
            QVERIFY(pageButton->hasFocus());
            QVERIFY2(button(QDialogButtonBox::Ok)->isDefault() && !pageButton->isDefault(),
                     qPrintable(pageButton->objectName()));
        }
    }
    showPage(QStringLiteral("Screensaver"));
    delay()->setFocus();
    QSignalSpy accepted(m_dialog->buttonBox(), &QDialogButtonBox::accepted);
    QTest::keyClick(delay(), Qt::Key_Return);
    QCOMPARE(accepted.count(), 1);
    QVERIFY(!m_dialog->isVisible());
}

void TestConfigDialog::theWheelChangesNothingUnfocused()
{
    open(m_home->path(QStringLiteral("t")));
    const auto turn = [](QWidget *widget) {
        QWheelEvent event(QPointF(5, 5), widget->mapToGlobal(QPoint(5, 5)), QPoint(), QPoint(0, -120),
                          Qt::NoButton, Qt::NoModifier, Qt::NoScrollPhase, false);
        QCoreApplication::sendEvent(widget, &event);
    };
    int turned = 0;
    for (int row = 0; row < list()->count(); ++row) {
        list()->setCurrentRow(row);
        list()->setFocus();
        for (auto *spinBox : stack()->currentWidget()->findChildren<QSpinBox *>()) {
            const int before = spinBox->value();
            turn(spinBox);
            QVERIFY2(spinBox->value() == before && !spinBox->hasFocus(), qPrintable(spinBox->objectName()));
            ++turned;
        }
        for (auto *comboBox : stack()->currentWidget()->findChildren<QComboBox *>()) {
            const int before = comboBox->currentIndex();
            turn(comboBox);
            QVERIFY2(comboBox->currentIndex() == before && !comboBox->hasFocus(),
                     qPrintable(comboBox->objectName()));
            ++turned;
        }
    }
    QVERIFY(turned > 20);
    QVERIFY(!m_dialog->isWindowModified());
    showPage(QStringLiteral("Screensaver"));
    delay()->setFocus();
    turn(delay());
    QCOMPARE(delay()->value(), 9);
}

void TestConfigDialog::fastClicksSlideToTheLastPage()
{
    const ScopedEnvironment tablet("QAZ_TABLET_MODE", "1");
    open(m_home->path(QStringLiteral("t")));
    QSignalSpy finished(stack(), &SlidingStackedWidget::animationFinished);
    const QList<int> rows{3, 4, 5, 3, 0, 4};
    for (const int row : rows)
        QTest::mouseClick(list()->viewport(), Qt::LeftButton, {},
                          list()->visualItemRect(list()->item(row)).center());
    QTRY_COMPARE(finished.count(), rows.size());
    QCOMPARE(list()->currentRow(), rows.last());
    QCOMPARE(stack()->currentIndex(), rows.last());
    for (int index = 0; index < stack()->count(); ++index)
        QCOMPARE(stack()->widget(index)->isVisible(), index == rows.last());
    QCOMPARE(stack()->currentWidget()->pos(), stack()->contentsRect().topLeft());
}

void TestConfigDialog::theWindowCanBeSmall()
{
    open(m_home->path(QStringLiteral("t")));
    for (int row = 0; row < list()->count(); ++row)
        list()->setCurrentRow(row);
    m_dialog->resize(1024, 560);
    QTRY_COMPARE(m_dialog->size(), QSize(1024, 560));
    for (const QAbstractButton *each : m_dialog->buttonBox()->buttons())
        QVERIFY(m_dialog->rect().contains(QRect(each->mapTo(m_dialog.get(), QPoint()), each->size())));
}

void TestConfigDialog::whateverTheFileIsNothingBreaks_data()
{
    QTest::addColumn<QByteArray>("content"); // null: a directory stands there
    QTest::newRow("a directory") << QByteArray();
    QTest::newRow("binary") << QByteArray("\0\xff\x01=\x02\n=\n[", 9);
    QTest::newRow("no final newline") << QByteArray("ScreenSaverDelay=600");
    QTest::newRow("CRLF") << QByteArray("A=1\r\nScreenSaverDelay=600\r\n");
    QTest::newRow("50 MB") << "ScreenSaverDelay=600\n"
                                  + QByteArray("# a long comment line\n").repeated(2400000);
}

void TestConfigDialog::whateverTheFileIsNothingBreaks()
{
    QFETCH(QByteArray, content);
    const QString path = m_home->path(QStringLiteral("t"));
    if (content.isNull())
        m_home->makeDirectory(QStringLiteral("t"));
    else
        m_home->write(QStringLiteral("t"), content);
    open(path);
    showPage(QStringLiteral("Screensaver"));
    delay()->setValue(5);
    m_dialog->applySlot();
    const QByteArray saved = m_home->read(QStringLiteral("t"));
    if (content.contains("=600"))
        QVERIFY(saved == content.replace("=600", "=300"));
    else if (!content.isNull())
        QVERIFY2(saved.contains("ScreenSaverDelay=300") && saved.contains("\xff\x01=\x02"),
                 saved.constData());
    else
        QVERIFY(QFileInfo(path).isDir());
}

void TestConfigDialog::helpOpensAtThePageInView()
{
    open(m_home->path(QStringLiteral("t")));
    showPage(QStringLiteral("Screensaver"));
    QCOMPARE(qazHelpLookForWidget(), QStringLiteral("screensaver"));
    button(QDialogButtonBox::Help)->click();
    QWidget *help = nullptr;
    for (QWidget *window : QApplication::topLevelWidgets())
        help = window->objectName() == QLatin1String("helpWindow") ? window : help;
    QVERIFY(help && help->isVisible() && !help->isModal());
    help->close();
}

void TestConfigDialog::aMessageBringsTheWindowUp()
{
    open(m_home->path(QStringLiteral("t")));
    m_dialog->showMinimized();
    QVERIFY(m_dialog->messageReceived(QStringLiteral("anything")));
    QVERIFY(!m_dialog->isMinimized());
    m_dialog->hide();
    QVERIFY(m_dialog->messageReceived(QString()));
    QVERIFY(m_dialog->isVisible());
}

QTEST_MAIN(TestConfigDialog)
#include "tst_configdialog.moc"
