// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QIcon>

class Appearance;

/**
 * An icon of a row as it is drawn on the top line, in the colours that the appearance has whenever
 * it is painted: where the top line is coloured, in light lines, or as the skin's own drawing for
 * such a ground. Without a file it is the letter.
 */
QIcon topLineIconOf(const QString &path, const QString &letter, const Appearance &appearance);
