#include "base/chandle.h"
#include "tests/tools/toolrun.h"

#include <archive.h>
#include <archive_entry.h>

namespace {

constexpr unsigned hardLink = 0; // no type of its own

struct Member {
    QByteArray name;
    QByteArray content; // of a link: where it leads
    unsigned type = AE_IFREG;
};

/// Writes what a foe might send; the format and the filter are libarchive's names.
void writeArchive(const QString &path, const QVector<Member> &members, const char *format = "pax",
                  const char *filter = "gzip")
{
    const std::unique_ptr<archive, Release<archive_write_free>> writer(archive_write_new());
    archive_write_set_format_by_name(writer.get(), format);
    if (filter)
        archive_write_add_filter_by_name(writer.get(), filter);
    archive_write_open_filename(writer.get(), QFile::encodeName(path).constData());
    for (const Member &member : members) {
        const std::unique_ptr<archive_entry, Release<archive_entry_free>> entry(archive_entry_new());
        archive_entry_set_pathname_utf8(entry.get(), member.name.constData());
        archive_entry_set_perm(entry.get(), 0644);
        archive_entry_set_filetype(entry.get(), member.type == hardLink ? AE_IFREG : member.type);
        if (member.type == AE_IFLNK)
            archive_entry_set_symlink_utf8(entry.get(), member.content.constData());
        else if (member.type == hardLink)
            archive_entry_set_hardlink_utf8(entry.get(), member.content.constData());
        else
            archive_entry_set_size(entry.get(), member.content.size());
        archive_write_header(writer.get(), entry.get());
        archive_write_data(writer.get(), member.content.constData(),
                           std::size_t(member.content.size())); // of files
    }
}

} // namespace

class TestQazThemePackage : public QObject
{
    Q_OBJECT
private slots:
    void aPackedThemeIsPutInPlaceElsewhere()
    {
        QByteArray packed;
        {
            const TemporaryHome home;
            QFile sound(home.write("one/a.wav"_s, "one"));
            QVERIFY(sound.open(QIODevice::ReadWrite)
                    && sound.setFileTime(QDateTime::fromSecsSinceEpoch(1e9), QFile::FileModificationTime));
            replay("tools/pack.txt"_s, nullptr, &home);
            QCOMPARE(output("tar"_s, {"tzf"_s, home.path("b.qaztheme"_s)}),
                     "theme.themerc\nthemes\nwallpapers/own.png\n"_s);
            QCOMPARE(output("tar"_s, {"xOzf"_s, home.path("a.qaztheme"_s), "themes"_s}),
                     "IconTheme=Two\nDecorTheme=\nSoundTheme=\n"_s);
            QVERIFY(output("tar"_s, {"--full-time"_s, "--utc"_s, "-tvzf"_s, home.path("a.qaztheme"_s)})
                        .contains("\n-rw-r--r-- 0/0               3 2001-09-09 01:46:40 sounds/a.wav\n"_s));
            packed = home.read("a.qaztheme"_s);
        }
        const TemporaryHome home;
        home.write("a.qaztheme"_s, packed);
        home.write(themeFile, "Own=2\nIconTheme=Two\n");
        WmListener listener;
        const ScopedEnvironment locale("LC_ALL", "C"); // in which the names are UTF-8 all the same
        replay("tools/unpack.txt"_s, &listener, &home);
        QByteArray contents;
        for (const char *name : {"wallpapers/Bä rg.png", "qaz/sounds/a.wav", "qaz/sounds/2-a.wav",
                                 "qaz/sounds/3-a.wav", "qaz/sounds/_a.wav"})
            contents += home.read(".local/share/"_s + QString::fromUtf8(name)) + ' ';
        QCOMPARE(contents, QByteArray("picture one two three four "));
        QCOMPARE(home.names(".local/share"_s), "qaz wallpapers"_s);
    }

    void existingFilesAreKeptOrBackedUp()
    {
        const TemporaryHome home;
        const ScopedEnvironment data("XDG_DATA_HOME", {}), state("XDG_STATE_HOME", {});
        const QString target = ".local/share/wallpapers/a.png"_s;
        home.write(target, "old");
        home.write("elsewhere"_s, "untouched");
        QVERIFY(home.makeDirectory(".local/share/qaz/sounds"_s));
        QVERIFY(QFile::link(home.path("elsewhere"_s), home.path(".local/share/qaz/sounds/b.wav"_s)));
        writeArchive(home.path("a.qaztheme"_s), {{"./", {}, AE_IFDIR},
                                                 {"./theme.themerc", "WallPaper=wallpapers/a.png\n"},
                                                 {"./wallpapers/", {}, AE_IFDIR},
                                                 {"./wallpapers/a.png", "new"},
                                                 {"sounds/b.wav", "sound"}});
        QCOMPARE(run("unpack a.qaztheme"_s).status, 0);
        QCOMPARE(home.read(target) + ' ' + home.read("elsewhere"_s), QByteArray("new untouched"));
        QVERIFY(!QFileInfo(home.path(".local/share/qaz/sounds/b.wav"_s)).isSymLink());
        QCOMPARE(home.backups(), QByteArrayList({"old", "untouched"}));
        const QString before = home.fingerprint();
        QCOMPARE(run("unpack a.qaztheme"_s).out, QByteArray());
        QCOMPARE(home.fingerprint(), before);
        // A link that leads nowhere, a directory in the place of a file, a file in the place of a directory.
        QVERIFY(QFile::remove(home.path(target)) && QFile::link("/nowhere"_s, home.path(target)));
        QCOMPARE(run("unpack a.qaztheme"_s).status, 0);
        QVERIFY(QFile::remove(home.path(target)) && home.makeDirectory(target));
        QVERIFY(QFile::rename(home.path(".local/share/qaz/sounds"_s), home.path("sounds"_s)));
        writeArchive(home.path("s.qaztheme"_s), {{"theme.themerc", ""}, {"sounds/b.wav", "sound"}});
        home.write(".local/share/qaz/sounds"_s, "file");
        QTemporaryFile large; // elsewhere: its bytes are not the home's
        QVERIFY(large.open() && large.resize(256 * 1024 * 1024 + 1));
        QVERIFY(QFile::link(large.fileName(), home.path("large.wav"_s)));
        home.write("l.themerc"_s, "OpenSound=" + home.path("large.wav"_s).toUtf8());
        writeArchive(home.path("d.qaztheme"_s), {{"sounds/a", "1"}, {"sounds/a", "2"}});
        replay("tools/refused.txt"_s, nullptr, &home);
        // A package is a file of the user's, too.
        home.write("b.qaztheme"_s, "precious");
        for (const char *variable : {"XDG_STATE_HOME", "TMPDIR"}) {
            const ScopedEnvironment unusable(variable, "/dev/null");
            QCOMPARE(run("pack b.qaztheme"_s).status, 3);
        }
        QCOMPARE(run("pack b.qaztheme"_s).status, 0);
        QCOMPARE(home.backups(), QByteArrayList({"", "old", "precious", "untouched"}));
    }

    void nothingIsTrusted()
    {
        const Member theme = {"theme.themerc", "PagingSpeed=5\n"};
        QVector<QVector<Member>> packages{{},
                                          {{"themes", "a"}},
                                          {theme, {"../evil", {}, AE_IFDIR}},
                                          {{"theme.themerc", "/etc/passwd", AE_IFLNK}},
                                          {theme, {"sounds", "/tmp", AE_IFLNK}, {"sounds/a", "x"}}};
        for (const char *text : {"PagingSpeed=500\n", "WallPaper=wallpapers/a\n"})
            packages.append(QVector<Member>{{"theme.themerc", text}});
        for (const char *name :
             {"../evil", "wallpapers/../../evil", "/tmp/evil", "wallpapers/..", "sounds/a/b", "other",
              "other/a", "sounds/.hidden", "wallpapers//a", "wallpapers/a\nb", "./../evil", ""})
            packages.append({theme, {name, "x"}});
        for (const unsigned type : {AE_IFLNK, hardLink, AE_IFIFO})
            packages.append({theme, {"sounds/a", "theme.themerc", type}});
        WmListener listener;
        for (const QVector<Member> &members : qAsConst(packages)) {
            const TemporaryHome home;
            QVERIFY(home.makeDirectory(".local/share"_s));
            writeArchive(home.path("a.qaztheme"_s), members);
            const QString before = home.fingerprint();
            const ToolRun result = run("unpack a.qaztheme"_s);
            QVERIFY2(result.status == 2 && result.errors.count('\n') == 1,
                     members.isEmpty() ? "nothing" : members.last().name.constData());
            QCOMPARE(home.fingerprint(), before);
            QVERIFY(!QFile::exists("/tmp/evil"_s)
                    && !QFile::exists(QFileInfo(home.path()).path() + "/evil"_s));
        }
        QCOMPARE(listener.take(), QStringList());
    }

    void whatIsTooLargeCutOffOrOfAnotherKindIsRefused()
    {
        const TemporaryHome home;
        QVERIFY(home.makeDirectory("data"_s));
        const ScopedEnvironment data("XDG_DATA_HOME", QFile::encodeName(home.path("data"_s)));
        home.write(themeFile, "WallPaper=" + home.write("a.png"_s, QByteArray(3000, 'x')).toUtf8()
                                  + "\nPagingSpeed=5\n");
        QCOMPARE(run("pack whole"_s).status, 0);
        const QByteArray whole = home.read("whole"_s);
        for (int size : {0, 1, 100, whole.size() / 2, whole.size() - 9, whole.size() - 8, whole.size() - 1})
            home.write("%1.qaztheme"_s.arg(size), whole.left(size));
        QVector<Member> members{{"theme.themerc", "PagingSpeed=5\n"}};
        for (int i = 0; i < 2000; ++i)
            members.append({"sounds/" + QByteArray::number(i), "x"});
        writeArchive(home.path("many.qaztheme"_s), members);
        const QByteArray half(128 * 1024 * 1024, '\0');
        QVector<Member> large{members.first(), {"sounds/a", half}, {"sounds/b", half.chopped(13)}};
        writeArchive(home.path("large.qaztheme"_s), large);
        writeArchive(home.path("plain.qaztheme"_s), {members.first()}, "pax", nullptr);
        writeArchive(home.path("zip.qaztheme"_s), {members.first()}, "zip", nullptr);
        const QString before = home.fingerprint();
        const QStringList packages = QDir(home.path()).entryList({"*.qaztheme"_s});
        QCOMPARE(packages.size(), 11);
        for (const QString &name : packages) {
            QVERIFY2(run("unpack "_s + name).status == 2, qPrintable(name));
            QCOMPARE(home.fingerprint(), before);
        }
        members.removeLast();
        writeArchive(home.path("many.qaztheme"_s), members);
        large.last().content.chop(1);
        writeArchive(home.path("large.qaztheme"_s), large);
        for (const char *fitting : {"many.qaztheme", "large.qaztheme", "whole"})
            QCOMPARE(run("unpack "_s + QLatin1String(fitting)).status, 0);
        QCOMPARE(home.read("data/qaz/sounds/0"_s), QByteArray("x"));
    }
};

QTEST_GUILESS_MAIN(TestQazThemePackage)
#include "tst_qazthemepackage.moc"
