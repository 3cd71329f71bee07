#include "settings/backup.h"
#include "tests/tools/toolrun.h"

class TestQazTheme : public QObject
{
    Q_OBJECT
private slots:
    void sessionsGoAsWritten()
    {
        const ScopedEnvironment zone("TZ", "TEST-5:30");
        WmListener listener;
        replay("tools/qaz-theme.txt"_s, &listener);
    }

    void everyKeyTakesItsDefault()
    {
        const TemporaryHome home;
        const QStringList keys = QString::fromUtf8(run("complete keys"_s).out.trimmed()).split(u'\n');
        const QStringList values = QString::fromUtf8(run("get "_s + keys.join(u' ')).out).split(u'\n');
        QStringList assignments{"set"_s};
        for (int i = 0; i < keys.size(); ++i)
            assignments.append(keys.at(i) + u'=' + values.at(i));
        const ToolRun result("qaz-theme"_s, assignments);
        QVERIFY2(result.status == 0, result.errors.constData());
        QCOMPARE(run("diff"_s).status, 0);
    }

    void meaningsAreInTheUsersLanguage()
    {
        const ScopedEnvironment language("LANGUAGE", "de");
        replay("tools/keys.txt"_s);
    }

    void withoutADisplayNobodyIsTold()
    {
        const ScopedEnvironment display("DISPLAY", {});
        replay("tools/nodisplay.txt"_s);
    }

    void aDirectoryIsPutBack()
    {
        const TemporaryHome home;
        home.write("d/a/b"_s, "1");
        QVERIFY(!backUp(home.path("d"_s)).isEmpty());
        home.write("d/a/b"_s, "2");
        home.write("d/c"_s, "3");
        QCOMPARE(run("restore "_s + home.path("d"_s)).status, 0);
        QCOMPARE(home.read("d/a/b"_s), QByteArray("1"));
        QCOMPARE(home.names() + u' ' + home.names("d"_s), ".local d a"_s);
        QCOMPARE(run("backups"_s).out.count('\n'), 2);
        // What holds the backups themselves can't be replaced.
        home.write(".local/state/qaz/backup/20260102T030405.678Z-x/f"_s, {});
        home.write(".local/state/qaz/backup/manifest"_s,
                   "20260102T030405.678Z-x\t" + QFile::encodeName(home.path(".local"_s)) + '\n');
        QCOMPARE(run("restore 1"_s).status, 3);
        QCOMPARE(home.names(".local"_s), "state"_s);
    }
};

QTEST_GUILESS_MAIN(TestQazTheme)
#include "tst_qaztheme.moc"
