#pragma once

#include <QString>

/// Copies the file or directory tree at \a from to \a to, where nothing must stand yet: files with mode 0600 and
/// their times, directories with mode 0700, links as links. FIFOs, sockets and devices hold no bytes to lose and are
/// left out of a tree. Ends at the first failure; \a error then says why, and what was copied stays.
[[nodiscard]] bool copyTree(const QString &from, const QString &to, QString *error);
