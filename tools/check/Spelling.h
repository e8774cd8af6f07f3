// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

/** Guesses at the word that was meant. */
namespace Spelling {

/** The candidate that @p word was probably meant to be; empty if none is near. */
QString nearest(const QString &word, const QStringList &candidates);

/** The end of a sentence that asks whether the nearest candidate was meant; empty without one. */
QString hint(const QString &word, const QStringList &candidates);

} // namespace Spelling
