#include "pages/theme/themepage.h"
#include "platform/qazsettings.h"

#include <QComboBox>
#include <QTest>

#include "tests/support/samplethemes.h"
#include "tests/support/temporaryhome.h"

/// Runs on an X server without the RENDER extension.
class TestThemePageWithoutRender : public QObject
{
    Q_OBJECT
private slots:
    void offersNoCursors();
};

void TestThemePageWithoutRender::offersNoCursors()
{
    const TemporaryHome home;
    makeCursorTheme(home, QStringLiteral(".icons/Red"), Qt::red);
    ThemePage page;
    {
        QazSettings settings(home.path(QStringLiteral("test.themerc")));
        settings.sync(true);
        page.loadValues(&settings);
        const auto *combo = page.findChild<QComboBox *>(QStringLiteral("cursorThemeCombo"));
        QCOMPARE(combo->count(), 0);
        QVERIFY(!combo->isEnabled());
        page.saveValues(&settings);
    }
    QVERIFY(!home.exists(QStringLiteral(".Xresources")));
    QVERIFY(!home.exists(QStringLiteral("test.themerc")));
}

QTEST_MAIN(TestThemePageWithoutRender)
#include "tst_themepagewithoutrender.moc"
