// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

class Document;
class QPrinter;
class QWidget;

/** Printing on paper, or into a PDF file that is chosen in the print dialog. */
namespace Printing {

/** Shows the print dialog and prints; returns false if it was cancelled or printing failed. */
bool ask(const Document &document, int currentPage, QWidget *parent);

/** Prints the page range of the printer, with print masks and without display masks. */
bool print(const Document &document, int currentPage, QPrinter &printer);

} // namespace Printing
