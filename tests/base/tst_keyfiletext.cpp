#include "base/keyfiletext.h"

#include <QTest>

namespace {

constexpr KeyFileFormat any{};
constexpr KeyFileFormat closed{"#;", false, false};
constexpr KeyFileFormat ini{";", true, true};

/// A line in a file that a person may have written: nothing else of it may change with the key.
QByteArray around(const QByteArray &line)
{
    return "\xEF\xBB\xBF# mine  \r\n\r\nKey=above all groups\r\n[Other]\r\nKey=other\r\n"
           "[ Group ] # x\r\n ; Key=comment\r\nName = \"Work; \t\\\r\nKey[de]=deutsch\r\nbad\xFF\xFEline\r\n"
           + line + "key=lower case\r\n\r\n[Group Extra]\r\nKey=extra";
}

} // namespace

class TestKeyFileText : public QObject
{
    Q_OBJECT
private slots:
    void oneKeyChanges()
    {
        const struct {
            KeyFileFormat format;
            QByteArray group;
            QByteArray before;
            QByteArray value; // null: no such key
            QByteArray after; // with "new" as the value
            QByteArray without;
        } rows[] = {
            {any, "Group", around("Key =  a b \t\r\n"), "a b", around("Key =  new \t\r\n"), around({})},
            {any, "Group", around({}), {}, around({}).replace("case\r\n", "case\r\nKey=new\r\n"), around({})},
            {any, "", around({}), "above all groups", around({}).replace("above all groups", "new"),
             around({}).replace("Key=above all groups\r\n", "")},
            // of several lines the last one counts, in a group that stands twice
            {any, "G", "[G]\nKey=1\n[A]\nKey=a\n[G]\nKey=2\nKey=3", "3",
             "[G]\nKey=1\n[A]\nKey=a\n[G]\nKey=2\nKey=new", "[G]\n[A]\nKey=a\n[G]\n"},
            {any, "G", "[G]\nKey=  \nNext=1", "", "[G]\nKey=  new\nNext=1", "[G]\nNext=1"},
            {any, "G", "[G]\rKey=1\rNext=2", "1", "[G]\rKey=new\rNext=2", "[G]\rNext=2"},
            {any, "G", "[G]\n[Broken\nKey=1", {}, "[G]\nKey=new\n[Broken\nKey=1", "[G]\n[Broken\nKey=1"},
            {closed, "G", "[G]\n[Broken\nKey\n=1\nKey=a=b", "a=b", "[G]\n[Broken\nKey\n=1\nKey=new",
             "[G]\n[Broken\nKey\n=1\n"},
            {any, "", "[\nKey=1\n[]\nKey=2\n", {}, "Key=new\n[\nKey=1\n[]\nKey=2\n", "[\nKey=1\n[]\nKey=2\n"},
            // where a new line belongs
            {any, "G", "[G]\nA=a\n#b=c\n=d\n", {}, "[G]\nA=a\nKey=new\n#b=c\n=d\n", "[G]\nA=a\n#b=c\n=d\n"},
            {any, "G", "[G]\r\nA=a", {}, "[G]\r\nA=a\r\nKey=new\r\n", "[G]\r\nA=a"},
            {any, "G", "# c\n[X]\nKey=1", {}, "# c\n[X]\nKey=1\n[G]\nKey=new\n", "# c\n[X]\nKey=1"},
            {any, "", "# c\n\n[X]\n", {}, "# c\n\nKey=new\n[X]\n", "# c\n\n[X]\n"},
            {any, "", "A=1\r", {}, "A=1\r\nKey=new\r\n", "A=1\r"},
            {any, "", "\xEF\xBB\xBF", {}, "\xEF\xBB\xBFKey=new\n", "\xEF\xBB\xBF"},
            {any, "G", "", {}, "[G]\nKey=new\n", ""},
            {any, "", {"A=\0b\n\0\nKey=6\n", 13}, "6", {"A=\0b\n\0\nKey=new\n", 15}, {"A=\0b\n\0\n", 7}},
            // what QSettings writes, and what it takes for a comment
            {ini, "G", "[G]\nA=\"x\nKey=no\"\nKey=x1x;Key=2\n", "x1x",
             "[G]\nA=\"x\nKey=no\"\nKey=new;Key=2\n", "[G]\nA=\"x\nKey=no\"\n"},
            {ini, "G", "[G]\nA=1\\\r\nKey=no\n#Key=3\n;\"\nB=\\\"\nKey=\"a;\\\"b\"\n", "\"a;\\\"b\"",
             "[G]\nA=1\\\r\nKey=no\n#Key=3\n;\"\nB=\\\"\nKey=new\n",
             "[G]\nA=1\\\r\nKey=no\n#Key=3\n;\"\nB=\\\"\n"},
            {ini, "G", "[G]\nKey=1 ;x\nA=2;y", "1", "[G]\nKey=new ;x\nA=2;y", "[G]\nA=2;y"},
            {ini, "G", "[G]\nA=\"open\\", {}, "[G]\nA=\"open\\\nKey=new\n", "[G]\nA=\"open\\"}};
        for (const auto &row : rows) {
            const KeyFileText text(row.before, row.format);
            QCOMPARE(text.value(row.group, "Key").value_or("none"), row.value.isNull() ? "none" : row.value);
            QCOMPARE(text.withValues(row.group, {{"Key", "new"}}), row.after);
            QCOMPARE(text.withoutKey(row.group, "Key"), row.without);
            QCOMPARE(text.withValues(row.group, {}), row.before);
        }
    }

    void manyKeysChangeAtOnce()
    {
        const KeyFileText text("B=1\nA=1\n[G]\nC=3\n");
        QCOMPARE(text.withValues({}, {{"C", "x"}, {"A", "12"}, {"D", ""}, {"B", ""}}),
                 QByteArray("B=\nA=12\nC=x\nD=\n[G]\nC=3\n"));
    }

    void aHugeFileIsReadInOnePass()
    {
        QByteArray content = "[G]\n";
        for (int i = 0; i < 100000; ++i)
            content += "Key=0123456789012345678901234\n[G" + QByteArray::number(i) + "]\n[G]\n";
        const KeyFileText text(content);
        QCOMPARE(int(text.entries().size()), 100000);
        QCOMPARE(text.withoutKey("G", "Key").count("[G]\n"), 100001);
        QCOMPARE(text.withValues("G", {{"Key", "1"}}).size(), content.size() - 24);
    }
};

QTEST_GUILESS_MAIN(TestKeyFileText)
#include "tst_keyfiletext.moc"
