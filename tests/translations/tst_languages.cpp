#include "tests/tools/toolrun.h"

/// The program in each of its languages.
class TestLanguages : public QObject
{
    Q_OBJECT

private slots:
    void localeChoosesTheCatalogue()
    {
        replay("translations/languages.txt"_s);
        const TemporaryHome home;
        const ScopedEnvironment preferred("LANGUAGE", "de");
        EditorProcess editor;
        QVERIFY2(editor.waitForWindow("Qaz-Designeditor - current.themerc"_s), qPrintable(editor.errors()));
    }
};

QTEST_GUILESS_MAIN(TestLanguages)
#include "tst_languages.moc"
