#pragma once

#include <QDialog>

class QDialogButtonBox;
class QListWidget;
class QListWidgetItem;
class SlidingStackedWidget;
class ThemeFileWatcher;

/// The program's only main window: a list of pages, the pages in a sliding stack, and the buttons. A page
/// is loaded when it is first shown, and saved only when it is loaded. The size is kept between runs.
class ConfigDialog : public QDialog
{
    Q_OBJECT
public:
    /// Edits the theme file \a fileName, which need not exist.
    explicit ConfigDialog(const QString &fileName, QWidget *parent = nullptr, Qt::WindowFlags flags = {});
    /// Stores the size and deletes the pages.
    ~ConfigDialog() override;

    /// Escape goes the way of the title bar's close button, so that edits are guarded.
    void reject() override;
    /// Keeps the window's size for the next run.
    void storeSize() const;

public slots:
    void changePage(QListWidgetItem *current, QListWidgetItem *previous);
    QDialogButtonBox *buttonBox();
    /// Loads the wallpaper page, which is shown first; always true.
    bool fileOpen();
    /// Saves every loaded page; always true.
    bool fileSave();
    /// Asks whether to save unsaved edits, and saves them on Yes. Returns the button code (QMessageBox::Yes,
    /// No or Cancel) of the answer; No without edits.
    int requestToSave(bool canCancel = true);
    void helpSlot();
    void okSlot();
    void applySlot();
    void rejectSlot();
    void changedSlot();
    /// Asks for a depth and removes settings files, so that the desktop's defaults apply again.
    void restoreSlot();
    /// Another start of the program wants the window up, whatever the \a message; always true.
    bool messageReceived(const QString &message);
    void animationDone();

protected:
    void closeEvent(QCloseEvent *event) override;
    bool eventFilter(QObject *watched, QEvent *event) override;

private:
    void fillContents();
    void createPages();
    /// Keeps spin boxes and combo boxes from changing when the user meant something else: to scroll past them with
    /// the wheel, or to close the window by Return.
    void guardControls();
    void createButtons();
    void createLayout();
    void createShortcuts();
    void restoreSize();
    /// That of a first start.
    QSize usualSize();
    void connectPages();
    /// Loads the page of \a row from the theme file as it is now.
    void loadPage(int row);
    /// Shows what another program has written, unless there are edits: those stay, and win.
    void followThemeFile();
    void setEdited(bool edited);

    QListWidget *contentsWidget;
    class QScrollArea *m_pageArea;
    SlidingStackedWidget *pagesWidget;
    bool slideFinished = true;
    QDialogButtonBox *m_buttonBox = nullptr;
    QString themeFile;
    ThemeFileWatcher *m_watcher;
    QSize m_wantedSize; // of the user, whatever the screen has room for
    QSize m_firstSize;  // the one shown for it
};
