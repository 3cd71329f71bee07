#include "platform/qazsettings.h"
#include "tests/support/standarderror.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/testing.h"

namespace {

const QString file = "t"_s;

void save(const QString &path, const QString &value)
{
    QazSettings store(path);
    store.sync(true);
    store.setValue("Key"_s, value);
}

QString load(const QString &path)
{
    QazSettings store(path);
    store.sync(true);
    return store.value("Key"_s, "default"_s).toString();
}

} // namespace

class TestQazSettings : public QObject
{
    Q_OBJECT
private slots:
    void onlyTheLinesOfSetKeysChange()
    {
        const std::pair<QByteArray, QByteArray> rows[] = {
            {"# c\n;d=1\nnonsense\nKey=600\n=x\n[Group]\nKey=7\n",
             "# c\n;d=1\nnonsense\nKey=300\n=x\n[Group]\nKey=7\n"},
            {"A=1\n [x] y\nKey=1\n", "A=1\nKey=300\n [x] y\nKey=1\n"},
            {"  Key \t=  600 \t\r\n", "  Key \t=  300 \t\r\n"},
            {"", "Key=300\n"}};
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
        for (const QString &text : {QString(), " "_s, "  a b  "_s, "%1 %s %%"_s, "\\s\\\\n \\"_s,
                                    "\ta\r\nb\n\n"_s, "Größe 字 😀"_s, "\uFEFFx"_s, QString(10000, u'x')}) {
            const TemporaryHome home;
            const QString path = home.write(file, "Key=old\nAfter=1\n");
            save(path, text);
            QCOMPARE(load(path), text);
            QVERIFY(home.read(file).endsWith("\nAfter=1\n") && home.read(file).count('\n') == 2);
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
        store.setValue("Key"_s, false);
        QCOMPARE(store.value("Key"_s).toString(), "false"_s);
        QCOMPARE(home.fingerprint(), before);
    }

    void whatCannotBeReadStaysAndIsReported()
    {
        const TemporaryHome home;
        const QByteArray content = "Key=1\n" + QByteArray(16 * 1024 * 1024 - 6, '#');
        QCOMPARE(load(home.write(file, content)), "1"_s);
        home.write(file, content + '#');
        home.makeFifo("fifo"_s);
        const QString before = home.fingerprint();
        for (const auto &[name, reason] :
             {std::pair(file, "File too large"), {"fifo"_s, "Not a regular file"}}) {
            const QByteArray end = ' ' + QFile::encodeName(home.path(name)) + ": " + reason + '\n';
            StandardError errors;
            save(home.path(name), "2"_s);
            QCOMPARE(errors.take(),
                     "qaz-admin-theme: Can't read" + end + "qaz-admin-theme: Can't write" + end);
            QCOMPARE(load(home.path(name)), "default"_s);
        }
        QCOMPARE(home.fingerprint(), before);
    }

    void changesOfOthersSinceTheReadStay()
    {
        const TemporaryHome home;
        auto store = std::make_unique<QazSettings>(home.write(file, "A=1\nB=1\n"));
        store->sync(true);
        store->setValue("A"_s, "2"_s);
        home.write(file, "# new\nB=3\nA=1\nC=4\n");
        store.reset();
        QCOMPARE(home.read(file), QByteArray("# new\nB=3\nA=2\nC=4\n"));
    }
};

QTEST_GUILESS_MAIN(TestQazSettings)
#include "tst_qazsettings.moc"
