#pragma once

#include "app/configdialog.h"
#include "platform/qazinit.h"
#include "platform/slidingstackedwidget.h"
#include "resources/registerresources.h"
#include "tests/support/temporaryhome.h"

/// What tests of the dialog start from: a home of their own, and the window in it.
class DialogTest : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        const TemporaryHome home;
        registerResources();
        qazInit("1", "title");
    }

    void init() { m_home = std::make_unique<TemporaryHome>(); }

    void cleanup()
    {
        m_dialog.reset();
        m_home.reset();
        QLocale::setDefault(QLocale::system());
        qDeleteAll(qApp->findChildren<QTranslator *>()); // which takes them out of use
    }

protected:
    /// Opens the window over the theme file "t" with \a content; a null array makes no file.
    void open(const QByteArray &content = {})
    {
        if (!content.isNull())
            m_home->write("t"_s, content);
        m_dialog.reset(); // of two windows, either may have the focus
        m_dialog = std::make_unique<ConfigDialog>(m_home->path("t"_s));
        m_list = find<QListWidget>("contentsWidget");
        m_stack = find<SlidingStackedWidget>("pagesWidget");
        m_dialog->show();
        QVERIFY(QTest::qWaitForWindowExposed(m_dialog.get()));
        m_dialog->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    }
    /// Shows each page in turn, and calls \a act with it.
    template<typename Action>
    void onEachPage(Action act)
    {
        for (int row = 0; row < m_list->count(); ++row) {
            m_list->setCurrentRow(row);
            act(m_stack->currentWidget());
        }
    }
    void showPage(const char *name)
    {
        m_list->setCurrentItem(m_list->findItems(QLatin1String(name), Qt::MatchExactly).value(0));
    }
    void editTheDelay(int minutes)
    {
        showPage("Screensaver");
        delay()->setValue(minutes);
    }
    void verifyEdited(bool isEdited)
    {
        QCOMPARE(m_dialog->isWindowModified(), isEdited);
        QCOMPARE(button(QDialogButtonBox::Ok)->isEnabled(), isEdited);
        QCOMPARE(button(QDialogButtonBox::Apply)->isEnabled(), isEdited);
    }
    QPushButton *button(QDialogButtonBox::StandardButton which)
    {
        return m_dialog->buttonBox()->button(which);
    }
    template<typename Widget>
    Widget *find(const char *name = nullptr)
    {
        return m_dialog->findChild<Widget *>(QLatin1String(name));
    }
    QSpinBox *delay() { return find<QSpinBox>("minutesToStartSpinBox"); }

    std::unique_ptr<TemporaryHome> m_home;
    std::unique_ptr<ConfigDialog> m_dialog;
    QListWidget *m_list = nullptr;
    SlidingStackedWidget *m_stack = nullptr;
};
