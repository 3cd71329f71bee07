#include "settings/colortexts.h"
#include "settings/rolefonttext.h"
#include "tests/support/rows.h"

class TestStoredTexts : public QObject
{
    Q_OBJECT
private slots:
    void oldColorNamesAreTranslated()
    {
        // Stored, the colour of an element, the colour of the desktop behind a wallpaper, if any.
        for (const QStringList &row : rowsOf("settings/colornames.json"_s)) {
            const QString stored = row[0];
            const QColor desktop = desktopColor(stored);
            QCOMPARE(currentColorText(stored, "#123456"_s), row[1]);
            QCOMPARE(desktop.isValid() ? desktop.name() : QString(), row[2]);
        }
    }

    void storedTextsAreRead()
    {
        // Stored, its form, and family, size, weight and italic of the font; "Default 7" when none is read.
        for (const QStringList &row : rowsOf("settings/rolefonts.json"_s)) {
            const QString text = row[0];
            const QString form = "xlfd"_s.repeated(isXlfdName(text)) + "role"_s.repeated(isFontText(text));
            const QFont font = storedRoleFont(text, QFont("Default"_s, 7));
            QCOMPARE(form, row[1]);
            QCOMPARE(font.family()
                         + " %1 %2 %3"_s.arg(font.pointSize()).arg(font.weight()).arg(font.italic()),
                     row[2]);
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
