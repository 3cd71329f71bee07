#pragma once

#include <QByteArray>
#include <QObject>
#include <QSize>
#include <QVector>

#include <functional>

struct _XDisplay;
union _XEvent;

/// The X connection of a program without windows: its events come through Qt's event loop.
class XConnection : public QObject
{
    Q_OBJECT
public:
    using Window = unsigned long;

    /// Opens the display of the environment.
    XConnection();
    ~XConnection() override;

    bool isOpen() const { return m_display; }
    _XDisplay *display() const { return m_display; }
    int screenNumber() const;
    QSize screenSize() const;
    Window rootWindow() const;

    /// From the event loop, hands every event to \a handler, those first that have come since the connection was opened.
    void listen(const std::function<void(const _XEvent &)> &handler);

    /// Whether anybody owns the selection that is called \a name with the screen's number at its end.
    bool isOwned(const char *name) const;
    /// Has selectionChanged() emitted when another client takes or leaves that selection.
    void watchSelection(const char *name);
    /// Becomes the owner of that selection, as a manager does (ICCCM 2.8). With \a replace the owner before is asked to
    /// go and waited for. False when there is one, or it does not go.
    bool claimSelection(const char *name, bool replace);

    /// The numbers (atoms, windows) in a window's property; none when it is missing or the window is gone.
    QVector<unsigned long> numbers(Window window, const char *property) const;
    /// The text in a window's property.
    QByteArray text(Window window, const char *property) const;
    unsigned long atom(const char *name) const;

    /// The name of the running EWMH window manager; empty without one.
    QByteArray windowManager() const;
    /// The virtual desktop in view, counted from 0.
    int currentDesktop() const;

signals:
    void selectionChanged();
    void selectionLost(); ///< the one that was claimed
    void serverLost();

private:
    void readEvents();
    unsigned long selectionAtom(const char *name) const;
    bool waitForOldOwner(Window window) const;

    _XDisplay *m_display;
    int m_selectionEvent = -1; // of XFixes
    std::function<void(const _XEvent &)> m_handler;
};
