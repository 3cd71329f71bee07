#include "fonts/fontsfile.h"
#include "fonts/kxftconfig.h"
#include "tests/support/literals.h"
#include "tests/support/standarderror.h"
#include "tests/support/temporaryhome.h"

#include <QDir>
#include <QProcess>
#include <QX11Info>
#include <QtTest>

#include <unistd.h>

namespace {

const QString place = ".config/fontconfig/fonts.conf"_s;

/// As the dialog uses it: chosen and read, the reason of a failure not asked for.
class Config : public KXftConfig
{
public:
    explicit Config(int required = 0x1E)
        : KXftConfig(required)
    {
        reset();
    }
    bool apply()
    {
        QString error;
        const bool isApplied = KXftConfig::apply(&error);
        if (isApplied != error.isEmpty())
            qFatal("A reason belongs to a failure alone: %s", qPrintable(error));
        return isApplied;
    }
};

/// A home with a fontconfig file.
class HomeWithFile : public TemporaryHome
{
public:
    explicit HomeWithFile(const QByteArray &children) { writeChildren(children); }
    void writeChildren(const QByteArray &children) const
    {
        write(place, "<?xml version=\"1.0\"?>\n<fontconfig>\n" + children + "</fontconfig>\n");
    }
    /// No lock, no temporary file.
    bool holdsOnlyTheFile() const
    {
        const QDir directory(path(".config/fontconfig"_s));
        return directory.entryList(QDir::AllEntries | QDir::Hidden | QDir::NoDotAndDotDot).size() == 1;
    }
};

QByteArray element(const char *name, const char *tag, const char *value)
{
    return QByteArray("  <match target=\"font\">\n    <edit mode=\"assign\" name=\"") + name + "\">\n      <"
           + tag + '>' + value + "</" + tag + ">\n    </edit>\n  </match>\n";
}

QByteArray range(const char *name, const char *from, const char *to)
{
    const QByteArray test = QByteArray("    <test qual=\"any\" name=\"") + name + "\" compare=\"";
    return "  <match target=\"font\">\n" + test + "more_eq\">\n      <double>" + from
           + "</double>\n    </test>\n" + test + "less_eq\">\n      <double>" + to
           + "</double>\n    </test>\n"
             "    <edit mode=\"assign\" name=\"antialias\">\n      <bool>false</bool>\n    </edit>\n"
             "  </match>\n";
}

QString summary(const KXftConfig &config)
{
    const ExcludeRange points = config.excludeRange();
    const ExcludeRange pixels = config.excludePixelRange();
    QString text;
    QTextStream(&text) << FontRendering::fileName(config.subPixelType()) << ' ' << int(config.hintStyle())
                       << ' ' << config.hinting() << ' ' << config.antiAliasing() << ' ' << points.from << '-'
                       << points.to << ' ' << pixels.from << '-' << pixels.to;
    return text;
}

/// What the run of another editor does: many changes, one after the other.
int editRepeatedly(int style)
{
    int applied = 0;
    for (int i = 0; i < 6; ++i) {
        Config config;
        config.setHintStyle(i % 2 ? HintStyle::Full : HintStyle(style));
        config.setSubPixelType(SubPixelOrder(1 + i % 4));
        applied += config.apply();
    }
    return applied > 0 ? 0 : 1;
}

} // namespace

class TestKXftConfig : public QObject
{
    Q_OBJECT
private slots:
    void newFileIsMadeInThePrivateDirectory()
    {
        const TemporaryHome home;
        StandardError standardError;
        Config config;
        QCOMPARE(standardError.take(), "qaz-admin-theme: user fontconfig file to use: "
                                           + QFile::encodeName(home.path(place)) + '\n');
        QCOMPARE(QFileInfo(home.path(".config/fontconfig"_s)).permissions() & 0x0777,
                 QFile::Permissions(0x0700));
        QCOMPARE(summary(config), "none 0 1 1 0-0 0-0"_s);
        QVERIFY(config.apply());
        QVERIFY(!home.exists(place)); // nothing had changed

        config.setHintStyle(HintStyle::None);
        QVERIFY(config.changed() && config.apply() && !config.changed());
        QCOMPARE(home.read(place), "<?xml version=\"1.0\"?>\n<!DOCTYPE fontconfig SYSTEM \"fonts.dtd\">\n"
                                   "<fontconfig>\n"
                                       + element("hinting", "bool", "false")
                                       + element("hintstyle", "const", "hintnone")
                                       + element("antialias", "bool", "true") + "</fontconfig>\n");
        QCOMPARE(summary(Config()), "none 1 0 1 0-0 0-0"_s);
        QVERIFY(!home.exists(".local"_s)); // ours alone: no copy
    }

    void settingsAreReadAndWritten()
    {
        QCOMPARE(QX11Info::appDpiY(), 96);
        const HomeWithFile home("  <dir>/a</dir>\n" + element("rgba", "const", "bgr")
                                + element("hintstyle", "const", "hintslight")
                                + element("antialias", "bool", "FALSE") + "  <!-- mine -->\n");
        Config config;
        QCOMPARE(summary(config), "bgr 2 1 0 0-0 0-0"_s);
        config.setExcludeRange({3, 7});
        config.setSubPixelType(SubPixelOrder::VerticalRgb);
        config.setHintStyle(HintStyle::Full);
        config.setAntiAliasing(true);
        QVERIFY(config.apply());
        QCOMPARE(summary(config), "vrgb 4 1 1 3-7 4-9"_s);
        config.setHintStyle(HintStyle::NotSet);
        config.setHinting(false);
        config.setSubPixelType(SubPixelOrder::None);
        config.setExcludePixelRange({8, 15});
        QVERIFY(config.apply());
        QCOMPARE(summary(config), "none 0 0 1 6-11 8-15"_s);
        const QByteArray head = "<?xml version=\"1.0\"?>\n<fontconfig>\n  <dir>/a</dir>\n"
                                + element("antialias", "bool", "true") + "  <!-- mine -->\n"
                                + element("hinting", "bool", "false");
        QCOMPARE(home.read(place),
                 head + range("size", "6", "11") + range("pixelsize", "8", "15") + "</fontconfig>\n");
        config.setExcludeRange({});
        QVERIFY(config.apply());
        QCOMPARE(home.read(place), head + "</fontconfig>\n");
        QVERIFY(home.holdsOnlyTheFile());
    }

    void pixelRangeIsRewrittenOnceAtEachRead()
    {
        const HomeWithFile home("<!-- mine -->\n" + range("pixelsize", "8", "15"));
        const QByteArray before = home.read(place);
        StandardError standardError;
        Config config;
        const QByteArray told = standardError.take().trimmed();
        QFile copy(QFile::decodeName(told.mid(told.lastIndexOf(" as ") + 4)));
        QVERIFY2(copy.open(QIODevice::ReadOnly), told.constData());
        QCOMPARE(copy.readAll(), before);
        QCOMPARE(summary(config).section(u' ', 4), "6-11 8-15"_s);
        QVERIFY(!config.changed());
        const QByteArray content = home.read(place);
        QVERIFY2(content.contains(range("size", "6", "11")), content.constData());

        const QString fingerprint = home.fingerprint();
        Config again;
        again.setExcludePixelRange({8, 15});
        QVERIFY(!again.changed());
        QVERIFY(home.fingerprint() != fingerprint);
        QCOMPARE(home.read(place), content);
        QCOMPARE(home.backups().size(), 1);
    }

    void newAntiAliasingStandsBeforeTheRange()
    {
        const HomeWithFile home("  <dir>/a</dir>\n" + range("size", "3", "7") + "  <!-- mine -->\n");
        Config config(KXftConfig::AntiAlias | KXftConfig::ExcludedRange);
        QVERIFY(home.read(place).contains("<dir>/a</dir>\n" + element("antialias", "bool", "true")
                                          + range("size", "3", "7") + "  <!-- mine -->\n"
                                          + range("pixelsize", "4", "9")));
        // Not in front of a range that goes.
        home.writeChildren(range("size", "3", "7"));
        Config other(KXftConfig::AntiAlias);
        other.setAntiAliasing(false);
        QVERIFY(other.apply());
        QVERIFY(home.read(place).endsWith(range("size", "3", "7") + element("antialias", "bool", "false")
                                          + "</fontconfig>\n"));
    }

    void linkAndModeStay()
    {
        const TemporaryHome home;
        const QString target = home.write("dotfiles/fonts"_s, "<fontconfig/>\n");
        QFile::setPermissions(target, QFile::ReadOwner | QFile::WriteOwner);
        home.makeDirectory(".config/fontconfig"_s);
        QVERIFY(QFile::link(target, home.path(place)));
        Config config;
        config.setSubPixelType(SubPixelOrder::Bgr);
        QVERIFY(config.apply());
        QCOMPARE(QFileInfo(home.path(place)).symLinkTarget(), target);
        QVERIFY(home.read("dotfiles/fonts"_s).contains("<const>bgr</const>"));
        QCOMPARE(QFileInfo(target).permissions() & 0x7077, QFile::Permissions(0x6000));
        QCOMPARE(QDir(home.path("dotfiles"_s)).count(), 3u); // with . and ..
    }

    void whatCannotBeReadIsLeftAlone()
    {
        const auto check = [](const TemporaryHome &home) {
            const QString before = home.fingerprint();
            StandardError standardError;
            Config config;
            QVERIFY(!config.reset());
            QVERIFY(standardError.take().contains("qaz-admin-theme: Can't use "));
            config.setSubPixelType(SubPixelOrder::Bgr);
            QVERIFY(!config.apply());
            QCOMPARE(home.fingerprint(), before);
        };
        check(HomeWithFile("<match>"));
        check(HomeWithFile(QByteArray(17 << 20, ' ')));
        TemporaryHome home;
        QVERIFY(home.makeDirectory(place));
        check(home);
        for (const QString &target : {"nowhere"_s, place}) { // dangling, and to itself
            QVERIFY(QDir().rmdir(home.path(place)) || QFile::remove(home.path(place)));
            QVERIFY(QFile::link(home.path(target), home.path(place)));
            check(home);
        }
    }

    void readOnlyDirectoryIsLeftAlone()
    {
        const HomeWithFile home({});
        const QString directory = home.path(".config/fontconfig"_s);
        QFile::setPermissions(directory, QFile::Permissions(0x5555));
        const QString before = home.fingerprint();
        // The administrator may write everywhere.
        const uid_t user = ::geteuid();
        QVERIFY(user != 0 || ::seteuid(65534) == 0);
        Config config;
        config.setSubPixelType(SubPixelOrder::Bgr);
        const bool applied = config.apply();
        QVERIFY(user != 0 || ::seteuid(user) == 0);
        QVERIFY(!applied);
        QCOMPARE(home.fingerprint(), before);
        QFile::setPermissions(directory, QFile::Permissions(0x7755));
    }

    void bothChangesSurviveARewrite()
    {
        const HomeWithFile home({});
        Config config;
        config.setExcludePixelRange({3, 10});
        config.setHintStyle(HintStyle::Full);
        home.writeChildren("  <alias/>\n" + element("rgba", "const", "rgb"));
        StandardError standardError;
        QVERIFY(config.apply());
        QVERIFY(standardError.take().startsWith(
            "qaz-admin-theme: font config file was rewritten since we last read!\n"));
        QVERIFY(home.read(place).contains("  <alias/>\n" + element("hinting", "bool", "true")));
        QCOMPARE(summary(config), "none 4 1 1 2-8 3-10"_s);
        QVERIFY(!config.changed());

        // The merge has read the file again: the next change needs none.
        config.setSubPixelType(SubPixelOrder::Rgb);
        QVERIFY(config.apply());
        QVERIFY(!standardError.take().contains("rewritten"));
    }

    void heldLockIsRespected()
    {
        const HomeWithFile home({});
        const QByteArray before = home.read(place);
        Config config;
        config.setSubPixelType(SubPixelOrder::Bgr);
        const QString lock = home.write(place + ".LCK"_s, QByteArray::number(::getpid()));
        QString error;
        QVERIFY(!config.KXftConfig::apply(&error));
        QCOMPARE(error, "Another program has locked it"_s);
        QCOMPARE(home.read(place), before);
        QVERIFY(QFile::remove(lock) && config.changed() && config.apply());
        QVERIFY(home.holdsOnlyTheFile());
    }

    void halfWrittenFileIsLeftAlone()
    {
        const HomeWithFile home({});
        Config config;
        config.setSubPixelType(SubPixelOrder::Bgr);
        home.write(place, "<fontconfig>");
        StandardError standardError;
        QVERIFY(!config.apply() && config.changed());
        QCOMPARE(standardError.take().count("font config file was rewritten since we last read!\n"), 1);
        QCOMPARE(home.read(place), QByteArray("<fontconfig>"));
    }

    void editorsAtTheSameTimeLeaveAWholeFile()
    {
        const HomeWithFile home("  <!-- mine -->\n");
        QProcess editors[3];
        for (int i = 0; i < 3; ++i)
            editors[i].start(QCoreApplication::applicationFilePath(),
                             {"--edit-repeatedly"_s, QString::number(i + 1)});
        for (QProcess &editor : editors) {
            QVERIFY(editor.waitForFinished(60000));
            QVERIFY2(editor.exitCode() == 0, editor.readAllStandardError().constData());
        }
        QVERIFY(
            home.read(place).startsWith("<?xml version=\"1.0\"?>\n<fontconfig>\n  <!-- mine -->\n  <match"));
        QVERIFY(home.holdsOnlyTheFile());
    }
};

int main(int argc, char *argv[])
{
    QGuiApplication application(argc, argv);
    if (argc == 3 && qstrcmp(argv[1], "--edit-repeatedly") == 0)
        return editRepeatedly(QByteArray(argv[2]).toInt());
    TestKXftConfig test;
    return QTest::qExec(&test, argc, argv);
}
#include "tst_kxftconfig.moc"
