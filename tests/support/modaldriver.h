#pragma once

#include "tests/support/testing.h"

#include <functional>

/// Answers modal dialogs while a test's call is blocked in them. Steps run in the order they were queued, one for each
/// modal dialog that comes up; dialogs that nobody expected are rejected and reported by isDone().
class ModalDriver
{
public:
    ModalDriver()
    {
        QObject::connect(&m_timer, &QTimer::timeout, &m_timer, [this] { look(); });
        m_timer.start(5);
    }

    /// The next modal dialog is handed to \a step, which must end it (accept, reject, click a button).
    void then(const std::function<void(QDialog *)> &step) { m_steps.append(step); }
    /// The next modal dialog is a message box; its button \a answer is clicked, its texts are recorded.
    void thenAnswer(QMessageBox::StandardButton answer)
    {
        then([answer](QDialog *dialog) {
            auto *box = qobject_cast<QMessageBox *>(dialog);
            QAbstractButton *button = box ? box->button(answer) : nullptr;
            button ? button->click() : dialog->reject();
        });
    }
    /// In the next modal dialog a colour or else a text is entered, and accepted; that offered is recorded, too.
    void thenEnter(const QString &text)
    {
        then([this, text](QDialog *dialog) {
            auto *colors = qobject_cast<QColorDialog *>(dialog);
            auto *field = dialog->findChild<QLineEdit *>();
            m_seen.last() += u'|' + (colors ? colors->currentColor().name() : field->text());
            colors ? colors->setCurrentColor(text) : field->setText(text);
            dialog->accept();
        });
    }
    /// The next modal dialog is rejected, as by Escape.
    void thenReject() { then(&QDialog::reject); }

    /// "title|text" of each message box, and "title|class" of each other dialog, in order.
    QStringList seen() const { return m_seen; }
    /// The same since the last time.
    QStringList takeSeen() { return std::exchange(m_seen, {}); }
    /// Every step ran and no unexpected dialog came up.
    bool isDone() const { return m_steps.isEmpty() && !m_wasSurprised; }

private:
    void look()
    {
        auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
        if (!dialog || !dialog->isVisible())
            m_current = nullptr;
        if (!dialog || !dialog->isVisible() || dialog == m_current)
            return;
        m_current = dialog;
        auto *box = qobject_cast<QMessageBox *>(dialog);
        m_seen.append(dialog->windowTitle() + u'|'
                      + (box ? box->text() : QString::fromLatin1(dialog->metaObject()->className())));
        if (m_steps.isEmpty()) {
            m_wasSurprised = true;
            dialog->reject();
            return;
        }
        m_steps.takeFirst()(dialog);
        // The same stack address may serve the next dialog.
        if (QApplication::activeModalWidget() != dialog || !dialog->isVisible())
            m_current = nullptr;
    }

    QTimer m_timer;
    QList<std::function<void(QDialog *)>> m_steps;
    QStringList m_seen;
    QDialog *m_current = nullptr;
    bool m_wasSurprised = false;
};
