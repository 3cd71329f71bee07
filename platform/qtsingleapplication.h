#pragma once

#ifdef QAZ_INSTALLED_QTSINGLEAPPLICATION
#include <QtSingleApplication>
#else

#include <QApplication>
#include <QPointer>
#include <QWidget>

#include <memory>

class QLocalServer;
class QLocalSocket;
class QLockFile;

/// An application that runs once for each id and user. Whoever holds the id's lock is the running instance;
/// the others can send it messages. A crashed owner's lock is taken over by the next start.
class QtSingleApplication : public QApplication
{
    Q_OBJECT
public:
    QtSingleApplication(int &argc, char **argv, bool guiEnabled = true);
    QtSingleApplication(const QString &id, int &argc, char **argv);
    ~QtSingleApplication() override;

    /// True when another process is the running instance of this id; otherwise this one is from now on.
    bool isRunning();
    QString id() const { return m_id; }

    void setActivationWindow(QWidget *window, bool activateOnMessage = true);
    QWidget *activationWindow() const { return m_activationWindow; }

public slots:
    /// Sends \a message to the running instance and waits up to \a timeout ms in all until it is
    /// acknowledged. False when this process is that instance, or no acknowledgement came.
    bool sendMessage(const QString &message, int timeout = 5000);
    void activateWindow();

signals:
    void messageReceived(const QString &message);

private:
    void becomeOwner();
    void acceptConnection();
    void readMessage(QLocalSocket *socket);

    QString m_id;
    QString m_path; // of the socket; the lock file's has ".lock" appended
    std::unique_ptr<QLockFile> m_lock;
    QLocalServer *m_server = nullptr;
    QPointer<QWidget> m_activationWindow;
};

#endif
