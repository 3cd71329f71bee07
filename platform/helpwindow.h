#pragma once

#include <QCoreApplication>
#include <QTextBrowser>

class QLabel;
class QLineEdit;

/// Shows the user guide: a text browser with a bar of buttons below the text, to go back and forth and to search.
/// Its text has the size of the application's font, or the one that the user zoomed to.
class HelpWindow : public QTextBrowser
{
    Q_DECLARE_TR_FUNCTIONS(Help)
public:
    HelpWindow();

protected:
    void resizeEvent(QResizeEvent *event) override;

private:
    void createBar();
    /// Looks for the text of the search field from the cursor on, and again from the other end.
    void search(QTextDocument::FindFlags flags = {});
    void zoom(int steps);
    void fitPictures();

    QWidget *m_bar;
    QLineEdit *m_text = nullptr;
    QLabel *m_result = nullptr;
    int m_steps = 0;
};
