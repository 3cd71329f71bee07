#pragma once

#include <QHash>
#include <QObject>
#include <QProcess>
#include <QSet>
#include <QStringList>
#include <QVector>

#include <functional>

struct Options;

/// One line "qaz-wm-bridge: TEXT" on standard error.
void tell(const QString &text);

/// \a command as one line that a shell would split into the same arguments.
QString shellLine(const QStringList &command);

/// Runs the session's tools, without a shell. A tool that is missing or fails costs one line that names its package,
/// once; what hangs is ended after 10 s.
class Programs : public QObject
{
    Q_OBJECT
public:
    /// In a dry run each command line goes to standard output and nothing is run.
    explicit Programs(const Options &options);
    /// Ends all children.
    ~Programs() override;

    /// Runs \a commands one after the other; those that wait from an earlier call with the same last tool are dropped.
    void run(const QVector<QStringList> &commands);

    /// Starts a program that stays until it ends by itself, is ended, or this object goes; \a whenEnded is called then,
    /// but not by the destructor. Null when it can't be started or is only printed.
    QProcess *start(const QStringList &command, const std::function<void(bool failed)> &whenEnded);

    /// Asks a child to end, and makes it end.
    void end(QProcess *process);

    /// Whether nothing of run() is under way.
    bool isIdle() const;

signals:
    void idle();
    void ended(); ///< a child, after everybody was told

private:
    struct Queue {
        QProcess *running = nullptr;
        QVector<QStringList> waiting;
    };

    void runNext(const QString &queueName);
    void complain(const QString &tool, const QString &what);

    const Options &m_options;
    QHash<QString, Queue> m_queues; // by their commands' last tool
    QSet<QString> m_complained;     // of which tools
};
