#include "platform/qtsingleapplication.h"

#include "base/diagnostics.h"
#include "base/xdgdirectories.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QDeadlineTimer>
#include <QFile>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QThread>

#include <fcntl.h>
#include <sys/file.h>
#include <sys/stat.h>
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

/// A path that fits into a socket's address however long the directory's own is.
QString socketPath(const Descriptor &directory, const QByteArray &name)
{
    return QStringLiteral("/proc/self/fd/%1/%2").arg(directory.get()).arg(QLatin1String(name));
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

QtSingleApplication::~QtSingleApplication() = default;

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
    m_server = std::make_unique<QLocalServer>(this);
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    connect(m_server.get(), &QLocalServer::newConnection, this, &QtSingleApplication::acceptConnection);
    m_server->listen(socketPath(m_directory, m_name));
}

void QtSingleApplication::acceptConnection()
{
    while (QLocalSocket *socket = m_server->nextPendingConnection()) {
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { readMessage(socket); });
        connect(socket, &QLocalSocket::disconnected, socket, &QLocalSocket::deleteLater);
    }
}

void QtSingleApplication::readMessage(QLocalSocket *socket)
{
    QDataStream stream(socket);
    stream.startTransaction();
    QByteArray message;
    stream >> message;
    // What has not arrived yet comes with a later readyRead().
    if (!stream.commitTransaction())
        return;
    socket->write(acknowledgement);
    socket->flush();
    emit messageReceived(QString::fromUtf8(message));
}

bool QtSingleApplication::sendMessage(const QString &message, int timeout)
{
    if (!isRunning())
        return false;
    const QDeadlineTimer deadline(timeout);
    const auto left = [&deadline] { return int(deadline.remainingTime()); };
    QLocalSocket socket;
    // The owner takes its lock a moment before it listens.
    const QString path = socketPath(m_directory, m_name);
    for (socket.connectToServer(path); !socket.waitForConnected(left()); socket.connectToServer(path)) {
        if (deadline.hasExpired())
            return false;
        QThread::msleep(20);
    }
    QDataStream stream(&socket);
    stream << message.toUtf8();
    QByteArray answer;
    while (answer != acknowledgement && socket.waitForReadyRead(left()))
        answer += socket.readAll();
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
