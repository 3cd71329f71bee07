#include "platform/qtsingleapplication.h"
#include "tests/support/environment.h"
#include "tests/support/testing.h"

#include <QLocalServer>
#include <QLocalSocket>

#include <fcntl.h>
#include <sys/file.h>
#include <unistd.h>

/// The running instance; the others are this program in processes of their own, which send their argument.
class TestSingleApplication : public QObject
{
    Q_OBJECT
private slots:
    void initTestCase() { QVERIFY(!m_app->isRunning()); }

    void everyMessageIsHeardAndAcknowledged()
    {
        QSignalSpy heard(m_app, &QtSingleApplication::messageReceived);
        QCOMPARE(m_app->id(), "tst_singleapplication"_s); // the program's name
        QVERIFY(!m_app->sendMessage("to itself"_s));
        for (const QString &message : {"show"_s, QString(), QString(30000, u'ä')}) {
            QCOMPARE(exitCodeOfSender(message, 60000), 0);
            QCOMPARE(heard.takeFirst().at(0).toString(), message);
        }
        QCOMPARE(heard.count(), 0);
        QTRY_COMPARE(m_app->findChildren<QSocketNotifier *>().size(), 1); // those who have gone are forgotten
    }

    void aMessageMayComeInPieces()
    {
        QSignalSpy heard(m_app, &QtSingleApplication::messageReceived);
        QLocalSocket sender;
        sender.connectToServer(ownFile({}));
        for (const char *message : {"\5hello", "\1x"}) {
            for (const char byte : QByteArray(3, '\0') + message) {
                QCOMPARE(sender.bytesAvailable(), 0);
                sender.putChar(byte);
                QTRY_COMPARE(sender.bytesToWrite(), 0);
                QCoreApplication::processEvents();
            }
            QTRY_COMPARE(sender.bytesAvailable(), 3);
            QCOMPARE(sender.readAll(), QByteArray("ack"));
        }
        QCOMPARE(QVariantList(heard.value(0) + heard.value(1)), (QVariantList{"hello"_s, "x"_s}));
    }

    void anOwnerWhoDoesNotListenIsWaitedFor()
    {
        const QTemporaryDir directory;
        QFile owner(directory.filePath(QFileInfo(ownFile(".lock"_s)).fileName()));
        const ScopedEnvironment runtime("XDG_RUNTIME_DIR", QFile::encodeName(directory.path()));
        // What stands in the lock's place is kept, and nothing else is left.
        QVERIFY(QDir().mkpath(owner.fileName() + "/full"_s));
        QCOMPARE(exitCodeOfSender("to itself"_s, 100), 1);
        const QString left = QDir(directory.path()).entryList(QDir::AllEntries | QDir::System).join(u' ');
        const QRegularExpression expected("^. .. %1 %1\\.old-\\d+$"_s.arg(QFileInfo(owner).fileName()));
        QVERIFY2(expected.match(left).hasMatch(), qPrintable(left));
        QVERIFY(owner.open(QIODevice::WriteOnly));
        QCOMPARE(::flock(owner.handle(), LOCK_EX), 0);
        QCOMPARE(exitCodeOfSender("show"_s, 100), 1);
        QLocalServer late;
        connect(&late, &QLocalServer::newConnection, this,
                [&late] { late.nextPendingConnection()->write("ack"); });
        QTimer::singleShot(500, &late, [&] { late.listen(owner.fileName().chopped(5)); });
        QCOMPARE(exitCodeOfSender("show"_s, 60000), 0);
    }

    void messagesActivateTheWindow()
    {
        auto window = std::make_unique<QWidget>();
        QWidget other;
        for (const bool activates : {false, true, false}) {
            m_app->setActivationWindow(window.get(), activates);
            window->showMinimized();
            other.show();
            other.activateWindow();
            QVERIFY(QTest::qWaitForWindowActive(&other));
            emit m_app->messageReceived({});
            QCOMPARE(window->isMinimized(), !activates);
            QTRY_COMPARE(window->isActiveWindow() && QApplication::topLevelAt({9, 9}) == window.get(),
                         activates);
            QCOMPARE(m_app->activationWindow(), window.get());
        }
        window.reset();
        m_app->activateWindow();
        QVERIFY(!m_app->activationWindow());
    }

private:
    static QString ownFile(const QString &ending)
    {
        const QDir directory(qEnvironmentVariable("XDG_RUNTIME_DIR"));
        const QString pattern = "qtsingleapp-"_s + QString(12, u'?') + u'-' + QString::number(::getuid())
                                + ending;
        return directory.filePath(directory.entryList({pattern}, QDir::Files | QDir::System).value(0));
    }
    static int exitCodeOfSender(const QString &message, int timeout)
    {
        QProcess sender;
        QEventLoop loop;
        connect(&sender, qOverload<int, QProcess::ExitStatus>(&QProcess::finished), &loop, &QEventLoop::exit);
        sender.start(QCoreApplication::applicationFilePath(), {message, QString::number(timeout)});
        return loop.exec();
    }

    QtSingleApplication *m_app = qobject_cast<QtSingleApplication *>(qApp);
};

int main(int argc, char **argv)
{
    QtSingleApplication app(argc, argv);
    if (argc == 3)
        return app.sendMessage(app.arguments().at(1), app.arguments().at(2).toInt()) ? 0 : 1;
    TestSingleApplication test;
    return QTest::qExec(&test, argc, argv);
}

#include "tst_singleapplication.moc"
