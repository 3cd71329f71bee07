#include "bridge/openbox.h"
#include "bridge/openboxrc.h"
#include "bridge/programs.h"
#include "bridge/wallpaperpicture.h"
#include "bridge/xsettings.h"
#include "settings/wmcommands.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/testing.h"

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
        const QByteArray head = "<?xml version='1.0'?>\r\n<openbox_config xmlns=\"x\">\n<!-- <theme> -->"
                                "<a><name>no</name></a><theme>\t<!-- <name>no</name> -->";
        const QByteArray before
            = head
              + "<name>Old</name><font a=\"1\" place=\"MenuItem\"><size>7</size><name/></font>"
                "<keepBorder/>\r\n</theme><theme><name>b</name></theme></openbox_config>\n";
        const QByteArray title
            = "<name>Sans</name><size>9</size><weight>bold</weight><slant>normal</slant></font>";
        const QByteArray after
            = head
              + "<name>qaz</name><font a=\"1\" place=\"MenuItem\"><size>12</size><name>A&amp;B</name>"
                "<weight>normal</weight><slant>italic</slant></font><keepBorder/>\r\n"
                "<font place=\"ActiveWindow\">"
              + title + "<font place=\"InactiveWindow\">" + title
              + "<font place=\"MenuHeader\"><name>A&amp;B</name><size>12</size><weight>normal</weight>"
                "<slant>italic</slant></font></theme><theme><name>b</name></theme></openbox_config>\n";
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
        const TemporaryHome home;
        Values values(home.write("t"_s, "TitlebarColor=qvblue\nTitlebarColor2=#000080\nMenuActiveColor=lime\n"
                                        "TitleStringColor=Qt\nFrameColor=red\n"));
        values.announce("MenuColor"_s, "red\nevil: 1"_s);
        QByteArray theme = openboxTheme(values);
        theme.replace("window.", "w.")
            .replace("inactive.", "-")
            .replace("active.", "+")
            .replace(".color", "");
        theme.replace("Flat Gradient Horizontal", ">").replace("Flat Solid", "=").replace(": ", " ");
        QCOMPARE(theme.replace('\n', '|').constData(),
                 "border.width 1|w.*.label.bg Parentrelative|w.*.button.*.bg Parentrelative|"
                 "w.*.handle.bg =|w.*.grip.bg =|menu.items.+bg =|w.label.text.justify left|"
                 "w.-label.text #ffffff|w.-button.*.image #ffffff|w.+label.text #ffffff|"
                 "w.+button.*.image #ffffff|menu.title.text #ffffff|w.-border #ff0000|w.-client #ff0000|"
                 "w.-title.separator #ff0000|w.-handle.bg #ff0000|w.-grip.bg #ff0000|w.+border #c0c0c0|"
                 "w.+client #c0c0c0|w.+title.separator #c0c0c0|w.+handle.bg #c0c0c0|w.+grip.bg #c0c0c0|"
                 "menu.border #c0c0c0|menu.items.+bg #00ff00|menu.items.text #000000|"
                 "menu.items.+text #ffffff|w.-title.bg #000080|w.-title.bg =|w.-title.bgTo #000080|"
                 "w.+title.bg #000080|w.+title.bg >|w.+title.bgTo #a6caf0|menu.title.bg #000080|"
                 "menu.title.bg >|menu.title.bgTo #a6caf0|menu.items.bg #a4a3be|menu.items.bg >|"
                 "menu.items.bgTo #fbfcfd|");
    }

    void picturesAreImagesInRegularFiles()
    {
        const TemporaryHome home;
        home.write("a.png"_s, "no image");
        const QString first = home.path("b.png"_s);
        const QString second = home.path("d"_s); // the content counts
        const QString drawing = home.write("z.svg"_s, "<svg/>");
        QVERIFY(QImage(2, 2, QImage::Format_RGB32).save(first, "PNG"));
        QVERIFY(QImage(2, 2, QImage::Format_RGB32).save(second, "JPG"));
        home.makeFifo("c.png"_s);
        home.write("e.bmp"_s,
                   QByteArray::fromHex("424d3a0000000000000036000000280000000040000000c000000100180000000000")
                       + QByteArray(24, '\0')); // three times as large as is shown
        home.write("f.svg"_s, {});
        home.write("g.xpm"_s, "/* XPM */\nstatic char *g[] = {\n\"1 1 1 1\",\n\"a c red\",\n\"a\"};\n");
        QCOMPARE(nextPicture(first), second);
        QCOMPARE(nextPicture(second), home.path("g.xpm"_s));
        QCOMPARE(nextPicture(home.path("g.xpm"_s)), drawing);
        QCOMPARE(nextPicture(drawing), first);
        QCOMPARE(nextPicture(home.path("a.png"_s)), first);
        QCOMPARE(nextPicture(home.write("x/a"_s, {})), home.path("x/a"_s));
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
};

QTEST_GUILESS_MAIN(TestBridgeTexts)
#include "tst_bridgetexts.moc"
