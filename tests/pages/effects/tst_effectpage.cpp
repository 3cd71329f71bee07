#include "pages/effects/effectpage.h"
#include "platform/qazsettings.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QLabel>
#include <QSpinBox>
#include <QTabWidget>
#include <QtTest>

#include <algorithm>

namespace {

const QString themeFile = QStringLiteral("some.themerc");

/// The page over a theme file of its own, as the dialog uses it; no compositing manager is installed.
class PageOverFile
{
public:
    explicit PageOverFile(const QByteArray &content)
    {
        write(content);
        load();
    }

    void write(const QByteArray &content) { m_home.write(themeFile, "CompositeManager=nobody\n" + content); }
    void load()
    {
        QazSettings store(m_home.path(themeFile));
        store.sync(true);
        page.loadValues(&store);
    }
    /// Saves; returns the commands without their common start.
    QStringList save()
    {
        WmListener windowManager;
        QazSettings store(m_home.path(themeFile));
        store.sync(true);
        page.saveValues(&store);
        return windowManager.take().replaceInStrings(QStringLiteral("QAZWM_UPDATE_VAL "), QString());
    }
    QByteArray content() const { return m_home.read(themeFile); }
    template<typename Widget>
    Widget *find(const char *name) const
    {
        return page.findChild<Widget *>(QLatin1String(name));
    }
    int value(const char *spinBox) const { return find<QSpinBox>(spinBox)->value(); }

private:
    const TemporaryHome m_home;

public:
    EffectPage page;
};

/// Chooses an item as the user does.
void choose(QComboBox *box, int index)
{
    box->setFocus();
    QTest::keyClick(box, Qt::Key_End);
    QTest::keyClick(box, Qt::Key_Home);
    for (int i = 0; i < index; ++i)
        QTest::keyClick(box, Qt::Key_Down);
    QCOMPARE(box->currentIndex(), index);
}

} // namespace

class TestEffectPage : public QObject
{
    Q_OBJECT
private slots:
    void fileWithoutKeysShowsAndSavesTheDefaults()
    {
        PageOverFile file({});
        for (const char *name : {"smartPlacementCheckBox", "opaqueMoveCheckBox", "opaqueResizeCheckBox"})
            QVERIFY2(file.find<QCheckBox>(name)->isChecked(), name);
        QVERIFY(!file.find<QCheckBox>("thumbCheckBox")->isChecked());
        QVERIFY(!file.find<QGroupBox>("pagingGroupBox")->isChecked());
        QVERIFY(!file.find<QSpinBox>("gradWindowMapSpeedSpinBox")->isEnabled());
        QVERIFY(!file.find<QWidget>("pseudoTransparencyButtonGroup")->isVisibleTo(&file.page));
        const QStringList commands{QStringLiteral("ArrangeWindowSpeed 0"),
                                   QStringLiteral("GradWindowMapSpeed 0")};
        QCOMPARE(file.save(), commands);
        QCOMPARE(file.content(), QByteArray("CompositeManager=nobody\nUseComposite=false\n"
                                            "ArrangeWindowSpeed=0\nGradWindowMapSpeed=0\n"));
        QCOMPARE(file.save(), QStringList());
    }

    void integersAreShownInTheirRange_data()
    {
        QTest::addColumn<QByteArray>("key");
        QTest::addColumn<QByteArray>("widget");
        QTest::addColumn<int>("missing");
        QTest::addColumn<int>("maximum");
        const auto row = [](const char *key, const char *widget, int missing, int maximum) {
            QTest::newRow(key) << QByteArray(key) << QByteArray(widget) << missing << maximum;
        };
        row("StartMenuMapSpeed", "startMenuMapSpeedSpinBox", 0, 25);
        row("ArrangeWindowSpeed", "arrangeWindowSpeedSpinBox", 0, 25);
        row("GradWindowMapSpeed", "gradWindowMapSpeedSpinBox", 0, 30);
        row("MenuDelayTime", "menuDelayTimeSpinBox", 300, 3000);
        row("MenuDelayTime2", "menuDelayTime2SpinBox", 300, 3000);
        row("GradMenuMapSpeed", "gradMenuMapSpeedSpinBox", 0, 10);
        row("GradTaskbarMotionSpeed", "gradTaskbarMotionSpeedSpinBox", 10, 30);
        row("TaskbarShowDelay", "taskbarShowDelaySpinBox", 500, 3000);
        row("TaskbarHideDelay", "taskbarHideDelaySpinBox", 0, 3000);
        row("PagingBeltSize", "pagingBeltSizeSpinBox", 0, 20);
        row("PagingResistance", "pagingResistanceSpinBox", 1500, 5000);
        row("PagingSpeed", "pagingSpeedSpinBox", 30, 100);
        row("PagingShiftCursor", "pagingShiftCursorSpinBox", 200, 500);
        row("MenuTransparency", "menuTransparencySpinBox", 0, 100);
        row("MenuTransparency2", "menuTransparency2SpinBox", 0, 100);
    }
    void integersAreShownInTheirRange()
    {
        QFETCH(QByteArray, key);
        QFETCH(QByteArray, widget);
        QFETCH(int, maximum);
        PageOverFile file({});
        QTEST(file.value(widget.constData()), "missing");
        file.write(key + "=7\n");
        file.load();
        QCOMPARE(file.value(widget.constData()), 7);
        QVERIFY(!file.save().join(QLatin1Char('\n')).contains(QString::fromLatin1(key) + QLatin1Char(' ')));
        file.write(key + "=99999\n");
        file.load();
        QCOMPARE(file.value(widget.constData()), maximum);
        // Also a value whose box is disabled is saved.
        file.find<QSpinBox>(widget.constData())->setEnabled(false);
        QVERIFY(file.save().contains(QStringLiteral("%1 %2").arg(QString::fromLatin1(key)).arg(maximum)));
        for (const char *text : {"=-3\n", "=seven\n", "=\n"}) {
            file.write(key + text);
            file.load();
            QCOMPARE(file.value(widget.constData()), 0);
        }
    }

    void booleansCountAsTheWindowManagerReadsThem_data()
    {
        QTest::addColumn<QByteArray>("text");
        QTest::addColumn<bool>("checked");
        QTest::newRow("True") << QByteArray("True") << true;
        QTest::newRow("TRUE") << QByteArray("TRUE") << false;
        QTest::newRow("1") << QByteArray("1") << false;
    }
    void booleansCountAsTheWindowManagerReadsThem()
    {
        QFETCH(QByteArray, text);
        QFETCH(bool, checked);
        PageOverFile file("SmartPlacement=" + text + "\nOpaqueMove=" + text + "\nOpaqueResize=" + text
                          + "\nFullOpaque=" + text + "\nArrangeWindowSpeed=0\nGradWindowMapSpeed=0\n");
        QCOMPARE(file.find<QCheckBox>("smartPlacementCheckBox")->isChecked(), checked);
        QCOMPARE(file.find<QCheckBox>("opaqueMoveCheckBox")->isChecked(), checked);
        QCOMPARE(file.find<QCheckBox>("opaqueResizeCheckBox")->isChecked(), checked);
        QCOMPARE(file.save(), QStringList());
    }

    void stylesAreStoredByKeyword_data()
    {
        QTest::addColumn<QString>("stored");
        QTest::addColumn<int>("index");
        const char *keywords[] = {
            "Normal",      "TopToBottom", "LeftToRight", "CenterToTopBottom", "CenterToLeftRight",
            "CenterToAll", "FromButton",  "RightToLeft", "BottomToTop"};
        for (int i = 0; i < 9; ++i)
            QTest::newRow(keywords[i]) << QString::fromLatin1(keywords[i]) << i;
        QTest::newRow("the shown text") << QStringLiteral("None") << 0;
        QTest::newRow("another case") << QStringLiteral("topToBottom") << 0;
    }
    void stylesAreStoredByKeyword()
    {
        QFETCH(QString, stored);
        QFETCH(int, index);
        PageOverFile file("GradWindowMapSpeed=4\nGradWindowMapStyle=" + stored.toLatin1()
                          + "\nArrangeWindowSpeed=0\n");
        auto *style = file.find<QComboBox>("gradWindowMapStyleComboBox");
        auto *speed = file.find<QSpinBox>("gradWindowMapSpeedSpinBox");
        QCOMPARE(style->currentIndex(), index);
        QCOMPARE(speed->isEnabled(), index != 0);
        QCOMPARE(speed->value(), 4);
        const bool isKeyword = index != 0 || stored == QLatin1String("Normal");
        QCOMPARE(file.save(),
                 isKeyword ? QStringList() : QStringList{QStringLiteral("GradWindowMapStyle Normal")});

        choose(style, 0);
        choose(style, index);
        QCOMPARE(speed->value(), index != 0 ? 15 : 0);
        QCOMPARE(speed->isEnabled(), index != 0);
    }

    void autopagingIsOffExactlyWithoutABelt()
    {
        PageOverFile file("PagingBeltSize=0\n");
        auto *group = file.find<QGroupBox>("pagingGroupBox");
        auto *belt = file.find<QSpinBox>("pagingBeltSizeSpinBox");
        const char *const boxes[] = {"pagingBeltSizeSpinBox", "pagingResistanceSpinBox",
                                     "pagingShiftCursorSpinBox", "pagingSpeedSpinBox"};
        const auto areEnabled = [&](bool enabled) {
            return std::all_of(std::begin(boxes), std::end(boxes), [&](const char *name) {
                return file.find<QSpinBox>(name)->isEnabledTo(&file.page) == enabled;
            });
        };
        QVERIFY(areEnabled(false));
        QTest::keyClick(group, Qt::Key_Space);
        QCOMPARE(belt->value(), 2);
        QVERIFY(areEnabled(true));
        QVERIFY(file.save().contains(QStringLiteral("PagingBeltSize 2")));
        belt->setValue(9);
        QTest::keyClick(group, Qt::Key_Space);
        QCOMPARE(belt->value(), 0);
        QVERIFY(areEnabled(false));
        QVERIFY(file.save().contains(QStringLiteral("PagingBeltSize 0")));

        file.write("PagingBeltSize=20\n");
        file.load();
        QVERIFY(group->isChecked() && areEnabled(true));
        QCOMPARE(belt->value(), 20);
    }

    void everyValueIsAnnouncedInItsPlace()
    {
        PageOverFile file({});
        for (QCheckBox *box : file.page.findChildren<QCheckBox *>())
            box->setChecked(!box->isChecked());
        for (QSpinBox *box : file.page.findChildren<QSpinBox *>())
            box->setValue(3);
        file.find<QComboBox>("gradWindowMapStyleComboBox")->setCurrentIndex(6);
        file.find<QGroupBox>("compositeGroupBox")->setChecked(true);
        const QString expected = QStringLiteral(
            "SmartPlacement false|OpaqueMove false|OpaqueResize false|FullOpaque false|StartMenuMapSpeed 3|"
            "ArrangeWindowSpeed 3|GradWindowMapSpeed 3|GradWindowMapStyle FromButton|MenuDelayTime 3|"
            "MenuDelayTime2 3|GradMenuMapSpeed 3|GradTaskbarMotionSpeed 3|TaskbarShowDelay "
            "3|TaskbarHideDelay 3|"
            "PagingBeltSize 3|PagingResistance 3|PagingSpeed 3|PagingShiftCursor 3|MenuTransparency 3|"
            "MenuTransparency2 3|UseComposite true|ThumbSize 250");
        QCOMPARE(file.save().join(QLatin1Char('|')), expected);
        QCOMPARE(file.save(), QStringList());
    }

    void thumbnailsAreSavedOnlyWhileTheirBoxIsEnabled()
    {
        PageOverFile file("ThumbSize=64\nArrangeWindowSpeed=0\nGradWindowMapSpeed=0\n");
        auto *box = file.find<QCheckBox>("thumbCheckBox");
        QVERIFY(box->isChecked());
        box->setEnabled(false);
        QCOMPARE(file.save(), QStringList());
        box->setEnabled(true);
        QCOMPARE(file.save(), QStringList{QStringLiteral("ThumbSize 250")});
        box->click();
        QCOMPARE(file.save(), QStringList{QStringLiteral("ThumbSize 0")});
    }

    void everyEditIsTellingAndLoadingIsNot()
    {
        PageOverFile file("GradWindowMapStyle=FromButton\n");
        const QSignalSpy changed(&file.page, &EffectPage::changedSignal);
        file.write(
            "PagingBeltSize=5\nMenuDelayTime=9\nSmartPlacement=false\nThumbSize=1\nUseComposite=true\n");
        file.load();
        file.load();
        QCOMPARE(changed.count(), 0);
        int edits = 0;
        for (QCheckBox *box : file.page.findChildren<QCheckBox *>()) {
            box->setEnabled(true);
            box->click();
            QCOMPARE(changed.count(), ++edits);
        }
        for (QSpinBox *box : file.page.findChildren<QSpinBox *>()) {
            box->setValue(box->value() == 1 ? 2 : 1);
            QCOMPARE(changed.count(), ++edits);
        }
        QTest::keyClick(file.find<QGroupBox>("compositeGroupBox"), Qt::Key_Space);
        QCOMPARE(changed.count(), ++edits);
        // Autopaging off also empties the belt, a style also sets the speed: two edits each.
        QTest::keyClick(file.find<QGroupBox>("pagingGroupBox"), Qt::Key_Space);
        QCOMPARE(changed.count(), edits += 2);
        QTest::keyClick(file.find<QComboBox>("gradWindowMapStyleComboBox"), Qt::Key_Down);
        QCOMPARE(changed.count(), edits += 2);
    }

    void formFitsASmallWindowWithoutCutTexts()
    {
        PageOverFile file({});
        QVERIFY(file.page.minimumSizeHint().width() <= 860 && file.page.minimumSizeHint().height() <= 490);
        file.page.resize(file.page.minimumSizeHint());
        file.page.show();
        QVERIFY(QTest::qWaitForWindowExposed(&file.page));
        auto *tabs = file.find<QTabWidget>("tabWidget");
        for (int tab = 0; tab < tabs->count(); ++tab) {
            tabs->setCurrentIndex(tab);
            QList<QWidget *> widgets = tabs->widget(tab)->findChildren<QWidget *>();
            widgets.erase(
                std::remove_if(widgets.begin(), widgets.end(), [](QWidget *w) { return !w->isVisible(); }),
                widgets.end());
            for (QWidget *widget : qAsConst(widgets)) {
                if (qobject_cast<QLabel *>(widget) || qobject_cast<QCheckBox *>(widget)
                    || qobject_cast<QAbstractSpinBox *>(widget) || qobject_cast<QComboBox *>(widget))
                    QVERIFY2(widget->width() >= widget->minimumSizeHint().width()
                                 && widget->height() >= widget->minimumSizeHint().height(),
                             qPrintable(widget->objectName()));
                if (auto *label = qobject_cast<QLabel *>(widget))
                    QVERIFY2(label->buddy() && label->buddy()->isVisible(), qPrintable(label->text()));
            }
        }
    }
};

QTEST_MAIN(TestEffectPage)
#include "tst_effectpage.moc"
