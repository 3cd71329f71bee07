#include "pages/effects/comptonconfig.h"
#include "tests/support/temporaryhome.h"
#include "tests/support/testing.h"

namespace {

/// Sets both values in the file.
bool update(const QString &path, bool transparency, bool shadow)
{
    QString error;
    return updateComptonFile(path, {transparency, shadow}, &error);
}

/// The transparency and the shadow of the file: "true -" for a missing shadow.
QByteArray stored(const QString &path)
{
    const std::optional<ComptonValues> values = readComptonFile(path);
    const auto text = [](std::optional<bool> value) { return !value ? "-" : *value ? "true" : "false"; };
    return values ? QByteArray(text(values->transparency)) + ' ' + text(values->shadow) : "unreadable";
}

const QString fileName = ".config/compton.conf"_s;

} // namespace

class TestComptonConfig : public QObject
{
    Q_OBJECT
private slots:
    void onlyTheTwoValuesChange()
    {
        // Before, and with transparency on, shadows off.
        const QByteArray others
            = "shadow-radius = 7;no-shadow = true;w : { shadow = true; };l = ( { shadow = true; } );"
              "s = \"\\\"shadow = true;\" \"shadow = 1\";\n";
        const QByteArray numbers
            = "a = 0x1F; b = 10L; c = 1.23456789012345678; d = 1e-300; e = .5; f = 99999999999;\r\n";
        const std::pair<QByteArray, QByteArray> rows[] = {
            {"", "enable-transparency = true;\nshadow = false;\n"},
            {"# shadow = true;\nshadow = TRUE; // shadow = true;\n/* shadow\n= 1; */ "
             "enable-transparency: false;\n",
             "# shadow = true;\nshadow = false; // shadow = true;\n/* shadow\n= 1; */ "
             "enable-transparency: true;\n"},
            {"/**/#\nshadow\r\f\t=true s=\"\"enable-transparency=false x=1",
             "/**/#\nshadow\r\f\t=false s=\"\"enable-transparency=true x=1"},
            {others, others + "enable-transparency = true;\nshadow = false;\n"},
            {numbers, numbers + "enable-transparency = true;\r\nshadow = false;\r\n"},
            {"shadow = 0;\nenable-transparency = { a = [ 1, 2 ]; };\nz = \"\xfc\";",
             "shadow = false;\nenable-transparency = true;\nz = \"\xfc\";"},
            {"shadow = \"n\" \"o\";enable-transparency=\"true\"", "shadow = false;enable-transparency=true"},
            {"shadow = 1; a = 1.5; /* x", "a = 1.5;\nenable-transparency = true;\nshadow = false;\n"}};
        for (const auto &[before, after] : rows) {
            const TemporaryHome home;
            const QString path = home.path("link"_s);
            QVERIFY(QFile::link(home.write(fileName, before), path));
            QVERIFY(update(path, true, false));
            QCOMPARE(home.read(fileName), after);
            QCOMPARE(stored(path), QByteArray("true false"));
            const QString whole = home.fingerprint();
            QVERIFY(update(path, true, false));
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
        const QString path = home.write(fileName, before + after);
        QCOMPARE(stored(path), QByteArray("- true"));
        QVERIFY(update(path, false, true));
        QCOMPARE(home.read(fileName), before + after + "enable-transparency = false;\n");

        // A value of an included file is set in the file itself.
        home.write(".config/a.conf"_s, included);
        QVERIFY(update(path, true, false));
        QCOMPARE(home.read(fileName),
                 QByteArray("# mine\nshadow = false; # theirs\nratio=1.23456789012;other = 0xFF;\n\n"
                            "# @include \"missing\"\n  b = 2;\n\nenable-transparency = true;\n"));
        QCOMPARE(home.read(".config/a.conf"_s), included);
    }

    void whatIsNoConfigurationIsLeftAlone()
    {
        const QByteArray contents[] = {"a : {",
                                       "a = \"b\\",
                                       QByteArray("shadow = true;\0", 15),
                                       "a = 1; a = 2;",
                                       "a = " + QByteArray(200000, '('),
                                       "a = \"" + QByteArray(2 * 1024 * 1024, 'x') + "\";\n",
                                       "@include \"missing.conf\"\n",
                                       "@include \".\"\n",
                                       "@include \"/dev/zero\"\n",
                                       "@include \"compton.conf\"\n@include \"compton.conf\"\n"};
        for (const QByteArray &content : contents) {
            const TemporaryHome home;
            const QString path = home.write(fileName, content);
            const QString before = home.fingerprint();
            QVERIFY2(stored(path) == "unreadable" && !update(path, true, true), content.left(40).constData());
            QCOMPARE(home.fingerprint(), before);
        }
    }
};

QTEST_GUILESS_MAIN(TestComptonConfig)
#include "tst_comptonconfig.moc"
