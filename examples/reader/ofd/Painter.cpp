// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Painter.h"

#include "ofd/DensePath.h"
#include "ofd/Fault.h"
#include "ofd/Limits.h"
#include "ofd/TextLayout.h"
#include "ofd/Wording.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Ofd {

namespace {

/** In device pixels; thinner lines would be visible at some zooms only. */
constexpr qreal leastLineWidth = 0.7;
/** As a share of an em, on each side of an outline that must look bold. */
constexpr qreal boldStroke = 0.03;

qreal scaleOf(const QPainter &painter)
{
    return std::sqrt(std::abs(painter.deviceTransform().determinant()));
}

bool isOnDevice(const QPainter &painter, const QRectF &rect)
{
    const QRectF device(0, 0, painter.device()->width() * painter.device()->devicePixelRatioF(),
                        painter.device()->height() * painter.device()->devicePixelRatioF());
    // The rectangle of a straight line has no area and would intersect nothing.
    const QRectF mapped = painter.deviceTransform().mapRect(rect).adjusted(-1, -1, 1, 1);
    return mapped.intersects(device);
}

QPen visiblePen(const QPainter &painter, const Style &style, const QPainterPath &path)
{
    QPen pen = style.pen();
    const qreal scale = scaleOf(painter);
    qreal period = 0;
    for (const qreal length : style.dashes.value_or(QVector<qreal>()))
        period += length;
    if (period > 0 && path.length() / period > Limits::dashesPerPath)
        pen.setStyle(Qt::SolidLine);
    else if (scale > 0 && pen.widthF() * scale < leastLineWidth && period <= 0)
        pen.setWidthF(leastLineWidth / scale);
    return pen;
}

/** Lengths of the sides of the unit square on the device. */
QSizeF deviceSize(const QTransform &transform)
{
    return QSizeF(std::hypot(transform.m11(), transform.m12()),
                  std::hypot(transform.m21(), transform.m22()));
}

/**
 * Fills each glyph separately in device coordinates, which takes Qt a tenth of the time for one
 * path of all glyphs under a transform.
 */
void fillGlyphs(QPainter &painter, const QVector<PlacedGlyph> &glyphs, const QBrush &brush)
{
    const QTransform toWorld = painter.worldTransform();
    painter.setWorldTransform(QTransform());
    for (const PlacedGlyph &placed : glyphs) {
        if (!placed.glyph)
            continue;
        const QPainterPath path = (placed.place * toWorld).map(placed.glyph->path);
        if (isOnDevice(painter, path.controlPointRect()))
            painter.fillPath(path, brush);
    }
    painter.setWorldTransform(toWorld);
}

void fillPath(QPainter &painter, const QPainterPath &path, const QBrush &brush)
{
    if (DensePath::isDense(painter, path))
        DensePath::fill(painter, path, brush);
    else
        painter.fillPath(path, brush);
}

void strokePath(QPainter &painter, const QPainterPath &path, const QPen &pen)
{
    if (DensePath::isDense(painter, path))
        DensePath::stroke(painter, path, pen);
    else
        painter.strokePath(path, pen);
}

QPainterPath outlinesOf(const QVector<PlacedGlyph> &glyphs)
{
    QPainterPath outlines;
    outlines.setFillRule(Qt::WindingFill);
    for (const PlacedGlyph &placed : glyphs) {
        if (placed.glyph)
            outlines.addPath(placed.place.map(placed.glyph->path));
    }
    return outlines;
}

} // namespace

Painter::Painter(std::shared_ptr<const Document> document)
    : m_document(std::move(document))
    , m_fonts(*m_document)
    , m_images(*m_document)
{
}

QMap<QString, int> Painter::unpaintable() const
{
    QMap<QString, int> counts;
    const auto test = [&](const QString &file, const QString &kind, auto isReadable) {
        try {
            if (!file.isEmpty() && !isReadable(m_document->package->read(file)))
                ++counts[kind];
        } catch (const Fault &) {
            ++counts[kind];
        }
    };
    for (const Font &font : m_document->resources.fonts)
        test(font.file, Wording::tr("嵌入字体"), Face::isReadable);
    for (const QString &file : m_document->resources.images)
        test(file, Wording::tr("图像"), ImageStore::isReadable);
    return counts;
}

void Painter::paint(QPainter &painter, int page, const QSet<int> &hiddenAnnotations)
{
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    const Page &shown = m_document->pages.at(page);
    painter.translate(-shown.area.topLeft());
    for (const auto &layer : shown.layers)
        paintAll(painter, *layer);
    for (int i = 0; i < shown.annotations.size(); ++i) {
        const Annotation &annotation = shown.annotations.at(i);
        if (annotation.isVisible && !hiddenAnnotations.contains(i))
            paintAll(painter, {annotation.appearance});
    }
    painter.restore();
}

void Painter::paintAll(QPainter &painter, const Objects &objects)
{
    for (const Object &object : objects) {
        if (object.alpha > 0)
            paintOne(painter, object);
    }
}

void Painter::paintOne(QPainter &painter, const Object &object)
{
    painter.save();
    painter.setOpacity(painter.opacity() * object.alpha);
    painter.setTransform(object.placement(), true);
    paintClipped(painter, object, 0);
    painter.restore();
}

void Painter::paintClipped(QPainter &painter, const Object &object, int firstClip)
{
    for (int i = firstClip; i < object.clips.size(); ++i) {
        const QPainterPath &clip = object.clips.at(i);
        if (DensePath::isDense(painter, clip)) {
            DensePath::paintInside(painter, clip,
                                   [&](QPainter &inside) { paintClipped(inside, object, i + 1); });
            return;
        }
        painter.setClipPath(clip, Qt::IntersectClip);
    }
    std::visit([&](const auto &content) { paintContent(painter, object, content); },
               object.content);
}

void Painter::paintContent(QPainter &painter, const Object &object, const Path &path)
{
    const QPen pen = visiblePen(painter, object.style, path.path);
    const qreal margin = pen.widthF() * std::max(1.0, pen.miterLimit());
    const QRectF bounds = path.path.controlPointRect();
    if (!isOnDevice(painter, bounds.adjusted(-margin, -margin, margin, margin)))
        return;
    if (path.isFilled)
        fillPath(painter, path.path, object.style.fillBrush());
    if (path.isStroked)
        strokePath(painter, path.path, pen);
}

void Painter::paintContent(QPainter &painter, const Object &object, const Text &text)
{
    Face &face = m_fonts.faceOf(text);
    const QBrush fill = object.style.fillBrush();
    const bool mustThicken = text.isFilled && face.lacksBold();
    const bool isPlain = text.isFilled && fill.style() == Qt::SolidPattern;
    for (const TextRun &run : text.runs) {
        const QVector<PlacedGlyph> glyphs = layOut(text, run, face);
        if (isPlain)
            fillGlyphs(painter, glyphs, fill);
        if (isPlain && !mustThicken && !text.isStroked)
            continue;
        const QPainterPath outlines = outlinesOf(glyphs);
        if (!isOnDevice(painter, outlines.controlPointRect()))
            continue;
        if (text.isFilled && !isPlain)
            fillPath(painter, outlines, fill);
        if (mustThicken)
            strokePath(painter, outlines, QPen(fill, text.size * boldStroke));
        if (text.isStroked)
            strokePath(painter, outlines, visiblePen(painter, object.style, outlines));
    }
}

void Painter::paintContent(QPainter &painter, const Object &object, const Image &image)
{
    // Without a matrix the picture would be one millimetre wide; writers mean the whole boundary.
    if (object.matrix.isIdentity())
        painter.scale(object.boundary.width(), object.boundary.height());
    const QRectF square(0, 0, 1, 1);
    if (!isOnDevice(painter, square))
        return;
    const QImage picture = m_images.image(image.resource, deviceSize(painter.deviceTransform()));
    if (!picture.isNull())
        painter.drawImage(square, picture);
}

void Painter::paintContent(QPainter &painter, const Object &, const Composite &composite)
{
    if (const auto objects = m_document->resources.composites.value(composite.resource))
        paintAll(painter, *objects);
}

void Painter::paintContent(QPainter &painter, const Object &, const Group &group)
{
    paintAll(painter, *group.objects);
}

} // namespace Ofd
