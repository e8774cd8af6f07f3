// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

class QString;

/** The language of the reader, the library and Qt, as far as there are catalogues. */
namespace Language {

/** Installs the translators. Call this before any widget is created. */
void install(const QString &name);

} // namespace Language
