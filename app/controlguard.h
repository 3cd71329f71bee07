#pragma once

#include <QObject>

class QWidget;

/// Keeps spin boxes and combo boxes from changing when the user meant something else: to scroll past them with the
/// wheel, or to close the window by Return.
class ControlGuard : public QObject
{
    Q_OBJECT
public:
    explicit ControlGuard(QObject *parent = nullptr);

    /// Guards the spin boxes and combo boxes below \a root, which exist already.
    void guard(QWidget *root);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
