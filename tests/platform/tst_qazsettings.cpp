#include "platform/qazsettings.h"
#include "tests/support/literals.h"
#include "tests/support/standarderror.h"
#include "tests/support/temporaryhome.h"

#include <QtTest>

#include <sys/stat.h>

namespace {

const QString file = "t"_s;

void save(const QString &path, const QString &value, const QString &key = "Key"_s)
{
    QazSettings store(path);
    store.sync(true);
    store.setValue(key, value);
}

QString load(const QString &path, const QString &key = "Key"_s)
{
    QazSettings store(path);
    store.sync(true);
    return store.value(key, "default"_s).toString();
}

} // namespace

class TestQazSettings : public QObject
{
    Q_OBJECT

private slots:
    void onlyTheLinesOfSetKeysChange()
    {
        // clang-format off
        const std::pair<QByteArray, QByteArray> rows[] = {
            {"# c\n;d=1\nnonsense\nKey=600\n=x\n[Group]\nKey=7\n",
             "# c\n;d=1\nnonsense\nKey=300\n=x\n[Group]\nKey=7\n"},
            {"Key=1\nA=2\nKey=3\n", "Key=1\nA=2\nKey=300\n"}, // the last of two counts
            {"  Key \t=  600 \t\n", "  Key \t=  300 \t\n"},
            {"A=1\r\nKey=600\r\n", "A=1\r\nKey=300\r\n"},
            {"A=1\r\n[G]\r\n", "A=1\r\nKey=300\r\n[G]\r\n"},
            {"Key=600", "Key=300"},
            {"A=1", "A=1\nKey=300\n"},
            // a new key goes below the last ungrouped one, if any
            {"A=1\nB=2\n\n# for G\n[G]\nx=1\n", "A=1\nB=2\nKey=300\n\n# for G\n[G]\nx=1\n"},
            {"# c\n[G]\nx=1\n", "# c\nKey=300\n[G]\nx=1\n"},
            {"[\nKey=1\n", "Key=300\n[\nKey=1\n"}, {"A=1\n [x] y\nKey=1\n", "A=1\nKey=300\n [x] y\nKey=1\n"},
            {"Key=\nB=1\n", "Key=300\nB=1\n"},
            {"key=1\n", "key=1\nKey=300\n"},
            {"A=\xff\xfe\n\x80\x81\nKey=6\n", "A=\xff\xfe\n\x80\x81\nKey=300\n"},
            {{"A=\0b\n\0\nKey=6\n", 13}, {"A=\0b\n\0\nKey=300\n", 15}},
            {"\xEF\xBB\xBFKey=6\n", "\xEF\xBB\xBFKey=300\n"},
            {"", "Key=300\n"}};
        // clang-format on
        for (const auto &[before, after] : rows) {
            const TemporaryHome home;
            const QString path = home.write(file, before);
            save(path, "300"_s);
            QCOMPARE(home.read(file), after);
            QCOMPARE(load(path), "300"_s);
        }
    }

    void valuesAreReadAsTheyStand()
    {
        // clang-format off
        const std::pair<QByteArray, QByteArray> rows[] = {
            {"Other=1\n", "default"}, {"Key=\n", ""}, {"[G]\nKey=1\n", "default"}, {"A=[x]\nKey=1\n", "1"},
            {"Key=#a=b;=c\n", "#a=b;=c"}, {"Key=\\sa\\\\b\\nc\\td\\re\\s\n", " a\\b\nc\td\re "},
            {"Key=\\x\\\"\\\n", "\\x\\\"\\"}, {"Key=\xc3\xa4\xe2\x82\xac\n", "ä€"}};
        // clang-format on
        for (const auto &[before, after] : rows) {
            const TemporaryHome home;
            QCOMPARE(load(home.write(file, before)).toUtf8(), after);
        }
    }

    void everyTextSurvivesTheFile()
    {
        const QStringList texts{{},           " "_s,           "  a b  "_s,
                                "%1 %s %%"_s, "\\s\\\\n \\"_s, "\ta\r\nb\n\n"_s,
                                "[x]"_s,      "Größe 字 😀"_s,  QString(10000, u'x')};
        for (const QString &text : texts) {
            const TemporaryHome home;
            const QString path = home.write(file, "Key=old\nAfter=1\n");
            save(path, text);
            QCOMPARE(load(path), text);
            QCOMPARE(load(path, "After"_s), "1"_s);
        }
    }

    void nothingIsWrittenWithoutAChange()
    {
        const TemporaryHome home;
        const QString path = home.write(file, "Key=a\n");
        const QString before = home.fingerprint();
        load(path);
        save(path, "a"_s);
        QCOMPARE(home.fingerprint(), before);

        QazSettings store(path);
        store.sync(true);
        const QString key = "Key"_s;
        store.setValue(key, "b"_s);
        QCOMPARE(store.value(key).toString(), "b"_s);
        store.setValue(key, false);
        QCOMPARE(store.value(key).toString(), "false"_s);
        QCOMPARE(home.fingerprint(), before);
    }

    void whatIsNoRegularFileStays()
    {
        const TemporaryHome home;
        QVERIFY(home.makeDirectory("directory"_s));
        QCOMPARE(::mkfifo(QFile::encodeName(home.path("fifo"_s)).constData(), 0600), 0);
        QVERIFY(QFile::link(home.path("loop"_s), home.path("loop"_s)));
        const QString before = home.fingerprint();
        for (const char *name : {"directory", "fifo", "loop"}) {
            const QString path = home.path(QLatin1String(name));
            StandardError errors;
            QCOMPARE(load(path), "default"_s);
            save(path, "x"_s);
            QCOMPARE(home.fingerprint(), before);
            const QByteArray printed = errors.take();
            const QByteArray lastLine = "\nqaz-admin-theme: Can't write " + QFile::encodeName(path) + ": ";
            QVERIFY2(printed.contains(lastLine) && printed.count('\n') == 3, printed.constData());
        }
    }

    void aFileOver16MegabytesIsRefused()
    {
        const TemporaryHome home;
        const QByteArray content = "Key=1\n" + QByteArray(16 * 1024 * 1024 - 6, '#');
        const QString path = home.write(file, content);
        QCOMPARE(load(path), "1"_s);
        home.write(file, content + '#');
        const QString before = home.fingerprint();
        StandardError errors;
        save(path, "2"_s);
        QCOMPARE(errors.take(), "qaz-admin-theme: Can't read " + QFile::encodeName(path)
                                    + ": File too large\nqaz-admin-theme: Can't write "
                                    + QFile::encodeName(path) + ": File too large\n");
        QCOMPARE(home.fingerprint(), before);
    }

    void changesOfOthersSinceTheReadStay()
    {
        const TemporaryHome home;
        {
            QazSettings store(home.write(file, "A=1\nB=1\n"));
            store.sync(true);
            store.setValue("A"_s, "2"_s);
            home.write(file, "# new\nB=3\nA=1\nC=4\n");
        }
        QCOMPARE(home.read(file), QByteArray("# new\nB=3\nA=2\nC=4\n"));
    }
};

QTEST_GUILESS_MAIN(TestQazSettings)
#include "tst_qazsettings.moc"
