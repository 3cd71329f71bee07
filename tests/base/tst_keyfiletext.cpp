#include "base/keyfiletext.h"
#include "tests/support/rows.h"

class TestKeyFileText : public QObject
{
    Q_OBJECT
private slots:
    void oneKeyChanges()
    {
        const QMap<QString, KeyFileFormat> formats{
            {"any"_s, {}}, {"closed"_s, {"#;", false}}, {"ini"_s, {";", true, true}}};
        // What is special, format, group, text, value (null: no such key), the text with "new" as the value, and without.
        for (const QStringList &row : rowsOf("base/keyfile.json"_s)) {
            QByteArrayList expected; // one character a byte
            for (const QString &cell : row.mid(2))
                expected.append(cell.toLatin1());
            const QByteArray group = expected[0], before = expected[1];
            const KeyFileText text(before, formats[row[1]]);
            const QByteArrayList actual{
                group, text.withValues(group, {}), text.value(group, "Key").value_or(QByteArray()),
                text.withValues(group, {{"Key", "new"}}), text.withoutKey(group, "Key")};
            QVERIFY2(actual == expected, qPrintable(row[0] + u'\n' + QString::fromLatin1(actual.join('|'))));
            QCOMPARE(text.value(group, "Key").has_value(), !row[4].isNull());
        }
    }

    void manyKeysChangeAtOnce()
    {
        const KeyFileText text("C=3\n[G]\nB=1\nA=");
        QCOMPARE(text.withValues("G", {{"C", "x"}, {"A", "12"}, {"D", ""}, {"B", ""}}),
                 QByteArray("C=3\n[G]\nB=\nA=12\nC=x\nD=\n"));
    }

    void aHugeFileIsReadInOnePass()
    {
        QByteArray content = "[G]\n";
        for (int i = 0; i < 100000; ++i)
            content += "Key=0123456789012345678901234\n[G" + QByteArray::number(i) + "]\n[G]\n";
        const KeyFileText text(content);
        QCOMPARE(text.withoutKey("G", "Key").count("[G]\n"), 100001);
        QCOMPARE(text.withValues("G", {{"Key", "1"}}).size(), content.size() - 24);
    }
};

QTEST_GUILESS_MAIN(TestKeyFileText)
#include "tst_keyfiletext.moc"
