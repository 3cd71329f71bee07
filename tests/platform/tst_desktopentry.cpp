#include "platform/base/desktopentrytext.h"
#include "platform/qazdesktopentry.h"
#include "tests/support/temporaryhome.h"

#include <QFile>
#include <QTest>

namespace {

const QByteArray key = QByteArrayLiteral("Key");

/// What a person may have written: nothing of it may change with the key.
const QByteArray foreign
    = "\xEF\xBB\xBF# mine  \r\n\r\nKey=above all groups\r\n"
      "[Other]\r\nKey=other\r\n"
      "[Desktop Entry]\r\n ; Key=comment\r\nName = Work \t\r\nKey[de]=deutsch\r\nbad\xFF\xFEline\r\n"
      "%1"
      "key=lower case\r\n\r\n[Desktop Entry Extra]\r\nKey=extra";

QByteArray around(const QByteArray &line)
{
    return QByteArray(foreign).replace("%1", line);
}

} // namespace

class TestDesktopEntry : public QObject
{
    Q_OBJECT
private slots:
    void valuesAreRead_data();
    void valuesAreRead();
    void settingChangesOneLine_data();
    void settingChangesOneLine();
    void savingKeepsWhatOthersWrote();
    void failuresLeaveTheFile();
};

void TestDesktopEntry::valuesAreRead_data()
{
    QTest::addColumn<QByteArray>("content");
    QTest::addColumn<QByteArray>("value"); // null: no such key

    QTest::newRow("blanks round the value")
        << QByteArray("[Desktop Entry]\nKey = a b \t\n") << QByteArray("a b");
    QTest::newRow("the last of two") << QByteArray("[Desktop Entry]\nKey=1\nKey=2\n") << QByteArray("2");
    QTest::newRow("group in two parts")
        << QByteArray("[Desktop Entry]\n[A]\nKey=a\n[Desktop Entry]\nKey=2\n") << QByteArray("2");
    QTest::newRow("empty value") << QByteArray("[Desktop Entry]\nKey=\nNext=1") << QByteArray("");
    QTest::newRow("lone carriage returns") << QByteArray("[Desktop Entry]\rKey=1\rNext=2") << QByteArray("1");
    QTest::newRow("only elsewhere") << around({}) << QByteArray();
    QTest::newRow("unclosed header") << QByteArray("[Desktop Entry\nKey=1\n") << QByteArray();
    QTest::newRow("lines that are skipped")
        << QByteArray("[Desktop Entry]\n[Broken\nKey\n=1\nKey=a=b") << QByteArray("a=b");
}

void TestDesktopEntry::valuesAreRead()
{
    QFETCH(QByteArray, content);
    QFETCH(QByteArray, value);
    const std::optional<QByteArray> found = DesktopEntryText(content).value(key);
    QCOMPARE(found.has_value(), !value.isNull());
    QCOMPARE(found.value_or(QByteArray()), value);
}

void TestDesktopEntry::settingChangesOneLine_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");

    QTest::newRow("foreign content") << around("Key =  old  \r\n") << around("Key =  new  \r\n");
    QTest::newRow("new key") << QByteArray("[Desktop Entry]\nName=a\n\n# end\n[X]\n")
                             << QByteArray("[Desktop Entry]\nName=a\nKey=new\n\n# end\n[X]\n");
    QTest::newRow("new key, last line open")
        << QByteArray("[Desktop Entry]\r\nName=a") << QByteArray("[Desktop Entry]\r\nName=a\r\nKey=new\r\n");
    QTest::newRow("empty group") << QByteArray("[Desktop Entry]\n[X]\n")
                                 << QByteArray("[Desktop Entry]\nKey=new\n[X]\n");
    QTest::newRow("no group") << QByteArray("# mine") << QByteArray("# mine\n[Desktop Entry]\nKey=new\n");
    QTest::newRow("empty file") << QByteArray() << QByteArray("[Desktop Entry]\nKey=new\n");
    QTest::newRow("twice") << QByteArray("[Desktop Entry]\nKey=1\nKey=2")
                           << QByteArray("[Desktop Entry]\nKey=new\nKey=new");
}

void TestDesktopEntry::settingChangesOneLine()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    DesktopEntryText text(before);
    text.setValue(key, "new");
    QCOMPARE(text.content(), after);
    QCOMPARE(text.value(key).value_or(QByteArray()), QByteArray("new"));
}

void TestDesktopEntry::savingKeepsWhatOthersWrote()
{
    const TemporaryHome home;
    const QByteArray path = QFile::encodeName(
        home.write(QStringLiteral(".directory"), "[Desktop Entry]\nA=1\nB=2\n"));
    QazDesktopEntry entry(path.constData());
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
    home.write(QStringLiteral(".directory"), "[Desktop Entry]\nA=1\nB=3 # meanwhile\n");
    QVERIFY(entry.save(0));
    QCOMPARE(home.read(QStringLiteral(".directory")),
             QByteArray("[Desktop Entry]\nA=1\nB=3 # meanwhile\nC=\"#123456\"\n"));

    const QString before = home.fingerprint();
    QVERIFY(entry.save(0));
    QCOMPARE(home.fingerprint(), before);
}

void TestDesktopEntry::failuresLeaveTheFile()
{
    const TemporaryHome home;
    QVERIFY(home.makeDirectory(QStringLiteral("directory")));
    QVERIFY(!QazDesktopEntry(QFile::encodeName(home.path(QStringLiteral("missing"))).constData()).load());
    QazDesktopEntry entry(QFile::encodeName(home.path(QStringLiteral("directory"))).constData());
    QVERIFY(!entry.load());
    List<char> texts;
    texts.append("A");
    entry.setUnknowns(texts, texts);
    QVERIFY(!entry.save(0));
    QVERIFY(QFileInfo(home.path(QStringLiteral("directory"))).isDir());
}

QTEST_GUILESS_MAIN(TestDesktopEntry)
#include "tst_desktopentry.moc"
