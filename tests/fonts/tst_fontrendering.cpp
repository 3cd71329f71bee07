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
    const QString kind = item ? QString::number(int(item->kind)) : QString();
    return item ? kind + QStringLiteral(" %1 %2-%3").arg(item->text).arg(item->range.from).arg(item->range.to)
                : QString();
}

/// The points and pixels that \a points and \a pixels agree on, and whether they are to be written.
QString agreed(ExcludeRange points, ExcludeRange pixels, double dpi = 96)
{
    const bool toBeWritten = bringIntoAgreement(&points, &pixels, dpi);
    return QStringLiteral("%1-%2 %3-%4 %5")
        .arg(points.from)
        .arg(points.to)
        .arg(pixels.from)
        .arg(pixels.to)
        .arg(toBeWritten);
}

} // namespace

class TestFontRendering : public QObject
{
    Q_OBJECT
private slots:
    void namesConvertBothWays()
    {
        QStringList names;
        for (int i = 0; i <= int(SubPixelOrder::Count); ++i) {
            const auto order = SubPixelOrder(i);
            names += FontRendering::fileName(order) + QLatin1Char('=') + FontRendering::displayName(order);
            QCOMPARE(int(FontRendering::subPixelOrder(names.last().section(QLatin1Char('='), 0, 0))), i % 5);
        }
        for (int i = 0; i < int(HintStyle::Count); ++i) {
            const auto style = HintStyle(i);
            names += FontRendering::fileName(style) + QLatin1Char('=') + FontRendering::displayName(style);
            QCOMPARE(int(FontRendering::hintStyle(names.last().section(QLatin1Char('='), 0, 0))), i ? i : 3);
        }
        QCOMPARE(names.join(QLatin1Char(' ')),
                 QStringLiteral("none=None rgb=RGB bgr=BGR vrgb=Vertical RGB vbgr=Vertical BGR none=None "
                                "hintmedium=Medium hintnone=None hintslight=Slight hintmedium=Medium "
                                "hintfull=Full"));
        QCOMPARE(FontRendering::subPixelOrder(QStringLiteral("RGB")), SubPixelOrder::None);
        QCOMPARE(FontRendering::hintStyle(QString()), HintStyle::NotSet);
    }

    void rangesAgree()
    {
        QCOMPARE(agreed({}, {}), QStringLiteral("0-0 0-0 0"));
        QCOMPARE(agreed({1, 2}, {8, 15}), QStringLiteral("6-11 8-15 1")); // pixels win
        QCOMPARE(agreed({6, 11}, {8, 15}), QStringLiteral("6-11 8-15 1"));
        QCOMPARE(agreed({6, 11}, {}), QStringLiteral("6-11 8-15 1"));
        QCOMPARE(agreed({6, 11}, {}, 120), QStringLiteral("6-11 10-18 1"));
        QCOMPARE(agreed({}, {8.4, 15.5}, 72), QStringLiteral("8-16 8.4-15.5 1"));
        QCOMPARE(agreed({0, 0.3}, {}), QStringLiteral("0-0.3 0-0 0")); // less than a pixel
        QCOMPARE(agreed({}, {8, 1e300}, 72), QStringLiteral("8-1e+300 8-1e+300 1"));
    }

    void writtenFormsReadBack()
    {
        QCOMPARE(reading(valueForm(Kind::SubPixel, QStringLiteral("vbgr"))), QStringLiteral("1 vbgr 0-0"));
        QCOMPARE(reading(valueForm(Kind::Hinting, QStringLiteral("false"))), QStringLiteral("3 false 0-0"));
        QCOMPARE(reading(excludeForm(Kind::ExcludePoints, {0, 8.25})), QStringLiteral("5  0-8.25"));
        QCOMPARE(excludeForm(Kind::ExcludePixels, {8, 14.12345678}),
                 QStringLiteral(
                     "<match target=\"font\">\n"
                     "\t<test qual=\"any\" name=\"pixelsize\" compare=\"more_eq\">\n"
                     "\t\t<double>8</double>\n\t</test>\n"
                     "\t<test qual=\"any\" name=\"pixelsize\" compare=\"less_eq\">\n"
                     "\t\t<double>14.1235</double>\n\t</test>\n\t<edit mode=\"assign\" name=\"antialias\">\n"
                     "\t\t<bool>false</bool>\n\t</edit>\n</match>"));
        const QString home = QStringLiteral("/home/me");
        QCOMPARE(directoryForm(home + QLatin1String("/a&b/"), home), QStringLiteral("<dir>~/a&amp;b</dir>"));
        QCOMPARE(directoryForm(home + QLatin1String("lon/"), home), QStringLiteral("<dir>/home/melon</dir>"));
        QCOMPARE(reading(QStringLiteral("<dir>~//fonts</dir>")), QStringLiteral("0 /home/me/fonts/ 0-0"));
    }

    void boundsMayStandInAnyOrder()
    {
        const auto match = [](const char *compare, const char *value, const char *otherCompare) {
            return reading(
                QStringLiteral("<match target='font'><test qual='any' name='size' compare='%1'><double>"
                               "%2</double></test><test qual='any' name='size' compare='%3'><double>3"
                               "</double></test><edit mode='assign' name='antialias'><bool>false"
                               "</bool></edit></match>")
                    .arg(QLatin1String(compare), QLatin1String(value), QLatin1String(otherCompare)));
        };
        QCOMPARE(match("less", "9", "more"), QStringLiteral("5  3-9"));
        QCOMPARE(match("less", "9", "less_eq"), QString());
        QCOMPARE(match("less", "9", "eq"), QString());
        QCOMPARE(match("less", "nan", "more"), QString());
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
        QString stripes;
        for (int i = 1; i < int(SubPixelOrder::Count); ++i) {
            const QImage image = subPixelSwatch(SubPixelOrder(i)).toImage();
            QCOMPARE(image.size(), QSize(12, 12));
            for (const int at : {1, 6, 10}) {
                const QColor color = i > 2 ? image.pixelColor(3, at) : image.pixelColor(at, 3);
                const int most = qMax(color.red(), qMax(color.green(), color.blue()));
                stripes += QLatin1Char(most == color.red() ? 'r' : most == color.green() ? 'g' : 'b');
            }
        }
        QCOMPARE(stripes, QStringLiteral("rgbbgrrgbbgr"));
    }
};

QTEST_MAIN(TestFontRendering)
#include "tst_fontrendering.moc"
