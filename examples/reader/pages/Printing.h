// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

class Document;
class QPrinter;
class QWidget;

/** Putting a document on paper, or into a PDF file that a printer dialog asks for. */
namespace Printing {

/** Lets the user choose; returns false if the user thought better of it or nothing came out. */
bool ask(const Document &document, int currentPage, QWidget *parent);

/** Prints the pages that the printer is set to, with print masks and without display masks. */
bool print(const Document &document, int currentPage, QPrinter &printer);

} // namespace Printing
