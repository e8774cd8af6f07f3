// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "document/HiddenAnnotations.h"
#include "document/Page.h"
#include "ofd/Painter.h"

/** Paints the pages of an OFD document in page units; a page that is damaged says so. */
class OfdContentPainter : public ContentPainter
{
public:
    OfdContentPainter(const std::shared_ptr<const Ofd::Document> &document,
                      const std::shared_ptr<const HiddenAnnotations> &hidden);

    const std::shared_ptr<const Ofd::Document> &document() const { return m_document; }
    const std::shared_ptr<const HiddenAnnotations> &hidden() const { return m_hidden; }

    void paint(QPainter &painter, const PaintRequest &request) override;
    void readText(int index, Page &page) override;

private:
    QSet<int> hiddenBy(const PaintRequest &request) const;

    std::shared_ptr<const Ofd::Document> m_document;
    std::shared_ptr<const HiddenAnnotations> m_hidden;
    Ofd::Painter m_painter;
};
