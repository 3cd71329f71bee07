#include "fonts/fontuseitem.h"

#include "fonts/nearestfont.h"
#include "settings/rolefonttext.h"
#include "tests/support/standarderror.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/testing.h"

#include <fontconfig/fontconfig.h>

namespace {

const QString sans = "DejaVu Sans"_s;
const QString mono = "DejaVu Sans Mono"_s;
QString generalFamily = "Sans Serif"_s;

} // namespace

/// In place of the toolkit's own.
QFont QFontDatabase::systemFont(SystemFont)
{
    return QFont(generalFamily);
}

class TestFontUseItem : public QObject
{
    Q_OBJECT
private slots:
    void bitmapFontsTakeTheNearestSize()
    {
        const QList<int> sizes{nearestSize({9, 12, 15}, 11), nearestSize({9, 12, 15}, 13),
                               nearestSize({1000, 1002}, 1001), nearestSize({}, 11), nearestSize({9}, 1009)};
        QCOMPARE(sizes, (QList<int>{12, 12, 1000, 11, 1009}));
    }

    void installedFontsKeepTheirFace()
    {
        // The family has condensed faces of the same weights on many machines.
        for (const QFont &font :
             {QFont(sans, 10), QFont(sans, 11, QFont::Bold, true), QFont(mono, 47, QFont::Bold)}) {
            const QFont nearest = nearestInstalledFont(font);
            QCOMPARE(fontToText(nearest), fontToText(font));
            QVERIFY2(!QFontInfo(nearest).styleName().contains("Condensed"_s), qPrintable(nearest.toString()));
        }
        QFont named(sans, 10);
        named.setStyleName("Bold"_s);
        QCOMPARE(nearestInstalledFont(named).styleName(), "Bold"_s);
    }

    void missingFamilyGivesWayToTheGeneralOne()
    {
        const TemporaryHome home;
        home.write(
            ".config/fontconfig/fonts.conf"_s,
            "<fontconfig><match><test name='family'><string>Any</string></test><edit name='family' "
            "mode='assign' binding='strong'><string>DejaVu Sans Mono</string></edit></match></fontconfig>");
        FcInitReinitialize();
        const QScopedValueRollback general(generalFamily, "Any"_s);
        StandardError standardError;
        const QFont substitute = nearestInstalledFont(QFont("No such family"_s, 13));
        QCOMPARE(substitute.family() + QString::number(substitute.pointSize()), mono + "13"_s);
        QCOMPARE(standardError.take(), QByteArray("qaz-admin-theme: fontconfig Any->DejaVu Sans Mono\n"));
        generalFamily = sans; // is installed
        QCOMPARE(nearestInstalledFont(QFont("No such family"_s, 13)).family(), sans);
        QCOMPARE(standardError.take(), QByteArray());
    }

    void missingFacesAreMadeUp()
    {
        const QFontDatabase database;
        QString slim; // a family of one plain face
        for (const QString &family : database.families()) {
            const QStringList styles = database.styles(family);
            if (styles.size() == 1 && database.isSmoothlyScalable(family)
                && !database.bold(family, styles.first()) && !database.italic(family, styles.first())
                && !family.contains(u'-'))
                slim = family;
        }
        for (const QString &style : {":normal"_s, ":bold"_s, ":normal:italic"_s, ":bold:italic"_s}) {
            const QString text = slim + "-10"_s + style;
            FontUseItem item(nullptr, {}, {}, storedRoleFont(text, QFont(sans, 7)));
            item.restoreDefault();
            QCOMPARE(fontToText(item.font()), text);
            QCOMPARE(fontToText(item.findChild<QLabel *>()->font()), text);
        }
    }

    void chosenFontArrivesInEveryRole()
    {
        QFont named(mono, 9, QFont::Bold);
        named.setStyle(QFont::StyleOblique);
        named.setStyleName("Bold"_s);
        const QPair<QFont, const char *> rows[] = {
            {QFont(mono, 13, QFont::Bold, true), "13:bold:italic Bold Oblique"},
            {QFont(mono, 8, QFont::Light), "8:normal Book"},
            {QFont(mono, 9, 58), "9:bold Bold"},
            {named, "9:bold:italic Bold Oblique"}};
        for (const auto &[chosen, text] : rows) {
            FontUseItem item(nullptr, {}, {}, {});
            item.setFont(QFont(sans, 10), true);
            item.applyChosenFont(chosen);
            QCOMPARE(fontToText(item.font()) + u' ' + item.font().styleName(),
                     mono + u'-' + QLatin1String(text));
            item.applyChosenFont(QFont(sans, 20)); // a role for fixed fonts keeps its family
            QCOMPARE(fontToText(item.font()), "DejaVu Sans Mono-20:normal"_s);
        }
    }

    void previewNeverWidensThePage()
    {
        FontUseItem item(nullptr, {}, {}, QFont(mono, 30));
        item.restoreDefault();
        auto *preview = item.findChild<QLabel *>();
        QCOMPARE(preview->text(), "DejaVu Sans Mono 30"_s);
        const QFontMetrics ordinary(QGuiApplication::font());
        QCOMPARE(preview->minimumSizeHint(), QSize(10 * ordinary.averageCharWidth(), 2 * ordinary.height()));
        // It is drawn as a label with a shorter text would be.
        QLabel elided(&item);
        elided.setFont(preview->font());
        elided.setFrameStyle(preview->frameStyle());
        elided.setIndent(ordinary.horizontalAdvance(u'x') / 2);
        item.resize(200, 60);
        const QPixmap picture = preview->grab();
        elided.resize(picture.size());
        elided.setText(elided.fontMetrics().elidedText(preview->text(), Qt::ElideRight,
                                                       elided.contentsRect().width() - 2 * elided.indent()));
        QCOMPARE(picture.toImage(), elided.grab().toImage());
    }
};

QTEST_MAIN(TestFontUseItem)
#include "tst_fontuseitem.moc"
