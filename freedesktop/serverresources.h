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

/// Every resource property of the server, one that it does not have with an empty text.
std::vector<ServerResource> readServerResources();

/// Gives each property of \a wanted its text, where it has another one now; an empty text removes it. Returns when
/// the server has done so.
void writeServerResources(const std::vector<ServerResource> &wanted);
