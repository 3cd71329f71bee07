#include "settings/colortexts.h"
#include "settings/rolefonttext.h"
#include "tests/support/testing.h"

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

    void storedTextsAreRead()
    {
        // Stored, its form, and family, size, weight and italic of the font; "Default 7" when none is read.
        const QString rows
            = "Verdana-10:bold:italic role Verdana 10 75 1|Verdana-10 role Verdana 10 50 0|"
              "Verdana-9:Bold:Italic role Verdana 9 50 0|Noto-Sans-10:bold: role Noto 12 75 0|" // no size: the toolkit's
              "a*b:: role a*b 12 50 0|Noto-Sans-10:normal  Default 7 50 0|Verdana*  Default 7 50 0|"
              "  Default 7 50 0|Verdana-* xlfd Default 7 50 0|"
              "-misc-fixed-medium-r-normal--13-120-75-75-c-70-iso8859-1 xlfd Default 7 50 0"_s;
        for (const QString &row : rows.split(u'|')) {
            const QString text = row.section(u' ', 0, 0);
            const QString form = "xlfd"_s.repeated(isXlfdName(text)) + "role"_s.repeated(isFontText(text));
            const QFont font = storedRoleFont(text, QFont("Default"_s, 7));
            QCOMPARE(text + u' ' + form + u' ' + font.family()
                         + " %1 %2 %3"_s.arg(font.pointSize()).arg(font.weight()).arg(font.italic()),
                     row);
        }
    }

    void writtenTextsTellTheResolvedFont()
    {
        const QFont missing("No such family"_s, 1, QFont::Bold);
        QString texts;
        for (const QFont &font :
             {QFont("DejaVu Sans"_s, 10), QFont("DejaVu Sans Mono"_s, 9, QFont::Bold, true), missing,
              QFont("DejaVu Sans"_s, 100000)}) // too large to resolve: the request is kept
            texts += fontToText(font) + u'|';
        QCOMPARE(
            texts,
            "DejaVu Sans-10:normal|DejaVu Sans Mono-9:bold:italic|%1-1:bold|DejaVu Sans-100000:normal|"_s.arg(
                QFontInfo(missing).family()));
    }

    void familiesAreShownWithTheirFoundry()
    {
        QString shown;
        for (const QString &family :
             {" DejaVu Sans"_s, "Nimbus Sans [ URW ]"_s, "Fixed [misc"_s, "Fixed []"_s})
            shown += familyDisplayName(family) + u'|';
        QCOMPARE(shown, "DejaVu Sans|Nimbus Sans[URW]|Fixed[misc]|Fixed|"_s);
    }
};

QTEST_MAIN(TestStoredTexts)
#include "tst_storedtexts.moc"
