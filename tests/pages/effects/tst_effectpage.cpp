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
        QCOMPARE(file.page.findChildren<QSpinBox *>().size(), int(std::size(cases)));
        for (const Case &one : cases) {
            const QByteArray name = one.key.left(1).toLower() + one.key.mid(1) + "SpinBox";
            auto *box = file.find<QSpinBox>(name.constData());
            QVERIFY2(box->value() == one.missing, one.key.constData());
            QVERIFY2(box->minimum() == 0 && box->maximum() == one.maximum, one.key.constData());
            const QString range = QStringLiteral(" from 0 to %1. 0 ").arg(one.maximum);
            QVERIFY2(box->whatsThis().contains(range), one.key.constData());
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

    void everyValueIsReadEditedAndSavedInItsPlace()
    {
        // In the order in which they are saved; all start with values that are nobody's default.
        const QStringList numbers
            = QStringLiteral("StartMenuMapSpeed ArrangeWindowSpeed GradWindowMapSpeed MenuDelayTime "
                             "MenuDelayTime2 GradMenuMapSpeed GradTaskbarMotionSpeed TaskbarShowDelay "
                             "TaskbarHideDelay PagingBeltSize PagingResistance PagingSpeed "
                             "PagingShiftCursor MenuTransparency MenuTransparency2")
                  .split(QLatin1Char(' '));
        QByteArray content = "# mine\nSmartPlacement=false\nOpaqueMove=false\nOpaqueResize=false\n"
                             "FullOpaque=false\nGradWindowMapStyle=BottomToTop\nThumbSize=0\n";
        for (const QString &key : numbers)
            content += key.toLatin1() + "=1\n";
        PageOverFile file(content);
        choose(file.find<QComboBox>("gradWindowMapStyleComboBox"), 6); // its speed can be edited then
        int value = 2;
        QStringList commands;
        for (const QString &key : numbers) {
            auto *box = file.find<QSpinBox>(
                (key.left(1).toLower() + key.mid(1) + QLatin1String("SpinBox")).toLatin1().constData());
            QCOMPARE(box->value(), key == QLatin1String("GradWindowMapSpeed") ? 15 : 1);
            box->selectAll();
            if (box->isVisibleTo(&file.page) || !key.startsWith(QLatin1String("MenuTransparency")))
                QTest::keyClicks(box, QString::number(value));
            else
                box->setValue(value); // no user can, but the value is saved
            commands.append(key + QLatin1Char(' ') + QString::number(value));
            content.replace(key.toLatin1() + "=1\n", key.toLatin1() + '=' + QByteArray::number(value) + '\n');
            value = value == 9 ? 2 : value + 1;
        }
        for (const char *name :
             {"smartPlacementCheckBox", "opaqueMoveCheckBox", "opaqueResizeCheckBox", "thumbCheckBox"}) {
            QVERIFY2(!file.find<QCheckBox>(name)->isChecked(), name);
            file.find<QCheckBox>(name)->click();
        }
        file.find<QGroupBox>("compositeGroupBox")->setChecked(true);
        commands.insert(3, QStringLiteral("GradWindowMapStyle FromButton"));
        commands = QStringLiteral("SmartPlacement true|OpaqueMove true|OpaqueResize true|FullOpaque true")
                       .split(QLatin1Char('|'))
                   + commands
                   + QStringList{QStringLiteral("UseComposite true"), QStringLiteral("ThumbSize 250")};
        QCOMPARE(file.save().join(QLatin1Char('|')), commands.join(QLatin1Char('|')));
        content.replace("=false", "=true").replace("BottomToTop", "FromButton").replace("Size=0", "Size=250");
        QCOMPARE(file.content(), "CompositeManager=nobody\n" + content + "UseComposite=true\n");
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

    void loadingIsNoEdit()
    {
        PageOverFile file("GradWindowMapStyle=FromButton\n");
        const QSignalSpy changed(&file.page, &EffectPage::changedSignal);
        file.write(
            "PagingBeltSize=5\nMenuDelayTime=9\nSmartPlacement=false\nThumbSize=1\nUseComposite=true\n");
        file.load();
        file.load();
        QCOMPARE(changed.count(), 0);
        int edits = 0;
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
