#pragma once

#include "platform/list.h"

#include <QByteArray>
#include <QString>

#include <memory>

class ThemeDirectories;
struct _XDisplay;
using Display = _XDisplay;

/// An icon theme of the freedesktop standard, and what the desktop knows of icon and cursor themes. Names
/// are directory names in the local 8-bit encoding.
class QazIconTheme
{
public:
    /// The theme \a name; nothing is read before load(). \a parent and \a isFallback are part of the desktop's
    /// interface: a theme of this implementation finds its parents itself.
    QazIconTheme(const char *name, const QazIconTheme *parent, bool isFallback);

    /// Reads the theme's index. False when no directory of this name has one with icon directories.
    bool load();

    /// Finds the icon \a name for \a size pixels among the directories of \a context ("Places",
    /// "Applications"; null: any) of the theme, its parents and "hicolor". Directories that state no context count
    /// as any; icons outside all themes are of none. False, with an empty \a resultPath, when there is no such icon.
    bool getIcon(const char *name, int size, const char *context, QString *resultPath) const;

    /// Appends the names of all icon themes to \a list, each once. False when there is none.
    static bool getThemesNames(List<char> *list);

    /// Appends the names of all cursor themes to \a list, each once. False when there is none.
    static bool getCursorThemeNames(List<char> *list);

    /// The cursor theme that new programs on \a display use: the X resource, else what the user's "default" theme
    /// inherits from. Null when neither names one. The text is valid until the next call.
    static const char *getCurrentCursorThemeName(Display *display);

    /// Makes \a name the cursor theme of programs that start from now on, and, where the server allows it, of
    /// the running ones. False, after a line on standard error, when a file can't be written.
    static bool setCurrentCursorThemeName(const char *name);

    /// The usual icon size nearest to \a kind's at 96 dpi (1: desktop, 48 pixels; 0: 32 pixels) times \a dpi / 96.
    static int GetIconSizeForDPI(double dpi, int kind);

private:
    QByteArray m_name;
    std::shared_ptr<ThemeDirectories> m_directories; ///< shared with the themes that live at the same time
};
