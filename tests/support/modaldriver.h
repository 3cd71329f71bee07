#pragma once

#include <QMessageBox>
#include <QObject>
#include <QStringList>
#include <QTimer>

#include <functional>

class QDialog;

/// Answers modal dialogs while a test's call is blocked in them. Steps run in the order they were queued, one for each
/// modal dialog that comes up; dialogs that nobody expected are rejected and reported by isDone().
class ModalDriver : public QObject
{
    Q_OBJECT
public:
    explicit ModalDriver(QObject *parent = nullptr);

    /// The next modal dialog is handed to \a step, which must end it (accept, reject, click a button).
    void then(const std::function<void(QDialog *)> &step);
    /// The next modal dialog is a message box; its button \a answer is clicked, its texts are recorded.
    void thenAnswer(QMessageBox::StandardButton answer);
    /// The next modal dialog is rejected, as by Escape.
    void thenReject();

    /// "title|text" of each message box, and "title|class" of each other dialog, in order.
    QStringList seen() const { return m_seen; }
    /// Every step ran and no unexpected dialog came up.
    bool isDone() const { return m_steps.isEmpty() && m_unexpected == 0; }

private:
    void look();

    QTimer m_timer;
    QList<std::function<void(QDialog *)>> m_steps;
    QStringList m_seen;
    QDialog *m_current = nullptr;
    int m_unexpected = 0;
};
