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

void addFiles(const QString &folder)
{
    QTest::addColumn<QString>("path");
    for (const QFileInfo &info : QDir(QAZ_SOURCE_DIR "/tests/fonts/"_s + folder).entryInfoList({"*.conf"_s}))
        QTest::newRow(qPrintable(info.completeBaseName())) << info.path() + u'/' + info.completeBaseName();
}

} // namespace

class TestFontsDocument : public QObject
{
    Q_OBJECT
private slots:
    // What is read from each file of the corpus and what becomes of it stand beside it.
    void filesAreChangedInTheirText_data() { addFiles("corpus"_s); }
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
        QString read;
        QVector<FontsItem> none;
        for (const FontsItem &item : items) {
            const auto [kind, text, range] = document.item(item.kind);
            read += text + (range.isZero() ? ""_s : "%1-%2"_s.arg(range.from).arg(range.to)) + u'|';
            none.append({item.kind});
        }
        QCOMPARE(read.toUtf8() + '\n', fileContent(path + ".read"_s));
        const QByteArray set = document.withItems(items);
        QCOMPARE(set, fileContent(path + ".set"_s));
        QCOMPARE(parsed(set).withItems(items), set);
        QCOMPARE(document.withItems(none), fileContent(path + ".unset"_s));
        // What is new does not stand in front of a range that goes.
        none[3].text = "true"_s;
        QCOMPARE(parsed(document.withItems(none)).item(Kind::AntiAliasing).text, "true"_s);
    }

    // The reason stands beside the file, its beginning if the rest is the reader's.
    void whatIsNoConfigurationIsRefused_data() { addFiles("refused"_s); }
    void whatIsNoConfigurationIsRefused()
    {
        QFETCH(QString, path);
        FontsDocument document = parsed("<fontconfig><dir/></fontconfig>");
        QString error;
        QVERIFY(!document.setContent(fileContent(path + ".conf"_s), &error));
        QVERIFY2(error.startsWith(QString::fromUtf8(fileContent(path + ".error"_s))), qPrintable(error));
        QVERIFY(error.size() > "line 1: "_s.size() && document.children().isEmpty());
    }

    void foreignContentIsNoticed_data() { addFiles("only-settings"_s); }
    void foreignContentIsNoticed()
    {
        QFETCH(QString, path);
        QCOMPARE(parsed(fileContent(path + ".conf"_s)).holdsOnlySettings(), path.contains("/yes-"_s));
    }
};

QTEST_APPLESS_MAIN(TestFontsDocument)
#include "tst_fontsdocument.moc"
