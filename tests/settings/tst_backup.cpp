#include "settings/backup.h"
#include "tests/support/literals.h"
#include "tests/support/temporaryhome.h"

#include <QtTest>

#include <sys/stat.h>

namespace {

const QString backups = ".local/state/qaz/backup/"_s;
const QString manifest = backups + "manifest"_s;

QByteArray contentOf(const QString &path)
{
    QFile file(path);
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

} // namespace

class TestBackup : public QObject
{
    Q_OBJECT

private slots:
    void aFileIsCopiedByteForByte()
    {
        const TemporaryHome home;
        const QByteArray content("a\0b\r\n\xff", 6);
        const QString original = home.write("docs/fonts.conf"_s, content);
        const QString copy = backUp(original);
        const QRegularExpression form(u'^' + home.path(backups) + "\\d{8}T\\d{6}\\.\\d{3}Z-fonts\\.conf$"_s);
        QVERIFY2(form.match(copy).hasMatch(), qPrintable(copy));
        QCOMPARE(contentOf(copy), content);
        QCOMPARE(contentOf(original), content);
        QCOMPARE(home.read(manifest),
                 QFile::encodeName(QFileInfo(copy).fileName() + u'\t' + original) + '\n');

        QVERIFY(QFile::link(original, home.path("link"_s)));
        QCOMPARE(contentOf(backUp(home.path("link"_s))), content);
        QCOMPARE(backUp(home.path("missing"_s)), QString());
    }

    void aTreeIsCopiedWithItsLinks()
    {
        const TemporaryHome home;
        home.write("qaz/a"_s, "1");
        home.write("qaz/sub/.hidden"_s, "2");
        home.write("outside"_s, "3");
        QVERIFY(QFile::link(home.path("outside"_s), home.path("qaz/link"_s)));
        QVERIFY(QFile::link("nowhere"_s, home.path("qaz/dangling"_s)));
        QCOMPARE(::mkfifo(QFile::encodeName(home.path("qaz/fifo"_s)).constData(), 0600), 0);
        const QString copy = backUp(home.path("qaz/"_s));
        QVERIFY(!copy.isEmpty());
        QCOMPARE(contentOf(copy + "/a"_s), QByteArray("1"));
        QCOMPARE(contentOf(copy + "/sub/.hidden"_s), QByteArray("2"));
        QCOMPARE(QFile::symLinkTarget(copy + "/link"_s), home.path("outside"_s));
        QVERIFY(QFileInfo(copy + "/dangling"_s).isSymLink());
    }

    void theNewestTenOfEachOriginalAreKept()
    {
        const TemporaryHome home;
        const QString otherCopy = backUp(home.write("other"_s, "x"));
        QStringList copies;
        for (int i = 0; i < 13; ++i) // under a name that could break the manifest's lines
            copies.append(backUp(home.write("a\tb\nc\\d"_s, QByteArray::number(i))));
        for (int i = 0; i < copies.size(); ++i)
            QCOMPARE(contentOf(copies.at(i)), i < 3 ? QByteArray() : QByteArray::number(i));
        QVERIFY(QFileInfo::exists(otherCopy));
        QCOMPARE(home.read(manifest).count('\n'), 11);
        QCOMPARE(QDir(home.path(backups)).entryList(QDir::Files).size(), 12);
    }

    void aBackupThatFailsStopsNothing()
    {
        const TemporaryHome home;
        const QString original = home.write("file"_s, "x");
        home.write(".local/state"_s, "in the way");
        QCOMPARE(backUp(original), QString());
        QCOMPARE(contentOf(original), QByteArray("x"));
    }
};

QTEST_GUILESS_MAIN(TestBackup)
#include "tst_backup.moc"
