#include "base/atomicfile.h"
#include "base/editfile.h"
#include "base/xdgdirectories.h"
#include "tests/support/temporaryhome.h"

#include <fcntl.h>
#include <sys/resource.h>
#include <sys/stat.h>
#include <sys/wait.h>
#include <sys/xattr.h>
#include <unistd.h>

static FileEdit append(const QByteArray &text)
{
    return [text](const QByteArray &content) { return content + text; };
}

class TestFiles : public QObject
{
    Q_OBJECT
private slots:
    void cleanup() { ::umask(0022); }

    void whatIsNoRegularFileIsNeitherReadNorReplaced()
    {
        const TemporaryHome home;
        home.makeFifo("fifo"_s);
        QVERIFY(home.makeDirectory("directory"_s) && QFile::link("/dev/zero"_s, home.path("device"_s))
                && QFile::link("loop"_s, home.path("loop"_s)));
        const QString before = home.fingerprint();
        for (const auto &[name, error] : {std::pair("fifo"_s, "Not a regular file"_s),
                                          {"directory"_s, "Is a directory"_s},
                                          {"device"_s, "Not a regular file"_s},
                                          {"loop"_s, "Too many levels of symbolic links"_s}}) {
            const QString path = home.path(name);
            const FileContent file = readRegularFile(path);
            QString replaceError, editError;
            QVERIFY(!replaceFile(path, "x", &replaceError) && !editFile(path, append("x"), &editError));
            QCOMPARE(file.state, FileState::Unreadable);
            QCOMPARE(QStringList({file.error, replaceError, editError}), QStringList({error, error, error}));
        }
        QCOMPARE(home.fingerprint(), before);
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
        QString error;
        QVERIFY(!editFile(path, append("6"), &error, {4}));
        QCOMPARE(home.read("file"_s), QByteArray("12345"));
    }

    void newFilesAndDirectoriesAreForTheirOwner()
    {
        for (const auto &[mask, mode] : {std::pair(0000, "666"_s), {0022, "644"_s}, {0777, "600"_s}}) {
            const TemporaryHome home;
            const QByteArray old = QFile::encodeName(home.write("old"_s, ""));
            ::chmod(old.constData(), 0604);
            ::setxattr(old.constData(), "user.note", "12", 2, 0);
            ::setxattr(old.constData(), "user.none", "", 0, 0);
            // Not every file system keeps them, and not everybody may give a file away.
            const bool isAnothers = ::chown(old.constData(), 1234, 1234) == 0;
            const auto listed = ::listxattr(old.constData(), nullptr, 0);
            const auto noted = ::getxattr(old.constData(), "user.note", nullptr, 0);
            ::umask(mode_t(mask));
            QString error, modes;
            QVERIFY(replaceFile(home.path("private"_s), "x", &error, 0600));
            QVERIFY2(replaceFile(home.path("c/d/file"_s), "x", &error), qPrintable(error));
            QVERIFY(replaceFile(home.path("old"_s), "y", &error, 0600));
            QCOMPARE(QFileInfo(home.path("old"_s)).ownerId() == 1234, isAnothers);
            QCOMPARE(::listxattr(old.constData(), nullptr, 0), listed);
            QCOMPARE(::getxattr(old.constData(), "user.note", nullptr, 0), noted);
            for (const char *name : {"c", "c/d", "private", "old", "c/d/file"})
                modes += QString::number(home.mode(QLatin1String(name)), 8) + u' ';
            QCOMPARE(modes, "700 700 600 604 "_s + mode + u' '); // what exists keeps its bits
        }
    }

    void leftOversGoAtTheNextWrite()
    {
        const TemporaryHome home;
        for (const char *name :
             {".qaz-old123", ".qaz-longer12", ".qaz-pack-Abc123/a/b", ".qaz-under_12", "x.qaz-old123"})
            home.write(QLatin1String(name), "x");
        QVERIFY(QFile::link("x.qaz-old123"_s, home.path(".qaz-link12"_s)));
        const timespec old[] = {{1000, 0}, {::time(nullptr) - 3601, 999000000}};
        for (const QString &name : home.names().split(u' '))
            ::utimensat(AT_FDCWD, QFile::encodeName(home.path(name)).constData(), old, AT_SYMLINK_NOFOLLOW);
        home.write(".qaz-new123"_s, "x");
        QString error;
        QVERIFY(replaceFile(home.path("file"_s), "x", &error));
        QCOMPARE(home.names(), ".qaz-link12 .qaz-longer12 .qaz-new123 .qaz-under_12 file x.qaz-old123"_s);
    }

    void theLockIsAFileOfTheUsersOwn()
    {
        const TemporaryHome home;
        const QString runtime = home.path("run"_s);
        QVERIFY(home.makeDirectory("run"_s) && home.makeDirectory("d"_s));
        struct stat status = {};
        ::stat(QFile::encodeName(home.path("d"_s)).constData(), &status);
        const QString name = "qaz-%1-%2.lock"_s.arg(status.st_dev, 0, 16).arg(status.st_ino, 0, 16);
        const ScopedEnvironment variable("XDG_RUNTIME_DIR", QFile::encodeName(runtime));
        for (const auto &[mode, place] : {std::pair(0700U, runtime), {0750U, home.path(".cache/qaz"_s)}}) {
            ::chmod(QFile::encodeName(runtime).constData(), mode);
            ::umask(0777);
            const FileLock lock(home.path("d/file"_s));
            QVERIFY2(lock.isHeld(), qPrintable(lock.error()));
            QCOMPARE(home.names(place), name);
            QCOMPARE(home.mode(place + u'/' + name), 0600U);
        }
        QCOMPARE(home.mode(".cache/qaz"_s), 0700U);
        ::chmod(QFile::encodeName(home.path(".cache/qaz"_s)).constData(), 0755); // others may look
        const ScopedEnvironment relative("XDG_RUNTIME_DIR", ".");
        QCOMPARE(privateDirectory(), home.path(".cache/qaz"_s));
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
            if (::fork() != 0)
                continue;
            QString error;
            for (int i = 0; i < rounds && editFile(path, append(line), &error); ++i) {}
            ::_exit(error.isEmpty() ? 0 : 1);
        }
        for (int status = -1; ::wait(&status) > 0;)
            QCOMPARE(status, 0);
        const QByteArray edited = home.read("file"_s);
        QCOMPARE((QVector{edited.count("a\n"), edited.count("b\n"), edited.count("c\n")}),
                 QVector(3, rounds));
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
        QString error;
        QStringList calls;
        const EditFileOptions options{1000, 0666, true, [&](const QString &replaced) {
                                          calls.append(replaced + u' ' + QLatin1String(home.read("file"_s)));
                                      }};
        const auto refuse = [](const QByteArray &) { return std::nullopt; };
        const auto clear = [](const QByteArray &) { return QByteArray(); };
        const QString before = home.fingerprint();
        QVERIFY(editFile(path, append({}), &error, options));
        QVERIFY(!editFile(path, refuse, &error, options));
        QVERIFY(editFile(home.path("new"_s), append({}), &error, options));
        QCOMPARE(home.fingerprint(), before);
        QFile::setPermissions(path, QFile::ReadOwner | QFile::WriteOwner | QFile::ReadGroup);
        QVERIFY(editFile(home.path("link"_s), append(" new"), &error, options));
        QCOMPARE(home.mode(path), 0640U);
        QCOMPARE(home.read("file"_s), QByteArray("old new"));
        QVERIFY(QFileInfo(home.path("link"_s)).isSymLink());
        QVERIFY(editFile(path, clear, &error, options) && !home.exists("file"_s));
        QVERIFY(editFile(path, append("x"), &error, options)); // nothing stood there
        QCOMPARE(calls, (QStringList{home.path("link"_s) + " old"_s, path + " old new"_s}));
        QVERIFY(QFile::link("d/later"_s, home.path("1"_s)));
        for (int i = 1; i <= 40; ++i)
            QVERIFY(QFile::link(QString::number(i), home.path(QString::number(i + 1))));
        QVERIFY(editFile(home.path("40"_s), append("z"), &error, options));
        QCOMPARE(home.read("d/later"_s), QByteArray("z"));
        QCOMPARE(error, QString());
        QVERIFY(!editFile(home.path("41"_s), append("z"), &error, options)); // nor does the kernel go on

        // A limit on the file size makes the write fail half way, as a full disk would.
        rlimit usual = {};
        ::getrlimit(RLIMIT_FSIZE, &usual);
        const rlimit tight = {50000, usual.rlim_max};
        ::setrlimit(RLIMIT_FSIZE, &tight);
        const QString names = home.names();
        const bool isReplaced = replaceFile(path, QByteArray(100000, 'x'), &error);
        ::setrlimit(RLIMIT_FSIZE, &usual);
        QVERIFY(!isReplaced);
        QCOMPARE(home.read("file"_s) + ' ' + error.toLatin1(), QByteArray("x File too large"));
        QCOMPARE(home.names(), names);
    }
};

QTEST_GUILESS_MAIN(TestFiles)
#include "tst_files.moc"
