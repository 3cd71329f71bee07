#pragma once

#include <QWidget>

#include <memory>

class KFontRequesterPrivate;

/// A preview of a font and a button that opens the font dialog. The selected font is not the widget's own one.
class KFontRequester : public QWidget
{
    Q_OBJECT
public:
    /// With \a onlyFixed, only fonts of fixed pitch are wanted.
    explicit KFontRequester(QWidget *parent = nullptr, bool onlyFixed = false);
    ~KFontRequester() override;

    /// A copy of the selected font.
    QFont font() const;
    bool isFixedOnly() const;

    /// Selects the installed font nearest to \a font.
    void setFont(const QFont &font, bool onlyFixed);
    /// Names what the font is for, in the tooltips.
    void setTitle(const QString &title);

signals:
    /// A font was selected: by the user, or by setFont(), even if it was the same.
    void fontSelected(const QFont &font);

private slots:
    void _k_buttonClicked();

private:
    std::unique_ptr<KFontRequesterPrivate> d;
};
