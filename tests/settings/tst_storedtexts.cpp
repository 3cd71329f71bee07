#include "settings/colortexts.h"
#include "settings/rolefonttext.h"
#include "settings/wallpapertexts.h"
#include "tests/support/literals.h"

#include <QFontInfo>
#include <QtTest>

class TestStoredTexts : public QObject
{
    Q_OBJECT
private slots:
    void oldColorNamesAreTranslated()
    {
        // Stored, the colour of an element, the colour of the desktop behind a wallpaper (- none).
        const QString rows
            = "qvgray #c0c0c0 #c0c0c0|qvgrey #c0c0c0 #c0c0c0|qvdarkgray #606060 #606060|"
              "qvdarkgrey #606060 #606060|qvlightray light/gray #dfdfdf|qvblue #000080 #0000ff|"
              "qvlightblue #a6caf0 #a6caf0|qvroyalblue #3a6ea5 #3a6ea5|qvyellow #f5db95 #f5db95|"
              "qvlightyellow #ffffe1 #ffffe1|Qt #123456 -|qt #123456 -|QT QT -|blue blue #0000ff|"
              "#12Ab34 #12Ab34 #12ab34|qvlightgray qvlightgray -|QvBlue QvBlue -|  -"_s;
        for (const QString &row : rows.split(u'|')) {
            const QString stored = row.section(u' ', 0, 0);
            const QColor desktop = desktopColor(stored);
            QCOMPARE(stored + u' ' + currentColorText(stored, "#123456"_s).replace(u' ', u'/') + u' '
                         + (desktop.isValid() ? desktop.name() : "-"_s),
                     row);
        }
    }

    void positionsHaveWords()
    {
        for (Fit fit : {Fit::Center, Fit::Tile, Fit::Stretch})
            QCOMPARE(fitFromWord(wordFromFit(fit)), fit);
        QCOMPARE(fitFromWord("stretch"_s), Fit::Center);
    }

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
        const QString sans = "DejaVu Sans"_s, mono = "DejaVu Sans Mono"_s;
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
        QCOMPARE(shown(" DejaVu Sans"), QStringLiteral("DejaVu Sans"));
        QCOMPARE(shown("Nimbus Sans [ URW ]"), QStringLiteral("Nimbus Sans[URW]"));
        QCOMPARE(shown("Fixed [misc"), QStringLiteral("Fixed[misc]"));
        QCOMPARE(shown("Fixed []"), QStringLiteral("Fixed"));
    }
};

QTEST_MAIN(TestStoredTexts)
#include "tst_storedtexts.moc"
