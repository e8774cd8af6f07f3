// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QList>
#include <QStringList>

struct Controller;

/** The letters that lead to controls while key tips are shown. */
namespace KeyTipLetters {

/** The described letters of a record as they are typed; empty if it has none that can be. */
QString described(const Controller &record);

/** Whether typing one of the two would already be typing the other. */
bool collide(const QString &one, const QString &other);

/**
 * The letters of records that are shown together, in their order: the described ones, where they
 * collide those of the first, and for the others one letter of their text, name or icon, or else
 * another one, or two letters where one is not enough. They depend on the records alone, and so a
 * control keeps them whatever is shown. Empty where even two letters are not enough.
 */
QStringList assigned(const QList<const Controller *> &records);

} // namespace KeyTipLetters
