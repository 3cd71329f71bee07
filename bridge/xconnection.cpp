#include "bridge/xconnection.h"

#include "freedesktop/windowproperty.h"

#include <QAbstractEventDispatcher>
#include <QDeadlineTimer>
#include <QSocketNotifier>

#include <algorithm>

#include <X11/Xlib.h>
#include <X11/extensions/Xfixes.h>
#include <poll.h>

XConnection::XConnection()
    : m_display(XOpenDisplay(nullptr))
{
    if (!m_display)
        return;
    // Windows come and go between an event and the answer to it.
    XSetErrorHandler([](Display *, XErrorEvent *) { return Success; });
    XSetIOErrorHandler([](Display *) { return Success; });
    // The default ends the process on the spot, without its children.
    XSetIOErrorExitHandler(
        m_display, [](Display *, void *data) { emit static_cast<XConnection *>(data)->serverLost(); }, this);
    // Whoever sees the selection taken may send at once.
    XSelectInput(m_display, rootWindow(), SubstructureNotifyMask | PropertyChangeMask);
    int firstError{};
    XFixesQueryExtension(m_display, &m_selectionEvent, &firstError); // of its events the first is the one
}

XConnection::~XConnection()
{
    if (m_display)
        XCloseDisplay(m_display);
}

int XConnection::screenNumber() const
{
    return DefaultScreen(m_display);
}

QSize XConnection::screenSize() const
{
    return {DisplayWidth(m_display, screenNumber()), DisplayHeight(m_display, screenNumber())};
}

XConnection::Window XConnection::rootWindow() const
{
    return DefaultRootWindow(m_display);
}

void XConnection::listen(const std::function<void(const XEvent &)> &handler)
{
    m_handler = handler;
    auto *notifier = new QSocketNotifier(ConnectionNumber(m_display), QSocketNotifier::Read, this);
    connect(notifier, &QSocketNotifier::activated, this, &XConnection::readEvents);
    // An answer that was waited for may have brought events with it, of which the socket tells nothing more. Not before
    // there is an event loop: what comes first may be the reason to leave it.
    connect(QAbstractEventDispatcher::instance(), &QAbstractEventDispatcher::aboutToBlock, this,
            &XConnection::readEvents);
}

void XConnection::readEvents()
{
    while (XPending(m_display) > 0) {
        XEvent event;
        XNextEvent(m_display, &event);
        if (event.type == m_selectionEvent)
            emit selectionChanged();
        else if (event.type == SelectionClear)
            emit selectionLost();
        else
            m_handler(event);
    }
}

unsigned long XConnection::atom(const char *name) const
{
    return XInternAtom(m_display, name, False);
}

unsigned long XConnection::selectionAtom(const char *name) const
{
    return atom((name + QByteArray::number(screenNumber())).constData());
}

bool XConnection::isOwned(const char *name) const
{
    return XGetSelectionOwner(m_display, selectionAtom(name)) != None;
}

void XConnection::watchSelection(const char *name)
{
    XFixesSelectSelectionInput(m_display, rootWindow(), selectionAtom(name),
                               XFixesSetSelectionOwnerNotifyMask | XFixesSelectionWindowDestroyNotifyMask
                                   | XFixesSelectionClientCloseNotifyMask);
}

bool XConnection::claimSelection(const char *name, bool replace)
{
    const Atom selection = selectionAtom(name);
    const Window own = XCreateWindow(m_display, rootWindow(), -1, -1, 1, 1, 0, 0, InputOnly, CopyFromParent,
                                     0, nullptr);
    // Only with a time of the server's is a later owner told from an earlier one.
    XSelectInput(m_display, own, PropertyChangeMask);
    XStoreName(m_display, own, "qaz-wm-bridge");
    XEvent stamp;
    XWindowEvent(m_display, own, PropertyChangeMask, &stamp);

    XGrabServer(m_display); // of several that start at once, one becomes the owner
    const Window before = XGetSelectionOwner(m_display, selection);
    if (before)
        XSelectInput(m_display, before, StructureNotifyMask);
    const bool isMine = (!before || replace);
    if (isMine)
        XSetSelectionOwner(m_display, selection, own, stamp.xproperty.time);
    XUngrabServer(m_display);
    if (!isMine || (before && !waitForOldOwner(before)))
        return false;

    XEvent announcement = {};
    announcement.xclient.type = ClientMessage;
    announcement.xclient.window = rootWindow();
    announcement.xclient.message_type = atom("MANAGER");
    announcement.xclient.format = 32;
    announcement.xclient.data.l[0] = long(stamp.xproperty.time);
    announcement.xclient.data.l[1] = long(selection);
    announcement.xclient.data.l[2] = long(own);
    XSendEvent(m_display, rootWindow(), False, StructureNotifyMask, &announcement);
    return XGetSelectionOwner(m_display, selection) == own;
}

bool XConnection::waitForOldOwner(Window window) const
{
    const QDeadlineTimer deadline(15000);
    pollfd server = {ConnectionNumber(m_display), POLLIN, {}};
    XEvent event;
    while (!XCheckTypedWindowEvent(m_display, window, DestroyNotify, &event)) {
        if (deadline.hasExpired())
            return false;
        poll(&server, 1, int(deadline.remainingTime()));
    }
    return true;
}

QVector<unsigned long> XConnection::numbers(Window window, const char *name) const
{
    const QByteArray bytes = windowProperty(m_display, window, atom(name), 32).bytes;
    QVector<unsigned long> items(bytes.size() / int(sizeof(long)));
    std::copy(bytes.begin(), bytes.end(), reinterpret_cast<char *>(items.begin()));
    return items;
}

QByteArray XConnection::text(Window window, const char *name) const
{
    return windowProperty(m_display, window, atom(name), 8).bytes;
}

QByteArray XConnection::windowManager() const
{
    const QVector<unsigned long> window = numbers(rootWindow(), "_NET_SUPPORTING_WM_CHECK");
    return window.isEmpty() ? QByteArray() : text(window.first(), "_NET_WM_NAME");
}

int XConnection::currentDesktop() const
{
    return int(qMin(numbers(rootWindow(), "_NET_CURRENT_DESKTOP").value(0), 0xFFFFUL));
}
