#pragma once

#include <QObject>

/// Keeps the wheel from editing by accident: spin boxes and combo boxes that don't have the focus neither
/// take a wheel turn nor get the focus by one.
class WheelGuard : public QObject
{
    Q_OBJECT
public:
    explicit WheelGuard(QObject *parent = nullptr);

    /// Guards every spin box and combo box below \a root.
    void guard(QWidget *root);

protected:
    bool eventFilter(QObject *watched, QEvent *event) override;
};
