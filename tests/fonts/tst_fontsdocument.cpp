#include "tests/fonts/corpus.h"
#include "tests/support/literals.h"

namespace {

using Kind = FontsItem::Kind;

FontsDocument parsed(const QByteArray &content)
{
    FontsDocument document;
    QString error;
    if (!document.setContent(content, &error))
        qWarning("%s", qPrintable(error));
    return document;
}

/// The last child that holds a setting of \a kind.
int find(const FontsDocument &document, Kind kind)
{
    int found = -1;
    for (int i = 0; i < document.children().size(); ++i) {
        const auto &item = document.children().at(i).item;
        found = item && item->kind == kind ? i : found;
    }
    return found;
}

/// The corpus's file \a name with the setting of \a kind replaced.
QByteArray replaced(const char *name, Kind kind, const QString &form)
{
    const FontsDocument document = parsed(corpus().value(QLatin1String(name)));
    return document.withChanges({{find(document, kind), form, -1}});
}

/// The corpus's file \a name with \a before replaced as text.
QByteArray expected(const char *name, const char *before, const char *after)
{
    QByteArray content = corpus().value(QLatin1String(name));
    return content.contains(before) ? content.replace(before, after) : QByteArray();
}

/// What an element reads as, in short; empty for none of ours.
QString reading(const QString &xml)
{
    const FontsDocument document = parsed("<fontconfig>" + xml.toUtf8() + "</fontconfig>");
    QString text;
    if (const auto &item = document.children().first().item)
        QTextStream(&text) << int(item->kind) << ' ' << item->text << ' ' << item->range.from << '-'
                           << item->range.to;
    return text;
}

/// The points and pixels that \a points and \a pixels agree on, and whether they are to be written.
QString agreed(ExcludeRange points, ExcludeRange pixels, double dpi = 96)
{
    const bool toBeWritten = bringIntoAgreement(&points, &pixels, dpi);
    QString text;
    QTextStream(&text) << points.from << '-' << points.to << ' ' << pixels.from << '-' << pixels.to << ' '
                       << toBeWritten;
    return text;
}

} // namespace

class TestFontsDocument : public QObject
{
    Q_OBJECT
private slots:
    void addedElementLeavesWithoutTrace_data() { addCorpusRows(); }
    void addedElementLeavesWithoutTrace()
    {
        QFETCH(QByteArray, content);
        const QByteArray before = parsed(content).withChanges({});
        const FontsDocument document = parsed(
            parsed(content).withChanges({{-1, directoryForm("/added/ü"_s, {}), -1}}));
        QCOMPARE(document.children().size(), parsed(content).children().size() + 1);
        QCOMPARE(document.children().last().item->text, "/added/ü"_s);
        const QByteArray after = document.withChanges({{document.children().size() - 1, {}, -1}});
        QCOMPARE(foreignPieces(after), foreignPieces(before));
        if (before.contains("\n</fontconfig>"))
            QCOMPARE(after, before);

        // Without a change only the prolog comes into its written form, once.
        content.replace("<?xml version = '1.0'?>", "<?xml version=\"1.0\"?>");
        content.replace("<!DOCTYPE fontconfig>", "<!DOCTYPE fontconfig SYSTEM \"fonts.dtd\">");
        if (content.startsWith("<fontconfig>"))
            content.prepend("<?xml version=\"1.0\"?>\n");
        QCOMPARE(before, content);
        QCOMPARE(parsed(before).withChanges({}), before);
    }

    void elementIsReplacedInPlace()
    {
        const QString bgr = valueForm(Kind::SubPixel, "bgr"_s);
        const QString rgb = valueForm(Kind::SubPixel, "rgb"_s);
        const QString slight = valueForm(Kind::HintStyle, "hintslight"_s);
        QCOMPARE(
            replaced("unknown-content", Kind::SubPixel, rgb),
            expected("unknown-content",
                     "\n    <edit mode=\"assign\" name=\"rgba\"><const>bgr</const></edit>\n",
                     "\n    <edit mode=\"assign\" name=\"rgba\">\n      <const>rgb</const>\n    </edit>\n"));
        QCOMPARE(replaced("dos-line-ends", Kind::HintStyle, slight),
                 expected("dos-line-ends", "hintfull", "hintslight"));
        // Attributes come into the written order even where the value is the same.
        QCOMPARE(replaced("all-settings", Kind::SubPixel, bgr),
                 expected("all-settings", "name=\"rgba\" mode=\"assign\"", "mode=\"assign\" name=\"rgba\""));
        QCOMPARE(replaced("pixel-range", Kind::ExcludePixels, excludeForm(Kind::ExcludePixels, {8, 15})),
                 expected("pixel-range", "", ""));
    }

    void newFileIsWhole()
    {
        const QString form = valueForm(Kind::AntiAliasing, "true"_s);
        const QByteArray expected = "<?xml version=\"1.0\"?>\n<!DOCTYPE fontconfig SYSTEM \"fonts.dtd\">\n"
                                    "<fontconfig>\n  <match target=\"font\">\n"
                                    "    <edit mode=\"assign\" name=\"antialias\">\n      <bool>true</bool>\n"
                                    "    </edit>\n  </match>\n</fontconfig>\n";
        QCOMPARE(parsed("").withChanges({{-1, form, -1}}), expected);
        QCOMPARE(parsed(" \n").withChanges({{-1, form, -1}}), expected);
        const QByteArray prolog = "<?xml version=\"1.0\"?>\n<!-- mine -->";
        QVERIFY(parsed(prolog).withChanges({{-1, form, -1}}).startsWith(prolog + "\n<fontconfig>\n  <match"));
    }

    void whatIsNoConfigurationIsRefused()
    {
        QByteArray bomb = "<!DOCTYPE fontconfig [<!ENTITY a0 'xxxxxxxxxx'>";
        for (int i = 1; i < 20; ++i) {
            const QByteArray before = "&a" + QByteArray::number(i - 1) + ';';
            bomb += "<!ENTITY a" + QByteArray::number(i) + " '" + before.repeated(10) + "'>";
        }
        const QByteArray contents[] = {"antialias = true\n",
                                       "<fontconfig><match target=\"font\"></fontconfig>",
                                       "<?xml version=\"1.0\"?>\n<fontconfig>\n <dir>/a</dir>\n",
                                       "<?xml version=\"1.0\"?>\n<!DOCTYPE fontc",
                                       "<fontconfig/><fontconfig/>",
                                       "<fontconfig><dir>a & b</dir></fontconfig>",
                                       "<fontconfig><dir>&a;</dir></fontconfig>",
                                       "<html><fontconfig/></html>",
                                       "<fontconfig><dir>\xE9</dir></fontconfig>",
                                       QByteArray("<fontconfig>\0</fontconfig>", 26),
                                       "<?xml version='1.0' encoding='x-mine'?><fontconfig/>",
                                       QByteArray("\xFF\xFE<\0f\0o", 7), // odd byte of UTF-16
                                       "<fontconfig>" + QByteArray("<a>").repeated(100000)
                                           + QByteArray("</a>").repeated(100000) + "</fontconfig>",
                                       bomb + "]><fontconfig>&a19;</fontconfig>"};
        for (const QByteArray &content : contents) {
            FontsDocument document;
            QString error;
            QVERIFY2(!document.setContent(content, &error), content.left(100).constData());
            QVERIFY(!error.isEmpty() && document.children().isEmpty());
        }
    }

    void onlyWhatCanBeWrittenBackIsOurs()
    {
        const auto ownedIn = [](const char *name) {
            const FontsDocument document = parsed(corpus().value(QLatin1String(name)));
            QVector<bool> owned;
            for (const FontsDocument::Child &child : document.children())
                owned.append(child.item.has_value());
            return owned;
        };
        // The directory that an entity stands for has no place in the text.
        QCOMPARE(ownedIn("entities"), (QVector<bool>{false, true, true, false}));
        QCOMPARE(ownedIn("near-misses"), QVector<bool>(15, false));
    }

    void foreignContentIsNoticed()
    {
        const auto isOurs = [](const QByteArray &prolog, const QByteArray &children) {
            return parsed(prolog + "<fontconfig>" + children + "</fontconfig>\n").holdsOnlySettings();
        };
        const QByteArray ours
            = "<match target='font'><edit mode='assign' name='rgba'><const>rgb</const></edit></match>";
        const QByteArray comment = "<!-- mine -->";
        QVERIFY(isOurs({}, "\n"));
        QVERIFY(isOurs("<?xml version='1.0'?><!DOCTYPE fontconfig>\n", ours));
        QVERIFY(!isOurs({}, ours + "<cachedir>/a</cachedir>"));
        QVERIFY(!isOurs({}, ours + comment));
        QVERIFY(!isOurs({}, QByteArray(ours).replace("<const>", comment + "<const>")));
        QVERIFY(!isOurs(comment, ours));
        QVERIFY(!isOurs("<!DOCTYPE fontconfig [<!ENTITY a 'b'>]>", ours));
        QVERIFY(!isOurs({}, ours + ours)); // the older of two
    }

    void rangesAgree()
    {
        QCOMPARE(agreed({}, {}), "0-0 0-0 0"_s);
        QCOMPARE(agreed({1, 2}, {8, 15}), "6-11 8-15 1"_s); // pixels win
        QCOMPARE(agreed({6, 11}, {}), "6-11 8-15 1"_s);
        QCOMPARE(agreed({6, 11}, {}, 120), "6-11 10-18 1"_s);
        QCOMPARE(agreed({}, {8.4, 15.5}, 72), "8-16 8.4-15.5 1"_s);
        QCOMPARE(agreed({0, 0.3}, {}), "0-0.3 0-0 0"_s); // less than a pixel
        QCOMPARE(agreed({}, {8, 1e300}, 72), "8-1e+300 8-1e+300 1"_s);
    }

    void formsOfElements()
    {
        QCOMPARE(excludeForm(Kind::ExcludePixels, {8, 14.12345678}),
                 "<match target=\"font\">\n"
                 "\t<test qual=\"any\" name=\"pixelsize\" compare=\"more_eq\">\n"
                 "\t\t<double>8</double>\n\t</test>\n"
                 "\t<test qual=\"any\" name=\"pixelsize\" compare=\"less_eq\">\n"
                 "\t\t<double>14.1235</double>\n\t</test>\n\t<edit mode=\"assign\" name=\"antialias\">\n"
                 "\t\t<bool>false</bool>\n\t</edit>\n</match>"_s);
        const QString home = "/home/me"_s;
        QCOMPARE(directoryForm(home + "/a&b/"_s, home), "<dir>~/a&amp;b</dir>"_s);
        QCOMPARE(directoryForm(home + "lon/"_s, home), "<dir>/home/melon</dir>"_s);
        QCOMPARE(directoryFormOfPath("~//fonts"_s, home), "/home/me/fonts/"_s);
        QCOMPARE(reading("<dir>~//fonts</dir>"_s), "0 ~//fonts 0-0"_s);
    }

    void boundsMayStandInAnyOrder()
    {
        const auto match = [](const char *compare, const char *value, const char *otherCompare) {
            const QString form
                = "<match target='font'><test qual='any' name='size' compare='%1'><double>%2</double></test>"
                  "<test qual='any' name='size' compare='%3'><double>3</double></test>"
                  "<edit mode='assign' name='antialias'><bool>false</bool></edit></match>"_s;
            return reading(
                form.arg(QLatin1String(compare), QLatin1String(value), QLatin1String(otherCompare)));
        };
        QCOMPARE(match("less", "9", "more"), "5  3-9"_s);
        QVERIFY(match("less", "9", "less_eq").isEmpty());
        QVERIFY(match("less", "9", "eq").isEmpty());
        QVERIFY(match("less", "nan", "more").isEmpty());
    }
};

QTEST_APPLESS_MAIN(TestFontsDocument)
#include "tst_fontsdocument.moc"
