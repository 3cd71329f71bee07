#include "settings/inifile.h"
#include "tests/support/rows.h"
#include "tests/support/standarderror.h"
#include "tests/support/temporaryhome.h"

class TestIniFile : public QObject
{
    Q_OBJECT
private slots:
    void onlyTheLinesOfSetKeysChange()
    {
        // A group, the file before, and after with "new" as the value.
        for (const QStringList &row : rowsOf("settings/inifile.json"_s)) {
            const TemporaryHome home;
            const QString path = home.write("f"_s, row[2].toUtf8());
            writeIniValues(path, row[1].toUtf8(), {{"x"_s, "new"_s}});
            QCOMPARE(home.read("f"_s), row[3].toUtf8());
            QCOMPARE(iniValue(path, row[1] + "/x"_s), QVariant("new"_s));
        }
    }

    void everyValueIsReadBackAndSpelledAsQSettingsSpellsIt()
    {
        const TemporaryHome home;
        QSettings theirs(home.path("theirs"_s), QSettings::IniFormat);
        QMap<QString, QVariant> values{
            {"true"_s, true}, {"number"_s, -120}, {"fraction"_s, 10.5}, {"empty"_s, QString()}};
        for (const char *text : {"Sans Serif,10", " a ", " a", "a;b", "b=c", "\"q\" \\", "@Point(1 2)",
                                 "%1 #x", "\x01\x31\x66\a\b\t\n\v\f\r\x0e\x1f\x61z\x7f", "äa€1字g😀x"})
            values.insert("key%1"_s.arg(values.size()), QString::fromUtf8(text));
        for (auto value = values.cbegin(); value != values.cend(); ++value)
            theirs.setValue("Group/"_s + value.key(), *value);
        theirs.sync();
        writeIniValues(home.path("ours"_s), "Group", values);
        QCOMPARE(home.read("ours"_s), home.read("theirs"_s));
        QCOMPARE(iniValue(home.path("ours"_s), "Group/number"_s).toInt(), -120);
        QCOMPARE(iniValue(home.path("ours"_s), "missing"_s, 7), QVariant(7));
        QCOMPARE(int(QFile::permissions(home.path("ours"_s))), 0x6600); // the owner's
    }

    void theFilesAreThoseOfQSettingsAndRegularOnes()
    {
        const TemporaryHome home;
        const QString fifo = home.makeFifo("fifo"_s);
        QCOMPARE(iniValue(fifo, "k"_s, "default"_s), QVariant("default"_s));
        StandardError errors;
        writeIniValues(fifo, "G", {{"k"_s, 1}});
        QCOMPARE(QString::fromUtf8(errors.take()),
                 "qaz-admin-theme: Can't write %1: Not a regular file\n"_s.arg(fifo));
        QCOMPARE(iniFile("qaz"_s, "qaz-admin-theme"_s), QSettings("qaz"_s, "qaz-admin-theme"_s).fileName());
        const ScopedEnvironment elsewhere("XDG_CONFIG_HOME", "/elsewhere");
        QCOMPARE(iniFile("Trolltech"_s), "/elsewhere/Trolltech.conf"_s);
        const ScopedEnvironment relative("XDG_CONFIG_HOME", "relative");
        QCOMPARE(iniFile("Trolltech"_s), home.path(".config/Trolltech.conf"_s));
    }
};

QTEST_GUILESS_MAIN(TestIniFile)
#include "tst_inifile.moc"
