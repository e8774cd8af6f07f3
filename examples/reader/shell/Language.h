// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

class QDomDocument;

/** The language of the reader, the library and Qt, as far as there are catalogues. */
namespace Language {

/** The language for somebody who has chosen none: that of the system, if the reader has it. */
QString ofSystem();

/** Installs the translators of a language in place of those of the former one. */
void install(const QString &name);

/** The commands that choose a language while the reader runs. */
QStringList commands();
/** Runs one of them; the language comes back with the next start. */
void choose(const QString &command);
/** Whether the language of such a command is installed. */
bool isChosen(const QString &command);

/** Adds these commands to the first menu of a description. */
void addTo(QDomDocument &description);

} // namespace Language
