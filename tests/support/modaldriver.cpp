#include "tests/support/modaldriver.h"

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>

ModalDriver::ModalDriver(QObject *parent)
    : QObject(parent)
{
    connect(&m_timer, &QTimer::timeout, this, &ModalDriver::look);
    m_timer.start(5);
}

void ModalDriver::then(const std::function<void(QDialog *)> &step)
{
    m_steps.append(step);
}

void ModalDriver::thenAnswer(QMessageBox::StandardButton answer)
{
    then([answer](QDialog *dialog) {
        auto *box = qobject_cast<QMessageBox *>(dialog);
        QAbstractButton *button = box ? box->button(answer) : nullptr;
        if (button)
            button->click();
        else
            dialog->reject();
    });
}

void ModalDriver::thenReject()
{
    then([](QDialog *dialog) { dialog->reject(); });
}

void ModalDriver::look()
{
    auto *dialog = qobject_cast<QDialog *>(QApplication::activeModalWidget());
    if (!dialog || !dialog->isVisible()) {
        m_current = nullptr;
        return;
    }
    if (dialog == m_current)
        return;
    m_current = dialog;
    auto *box = qobject_cast<QMessageBox *>(dialog);
    m_seen.append(dialog->windowTitle() + QLatin1Char('|')
                  + (box ? box->text() : QString::fromLatin1(dialog->metaObject()->className())));
    if (m_steps.isEmpty()) {
        ++m_unexpected;
        dialog->reject();
        return;
    }
    m_steps.takeFirst()(dialog);
    // The same stack address may serve the next dialog.
    if (QApplication::activeModalWidget() != dialog || !dialog->isVisible())
        m_current = nullptr;
}
