#include "fonts/xresources.h"

#include "freedesktop/xresources.h"
#include "settings/renderingstore.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/programprocess.h"
#include "tests/support/rows.h"
#include "tests/support/standarderror.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/testing.h"

namespace {

/// The server's resources, one a line with a single blank after the colon.
QByteArray serverResources()
{
    return output("xrdb"_s, {"-query"_s}).replace(":\t"_s, ": "_s).toLatin1();
}

void loadServer(const TemporaryHome &home, const QByteArray &resources)
{
    output("xrdb"_s, {"-load"_s, "-nocpp"_s, home.write("server"_s, resources)});
}

} // namespace

class TestXResources : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QCoreApplication::setOrganizationName("qaz"_s); }

    void storedChoices()
    {
        // What is stored, the lines of it and the command.
        for (const QStringList &row : rowsOf("fonts/storedchoices.json"_s)) {
            const TemporaryHome home;
            const QString store = home.write("store"_s, "[General]\n" + row[1].toUtf8());
            QCOMPARE(xftResourceLines(store), row[2]);
            QCOMPARE(xftSettingsCommand(store), "QAZWM_UPDATE_VAL XftSettings " + row[3].toUtf8());
        }
    }

    void dpiOfAResource()
    {
        QList<int> dpis{forcedDpi(0, "120"), forcedDpi(96, {})}; // not forced; not in the server
        for (const char *resource : {"119.9", "96", "96.7", "high", "72dpi", "1e999"})
            dpis += forcedDpi(120, resource);
        QCOMPARE(dpis, (QList<int>{0, 96, 119, 0, 0, 120, 72, 120}));
    }

    void oneResourceChanges()
    {
        // The text, the new line of the resource "d" (null: removed) and the text then.
        for (const QStringList &row : rowsOf("fonts/changes.json"_s))
            QCOMPARE(withXresource(row[1].toLatin1(), "d", row[2].toLatin1()), row[3].toLatin1());
    }

    void merging()
    {
        // Both files (null: none), the stored DPI and what the server has then.
        for (QStringList row : rowsOf("fonts/merging.json"_s)) {
            row.replaceInStrings("BIG"_s, QString(9000, u'a'));
            const TemporaryHome home;
            if (!row[1].isNull())
                home.write(".Xresources"_s, row[1].toLatin1());
            home.write(".Xdefaults"_s, row[2].toLatin1());
            home.write(".included"_s, "A.in: 1\n");
            QSettings().setValue("forceFontDPI"_s, row[3]);
            loadServer(home, "Other.one: x\nXft.dpi: 99\n");
            applyXResources(exportXftSettings);
            QCOMPARE(serverResources(), row[4].toLatin1());
        }
    }

    void oddSurroundings()
    {
        const TemporaryHome home;
        loadServer(home, "A.a: 1\nXft.dpi: 120\n");
        {
            const FakePrograms nothing(FakePrograms::Path::Instead);
            applyXResources(exportXftSettings);
        }
        QCOMPARE(serverResources(), QByteArray("A.a: 1\n"));

        home.makeFifo(".Xresources"_s);
        QSettings().setValue("forceFontDPI"_s, 130);
        const QString directory = "with blank; exit"_s;
        home.write(directory + "/.Xresources"_s, "B.b: 2\n");
        const QByteArray odd = QFile::encodeName(home.path(directory));
        const ScopedEnvironment temporary("TMPDIR", odd);
        applyXResources(exportXftSettings);
        QCOMPARE(serverResources(), QByteArray("A.a: 1\nXft.dpi: 130\n"));
        const ScopedEnvironment oddHome("HOME", odd);
        StandardError standardError;
        applyXResources(0);
        QCOMPARE(serverResources(), QByteArray("A.a: 1\nB.b: 2\nXft.dpi: 130\n"));
        const QByteArray told = standardError.take();
        QVERIFY2(told.startsWith("qaz-admin-theme: Can't merge X resources in " + odd + ", files that")
                     && told.endsWith(": It can't be written, or xrdb does not understand its name\n"),
                 told.constData());
    }

    void callsOfXrdb()
    {
        const TemporaryHome home;
        FakePrograms programs;
        const QString xrdb = "xrdb"_s;
        programs.add(xrdb, "[ \"$1\" = -merge ] && { cat \"$2\"; stat -c '! %a' \"$2\"; } >\"$HOME/merged\"");
        home.write(".Xresources"_s, "A.a: 1\n");
        QSettings().setValue(QLatin1String(RenderingKey::antialias), true);
        applyXResources(exportXftSettings);
        QCOMPARE(home.read("merged"_s), QByteArray("A.a: 1\nXft.antialias: 1\n! 600\n"));
        const QString property = "_QT_SETTINGS_TIMESTAMP_"_s + qEnvironmentVariable("DISPLAY");
        output("xprop"_s, {"-root"_s, "-remove"_s, property});
        applyXResources(0);
        QCOMPARE(home.read("merged"_s), QByteArray("A.a: 1\n! 600\n"));
        const QVector<QStringList> calls = programs.calls(xrdb);
        QVERIFY(calls.size() == 3 && calls.at(0).join(u' ') == "-quiet -remove -nocpp"_s);
        // The merged file stands beside the user's.
        QCOMPARE(calls.at(1).join(u' ').chopped(6), "-merge "_s + home.path(".qaz-"_s));
        QVERIFY2(!QFile::exists(calls.at(1).value(1)), "the merged file is temporary");
        const QString stamp = output("xprop"_s, {"-root"_s, property});
        QVERIFY2(stamp.startsWith("%1(%1) = 0x"_s.arg(property)), qPrintable(stamp));
    }
};

QTEST_MAIN(TestXResources)
#include "tst_xresources.moc"
