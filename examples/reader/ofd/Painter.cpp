// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Painter.h"

#include "ofd/DensePath.h"
#include "ofd/ImageMask.h"
#include "ofd/Limits.h"
#include "ofd/PaintLayer.h"
#include "ofd/PathData.h"
#include "ofd/TextLayout.h"

#include <QPainter>

#include <algorithm>
#include <cmath>

namespace Ofd {

namespace {

/** In device pixels; thinner lines would be visible at some zooms only. */
constexpr qreal leastLineWidth = 0.7;
/** As a share of an em, on each side of an outline that must look bold. */
constexpr qreal boldStroke = 0.03;
/** As a share of an em, how far the glyphs of a replaced font may exceed the boundary. */
constexpr qreal replacedMargin = 0.25;
constexpr int mostMaskedKilobytes = 64 << 10;

qreal scaleOf(const QPainter &painter)
{
    return std::sqrt(std::abs(painter.deviceTransform().determinant()));
}

QRectF deviceRect(const QPainter &painter)
{
    return QRectF(0, 0, painter.device()->width() * painter.device()->devicePixelRatioF(),
                  painter.device()->height() * painter.device()->devicePixelRatioF());
}

bool isOnDevice(const QPainter &painter, const QRectF &rect)
{
    // The rectangle of a straight line has no area and would intersect nothing.
    const QRectF mapped = painter.deviceTransform().mapRect(rect).adjusted(-1, -1, 1, 1);
    return mapped.intersects(deviceRect(painter));
}

/**
 * Clips to a rectangle that is extended to whole pixels, so that what ends at its edges stays as it
 * is. A turned one cannot be extended.
 */
void clipTo(QPainter &painter, const QRectF &rect)
{
    const QTransform toDevice = painter.deviceTransform();
    const bool isTurned = toDevice.type() > QTransform::TxScale;
    const QRectF pixels((toDevice.mapRect(rect) & deviceRect(painter)).toAlignedRect());
    painter.setClipRect(isTurned ? rect : toDevice.inverted().mapRect(pixels), Qt::IntersectClip);
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

/** Lengths of the sides of the unit square under a transform. */
QSizeF sizeOf(const QTransform &transform)
{
    return QSizeF(std::hypot(transform.m11(), transform.m12()),
                  std::hypot(transform.m21(), transform.m22()));
}

/** The shape of a picture of that size, inset on all sides. */
QPainterPath frameOf(QSizeF size, const Border &border, qreal inset)
{
    const QRectF frame = QRectF(QPointF(), size).adjusted(inset, inset, -inset, -inset);
    const QSizeF radii = border.cornerRadii - QSizeF(inset, inset);
    QPainterPath path;
    path.addRoundedRect(frame, std::max(0.0, radii.width()), std::max(0.0, radii.height()));
    return path;
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

void paintBorder(QPainter &painter, const Border &border, QSizeF size)
{
    const qreal width = border.line.pen().widthF();
    if (width <= 0)
        return;
    const QPainterPath frame = frameOf(size, border, width / 2);
    strokePath(painter, frame, visiblePen(painter, border.line, frame));
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
    , m_masked(mostMaskedKilobytes)
{
}

QMap<QString, int> Painter::unpaintable() const
{
    QMap<QString, int> counts;
    FontSet::countFaults(*m_document, &counts);
    ImageStore::countFaults(*m_document, &counts);
    return counts;
}

void Painter::paint(QPainter &painter, int page, const std::atomic_bool *isAbandoned)
{
    m_layers = 0;
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    m_shown = m_document->page(page);
    const std::lock_guard<std::mutex> lock(m_document->painting);
    m_isAbandoned = isAbandoned;
    painter.translate(-m_shown->area.topLeft());
    for (const auto &layer : m_shown->layers)
        paintAll(painter, *layer);
    for (const Annotation &annotation : m_shown->annotations) {
        if (annotation.isVisible)
            paintAll(painter, {annotation.appearance});
    }
    const QVector<Stamp> stamps = m_document->stamps.value(page);
    for (const Stamp &stamp : stamps)
        paintStamp(painter, stamp);
    m_shown.reset();
    painter.restore();
}

void Painter::paintStamp(QPainter &painter, const Stamp &stamp)
{
    if (!stamp.drawing) {
        paintOne(painter, stamp.object);
        return;
    }
    std::unique_ptr<Painter> &drawing = m_drawings[stamp.drawing.get()];
    if (!drawing)
        drawing = std::make_unique<Painter>(stamp.drawing);
    const QRectF sheet(QPointF(), stamp.drawing->area(0).size());
    const QSizeF size = stamp.object.boundary.size();
    painter.save();
    for (const Clip &clip : stamp.object.clips)
        painter.setClipPath(clip.path, Qt::IntersectClip);
    painter.setTransform(stamp.object.placement(), true);
    painter.scale(size.width() / sheet.width(), size.height() / sheet.height());
    painter.setClipRect(sheet, Qt::IntersectClip);
    drawing->paint(painter, 0);
    painter.restore();
}

void Painter::paintAll(QPainter &painter, const Objects &objects)
{
    for (const Object &object : objects) {
        if (m_isAbandoned && *m_isAbandoned)
            return;
        if (object.alpha > 0)
            paintOne(painter, object);
    }
}

void Painter::paintOne(QPainter &painter, const Object &object)
{
    const QRectF area = areaOf(painter, object);
    if (!area.isNull() && !isOnDevice(painter, area))
        return;
    painter.save();
    painter.setOpacity(painter.opacity() * object.alpha);
    if (!area.isNull())
        clipTo(painter, area);
    if (painter.opacity() < 1 && hasParts(object) && ++m_layers <= Limits::layersPerPage)
        PaintLayer::paint(painter, [&](QPainter &layer) { paintClipped(layer, object, 0); });
    else
        paintClipped(painter, object, 0);
    painter.restore();
}

bool Painter::hasParts(const Object &object)
{
    if (const auto *path = std::get_if<Path>(&object.content))
        return path->isFilled && path->isStroked && object.style.fill;
    if (const auto *text = std::get_if<Text>(&object.content))
        return (text->isStroked && object.style.stroke) || m_fonts.faceOf(*text).lacksBold();
    if (const auto *image = std::get_if<Image>(&object.content))
        return image->border.has_value();
    if (const auto *group = std::get_if<Group>(&object.content))
        return group->objects->size() > 1;
    return true;
}

QRectF Painter::areaOf(const QPainter &painter, const Object &object)
{
    // Nothing fits into an empty boundary, but writers give lines such ones.
    if (object.boundary.isEmpty())
        return QRectF();
    const qreal scale = std::sqrt(std::abs(object.matrix.determinant()));
    qreal margin = 0;
    if (const auto *path = std::get_if<Path>(&object.content)) {
        // Many writers leave the width of lines out of the boundary.
        const qreal visible = leastLineWidth / std::max(scaleOf(painter), 1 / Limits::number);
        if (path->isStroked)
            margin = std::max(object.style.pen().widthF() * scale, visible) / 2;
    } else if (const auto *text = std::get_if<Text>(&object.content)) {
        // The boundary is that of other glyphs if the font is replaced.
        if (!m_fonts.faceOf(*text).isEmbedded())
            margin = text->size * scale * replacedMargin;
    }
    return object.boundary.adjusted(-margin, -margin, margin, margin);
}

void Painter::paintClipped(QPainter &painter, const Object &object, int firstClip)
{
    for (int i = firstClip; i < object.clips.size(); ++i) {
        const QPainterPath clip = outlineOf(object.clips.at(i));
        if (DensePath::isDense(painter, clip)) {
            DensePath::paintInside(painter, clip,
                                   [&](QPainter &inside) { paintClipped(inside, object, i + 1); });
            return;
        }
        painter.setClipPath(clip, Qt::IntersectClip);
    }
    painter.setTransform(object.placement(), true);
    std::visit([&](const auto &content) { paintContent(painter, object, content); },
               object.content);
}

QPainterPath Painter::outlineOf(const Clip &clip)
{
    QPainterPath outline = clip.path;
    for (const Clip::TextArea &area : clip.texts) {
        Face &face = m_fonts.faceOf(area.text);
        for (const TextRun &run : area.text.runs)
            unite(outline, area.place.map(outlinesOf(layOut(area.text, run, face))));
    }
    return outline;
}

void Painter::paintContent(QPainter &painter, const Object &object, const Path &path)
{
    const QPen pen = visiblePen(painter, object.style, path.path);
    const qreal margin = pen.widthF() * std::max(1.0, pen.miterLimit());
    const QRectF bounds = path.path.controlPointRect();
    if (!isOnDevice(painter, bounds.adjusted(-margin, -margin, margin, margin)))
        return;
    if (path.isFilled && object.style.fill)
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
    // Unlike a path, letters have no outline without a colour for it.
    const bool isStroked = text.isStroked && object.style.stroke;
    for (const TextRun &run : text.runs) {
        const QVector<PlacedGlyph> glyphs = layOut(text, run, face);
        if (isPlain)
            fillGlyphs(painter, glyphs, fill);
        if (isPlain && !mustThicken && !isStroked)
            continue;
        const QPainterPath outlines = outlinesOf(glyphs);
        if (!isOnDevice(painter, outlines.controlPointRect()))
            continue;
        if (text.isFilled && !isPlain)
            fillPath(painter, outlines, fill);
        if (mustThicken)
            strokePath(painter, outlines, QPen(fill, text.size * boldStroke));
        if (isStroked)
            strokePath(painter, outlines, visiblePen(painter, object.style, outlines));
    }
}

void Painter::paintContent(QPainter &painter, const Object &object, const Image &image)
{
    // Without a matrix the picture would be one millimetre wide; writers mean the whole boundary.
    const bool isWhole = object.matrix.isIdentity();
    const QSizeF size = isWhole ? object.boundary.size() : sizeOf(object.matrix);
    if (isWhole)
        painter.scale(size.width(), size.height());
    const QRectF square(0, 0, 1, 1);
    if (size.isEmpty() || !isOnDevice(painter, square))
        return;
    const QImage picture = pictureOf(image, sizeOf(painter.deviceTransform()));
    const QTransform toSquare = QTransform::fromScale(1 / size.width(), 1 / size.height());
    painter.save();
    if (image.border)
        painter.setClipPath(toSquare.map(frameOf(size, *image.border, 0)), Qt::IntersectClip);
    if (!picture.isNull())
        painter.drawImage(square, picture);
    painter.restore();
    painter.setTransform(toSquare, true);
    if (image.border)
        paintBorder(painter, *image.border, size);
}

QImage Painter::pictureOf(const Image &image, QSizeF target)
{
    QImage picture = m_images.image(image.resource, target);
    if (picture.isNull())
        picture = m_images.image(image.substitute, target);
    if (image.mask.isEmpty() || picture.isNull())
        return picture;
    // A picture would hide what is under it where its mask is missing.
    const QImage mask = m_images.image(image.mask, target);
    if (mask.isNull())
        return QImage();
    const QPair<qint64, qint64> key(picture.cacheKey(), mask.cacheKey());
    if (const QImage *known = m_masked.object(key))
        return *known;
    const QImage result = masked(picture, mask);
    m_masked.insert(key, new QImage(result), 1 + int(result.sizeInBytes() >> 10));
    return result;
}

void Painter::paintContent(QPainter &painter, const Object &, const Composite &composite)
{
    if (const auto objects = m_document->composite(composite.resource, *m_shown))
        paintAll(painter, *objects);
}

void Painter::paintContent(QPainter &painter, const Object &, const Group &group)
{
    paintAll(painter, *group.objects);
}

} // namespace Ofd
