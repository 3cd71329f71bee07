#pragma once

#include <QByteArray>

#include <vector>

/// The text of one resource property of the X server: the resources of all screens, or those of one.
struct ServerResource {
    unsigned long window;   ///< root window that carries it
    unsigned long property; ///< atom
    unsigned long type;     ///< atom
    QByteArray text;
};

/// Every resource property that the server has now.
std::vector<ServerResource> readServerResources();

/// Gives each property of \a wanted its text, where it has another one now; an empty text removes it. Returns when
/// the server has done so.
void writeServerResources(const std::vector<ServerResource> &wanted);

/// The lines of a resource \a text without those of the resource \a name, continued lines included.
QByteArray withoutResource(const QByteArray &text, const QByteArray &name);

/// What Xlib's lookup of the default "dpi" of "Xft" finds in the server's resources as they are now, or null.
QByteArray xftDpiResource();

/// Stamps the root window with the current time: running programs built on the toolkit read their settings again.
void stampSettingsChange();
