#include "pages/theme/colorelements.h"
#include "pages/theme/sizeelements.h"

#include <QColor>
#include <QSet>
#include <QTest>

class TestThemeElements : public QObject
{
    Q_OBJECT
private slots:
    void elementsAreComplete();
    void elementsAreOrderedByKey();
    void storedColorsAreTranslated_data();
    void storedColorsAreTranslated();
    void itemDataJoinsKeyAndColors();
    void sizesFollowTheResolution_data();
    void sizesFollowTheResolution();
    void sizeTexts();
};

void TestThemeElements::elementsAreComplete()
{
    QSet<QString> keys;
    QStringList gradients;
    for (const ColorElement &element : colorElements) {
        QVERIFY(QString::fromLatin1(element.key).endsWith(QLatin1String("Color")));
        QCOMPARE(colorKeys(element).size(), defaultColors(element).size());
        for (const QString &key : colorKeys(element)) {
            QVERIFY2(!keys.contains(key), qPrintable(key));
            keys.insert(key);
        }
        for (const QString &color : defaultColors(element))
            QVERIFY2(QColor(color).isValid(), qPrintable(color));
        if (isGradient(element))
            gradients.append(colorKeys(element).last());
    }
    QCOMPARE(gradients.join(QLatin1Char(' ')),
             QStringLiteral("DesktopColor2 TitlebarColor2 TitlebarActiveColor2 PagerColor2 MenuColor2"));
}

void TestThemeElements::elementsAreOrderedByKey()
{
    QStringList keys;
    for (const ColorElement *element : colorElementsByKey())
        keys.append(QLatin1String(element->key));
    QCOMPARE(keys.size(), 34);
    QStringList sorted = keys;
    std::sort(sorted.begin(), sorted.end());
    QCOMPARE(keys, sorted);
    QCOMPARE(keys.first(), QStringLiteral("ButtonActiveColor"));
    QVERIFY(keys.indexOf(QStringLiteral("TitleStringColor")) < keys.indexOf(QStringLiteral("TitlebarColor")));
}

void TestThemeElements::storedColorsAreTranslated_data()
{
    QTest::addColumn<QString>("stored");
    QTest::addColumn<QString>("color");
    const QStringList pairs = {QStringLiteral("Qt|#123456"),
                               QStringLiteral("qt|#123456"),
                               QStringLiteral("QT|QT"),
                               QStringLiteral("qvgray|#c0c0c0"),
                               QStringLiteral("qvgrey|#c0c0c0"),
                               QStringLiteral("qvdarkgray|#606060"),
                               QStringLiteral("qvdarkgrey|#606060"),
                               QStringLiteral("qvlightray|light gray"),
                               QStringLiteral("qvlightgray|qvlightgray"),
                               QStringLiteral("qvblue|#000080"),
                               QStringLiteral("qvlightblue|#a6caf0"),
                               QStringLiteral("qvroyalblue|#3a6ea5"),
                               QStringLiteral("qvyellow|#f5db95"),
                               QStringLiteral("qvlightyellow|#ffffe1"),
                               QStringLiteral("rgb(1,2,3)|rgb(1,2,3)"),
                               QStringLiteral("|")};
    for (const QString &pair : pairs)
        QTest::newRow(qPrintable(pair))
            << pair.section(QLatin1Char('|'), 0, 0) << pair.section(QLatin1Char('|'), 1);
}

void TestThemeElements::storedColorsAreTranslated()
{
    QFETCH(QString, stored);
    QTEST(currentColorText(stored, QStringLiteral("#123456")), "color");
}

void TestThemeElements::itemDataJoinsKeyAndColors()
{
    const QString key = QStringLiteral("MenuColor");
    QCOMPARE(colorItemData(key, {QStringLiteral("red")}), QStringLiteral("MenuColor,red"));
    QCOMPARE(colorItemData(key, {QStringLiteral("red"), QString()}), QStringLiteral("MenuColor,red,"));
}

void TestThemeElements::sizesFollowTheResolution_data()
{
    QTest::addColumn<double>("dpi");
    QTest::addColumn<QString>("desktop");
    QTest::addColumn<QString>("taskbar");
    QTest::newRow("unknown") << 0.0 << QStringLiteral("48") << QStringLiteral("49");
    QTest::newRow("75.9: its integer part is not above 75")
        << 75.9 << QStringLiteral("48") << QStringLiteral("49");
    QTest::newRow("76") << 76.0 << QStringLiteral("32") << QStringLiteral("39");
    QTest::newRow("96") << 96.0 << QStringLiteral("48") << QStringLiteral("49");
    QTest::newRow("119.9") << 119.9 << QStringLiteral("64") << QStringLiteral("49");
    QTest::newRow("120") << 120.0 << QStringLiteral("48") << QStringLiteral("49");
}

void TestThemeElements::sizesFollowTheResolution()
{
    QFETCH(double, dpi);
    QTEST(defaultSize(sizeElements[0], dpi), "desktop");
    QTEST(defaultSize(sizeElements[1], dpi), "taskbar");
}

void TestThemeElements::sizeTexts()
{
    const QString text = sizeItemText(QStringLiteral("48"), QStringLiteral("Desktop icon size"));
    QCOMPARE(text, QStringLiteral("48,   Desktop icon size"));
    QCOMPARE(sizeItemValue(text), QStringLiteral("48"));
    QCOMPARE(sizeItemName(text), QStringLiteral("Desktop icon size"));
    QCOMPARE(sizeChoices(sizeElements[0]).join(QLatin1Char(' ')),
             QStringLiteral("16 22 32 48 64 96 128 256"));
    QVERIFY(sizeChoices(sizeElements[1]).isEmpty());
}

QTEST_GUILESS_MAIN(TestThemeElements)
#include "tst_themeelements.moc"
