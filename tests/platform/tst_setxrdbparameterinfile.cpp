#include "platform/setxrdbparameterinfile.h"

#include <QTest>

#include "tests/support/temporaryhome.h"

class TestSetXrdbParameterInFile : public QObject
{
    Q_OBJECT
private slots:
    void editsOneLine_data();
    void editsOneLine();
    void makesAndSparesFiles();
    void keepsWhatCannotBeRead();
};

void TestSetXrdbParameterInFile::editsOneLine_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("value"); // null: removed
    QTest::addColumn<QByteArray>("after");
    const QByteArray removed;
    // clang-format off
    QTest::newRow("replaced") << QByteArray("! mine\nXft.dpi: 96\nx: 1\n") << QByteArray("120") << QByteArray("! mine\nXft.dpi: 120\nx: 1\n");
    QTest::newRow("appended") << QByteArray("x: 1\n") << QByteArray("120") << QByteArray("x: 1\nXft.dpi: 120\n");
    QTest::newRow("appended to an open line") << QByteArray("x: 1") << QByteArray("120") << QByteArray("x: 1\nXft.dpi: 120\n");
    QTest::newRow("removed") << QByteArray("a: 1\nXft.dpi: 96\nb: 2") << removed << QByteArray("a: 1\nb: 2");
    QTest::newRow("nothing to remove") << QByteArray("a: 1") << removed << QByteArray("a: 1");
    QTest::newRow("blanks around the name") << QByteArray(" Xft.dpi :\t96\n") << QByteArray("120") << QByteArray("Xft.dpi: 120\n");
    QTest::newRow("another parameter's prefix") << QByteArray("Xft.dpix: 1\n!Xft.dpi: 2\n") << QByteArray("3") << QByteArray("Xft.dpix: 1\n!Xft.dpi: 2\nXft.dpi: 3\n");
    QTest::newRow("the last of several stays") << QByteArray("Xft.dpi: 1\na: 1\nXft.dpi: 2\nb: 2\n") << QByteArray("3") << QByteArray("a: 1\nXft.dpi: 3\nb: 2\n");
    QTest::newRow("a continued line goes whole") << QByteArray("Xft.dpi: \\\n 96\na: \\\nXft.dpi: text\n") << removed << QByteArray("a: \\\nXft.dpi: text\n");
    QTest::newRow("line ending and odd bytes") << QByteArray("a: \xff\r\nXft.dpi: 96\r\nb: 1\r\n") << QByteArray("7") << QByteArray("a: \xff\r\nXft.dpi: 7\r\nb: 1\r\n");
    QTest::newRow("last line, open") << QByteArray("a: 1\nXft.dpi: 96") << QByteArray("7") << QByteArray("a: 1\nXft.dpi: 7");
    // clang-format on
}

void TestSetXrdbParameterInFile::editsOneLine()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, value);
    const TemporaryHome home;
    const QByteArray path = home.write(QStringLiteral(".Xresources"), before).toLocal8Bit();
    QVERIFY(setXrdbParameterInFile(path.constData(), "Xft.dpi:", " ",
                                   value.isNull() ? nullptr : value.constData(), false));
    QTEST(home.read(QStringLiteral(".Xresources")), "after");
}

void TestSetXrdbParameterInFile::makesAndSparesFiles()
{
    const TemporaryHome home;
    const QByteArray path = home.path(QStringLiteral(".Xresources")).toLocal8Bit();
    QVERIFY(setXrdbParameterInFile(path.constData(), "Xft.dpi:", " ", nullptr, false));
    QVERIFY(!home.exists(QStringLiteral(".Xresources")));
    QVERIFY(setXrdbParameterInFile(path.constData(), "Xft.dpi:", " ", "96", false));
    QCOMPARE(home.read(QStringLiteral(".Xresources")), QByteArray("Xft.dpi: 96\n"));
    const QString written = home.fingerprint();
    QVERIFY(setXrdbParameterInFile(path.constData(), "Xft.dpi:", " ", "96", false));
    QCOMPARE(home.fingerprint(), written);
}

void TestSetXrdbParameterInFile::keepsWhatCannotBeRead()
{
    const TemporaryHome home;
    QVERIFY(home.makeDirectory(QStringLiteral(".Xresources")));
    const QByteArray path = home.path(QStringLiteral(".Xresources")).toLocal8Bit();
    QVERIFY(!setXrdbParameterInFile(path.constData(), "Xft.dpi:", " ", "96", false));
    QCOMPARE(home.fingerprint(), home.path(QStringLiteral(".Xresources")));
}

QTEST_GUILESS_MAIN(TestSetXrdbParameterInFile)
#include "tst_setxrdbparameterinfile.moc"
