// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QDomDocument>

#include <optional>

/** Why a text is not a description. Line and column count from 1 and are 0 if unknown. */
struct DescriptionFault
{
    QString message;
    int line = 0;
    int column = 0;
};

/** Functions that read a description and change it before the toolbar gets it. */
namespace Description {

/**
 * Reads a description from a file, or one that is part of the reader or the library.
 *
 * @param name  a path, "reader" for the reader's own, or "release" or "debug" for the shipped ones
 *              of the skin.
 * @param error is set to one line about the failure; empty on success.
 */
QDomDocument read(const QString &name, const QString &skin, QString *error);

/** Whether the name means a description that is part of the reader or the library. */
bool isBuiltIn(const QString &name);

/** Reads a description from the content of a file; sets @p fault if that is not a description. */
QDomDocument parse(const QByteArray &content, std::optional<DescriptionFault> *fault);

/** Checks the tab of that name and unchecks the others; no effect without such a tab. */
void beginWithTab(QDomDocument &description, const QString &name);

/**
 * Adds the entry that clears the recent files to the end of their menu. Without it the toolbar
 * lists no recent files, and the shipped descriptions lack it. No effect on one that has it.
 */
void addClearHistory(QDomDocument &description);

} // namespace Description
