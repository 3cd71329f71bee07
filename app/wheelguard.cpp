#include "app/wheelguard.h"

#include <QAbstractSpinBox>
#include <QComboBox>
#include <QEvent>

WheelGuard::WheelGuard(QObject *parent)
    : QObject(parent)
{}

void WheelGuard::guard(QWidget *root)
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

bool WheelGuard::eventFilter(QObject *watched, QEvent *event)
{
    if (event->type() != QEvent::Wheel || static_cast<QWidget *>(watched)->hasFocus())
        return QObject::eventFilter(watched, event);
    // Not accepted, so that whatever scrolls around the widget still can.
    event->ignore();
    return true;
}
