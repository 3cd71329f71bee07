#include "platform/qtsingleapplication.h"

#include <QCryptographicHash>
#include <QDataStream>
#include <QDir>
#include <QElapsedTimer>
#include <QFile>
#include <QFileInfo>
#include <QLocalServer>
#include <QLocalSocket>
#include <QLockFile>
#include <QThread>
#include <QWidget>

#include <sys/un.h>
#include <unistd.h>

namespace {

constexpr char acknowledgement[] = "ack";
constexpr int longestMessage = 1 << 20;

/// Where the socket of \a id stands: in the user's runtime directory, else in the temporary one.
QString socketPath(const QString &id)
{
    const QByteArray digest
        = QCryptographicHash::hash(id.toUtf8(), QCryptographicHash::Sha1).toHex().left(12);
    const QString name
        = QStringLiteral("/qtsingleapp-%1-%2").arg(QString::fromLatin1(digest)).arg(::getuid());
    const QString runtime = QFile::decodeName(qgetenv("XDG_RUNTIME_DIR"));
    // Leave room for the name under which the server sets the socket up before it renames it.
    const int longest = int(sizeof(sockaddr_un::sun_path)) - 16;
    if (!runtime.isEmpty() && QFileInfo(runtime).isWritable()
        && QFile::encodeName(runtime + name).size() < longest)
        return runtime + name;
    const QString temporary = QDir::tempPath() + name;
    return QFile::encodeName(temporary).size() < longest ? temporary : QLatin1String("/tmp") + name;
}

} // namespace

QtSingleApplication::QtSingleApplication(int &argc, char **argv, bool /*guiEnabled*/)
    : QtSingleApplication(QFileInfo(QFile::symLinkTarget(QStringLiteral("/proc/self/exe"))).fileName(), argc,
                          argv)
{}

QtSingleApplication::QtSingleApplication(const QString &id, int &argc, char **argv)
    : QApplication(argc, argv)
    , m_id(id)
    , m_path(socketPath(id))
    , m_lock(std::make_unique<QLockFile>(m_path + QLatin1String(".lock")))
{
    // However long the owner runs, its lock is stale only when its process is gone.
    m_lock->setStaleLockTime(0);
}

QtSingleApplication::~QtSingleApplication()
{
    // The socket goes before the lock: afterwards the one of that name belongs to the next owner.
    delete m_server;
}

bool QtSingleApplication::isRunning()
{
    if (m_lock->isLocked())
        return false;
    if (m_lock->tryLock(0)) {
        becomeOwner();
        return false;
    }
    // Without a place for a lock there is no other instance to be found, either.
    return m_lock->error() == QLockFile::LockFailedError;
}

void QtSingleApplication::becomeOwner()
{
    // The temporary directory is not the user's alone.
    QFile::setPermissions(m_path + QLatin1String(".lock"), QFile::ReadOwner | QFile::WriteOwner);
    // A socket that stands there belongs to a dead owner: the lock is ours.
    QLocalServer::removeServer(m_path);
    m_server = new QLocalServer(this);
    m_server->setSocketOptions(QLocalServer::UserAccessOption);
    m_server->setMaxPendingConnections(100);
    connect(m_server, &QLocalServer::newConnection, this, &QtSingleApplication::acceptConnection);
    m_server->listen(m_path);
}

void QtSingleApplication::acceptConnection()
{
    while (QLocalSocket *socket = m_server->nextPendingConnection()) {
        connect(socket, &QLocalSocket::readyRead, this, [this, socket] { readMessage(socket); });
        connect(socket, &QLocalSocket::disconnected, socket, &QLocalSocket::deleteLater);
        readMessage(socket);
    }
}

void QtSingleApplication::readMessage(QLocalSocket *socket)
{
    QDataStream stream(socket);
    stream.setVersion(QDataStream::Qt_5_15);
    stream.startTransaction();
    quint32 size = 0;
    stream >> size;
    if (size > longestMessage) {
        socket->abort();
        return;
    }
    QByteArray message(int(size), '\0');
    stream.readRawData(message.data(), message.size());
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
    QElapsedTimer timer;
    timer.start();
    const auto left = [&timer, timeout] { return int(qMax<qint64>(1, timeout - timer.elapsed())); };
    QLocalSocket socket;
    // The owner takes its lock a moment before it listens.
    for (socket.connectToServer(m_path); !socket.waitForConnected(left()); socket.connectToServer(m_path)) {
        if (timer.hasExpired(timeout))
            return false;
        QThread::msleep(20);
    }
    const QByteArray text = message.toUtf8();
    QDataStream stream(&socket);
    stream.setVersion(QDataStream::Qt_5_15);
    stream << quint32(text.size());
    stream.writeRawData(text.constData(), text.size());
    while (socket.bytesToWrite() > 0) {
        if (!socket.waitForBytesWritten(left()))
            return false;
    }
    while (socket.bytesAvailable() < qint64(sizeof(acknowledgement) - 1)) {
        if (timer.hasExpired(timeout) || !socket.waitForReadyRead(left()))
            return false;
    }
    return socket.read(qint64(sizeof(acknowledgement) - 1)) == acknowledgement;
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
