#pragma once

#include <QDomDocument>

/** Reading the description of a toolbar, and what a host may add to it. */
namespace Description {

/**
 * Reads a description from a file, or one that the library brings along.
 *
 * @param name  a path, or "release" or "debug" for the shipped ones of the skin.
 * @param error gets one line that tells what is wrong; empty if nothing is.
 */
QDomDocument read(const QString &name, const QString &skin, QString *error);

/**
 * Ends the menu of recent files with an entry that clears it. Only with such an entry does the
 * toolbar list recent files; the shipped descriptions have none.
 */
void addClearHistory(QDomDocument &description);

} // namespace Description
