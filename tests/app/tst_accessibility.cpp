#include "platform/qazinit.h"
#include "resources/registerresources.h"
#include "tests/app/controls.h"
#include "tests/support/temporaryhome.h"

#include <QAccessible>
#include <QtTest>

class TestAccessibility : public QObject
{
    Q_OBJECT

private slots:
    void initTestCase();
    void cleanupTestCase();
    void everyControlHasAName();
    void everyLabelHasABuddy();
    void tabReachesEveryControlInReadingOrder();

private:
    std::unique_ptr<TemporaryHome> m_home;
    std::unique_ptr<ConfigDialog> m_dialog;
};

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
    static const QSet<QAccessible::Role> wholes{QAccessible::SpinBox, QAccessible::ComboBox,
                                                QAccessible::List,    QAccessible::Tree,
                                                QAccessible::Table,   QAccessible::EditableText};
    if (interface->state().focusable && interface->isValid())
        found->append(interface);
    if (wholes.contains(interface->role()))
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

void TestAccessibility::initTestCase()
{
    m_home = std::make_unique<TemporaryHome>();
    registerResources();
    qazInit("1", "title");
    m_dialog = std::make_unique<ConfigDialog>(m_home->path(QStringLiteral("a.themerc")));
    m_dialog->show();
    m_dialog->activateWindow();
    QVERIFY(QTest::qWaitForWindowActive(m_dialog.get()));
}

void TestAccessibility::cleanupTestCase()
{
    m_dialog.reset();
    m_home.reset();
}

void TestAccessibility::everyControlHasAName()
{
    QStringList nameless;
    int named = 0;
    const auto check = [&](QWidget *view) {
        QList<QAccessibleInterface *> found;
        collectFocusable(QAccessible::queryAccessibleInterface(view), &found);
        for (QAccessibleInterface *interface : qAsConst(found)) {
            const bool isNamed = hasName(interface);
            named += isNamed;
            if (!isNamed)
                nameless.append(described(qobject_cast<QWidget *>(interface->object())));
        }
    };
    visitViews(m_dialog.get(), [&check](const View &view) { check(view.widget->window()); });
    nameless.removeDuplicates();
    QVERIFY2(nameless.isEmpty(), qPrintable(nameless.join(QLatin1String(", "))));
    QVERIFY2(named > 100, qPrintable(QString::number(named))); // the walk really met the pages
}

void TestAccessibility::everyLabelHasABuddy()
{
    QStringList lonely;
    visitViews(m_dialog.get(), [&lonely](const View &view) {
        const QList<QLabel *> labels = view.widget->findChildren<QLabel *>();
        for (const QLabel *label : labels) {
            // A font's preview shows it, and names nothing.
            const bool names = !label->text().isEmpty()
                               && label->objectName() != QLatin1String("previewLabel");
            if (names && !label->buddy())
                lonely.append(described(label));
        }
    });
    QVERIFY2(lonely.isEmpty(), qPrintable(lonely.join(QLatin1String(", "))));
}

void TestAccessibility::tabReachesEveryControlInReadingOrder()
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

QTEST_MAIN(TestAccessibility)
#include "tst_accessibility.moc"
