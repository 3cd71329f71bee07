#include "pages/effects/effectpage.h"
#include "tests/support/pageoverfile.h"

namespace {

/// The keys of the spin boxes, in the order in which they are saved.
const QStringList numbers
    = "StartMenuMapSpeed ArrangeWindowSpeed GradWindowMapSpeed MenuDelayTime MenuDelayTime2 GradMenuMapSpeed "
      "GradTaskbarMotionSpeed TaskbarShowDelay TaskbarHideDelay PagingBeltSize PagingResistance PagingSpeed "
      "PagingShiftCursor MenuTransparency MenuTransparency2"_s.split(u' ');
constexpr const char *checkBoxes[] = {"smartPlacementCheckBox", "opaqueMoveCheckBox", "opaqueResizeCheckBox",
                                      "thumbCheckBox"};

class EffectPageOverFile : public PageOverFile<EffectPage>
{
public:
    using PageOverFile::PageOverFile;

    QSpinBox *spin(const QString &key) const
    {
        return page.findChild<QSpinBox *>(key.left(1).toLower() + key.mid(1) + "SpinBox"_s);
    }
    /// The values of all spin boxes, in order, and of the check boxes: 1 where checked, else 0.
    QString values() const
    {
        QString values;
        for (const QString &key : numbers)
            values += QString::number(spin(key)->value()) + u' ';
        for (const char *name : checkBoxes)
            values += QString::number(find<QCheckBox>(name)->isChecked());
        return values;
    }
};

/// Chooses an item as the user does.
void choose(QComboBox *box, int index)
{
    QTest::keyClick(box, Qt::Key_Home);
    for (int i = 0; i < index; ++i)
        QTest::keyClick(box, Qt::Key_Down);
}

} // namespace

class TestEffectPage : public QObject
{
    Q_OBJECT
private slots:
    void valuesAreShownAsTheWindowManagerReadsThem()
    {
        const auto zeros = "0 0 0 0 0 0 0 0 0 0 0 0 0 0 0 "_s;
        EffectPageOverFile file("");
        QCOMPARE(file.values(), "0 0 0 300 300 0 10 500 0 0 1500 30 200 0 0 1110"_s);
        QVERIFY(!file.find<QWidget>("pseudoTransparencyButtonGroup")->isVisibleTo(&file.page));
        QCOMPARE(file.save(), "ArrangeWindowSpeed 0|GradWindowMapSpeed 0"_s);
        // The opaque resize is read from its own key alone.
        const QStringList boxes = "SmartPlacement OpaqueMove OpaqueResize ThumbSize"_s.split(u' ');
        const QStringList rows[] = {
            {"True"_s, zeros + "1110"_s}, {"TRUE"_s, zeros + "0000"_s}, {"-3"_s, zeros + "0001"_s}};
        for (const QStringList &row : rows) {
            const QString value = u'=' + row[0] + u'\n';
            file.load(((numbers + boxes).join(value) + value).toLatin1());
            QCOMPARE(file.values(), row[1]);
            QVERIFY(!file.save().contains("OpaqueMove"_s)); // what means the same is left as it stands
        }
    }

    void stylesAreStoredByKeyword()
    {
        const QStringList keywords = "Normal TopToBottom LeftToRight CenterToTopBottom CenterToLeftRight "
                                     "CenterToAll FromButton RightToLeft BottomToTop"_s.split(u' ');
        EffectPageOverFile file("");
        auto *style = file.find<QComboBox>("gradWindowMapStyleComboBox");
        const auto state = [style, speed = file.spin("GradWindowMapSpeed"_s)] {
            return QList<int>{style->currentIndex(), speed->value(), speed->isEnabled()};
        };
        for (int i = 1; i < 9; ++i) {
            file.load("GradWindowMapSpeed=4\nGradWindowMapStyle=" + keywords.at(i).toLatin1() + '\n');
            QCOMPARE(state(), (QList<int>{i, 4, false})); // a load never enables the speed
            choose(style, i);
            QCOMPARE(state(), (QList<int>{i, 15, true}));
            file.load("GradWindowMapStyle=topToBottom\n"); // unknown
            QCOMPARE(style->currentIndex(), 0);
            choose(style, i);
            QVERIFY(file.save().contains("GradWindowMapStyle "_s + keywords.at(i)));
            choose(style, 0);
            QCOMPARE(state(), (QList<int>{0, 0, false}));
            QVERIFY(file.save().contains("GradWindowMapStyle Normal"_s));
        }
        choose(style, 1);
        const QSignalSpy changed(&file.page, &EffectPage::changedSignal);
        QTest::keyClick(style, Qt::Key_Down); // to one of the same speed
        QCOMPARE(changed.count(), 1);
        file.find<QCheckBox>("opaqueMoveCheckBox")->toggle(); // there only a click is an edit
        QCOMPARE(changed.count(), 1);
        file.find<QCheckBox>("smartPlacementCheckBox")->toggle();
        file.find<QGroupBox>("pagingGroupBox")->setChecked(true); // which gives the belt a size, too
        QCOMPARE(changed.count(), 4);
    }

    void autopagingIsOffExactlyWithoutABelt()
    {
        EffectPageOverFile file("");
        auto *group = file.find<QGroupBox>("pagingGroupBox");
        QStringList states;
        const auto look = [&] {
            states += QString::number(file.spin("PagingBeltSize"_s)->value());
            for (const QString &key : numbers.mid(9, 4))
                states.last() += file.spin(key)->isEnabled() ? u'+' : u'-';
        };
        look();
        QTest::keyClick(group, Qt::Key_Space);
        look();
        file.spin("PagingBeltSize"_s)->setValue(9);
        QTest::keyClick(group, Qt::Key_Space);
        look();
        file.load("PagingBeltSize=20\n");
        look();
        QCOMPARE(states.join(u' '), "0---- 2++++ 0---- 20++++"_s);
    }

    void everyValueIsReadEditedAndSavedInItsPlace()
    {
        // All start with values that are nobody's default.
        QByteArray content = "# mine\nSmartPlacement=false\nOpaqueMove=false\nOpaqueResize=false\n"
                             "FullOpaque=false\nGradWindowMapStyle=BottomToTop\nThumbSize=0\n";
        for (const QString &key : numbers)
            content += key.toLatin1() + "=1\n";
        EffectPageOverFile file(content);
        choose(file.find<QComboBox>("gradWindowMapStyleComboBox"), 6); // its speed can be edited then
        QCOMPARE(file.values(), "1 1 15 1 1 1 1 1 1 1 1 1 1 1 1 0000"_s);
        int value = 1;
        for (const QString &key : numbers) {
            value = value == 9 ? 2 : value + 1;
            file.spin(key)->setValue(value);
            content.replace(key.toLatin1() + "=1\n", key.toLatin1() + '=' + QByteArray::number(value) + '\n');
        }
        for (const char *name : checkBoxes)
            file.find<QCheckBox>(name)->click();
        file.find<QGroupBox>("compositeGroupBox")->setChecked(true);
        QCOMPARE(file.save(),
                 "SmartPlacement true|OpaqueMove true|OpaqueResize true|FullOpaque true|StartMenuMapSpeed 2|"
                 "ArrangeWindowSpeed 3|GradWindowMapSpeed 4|GradWindowMapStyle FromButton|MenuDelayTime 5|"
                 "MenuDelayTime2 6|GradMenuMapSpeed 7|GradTaskbarMotionSpeed 8|TaskbarShowDelay 9|"
                 "TaskbarHideDelay 2|PagingBeltSize 3|PagingResistance 4|PagingSpeed 5|PagingShiftCursor 6|"
                 "MenuTransparency 7|MenuTransparency2 8|UseComposite true|ThumbSize 250"_s);
        content.replace("=false", "=true").replace("BottomToTop", "FromButton").replace("Size=0", "Size=250");
        QCOMPARE(file.content(), content + "UseComposite=true\n");
        auto *thumbnails = file.find<QCheckBox>("thumbCheckBox");
        thumbnails->click();
        thumbnails->setEnabled(false); // which is not saved then
        QCOMPARE(file.save(), QString());
        thumbnails->setEnabled(true);
        QCOMPARE(file.save(), "ThumbSize 0"_s);
    }

private:
    const ScopedEnvironment m_path{"PATH", "/nowhere"}; // where no compositing manager is installed
};

QTEST_MAIN(TestEffectPage)
#include "tst_effectpage.moc"
