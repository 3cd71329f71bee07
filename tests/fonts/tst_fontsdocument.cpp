#include "fonts/fontsdocument.h"
#include "tests/support/testing.h"

namespace {

using Kind = FontsItem::Kind;

QByteArray fileContent(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : "Can't read " + path.toUtf8();
}

FontsDocument parsed(const QByteArray &content)
{
    FontsDocument document;
    QString error;
    if (!document.setContent(content, &error))
        qWarning("%s", qPrintable(error));
    return document;
}

} // namespace

class TestFontsDocument : public QObject
{
    Q_OBJECT
private slots:
    // What becomes of each file of the corpus stands beside it.
    void filesAreChangedInTheirText_data()
    {
        QTest::addColumn<QString>("path");
        const QDir directory(QAZ_SOURCE_DIR "/tests/fonts/corpus"_s);
        for (const QFileInfo &info : directory.entryInfoList({"*.conf"_s}))
            QTest::newRow(qPrintable(info.completeBaseName()))
                << info.path() + u'/' + info.completeBaseName();
    }
    void filesAreChangedInTheirText()
    {
        QFETCH(QString, path);
        const FontsDocument document = parsed(fileContent(path + ".conf"_s));
        const QVector<FontsItem> items = {{Kind::SubPixel, "vrgb"_s},
                                          {Kind::HintStyle, "hintslight"_s},
                                          {Kind::Hinting, "true"_s},
                                          {Kind::AntiAliasing, "false"_s},
                                          {Kind::ExcludePoints, {}, {6, 10.12345678}},
                                          {Kind::ExcludePixels, {}, {8, 15}}};
        const QByteArray set = document.withItems(items);
        QCOMPARE(set, fileContent(path + ".set"_s));
        const FontsDocument changed = parsed(set);
        QCOMPARE(changed.withItems(items), set);
        for (const FontsItem &item : items) {
            QCOMPARE(changed.item(item.kind).text, item.text);
            QVERIFY(changed.item(item.kind).range.equals(item.range) || item.kind == Kind::ExcludePoints);
        }
        QVector<FontsItem> none;
        for (const FontsItem &item : items)
            none.append({item.kind});
        QCOMPARE(document.withItems(none), fileContent(path + ".unset"_s));
    }

    void boundsMayStandInAnyOrder()
    {
        const FontsDocument document = parsed(
            fileContent(QAZ_SOURCE_DIR "/tests/fonts/corpus/odd-bounds.conf"_s));
        QVERIFY(document.item(Kind::ExcludePoints).range.equals({3, 9})
                && document.item(Kind::ExcludePixels).range.equals({8, 15}));
        QCOMPARE(document.item(Kind::SubPixel).text, "bgr"_s);
        // What is new does not stand in front of a range that goes.
        const QByteArray changed = document.withItems(
            {{Kind::AntiAliasing, "true"_s}, {Kind::ExcludePoints}, {Kind::ExcludePixels}});
        QCOMPARE(changed.count("<match"), 7);
        QCOMPARE(parsed(changed).item(Kind::AntiAliasing).text, "true"_s);
    }

    void newFileIsWhole()
    {
        const QVector<FontsItem> items = {{Kind::AntiAliasing, "true"_s}};
        QVERIFY(parsed(" \n").withItems(items) == FontsDocument().withItems(items));
        const QByteArray type = "<!DOCTYPE fontconfig SYSTEM \"fonts.dtd\">\n";
        const QByteArray xml = "<?xml version=\"1.0\"?>\n";
        QCOMPARE(parsed("<!DOCTYPE fontconfig>\n<fontconfig/>").withItems({}), xml + type + "<fontconfig/>");
        QVERIFY(parsed(xml + "<!-- mine -->")
                    .withItems(items)
                    .startsWith(xml + "<!-- mine -->\n<fontconfig>\n  <match"));
    }

    void whatIsNoConfigurationIsRefused()
    {
        const QByteArray deep = "<fontconfig>" + QByteArray("<a>").repeated(199);
        const QPair<QByteArray, QString> rows[] = {
            {"antialias = true\n", "line 1: "_s},
            {"<?xml version=\"1.0\"?>\n<fontconfig>\n <dir>/a</dir>\n", "line 4: "_s},
            {"\n<html><fontconfig/></html>", "line 2: the root element is 'html', not 'fontconfig'"_s},
            {"<fontconfig><dir>\xE9</dir></fontconfig>", "not UTF-8 text"_s},
            {"\xEF\xBB\xBF\xEF\xBB\xBF<fontconfig/>", "not UTF-8 text"_s},
            {QByteArray("<fontconfig>\0</fontconfig>", 26), "line 1: "_s},
            {"<?xml version='1.0' encoding='x-mine'?><fontconfig/>", "unknown encoding x-mine"_s},
            {QByteArray("\xFF\xFE<\0f\0o", 7), "not UTF-16LE text"_s}, // an odd byte
            {deep, "line 1: Premature end of document."_s},            // its depth is fine
            {deep + "<a>", "line 1: elements are nested too deeply"_s}};
        for (const auto &[content, reason] : rows) {
            FontsDocument document = parsed("<fontconfig><dir/></fontconfig>");
            QString error;
            QVERIFY2(!document.setContent(content, &error), content.left(100).constData());
            QVERIFY2(error.startsWith(reason), qPrintable(error));
            QVERIFY(error.size() > "line 1: "_s.size() && document.children().isEmpty());
        }
    }

    void foreignContentIsNoticed()
    {
        const QByteArray rest = "<edit mode='assign' name='rgba'><const>rgb</const></edit></match>";
        const QByteArray ours = "<match target='font'>" + rest;
        const QByteArray contents[] = {"<?xml version='1.0'?><!DOCTYPE fontconfig>\n<fontconfig>\n" + ours,
                                       "<fontconfig>" + ours + "<cachedir>/a</cachedir>",
                                       "<fontconfig>" + ours + "<!-- mine -->",
                                       "<fontconfig>" + ours + "mine",
                                       "<fontconfig><match target='font'><!-- mine -->" + rest,
                                       "<fontconfig><match id='a' target='font'>" + rest,
                                       "<!-- mine --><fontconfig>" + ours,
                                       "<fontconfig xmlns:my='a'>" + ours,
                                       "<!DOCTYPE fontconfig [<!ENTITY a 'b'>]><fontconfig>" + ours,
                                       "<!DOCTYPE fontconfig SYSTEM 'a'><fontconfig>" + ours + "&b;",
                                       "<fontconfig>" + ours + ours}; // the older of two
        for (const QByteArray &content : contents)
            QVERIFY2(parsed(content + "</fontconfig>\n").holdsOnlySettings() == (&content == contents),
                     content.constData());
    }
};

QTEST_APPLESS_MAIN(TestFontsDocument)
#include "tst_fontsdocument.moc"
