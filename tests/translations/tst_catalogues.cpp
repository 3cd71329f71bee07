#include "tests/support/testing.h"

#include <QDomDocument>

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
QStringList matches(const QString &text, const char *pattern)
{
    QStringList found;
    for (auto all = QRegularExpression(QLatin1String(pattern)).globalMatch(text); all.hasNext();)
        found.append(all.next().captured());
    found.sort();
    return found;
}

/// What a translation must keep.
constexpr const char *marks[] = {"%[1-9]",              // values filled in
                                 "&(?=\\w)(?!\\w+;)",   // accelerators
                                 "</?\\w+ ?/?>|&\\w+;", // markup
                                 "\\(\\*.*\\)",         // file name patterns
                                 "\\n",                 // lines of plain text
                                 ":\\s*$"};             // colon of a label

/// Whether the program finds something by the text, so that no other one there may be the same.
bool isLookedUp(const Message &message)
{
    const QStringList pages{"Wallpaper"_s, "Theme"_s, "Fonts"_s, "Screensaver"_s, "Effects"_s, "Sounds"_s};
    return message.context == "FontRendering"_s
           || (message.context == "ConfigDialog"_s && pages.contains(message.source));
}

} // namespace

/// What is wrong in a catalogue and can be seen without knowing the language.
class TestCatalogues : public QObject
{
    Q_OBJECT

private slots:
    void everyMessageIsTranslatedAndKeepsItsMarks_data()
    {
        QTest::addColumn<QString>("language");
        for (const char *language : {"en", "de", "fr", "es"})
            QTest::newRow(language) << QString::fromLatin1(language);
    }
    void everyMessageIsTranslatedAndKeepsItsMarks()
    {
        QFETCH(QString, language);
        const QList<Message> all = messages(language);
        QVERIFY(all.size() > 250);
        QStringList lookedUp;
        QSet<QByteArray> found;
        for (const Message &message : all) {
            const QString context = message.context + ": "_s + message.source + " -> "_s
                                    + message.translation;
            QVERIFY2(message.isFinished && !message.translation.isEmpty(), qPrintable(context));
            if (isLookedUp(message))
                lookedUp.append(message.context + u'|' + message.translation);
            // The rendering dialog takes its unit from this suffix: pixels, unless a translation names another one.
            if (message.source == " pix"_s)
                QVERIFY2(!matches(message.translation, "pix|px").isEmpty(), qPrintable(context));
            // English adds the usage only, which stands in a comment.
            if (language == "en"_s)
                QCOMPARE(message.translation,
                         message.comment.isEmpty() ? message.source : message.comment.trimmed());
            for (const char *mark : marks) {
                const QStringList expected = matches(message.source, mark);
                QVERIFY2(language == "en"_s || matches(message.translation, mark) == expected,
                         qPrintable(context));
                if (!expected.isEmpty())
                    found.insert(mark);
            }
        }
        QCOMPARE(found.size(), int(std::size(marks)));
        QVERIFY(lookedUp.size() > 6);
        QCOMPARE(lookedUp.removeDuplicates(), 0);
    }
};

QTEST_GUILESS_MAIN(TestCatalogues)
#include "tst_catalogues.moc"
