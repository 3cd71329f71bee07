#include "platform/qazsettings.h"
#include "platform/themefiletext.h"
#include "tests/support/standarderror.h"
#include "tests/support/temporaryhome.h"

#include <QFile>
#include <QFileInfo>
#include <QtTest>

#include <cstdio>
#include <thread>

#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <unistd.h>

namespace {

void save(const QString &path, const QMap<QString, QString> &values)
{
    QazSettings store(path);
    store.sync(true);
    for (auto value = values.cbegin(); value != values.cend(); ++value)
        store.setValue(value.key(), *value);
}

QString load(const QString &path, const QString &key)
{
    QazSettings store(path);
    store.sync(true);
    return store.value(key, QStringLiteral("default")).toString();
}

} // namespace

class TestQazSettings : public QObject
{
    Q_OBJECT

private slots:
    void onlyTheLinesOfSetKeysChange_data();
    void onlyTheLinesOfSetKeysChange();
    void valuesAreReadAsTheyStand_data();
    void valuesAreReadAsTheyStand();
    void everyTextSurvivesTheFile_data();
    void everyTextSurvivesTheFile();
    void nothingIsWrittenWithoutAChange();
    void writingFollowsLinksAndKeepsTheMode();
    void missingDirectoriesAreMade();
    void whatIsNoRegularFileStays_data();
    void whatIsNoRegularFileStays();
    void aFailedWriteKeepsTheOldFile();
    void programsThatSaveAtOnceLoseNothing();
    void changesOfOthersSinceTheReadStay();
};

void TestQazSettings::onlyTheLinesOfSetKeysChange_data()
{
    QTest::addColumn<QByteArray>("before");
    QTest::addColumn<QByteArray>("after");

    QTest::newRow("comments, unknown lines and groups stay")
        << QByteArray("# c\n;d=1\nnonsense\nDelay=600\n=x\n[Group]\nDelay=7\n")
        << QByteArray("# c\n;d=1\nnonsense\nDelay=300\n=x\n[Group]\nDelay=7\n");
    QTest::newRow("the last of two lines counts")
        << QByteArray("Delay=1\nA=2\nDelay=3\n") << QByteArray("Delay=1\nA=2\nDelay=300\n");
    QTest::newRow("blanks around stay")
        << QByteArray("  Delay \t=  600 \t\n") << QByteArray("  Delay \t=  300 \t\n");
    QTest::newRow("CRLF") << QByteArray("A=1\r\nDelay=600\r\n") << QByteArray("A=1\r\nDelay=300\r\n");
    QTest::newRow("CRLF, new key") << QByteArray("A=1\r\n[G]\r\n")
                                   << QByteArray("A=1\r\nDelay=300\r\n[G]\r\n");
    QTest::newRow("no final newline") << QByteArray("Delay=600") << QByteArray("Delay=300");
    QTest::newRow("no final newline, new key") << QByteArray("A=1") << QByteArray("A=1\nDelay=300\n");
    QTest::newRow("new key goes below the last ungrouped one")
        << QByteArray("A=1\nB=2\n\n# for G\n[G]\nx=1\n")
        << QByteArray("A=1\nB=2\nDelay=300\n\n# for G\n[G]\nx=1\n");
    QTest::newRow("no key yet, a group")
        << QByteArray("# c\n[G]\nx=1\n") << QByteArray("# c\nDelay=300\n[G]\nx=1\n");
    QTest::newRow("empty value") << QByteArray("Delay=\nB=1\n") << QByteArray("Delay=300\nB=1\n");
    QTest::newRow("case matters") << QByteArray("delay=1\n") << QByteArray("delay=1\nDelay=300\n");
    QTest::newRow("bytes that are no UTF-8")
        << QByteArray("A=\xff\xfe\n\x80\x81\nDelay=6\n") << QByteArray("A=\xff\xfe\n\x80\x81\nDelay=300\n");
    QTest::newRow("NUL bytes") << QByteArray("A=\0b\n\0\nDelay=6\n", 15)
                               << QByteArray("A=\0b\n\0\nDelay=300\n", 17);
    QTest::newRow("byte order mark") << QByteArray("\xEF\xBB\xBF"
                                                   "Delay=6\n")
                                     << QByteArray("\xEF\xBB\xBF"
                                                   "Delay=300\n");
    QTest::newRow("empty file") << QByteArray("") << QByteArray("Delay=300\n");
}

void TestQazSettings::onlyTheLinesOfSetKeysChange()
{
    QFETCH(QByteArray, before);
    QFETCH(QByteArray, after);
    const TemporaryHome home;
    const QString path = home.write(QStringLiteral("t.themerc"), before);
    save(path, {{QStringLiteral("Delay"), QStringLiteral("300")}});
    QCOMPARE(home.read(QStringLiteral("t.themerc")), after);
    QCOMPARE(load(path, QStringLiteral("Delay")), QStringLiteral("300"));
}

void TestQazSettings::valuesAreReadAsTheyStand_data()
{
    QTest::addColumn<QByteArray>("text");
    QTest::addColumn<QString>("value");

    QTest::newRow("missing") << QByteArray("Other=1\n") << QStringLiteral("default");
    QTest::newRow("empty is no default") << QByteArray("Key=\n") << QString();
    QTest::newRow("in a group") << QByteArray("[G]\nKey=1\n") << QStringLiteral("default");
    QTest::newRow("bracket in a value") << QByteArray("A=[x]\nKey=1\n") << QStringLiteral("1");
    QTest::newRow("equals in the value") << QByteArray("Key=a=b=c\n") << QStringLiteral("a=b=c");
    QTest::newRow("hash in the value") << QByteArray("Key=#a6caf0\n") << QStringLiteral("#a6caf0");
    QTest::newRow("escapes") << QByteArray("Key=\\sa\\\\b\\nc\\td\\re\\s\n")
                             << QStringLiteral(" a\\b\nc\td\re ");
    QTest::newRow("unknown escapes") << QByteArray("Key=\\x\\\"\\\n") << QStringLiteral("\\x\\\"\\");
    QTest::newRow("UTF-8") << QByteArray("Key=\xc3\xa4\xe2\x82\xac\n") << QStringLiteral("ä€");
}

void TestQazSettings::valuesAreReadAsTheyStand()
{
    QFETCH(QByteArray, text);
    QFETCH(QString, value);
    const TemporaryHome home;
    QCOMPARE(load(home.write(QStringLiteral("t"), text), QStringLiteral("Key")), value);
}

void TestQazSettings::everyTextSurvivesTheFile_data()
{
    QTest::addColumn<QString>("text");
    QTest::newRow("empty") << QString();
    QTest::newRow("one blank") << QStringLiteral(" ");
    QTest::newRow("blanks at the ends") << QStringLiteral("  a b  ");
    QTest::newRow("percent signs") << QStringLiteral("%1 %s %%");
    QTest::newRow("backslashes") << QStringLiteral("\\s\\\\n \\");
    QTest::newRow("line breaks and tabs") << QStringLiteral("\ta\r\nb\n\n");
    QTest::newRow("looks like a group") << QStringLiteral("[x]");
    QTest::newRow("not ASCII") << QStringLiteral("Größe 字 😀");
    QTest::newRow("10,000 characters") << QString(10000, QLatin1Char('x'));
}

void TestQazSettings::everyTextSurvivesTheFile()
{
    QFETCH(QString, text);
    const TemporaryHome home;
    const QString path = home.write(QStringLiteral("t"), "Key=old\nAfter=1\n");
    save(path, {{QStringLiteral("Key"), text}});
    QCOMPARE(load(path, QStringLiteral("Key")), text);
    QCOMPARE(load(path, QStringLiteral("After")), QStringLiteral("1"));
}

void TestQazSettings::nothingIsWrittenWithoutAChange()
{
    const TemporaryHome home;
    const QString path = home.write(QStringLiteral("t"), "Key=a\n");
    const QString before = home.fingerprint();
    save(path, {});
    save(path, {{QStringLiteral("Key"), QStringLiteral("a")}});
    QCOMPARE(home.fingerprint(), before);

    QazSettings store(path);
    store.sync(true);
    store.setValue(QStringLiteral("Key"), QStringLiteral("b"));
    QCOMPARE(store.value(QStringLiteral("Key")).toString(), QStringLiteral("b"));
    store.setValue(QStringLiteral("Key"), false);
    QCOMPARE(store.value(QStringLiteral("Key")).toString(), QStringLiteral("false"));
    QCOMPARE(home.fingerprint(), before);
}

void TestQazSettings::writingFollowsLinksAndKeepsTheMode()
{
    const TemporaryHome home;
    const QString target = home.write(QStringLiteral("real/t"), "Key=a\n");
    QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
    QVERIFY(QFile::link(QStringLiteral("real/t"), home.path(QStringLiteral("link"))));
    save(home.path(QStringLiteral("link")), {{QStringLiteral("Key"), QStringLiteral("b")}});
    QVERIFY(QFileInfo(home.path(QStringLiteral("link"))).isSymLink());
    QCOMPARE(home.read(QStringLiteral("real/t")), QByteArray("Key=b\n"));
    struct stat status = {};
    QCOMPARE(::stat(QFile::encodeName(target).constData(), &status), 0);
    QCOMPARE(uint(status.st_mode & 07777), 0640U);

    QVERIFY(QFile::link(QStringLiteral("later"), home.path(QStringLiteral("dangling"))));
    save(home.path(QStringLiteral("dangling")), {{QStringLiteral("Key"), QStringLiteral("c")}});
    QCOMPARE(home.read(QStringLiteral("later")), QByteArray("Key=c\n"));
}

void TestQazSettings::missingDirectoriesAreMade()
{
    const TemporaryHome home;
    save(home.path(QStringLiteral("a/b/t")), {{QStringLiteral("Key"), QStringLiteral("x")}});
    QCOMPARE(home.read(QStringLiteral("a/b/t")), QByteArray("Key=x\n"));
}

void TestQazSettings::whatIsNoRegularFileStays_data()
{
    QTest::addColumn<QString>("kind");
    QTest::newRow("directory") << QStringLiteral("directory");
    QTest::newRow("FIFO") << QStringLiteral("fifo");
    QTest::newRow("loop of links") << QStringLiteral("loop");
}

void TestQazSettings::whatIsNoRegularFileStays()
{
    QFETCH(QString, kind);
    const TemporaryHome home;
    const QString path = home.path(QStringLiteral("t"));
    if (kind == QLatin1String("directory"))
        QVERIFY(home.makeDirectory(QStringLiteral("t")));
    else if (kind == QLatin1String("fifo"))
        QCOMPARE(::mkfifo(QFile::encodeName(path).constData(), 0600), 0);
    else
        QVERIFY(QFile::link(path, path));
    const QString before = home.fingerprint();
    StandardError errors;
    QCOMPARE(load(path, QStringLiteral("Key")), QStringLiteral("default"));
    save(path, {{QStringLiteral("Key"), QStringLiteral("x")}});
    QCOMPARE(home.fingerprint(), before);
    const QByteArray printed = errors.take();
    const QByteArray lastLine = "\nqaz-admin-theme: Can't write " + QFile::encodeName(path) + ": ";
    QVERIFY2(printed.contains(lastLine) && printed.count('\n') == 3, printed.constData());
}

void TestQazSettings::aFailedWriteKeepsTheOldFile()
{
    // A limit on the file size makes the write fail half way, as a full disk would.
    const TemporaryHome home;
    const QString path = home.write(QStringLiteral("t"), "Key=a\n" + QByteArray(100000, '#') + '\n');
    const QByteArray before = home.read(QStringLiteral("t"));
    const pid_t child = ::fork();
    if (child == 0) {
        const rlimit limit = {50000, 50000};
        ::setrlimit(RLIMIT_FSIZE, &limit);
        if (!std::freopen("/dev/null", "w", stderr))
            ::_exit(1);
        save(path, {{QStringLiteral("Key"), QStringLiteral("b")}});
        ::_exit(0);
    }
    int status = -1;
    QCOMPARE(::waitpid(child, &status, 0), child);
    QCOMPARE(status, 0);
    QCOMPARE(home.read(QStringLiteral("t")), before);
    QCOMPARE(QDir(home.path()).entryList(QDir::Files | QDir::Hidden), QStringList{QStringLiteral("t")});
}

void TestQazSettings::programsThatSaveAtOnceLoseNothing()
{
    const TemporaryHome home;
    const QString path = home.write(QStringLiteral("t"), "");
    constexpr int writers = 4;
    constexpr int rounds = 25;
    std::vector<std::thread> threads;
    for (int writer = 0; writer < writers; ++writer) {
        threads.emplace_back([path, writer] {
            for (int round = 0; round < rounds; ++round)
                save(path, {{QStringLiteral("Key%1x%2").arg(writer).arg(round), QStringLiteral("1")}});
        });
    }
    for (std::thread &thread : threads)
        thread.join();
    QCOMPARE(home.read(QStringLiteral("t")).count('\n'), writers * rounds);
}

void TestQazSettings::changesOfOthersSinceTheReadStay()
{
    const TemporaryHome home;
    const QString path = home.write(QStringLiteral("t"), "A=1\nB=1\n");
    {
        QazSettings store(path);
        store.sync(true);
        store.setValue(QStringLiteral("A"), QStringLiteral("2"));
        home.write(QStringLiteral("t"), "# new\nB=3\nA=1\nC=4\n");
    }
    QCOMPARE(home.read(QStringLiteral("t")), QByteArray("# new\nB=3\nA=2\nC=4\n"));
}

QTEST_GUILESS_MAIN(TestQazSettings)
#include "tst_qazsettings.moc"
