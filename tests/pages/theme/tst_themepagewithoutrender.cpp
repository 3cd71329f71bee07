#include "pages/theme/themepage.h"
#include "platform/qazsettings.h"

#include <QComboBox>
#include <QTest>

#include "tests/support/samplethemes.h"
#include "tests/support/temporaryhome.h"

/// Runs on an X server without the RENDER extension, and with a resolution of 118 dpi.
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
    QazSettings settings(home.path(QStringLiteral("test.themerc")));
    page.loadValues(&settings);
    const auto *cursors = page.findChild<QComboBox *>(QStringLiteral("cursorThemeCombo"));
    QVERIFY(cursors->count() == 0 && !cursors->isEnabled());
    QCOMPARE(page.findChild<QComboBox *>(QStringLiteral("sizeComboBox"))->itemText(0),
             QStringLiteral("64,   Desktop icon size"));
    page.saveValues(&settings);
    QVERIFY(!home.exists(QStringLiteral(".Xresources")));
}

QTEST_MAIN(TestThemePageWithoutRender)
#include "tst_themepagewithoutrender.moc"
