#include "fonts/rolefonttext.h"

#include <QFontInfo>
#include <QtTest>

class TestRoleFontText : public QObject
{
    Q_OBJECT
private slots:
    void classification_data();
    void classification();
    void parsing_data();
    void parsing();
    void writingTellsTheResolvedFont_data();
    void writingTellsTheResolvedFont();
    void familyDisplay_data();
    void familyDisplay();
};

void TestRoleFontText::classification_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<bool>("isXlfd");
    QTest::addColumn<bool>("isRoleText");
    QTest::newRow("full form") << "Verdana-10:bold:italic" << false << true;
    QTest::newRow("without slant") << "Verdana-10:normal" << false << true;
    QTest::newRow("family and size") << "Verdana-10" << false << true;
    QTest::newRow("two colons are enough") << "a*b::" << false << true;
    QTest::newRow("star without dash") << "Verdana*" << false << false;
    QTest::newRow("dash and star") << "Verdana-*" << true << false;
    QTest::newRow("XLFD") << "-misc-fixed-medium-r-normal--13-120-75-75-c-70-iso8859-1" << true << false;
    QTest::newRow("dashes in the family") << "Noto-Sans-10:normal" << false << false;
    QTest::newRow("no dash") << "Verdana" << false << false;
}

void TestRoleFontText::classification()
{
    QFETCH(QString, text);
    QTEST(isXlfdName(text), "isXlfd");
    QTEST(isFontText(text), "isRoleText");
}

void TestRoleFontText::parsing_data()
{
    QTest::addColumn<QString>("text");
    QTest::addColumn<QString>("family");
    QTest::addColumn<int>("size");
    QTest::addColumn<int>("weight");
    QTest::addColumn<bool>("italic");
    const int toolkitSize = QFont(QStringLiteral("Noto"), 0).pointSize();
    QTest::newRow("full form") << "Verdana-10:bold:italic"
                               << "Verdana" << 10 << 75 << true;
    QTest::newRow("no colon") << "Verdana-10"
                              << "Verdana" << 10 << 50 << false;
    QTest::newRow("keywords are case-sensitive") << "Verdana-9:Bold:Italic"
                                                 << "Verdana" << 9 << 50 << false;
    QTest::newRow("dashes cut the family") << "Noto-Sans-10:normal"
                                           << "Noto" << toolkitSize << 50 << false;
}

void TestRoleFontText::parsing()
{
    QFETCH(QString, text);
    const QFont font = textToFont(text);
    QTEST(font.family(), "family");
    QTEST(font.pointSize(), "size");
    QTEST(font.weight(), "weight");
    QTEST(font.italic(), "italic");
}

void TestRoleFontText::writingTellsTheResolvedFont_data()
{
    QTest::addColumn<QFont>("font");
    QTest::addColumn<QString>("text");
    const QString sans = QStringLiteral("DejaVu Sans");
    QTest::newRow("normal") << QFont(sans, 10) << "DejaVu Sans-10:normal";
    QTest::newRow("bold") << QFont(sans, 12, QFont::Bold) << "DejaVu Sans-12:bold";
    QTest::newRow("italic") << QFont(QStringLiteral("DejaVu Sans Mono"), 9, QFont::Normal, true)
                            << "DejaVu Sans Mono-9:normal:italic";
    QTest::newRow("too large to resolve") << QFont(sans, 100000) << "DejaVu Sans-100000:normal";
    const QFont missing(QStringLiteral("No such family"), 11, QFont::Bold);
    QTest::newRow("a family that is not installed")
        << missing << QFontInfo(missing).family() + QLatin1String("-11:bold");
}

void TestRoleFontText::writingTellsTheResolvedFont()
{
    QFETCH(QFont, font);
    QTEST(fontToText(font), "text");
}

void TestRoleFontText::familyDisplay_data()
{
    QTest::addColumn<QString>("family");
    QTest::addColumn<QString>("shown");
    QTest::newRow("plain") << "DejaVu Sans"
                           << "DejaVu Sans";
    QTest::newRow("foundry") << "Nimbus Sans [ URW ]"
                             << "Nimbus Sans[URW]";
    QTest::newRow("bracket left open") << "Fixed [misc"
                                       << "Fixed[misc]";
    QTest::newRow("empty foundry") << "Fixed []"
                                   << "Fixed";
}

void TestRoleFontText::familyDisplay()
{
    QFETCH(QString, family);
    QTEST(familyDisplayName(family), "shown");
}

QTEST_MAIN(TestRoleFontText)
#include "tst_rolefonttext.moc"
