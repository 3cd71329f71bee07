#include "fonts/fontrendering.h"
#include "fonts/fontsitem.h"
#include "fonts/lcdfiltering.h"
#include "fonts/subpixelswatch.h"

#include <QtTest>

namespace {

using Kind = FontsItem::Kind;

/// What an element reads as, in short; empty for none of ours.
QString reading(const QString &xml)
{
    QDomDocument document;
    document.setContent(xml);
    const auto item = readFontsItem(document.documentElement(), QStringLiteral("/home/me"));
    if (!item)
        return {};
    return QStringLiteral("%1 %2 %3-%4")
        .arg(QString::number(int(item->kind)), item->text, QString::number(item->range.from),
             QString::number(item->range.to));
}

QString bound(const char *name, const char *compare, const char *value)
{
    return QStringLiteral("<test qual=\"any\" name=\"%1\" compare=\"%2\"><double>%3</double></test>")
        .arg(QLatin1String(name), QLatin1String(compare), QLatin1String(value));
}

} // namespace

class TestFontRendering : public QObject
{
    Q_OBJECT
private slots:
    void namesConvertBothWays()
    {
        QStringList names;
        for (int i = 0; i < int(SubPixelOrder::Count); ++i) {
            const auto order = SubPixelOrder(i);
            names += FontRendering::fileName(order) + QLatin1Char('=') + FontRendering::displayName(order);
            QCOMPARE(FontRendering::subPixelOrder(FontRendering::fileName(order)), order);
        }
        for (int i = 1; i < int(HintStyle::Count); ++i) {
            const auto style = HintStyle(i);
            names += FontRendering::fileName(style) + QLatin1Char('=') + FontRendering::displayName(style);
            QCOMPARE(FontRendering::hintStyle(FontRendering::fileName(style)), style);
        }
        QCOMPARE(names.join(QLatin1Char(' ')),
                 QStringLiteral("none=None rgb=RGB bgr=BGR vrgb=Vertical RGB vbgr=Vertical BGR "
                                "hintnone=None hintslight=Slight hintmedium=Medium hintfull=Full"));
    }

    void unknownNamesHaveAFallback()
    {
        QCOMPARE(FontRendering::fileName(SubPixelOrder(7)), QStringLiteral("none"));
        QCOMPARE(FontRendering::fileName(HintStyle(-1)), QStringLiteral("hintmedium"));
        QCOMPARE(FontRendering::fileName(HintStyle::NotSet), QStringLiteral("hintmedium"));
        QCOMPARE(FontRendering::subPixelOrder(QStringLiteral("RGB")), SubPixelOrder::None);
        QCOMPARE(FontRendering::hintStyle(QString()), HintStyle::NotSet);
    }

    void rangesAgree_data()
    {
        QTest::addColumn<QPointF>("points");
        QTest::addColumn<QPointF>("pixels");
        QTest::addColumn<double>("dpi");
        QTest::addColumn<QPointF>("agreedPoints");
        QTest::addColumn<QPointF>("agreedPixels");
        QTest::addColumn<bool>("toBeWritten");
        const QPointF none;
        QTest::newRow("nothing") << none << none << 96.0 << none << none << false;
        QTest::newRow("pixels win") << QPointF(1, 2) << QPointF(8, 15) << 96.0 << QPointF(6, 11)
                                    << QPointF(8, 15) << true;
        QTest::newRow("pixels that agree")
            << QPointF(6, 11) << QPointF(8, 15) << 96.0 << QPointF(6, 11) << QPointF(8, 15) << true;
        QTest::newRow("points") << QPointF(6, 11) << none << 96.0 << QPointF(6, 11) << QPointF(8, 15) << true;
        QTest::newRow("points, 120 dpi")
            << QPointF(6, 11) << none << 120.0 << QPointF(6, 11) << QPointF(10, 18) << true;
        QTest::newRow("pixels, 72 dpi")
            << none << QPointF(8.4, 15.5) << 72.0 << QPointF(8, 16) << QPointF(8.4, 15.5) << true;
        QTest::newRow("less than a pixel")
            << QPointF(0, 0.3) << none << 96.0 << QPointF(0, 0.3) << none << false;
        QTest::newRow("open at the top")
            << none << QPointF(8, 1e300) << 72.0 << QPointF(8, 1e300) << QPointF(8, 1e300) << true;
    }
    void rangesAgree()
    {
        QFETCH(QPointF, points);
        QFETCH(QPointF, pixels);
        QFETCH(double, dpi);
        ExcludeRange inPoints{points.x(), points.y()};
        ExcludeRange inPixels{pixels.x(), pixels.y()};
        QTEST(bringIntoAgreement(&inPoints, &inPixels, dpi), "toBeWritten");
        QTEST(QPointF(inPoints.from, inPoints.to), "agreedPoints");
        QTEST(QPointF(inPixels.from, inPixels.to), "agreedPixels");
    }

    void writtenFormsReadBack()
    {
        QCOMPARE(reading(valueForm(Kind::SubPixel, QStringLiteral("vbgr"))), QStringLiteral("1 vbgr 0-0"));
        QCOMPARE(reading(valueForm(Kind::HintStyle, QStringLiteral("hintfull"))),
                 QStringLiteral("2 hintfull 0-0"));
        QCOMPARE(reading(valueForm(Kind::Hinting, QStringLiteral("false"))), QStringLiteral("3 false 0-0"));
        QCOMPARE(reading(valueForm(Kind::AntiAliasing, QStringLiteral("true"))),
                 QStringLiteral("4 true 0-0"));
        QCOMPARE(reading(excludeForm(Kind::ExcludePoints, {0, 8.25})), QStringLiteral("5  0-8.25"));
        QCOMPARE(
            excludeForm(Kind::ExcludePixels, {8, 14.12345678}),
            QStringLiteral("<match target=\"font\">\n"
                           "\t<test qual=\"any\" name=\"pixelsize\" compare=\"more_eq\">\n"
                           "\t\t<double>8</double>\n\t</test>\n"
                           "\t<test qual=\"any\" name=\"pixelsize\" compare=\"less_eq\">\n"
                           "\t\t<double>14.1235</double>\n\t</test>\n"
                           "\t<edit mode=\"assign\" name=\"antialias\">\n\t\t<bool>false</bool>\n\t</edit>\n"
                           "</match>"));
        QCOMPARE(directoryForm(QStringLiteral("/home/me/a&b/"), QStringLiteral("/home/me")),
                 QStringLiteral("<dir>~/a&amp;b</dir>"));
        QCOMPARE(directoryForm(QStringLiteral("/home/melon/"), QStringLiteral("/home/me")),
                 QStringLiteral("<dir>/home/melon</dir>"));
        QCOMPARE(reading(QStringLiteral("<dir>~//fonts</dir>")), QStringLiteral("0 /home/me/fonts/ 0-0"));
    }

    void boundsMayStandInAnyOrder()
    {
        const QString edit = QStringLiteral(
            "<edit mode=\"assign\" name=\"antialias\"><bool>false</bool></edit>");
        const auto match = [&edit](const QString &one, const QString &other) {
            return reading(QLatin1String("<match target='font'>") + one + other + edit
                           + QLatin1String("</match>"));
        };
        QCOMPARE(match(bound("size", "less", "9"), bound("size", "more", "3")), QStringLiteral("5  3-9"));
        QVERIFY(match(bound("size", "less", "9"), bound("size", "less_eq", "3")).isEmpty());
        QVERIFY(match(bound("size", "less", "9"), bound("size", "eq", "3")).isEmpty());
        QVERIFY(match(bound("size", "less", "nan"), bound("size", "more", "3")).isEmpty());
    }

    void uncertainAnswerIsAskedForAgain()
    {
        QVector<LcdFiltering> answers = {LcdFiltering::Unknown, LcdFiltering::No, LcdFiltering::Yes};
        LcdFilterSupport support([&answers] { return answers.takeFirst(); });
        QVERIFY(support.isSupported());
        QVERIFY(!support.isSupported());
        QVERIFY(!support.isSupported());
        QCOMPARE(answers.size(), 1);
    }

    void swatchesShowTheStripes()
    {
        QStringList stripes;
        for (int i = 1; i < int(SubPixelOrder::Count); ++i) {
            const QImage image = subPixelSwatch(SubPixelOrder(i)).toImage();
            QCOMPARE(image.size(), QSize(12, 12));
            const bool isVertical = SubPixelOrder(i) == SubPixelOrder::VerticalRgb
                                    || SubPixelOrder(i) == SubPixelOrder::VerticalBgr;
            QString order;
            for (const int at : {1, 6, 10}) {
                const QColor color = isVertical ? image.pixelColor(3, at) : image.pixelColor(at, 3);
                const int most = qMax(color.red(), qMax(color.green(), color.blue()));
                order += QLatin1Char(most == color.red() ? 'r' : most == color.green() ? 'g' : 'b');
            }
            stripes += order;
        }
        QCOMPARE(stripes.join(QLatin1Char(' ')), QStringLiteral("rgb bgr rgb bgr"));
        QVERIFY(subPixelSwatch(SubPixelOrder::None).isNull());
    }
};

QTEST_MAIN(TestFontRendering)
#include "tst_fontrendering.moc"
