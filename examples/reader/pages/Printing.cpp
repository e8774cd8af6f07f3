// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "pages/Printing.h"

#include "document/Document.h"
#include "pages/PagePainter.h"

#include <QCoreApplication>
#include <QFileInfo>
#include <QPageLayout>
#include <QPainter>
#include <QPrintDialog>
#include <QPrinter>

#include <algorithm>

namespace {

constexpr qreal pointsPerInch = 72;

QList<int> pagesToPrint(const Document &document, int currentPage, const QPrinter &printer)
{
    if (printer.printRange() == QPrinter::CurrentPage)
        return {currentPage};
    int first = 1;
    int last = document.pageCount();
    if (printer.printRange() == QPrinter::PageRange && printer.fromPage() > 0) {
        first = printer.fromPage();
        last = std::min(last, printer.toPage());
    }
    QList<int> pages;
    for (int number = first; number <= last; ++number)
        pages.append(number - 1);
    if (printer.pageOrder() == QPrinter::LastPageFirst)
        std::reverse(pages.begin(), pages.end());
    return pages;
}

/** A PDF file gets pages of any size; a printer keeps its paper, in either orientation. */
void setSheet(QPrinter &printer, QSizeF size)
{
    if (printer.outputFormat() == QPrinter::PdfFormat) {
        printer.setPageOrientation(QPageLayout::Portrait);
        printer.setPageSize(QPageSize(size * pointsPerInch / unitsPerInch, QPageSize::Point,
                                      QString(), QPageSize::ExactMatch));
        return;
    }
    printer.setPageOrientation(size.width() > size.height() ? QPageLayout::Landscape
                                                            : QPageLayout::Portrait);
}

/** Paints a page centred on the paper, in its true size if the paper is large enough. */
void paintOnSheet(QPainter &painter, const QPrinter &printer, const Document &document, int page)
{
    const QSizeF size = document.sizeOf(page);
    const QRectF paper = printer.pageLayout().fullRectPixels(printer.resolution());
    const qreal fitting = std::min(paper.width() / size.width(), paper.height() / size.height());
    const qreal scale = std::min(printer.resolution() / unitsPerInch, fitting);
    PageDecoration decoration;
    decoration.forPrint = true;
    painter.save();
    painter.translate((paper.width() - size.width() * scale) / 2,
                      (paper.height() - size.height() * scale) / 2);
    painter.scale(scale, scale);
    painter.setClipRect(QRectF(QPointF(0, 0), size));
    paintPage(painter, document, page, PageColours::of(Background_Default), decoration);
    painter.restore();
}

} // namespace

bool Printing::ask(const Document &document, int currentPage, QWidget *parent)
{
    QPrinter printer(QPrinter::HighResolution);
    printer.setDocName(document.title());
    printer.setFromTo(1, document.pageCount());
    printer.setPrintRange(QPrinter::AllPages);
    QPrintDialog dialog(&printer, parent);
    dialog.setWindowTitle(QCoreApplication::translate("Printing", "打印"));
    dialog.setOption(QAbstractPrintDialog::PrintCurrentPage);
    dialog.setMinMax(1, document.pageCount());
    if (dialog.exec() != QDialog::Accepted)
        return false;
    const int mostCopies = document.file().permissions.mostCopies;
    if (mostCopies >= 0)
        printer.setCopyCount(std::min(printer.copyCount(), mostCopies));
    return print(document, currentPage, printer);
}

bool Printing::print(const Document &document, int currentPage, QPrinter &printer)
{
    const QList<int> pages = pagesToPrint(document, currentPage, printer);
    if (pages.isEmpty())
        return false;
    printer.setFullPage(true);
    setSheet(printer, document.sizeOf(pages.first()));
    QPainter painter;
    if (!painter.begin(&printer))
        return false;
    const int copies = printer.supportsMultipleCopies() ? 1 : printer.copyCount();
    bool isFirst = true;
    for (int copy = 0; copy < copies; ++copy) {
        for (const int page : pages) {
            setSheet(printer, document.sizeOf(page));
            if (!isFirst && !printer.newPage())
                return false;
            isFirst = false;
            paintOnSheet(painter, printer, document, page);
        }
    }
    return painter.end();
}
