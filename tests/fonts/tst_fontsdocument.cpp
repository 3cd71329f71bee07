#include "tests/fonts/corpus.h"

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
QDomElement find(const FontsDocument &document, Kind kind)
{
    QDomElement found;
    for (const FontsDocument::Child &child : document.children()) {
        const auto item = readFontsItem(child.node, {});
        found = item && item->kind == kind ? child.node : found;
    }
    return found;
}

QByteArray replaced(const QByteArray &content, Kind kind, const QString &form)
{
    const FontsDocument document = parsed(content);
    return document.withChanges({{find(document, kind), form}});
}

} // namespace

class TestFontsDocument : public QObject
{
    Q_OBJECT
private slots:
    void contentWithoutChangesStays_data() { addCorpusRows(); }
    void contentWithoutChangesStays()
    {
        QFETCH(QByteArray, content);
        const QByteArray unchanged = parsed(content).withChanges({});
        content.replace("<?xml version = '1.0'?>", "<?xml version=\"1.0\"?>");
        content.replace("<!DOCTYPE fontconfig>", "<!DOCTYPE fontconfig SYSTEM \"fonts.dtd\">");
        if (content.startsWith("<fontconfig>"))
            content.prepend("<?xml version=\"1.0\"?>\n");
        QCOMPARE(unchanged, content);
        QCOMPARE(parsed(unchanged).withChanges({}), unchanged);
    }

    void addedElementLeavesWithoutTrace_data() { addCorpusRows(); }
    void addedElementLeavesWithoutTrace()
    {
        QFETCH(QByteArray, content);
        const QByteArray before = parsed(content).withChanges({});
        const QString form = directoryForm(QStringLiteral("/added/ü"), {});
        const FontsDocument document = parsed(parsed(content).withChanges({{{}, form}}));
        QCOMPARE(document.children().size(), parsed(content).children().size() + 1);
        const QDomElement added = document.children().last().node;
        QCOMPARE(added.text(), QStringLiteral("/added/ü"));
        const QByteArray after = document.withChanges({{added, {}}});
        QCOMPARE(foreignTokens(after), foreignTokens(before));
        if (before.contains("\n</fontconfig>"))
            QCOMPARE(after, before);
    }

    void elementIsReplacedInPlace()
    {
        const QMap<QString, QByteArray> files = corpus();
        const QString form = valueForm(Kind::SubPixel, QStringLiteral("rgb"));

        QByteArray expected = files.value(QStringLiteral("unknown-content"));
        expected.replace("<match target=\"font\" my:id=\"panel\">\n    <!-- measured with a loupe -->\n"
                         "    <edit mode=\"assign\" name=\"rgba\"><const>bgr</const></edit>\n",
                         "<match target=\"font\" my:id=\"panel\">\n    <!-- measured with a loupe -->\n"
                         "    <edit mode=\"assign\" name=\"rgba\">\n      <const>rgb</const>\n    </edit>\n");
        QCOMPARE(replaced(files.value(QStringLiteral("unknown-content")), Kind::SubPixel, form), expected);

        expected = files.value(QStringLiteral("dos-line-ends"));
        expected.replace("hintfull", "hintslight");
        QCOMPARE(replaced(files.value(QStringLiteral("dos-line-ends")), Kind::HintStyle,
                          valueForm(Kind::HintStyle, QStringLiteral("hintslight"))),
                 expected);

        // Attributes come into the written order even where the value is the same.
        expected = files.value(QStringLiteral("all-settings"));
        expected.replace("name=\"rgba\" mode=\"assign\"", "mode=\"assign\" name=\"rgba\"");
        QCOMPARE(replaced(files.value(QStringLiteral("all-settings")), Kind::SubPixel,
                          valueForm(Kind::SubPixel, QStringLiteral("bgr"))),
                 expected);
    }

    void sameValueKeepsItsText()
    {
        const QByteArray content = corpus().value(QStringLiteral("pixel-range"));
        QCOMPARE(replaced(content, Kind::ExcludePixels, excludeForm(Kind::ExcludePixels, {8, 15})), content);
    }

    void newFileIsWhole()
    {
        const QString form = valueForm(Kind::AntiAliasing, QStringLiteral("true"));
        const QByteArray expected = "<?xml version=\"1.0\"?>\n<!DOCTYPE fontconfig SYSTEM \"fonts.dtd\">\n"
                                    "<fontconfig>\n  <match target=\"font\">\n"
                                    "    <edit mode=\"assign\" name=\"antialias\">\n      <bool>true</bool>\n"
                                    "    </edit>\n  </match>\n</fontconfig>\n";
        QCOMPARE(parsed("").withChanges({{{}, form}}), expected);
        QCOMPARE(parsed(" \n").withChanges({{{}, form}}), expected);
        const QByteArray prolog = "<?xml version=\"1.0\"?>\n<!-- mine -->";
        QVERIFY(parsed(prolog).withChanges({{{}, form}}).startsWith(prolog + "\n<fontconfig>\n  <match"));
    }

    void whatIsNoConfigurationIsRefused_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::newRow("plain text") << QByteArray("antialias = true\n");
        QTest::newRow("open element") << QByteArray("<fontconfig><match target=\"font\"></fontconfig>");
        QTest::newRow("cut off") << QByteArray("<?xml version=\"1.0\"?>\n<fontconfig>\n <dir>/a</dir>\n");
        QTest::newRow("cut off in the prolog") << QByteArray("<?xml version=\"1.0\"?>\n<!DOCTYPE fontc");
        QTest::newRow("two roots") << QByteArray("<fontconfig/><fontconfig/>");
        QTest::newRow("bare ampersand") << QByteArray("<fontconfig><dir>a & b</dir></fontconfig>");
        QTest::newRow("undeclared entity") << QByteArray("<fontconfig><dir>&a;</dir></fontconfig>");
        QTest::newRow("attribute twice") << QByteArray("<fontconfig><dir a='1' a='2'>x</dir></fontconfig>");
        QTest::newRow("foreign root") << QByteArray("<html><fontconfig/></html>");
        QTest::newRow("broken UTF-8") << QByteArray("<fontconfig><dir>\xE9</dir></fontconfig>");
        QTest::newRow("NUL") << QByteArray("<fontconfig>\0</fontconfig>", 26);
        QTest::newRow("unknown encoding")
            << QByteArray("<?xml version='1.0' encoding='x-mine'?><fontconfig/>");
        QTest::newRow("odd byte of UTF-16") << QByteArray("\xFF\xFE<\0f\0o", 7);
        QTest::newRow("bottomless") << "<fontconfig>" + QByteArray("<a>").repeated(100000)
                                           + QByteArray("</a>").repeated(100000) + "</fontconfig>";
        QByteArray bomb = "<!DOCTYPE fontconfig [<!ENTITY a0 'xxxxxxxxxx'>";
        for (int i = 1; i < 20; ++i) {
            const QByteArray before = "&a" + QByteArray::number(i - 1) + ';';
            bomb += "<!ENTITY a" + QByteArray::number(i) + " '" + before.repeated(10) + "'>";
        }
        QTest::newRow("exploding entity") << bomb + "]><fontconfig>&a19;</fontconfig>";
    }
    void whatIsNoConfigurationIsRefused()
    {
        QFETCH(QByteArray, content);
        FontsDocument document;
        QString error;
        QVERIFY(!document.setContent(content, &error));
        QVERIFY(!error.isEmpty());
        QVERIFY(document.children().isEmpty());
    }

    void onlyTextOfTheFileIsOurs()
    {
        const FontsDocument document = parsed(corpus().value(QStringLiteral("entities")));
        QVector<bool> owned;
        for (const FontsDocument::Child &child : document.children())
            owned.append(readFontsItem(child.node, {}).has_value());
        // The directory that an entity stands for has no place in the text.
        QCOMPARE(owned, (QVector<bool>{false, true, true, false}));
    }

    void foreignContentIsNoticed_data()
    {
        QTest::addColumn<QByteArray>("content");
        QTest::addColumn<bool>("isOurs");
        const QByteArray ours
            = "<match target='font'><edit mode='assign' name='rgba'><const>rgb</const></edit></match>";
        const auto root = [](const QByteArray &children) {
            return "<fontconfig>" + children + "</fontconfig>\n";
        };
        QTest::newRow("nothing") << root("\n") << true;
        QTest::newRow("ours") << "<?xml version='1.0'?><!DOCTYPE fontconfig>\n" + root(ours) << true;
        QTest::newRow("other element") << root(ours + "<cachedir>/a</cachedir>") << false;
        QTest::newRow("comment") << root(ours + "<!-- mine -->") << false;
        QTest::newRow("comment inside")
            << root(QByteArray(ours).replace("<const>", "<!-- mine --><const>")) << false;
        QTest::newRow("comment before") << "<!-- mine -->" + root(ours) << false;
        QTest::newRow("entity") << "<!DOCTYPE fontconfig [<!ENTITY a 'b'>]>" + root(ours) << false;
        QTest::newRow("older of two") << root(ours + ours) << false;
    }
    void foreignContentIsNoticed()
    {
        QFETCH(QByteArray, content);
        const FontsDocument document = parsed(content);
        QTEST(document.holdsOnly({find(document, Kind::SubPixel)}), "isOurs");
    }
};

QTEST_APPLESS_MAIN(TestFontsDocument)
#include "tst_fontsdocument.moc"
