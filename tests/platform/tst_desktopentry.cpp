#include "platform/base/desktopentrytext.h"
#include "platform/qazdesktopentry.h"
#include "tests/support/literals.h"
#include "tests/support/temporaryhome.h"

#include <QFile>
#include <QRegularExpression>
#include <QTest>

namespace {

/// A line in a file that a person may have written: nothing else of it may change with the key.
QByteArray around(const QByteArray &line)
{
    return "\xEF\xBB\xBF# mine  \r\n\r\nKey=above all groups\r\n[Other]\r\nKey=other\r\n"
           "[Desktop Entry]\r\n ; Key=comment\r\nName = Work \t\r\nKey[de]=deutsch\r\nbad\xFF\xFEline\r\n"
           + line + "key=lower case\r\n\r\n[Desktop Entry Extra]\r\nKey=extra";
}

} // namespace

class TestDesktopEntry : public QObject
{
    Q_OBJECT
private slots:
    void oneKeyChanges_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("value"); // null: no such key
        QTest::addColumn<QByteArray>("after"); // with "new" as the value
        const auto row = [](const char *title, const QByteArray &before, const char *value,
                            const QByteArray &after) {
            QTest::newRow(title) << before << QByteArray(value) << after;
        };
        row("foreign content", around("Key =  a b \t\r\n"), "a b", around("Key =  new \t\r\n"));
        row("group in two parts, twice", "[Desktop Entry]\nKey=1\n[A]\nKey=a\n[Desktop Entry]\nKey=2\nKey=3",
            "3", "[Desktop Entry]\nKey=new\n[A]\nKey=a\n[Desktop Entry]\nKey=new\nKey=new");
        row("empty value", "[Desktop Entry]\nKey=\nNext=1", "", "[Desktop Entry]\nKey=new\nNext=1");
        row("lone carriage returns", "[Desktop Entry]\rKey=1\rNext=2", "1",
            "[Desktop Entry]\rKey=new\rNext=2");
        row("lines that are skipped", "[Desktop Entry]\n[Broken\nKey\n=1\nKey=a=b", "a=b",
            "[Desktop Entry]\n[Broken\nKey\n=1\nKey=new");
        row("only elsewhere", around({}), nullptr, around({}).replace("case\r\n", "case\r\nKey=new\r\n"));
        row("new key before the group's end", "[Desktop Entry]\nName=a\n\n# end\n[X]\n", nullptr,
            "[Desktop Entry]\nName=a\nKey=new\n\n# end\n[X]\n");
        row("new key, last line open", "[Desktop Entry]\r\nName=a", nullptr,
            "[Desktop Entry]\r\nName=a\r\nKey=new\r\n");
        row("unclosed header", "[Desktop Entry\nKey=1", nullptr,
            "[Desktop Entry\nKey=1\n[Desktop Entry]\nKey=new\n");
        row("empty file", "", nullptr, "[Desktop Entry]\nKey=new\n");
    }

    void oneKeyChanges()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, value);
        QFETCH(QByteArray, after);
        DesktopEntryText text(before);
        QCOMPARE(text.value("Key").has_value(), !value.isNull());
        QCOMPARE(text.value("Key").value_or(QByteArray()), value);
        text.setValue("Key", "new");
        QCOMPARE(text.content(), after);
        QVERIFY(text.removeKey("Key"));
        QString without = QString::fromLatin1(after);
        without.remove(QRegularExpression("Key *= *new[ \\t]*(\\r\\n|\\r|\\n|$)"_s));
        QCOMPARE(QString::fromLatin1(text.content()), without);
    }

    void savingKeepsWhatOthersWrote()
    {
        const TemporaryHome home;
        const QString name = ".directory"_s;
        QazDesktopEntry entry(QFile::encodeName(home.path(name)).constData());
        QVERIFY(!entry.load());
        home.write(name, "[Desktop Entry]\nA=1\nB=2\n");
        QVERIFY(entry.load());
        QCOMPARE(entry.getUnknownValue("A"), "1");
        QVERIFY(!entry.getUnknownValue("C"));

        List<char> keys;
        List<char> values;
        keys.append("C");
        values.append("\"#123456\"");
        keys.append("A");
        values.append("a\nInjected=1");
        entry.setUnknowns(keys, values);
        QCOMPARE(entry.getUnknownValue("C"), "\"#123456\"");
        home.write(name, "[Desktop Entry]\nA=1\nB=3 # meanwhile\n");
        QVERIFY(entry.save(0));
        QCOMPARE(home.read(name), QByteArray("[Desktop Entry]\nA=1\nB=3 # meanwhile\nC=\"#123456\"\n"));
        const QString before = home.fingerprint();
        QVERIFY(entry.save(0));
        QCOMPARE(home.fingerprint(), before);
    }
};

QTEST_GUILESS_MAIN(TestDesktopEntry)
#include "tst_desktopentry.moc"
