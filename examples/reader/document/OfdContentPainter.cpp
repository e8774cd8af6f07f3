// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "document/OfdContentPainter.h"

#include "document/OfdFile.h"
#include "ofd/PageText.h"

#include <QPainter>

namespace {

constexpr int faultPixels = 20;

QRectF toPageUnits(const QRectF &rect)
{
    return QRectF(rect.topLeft() * unitsPerMillimetre, rect.size() * unitsPerMillimetre);
}

/** Tells on a page that nothing else can be shown there. */
void paintFault(QPainter &painter, const QSizeF &size, const QString &sentence)
{
    QFont font;
    font.setPixelSize(faultPixels);
    painter.setFont(font);
    painter.setPen(Qt::darkGray);
    const QRectF sheet(QPointF(0, 0), size);
    painter.drawText(sheet.adjusted(faultPixels, faultPixels, -faultPixels, -faultPixels),
                     Qt::AlignCenter | Qt::TextWordWrap, sentence);
}

} // namespace

OfdContentPainter::OfdContentPainter(const std::shared_ptr<const Ofd::Document> &document,
                                     const std::shared_ptr<const HiddenAnnotations> &hidden)
    : m_document(document)
    , m_hidden(hidden)
    , m_painter(document)
{
}

void OfdContentPainter::paint(QPainter &painter, const PaintRequest &request)
{
    const int index = request.index;
    painter.save();
    painter.scale(unitsPerMillimetre, unitsPerMillimetre);
    m_painter.paint(painter, index, hiddenBy(request), request.isAbandoned);
    painter.restore();
    const QString fault = m_document->pages->fault(index);
    if (!fault.isEmpty())
        paintFault(painter, m_document->area(index).size() * unitsPerMillimetre,
                   OfdFile::faultOf(index, fault));
}

QSet<int> OfdContentPainter::hiddenBy(const PaintRequest &request) const
{
    QSet<int> hidden = m_hidden->on(request.index);
    if (!request.forPrint)
        return hidden;
    const auto page = m_document->page(request.index);
    for (int i = 0; i < page->annotations.size(); ++i) {
        if (!page->annotations.at(i).isPrinted)
            hidden.insert(i);
    }
    return hidden;
}

void OfdContentPainter::readText(int index, Page &page)
{
    const Ofd::PageText text = textOf(*m_document, index, m_painter.fonts());
    page.text = text.text;
    page.boxes.clear();
    page.boxes.reserve(text.boxes.size());
    for (const QRectF &box : text.boxes)
        page.boxes.append(toPageUnits(box));
    page.lines.clear();
    for (const Ofd::TextSpan &span : text.lines) {
        TextLine line;
        line.start = span.start;
        line.length = span.length;
        line.rect = toPageUnits(span.rect);
        page.lines.append(line);
    }
}
