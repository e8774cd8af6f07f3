// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

class QString;

/** Has the reader, the library and the toolkit speak a language, as far as there are catalogues. */
namespace Language {

/** To be called once, before anything is shown. */
void install(const QString &name);

} // namespace Language
