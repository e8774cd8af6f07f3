// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/Document.h"

#include <toolbar/ToolBarTypes.h>

class QPainter;

/** The colours that a background mode gives to a page and to what lies around it. */
struct PageColours
{
    QColor paper;
    QColor ink;
    QColor desk;

    static PageColours of(BackgroundStyle style);
};

/** A range of the text of one page. */
struct TextRange
{
    int page = -1;
    int start = 0;
    int length = 0;

    bool isEmpty() const { return page < 0 || length <= 0; }
};

/** What is shown on top of the text, besides the marks. */
struct PageDecoration
{
    QList<TextRange> hits;
    TextRange currentHit;
    QList<TextRange> selection;
    bool revisionsVisible = true;
    bool forPrint = false; ///< Print masks cover what is printed; display masks what is shown.
};

/** Draws a page in page units; the painter is already at its top left corner. */
void paintPage(QPainter &painter, const Document &document, int index, const PageColours &colours,
               const PageDecoration &decoration);

/** The lower half of that: paper, text and what lies behind the text. */
void paintSheet(QPainter &painter, const Document &document, int index, const PageColours &colours,
                const PageDecoration &decoration);
/** The upper half: the marks and the selection; on a page from a file also what was found. */
void paintOver(QPainter &painter, const Document &document, int index, const PageColours &colours,
               const PageDecoration &decoration);
