#include "pages/theme/themesettings.h"

#include <QTest>

class TestThemeElements : public QObject
{
    Q_OBJECT
private slots:
    void sizesFollowTheResolution();
};

void TestThemeElements::sizesFollowTheResolution()
{
    const std::pair<double, const char *> sizes[] // 0 dpi: unknown
        = {{0, "48 49"}, {75.9, "48 49"}, {76, "32 39"}, {95.86, "48 49"}, {119.9, "64 49"}, {120, "48 49"}};
    for (const auto &[dpi, both] : sizes)
        QCOMPARE(defaultSize(sizeElements[0], dpi) + QLatin1Char(' ') + defaultSize(sizeElements[1], dpi),
                 QLatin1String(both));
}

QTEST_GUILESS_MAIN(TestThemeElements)
#include "tst_themeelements.moc"
