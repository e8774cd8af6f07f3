// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/FontSet.h"
#include "ofd/ImageStore.h"

#include <QSet>

class QPainter;

namespace Ofd {

/** Paints the pages of one document. */
class Painter
{
public:
    explicit Painter(std::shared_ptr<const Document> document);

    const Document &document() const { return *m_document; }
    FontSet &fonts() { return m_fonts; }

    /**
     * Paints the content of a page, without paper, in millimetres from its top left corner.
     * Annotations with the given indexes are left out.
     */
    void paint(QPainter &painter, int page, const QSet<int> &hiddenAnnotations = {});

    /** How many embedded files of each kind cannot be painted. */
    QMap<QString, int> unpaintable() const;

private:
    void paintAll(QPainter &painter, const Objects &objects);
    void paintOne(QPainter &painter, const Object &object);
    void paintClipped(QPainter &painter, const Object &object, int firstClip);
    void paintContent(QPainter &painter, const Object &object, const Path &path);
    void paintContent(QPainter &painter, const Object &object, const Text &text);
    void paintContent(QPainter &painter, const Object &object, const Image &image);
    void paintContent(QPainter &painter, const Object &object, const Composite &composite);
    void paintContent(QPainter &painter, const Object &object, const Group &group);

    std::shared_ptr<const Document> m_document;
    FontSet m_fonts;
    ImageStore m_images;
};

} // namespace Ofd
