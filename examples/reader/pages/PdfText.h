// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

class QPainter;
struct Page;

/**
 * Adds the text of a page from a file to a PDF page, at its place but invisible: the page shows
 * outlines of glyphs, in which a viewer could neither find nor copy anything. In page units.
 */
void addHiddenText(QPainter &painter, const Page &page);
