#include "tests/support/literals.h"

#include <QDomDocument>
#include <QRegularExpression>
#include <QtTest>

namespace {

struct Message {
    QString context;
    QString source;
    QString comment;
    QString translation;
    bool isFinished;
};

QList<Message> messages(const QString &language)
{
    QFile file(QStringLiteral(QAZ_SOURCE_DIR "/translations/qaz-admin-theme_%1.ts").arg(language));
    QDomDocument document;
    QList<Message> found;
    if (!file.open(QIODevice::ReadOnly) || !document.setContent(&file))
        return found;
    const QDomNodeList elements = document.elementsByTagName("message"_s);
    for (int i = 0; i < elements.size(); ++i) {
        const QDomNode message = elements.at(i);
        const auto text = [](const QDomNode &node, const char *name) {
            return node.firstChildElement(QLatin1String(name)).text();
        };
        const QDomElement translation = message.firstChildElement("translation"_s);
        found.append({text(message.parentNode(), "name"), text(message, "source"), text(message, "comment"),
                      translation.text(), !translation.hasAttribute("type"_s)});
    }
    return found;
}

/// Every match of \a pattern in \a text, sorted: languages order words in their own ways.
QStringList matches(const QString &text, const QString &pattern)
{
    QStringList found;
    QRegularExpressionMatchIterator all = QRegularExpression(pattern).globalMatch(text);
    while (all.hasNext())
        found.append(all.next().captured());
    found.sort();
    return found;
}

} // namespace

/// What is wrong in a catalogue and can be seen without knowing the language.
class TestCatalogues : public QObject
{
    Q_OBJECT

private slots:
    void catalogueIsComplete_data();
    void catalogueIsComplete();
    void marksSurviveTranslation_data();
    void marksSurviveTranslation();
    void textsLookedUpDiffer_data() { catalogueIsComplete_data(); }
    void textsLookedUpDiffer();
    void excludedSizesStayPixels_data() { catalogueIsComplete_data(); }
    void excludedSizesStayPixels();
    void englishAddsOnlyTheUsage();
};

void TestCatalogues::catalogueIsComplete_data()
{
    QTest::addColumn<QString>("language");
    for (const char *language : {"en", "de", "fr", "es"})
        QTest::newRow(language) << QString::fromLatin1(language);
}

void TestCatalogues::catalogueIsComplete()
{
    QFETCH(QString, language);
    const QList<Message> all = messages(language);
    QVERIFY(all.size() > 250);
    for (const Message &message : all)
        QVERIFY2(message.isFinished && !message.translation.isEmpty(),
                 qPrintable(message.context + ": "_s + message.source));
}

void TestCatalogues::marksSurviveTranslation_data()
{
    QTest::addColumn<QString>("pattern");
    QTest::newRow("values filled in") << "%[1-9]"_s;
    QTest::newRow("accelerators") << "&(?=\\w)(?!\\w+;)"_s;
    QTest::newRow("markup") << "</?\\w+ ?/?>|&\\w+;"_s;
    QTest::newRow("file name patterns") << "\\(\\*.*\\)"_s;
    QTest::newRow("lines of plain text") << "\\n"_s;
    QTest::newRow("colon of a label") << ":\\s*$"_s;
}

void TestCatalogues::marksSurviveTranslation()
{
    QFETCH(QString, pattern);
    int marks = 0;
    for (const char *language : {"de", "fr", "es"}) {
        const QList<Message> all = messages(QString::fromLatin1(language));
        for (const Message &message : all) {
            const QStringList expected = matches(message.source, pattern);
            QVERIFY2(matches(message.translation, pattern) == expected,
                     qPrintable(message.source + " -> "_s + message.translation));
            marks += expected.size();
        }
    }
    QVERIFY(marks > 0); // the pattern is about something
}

void TestCatalogues::textsLookedUpDiffer()
{
    // The rows of the page list and the names in the rendering dialog are found by their texts.
    QFETCH(QString, language);
    const QStringList pages{"Wallpaper"_s, "Theme"_s, "Fonts"_s, "Screensaver"_s, "Effects"_s, "Sounds"_s};
    QStringList lookedUp;
    const QList<Message> all = messages(language);
    for (const Message &message : all) {
        const bool isPage = message.context == "ConfigDialog"_s && pages.contains(message.source);
        if (isPage || message.context == "FontRendering"_s)
            lookedUp.append(message.context + u'|' + message.translation);
    }
    QVERIFY(lookedUp.size() > pages.size());
    QCOMPARE(lookedUp.removeDuplicates(), 0);
}

void TestCatalogues::excludedSizesStayPixels()
{
    // The rendering dialog takes its unit from this suffix: pixels, unless a translation names another unit.
    QFETCH(QString, language);
    const QList<Message> all = messages(language);
    const auto suffix = std::find_if(all.cbegin(), all.cend(),
                                     [](const Message &message) { return message.source == " pix"_s; });
    QVERIFY(suffix != all.cend());
    QVERIFY2(suffix->translation.contains(QRegularExpression("pix|px"_s)), qPrintable(suffix->translation));
}

void TestCatalogues::englishAddsOnlyTheUsage()
{
    const QList<Message> all = messages("en"_s);
    for (const Message &message : all) {
        if (message.comment.isEmpty())
            QCOMPARE(message.translation, message.source);
        else
            QCOMPARE(message.translation, message.comment.trimmed());
    }
}

QTEST_GUILESS_MAIN(TestCatalogues)
#include "tests/support/literals.h"
#include "tst_catalogues.moc"
