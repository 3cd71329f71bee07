#pragma once

#include <QColor>
#include <QPoint>
#include <QString>

#include <functional>
#include <optional>

class QMimeData;
class QWidget;

/// The colour that \a data carries: colour data, or the text `#rrggbb`. Invalid for anything else.
QColor colorOf(const QMimeData *data);

/// The first existing regular file of this machine among what was dropped or pasted whose name ends in one of
/// \a endings ("png"), in upper or lower case; empty when there is none.
QString droppedFile(const QMimeData *data, const QStringList &endings);

/// The local path that a text like "file:///a%20b" names, of several lines the first; empty for another text.
QString localPath(const QString &text);

/// What to do with data that is dropped at a position of a widget: a null function when it doesn't fit. Data that is
/// pasted, or may be dropped somewhere, has no position.
using TakeData = std::function<std::function<void()>(const QMimeData *data, std::optional<QPoint> position)>;

/// Lets \a target take what is dropped on it or on those of its children that take drops themselves, or pasted while one
/// of them has the focus. What doesn't fit is left to the widget when it is pasted; it can't be dropped.
void takeDrops(QWidget *target, const TakeData &take);

/// The same for colours alone.
void takeColors(QWidget *target, const std::function<void(const QColor &)> &take);
