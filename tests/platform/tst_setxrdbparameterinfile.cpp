#include "platform/setxrdbparameterinfile.h"

#include <QTest>

#include "tests/support/temporaryhome.h"

namespace {

const QString file = QStringLiteral(".Xresources");

bool setDpi(const TemporaryHome &home, const char *value)
{
    return setXrdbParameterInFile(QFile::encodeName(home.path(file)).constData(), "Xft.dpi:", " ", value,
                                  false);
}

} // namespace

class TestSetXrdbParameterInFile : public QObject
{
    Q_OBJECT
private slots:
    void editsOneLine()
    {
        const struct {
            const char *before;
            const char *value; // null: removed
            const char *after;
        } rows[] = {
            {"! mine\nXft.dpi: 96\nx: 1\n", "120", "! mine\nXft.dpi: 120\nx: 1\n"},
            {"x: 1", "120", "x: 1\nXft.dpi: 120\n"}, // an open last line
            {"a: 1\nXft.dpi: 96", "7", "a: 1\nXft.dpi: 7"},
            {"a: 1\nXft.dpi: 96\nb: 2", nullptr, "a: 1\nb: 2"},
            {" Xft.dpi :\t96\n", "120", "Xft.dpi: 120\n"},
            {"Xft.dpix: 1\n!Xft.dpi: 2\n", "3", "Xft.dpix: 1\n!Xft.dpi: 2\nXft.dpi: 3\n"},
            {"Xft.dpi: 1\na: 1\nXft.dpi: 2\nb: 2\n", "3", "a: 1\nXft.dpi: 3\nb: 2\n"}, // the last one counts
            {"Xft.dpi: \\\n 96\na: \\\nXft.dpi: text\n", nullptr, "a: \\\nXft.dpi: text\n"},
            {"! mine\\\nXft.dpi: 96\n", "7", "! mine\\\nXft.dpi: 96\nXft.dpi: 7\n"}, // still the comment's
            {"a: 1\\\n", "7", "a: 1\\\n\nXft.dpi: 7\n"},
            {"a: \xff\r\nXft.dpi: 96\r\nb: 1\r\n", "7", "a: \xff\r\nXft.dpi: 7\r\nb: 1\r\n"}};
        for (const auto &row : rows) {
            const TemporaryHome home;
            home.write(file, row.before);
            QVERIFY(setDpi(home, row.value));
            QCOMPARE(home.read(file), QByteArray(row.after));
        }
    }

    void writesOnlyWhatChanges()
    {
        const TemporaryHome home;
        QVERIFY(setDpi(home, nullptr));
        QVERIFY(!home.exists(file));
        home.write(file, "Xft.dpi: 96\n");
        const QString written = home.fingerprint();
        QVERIFY(setDpi(home, "96"));
        QCOMPARE(home.fingerprint(), written);
        QVERIFY(QFile::remove(home.path(file)) && home.makeDirectory(file));
        QVERIFY(!setDpi(home, "96"));
    }
};

QTEST_GUILESS_MAIN(TestSetXrdbParameterInFile)
#include "tst_setxrdbparameterinfile.moc"
