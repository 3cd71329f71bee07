#pragma once

/// The path of one of the desktop's well-known directories, in the local 8-bit encoding, without a trailing
/// slash; an empty text for a kind that is not known (and for kind 1 when the directory can't be created).
/// Read from the environment at each call. The text belongs to the library and stays valid until the next
/// call with the same kind.
const char *GetQazDir(int kind);
