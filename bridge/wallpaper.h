#pragma once

#include "bridge/session.h"
#include "settings/wallpapertexts.h"

#include <QObject>
#include <QStringList>
#include <QTimer>
#include <QVector>

class QColor;

/// Keeps the root window's picture: of the desktop in view, or the one of all, which may be a slide show.
class Wallpaper : public QObject
{
    Q_OBJECT
public:
    explicit Wallpaper(const Session &session);

    /// Shows what the values say now, also when nothing has changed: somebody else may have drawn over it.
    void apply();
    /// Shows what belongs to the virtual desktop in view, if that is another picture than before.
    void show();

private:
    void showNext();
    void setUpSlides();
    QString found(const QString &wallpaper) const;
    QVector<QStringList> commandsFor(const QString &wallpaper, Fit fit) const;
    QVector<QStringList> colorCommands(const QColor &color) const;

    Session m_session;
    QTimer m_slideTimer{this};
    QString m_wallpaper; // that the slides began with
    int m_minutes = 0;   // from one to the next
    QString m_slide;     // the file that is shown instead of m_wallpaper
    QVector<QStringList> m_shown;
};
