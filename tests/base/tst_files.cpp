#include "base/atomicfile.h"
#include "base/editfile.h"
#include "base/xdgdirectories.h"
#include "tests/support/literals.h"
#include "tests/support/temporaryhome.h"

#include <QDir>
#include <QFile>
#include <QTest>

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

namespace {

QStringList namesIn(const QString &directory)
{
    return QDir(directory).entryList(QDir::AllEntries | QDir::Hidden | QDir::System | QDir::NoDotAndDotDot);
}

FileEdit append(const QByteArray &text)
{
    return [text](const QByteArray &content) { return content + text; };
}

/// What stands at \a path when nothing may read or replace it.
void makeOddFile(const QString &kind, const QString &path)
{
    const QByteArray name = QFile::encodeName(path);
    if (kind == "directory"_s)
        QVERIFY(QDir().mkdir(path));
    else if (kind.startsWith(u'/') || kind.isEmpty())
        QVERIFY(QFile::link(kind.isEmpty() ? path : kind, path)); // to a device, or in a loop
    else
        QCOMPARE(::mknod(name.constData(), (kind == "fifo"_s ? S_IFIFO : S_IFSOCK) | 0600, 0), 0);
}

} // namespace

class TestFiles : public QObject
{
    Q_OBJECT
private slots:
    void cleanup() { ::umask(0022); }

    void whatIsNoRegularFileIsNeitherReadNorReplaced()
    {
        for (const QString &kind : {"fifo"_s, "socket"_s, "directory"_s, "/dev/zero"_s, ""_s}) {
            const TemporaryHome home;
            const QString path = home.path("odd"_s);
            makeOddFile(kind, path);
            const FileContent file = readRegularFile(path);
            QCOMPARE(file.state, FileState::Unreadable);
            QVERIFY(!file.error.isEmpty() && file.content.isNull());
            for (int way = 0; way < 2; ++way) {
                QString error;
                QVERIFY(way == 0 ? !replaceFile(path, "x", &error) : !editFile(path, append("x"), &error));
                QVERIFY2(!error.isEmpty(), qPrintable(kind));
                struct stat status = {};
                QCOMPARE(::lstat(QFile::encodeName(path).constData(), &status), 0);
                QVERIFY2(!S_ISREG(status.st_mode), qPrintable(kind));
            }
            QCOMPARE(namesIn(home.path()), QStringList{"odd"_s});
        }
    }

    void aFileIsReadUpToTheLimit()
    {
        const TemporaryHome home;
        const QString path = home.write("file"_s, "12345");
        QCOMPARE(readRegularFile(path, 5).content, QByteArray("12345"));
        QCOMPARE(readRegularFile(path, 4).error, "File too large"_s);
        const QByteArray growing = readRegularFile("/proc/self/smaps"_s).content; // states no size
        QVERIFY(growing.size() > 10000 && growing.endsWith('\n'));
        QCOMPARE(readRegularFile(path + "/below"_s).state, FileState::Missing);
        EditFileOptions options;
        options.limit = 4;
        QString error;
        QVERIFY(!editFile(path, append("6"), &error, options));
        QCOMPARE(home.read("file"_s), QByteArray("12345"));
    }

    void newFilesAndDirectoriesAreForTheirOwner()
    {
        for (const mode_t mask : {0000, 0022, 0777}) {
            const TemporaryHome home;
            ::umask(mask);
            QString error;
            QVERIFY2(replaceFile(home.path("a/b/file"_s), "x", &error), qPrintable(error));
            QVERIFY2(replaceFile(home.path("a/b/private"_s), "x", &error, 0600), qPrintable(error));
            QVERIFY(QFile::setPermissions(home.write("a/b/old"_s, ""),
                                          QFile::ReadOwner | QFile::WriteOwner | QFile::ReadOther));
            const QByteArray old = QFile::encodeName(home.path("a/b/old"_s));
            ::setxattr(old.constData(), "user.note", "12", 2, 0);
            // Not every file system keeps it.
            const auto noted = ::getxattr(old.constData(), "user.note", nullptr, 0);
            QVERIFY(replaceFile(home.path("a/b/old"_s), "y", &error, 0600));
            QCOMPARE(::getxattr(old.constData(), "user.note", nullptr, 0), noted);
            const std::pair<const char *, unsigned> modes[] = {
                {"a", 0700},
                {"a/b", 0700},
                {"a/b/file", (0666 & ~mask) | 0600},
                {"a/b/private", 0600},
                {"a/b/old", 0604}}; // what exists keeps its bits
            for (const auto &[name, mode] : modes)
                QCOMPARE(home.mode(QLatin1String(name)), mode);
        }
    }

    void leftOversGoAtTheNextWrite()
    {
        const TemporaryHome home;
        for (const char *name :
             {".qaz-old123", ".qaz-longer12", ".qaz-pack-Abc123/a/b", ".qaz-under_12", "x.qaz-old123"})
            home.write(QLatin1String(name), "x");
        QVERIFY(QFile::link("x.qaz-old123"_s, home.path(".qaz-link12"_s)));
        const timespec old[] = {{1000, 0}, {::time(nullptr) - 3700, 0}};
        for (const QString &name : namesIn(home.path()))
            ::utimensat(AT_FDCWD, QFile::encodeName(home.path(name)).constData(), old, AT_SYMLINK_NOFOLLOW);
        home.write(".qaz-new123"_s, "x");
        QString error;
        QVERIFY(replaceFile(home.path("file"_s), "x", &error));
        QCOMPARE(namesIn(home.path()), (QStringList{".qaz-link12"_s, ".qaz-longer12"_s, ".qaz-new123"_s,
                                                    ".qaz-under_12"_s, "file"_s, "x.qaz-old123"_s}));
    }

    void theLockIsAFileOfTheUsersOwn()
    {
        const TemporaryHome home;
        const QString runtime = home.path("run"_s);
        QVERIFY(home.makeDirectory("run"_s) && home.makeDirectory("d"_s));
        struct stat status = {};
        QCOMPARE(::stat(QFile::encodeName(home.path("d"_s)).constData(), &status), 0);
        const QString name = "qaz-%1-%2.lock"_s.arg(QString::number(status.st_dev, 16),
                                                    QString::number(status.st_ino, 16));
        const ScopedEnvironment variable("XDG_RUNTIME_DIR", QFile::encodeName(runtime));
        const struct {
            mode_t mode; // of the runtime directory
            QString place;
        } rows[] = {{0700, runtime}, {0750, home.path(".cache/qaz"_s)}};
        for (const auto &row : rows) {
            QCOMPARE(::chmod(QFile::encodeName(runtime).constData(), row.mode), 0);
            ::umask(0777);
            const FileLock lock(home.path("d/file"_s));
            QVERIFY2(lock.isHeld(), qPrintable(lock.error()));
            QCOMPARE(namesIn(row.place), QStringList{name});
            QCOMPARE(home.mode(row.place + u'/' + name), 0600U);
        }
        QCOMPARE(home.mode(".cache/qaz"_s), 0700U);
        QVERIFY(QDir(home.path(".cache"_s)).removeRecursively()
                && QFile::link(home.path("d"_s), home.path(".cache"_s)));
        QVERIFY(QFile::link(home.path("run"_s), home.path("d/qaz"_s)));
        QVERIFY(!FileLock(home.path("d/file"_s)).isHeld()); // a link may lead to somebody else's
    }

    void programsThatEditAtOnceLoseNothing()
    {
        const TemporaryHome home;
        const QString path = home.write("file"_s, "");
        constexpr int rounds = 40;
        for (const char *line : {"a\n", "b\n", "c\n"}) {
            if (::fork() == 0) {
                QString error;
                for (int i = 0; i < rounds && editFile(path, append(line), &error); ++i) {}
                ::_exit(error.isEmpty() ? 0 : 1);
            }
        }
        for (int status = -1; ::wait(&status) > 0;)
            QCOMPARE(status, 0);
        const QByteArray edited = home.read("file"_s);
        for (const char *line : {"a\n", "b\n", "c\n"})
            QCOMPARE(edited.count(line), rounds);
        const FileLock lock(path); // held too long
        QString error;
        QVERIFY(!editFile(path, append("x"), &error));
        QCOMPARE(error, "Another program is changing the directory"_s);
        QCOMPARE(home.read("file"_s), edited);
    }

    void anEditReplacesOnlyWhatItChanges()
    {
        const TemporaryHome home;
        const QString path = home.write("file"_s, "old");
        QVERIFY(QFile::link(path, home.path("link"_s)));
        QStringList calls;
        EditFileOptions options;
        options.removeWhenEmpty = true;
        options.beforeReplace = [&](const QString &replaced) {
            calls.append(replaced + u' ' + QString::fromLatin1(home.read("file"_s)));
        };
        QString error;
        const QString before = home.fingerprint();
        QVERIFY(editFile(path, append({}), &error, options));
        const auto refuse = [](const QByteArray &) { return std::nullopt; };
        QVERIFY(!editFile(path, refuse, &error, options));
        QVERIFY(editFile(home.path("new"_s), append({}), &error, options));
        QCOMPARE(home.fingerprint(), before);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
        QVERIFY(editFile(home.path("link"_s), append(" new"), &error, options));
        QCOMPARE(home.mode(path), 0640U);
        QCOMPARE(home.read("file"_s), QByteArray("old new"));
        QVERIFY(QFileInfo(home.path("link"_s)).isSymLink());
        const auto clear = [](const QByteArray &) { return QByteArray(); };
        QVERIFY(editFile(path, clear, &error, options));
        QVERIFY(!home.exists("file"_s));
        QVERIFY(editFile(path, append("x"), &error, options)); // nothing stood there
        QCOMPARE(calls, (QStringList{home.path("link"_s) + " old"_s, path + " old new"_s}));
        QVERIFY(QFile::link("d/later"_s, home.path("dangling"_s)));
        QVERIFY(editFile(home.path("dangling"_s), append("z"), &error, options));
        QCOMPARE(home.read("d/later"_s), QByteArray("z"));
        QCOMPARE(error, QString());
    }

    void aFailedWriteKeepsTheOldFile()
    {
        // A limit on the file size makes the write fail half way, as a full disk would.
        const TemporaryHome home;
        const QString path = home.write("file"_s, "old");
        rlimit usual = {};
        ::getrlimit(RLIMIT_FSIZE, &usual);
        const rlimit tight = {50000, usual.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &tight);
        QString error;
        const bool replaced = replaceFile(path, QByteArray(100000, 'x'), &error);
        ::setrlimit(RLIMIT_FSIZE, &usual);
        QVERIFY(!replaced);
        QCOMPARE(home.read("file"_s) + ' ' + error.toLatin1(), QByteArray("old File too large"));
        QCOMPARE(namesIn(home.path()), QStringList{"file"_s});
    }

    void relativePathsInXdgVariablesCountAsUnset()
    {
        const TemporaryHome home;
        const ScopedEnvironment configuration("XDG_CONFIG_HOME", "relative");
        const ScopedEnvironment user("XDG_DATA_HOME", "./relative");
        const ScopedEnvironment runtime("XDG_RUNTIME_DIR", ".");
        QCOMPARE(xdgDirectory("XDG_CONFIG_HOME", "/.config"), home.path(".config"_s));
        QCOMPARE(privateDirectory(), home.path(".cache/qaz"_s));
        const struct {
            const char *system;
            QStringList directories;
        } rows[] = {{"", {"/usr/local/share"_s, "/usr/share"_s}},
                    {"/a//b/:relative:./x::/a/b:/c", {"/a/b"_s, "/c"_s}},
                    {"relative", {}}};
        for (const auto &row : rows) {
            const ScopedEnvironment system("XDG_DATA_DIRS", row.system);
            QCOMPARE(xdgDataDirectories(), QStringList{home.path(".local/share"_s)} + row.directories);
        }
    }
};

QTEST_GUILESS_MAIN(TestFiles)
#include "tst_files.moc"
