// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QString>
#include <QStringList>

/** Suggestions for misspelt words. */
namespace Spelling {

/** The candidate that is most similar to @p word; empty if none is similar. */
QString nearest(const QString &word, const QStringList &candidates);

/** The question "did you mean …" as the end of a message; empty without a similar candidate. */
QString hint(const QString &word, const QStringList &candidates);

/** Whether @p word looks like @p meant with a letter wrong, or two in a longer word. */
bool isSlip(const QString &word, const QString &meant);

} // namespace Spelling
