#pragma once

#include <QComboBox>

/// A combo box whose entries carry previews. With nothing selected it shows its placeholder text in the placeholder's
/// grey, which the kit's own box leaves out, and is no taller than a box without previews. It has no meta-object of
/// its own: style sheets and tests find it as the QComboBox that it is.
class PreviewComboBox : public QComboBox
{
public:
    explicit PreviewComboBox(QWidget *parent = nullptr);

    /// Draws a frame around each entry's icon, in the box and in its list. The icons stay as they are.
    void outlineIcons();

    QSize sizeHint() const override;
    QSize minimumSizeHint() const override;

protected:
    void paintEvent(QPaintEvent *event) override;

private:
    QSize withoutPreview(QSize hint) const;

    bool m_outlinesIcons = false;
};
