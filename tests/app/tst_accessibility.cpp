#include "platform/qazinit.h"
#include "resources/registerresources.h"
#include "tests/app/controls.h"
#include "tests/support/temporaryhome.h"

#include <QAccessible>
#include <QGroupBox>
#include <QtTest>

namespace {

/// The controls of \a view that a user can step to by Tab.
QWidgetList controls(const QWidget *view)
{
    QWidgetList found;
    const QList<QWidget *> children = view->findChildren<QWidget *>();
    for (QWidget *child : children) {
        const bool takesTab = (child->focusPolicy() & Qt::TabFocus) == Qt::TabFocus && !child->focusProxy();
        if (takesTab && child->isVisible() && child->window() == view->window())
            found.append(child);
    }
    return found;
}

/// The focusable interfaces below \a interface; what a control is made of belongs to the control.
void collectFocusable(QAccessibleInterface *interface, QList<QAccessibleInterface *> *found)
{
    constexpr QAccessible::Role wholes[] = {QAccessible::SpinBox, QAccessible::ComboBox,
                                            QAccessible::List,    QAccessible::Tree,
                                            QAccessible::Table,   QAccessible::EditableText};
    if (interface->state().focusable && interface->isValid())
        found->append(interface);
    if (std::count(std::cbegin(wholes), std::cend(wholes), interface->role()) > 0)
        return;
    for (int i = 0; i < interface->childCount(); ++i) {
        if (QAccessibleInterface *child = interface->child(i))
            collectFocusable(child, found);
    }
}

bool hasName(QAccessibleInterface *interface)
{
    const QString name = interface->text(QAccessible::Name).trimmed();
    const auto *widget = qobject_cast<QWidget *>(interface->object());
    if (!widget)
        return !name.isEmpty(); // a tab
    // The name of a combo box is what it shows: it needs a label.
    if (interface->role() == QAccessible::ComboBox)
        return !widget->accessibleName().isEmpty() || !interface->relations(QAccessible::Label).isEmpty();
    // Qt lends a control the title of its group, which tells it from no other one there.
    const auto *group = qobject_cast<QGroupBox *>(widget->parent());
    return !name.isEmpty() && !(group && name == group->title());
}

/// The outermost widgets around \a a and \a b, or themselves, that do not hold both.
std::pair<const QWidget *, const QWidget *> siblings(const QWidget *a, const QWidget *b)
{
    const QWidget *common = a;
    while (common != b && !common->isAncestorOf(b))
        common = common->parentWidget();
    if (common == a || common == b)
        return {a, b};
    while (a->parentWidget() != common)
        a = a->parentWidget();
    while (b->parentWidget() != common)
        b = b->parentWidget();
    return {a, b};
}

/// True when \a second is read after \a first: below it, in the same row to its right, or inside.
bool isReadAfter(const QWidget *first, const QWidget *second)
{
    const auto [a, b] = siblings(first, second);
    if (a == first && first->isAncestorOf(second))
        return true;
    const QRect ra(a->mapToGlobal(QPoint()), a->size());
    const QRect rb(b->mapToGlobal(QPoint()), b->size());
    const bool inOneRow = qMin(ra.bottom(), rb.bottom()) - qMax(ra.top(), rb.top()) > 0;
    return inOneRow ? ra.left() < rb.left() : ra.top() < rb.top();
}

} // namespace

class TestAccessibility : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase()
    {
        registerResources();
        qazInit("1", "title");
        m_dialog = std::make_unique<ConfigDialog>(m_home.path(QStringLiteral("a.themerc")));
        m_dialog->show();
        m_dialog->activateWindow();
        QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
    }

    void everyControlHasANameAndEveryLabelABuddy()
    {
        QStringList faulty;
        int named = 0;
        visitViews(m_dialog.get(), [&](const View &view) {
            QList<QAccessibleInterface *> found;
            collectFocusable(QAccessible::queryAccessibleInterface(view.widget->window()), &found);
            for (QAccessibleInterface *interface : qAsConst(found)) {
                const bool isNamed = hasName(interface);
                named += isNamed;
                if (!isNamed)
                    faulty.append(described(qobject_cast<QWidget *>(interface->object())));
            }
            const QList<QLabel *> labels = view.widget->findChildren<QLabel *>();
            for (const QLabel *label : labels) {
                if (isTextLabel(label) && !label->buddy())
                    faulty.append(described(label));
            }
        });
        faulty.removeDuplicates();
        QVERIFY2(faulty.isEmpty(), qPrintable(faulty.join(QLatin1String(", "))));
        QVERIFY2(named > 100, qPrintable(QString::number(named))); // the walk really met the pages
    }

    void tabReachesEveryControlInReadingOrder()
    {
        visitViews(m_dialog.get(), [](const View &view) {
            const QWidgetList all = controls(view.widget);
            QVERIFY2(!all.isEmpty(), qPrintable(view.name));
            for (QWidget *control : all)
                control->setEnabled(true); // also what another setting switches off
            QWidget *window = view.widget->window();
            window->activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(window));

            QWidget *focus = *std::min_element(all.cbegin(), all.cend(), isReadAfter);
            focus->setFocus();
            QWidgetList missed = all;
            QStringList steps{view.name};
            for (int i = 0; i < all.size(); ++i) {
                QWidget *before = focus;
                focus = window->focusWidget();
                steps.append(described(focus));
                QVERIFY2(missed.removeOne(focus), qPrintable(steps.join(QLatin1String(" -> "))));
                QVERIFY2(i == 0 || isReadAfter(before, focus), qPrintable(steps.join(QLatin1String(" -> "))));
                QTest::keyClick(focus, Qt::Key_Tab);
            }
        });
    }

private:
    TemporaryHome m_home;
    std::unique_ptr<ConfigDialog> m_dialog;
};

QTEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
