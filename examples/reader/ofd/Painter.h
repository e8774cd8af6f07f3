// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/FontSet.h"
#include "ofd/ImageStore.h"

#include <QSet>

#include <atomic>
#include <functional>
#include <map>

class QPainter;

namespace Ofd {

struct Ink;
struct PlacedGlyph;

/**
 * Paints the pages of one document. Every thread needs a painter of its own; painters of the same
 * document wait for each other.
 */
class Painter
{
public:
    explicit Painter(std::shared_ptr<const Document> document);

    const Document &document() const { return *m_document; }
    FontSet &fonts() { return m_fonts; }

    /**
     * Paints the content of a page, without paper, in millimetres from its top left corner.
     * Annotations with the given indexes are left out. Ends early once @p isAbandoned is true,
     * which another thread may set.
     */
    void paint(QPainter &painter, int page, const QSet<int> &hiddenAnnotations = {},
               const std::atomic_bool *isAbandoned = nullptr);

private:
    void paintStamp(QPainter &painter, const Stamp &stamp);
    void paintAll(QPainter &painter, const Objects &objects);
    void paintOne(QPainter &painter, const Object &object);
    /** Calls @p paint with a painter that has the clips from @p first on, which stay. */
    void paintInside(QPainter &painter, const QVector<Clip> &clips,
                     const std::function<void(QPainter &)> &paint, int first = 0);
    void paintPlaced(QPainter &painter, const Object &object);
    QImage pictureOf(const Image &image, QSizeF target);
    QPainterPath outlineOf(const Clip &clip);
    /** Whether the parts of an object would shine through each other if each was transparent. */
    bool hasParts(const Object &object);
    /** What the boundary lets through, in the coordinates of the painter; null for everything. */
    QRectF areaOf(const QPainter &painter, const Object &object);
    void fill(QPainter &painter, const QPainterPath &path, const Paint &paint);
    void stroke(QPainter &painter, const QPainterPath &path, const QPen &pen, const Paint &paint);
    Ink inkOf(const QPainter &painter, const QRectF &bounds, const Paint &paint);
    Ink inkOf(const QPainter &painter, const QRectF &bounds, const Pattern &pattern);
    void paintContent(QPainter &painter, const Object &object, const Path &path);
    void paintContent(QPainter &painter, const Object &object, const Text &text);
    void paintGlyphs(QPainter &painter, const Object &object, const QVector<PlacedGlyph> &glyphs,
                     bool lacksBold);
    void paintContent(QPainter &painter, const Object &object, const Image &image);
    void paintContent(QPainter &painter, const Object &object, const Composite &composite);
    void paintContent(QPainter &painter, const Object &object, const Group &group);

    std::shared_ptr<const Document> m_document;
    std::shared_ptr<const Page> m_shown; ///< The page that is being painted.
    FontSet m_fonts;
    ImageStore m_images;
    /** Of the seals that are documents themselves. */
    std::map<const Document *, std::unique_ptr<Painter>> m_drawings;
    const std::atomic_bool *m_isAbandoned = nullptr; ///< Valid during paint().
    QCache<QPair<qint64, qint64>, QImage> m_masked;  ///< By the keys of the picture and its mask.
    int m_layers = 0;                                ///< That the page needed so far.
    int m_glyphs = 0;                                ///< Of texts on the page so far.
    int m_lines = 0;                                 ///< Stroked paths of the page so far.
    QTransform m_toPage; ///< From the coordinates of the object that is painted.
    int m_openPatterns = 0;
};

} // namespace Ofd
