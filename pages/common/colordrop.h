#pragma once

#include <QColor>
#include <QObject>

class QMimeData;
class QWidget;

/// The colour that \a data carries: colour data, or the text `#rrggbb`. Invalid for anything else.
QColor colorOf(const QMimeData *data);

/// Lets a colour be dropped on a widget, or pasted while the widget has the focus. What is no colour isn't accepted.
class ColorDrop : public QObject
{
    Q_OBJECT
public:
    /// Watches \a target, which owns this object.
    explicit ColorDrop(QWidget *target);

signals:
    void dropped(const QColor &color);
};
