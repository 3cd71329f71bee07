#include "app/configdialog.h"
#include "platform/qazinit.h"
#include "resources/registerresources.h"
#include "tests/support/fakeprogram.h"
#include "tests/support/temporaryhome.h"

#include <QDialogButtonBox>
#include <QListWidget>
#include <QPushButton>
#include <QSpinBox>
#include <QtTest>

#include <malloc.h>
#if defined(__SANITIZE_ADDRESS__)
extern "C" std::size_t __sanitizer_get_current_allocated_bytes(); // GCC ships no header for it
#endif

namespace {

/// Bytes that this process has allocated and not freed.
qint64 bytesInUse()
{
#if defined(__SANITIZE_ADDRESS__)
    return qint64(__sanitizer_get_current_allocated_bytes());
#else
    const struct mallinfo2 info = ::mallinfo2();
    return qint64(info.uordblks + info.hblkhd);
#endif
}

} // namespace

/// Hours of use in one run: memory stays as it is.
class TestLongRun : public QObject
{
    Q_OBJECT
public:
    using Act = void (TestLongRun::*)();

private slots:
    void initTestCase();
    void memoryStaysFlat_data();
    void memoryStaysFlat();

private:
    void switchPage();
    void apply();

    TemporaryHome m_home;
    FakePrograms m_programs;
    std::unique_ptr<ConfigDialog> m_dialog;
    QListWidget *m_list = nullptr;
    int m_minutes = 10;
};
Q_DECLARE_METATYPE(TestLongRun::Act)

void TestLongRun::initTestCase()
{
    m_programs.add(QStringLiteral("xrdb"));
    registerResources();
    qazInit("1", "title");
    m_dialog = std::make_unique<ConfigDialog>(m_home.path(QStringLiteral("current.themerc")));
    m_dialog->show();
    QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
    m_list = m_dialog->findChild<QListWidget *>(QStringLiteral("contentsWidget"));
}

void TestLongRun::switchPage()
{
    m_list->setCurrentRow((m_list->currentRow() + 1) % m_list->count());
    QCoreApplication::processEvents();
}

void TestLongRun::apply()
{
    m_minutes = m_minutes == 10 ? 20 : 10;
    m_dialog->findChild<QSpinBox *>(QStringLiteral("minutesToStartSpinBox"))->setValue(m_minutes);
    m_dialog->buttonBox()->button(QDialogButtonBox::Apply)->click();
    QCoreApplication::processEvents();
}

void TestLongRun::memoryStaysFlat_data()
{
    QTest::addColumn<Act>("act");
    QTest::addColumn<int>("count");
    QTest::addColumn<int>("allowedBytes"); // caches grow a little; a leak of 100 bytes each time would show
    QTest::newRow("page switches") << Act(&TestLongRun::switchPage) << 1000 << 100 * 1000;
    QTest::newRow("applies") << Act(&TestLongRun::apply) << 200 << 100 * 200;
}

void TestLongRun::memoryStaysFlat()
{
    QFETCH(Act, act);
    QFETCH(int, count);
    QFETCH(int, allowedBytes);
    for (int i = 0; i < count / 10; ++i)
        (this->*act)();
    const qint64 before = bytesInUse();
    for (int i = 0; i < count; ++i)
        (this->*act)();
    const qint64 growth = bytesInUse() - before;
    QVERIFY2(growth < allowedBytes, qPrintable(QStringLiteral("grew by %1 bytes").arg(growth)));
}

QTEST_MAIN(TestLongRun)
#include "tst_longrun.moc"
