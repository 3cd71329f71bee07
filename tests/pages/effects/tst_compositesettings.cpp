#include "pages/effects/compositesettings.h"

#include "pages/effects/comptonconfig.h"
#include "pages/effects/effectpage.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/pageoverfile.h"
#include "tests/support/standarderror.h"

namespace {

const QString comptonFile = ".config/compton.conf"_s;
// Another run of this test on the same machine must not pass for this one's managers.
const QString ownManager = "qaz-kompmgr-%1"_s.arg(QCoreApplication::applicationPid());
const QString compton = "compton-%1"_s.arg(QCoreApplication::applicationPid());

/// A compositing manager that is installed in PATH.
struct Manager {
    Manager(const QString &name, bool runs)
    {
        const QString program = programs.directory() + u'/' + name;
        QFile::copy("/bin/sleep"_s, program);
        if (runs)
            process.start(program, {"3600"_s});
        process.waitForStarted();
    }
    ~Manager()
    {
        process.kill();
        process.waitForFinished();
    }

    const FakePrograms programs{FakePrograms::Path::Instead};
    QProcess process;
};

const QStringList boxes{"compositeGroupBox"_s, "transparencyCheckBox"_s, "shadowCheckBox"_s};

/// The page over a theme file that names a manager, and has all else that is saved.
struct CompositePage : PageOverFile<EffectPage> {
    /// What comes of a step of composite.json.
    QString outcome(const QString &step)
    {
        const QString what = step.section(u' ', 0, 0), text = step.section(u' ', 1);
        if (what == "manager"_s)
            start = "CompositeManager=%1\nArrangeWindowSpeed=0\nGradWindowMapSpeed=0\n"_s.arg(text);
        else if (what == "theme"_s)
            home.write("t"_s, (start + text).toLatin1());
        else if (what == "fifo"_s && QFile::remove(home.path(text)))
            home.makeFifo(text);
        else if (what == "told"_s)
            return QString::fromLocal8Bit(messages.take()).replace(home.path(), "HOME"_s);
        else if (what == "set"_s)
            for (int i = 0; i < boxes.size(); ++i)
                page.findChild<QWidget *>(boxes[i])->setProperty("checked", text.at(i) == u'+');
        else if (QString result = PageOverFile::outcome(step, boxes.join(u' '));
                 what == "load"_s || what == "save"_s)
            return result + u' ' + QString::fromLatin1(content()).remove(start);
        else
            return result;
        return {};
    }

    StandardError messages;
    QString start;
};

constexpr int million = 1024 * 1024;

/// Sets both values in the file; returns what went wrong.
QString update(const QString &path, bool transparency, bool shadow)
{
    QString error;
    return updateComptonFile(path, transparency, shadow, &error) ? QString() : error;
}

/// The transparency and the shadow of the file: "true -" for a missing shadow.
QByteArray stored(const QString &path)
{
    const std::optional<ComptonValues> values = readComptonFile(path);
    const auto text = [](std::optional<bool> value) { return !value ? "-" : *value ? "true" : "false"; };
    return values ? QByteArray(text(values->transparency)) + ' ' + text(values->shadow) : "unreadable";
}

} // namespace

class TestCompositeSettings : public QObject
{
    Q_OBJECT
private slots:
    void managersAreFollowedAndTold()
    {
        // The installed manager, whether it runs, then steps with what comes of each.
        for (QStringList row : rowsOf("pages/effects/composite.json"_s)) {
            row.replaceInStrings("KOMPMGR"_s, ownManager).replaceInStrings("COMPTON"_s, compton);
            const Manager manager(row[1], row[2] == "runs"_s);
            CompositePage page;
            playSteps(row, 3, [&page](const QString &step) { return page.outcome(step); });
        }
    }

    void comptonPlacesAreTriedInOrder()
    {
        // The configuration directory, the files, each of which holds its own name, the path, its content and what is
        // told.
        for (QStringList row : rowsOf("pages/effects/places.json"_s)) {
            const TemporaryHome home;
            for (const QString &file : row[2].split(u' '))
                home.write(file, file.toLatin1());
            StandardError messages;
            QCOMPARE(resolveComptonConfig({home.path(row[1]), home.path(), home.path("etc"_s)}),
                     home.path(row[3]));
            QCOMPARE(home.exists(row[3]) ? home.read(row[3]) : "none", row[4].toLatin1());
            QCOMPARE(QString::fromLocal8Bit(messages.take()), row[5].replace("HOME"_s, home.path()));
        }
    }

    void onlyTheTwoValuesChange()
    {
        // Before, why it is refused, with transparency on and shadows off, and what is read of it else.
        for (QStringList row : rowsOf("pages/effects/compton.json"_s)) {
            row.replaceInStrings("DEEP"_s, QString(200000, u'('));
            row.replaceInStrings("LONG"_s, QString(million - 5, u'x'));
            const QByteArray before = row[1].toLatin1();
            const TemporaryHome home;
            const QString path = home.path(".config/link"_s);
            QVERIFY(QFile::link(home.write(comptonFile, before), path));
            QCOMPARE(update(path, true, false), row[2]);
            QCOMPARE(home.read(comptonFile), row[3].isNull() ? before : row[3].toLatin1());
            QCOMPARE(stored(path), row.value(4, "true false"_s).toLatin1());
            const QString whole = home.fingerprint();
            QCOMPARE(update(path, true, false), row[2]);
            QCOMPARE(home.fingerprint(), whole);
        }
    }

    void includesAreReadAndKept()
    {
        const TemporaryHome home;
        const QByteArray absolute = QFile::encodeName(home.write("else\\where"_s, "b = 2;"));
        const QByteArray included = "shadow = true; # theirs\nratio=1.23456789012;other = 0xFF;\n";
        home.write(".config/a.conf"_s, "@include \"deeper.conf\"\na = 1;");
        home.write(".config/deeper.conf"_s, included);
        const QByteArray before = "# mine\n@include \"a.conf\"\n# @include \"missing\"\n";
        const QByteArray after = "  @include \"" + QByteArray(absolute).replace('\\', "\\\\") + "\"\n";
        const QString path = home.write(comptonFile, before + after);
        QCOMPARE(stored(path), QByteArray("- true"));
        QCOMPARE(update(path, false, true), QString());
        QCOMPARE(home.read(comptonFile), "enable-transparency = false;\n" + before + after);

        // A value of an included file is set in the file itself.
        home.write(".config/a.conf"_s, included);
        QCOMPARE(update(path, true, false), QString());
        QCOMPARE(home.read(comptonFile),
                 QByteArray("enable-transparency = true;\n# mine\nshadow = false; # theirs\n"
                            "ratio=1.23456789012;other = 0xFF;\n\n# @include \"missing\"\n  b = 2;\n\n"));
        QCOMPARE(home.read(".config/a.conf"_s), included);
    }

    void includesAreLimited()
    {
        const TemporaryHome home;
        home.write("11"_s, {});
        for (int i = 0; i < 11; ++i)
            home.write(QString::number(i), "@include \"" + QByteArray::number(i + 1) + "\"\n");
        QCOMPARE(stored(home.path("1"_s)) + ' ' + stored(home.path("0"_s)), QByteArray("- - unreadable"));
        home.write("half"_s, QByteArray(million / 2, ' '));
        home.write("byte"_s, "\n");
        const QByteArray twice = "@include \"half\"\n@include \"half\"\n";
        QCOMPARE(stored(home.write("whole"_s, twice)), QByteArray("- -"));
        QCOMPARE(stored(home.write("more"_s, twice + "@include \"byte\"\n")), QByteArray("unreadable"));
        QCOMPARE(stored(home.write("large"_s, QByteArray(million, ' '))), QByteArray("- -"));
    }
};

QTEST_MAIN(TestCompositeSettings)
#include "tst_compositesettings.moc"
