#include "settings/inifile.h"
#include "tests/support/literals.h"
#include "tests/support/standarderror.h"
#include "tests/support/temporaryhome.h"

#include <QSettings>
#include <QTest>

#include <sys/resource.h>

class TestIniFile : public QObject
{
    Q_OBJECT
private slots:
    void onlyTheLinesOfSetKeysChange()
    {
        const struct {
            QByteArray group;
            QByteArray before;
            QByteArray after; // with "new" as the value
        } rows[] = {{"kompmgr", "# mine\n; too\n[kompmgr]\nA = 1\n Key = old \n\n[Other]\nKey=@Size(1 2)\n",
                     "# mine\n; too\n[kompmgr]\nA = 1\n Key = new \n\n[Other]\nKey=@Size(1 2)\n"},
                    // the group General has three spellings, and one that looks like it is none
                    {"", "Key=1\n[Qt]\nKey=2\n", "Key=new\n[Qt]\nKey=2\n"},
                    {"", "[general]\nKey=1\n[%General]\nKey=2\n", "[general]\nKey=new\n[%General]\nKey=2\n"},
                    {"", "[Qt]\nx=1\n", "[Qt]\nx=1\n[General]\nKey=new\n"},
                    {"g", "Key=1\n[o]\nA=\"[g]\nKey=1\"", "Key=1\n[o]\nA=\"[g]\nKey=1\"\n[g]\nKey=new\n"}};
        for (const auto &row : rows) {
            const TemporaryHome home;
            const QString path = home.write("f"_s, row.before);
            writeIniValues(path, row.group, {{"Key"_s, "new"_s}});
            QCOMPARE(home.read("f"_s), row.after);
            QCOMPARE(iniValue(path, QString::fromLatin1(row.group + "/Key")), QVariant("new"_s));
        }
    }

    void everyValueIsReadBackAndSpelledAsQSettingsSpellsIt()
    {
        const TemporaryHome home;
        QSettings theirs(home.path("theirs"_s), QSettings::IniFormat);
        QMap<QString, QVariant> values{
            {"true"_s, true}, {"number"_s, -120}, {"fraction"_s, 10.5}, {"empty"_s, QString()}};
        const QStringList texts{"Sans Serif,10,-1,5,50,0,0,0,0,0"_s,
                                " a "_s,
                                "a;b=c"_s,
                                "\"q\" \\"_s,
                                "@Point(1 2)"_s,
                                "\x01\x31\x66\a\b\t\n\v\f\r\x1f\x61z\x7f"_s,
                                "äa€1字g😀"_s,
                                "%1 #x"_s};
        for (const QString &text : texts)
            values.insert("key%1"_s.arg(values.size()), text);
        for (auto value = values.cbegin(); value != values.cend(); ++value)
            theirs.setValue("Group/"_s + value.key(), *value);
        theirs.sync();
        writeIniValues(home.path("ours"_s), "Group", values);
        QCOMPARE(home.read("ours"_s), home.read("theirs"_s));
        QCOMPARE(iniValue(home.path("ours"_s), "Group/number"_s).toInt(), -120);
        QCOMPARE(iniValue(home.path("ours"_s), "missing"_s, 7), QVariant(7));
        QCOMPARE(int(QFile::permissions(home.path("ours"_s))), 0x6600); // the owner's
    }

    void aFailureLeavesTheFileWholeAndIsOneLine()
    {
        const TemporaryHome home;
        const QString path = home.write("f"_s, "[G]\n" + QByteArray("; mine\n").repeated(10000));
        const QString fifo = home.makeFifo("fifo"_s);
        QCOMPARE(iniValue(fifo, "k"_s, "default"_s), QVariant("default"_s));
        const QString before = home.fingerprint();
        rlimit usual = {};
        ::getrlimit(RLIMIT_FSIZE, &usual);
        const rlimit tight = {50000, usual.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &tight);
        StandardError errors;
        for (const QString &file : {path, fifo})
            writeIniValues(file, "G", {{"k"_s, 1}});
        const QByteArray printed = errors.take();
        ::setrlimit(RLIMIT_FSIZE, &usual);
        QCOMPARE(QString::fromUtf8(printed),
                 "qaz-admin-theme: Can't write %1: File too large\n"
                 "qaz-admin-theme: Can't write %2: Not a regular file\n"_s.arg(path, fifo));
        QCOMPARE(home.fingerprint(), before);
    }

    void theFilesAreThoseOfQSettings()
    {
        const TemporaryHome home;
        QCOMPARE(iniFile("Trolltech"_s), QSettings("Trolltech"_s).fileName());
        QCOMPARE(iniFile("qaz"_s, "qaz-admin-theme"_s), QSettings("qaz"_s, "qaz-admin-theme"_s).fileName());
        const ScopedEnvironment relative("XDG_CONFIG_HOME", "relative");
        QCOMPARE(iniFile("Trolltech"_s), home.path(".config/Trolltech.conf"_s));
    }
};

QTEST_GUILESS_MAIN(TestIniFile)
#include "tst_inifile.moc"
