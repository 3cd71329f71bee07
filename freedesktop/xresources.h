#pragma once

#include <QByteArray>
#include <QStringList>

#include <vector>

/// The file of the user's own X resources.
QString userXresources();

/// \a text with \a line (without its end; null: none) as the only one of the resource \a name; every other byte stays.
/// Of several lines the last one, which counts, is replaced; a new one is appended. A backslash continues a line on
/// the next one, also in a comment; one that is itself written with a backslash does not.
QByteArray withXresource(const QByteArray &text, const QByteArray &name, const QByteArray &line);

/// \a text, ended so that what is appended stands on a line of its own.
QByteArray endedXresources(QByteArray text);

/// Runs xrdb with \a arguments and \a input, for up to 30 s. False when it did not start, which is not told, and when it
/// took too long or failed, which one line on standard error tells.
bool runXrdb(const QStringList &arguments, const QByteArray &input = {});

/// The text of one resource property of the X server: the resources of all screens, or those of one.
struct ServerResource {
    unsigned long window;   ///< root window that carries it
    unsigned long property; ///< atom
    unsigned long type;     ///< atom
    QByteArray text;
};

/// Every resource property of the server, one that it does not have with an empty text.
std::vector<ServerResource> readServerResources();

/// Gives each property of \a wanted its text, where it has another one now; an empty text removes it. Returns when
/// the server has done so.
void writeServerResources(const std::vector<ServerResource> &wanted);
