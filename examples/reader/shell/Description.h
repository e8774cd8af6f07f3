// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDomDocument>

#include <optional>

/** Why a text is no description, and where; both count from 1, a 0 stands for no place. */
struct DescriptionFault
{
    QString message;
    int line = 0;
    int column = 0;
};

/** Reading the description of a toolbar, and what a host may add to it. */
namespace Description {

/**
 * Reads a description from a file, or one that the library brings along.
 *
 * @param name  a path, or "release" or "debug" for the shipped ones of the skin.
 * @param error gets one line that tells what is wrong; empty if nothing is.
 */
QDomDocument read(const QString &name, const QString &skin, QString *error);

/** Whether the name stands for a description that the library brings along. */
bool isShipped(const QString &name);

/** Reads a description from the content of a file; @p fault is set if it is none. */
QDomDocument parse(const QByteArray &content, std::optional<DescriptionFault> *fault);

/** Whether a button, an entry of a menu or one of a list bears the name. */
bool offers(const QDomDocument &description, const QString &name);

/** Lets a toolbar begin with the tab of that name, if it has one, whichever is described so. */
void beginWithTab(QDomDocument &description, const QString &name);

/**
 * Ends the menu of recent files with an entry that clears it. Only with such an entry does the
 * toolbar list recent files; the shipped descriptions have none.
 */
void addClearHistory(QDomDocument &description);

} // namespace Description
