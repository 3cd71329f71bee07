#include "base/desktopentrytext.h"
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
    void oneKeyChanges()
    {
        const struct {
            QByteArray before;
            QByteArray value; // null: no such key
            QByteArray after; // with "new" as the value
        } rows[] = {
            {around("Key =  a b \t\r\n"), "a b", around("Key =  new \t\r\n")},
            {around({}), {}, around({}).replace("case\r\n", "case\r\nKey=new\r\n")},
            {"[Desktop Entry]\nKey=1\n[A]\nKey=a\n[Desktop Entry]\nKey=2\nKey=3", "3",
             "[Desktop Entry]\nKey=new\n[A]\nKey=a\n[Desktop Entry]\nKey=new\nKey=new"},
            {"[Desktop Entry]\nKey=\nNext=1", "", "[Desktop Entry]\nKey=new\nNext=1"},
            {"[Desktop Entry]\rKey=1\rNext=2", "1", "[Desktop Entry]\rKey=new\rNext=2"},
            {"[Desktop Entry]\n[Broken\nKey\n=1\nKey=a=b", "a=b",
             "[Desktop Entry]\n[Broken\nKey\n=1\nKey=new"},
            {"[Desktop Entry]\nA=a\n\n# end\n[X]\n", {}, "[Desktop Entry]\nA=a\nKey=new\n\n# end\n[X]\n"},
            {"[Desktop Entry]\r\nA=a", {}, "[Desktop Entry]\r\nA=a\r\nKey=new\r\n"},
            {"[Desktop Entry\nKey=1", {}, "[Desktop Entry\nKey=1\n[Desktop Entry]\nKey=new\n"},
            {"", {}, "[Desktop Entry]\nKey=new\n"}};
        for (const auto &row : rows) {
            DesktopEntryText text(row.before);
            QCOMPARE(text.value("Key").has_value(), !row.value.isNull());
            QCOMPARE(text.value("Key").value_or(QByteArray()), row.value);
            text.setValue("Key", "new");
            QCOMPARE(text.content(), row.after);
            QVERIFY(text.removeKey("Key"));
            QString without = QString::fromLatin1(row.after);
            without.remove(QRegularExpression("Key *= *new[ \\t]*(\\r\\n|\\r|\\n|$)"_s));
            QCOMPARE(QString::fromLatin1(text.content()), without);
        }
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
