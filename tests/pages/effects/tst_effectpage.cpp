#include "pages/effects/effectpage.h"
#include "tests/support/pageoverfile.h"

class TestEffectPage : public QObject
{
    Q_OBJECT
private slots:
    void valuesAreShownEditedAndSaved()
    {
        playOnPages<PageOverFile<EffectPage>>(
            "pages/effects/values.json"_s,
            "startMenuMapSpeedSpinBox arrangeWindowSpeedSpinBox gradWindowMapSpeedSpinBox "
            "menuDelayTimeSpinBox menuDelayTime2SpinBox gradMenuMapSpeedSpinBox "
            "gradTaskbarMotionSpeedSpinBox taskbarShowDelaySpinBox taskbarHideDelaySpinBox "
            "pagingBeltSizeSpinBox pagingResistanceSpinBox pagingSpeedSpinBox pagingShiftCursorSpinBox "
            "menuTransparencySpinBox menuTransparency2SpinBox smartPlacementCheckBox opaqueMoveCheckBox "
            "opaqueResizeCheckBox thumbCheckBox"_s);
    }

    void stylesAreStoredByKeyword()
    {
        playOnPages<PageOverFile<EffectPage>>("pages/effects/styles.json"_s,
                                              "gradWindowMapStyleComboBox gradWindowMapSpeedSpinBox"_s);
    }

    void editsAndWhatCannotBeEdited()
    {
        PageOverFile<EffectPage> over;
        over.load("");
        QVERIFY(!over.find<QWidget>("pseudoTransparencyButtonGroup")->isVisibleTo(&over.page));
        over.find<QCheckBox>("opaqueMoveCheckBox")->toggle(); // there only a click is an edit
        QCOMPARE(over.changed.count(), 0);
        over.find<QCheckBox>("smartPlacementCheckBox")->toggle();
        over.find<QGroupBox>("pagingGroupBox")->setChecked(true); // which gives the belt a size, too
        QCOMPARE(over.changed.count(), 3);
        over.find<QCheckBox>("thumbCheckBox")->click();
        over.find<QCheckBox>("thumbCheckBox")->setEnabled(false);
        QVERIFY(!over.save().contains("ThumbSize"_s));
    }

private:
    const ScopedEnvironment m_path{"PATH", "/nowhere"}; // where no compositing manager is installed
};

QTEST_MAIN(TestEffectPage)
#include "tst_effectpage.moc"
