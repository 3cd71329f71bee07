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
        const std::tuple<QString, const char *, QString> rows[] = {
            {"Verdana-10:bold:italic"_s, "role", "Verdana 10 75 1"_s},
            {"Verdana-10"_s, "role", "Verdana 10 50 0"_s},
            {"Verdana-9:Bold:Italic"_s, "role", "Verdana 9 50 0"_s},
            {"Noto-Sans-10:bold:"_s, "role", "Noto 12 75 0"_s}, // no size: the toolkit's
            {"a*b::"_s, "role", "a*b 12 50 0"_s},
            {"Noto-Sans-10:normal"_s, "", "Default 7 50 0"_s},
            {"Verdana*"_s, "", "Default 7 50 0"_s},
            {""_s, "", "Default 7 50 0"_s},
            {"Verdana-*"_s, "xlfd", "Default 7 50 0"_s},
            {"-misc-fixed-medium-r-normal--13-120-75-75-c-70-iso8859-1"_s, "xlfd", "Default 7 50 0"_s}};
        for (const auto &[text, form, read] : rows) {
            QCOMPARE(QByteArray(isXlfdName(text) ? "xlfd" : "") + (isFontText(text) ? "role" : ""),
                     QByteArray(form));
            const QFont font = storedRoleFont(text, QFont("Default"_s, 7));
            QCOMPARE("%1 %2 %3 %4"_s.arg(font.family())
                         .arg(font.pointSize())
                         .arg(font.weight())
                         .arg(font.italic()),
                     read);
        }
    }

    void writtenTextsTellTheResolvedFont()
    {
        const QString sans = "DejaVu Sans"_s, mono = "DejaVu Sans Mono"_s;
        QCOMPARE(fontToText(QFont(sans, 10)), "DejaVu Sans-10:normal"_s);
        QCOMPARE(fontToText(QFont(mono, 9, QFont::Bold, true)), "DejaVu Sans Mono-9:bold:italic"_s);
        // Too large to resolve: the request is kept.
        QCOMPARE(fontToText(QFont(sans, 100000)), "DejaVu Sans-100000:normal"_s);
        const QFont missing("No such family"_s, 11, QFont::Bold);
        QCOMPARE(fontToText(missing), QFontInfo(missing).family() + QLatin1String("-11:bold"));
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
