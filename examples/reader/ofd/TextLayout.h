// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/FontSet.h"

namespace Ofd {

/** One glyph of a character with its position in the coordinates of the text object. */
struct PlacedGlyph
{
    QString text; ///< Empty for a second glyph of the same characters.
    const Glyph *glyph = nullptr;
    QTransform place; ///< From glyph coordinates, with an em of 1.
    qreal width = 0;  ///< Up to the next character, in ems of @ref place.
};

/** Places the characters of a run. The face owns the glyphs. */
QVector<PlacedGlyph> layOut(const Text &text, const TextRun &run, Face &face);

} // namespace Ofd
