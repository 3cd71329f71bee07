#pragma once

#include <QColor>
#include <QWidget>

#include <functional>
#include <memory>

class QMimeData;
class QazSettings;

namespace Ui {
class WallpaperForm;
}

/// Edits the desktop's background: an image or a colour, how the image is fitted to the screen and the interval of the
/// slide show, for the whole desktop or for the current virtual desktop only.
class WallpaperPage : public QWidget
{
    Q_OBJECT
public:
    explicit WallpaperPage(QWidget *parent = nullptr);
    ~WallpaperPage() override;

    bool loaded = false;

signals:
    void changedSignal();

public slots:
    /// Lets the user choose an image file; an SVG is converted to a PNG of the screen's size first.
    void selectWallpaperFile();
    void selectWallpaperColor();
    /// Draws the preview of \a text: a path, a wallpaper name or a colour "#RRGGBB", which becomes the page's.
    void selectWallpaper(const QString &text);
    /// Draws the preview again.
    void slotWallpaperType();
    /// Position and slide show belong to all desktops: they are enabled only when \a state is 0 (unchecked).
    void slotCurrDesktop(int state);
    void clearWallpaper();
    /// Fills the form; always true. \a settings stays the caller's and is not kept.
    bool loadValues(QazSettings *settings);
    /// Stores and announces what changed; always true.
    bool saveValues(QazSettings *settings);

private:
    void loadDesktopValues(QString wallpaper);
    void loadGlobalValues(const QazSettings *settings);
    void connectWidgets();
    void takeFile(const QString &chosen);
    void takeColor(const QColor &color);
    /// Takes a picture or a colour that is dropped on the page, or pasted into the line edit.
    std::function<void()> taking(const QMimeData *data);
    QString convertedFile(const QString &file);
    bool asks(const QString &title, const QString &question);
    /// What the monitor picture shows of the wallpaper \a text.
    QImage preview(const QString &text) const;
    QSize screenSize() const;

    std::unique_ptr<Ui::WallpaperForm> m_ui;
    QColor m_color;
};
