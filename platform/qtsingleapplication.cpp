#include "platform/qtsingleapplication.h"

#include "base/diagnostics.h"
#include "base/xdgdirectories.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QSocketNotifier>
#include <QThread>

#include <cerrno>

#include <fcntl.h>
#include <poll.h>
#include <sys/file.h>
#include <sys/socket.h>
#include <sys/stat.h>
#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr char acknowledgement[] = "ack";

/// The directory of sockets and locks, which is the user's alone. Not open when there is none.
int openDirectory()
{
    const QString directory = privateDirectory();
    const QString runtime = QFile::decodeName(qgetenv("XDG_RUNTIME_DIR"));
    if (!runtime.isEmpty() && !directory.isEmpty() && directory != runtime)
        printDiagnostic(QStringLiteral("%1 is not the user's alone; using %2").arg(runtime, directory));
    return ::open(QFile::encodeName(directory).constData(), O_PATH | O_DIRECTORY | O_NOFOLLOW | O_CLOEXEC);
}

QByteArray socketName(const QString &id)
{
    const QByteArray digest
        = QCryptographicHash::hash(id.toUtf8(), QCryptographicHash::Sha1).toHex().left(12);
    return "qtsingleapp-" + digest + '-' + QByteArray::number(::getuid());
}

/// Calls ::bind or ::connect with a path that fits into an address however long the directory's own is.
template<typename Call>
bool reach(Call call, const Descriptor &socket, const Descriptor &directory, const QByteArray &name)
{
    const QByteArray path = "/proc/self/fd/" + QByteArray::number(directory.get()) + '/' + name;
    sockaddr_un address = {};
    address.sun_family = AF_UNIX;
    qstrncpy(address.sun_path, path.constData(), sizeof address.sun_path);
    return call(socket.get(), reinterpret_cast<const sockaddr *>(&address), sizeof address) == 0;
}

int openSocket()
{
    return ::socket(AF_UNIX, SOCK_STREAM | SOCK_CLOEXEC | SOCK_NONBLOCK, 0);
}

/// False when the other side has gone.
bool receive(const Descriptor &socket, QByteArray *received)
{
    char piece[4096];
    const ssize_t size = ::recv(socket.get(), piece, sizeof piece, 0);
    received->append(piece, int(qMax<ssize_t>(size, 0)));
    return size > 0 || (size < 0 && errno == EAGAIN);
}

/// Takes what stands at \a name out of the way; a directory, which may hold something, is renamed.
bool clearAway(int directory, const QByteArray &name)
{
    return ::unlinkat(directory, name.constData(), 0) == 0
           || ::renameat(directory, name.constData(), directory,
                         (name + ".old-" + QByteArray::number(::getpid())).constData())
                  == 0;
}

} // namespace

QtSingleApplication::QtSingleApplication(int &argc, char **argv, bool /*guiEnabled*/)
    : QtSingleApplication(QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))).fileName(), argc,
                          argv)
{}

QtSingleApplication::QtSingleApplication(const QString &id, int &argc, char **argv)
    : QApplication(argc, argv)
    , m_id(id)
    , m_name(socketName(id))
    , m_directory(openDirectory())
{}

QtSingleApplication::~QtSingleApplication()
{
    // Before the lock ends: afterwards the name is the next owner's.
    if (m_socket)
        ::unlinkat(m_directory.get(), m_name.constData(), 0);
}

bool QtSingleApplication::isRunning()
{
    const QByteArray name = m_name + ".lock";
    // Without a place for a lock there is no other instance to be found, either.
    while (!m_lock && m_directory.isOpen()) {
        struct stat opened = {};
        auto file = std::make_unique<Descriptor>(
            ::openat(m_directory.get(), name.constData(),
                     O_RDWR | O_CREAT | O_NOFOLLOW | O_NONBLOCK | O_CLOEXEC, 0600));
        ::fstat(file->get(), &opened);
        if (S_ISREG(opened.st_mode)) {
            ::fchmod(file->get(), 0600);
            if (::flock(file->get(), LOCK_EX | LOCK_NB) != 0)
                return true;
            m_lock = std::move(file);
            listen();
        } else if (!clearAway(m_directory.get(), name)) {
            break;
        }
    }
    return false;
}

void QtSingleApplication::listen()
{
    // What stands there belongs to a dead owner: the lock is ours.
    clearAway(m_directory.get(), m_name);
    m_socket = std::make_unique<Descriptor>(openSocket());
    ::fchmod(m_socket->get(), 0600);
    if (!reach(::bind, *m_socket, m_directory, m_name) || ::listen(m_socket->get(), SOMAXCONN) != 0)
        return;
    const auto *arrival = new QSocketNotifier(m_socket->get(), QSocketNotifier::Read, this);
    connect(arrival, &QSocketNotifier::activated, this, &QtSingleApplication::acceptConnection);
}

void QtSingleApplication::acceptConnection()
{
    const auto sender = std::make_shared<Descriptor>(
        ::accept4(m_socket->get(), nullptr, nullptr, SOCK_CLOEXEC | SOCK_NONBLOCK));
    if (!sender->isOpen())
        return;
    auto *arrival = new QSocketNotifier(sender->get(), QSocketNotifier::Read, this);
    connect(arrival, &QSocketNotifier::activated, this, [=, received = QByteArray()]() mutable {
        if (!receive(*sender, &received)) {
            arrival->setEnabled(false);
            return arrival->deleteLater();
        }
        QDataStream stream(received);
        QByteArray message;
        stream >> message;
        if (stream.status() != QDataStream::Ok)
            return; // what has not arrived yet comes later
        received.clear();
        ::send(sender->get(), acknowledgement, qstrlen(acknowledgement), MSG_NOSIGNAL);
        emit messageReceived(QString::fromUtf8(message));
    });
}

bool QtSingleApplication::sendMessage(const QString &message, int timeout)
{
    if (!isRunning())
        return false;
    const QDeadlineTimer deadline(timeout);
    const Descriptor socket(openSocket());
    // The owner takes its lock a moment before it listens.
    while (!reach(::connect, socket, m_directory, m_name)) {
        if (deadline.hasExpired())
            return false;
        QThread::msleep(20);
    }
    const auto isReady = [&](short event) {
        pollfd wanted = {socket.get(), event, 0};
        return ::poll(&wanted, 1, int(deadline.remainingTime())) == 1;
    };
    QByteArray unsent;
    QDataStream stream(&unsent, QIODevice::WriteOnly);
    stream << message.toUtf8();
    while (!unsent.isEmpty() && isReady(POLLOUT)) {
        const ssize_t size = ::send(socket.get(), unsent.constData(), size_t(unsent.size()), MSG_NOSIGNAL);
        if (size < 0)
            return false;
        unsent.remove(0, int(size));
    }
    QByteArray answer;
    while (answer != acknowledgement && isReady(POLLIN) && receive(socket, &answer)) {}
    return answer == acknowledgement;
}

void QtSingleApplication::setActivationWindow(QWidget *window, bool activateOnMessage)
{
    m_activationWindow = window;
    disconnect(this, &QtSingleApplication::messageReceived, this, &QtSingleApplication::activateWindow);
    if (activateOnMessage)
        connect(this, &QtSingleApplication::messageReceived, this, &QtSingleApplication::activateWindow);
}

void QtSingleApplication::activateWindow()
{
    if (!m_activationWindow)
        return;
    m_activationWindow->setWindowState(m_activationWindow->windowState() & ~Qt::WindowMinimized);
    m_activationWindow->raise();
    m_activationWindow->activateWindow();
}
