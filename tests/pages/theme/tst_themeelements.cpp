#include "pages/theme/sizeelements.h"
#include "settings/colorelements.h"

#include <QColor>
#include <QTest>

#include <algorithm>

class TestThemeElements : public QObject
{
    Q_OBJECT
private slots:
    void elementsAreCompleteAndOrderedByKey();
    void sizesFollowTheResolution();
};

void TestThemeElements::elementsAreCompleteAndOrderedByKey()
{
    QStringList keys;
    QStringList gradients;
    for (const ColorElement *element : colorElementsByKey()) {
        keys.append(QLatin1String(element->key));
        QVERIFY2(keys.last().endsWith(QLatin1String("Color")), element->key);
        for (const QString &color : defaultColors(*element))
            QVERIFY2(QColor(color).isValid(), element->key);
        if (isGradient(*element))
            gradients.append(colorKeys(*element).last());
    }
    QVERIFY(std::is_sorted(keys.cbegin(), keys.cend()));
    QCOMPARE(keys.removeDuplicates(), 0);
    QCOMPARE(keys.size(), 34);
    QCOMPARE(gradients.join(QLatin1Char(' ')),
             QStringLiteral("DesktopColor2 MenuColor2 PagerColor2 TitlebarActiveColor2 TitlebarColor2"));
}

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
