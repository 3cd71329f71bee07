#pragma once

#ifdef QAZ_INSTALLED_QTSINGLEAPPLICATION
#include <QtSingleApplication>
#else

#include "base/descriptor.h"

#include <QApplication>
#include <QPointer>
#include <QWidget>

#include <memory>

/// An application that runs once for each id and user. Whoever holds the id's lock is the running instance;
/// the others can send it messages. The lock ends with its owner, whatever becomes of the file.
class QtSingleApplication : public QApplication
{
    Q_OBJECT
public:
    /// The id is the program's file name.
    QtSingleApplication(int &argc, char **argv, bool guiEnabled = true);
    QtSingleApplication(const QString &id, int &argc, char **argv);
    ~QtSingleApplication() override;

    /// True when another process is the running instance of this id; otherwise this one is from now on.
    bool isRunning();
    QString id() const { return m_id; }

    /// \a window stays the caller's. It is activated by each message, if \a activateOnMessage.
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
    void listen();
    void acceptConnection();

    QString m_id;
    QByteArray m_name;                    // of the socket; the lock file's has ".lock" appended
    Descriptor m_directory;               // of both
    std::unique_ptr<Descriptor> m_lock;   // while it is held
    std::unique_ptr<Descriptor> m_socket; // of the running instance
    QPointer<QWidget> m_activationWindow;
};

#endif
