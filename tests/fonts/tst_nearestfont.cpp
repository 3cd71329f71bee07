#include "fonts/nearestfont.h"

#include "fonts/fontuseitem.h"
#include "fonts/rolefonttext.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QLabel>
#include <QSignalSpy>
#include <QtTest>

class TestNearestFont : public QObject
{
    Q_OBJECT
private slots:
    void nearestSizeOfABitmapFont_data();
    void nearestSizeOfABitmapFont();
    void installedFontsKeepTheirFace_data();
    void installedFontsKeepTheirFace();
    void missingFamiliesGiveWay();
    void chosenFontArrivesInEveryRole_data();
    void chosenFontArrivesInEveryRole();
    void previewNeverWidensThePage();
};

void TestNearestFont::nearestSizeOfABitmapFont_data()
{
    QTest::addColumn<QList<int>>("sizes");
    QTest::addColumn<int>("wanted");
    QTest::addColumn<int>("nearest");
    QTest::newRow("offered") << QList<int>{9, 12, 15} << 15 << 15;
    QTest::newRow("below") << QList<int>{9, 12, 15} << 11 << 12;
    QTest::newRow("above") << QList<int>{9, 12, 15} << 13 << 12;
    QTest::newRow("the first of equal distances") << QList<int>{10, 12} << 11 << 10;
    QTest::newRow("none offered") << QList<int>() << 11 << 11;
    QTest::newRow("none within the bound") << QList<int>{9} << 1009 << 1009;
}

void TestNearestFont::nearestSizeOfABitmapFont()
{
    QFETCH(QList<int>, sizes);
    QFETCH(int, wanted);
    QTEST(nearestSize(sizes, wanted), "nearest");
}

void TestNearestFont::installedFontsKeepTheirFace_data()
{
    QTest::addColumn<QString>("text");
    // The family has condensed faces of the same weights on many machines.
    QTest::newRow("normal") << "DejaVu Sans-10:normal";
    QTest::newRow("bold") << "DejaVu Sans-11:bold";
    QTest::newRow("fixed pitch, odd size") << "DejaVu Sans Mono-47:bold";
}

void TestNearestFont::installedFontsKeepTheirFace()
{
    QFETCH(QString, text);
    const QFont font = nearestInstalledFont(textToFont(text));
    QCOMPARE(fontToText(font), text);
    QVERIFY2(!QFontInfo(font).styleName().contains(QLatin1String("Condensed")), qPrintable(font.toString()));
}

void TestNearestFont::missingFamiliesGiveWay()
{
    const QFont font = nearestInstalledFont(QFont(QStringLiteral("No such family"), 13));
    QVERIFY2(QFontDatabase().families().contains(font.family()), qPrintable(font.family()));
    QCOMPARE(font.pointSize(), 13);
}

void TestNearestFont::chosenFontArrivesInEveryRole_data()
{
    QTest::addColumn<QFont>("chosen");
    QTest::addColumn<QString>("text");
    const QString mono = QStringLiteral("DejaVu Sans Mono");
    QTest::newRow("bold and italic") << QFont(mono, 13, QFont::Bold, true)
                                     << "DejaVu Sans Mono-13:bold:italic";
    QTest::newRow("light counts as normal") << QFont(mono, 8, QFont::Light) << "DejaVu Sans Mono-8:normal";
    QTest::newRow("from 58 on it is bold") << QFont(mono, 9, 58) << "DejaVu Sans Mono-9:bold";
    QFont oblique(mono, 9);
    oblique.setStyle(QFont::StyleOblique);
    QTest::newRow("oblique counts as italic") << oblique << "DejaVu Sans Mono-9:normal:italic";
    QFont named(mono, 9, QFont::Bold);
    named.setStyleName(QStringLiteral("Bold"));
    QTest::newRow("with a style name") << named << "DejaVu Sans Mono-9:bold";
}

void TestNearestFont::chosenFontArrivesInEveryRole()
{
    QFETCH(QFont, chosen);
    const QFont before(QStringLiteral("DejaVu Sans"), 10);
    FontUseItem item(nullptr, QStringLiteral("Title"), {}, QStringLiteral("TitleFont"), {}, before);
    item.restoreDefault();
    QSignalSpy selected(&item, &FontUseItem::fontSelected);
    item.applyChosenFont(chosen);
    QTEST(fontToText(item.font()), "text");
    QCOMPARE(selected.size(), 1);

    FontUseItem fixed(nullptr, QStringLiteral("Console"), {}, QStringLiteral("ConsoleFont"), {}, chosen,
                      true);
    fixed.restoreDefault();
    fixed.applyChosenFont(QFont(QStringLiteral("DejaVu Sans"), 20));
    QCOMPARE(fontToText(fixed.font()), QStringLiteral("DejaVu Sans Mono-20:normal"));
}

void TestNearestFont::previewNeverWidensThePage()
{
    const QFont small(QStringLiteral("DejaVu Sans"), 10);
    FontUseItem item(nullptr, QStringLiteral("Title"), {}, QStringLiteral("TitleFont"), {}, small);
    item.restoreDefault();
    const QSize before = item.minimumSizeHint();
    item.setFont(QFont(QStringLiteral("DejaVu Sans Mono"), 200), false);
    QCOMPARE(item.findChild<QLabel *>()->text(), QStringLiteral("DejaVu Sans Mono 200"));
    QVERIFY2(item.sizeHint().height() > 200, qPrintable(QString::number(item.sizeHint().height())));
    QCOMPARE(item.minimumSizeHint().width(), before.width());
    QVERIFY2(item.minimumSizeHint().height() <= 2 * before.height(),
             qPrintable(QString::number(item.minimumSizeHint().height())));
}

QTEST_MAIN(TestNearestFont)
#include "tst_nearestfont.moc"
