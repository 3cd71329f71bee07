#include "tests/support/testing.h"

#include <QDomDocument>

namespace {

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

} // namespace

/// What is wrong in a catalogue and can be seen without knowing the language.
class TestCatalogues : public QObject
{
    Q_OBJECT

private slots:
    void everyMessageIsTranslatedAndKeepsItsMarks()
    {
        for (const QString &language : {"en"_s, "de"_s, "fr"_s, "es"_s}) {
            QFile file(QStringLiteral(QAZ_SOURCE_DIR "/translations/qaz-admin-theme_%1.ts").arg(language));
            QDomDocument document;
            QVERIFY(file.open(QIODevice::ReadOnly) && document.setContent(&file));
            const QDomNodeList messages = document.elementsByTagName("message"_s);
            // Texts by which the program finds something, so that no other one there may be the same.
            const QRegularExpression lookedUp("^(FontRendering: |ConfigDialog: "
                                              "(Wallpaper|Theme|Fonts|Screensaver|Effects|Sounds)$)"_s);
            QStringList names;
            QSet<QByteArray> found;
            for (int i = 0; i < messages.size(); ++i) {
                const QDomNode message = messages.at(i);
                const QString context = message.parentNode().firstChildElement("name"_s).text();
                const QString source = message.firstChildElement("source"_s).text();
                const QString comment = message.firstChildElement("comment"_s).text();
                const QDomElement element = message.firstChildElement("translation"_s);
                const QString translation = element.text();
                const QByteArray all = (language + u' ' + source + ": "_s + translation).toLocal8Bit();
                QVERIFY2(!element.hasAttribute("type"_s) && !translation.isEmpty(), all.constData());
                if (lookedUp.match(context + ": "_s + source).hasMatch())
                    names.append(context + u'|' + translation);
                // The rendering dialog takes its unit from this suffix: pixels, unless a translation names another one.
                if (source == " pix"_s)
                    QVERIFY2(!matches(translation, "pix|px").isEmpty(), all.constData());
                // English adds the usage only, which stands in a comment.
                if (language == "en"_s)
                    QCOMPARE(translation, comment.isEmpty() ? source : comment.trimmed());
                for (const char *mark : marks) {
                    const QStringList expected = matches(source, mark);
                    QVERIFY2(language == "en"_s || matches(translation, mark) == expected, all.constData());
                    if (!expected.isEmpty())
                        found.insert(mark);
                }
            }
            QCOMPARE(found.size(), int(std::size(marks)));
            QVERIFY(names.size() > 6 && names.removeDuplicates() == 0);
        }
    }
};

QTEST_GUILESS_MAIN(TestCatalogues)
#include "tst_catalogues.moc"
