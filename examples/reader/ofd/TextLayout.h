// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/FontSet.h"

namespace Ofd {

/** One character, or one glyph of several, where it stands in the space of its text object. */
struct PlacedGlyph
{
    QString text; ///< Empty for a second glyph of the same characters.
    const Glyph *glyph = nullptr;
    QTransform place; ///< From the glyph's em.
    qreal width = 0;  ///< Up to the next character, in ems of @ref place.
};

/** Places the characters of a run; the glyphs belong to the face. */
QVector<PlacedGlyph> layOut(const Text &text, const TextRun &run, Face &face);

} // namespace Ofd
