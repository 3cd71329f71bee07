#pragma once

#include <QFileDialog>

/// The desktop's dialog for choosing one existing file.
class QazFileDialog : public QFileDialog
{
    Q_OBJECT
public:
    /// \a location is the directory to start in, or a file, which is then selected in its directory.
    explicit QazFileDialog(QWidget *parent = nullptr, const QString &caption = {},
                           const QString &location = {}, const QString &filter = {});

    /// Runs the dialog; the chosen file, or an empty text when it was cancelled.
    static QString getOpenFileName(QWidget *parent, const QString &caption, const QString &location,
                                   const QString &filter);

protected:
    void accept() override;

private:
    void letTypedPathsCount();
};
