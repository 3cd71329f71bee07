#include "pages/theme/colorelements.h"
#include "pages/theme/sizeelements.h"

#include <QColor>
#include <QTest>

#include <algorithm>

class TestThemeElements : public QObject
{
    Q_OBJECT
private slots:
    void elementsAreCompleteAndOrderedByKey();
    void storedColorsAreTranslated_data();
    void storedColorsAreTranslated();
    void sizesFollowTheResolution_data();
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

void TestThemeElements::storedColorsAreTranslated_data()
{
    QTest::addColumn<QByteArray>("color");
    // clang-format off
    for (const char *pair : {"Qt|#123456", "qt|#123456", "QT|QT", "qvgray|#c0c0c0", "qvgrey|#c0c0c0",
                             "qvdarkgray|#606060", "qvdarkgrey|#606060", "qvlightray|light gray",
                             "qvlightgray|qvlightgray", "qvblue|#000080", "qvlightblue|#a6caf0",
                             "qvroyalblue|#3a6ea5", "qvyellow|#f5db95", "qvlightyellow|#ffffe1",
                             "rgb(1,2,3)|rgb(1,2,3)"}) {
        // clang-format on
        const QByteArrayList parts = QByteArray(pair).split('|');
        QTest::newRow(parts.at(0).constData()) << parts.at(1);
    }
}

void TestThemeElements::storedColorsAreTranslated()
{
    const QString stored = QLatin1String(QTest::currentDataTag());
    QTEST(currentColorText(stored, QStringLiteral("#123456")).toLatin1(), "color");
}

void TestThemeElements::sizesFollowTheResolution_data()
{
    QTest::addColumn<double>("dpi");
    QTest::addColumn<QByteArray>("sizes");
    QTest::newRow("unknown") << 0.0 << QByteArray("48 49");
    QTest::newRow("75.9: its integer part is not above 75") << 75.9 << QByteArray("48 49");
    QTest::newRow("76") << 76.0 << QByteArray("32 39");
    QTest::newRow("96, as servers round it") << 95.86 << QByteArray("48 49");
    QTest::newRow("119.9") << 119.9 << QByteArray("64 49");
    QTest::newRow("120") << 120.0 << QByteArray("48 49");
}

void TestThemeElements::sizesFollowTheResolution()
{
    QFETCH(double, dpi);
    QTEST(
        (defaultSize(sizeElements[0], dpi) + QLatin1Char(' ') + defaultSize(sizeElements[1], dpi)).toLatin1(),
        "sizes");
}

QTEST_GUILESS_MAIN(TestThemeElements)
#include "tst_themeelements.moc"
