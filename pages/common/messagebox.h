#pragma once

#include <QMessageBox>

/// Shows \a text in a modal message box as it stands: names, paths and reasons that come from files may look like markup.
/// The box belongs to this call. Returns the button that ended it; the window's close button and Escape count as Qt's
/// escape button.
QMessageBox::StandardButton showMessage(QWidget *parent, QMessageBox::Icon icon, const QString &title,
                                        const QString &text,
                                        QMessageBox::StandardButtons buttons = QMessageBox::Ok,
                                        QMessageBox::StandardButton defaultButton = QMessageBox::NoButton);
