#pragma once

#include <QObject>
#include <QPoint>
#include <QString>

#include <functional>

class QMimeData;
class QWidget;

/// The first existing regular file of this machine among what was dropped or pasted whose name ends in one of
/// \a endings ("png"), in upper or lower case; empty when there is none.
QString droppedFile(const QMimeData *data, const QStringList &endings);

/// The local path that a text like "file:///a%20b" names, of several lines the first; empty for another text.
QString localPath(const QString &text);

/// Lets a widget take what is dropped on it, or pasted while it has the focus. What doesn't fit is left to the widget
/// when it is pasted; it can't be dropped.
class DropFilter : public QObject
{
    Q_OBJECT
public:
    /// What to do with data that is dropped at a position of the target: a null function when it doesn't fit. The position
    /// is negative for data that is pasted, or may be dropped somewhere.
    using Taking = std::function<std::function<void()>(const QMimeData *data, const QPoint &position)>;

    /// Belongs to \a target, and filters the children of it that take drops themselves, too.
    DropFilter(QWidget *target, const Taking &taking);

protected:
    bool eventFilter(QObject *object, QEvent *event) override;

private:
    Taking m_taking;
};
