#include "settings/backup.h"
#include "tests/support/standarderror.h"
#include "tests/support/temporaryhome.h"

#include <sys/resource.h>
#include <sys/stat.h>

class TestBackup : public QObject
{
    Q_OBJECT

    const QString directory = ".local/state/qaz/backup/"_s, manifest = directory + "manifest"_s;

private slots:
    void aFileIsCopiedByteForByte()
    {
        const TemporaryHome home;
        const QByteArray content("a\0b\r\n\xff", 6);
        const QString original = home.write("docs/fonts.conf"_s, content);
        const QString copy = backUp(original);
        const QRegularExpression form("/\\.local/state/qaz/backup/\\d{8}T\\d{6}\\.\\d{3}Z-fonts\\.conf$"_s);
        QVERIFY2(copy.startsWith(home.path()) && form.match(copy).hasMatch(), qPrintable(copy));
        QCOMPARE(home.read(copy) + home.read(original), content + content);
        QCOMPARE(QFileInfo(copy).lastModified(), QFileInfo(original).lastModified());
        QCOMPARE(home.read(manifest),
                 QFile::encodeName(QFileInfo(copy).fileName() + u'\t' + original) + '\n');

        QVERIFY(QFile::link(original, home.path("link"_s)));
        QCOMPARE(home.read(backUp(home.path("link"_s))), content);
        QCOMPARE(backUp(home.path("missing"_s)), QString());
    }

    void aTreeIsCopiedWithItsLinksForItsOwnerOnly()
    {
        const TemporaryHome home;
        home.write("qaz/a"_s, "1");
        home.write("qaz/sub/.hidden"_s, "2");
        home.write("outside"_s, "3");
        QVERIFY(QFile::link(home.path("outside"_s), home.path("qaz/link"_s)));
        QVERIFY(QFile::link("nowhere"_s, home.path("qaz/dangling"_s)));
        home.makeFifo("qaz/fifo"_s);
        const mode_t before = ::umask(0777);
        const QString copy = backUp(home.path("qaz/"_s));
        ::umask(before);
        QCOMPARE(home.read(copy + "/a"_s) + home.read(copy + "/sub/.hidden"_s), QByteArray("12"));
        QCOMPARE(QFile::symLinkTarget(copy + "/link"_s), home.path("outside"_s));
        QVERIFY(QFileInfo(copy + "/dangling"_s).isSymLink() && !home.exists(copy + "/fifo"_s));
        for (const QString &path : {".local"_s, ".local/state/qaz"_s, directory, copy, copy + "/sub"_s,
                                    copy + "/a"_s, copy + "/sub/.hidden"_s, manifest})
            QCOMPARE(home.mode(path), QFileInfo(home.path(path)).isDir() ? 0700U : 0600U);
    }

    void theFirstAndTheNineNewestOfEachOriginalAreKept()
    {
        const TemporaryHome home;
        // It could forge a line of the manifest, and is too long to be prefixed whole.
        const QString original = "a\tb\nc\\d\re"_s + QString(52, u'x');
        QStringList copies{backUp(home.write(original, "0"))};
        const QString otherCopy = backUp(home.write("other"_s, "x"));
        for (int i = 1; i < 13; ++i)
            copies.append(backUp(home.write(original, QByteArray::number(i))));
        for (int i = 0; i < copies.size(); ++i)
            QCOMPARE(home.read(copies.at(i)), i >= 1 && i < 4 ? QByteArray() : QByteArray::number(i));
        QCOMPARE(home.read(manifest).count('\n'), 11);
        QVERIFY(home.read(manifest).endsWith("/a\\tb\\nc\\\\d\\re" + QByteArray(52, 'x') + '\n'));
        QVERIFY(copies.last().endsWith("-a_b_c\\d_e"_s + QString(51, u'x')));
        const QVector<Backup> kept = backups();
        QCOMPARE(kept.at(1).copy, otherCopy);
        QCOMPARE(kept.last().copy + kept.last().original, copies.last() + home.path(original));
    }

    void halfACopyIsNone()
    {
        const TemporaryHome home;
        home.write(directory + ".partial/left/by/a/killed/program"_s, "x");
        const QString first = backUp(home.write("file"_s, "x"));
        home.write("tree/large"_s, QByteArray(100000, 'x'));
        rlimit usual = {};
        ::getrlimit(RLIMIT_FSIZE, &usual);
        const rlimit tight = {50000, usual.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &tight);
        StandardError errors;
        QString reason, other;
        const QString copies = backUp(home.path("tree"_s), &reason)
                               + backUp(home.path("tree/large"_s), &other);
        const QByteArray printed = errors.take();
        ::setrlimit(RLIMIT_FSIZE, &usual);
        QCOMPARE(copies + reason + other, "File too largeFile too large"_s);
        QCOMPARE(printed.count("qaz-admin-theme: Can't back up "), 2);
        QCOMPARE(home.names(directory), QFileInfo(first).fileName() + " manifest"_s);
        QCOMPARE(home.read(manifest).count('\n'), 1);
    }

    void aForeignManifestRemovesNothingElse()
    {
        const TemporaryHome home;
        const QString original = home.write("file"_s, "x");
        for (const char *name : {"/../../victim", "..", ".", "../victim", "", "gone"})
            home.write(manifest, home.read(manifest)
                                     + (name + ('\t' + QFile::encodeName(original) + '\n')).repeated(20));
        home.write(".local/state/qaz/victim"_s, "y");
        for (int i = 0; i < 3; ++i)
            QVERIFY(!backUp(original).isEmpty());
        QCOMPARE(home.read(".local/state/qaz/victim"_s), QByteArray("y"));
        QCOMPARE(backups().size(), 3);

        // Without its line in the manifest nobody would find a copy again.
        QVERIFY(QFile::remove(home.path(manifest)) && home.makeDirectory(manifest));
        QCOMPARE(backUp(original), QString());
        QCOMPARE(home.names(directory).count(u' '), 3);
    }

    void aBackupThatFailsStopsNothing()
    {
        const TemporaryHome home;
        const QString original = home.write("file"_s, "x");
        const QString inTheWay = home.write(".local/state"_s, "x");
        QString error;
        QCOMPARE(backUp(original, &error), QString());
        QCOMPARE(error, "Can't create directory %1/.local/state/qaz/backup"_s.arg(home.path()));
        QVERIFY(QFile::remove(inTheWay) && QFile::link(home.path(), home.path("link"_s)));
        for (const QString &around : {home.path(), home.path("link/link"_s) + "/.local"_s}) {
            QCOMPARE(backUp(around, &error), QString());
            QCOMPARE(error, "the backups lie in it"_s);
        }
        QCOMPARE(home.read(original), QByteArray("x"));
    }
};

QTEST_GUILESS_MAIN(TestBackup)
#include "tst_backup.moc"
