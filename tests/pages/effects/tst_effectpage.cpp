#include "pages/effects/effectpage.h"
#include "platform/qazsettings.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/wmlistener.h"

#include <QCheckBox>
#include <QComboBox>
#include <QGroupBox>
#include <QSpinBox>
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

    void integersAreShownInTheirRange()
    {
        struct Case {
            QByteArray key;
            int missing;
            int maximum;
        };
        // clang-format off
        const Case cases[] = {
            {"StartMenuMapSpeed", 0, 25},       {"ArrangeWindowSpeed", 0, 25},   {"GradWindowMapSpeed", 0, 30},
            {"MenuDelayTime", 300, 3000},       {"MenuDelayTime2", 300, 3000},   {"GradMenuMapSpeed", 0, 10},
            {"GradTaskbarMotionSpeed", 10, 30}, {"TaskbarShowDelay", 500, 3000}, {"TaskbarHideDelay", 0, 3000},
            {"PagingBeltSize", 0, 20},          {"PagingResistance", 1500, 5000}, {"PagingSpeed", 30, 100},
            {"PagingShiftCursor", 200, 500},    {"MenuTransparency", 0, 100},    {"MenuTransparency2", 0, 100}};
        // clang-format on
        PageOverFile file({});
        for (const Case &one : cases) {
            const QByteArray name = one.key.left(1).toLower() + one.key.mid(1) + "SpinBox";
            auto *box = file.find<QSpinBox>(name.constData());
            QVERIFY2(box->value() == one.missing, one.key.constData());
            const QVector<QPair<QByteArray, int>> texts{
                {"7", 7}, {"99999", one.maximum}, {"-3", 0}, {"seven", 0}, {"", 0}};
            for (const auto &[text, value] : texts) {
                const QByteArray line = one.key + '=' + text + '\n';
                file.write(line);
                file.load();
                QVERIFY2(box->value() == value, line.constData());
            }
        }
    }

    void booleansCountAsTheWindowManagerReadsThem()
    {
        for (const QByteArray text : {"True", "TRUE", "1"}) {
            PageOverFile file("SmartPlacement=" + text + "\nOpaqueMove=" + text + "\nOpaqueResize=" + text
                              + "\nFullOpaque=" + text + "\nArrangeWindowSpeed=0\nGradWindowMapSpeed=0\n");
            for (const char *box : {"smartPlacementCheckBox", "opaqueMoveCheckBox", "opaqueResizeCheckBox"})
                QCOMPARE(file.find<QCheckBox>(box)->isChecked(), text == "True");
            QCOMPARE(file.save(), QStringList());
        }
    }

    void stylesAreStoredByKeyword()
    {
        const QStringList keywords = QStringLiteral(
                                         "Normal TopToBottom LeftToRight CenterToTopBottom CenterToLeftRight "
                                         "CenterToAll FromButton RightToLeft BottomToTop")
                                         .split(QLatin1Char(' '));
        PageOverFile file({});
        auto *style = file.find<QComboBox>("gradWindowMapStyleComboBox");
        auto *speed = file.find<QSpinBox>("gradWindowMapSpeedSpinBox");
        for (int i = 1; i < 9; ++i) {
            choose(style, i);
            QCOMPARE(speed->value(), 15);
            QVERIFY(speed->isEnabled());
            QVERIFY(file.save().contains(QLatin1String("GradWindowMapStyle ") + keywords.at(i)));
            choose(style, 0);
            QCOMPARE(speed->value(), 0);
            QVERIFY(!speed->isEnabled());
            file.write("GradWindowMapSpeed=4\nGradWindowMapStyle=" + keywords.at(i).toLatin1() + '\n');
            file.load();
            QCOMPARE(style->currentIndex(), i);
            QCOMPARE(speed->value(), 4);
            QVERIFY(!speed->isEnabled()); // a load never enables it
        }
        for (const char *unknown : {"None", "topToBottom", ""}) {
            file.write(QByteArray("GradWindowMapStyle=") + unknown + '\n');
            file.load();
            QCOMPARE(style->currentIndex(), 0);
            QVERIFY(file.save().contains(QStringLiteral("GradWindowMapStyle Normal")));
        }
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
        for (QSpinBox *box : file.page.findChildren<QSpinBox *>()) {
            box->setValue(3);
            box->setEnabled(false); // it is saved all the same
        }
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
};

QTEST_MAIN(TestEffectPage)
#include "tst_effectpage.moc"
