#include "fonts/fontuseitem.h"

#include "fonts/nearestfont.h"
#include "fonts/rolefonttext.h"

#include <QFontDatabase>
#include <QFontInfo>
#include <QLabel>
#include <QSignalSpy>
#include <QtTest>

namespace {

const QString sans = QStringLiteral("DejaVu Sans");
const QString mono = QStringLiteral("DejaVu Sans Mono");

class TitleItem : public FontUseItem
{
public:
    explicit TitleItem(const QFont &font, bool onlyFixed = false)
        : FontUseItem(nullptr, QStringLiteral("Title"), {}, QStringLiteral("TitleFont"), {}, font, onlyFixed)
    {
        restoreDefault();
    }
};

} // namespace

class TestFontUseItem : public QObject
{
    Q_OBJECT
private slots:
    void storedTextsAreRead_data()
    {
        QTest::addColumn<QString>("form");
        QTest::addColumn<QString>("read");
        const auto row = [](const char *text, const char *form, const char *read) {
            QTest::newRow(text) << QString::fromLatin1(form) << QString::fromLatin1(read);
        };
        row("Verdana-10:bold:italic", "role", "Verdana 10 75 1");
        row("Verdana-10:normal", "role", "Verdana 10 50 0");
        row("Verdana-10", "role", "Verdana 10 50 0");
        row("Verdana-9:Bold:Italic", "role", "Verdana 9 50 0");
        row("Noto-Sans-10:bold:", "role", "Noto 12 75 0"); // no size: the toolkit's
        row("a*b::", "role", "a*b 12 50 0");
        row("Noto-Sans-10:normal", "", "Default 7 50 0");
        row("Verdana*", "", "Default 7 50 0");
        row("Verdana", "", "Default 7 50 0");
        row("", "", "Default 7 50 0");
        row("Verdana-*", "xlfd", "Default 7 50 0");
        row("-misc-fixed-medium-r-normal--13-120-75-75-c-70-iso8859-1", "xlfd", "Default 7 50 0");
    }
    void storedTextsAreRead()
    {
        const QString text = QString::fromLatin1(QTest::currentDataTag());
        QTEST(QLatin1String(isXlfdName(text) ? "xlfd" : "") + QLatin1String(isFontText(text) ? "role" : ""),
              "form");
        const QFont font = storedRoleFont(text, QFont(QStringLiteral("Default"), 7));
        const QString numbers = QStringLiteral(" %1 %2 %3");
        QTEST(font.family() + numbers.arg(font.pointSize()).arg(font.weight()).arg(font.italic()), "read");
    }

    void writtenTextsTellTheResolvedFont()
    {
        QCOMPARE(fontToText(QFont(sans, 10)), QStringLiteral("DejaVu Sans-10:normal"));
        QCOMPARE(fontToText(QFont(mono, 9, QFont::Bold, true)),
                 QStringLiteral("DejaVu Sans Mono-9:bold:italic"));
        // Too large to resolve: the request is kept.
        QCOMPARE(fontToText(QFont(sans, 100000)), QStringLiteral("DejaVu Sans-100000:normal"));
        const QFont missing(QStringLiteral("No such family"), 11, QFont::Bold);
        QCOMPARE(fontToText(missing), QFontInfo(missing).family() + QLatin1String("-11:bold"));
    }

    void familiesAreShownWithTheirFoundry()
    {
        const auto shown = [](const char *family) { return familyDisplayName(QString::fromLatin1(family)); };
        QCOMPARE(shown(" DejaVu Sans"), sans);
        QCOMPARE(shown("Nimbus Sans [ URW ]"), QStringLiteral("Nimbus Sans[URW]"));
        QCOMPARE(shown("Fixed [misc"), QStringLiteral("Fixed[misc]"));
        QCOMPARE(shown("Fixed []"), QStringLiteral("Fixed"));
    }

    void bitmapFontsTakeTheNearestSize()
    {
        QCOMPARE(nearestSize({9, 12, 15}, 15), 15);
        QCOMPARE(nearestSize({9, 12, 15}, 11), 12);
        QCOMPARE(nearestSize({9, 12, 15}, 13), 12);
        QCOMPARE(nearestSize({10, 12}, 11), 10);
        QCOMPARE(nearestSize({}, 11), 11);
        QCOMPARE(nearestSize({9}, 1009), 1009);
    }

    void installedFontsKeepTheirFace()
    {
        // The family has condensed faces of the same weights on many machines.
        for (const QFont &font :
             {QFont(sans, 10), QFont(sans, 11, QFont::Bold), QFont(mono, 47, QFont::Bold)}) {
            const QFont nearest = nearestInstalledFont(font);
            QCOMPARE(fontToText(nearest), fontToText(font));
            QVERIFY2(!QFontInfo(nearest).styleName().contains(QLatin1String("Condensed")),
                     qPrintable(nearest.toString()));
        }
        const QFont substitute = nearestInstalledFont(QFont(QStringLiteral("No such family"), 13));
        QVERIFY2(QFontDatabase().families().contains(substitute.family()), qPrintable(substitute.family()));
        QCOMPARE(substitute.pointSize(), 13);
    }

    void chosenFontArrivesInEveryRole_data()
    {
        QTest::addColumn<QFont>("chosen");
        QTest::addColumn<QString>("text");
        const auto row = [](const char *name, const QFont &chosen, const char *text) {
            QTest::newRow(name) << chosen << QLatin1String("DejaVu Sans Mono-") + QLatin1String(text);
        };
        row("bold and italic", QFont(mono, 13, QFont::Bold, true), "13:bold:italic");
        row("light counts as normal", QFont(mono, 8, QFont::Light), "8:normal");
        row("from 58 on it is bold", QFont(mono, 9, 58), "9:bold");
        QFont font(mono, 9);
        font.setStyle(QFont::StyleOblique);
        row("oblique counts as italic", font, "9:normal:italic");
        font = QFont(mono, 9, QFont::Bold);
        font.setStyleName(QStringLiteral("Bold"));
        row("with a style name", font, "9:bold");
    }
    void chosenFontArrivesInEveryRole()
    {
        QFETCH(QFont, chosen);
        TitleItem item(QFont(sans, 10));
        QSignalSpy selected(&item, &FontUseItem::fontSelected);
        item.applyChosenFont(chosen);
        QTEST(fontToText(item.font()), "text");
        QCOMPARE(selected.size(), 1);

        TitleItem fixed(chosen, true);
        fixed.applyChosenFont(QFont(sans, 20));
        QCOMPARE(fontToText(fixed.font()), QStringLiteral("DejaVu Sans Mono-20:normal"));
    }

    void previewNeverWidensThePage()
    {
        TitleItem item(QFont(sans, 10));
        const QSize before = item.minimumSizeHint();
        item.setFont(QFont(mono, 200), false);
        QCOMPARE(item.findChild<QLabel *>()->text(), QStringLiteral("DejaVu Sans Mono 200"));
        QCOMPARE(item.minimumSizeHint().width(), before.width());
        QVERIFY(item.minimumSizeHint().height() <= 2 * before.height());
        QVERIFY(item.sizeHint().height() > 200);
    }
};

QTEST_MAIN(TestFontUseItem)
#include "tst_fontuseitem.moc"
