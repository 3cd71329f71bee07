#pragma once

#include <QTimer>
#include <QWidget>

class QLabel;

/// Shows what is in an image or a sound file: the picture and its size in pixels, or the sound's format and length.
class FilePreview : public QWidget
{
    Q_OBJECT
public:
    explicit FilePreview(QWidget *parent);

    /// Shows the file at \a path once nothing else was asked for during a moment: who goes through a list by the
    /// keyboard doesn't wait for pictures.
    void showFile(const QString &path);

private:
    void draw();

    QLabel *m_picture;
    QLabel *m_text;
    QString m_path;
    QTimer m_rest;
};
