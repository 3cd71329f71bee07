#include "tests/support/programprocess.h"
#include "tests/support/temporaryhome.h"

/// The program in each of its languages.
class TestLanguages : public QObject
{
    Q_OBJECT

private slots:
    void localeChoosesTheCatalogue()
    {
        const QByteArray german("Aufruf: qaz-admin-theme Designdatei - Designdatei öffnen und bearbeiten\n");
        const QByteArray english("Usage: qaz-admin-theme themefile - open and edit theme file\n");
        const std::tuple<QByteArray, QByteArray, QByteArray> rows[] = {
            {"C", "", "Qaz\n"},          {"ru_RU.UTF-8", "", "Qaz\n"}, {"en_GB.UTF-8", "", english},
            {"de_AT.UTF-8", "", german}, {"C.UTF-8", "de:fr", german}, {"ru_RU.UTF-8", "ru:de", german}};
        for (const auto &[locale, languages, line] : rows) {
            const ScopedEnvironment all("LC_ALL", locale);
            const ScopedEnvironment preferred("LANGUAGE", languages);
            EditorProcess editor({languages.isEmpty() ? "--help"_s : "-h"_s, "further"_s});
            QCOMPARE(editor.exitCode(), 1);
            QCOMPARE(editor.process().readAllStandardOutput(), line);
        }
        const ScopedEnvironment preferred("LANGUAGE", "de");
        EditorProcess editor;
        QVERIFY2(editor.waitForWindow("Qaz-Designeditor - current.themerc"_s), qPrintable(editor.errors()));
    }

private:
    TemporaryHome m_home;
};

QTEST_GUILESS_MAIN(TestLanguages)
#include "tst_languages.moc"
