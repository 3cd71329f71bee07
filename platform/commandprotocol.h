#pragma once

// How a command to the window manager travels: as client messages of format 8 to the root window.
inline constexpr char firstCommandAtom[] = "_QAZWM_COMMAND_BEGIN"; ///< type of a command's first message
inline constexpr char nextCommandAtom[] = "_QAZWM_COMMAND";        ///< type of the following ones
inline constexpr int commandMessageBytes = 20;                     ///< in each message
inline constexpr int longestCommand = 65536; ///< bytes; the NUL that ends a command travels besides
