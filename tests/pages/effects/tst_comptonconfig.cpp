#include "pages/effects/comptonconfig.h"
#include "tests/support/temporaryhome.h"

#include <QFile>
#include <QFileInfo>
#include <QtTest>

namespace {

/// Sets both values in the file; a text that starts with "!" is the failure.
QString update(const QString &path, bool transparency, bool shadow)
{
    QString error;
    return updateComptonFile(path, {transparency, shadow}, &error) ? QStringLiteral("done")
                                                                   : QLatin1Char('!') + error;
}

/// The transparency and the shadow of the file: "true -" for a missing shadow.
QByteArray stored(const QString &path)
{
    const std::optional<ComptonValues> values = readComptonFile(path);
    const auto text = [](std::optional<bool> value) { return !value ? "-" : *value ? "true" : "false"; };
    return values ? QByteArray(text(values->transparency)) + ' ' + text(values->shadow) : "unreadable";
}

const QString fileName = QStringLiteral(".config/compton.conf");

} // namespace

class TestComptonConfig : public QObject
{
    Q_OBJECT
private slots:
    void onlyTheTwoValuesChange_data()
    {
        QTest::addColumn<QByteArray>("before");
        QTest::addColumn<QByteArray>("after"); // with transparency on, shadows off
        const auto row = [](const char *title, const char *before, const char *after) {
            QTest::newRow(title) << QByteArray(before) << QByteArray(after);
        };
        row("an empty file", "", "enable-transparency = true;\nshadow = false;\n");
        row("values among comments",
            "# shadow = true;\nshadow = TRUE; // shadow = true;\n/* shadow\n= 1; */ enable-transparency: "
            "false;\n",
            "# shadow = true;\nshadow = false; // shadow = true;\n/* shadow\n= 1; */ enable-transparency: "
            "true;\n");
        row("no separators, no last newline", "shadow=true enable-transparency=false x=1",
            "shadow=false enable-transparency=true x=1");
        row("our names elsewhere only",
            "shadow-radius = 7;no-shadow = true;w : { shadow = true; };l = ( { shadow = true; } );"
            "s = \"\\\"shadow = true;\" \"shadow = 1\";\n",
            "shadow-radius = 7;no-shadow = true;w : { shadow = true; };l = ( { shadow = true; } );"
            "s = \"\\\"shadow = true;\" \"shadow = 1\";\nenable-transparency = true;\nshadow = false;\n");
        row("numbers of every form, lines of another system",
            "a = 0x1F; b = 10L; c = 1.23456789012345678; d = 1e-300; e = .5; f = 99999999999;\r\n",
            "a = 0x1F; b = 10L; c = 1.23456789012345678; d = 1e-300; e = .5; f = 99999999999;\r\n"
            "enable-transparency = true;\r\nshadow = false;\r\n");
        row("values of another type", "shadow = 0;\nenable-transparency = { a = [ 1, 2 ]; };\nz = \"\xfc\";",
            "shadow = false;\nenable-transparency = true;\nz = \"\xfc\";");
        row("values of another type, texts", "shadow = \"n\" \"o\";enable-transparency=\"true\"",
            "shadow = false;enable-transparency=true");
        row("an open comment at the end", "a = 1.5; /* shadow",
            "a = 1.5;\nenable-transparency = true;\nshadow = false;\n");
    }
    void onlyTheTwoValuesChange()
    {
        QFETCH(QByteArray, before);
        QFETCH(QByteArray, after);
        const TemporaryHome home;
        const QString path = home.write(fileName, before);
        QCOMPARE(update(path, true, false), QStringLiteral("done"));
        QCOMPARE(home.read(fileName), after);
        QCOMPARE(stored(path), QByteArray("true false"));
        const QString whole = home.fingerprint();
        QCOMPARE(update(path, true, false), QStringLiteral("done"));
        QCOMPARE(home.fingerprint(), whole);
    }

    void includesAreReadAndKept()
    {
        const TemporaryHome home;
        const QByteArray absolute = QFile::encodeName(
            home.write(QStringLiteral("elsewhere/b.conf"), "b = 2;"));
        home.write(QStringLiteral(".config/a.conf"), "@include \"deeper.conf\"\na = 1;");
        home.write(QStringLiteral(".config/deeper.conf"), "shadow = true; # no newline");
        const QByteArray text = "@include \"a.conf\"\n# @include \"missing\"\n  @include \"" + absolute
                                + "\"\n";
        const QString path = home.write(fileName, text);
        QCOMPARE(stored(path), QByteArray("- true"));
        QCOMPARE(update(path, false, true), QStringLiteral("done"));
        QCOMPARE(home.read(fileName), text + "enable-transparency = false;\n");
    }

    void valueOfAnIncludedFileIsSetInTheFileItself()
    {
        const TemporaryHome home;
        const QByteArray included = "shadow = true; # theirs\nratio=1.23456789012;other = 0xFF;\n";
        home.write(QStringLiteral(".config/a.conf"), included);
        const QString path = home.write(fileName, "# mine\n@include \"a.conf\"\n");
        QCOMPARE(update(path, true, false), QStringLiteral("done"));
        QCOMPARE(home.read(fileName),
                 QByteArray("# mine\nshadow = false; # theirs\nratio=1.23456789012;other = 0xFF;\n\n"
                            "enable-transparency = true;\n"));
        QCOMPARE(home.read(QStringLiteral(".config/a.conf")), included);
    }

    void linkAndModeStay()
    {
        const TemporaryHome home;
        const QString target = home.write(QStringLiteral("dotfiles/compton.conf"), "shadow = true;\n");
        QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
        home.makeDirectory(QStringLiteral(".config"));
        QVERIFY(QFile::link(target, home.path(fileName)));
        QCOMPARE(update(home.path(fileName), true, false), QStringLiteral("done"));
        QCOMPARE(QFileInfo(home.path(fileName)).symLinkTarget(), target);
        QCOMPARE(QFile(target).permissions() & (QFile::ReadGroup | QFile::ReadOther), QFile::Permissions());
        QCOMPARE(home.read(QStringLiteral("dotfiles/compton.conf")),
                 QByteArray("shadow = false;\nenable-transparency = true;\n"));
    }

    void whatIsNoConfigurationIsLeftAlone()
    {
        const QByteArray contents[] = {QByteArray("\x7f") + "ELF\x02 =\n",
                                       "a : {",
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
            QVERIFY2(stored(path) == "unreadable" && update(path, true, true).startsWith(QLatin1Char('!')),
                     content.left(40).constData());
            QCOMPARE(home.fingerprint(), before);
        }
        const TemporaryHome home;
        QCOMPARE(stored(home.path(QStringLiteral("missing"))), QByteArray("unreadable"));
    }
};

QTEST_GUILESS_MAIN(TestComptonConfig)
#include "tst_comptonconfig.moc"
