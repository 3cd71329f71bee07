#include "tests/tools/toolrun.h"

/// The program in each of its languages.
class TestLanguages : public QObject
{
    Q_OBJECT

private slots:
    void localeChoosesTheCatalogue() { replay("translations/languages.txt"_s); }
};

QTEST_GUILESS_MAIN(TestLanguages)
#include "tst_languages.moc"
