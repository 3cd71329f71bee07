#include "platform/livecursors.h"

#include "freedesktop/cursorfiles.h"
#include "freedesktop/themedirectories.h"

#include <X11/Xcursor/Xcursor.h>
#include <X11/extensions/Xfixes.h>

namespace {

// Under these names programs load their cursors: those of the X cursor font, of CSS and of the toolkits.
// clang-format off
constexpr const char *cursorNames[] = {
    "X_cursor", "all-scroll", "arrow", "based_arrow_down", "based_arrow_up", "bottom_left_corner",
    "bottom_right_corner", "bottom_side", "bottom_tee", "cell", "center_ptr", "circle", "closedhand", "col-resize",
    "context-menu", "copy", "cross", "cross_reverse", "crosshair", "default", "diamond_cross", "dnd-ask", "dnd-copy",
    "dnd-link", "dnd-move", "dnd-none", "dot", "dotbox", "double_arrow", "draft_large", "draft_small", "draped_box",
    "e-resize", "ew-resize", "exchange", "fleur", "forbidden", "grab", "grabbing", "half-busy", "hand", "hand1",
    "hand2", "help", "icon", "iron_cross", "left_ptr", "left_ptr_watch", "left_side", "left_tee", "link", "ll_angle",
    "lr_angle", "move", "n-resize", "ne-resize", "nesw-resize", "no-drop", "not-allowed", "ns-resize", "nw-resize",
    "nwse-resize", "openhand", "pencil", "pirate", "plus", "pointer", "pointing_hand", "progress", "question_arrow",
    "right_ptr", "right_side", "right_tee", "row-resize", "s-resize", "sb_down_arrow", "sb_h_double_arrow",
    "sb_left_arrow", "sb_right_arrow", "sb_up_arrow", "sb_v_double_arrow", "se-resize", "size_all", "size_bdiag",
    "size_fdiag", "size_hor", "size_ver", "sizing", "split_h", "split_v", "sw-resize", "target", "tcross", "text",
    "top_left_arrow", "top_left_corner", "top_right_corner", "top_side", "top_tee", "ul_angle", "up_arrow",
    "ur_angle", "vertical-text", "w-resize", "wait", "watch", "whats_this", "xterm", "zoom-in", "zoom-out"};
// clang-format on

constexpr int changeByNameMajor = 2; // the version of XFixes that brought it

bool canChangeByName(Display *display)
{
    int unused = 0;
    int major = 0;
    int minor = 0;
    return XFixesQueryExtension(display, &unused, &unused) && XFixesQueryVersion(display, &major, &minor)
           && major >= changeByNameMajor;
}

} // namespace

void showCursorTheme(Display *display, const QByteArray &theme)
{
    if (!display)
        return;
    XcursorSetTheme(display, theme.constData());
    if (const Cursor pointer = XcursorLibraryLoadCursor(display, "left_ptr")) {
        XDefineCursor(display, DefaultRootWindow(display), pointer);
        XFreeCursor(display, pointer);
    }
    if (canChangeByName(display)) {
        ThemeDirectories directories(cursorSearchPath());
        for (const char *name : cursorNames) {
            // Xcursor answers unknown names with the X font's cursor; a theme that lacks one changes nothing.
            const Cursor cursor = cursorFile(directories, theme, name).isEmpty()
                                      ? 0
                                      : XcursorLibraryLoadCursor(display, name);
            if (!cursor)
                continue;
            XFixesChangeCursorByName(display, cursor, name);
            XFreeCursor(display, cursor);
        }
    }
    XFlush(display);
}
