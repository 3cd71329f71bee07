#pragma once

#include "platform/qazsettings.h"

#include <QMap>
#include <QString>

class Programs;
class XConnection;

/// What the command line asks for.
struct Options {
    QString themeFile;    ///< absolute
    bool once = false;    ///< apply and end
    bool dryRun = false;  ///< print the command lines, run and write nothing
    bool verbose = false; ///< tell what is run and what is not understood
    bool replace = false; ///< take over from a running bridge
    bool openbox = false; ///< edit Openbox's own configuration file
};

/// The values of the theme file, which is never written here, and those that were announced since it was read: the
/// editor announces a value before the file holds it.
class Values
{
public:
    explicit Values(const QString &themeFile);

    /// Reads the file again; what was announced stands.
    void refresh() { m_file.sync(true); }
    void announce(const QString &key, const QString &value) { m_announced.insert(key, value); }
    void forgetAnnounced() { m_announced.clear(); }

    /// The announced text of \a key, else the file's, else \a defaultText.
    QString text(const char *key, const char *defaultText = "") const;
    /// The file's text alone, for what nobody on the display may choose.
    QString fileText(const char *key, const char *defaultText) const;
    /// The number of a text; 0 for none, at most \a limit, never negative.
    int number(const char *key, int limit, const char *defaultText = "") const;

private:
    QazSettings m_file;
    QMap<QString, QString> m_announced;
};

/// What every action works with; all outlive the actions.
struct Session {
    XConnection &x;
    Values &values;
    Programs &programs;
    const Options &options;

    /// Replaces the file at \a path, for the user's eyes alone, unless this is a dry run. Tells when that fails.
    bool write(const QString &path, const QByteArray &content) const;
};

/// The path of the file \a name among the bridge's own.
QString ownFile(const QString &name);
