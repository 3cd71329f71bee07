#include "settings/backup.h"
#include "tests/support/temporaryhome.h"

#include <QDir>
#include <QFileInfo>
#include <QtTest>

#include <sys/stat.h>

namespace {

const QString backups = QStringLiteral(".local/state/qaz/backup/");
const QString manifest = backups + QLatin1String("manifest");

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
        const QString original = home.write(QStringLiteral("docs/fonts.conf"), content);
        const QString copy = backUp(original);
        const QRegularExpression form(QLatin1Char('^') + home.path(backups)
                                      + QLatin1String("\\d{8}T\\d{6}\\.\\d{3}Z-fonts\\.conf$"));
        QVERIFY2(form.match(copy).hasMatch(), qPrintable(copy));
        QCOMPARE(contentOf(copy), content);
        QCOMPARE(contentOf(original), content);
        QCOMPARE(home.read(manifest),
                 QFile::encodeName(QFileInfo(copy).fileName() + QLatin1Char('\t') + original) + '\n');

        QVERIFY(QFile::link(original, home.path(QStringLiteral("link"))));
        QCOMPARE(contentOf(backUp(home.path(QStringLiteral("link")))), content);
        QCOMPARE(backUp(home.path(QStringLiteral("missing"))), QString());
    }

    void aTreeIsCopiedWithItsLinks()
    {
        const TemporaryHome home;
        home.write(QStringLiteral("qaz/a"), "1");
        home.write(QStringLiteral("qaz/sub/.hidden"), "2");
        home.write(QStringLiteral("outside"), "3");
        QVERIFY(QFile::link(home.path(QStringLiteral("outside")), home.path(QStringLiteral("qaz/link"))));
        QVERIFY(QFile::link(QStringLiteral("nowhere"), home.path(QStringLiteral("qaz/dangling"))));
        QCOMPARE(::mkfifo(QFile::encodeName(home.path(QStringLiteral("qaz/fifo"))).constData(), 0600), 0);
        const QString copy = backUp(home.path(QStringLiteral("qaz/")));
        QVERIFY(!copy.isEmpty());
        QCOMPARE(contentOf(copy + QLatin1String("/a")), QByteArray("1"));
        QCOMPARE(contentOf(copy + QLatin1String("/sub/.hidden")), QByteArray("2"));
        QCOMPARE(QFile::symLinkTarget(copy + QLatin1String("/link")), home.path(QStringLiteral("outside")));
        QVERIFY(QFileInfo(copy + QLatin1String("/dangling")).isSymLink());
    }

    void theNewestTenOfEachOriginalAreKept()
    {
        const TemporaryHome home;
        const QString otherCopy = backUp(home.write(QStringLiteral("other"), "x"));
        QStringList copies;
        for (int i = 0; i < 13; ++i)
            copies.append(backUp(home.write(QStringLiteral("file"), QByteArray::number(i))));
        for (int i = 0; i < copies.size(); ++i) {
            QCOMPARE(QFileInfo::exists(copies.at(i)), i >= 3);
            if (i >= 3)
                QCOMPARE(contentOf(copies.at(i)), QByteArray::number(i));
        }
        QVERIFY(QFileInfo::exists(otherCopy));
        QCOMPARE(home.read(manifest).count('\n'), 11);
    }

    void aBackupThatFailsStopsNothing()
    {
        const TemporaryHome home;
        const QString original = home.write(QStringLiteral("file"), "x");
        home.write(QStringLiteral(".local/state"), "in the way");
        QCOMPARE(backUp(original), QString());
        QCOMPARE(contentOf(original), QByteArray("x"));
    }

    void oddNamesKeepTheManifestInLines()
    {
        const TemporaryHome home;
        for (int i = 0; i < 12; ++i)
            QVERIFY(!backUp(home.write(QStringLiteral("a\tb\nc\\d"), QByteArray::number(i))).isEmpty());
        QCOMPARE(home.read(manifest).count('\n'), 10);
        QCOMPARE(QDir(home.path(backups)).entryList(QDir::Files).size(), 11);
    }
};

QTEST_GUILESS_MAIN(TestBackup)
#include "tst_backup.moc"
