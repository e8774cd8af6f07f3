// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/Document.h"

#include <toolbar/ToolBarTypes.h>

class QPainter;

/** The colours of a background mode for a page and for the surface around it. */
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

/** The selection and the hits, which are shown on top of the text. */
struct PageDecoration
{
    QList<TextRange> hits;
    TextRange currentHit;
    QList<TextRange> selection;
    bool revisionsVisible = true;
    bool forPrint = false; ///< Leaves out display masks and what the file keeps from printers.
};

/** Paints a page in page units; the origin is its top left corner. */
void paintPage(QPainter &painter, const Document &document, int index, const PageColours &colours,
               const PageDecoration &decoration);

/** The lower layers of paintPage(): the paper, what is behind the text, and the text. */
void paintSheet(QPainter &painter, const Document &document, int index, const PageColours &colours,
                const PageDecoration &decoration);
/** The upper layers of paintPage(): marks and selection, and the hits on a page from a file. */
void paintOver(QPainter &painter, const Document &document, int index, const PageColours &colours,
               const PageDecoration &decoration);
