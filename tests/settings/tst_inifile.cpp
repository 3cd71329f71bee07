#include "settings/inifile.h"
#include "tests/support/literals.h"
#include "tests/support/standarderror.h"
#include "tests/support/temporaryhome.h"

#include <QSettings>
#include <QTest>

#include <sys/resource.h>
#include <sys/stat.h>

class TestIniFile : public QObject
{
    Q_OBJECT
private slots:
    void onlyTheLinesOfSetKeysChange()
    {
        const struct {
            QString group;
            QString key;
            QByteArray before;
            QByteArray after; // with "new" as the value
        } rows[] = {
            {"kompmgr"_s, "Compmode"_s,
             "# mine\n; too\n[kompmgr]\nA = 1\n Compmode = CompSimple \n\n[Other]\nx=@Size(1 2)\n",
             "# mine\n; too\n[kompmgr]\nA = 1\n Compmode = new \n\n[Other]\nx=@Size(1 2)\n"},
            // the group General has three spellings, and one that looks like it is none
            {{}, "/width"_s, "width=1\n[Qt]\nwidth=2\n", "width=new\n[Qt]\nwidth=2\n"},
            {{},
             "width"_s,
             "[general]\nx=1\n[%General]\nwidth=2\n",
             "[general]\nx=1\nwidth=new\n[%General]\nwidth=2\n"},
            {"general"_s, "width"_s, "[General]\nwidth=1\n", "[General]\nwidth=1\n[%general]\nwidth=new\n"},
            {{}, "width"_s, "[Qt]\nx=1\n", "[Qt]\nx=1\n[General]\nwidth=new\n"},
            {{}, "/Qt/font"_s, "[Qt]\nfont=\"Sans,10\"\nb=true\n", "[Qt]\nfont=new\nb=true\n"},
            {"a b"_s, "ä/字+c"_s, "[a%20b]\n", "[a%20b]\n%E4\\%U5B57%2Bc=new\n"},
            {"a b"_s, "ä/字+c"_s, "[a b]\n%e4\\%u5B57=0\n%E4\\%U5B57+c=1",
             "[a b]\n%e4\\%u5B57=0\n%E4\\%U5B57+c=new"},
            {"g"_s, "k"_s, "[o]\nA=\"[g]\nk=1\"", "[o]\nA=\"[g]\nk=1\"\n[g]\nk=new\n"}};
        for (const auto &row : rows) {
            const TemporaryHome home;
            const QString path = home.write("f"_s, row.before);
            const QString name = row.group.isEmpty() ? row.key : row.group + u'/' + row.key;
            QMap<QString, QVariant> others;
            const QSettings before(path, QSettings::IniFormat);
            for (const QString &key : before.allKeys())
                others.insert(key, before.value(key));
            QString error;
            QVERIFY2(writeIniValues(path, row.group, {{row.key, "new"_s}}, &error), qPrintable(error));
            QCOMPARE(home.read("f"_s), row.after);
            const QSettings after(home.write("copy"_s, row.after), QSettings::IniFormat);
            others.insert(name.startsWith(u'/') ? name.mid(1) : name, "new"_s);
            QCOMPARE(after.allKeys(), QStringList(others.keys()));
            for (const QString &key : after.allKeys())
                QCOMPARE(after.value(key), others.value(key));
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
            values.insert("key %1/ä"_s.arg(values.size()), text);
        for (auto value = values.cbegin(); value != values.cend(); ++value)
            theirs.setValue("Group x/"_s + value.key(), *value);
        theirs.sync();
        QString error;
        QVERIFY2(writeIniValues(home.path("ours"_s), "Group x"_s, values, &error), qPrintable(error));
        QCOMPARE(home.read("ours"_s), home.read("theirs"_s));
        for (auto value = values.cbegin(); value != values.cend(); ++value)
            QCOMPARE(iniValue(home.path("ours"_s), "Group x/"_s + value.key()).toString(), value->toString());
        QCOMPARE(iniValue(home.path("ours"_s), "missing"_s, 7), QVariant(7));
    }

    void aFailureLeavesTheFileWholeAndIsOneLine()
    {
        const TemporaryHome home;
        const QString path = home.write("f"_s, "[G]\n" + QByteArray("; mine\n").repeated(10000));
        const QString fifo = home.path("fifo"_s);
        QCOMPARE(::mkfifo(QFile::encodeName(fifo).constData(), 0600), 0);
        QCOMPARE(iniValue(fifo, "k"_s, "default"_s), QVariant("default"_s));
        const QString before = home.fingerprint();
        rlimit usual = {};
        ::getrlimit(RLIMIT_FSIZE, &usual);
        const rlimit tight = {50000, usual.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &tight);
        QStringList results;
        StandardError errors;
        for (const QString &file : {path, fifo}) {
            QString error;
            results.append(writeIniValues(file, "G"_s, {{"k"_s, 1}}, &error) ? "written"_s : error);
        }
        const QByteArray printed = errors.take();
        ::setrlimit(RLIMIT_FSIZE, &usual);
        QCOMPARE(results, (QStringList{"File too large"_s, "Not a regular file"_s}));
        const QString expected
            = "qaz-admin-theme: Can't write %1: %3\nqaz-admin-theme: Can't write %2: %4\n"_s;
        QCOMPARE(QString::fromUtf8(printed), expected.arg(path, fifo, results.at(0), results.at(1)));
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
