#include "bridge/openboxrc.h"
#include "bridge/programs.h"
#include "bridge/wallpaperpicture.h"
#include "bridge/xsettings.h"
#include "settings/wmcommands.h"
#include "tests/support/rows.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/testing.h"

const QString bridgeTests = QAZ_SOURCE_DIR "/tests/bridge/"_s;

/// The files and command lines that the bridge makes of values that anybody may have sent.
class TestBridgeTexts : public QObject
{
    Q_OBJECT
private slots:
    void settingsFileHoldsOneLineAValue()
    {
        for (const QStringList &row : rowsOf("bridge/xsettings.json"_s))
            QCOMPARE(xsettingsFile({row[0], row[1], row[2], row[3]}).replace('\n', '|'), row[4].toUtf8());
    }

    void openboxFileKeepsEveryOtherByte()
    {
        const QByteArray after = m_home.read(bridgeTests + "rc-themed.xml"_s);
        QString error;
        QCOMPARE(withOpenboxTheme(m_home.read(bridgeTests + "rc.xml"_s), "qaz"_s, "Sans-9:bold"_s,
                                  "A&B-12:normal:italic"_s, &error),
                 after);
        QCOMPARE(withOpenboxTheme(after, "qaz"_s, {}, "Verdana"_s, &error), after);
        for (const char *other :
             {"", "<theme><name>a</name></theme>", "<openbox_config><theme/></openbox_config>",
              "<openbox_config><theme></theme>"})
            QVERIFY2(!withOpenboxTheme(other, "qaz"_s, {}, {}, &error)
                         && error == "it is no configuration file of Openbox with a theme"_s,
                     other);
    }

    void picturesAreImagesInRegularFiles()
    {
        m_home.write("a.png"_s, "no image");
        m_home.write("z.svg"_s, "x");
        QVERIFY(QImage(2, 2, QImage::Format_RGB32).save(m_home.path("b.png"_s)));
        QVERIFY(QImage(2, 2, QImage::Format_RGB32).save(m_home.path("d"_s), "JPG")); // the content counts
        m_home.makeFifo("c.png"_s);
        QByteArray bitmap = QByteArray::fromHex(
            "424d3a0000000000000036000000280000000040000000400000010018000000000000000000");
        m_home.write("e.bmp"_s, bitmap.leftJustified(58, '\0')); // as large as is shown at most
        m_home.write("ee.bmp"_s, bitmap.replace(23, 1, "\xc0").leftJustified(58, '\0'));
        m_home.write("f.svg"_s, {});
        m_home.write("g.xpm"_s, "/* XPM */\nstatic char *g[] = {\n\"1 1 1 1\",\n\"a c red\",\n\"a\"};\n");
        QStringList walked("a.png"_s);
        for (int i = 0; i < 6; ++i)
            walked += QFileInfo(nextPicture(m_home.path(walked.last()))).fileName();
        QCOMPARE(walked.join(u' '), "a.png b.png d e.bmp g.xpm z.svg b.png"_s);
        QCOMPARE(nextPicture(m_home.write("x/a"_s, {})), m_home.path("x/a"_s));
    }

    void commandLinesAreQuoted()
    {
        QCOMPARE(shellLine({"feh"_s, "#0a0"_s, ""_s, "it's $x"_s, "/a/b-c_d.e:f"_s}),
                 "feh '#0a0' '' 'it'\\''s $x' /a/b-c_d.e:f"_s);
        QString part;
        QVERIFY(!readUpdateCommand("QAZWM_UPDATE_VAL Key\n", &part, &part));
    }

private:
    const TemporaryHome m_home;
};

QTEST_GUILESS_MAIN(TestBridgeTexts)
#include "tst_bridgetexts.moc"
