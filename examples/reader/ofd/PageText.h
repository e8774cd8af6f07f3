// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/FontSet.h"

namespace Ofd {

/** One run of characters on a line; `start` and `length` point into the text of the page. */
struct TextSpan
{
    int start = 0;
    int length = 0;
    QRectF rect;
};

/** The text of a page in the order of reading, with the rectangle of each character. */
struct PageText
{
    QString text;
    QVector<QRectF> boxes; ///< For each UTF-16 unit, in millimetres; null for a line break.
    QVector<TextSpan> lines;
};

PageText textOf(const Document &document, int page, FontSet &fonts);

} // namespace Ofd
