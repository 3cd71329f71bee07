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
        const ScopedEnvironment session("QAZ_SESSION", "work");
        const QStringList keys = QString::fromUtf8(run("complete keys"_s).out.trimmed()).split(u'\n');
        const QStringList values = QString::fromUtf8(run("get "_s + keys.join(u' ')).out).split(u'\n');
        QStringList assignments{"set"_s};
        for (int i = 0; i < keys.size(); ++i)
            assignments.append(keys.at(i) + u'=' + values.at(i));
        const ToolRun result("qaz-theme"_s, assignments);
        QVERIFY2(result.status == 0, result.errors.constData());
        QCOMPARE(run("diff"_s).status, 0);
        QCOMPARE(home.read(".config/qaz/current.themerc-work"_s).count('\n'), 15); // new when missing
        for (int size : {4096, 4097})
            QCOMPARE(run("set --force A="_s + QString(size, u'a')).status, size == 4096 ? 0 : 2);
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

    void filesAndDirectoriesArePutBack()
    {
        const TemporaryHome home;
        const QString file = home.write("d/a/b"_s, "1");
        QVERIFY(!backUp(file).isEmpty() && !backUp(home.path("d"_s)).isEmpty() && QFile::remove(file));
        QCOMPARE(run("restore d/a/b"_s).status, 0);
        QCOMPARE(home.mode("d/a/b"_s), 0600U);
        home.write("d/a/b"_s, "2");
        home.write("d/c"_s, "3");
        QCOMPARE(run("restore d"_s).status, 0);
        QCOMPARE(home.read("d/a/b"_s), QByteArray("1"));
        QCOMPARE(home.names() + u' ' + home.names("d"_s), ".local d a"_s);
        QCOMPARE(run("backups"_s).out.count('\n'), 3);
        // It holds the backups themselves, can't be moved, or has too long a name.
        home.write(".local/state/qaz/backup/x/f"_s, {});
        for (const QString &original : {".local"_s, "d/."_s, QString(256, u'n')}) {
            home.write(".local/state/qaz/backup/manifest"_s,
                       "x\t" + QFile::encodeName(home.path(original)) + '\n');
            const ToolRun result = run("restore 1"_s);
            QCOMPARE(result.status, 3);
            QCOMPARE(result.errors.count('\n'), original == ".local"_s ? 2 : 1);
        }
        QCOMPARE(home.names(".local"_s) + u' ' + home.names("d"_s), "state a"_s);
    }
};

QTEST_GUILESS_MAIN(TestQazTheme)
#include "tst_qaztheme.moc"
