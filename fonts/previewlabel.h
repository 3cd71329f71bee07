#pragma once

#include <QLabel>

/// Shows one line of text in a font of any size, elided where there is no room: a long family name or a huge font
/// never forces the window to grow. Its text() stays whole.
class PreviewLabel : public QLabel
{
    // No Q_OBJECT: to style sheets and assistive tools it is a plain QLabel.
public:
    explicit PreviewLabel(QWidget *parent = nullptr);

    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    int indentWidth() const;
};
