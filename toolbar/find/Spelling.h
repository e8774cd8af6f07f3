// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QHash>
#include <QSet>
#include <QString>

/** How ideographs are spelt in Latin letters, so that they are found by what is typed for them. */
namespace Spelling {

/** The ideographs among the characters of a text. */
QSet<QChar> ideographs(const QString &text);

/**
 * The syllables, such as "suo" for 缩; none for what has no spelling, and none at all where the
 * library is built without the means. The first call of a process takes a fifth of a second. It may
 * be made in any thread.
 */
QHash<QChar, QString> syllables(const QSet<QChar> &ideographs);

/** The initials of a text and, as a second word, its whole spelling: "sf suofang" for 缩放. */
QString spelt(const QString &text, const QHash<QChar, QString> &syllables);

} // namespace Spelling
