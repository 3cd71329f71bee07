#include "platform/qazsettings.h"
#include "tests/support/rows.h"
#include "tests/support/standarderror.h"
#include "tests/support/temporaryhome.h"

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
        // What is special, the file before, the value in it, and the file with another value.
        for (const QStringList &row : rowsOf("platform/settings.json"_s)) {
            const TemporaryHome home;
            const QString path = home.write(file, row[1].toUtf8());
            QCOMPARE(load(path), row[2]);
            save(path, "300"_s);
            QCOMPARE(QString::fromUtf8(home.read(file)), row[3]);
            QCOMPARE(load(path), "300"_s);
        }
    }

    void onlyChangesAreWrittenAtTheEnd()
    {
        const TemporaryHome home;
        auto store = std::make_unique<QazSettings>(home.write(file, "Key=a\nA=1\nB=1\n"));
        const QString before = home.fingerprint();
        save(home.path(file), "a"_s);
        store->sync(true);
        store->setValue("A"_s, false);
        QCOMPARE(store->value("A"_s).toString(), "false"_s);
        QCOMPARE(home.fingerprint(), before);
        home.write(file, "# new\nB=3\nA=1\nC=4\n"); // by another program
        store.reset();
        QCOMPARE(home.read(file), QByteArray("# new\nB=3\nA=false\nC=4\n"));
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
};

QTEST_GUILESS_MAIN(TestQazSettings)
#include "tst_qazsettings.moc"
