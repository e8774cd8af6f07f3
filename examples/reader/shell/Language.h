// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QStringList>

class QDomDocument;

/** The language of the reader, the library and Qt, as far as there are catalogues. */
namespace Language {

/** Installs the translators of a language in place of those of the former one. */
void install(const QString &name);

/** The commands that choose a language while the reader runs. */
QStringList commands();
/** Runs one of them. */
void choose(const QString &command);

/** Adds these commands to the first menu of a description, with the language of now checked. */
void addTo(QDomDocument &description);

} // namespace Language
