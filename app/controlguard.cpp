#include "app/controlguard.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QKeyEvent>

namespace {

bool isReturn(const QEvent *event)
{
    if (event->type() != QEvent::KeyPress)
        return false;
    const int key = static_cast<const QKeyEvent *>(event)->key();
    return key == Qt::Key_Return || key == Qt::Key_Enter;
}

} // namespace

ControlGuard::ControlGuard(QObject *parent)
    : QObject(parent)
{}

void ControlGuard::guard(QWidget *root)
{
    const QList<QWidget *> children = root->findChildren<QWidget *>();
    for (QWidget *child : children) {
        if (!qobject_cast<QAbstractSpinBox *>(child) && !qobject_cast<QComboBox *>(child))
            continue;
        child->installEventFilter(this);
        if (child->focusPolicy() == Qt::WheelFocus)
            child->setFocusPolicy(Qt::StrongFocus);
    }
}

bool ControlGuard::eventFilter(QObject *watched, QEvent *event)
{
    auto *spinBox = qobject_cast<QAbstractSpinBox *>(watched);
    if (spinBox && isReturn(event)) {
        // The box would announce its value as changed, even if it is as before.
        spinBox->interpretText();
    } else if (event->type() != QEvent::Wheel || static_cast<QWidget *>(watched)->hasFocus()) {
        return QObject::eventFilter(watched, event);
    }
    // Not accepted, so that whatever is around the widget still scrolls, or presses its default button.
    event->ignore();
    return true;
}
