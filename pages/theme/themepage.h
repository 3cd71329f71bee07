#pragma once

#include <QWidget>

#include <memory>

class QComboBox;
class QPushButton;
class QazSettings;

namespace Ui {
class ThemeForm;
}

/// Chooses the cursor, icon and decoration themes, and edits the colours and sizes of the desktop's elements.
class ThemePage : public QWidget
{
    Q_OBJECT
public:
    explicit ThemePage(QWidget *parent = nullptr);
    ~ThemePage() override; // in the .cpp, where Ui::ThemeForm is complete

    /// Set by the first loadValues(): the page is shown with values, and is to be saved.
    bool loaded = false;

signals:
    /// The user edited a value.
    void changedSignal();

public slots:
    /// Fills the form from \a settings, which stays the caller's. Always true.
    bool loadValues(QazSettings *settings);
    /// Sets a new cursor theme; stores and announces what else differs from \a settings. Always true.
    bool saveValues(QazSettings *settings);

private slots:
    /// Asks for a new value of the size in view.
    void selectSize();
    /// Shows the colours of the entry \a ind on the colour buttons.
    void colorElementSelected(int ind);
    /// Ask for a new main or end colour of the element in view.
    void selectColor1();
    void selectColor2();
    /// A swatch of the element list's icon size, from \a col1 at the left to \a col2 at the right.
    QPixmap fillGradient(const QColor &col1, const QColor &col2);

private:
    void loadCursorThemes();
    void loadIconThemes(const QazSettings *settings);
    void loadDecorThemes(const QazSettings *settings);
    void loadColors(const QazSettings *settings);
    void loadSizes(const QazSettings *settings);

    void saveCursorTheme();
    void saveSizes(QazSettings *settings);

    void selectColor(int which);
    void setColor(int which, const QColor &color);
    void setEntryColors(int index, const QStringList &colors);
    void showColor(QPushButton *button, const QColor &color);

    std::unique_ptr<Ui::ThemeForm> m_ui;
};
