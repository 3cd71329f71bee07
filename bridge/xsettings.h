#pragma once

#include "bridge/session.h"

#include <QByteArray>
#include <QString>

class QProcess;

/// What programs read of the look of a session; an empty text is not told to them.
struct XSettingsTexts {
    QString font; ///< a role's text
    QString iconTheme;
    QString cursorTheme;
    QString rendering; ///< the four words of the key XftSettings
};

/// The configuration file of the settings manager. No text can add a line to it.
QByteArray xsettingsFile(const XSettingsTexts &texts);

/// Keeps a settings manager with what the values say, unless the session has one of its own.
class XSettings
{
public:
    explicit XSettings(const Session &session);

    void apply();
    /// Somebody took or left a selection: it may be the settings manager's.
    void selectionChanged();

private:
    XSettingsTexts texts() const;
    void tellManager();

    Session m_session;
    QProcess *m_manager = nullptr;
    bool m_hasNews = false; // the file was written again since the manager started
    bool m_isLeft = false;  // to another settings manager
};
