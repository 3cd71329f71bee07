#include "settings/backup.h"
#include "tests/support/temporaryhome.h"

#include <QDir>
#include <QFileInfo>
#include <QtTest>

#include <sys/stat.h>

namespace {

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
    void aFileIsCopiedByteForByte();
    void aTreeIsCopiedWithItsLinks();
    void theNewestTenOfEachOriginalAreKept();
    void aBackupThatFailsStopsNothing();
    void oddNamesKeepTheManifestInLines();
};

void TestBackup::aFileIsCopiedByteForByte()
{
    const TemporaryHome home;
    const QByteArray content("a\0b\r\n\xff", 6);
    const QString original = home.write(QStringLiteral("docs/fonts.conf"), content);
    const QString copy = backUp(original);
    QCOMPARE(QFileInfo(copy).path(), home.path(QStringLiteral(".local/state/qaz/backup")));
    QVERIFY2(QRegularExpression(QStringLiteral("^\\d{8}T\\d{6}\\.\\d{3}Z-fonts\\.conf$"))
                 .match(QFileInfo(copy).fileName())
                 .hasMatch(),
             qPrintable(copy));
    QCOMPARE(contentOf(copy), content);
    QCOMPARE(contentOf(original), content);
    QCOMPARE(home.read(QStringLiteral(".local/state/qaz/backup/manifest")),
             QFile::encodeName(QFileInfo(copy).fileName() + QLatin1Char('\t') + original) + '\n');

    QVERIFY(QFile::link(original, home.path(QStringLiteral("link"))));
    QCOMPARE(contentOf(backUp(home.path(QStringLiteral("link")))), content);
    QCOMPARE(backUp(home.path(QStringLiteral("missing"))), QString());
}

void TestBackup::aTreeIsCopiedWithItsLinks()
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

void TestBackup::theNewestTenOfEachOriginalAreKept()
{
    const TemporaryHome home;
    const QString other = home.write(QStringLiteral("other"), "x");
    const QString otherCopy = backUp(other);
    QStringList copies;
    for (int i = 0; i < 13; ++i)
        copies.append(backUp(home.write(QStringLiteral("file"), QByteArray::number(i))));
    for (int i = 0; i < copies.size(); ++i) {
        QCOMPARE(QFileInfo::exists(copies.at(i)), i >= 3);
        if (i >= 3)
            QCOMPARE(contentOf(copies.at(i)), QByteArray::number(i));
    }
    QVERIFY(QFileInfo::exists(otherCopy));
    QCOMPARE(home.read(QStringLiteral(".local/state/qaz/backup/manifest")).count('\n'), 11);
}

void TestBackup::aBackupThatFailsStopsNothing()
{
    const TemporaryHome home;
    const QString original = home.write(QStringLiteral("file"), "x");
    home.write(QStringLiteral(".local/state"), "in the way");
    QCOMPARE(backUp(original), QString());
    QCOMPARE(contentOf(original), QByteArray("x"));
}

void TestBackup::oddNamesKeepTheManifestInLines()
{
    const TemporaryHome home;
    for (int i = 0; i < 12; ++i)
        QVERIFY(!backUp(home.write(QStringLiteral("a\tb\nc\\d"), QByteArray::number(i))).isEmpty());
    const QByteArray manifest = home.read(QStringLiteral(".local/state/qaz/backup/manifest"));
    QCOMPARE(manifest.count('\n'), 10);
    QCOMPARE(QDir(home.path(QStringLiteral(".local/state/qaz/backup"))).entryList(QDir::Files).size(), 11);
}

QTEST_GUILESS_MAIN(TestBackup)
#include "tst_backup.moc"
