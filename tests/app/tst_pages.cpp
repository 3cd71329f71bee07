#include "tests/app/dialogtest.h"

#include "tests/app/description.h"

#include "app/pagetable.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/modaldriver.h"
#include "tests/support/steps.h"
#include "tests/support/wmlistener.h"

/// How the dialog loads its pages, learns of their edits, and saves them.
class TestPages : public DialogTest
{
    Q_OBJECT

private slots:
    void itOpensCleanAndLoadsPagesWhenFirstShown()
    {
        open();
        QCOMPARE(QPoint(m_list->currentRow(), m_stack->currentIndex()), QPoint(0, 0));
        QCOMPARE(m_dialog->windowIcon().name(), "preferences-desktop-theme"_s);
        verifyEdited(false);
        QCOMPARE(m_dialog->requestToSave(true), int(QMessageBox::No));

        for (int row = 6; --row > 0;) {
            for (int other = 0; other < 6; ++other)
                QCOMPARE(pageEntries[other].isLoaded(m_stack->widget(other)), other == 0 || other > row);
            m_list->setCurrentRow(row);
            QCOMPARE(m_list->currentItem()->flags(), Qt::ItemIsSelectable | Qt::ItemIsEnabled);
            QCOMPARE(m_stack->currentIndex(), row);
            QVERIFY2(!m_dialog->isWindowModified(), qPrintable(m_list->item(row)->text()));
        }
        QVERIFY2(!QGuiApplication::overrideCursor(), "every page gives the cursor back");
    }

    void theyShowWhatStandsInTheFile()
    {
        const ScopedEnvironment cursors("XCURSOR_PATH", QFile::encodeName(m_home->path(".icons"_s)));
        open();
        onEachPage([](const QWidget *) {});
        Description description;
        description.add(m_dialog.get());
        description.add(find<QDialog>("FontAASettings"));
        verifyText("app/pages.txt"_s, description.text());
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
        QVERIFY(listener.takeUpdates().startsWith("WallPaperPos Tile|"_s));
        QCOMPARE(delay()->value(), 7);
        const QByteArray saved = m_home->read("t"_s);
        QVERIFY2(saved.contains("\nEnableSound=TRUE\n") && !saved.contains("Color"), saved.constData());

        const QString fingerprint = m_home->fingerprint();
        m_dialog->applySlot();
        QCOMPARE(listener.take(), QStringList());
        QCOMPARE(m_home->fingerprint(), fingerprint);
    }

    void everyPagesEditsAreSavedInTheirOrder()
    {
        FakePrograms programs;
        programs.add("xrdb"_s);
        // The values that an empty form saves stand in the file: only one edit of each page is announced.
        open("x=1\n");
        onEachPage([](const QWidget *) {});
        m_dialog->applySlot();
        WmListener listener;
        for (const QString &edit : {"minutesToStartSpinBox 7"_s, "press wmSoundsGroupBox Space"_s,
                                    "press wallpaperPositionCombo Up"_s, "opaqueMoveCheckBox"_s,
                                    "press decorThemeCombo Down"_s, "dpiSpinBox 120"_s}) {
            m_dialog->setWindowModified(false);
            operate(m_dialog.get(), edit);
            verifyEdited(true);
        }
        ModalDriver driver;
        driver.thenAnswer(QMessageBox::Ok); // fonts have changed
        button(QDialogButtonBox::Apply)->click();
        verifyEdited(false);
        QCOMPARE(listener.takeUpdates().replace(QRegularExpression(" [^|]*"_s), {}),
                 "WallPaperPos|OpaqueMove|DecorTheme|XftSettings|EnableSound|EnableAlsa|ScreenSaverDelay"_s);
    }

    void everyControlsEditCanBeApplied()
    {
        FakePrograms programs;
        open();
        QStringList pages;
        onEachPage([&](const QWidget *page) {
            for (auto *control : page->findChildren<QWidget *>()) {
                auto *spinBox = qobject_cast<QSpinBox *>(control);
                if (control->window() != m_dialog.get()
                    || !(spinBox || qobject_cast<QCheckBox *>(control)
                         || control->property("checkable").toBool()))
                    continue;
                control->setEnabled(true);
                m_dialog->setWindowModified(false);
                if (spinBox)
                    spinBox->stepBy(spinBox->value() < spinBox->maximum() ? 1 : -1);
                else
                    QTest::mouseClick(control, Qt::LeftButton, {}, QPoint(8, 8));
                QVERIFY2(m_dialog->isWindowModified(), qPrintable(control->objectName()));
                pages.append(QLatin1String(page->metaObject()->className()));
            }
        });
        pages.removeDuplicates(); // the theme page has colours and sizes to choose instead
        QCOMPARE(pages.join(u' '), "WallpaperPage FontPage ScreensaverPage EffectPage SoundPage"_s);
    }

    void unsavedEditsAreGuarded()
    {
        for (const auto answer : {QMessageBox::Yes, QMessageBox::No, QMessageBox::Cancel}) {
            open("ScreenSaverDelay=600\n");
            editTheDelay(5);
            ModalDriver driver;
            driver.thenAnswer(answer);
            QTest::keyClick(m_dialog.get(), Qt::Key_Escape);
            QVERIFY(driver.isDone());
            QCOMPARE(driver.seen(), QStringList{"Save ?|Save changes?"_s});
            QCOMPARE(m_dialog->isVisible(), answer == QMessageBox::Cancel);
            QCOMPARE(m_home->read("t"_s).contains("=300\n"), answer == QMessageBox::Yes);
        }

        ModalDriver driver;
        QVector<int> choices;
        const auto sayNo = [&choices](QDialog *dialog) {
            auto *box = qobject_cast<QMessageBox *>(dialog);
            choices += box->buttons().size();
            box->button(QMessageBox::No)->click();
        };
        driver.then(sayNo);
        QCOMPARE(m_dialog->requestToSave(false), int(QMessageBox::No));
        driver.then(sayNo);
        QTimer::singleShot(0, button(QDialogButtonBox::Close), &QPushButton::click);
        QTimer::singleShot(60000, m_dialog.get(), [] { QCoreApplication::exit(1); });
        QCOMPARE(QCoreApplication::exec(), 0);
        QCOMPARE(choices, (QVector<int>{2, 3})); // Close can be cancelled, too
        QVERIFY(driver.isDone() && m_dialog->fileOpen() && m_dialog->fileSave());
    }

    void whatCouldNotBeSavedKeepsTheWindowOpen()
    {
        QVERIFY(m_home->makeDirectory(".config/fontconfig/fonts.conf"_s));
        open();
        showPage("Fonts");
        auto *mode = find<QComboBox>("aaComboBox");
        mode->setFocus();
        QTest::keyClick(mode, Qt::Key_Up);
        verifyEdited(true);
        ModalDriver driver;
        driver.thenAnswer(QMessageBox::Ok);
        driver.thenAnswer(QMessageBox::Cancel);
        button(QDialogButtonBox::Ok)->click();
        QVERIFY(driver.isDone() && m_dialog->isVisible());
        QCOMPARE(driver.seen().constLast(), "Save ?|Save changes?"_s);
    }
};

QTEST_MAIN(TestPages)
#include "tst_pages.moc"
