#include "bridge/openbox.h"
#include "bridge/openboxrc.h"
#include "bridge/programs.h"
#include "bridge/wallpaperpicture.h"
#include "bridge/xsettings.h"
#include "settings/wmcommands.h"
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
        QCOMPARE(xsettingsFile({"Noto Sans-11:bold:italic"_s, "tirsk"_s, "arrow"_s, "120 true rgb full"_s}),
                 "Gtk/FontName \"Noto Sans Bold Italic 11\"\nNet/IconThemeName \"tirsk\"\n"
                 "Gtk/CursorThemeName \"arrow\"\nXft/DPI 122880\nXft/Antialias 1\nXft/RGBA \"rgb\"\n"
                 "Xft/Hinting 1\nXft/HintStyle \"hintfull\"\n");
        QCOMPARE(
            xsettingsFile(
                {"a\"\nEvil 1\\:normal:x"_s, "b\nEvil 1"_s, "c\\"_s, "x false RGB\nEvil hintnone"_s}),
            "Gtk/FontName \"a\\\" Evil 1\\\\ 12\"\nNet/IconThemeName \"b Evil 1\"\n"
            "Gtk/CursorThemeName \"c\\\\\"\nXft/Antialias 0\nXft/Hinting 0\nXft/HintStyle \"hintnone\"\n");
        QCOMPARE(xsettingsFile({"Verdana"_s, {}, {}, "0 unknown rgb full"_s}), QByteArray());
        QByteArray all;
        for (const char *words : {"401 1 none none", "-1 yes bgr hintslight", "x true vrgb medium",
                                  "1 true vbgr hintfull", "", "9"})
            all += xsettingsFile({{}, {}, {}, QLatin1String(words)}).replace("Xft/", "").replace('\n', ' ')
                   + '|';
        QCOMPARE(
            all,
            QByteArray("DPI 409600 Antialias 1 RGBA \"none\" Hinting 0 HintStyle \"hintnone\" |"
                       "Antialias 0 RGBA \"bgr\" Hinting 1 HintStyle \"hintslight\" |"
                       "Antialias 1 RGBA \"vrgb\" Hinting 1 HintStyle \"hintmedium\" |"
                       "DPI 1024 Antialias 1 RGBA \"vbgr\" Hinting 1 HintStyle \"hintfull\" ||DPI 9216 |"));
    }

    void openboxFileKeepsEveryOtherByte()
    {
        const QByteArray before = m_home.read(bridgeTests + "rc.xml"_s),
                         after = m_home.read(bridgeTests + "rc-themed.xml"_s);
        QString error;
        const auto changed = withOpenboxTheme(before, "qaz"_s, "Sans-9:bold"_s, "A&B-12:normal:italic"_s,
                                              &error);
        QCOMPARE(changed.value_or(error.toUtf8()), after);
        QCOMPARE(withOpenboxTheme(after, "qaz"_s, {}, "Verdana"_s, &error).value_or(""), after);
        for (const char *other :
             {"", "<theme><name>a</name></theme>", "<openbox_config><theme/></openbox_config>",
              "<openbox_config><theme></theme>"})
            QVERIFY2(!withOpenboxTheme(other, "qaz"_s, {}, {}, &error)
                         && error == "it is no configuration file of Openbox with a theme"_s,
                     other);
    }

    void openboxThemeHoldsColorsOnly()
    {
        Values values(m_home.write("t"_s,
                                   "TitlebarColor=qvblue\nTitlebarColor2=#000080\nMenuActiveColor=lime\n"
                                   "TitleStringColor=Qt\nFrameColor=red\n"));
        values.announce("MenuColor"_s, "red\nevil: 1"_s);
        QCOMPARE(openboxTheme(values), m_home.read(bridgeTests + "themerc"_s));
    }

    void picturesAreImagesInRegularFiles()
    {
        m_home.write("a.png"_s, "no image");
        const QString first = m_home.path("b.png"_s);
        const QString second = m_home.path("d"_s); // the content counts
        const QString drawing = m_home.write("z.svg"_s, "<svg/>");
        QVERIFY(QImage(2, 2, QImage::Format_RGB32).save(first, "PNG"));
        QVERIFY(QImage(2, 2, QImage::Format_RGB32).save(second, "JPG"));
        m_home.makeFifo("c.png"_s);
        m_home.write("e.bmp"_s, QByteArray::fromHex(
                                    "424d3a0000000000000036000000280000000040000000c000000100180000000000")
                                    + QByteArray(24, '\0')); // three times as large as is shown
        m_home.write("f.svg"_s, {});
        m_home.write("g.xpm"_s, "/* XPM */\nstatic char *g[] = {\n\"1 1 1 1\",\n\"a c red\",\n\"a\"};\n");
        QCOMPARE(nextPicture(first), second);
        QCOMPARE(nextPicture(second), m_home.path("g.xpm"_s));
        QCOMPARE(nextPicture(m_home.path("g.xpm"_s)), drawing);
        QCOMPARE(nextPicture(drawing), first);
        QCOMPARE(nextPicture(m_home.path("a.png"_s)), first);
        QCOMPARE(nextPicture(m_home.write("x/a"_s, {})), m_home.path("x/a"_s));
    }

    void commandLinesAreQuoted()
    {
        QCOMPARE(shellLine({"feh"_s, "#0a0"_s, ""_s, "it's $x"_s, "/a/b-c_d.e:f"_s}),
                 "feh '#0a0' '' 'it'\\''s $x' /a/b-c_d.e:f"_s);
        QString key, value;
        QVERIFY(readUpdateCommand(updateCommand("Key"_s, " a\nb "_s), &key, &value));
        QCOMPARE(key + u'|' + value, "Key| a\nb "_s);
        QVERIFY(!readUpdateCommand("QAZWM_UPDATE_VAL Key\n", &key, &value));
    }

private:
    const TemporaryHome m_home;
};

QTEST_GUILESS_MAIN(TestBridgeTexts)
#include "tst_bridgetexts.moc"
