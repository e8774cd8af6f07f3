// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Painter.h"

#include "ofd/DensePath.h"
#include "ofd/DeviceDrawing.h"
#include "ofd/Limits.h"
#include "ofd/PaintLayer.h"
#include "ofd/PathData.h"
#include "ofd/Pattern.h"
#include "ofd/Shading.h"
#include "ofd/TextLayout.h"
#include "ofd/Wording.h"

#include <QPainter>

#include <algorithm>
#include <cmath>
#include <utility>

namespace Ofd {

namespace {

/** As a share of an em, on each side of an outline that must look bold. */
constexpr qreal boldStroke = 0.03;
/** As a share of an em, how far the glyphs of a replaced font may exceed the boundary. */
constexpr qreal replacedMargin = 0.25;
constexpr int mostMaskedKilobytes = 64 << 10;

/** Without a colour, the area of a path and the outline of a text are not painted. */
Paint fillOf(const Object &object)
{
    const bool isText = std::holds_alternative<Text>(object.content);
    return object.style.fill.value_or(isText ? QBrush(Qt::black) : QBrush(Qt::NoBrush));
}

Paint strokeOf(const Object &object)
{
    const bool isText = std::holds_alternative<Text>(object.content);
    return object.style.stroke.value_or(isText ? QBrush(Qt::NoBrush) : QBrush(Qt::black));
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

/** By how much lines may exceed the path. */
qreal marginOf(const QPen &pen)
{
    return pen.widthF() * std::max(1.0, pen.miterLimit());
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

void Painter::paint(QPainter &painter, int page, const QSet<int> &hiddenAnnotations,
                    const std::atomic_bool *isAbandoned)
{
    m_layers = 0;
    m_glyphs = 0;
    m_lines = 0;
    painter.save();
    painter.setRenderHints(QPainter::Antialiasing | QPainter::SmoothPixmapTransform);
    m_shown = m_document->page(page);
    const std::lock_guard<std::mutex> lock(m_document->painting);
    m_isAbandoned = isAbandoned;
    painter.translate(-m_shown->area.topLeft());
    for (const auto &layer : m_shown->layers)
        paintAll(painter, *layer);
    for (int i = 0; i < m_shown->annotations.size(); ++i) {
        const Annotation &annotation = m_shown->annotations.at(i);
        if (annotation.isVisible && !hiddenAnnotations.contains(i))
            paintAll(painter, {annotation.appearance});
    }
    const QVector<Stamp> stamps = m_document->stamps.value(page);
    for (const Stamp &stamp : stamps)
        paintStamp(painter, stamp);
    m_shown.reset();
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
    const auto paintClipped = [&](QPainter &layer) {
        paintInside(layer, object.clips, [&](QPainter &inside) { paintPlaced(inside, object); });
    };
    if (painter.opacity() < 1 && hasParts(object) && ++m_layers <= Limits::layersPerPage)
        PaintLayer::paint(painter, paintClipped);
    else
        paintClipped(painter);
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

void Painter::paintInside(QPainter &painter, const QVector<Clip> &clips,
                          const std::function<void(QPainter &)> &paint, int first)
{
    for (int i = first; i < clips.size(); ++i) {
        const QPainterPath clip = outlineOf(clips.at(i));
        if (DensePath::isDense(painter, clip)) {
            DensePath::paintInside(
                painter, clip, [&](QPainter &inside) { paintInside(inside, clips, paint, i + 1); });
            return;
        }
        painter.setClipPath(clip, Qt::IntersectClip);
    }
    paint(painter);
}

void Painter::paintPlaced(QPainter &painter, const Object &object)
{
    painter.setTransform(object.placement(), true);
    const QTransform outer = std::exchange(m_toPage, object.placement() * m_toPage);
    std::visit([&](const auto &content) { paintContent(painter, object, content); },
               object.content);
    m_toPage = outer;
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

void Painter::fill(QPainter &painter, const QPainterPath &path, const Paint &paint)
{
    inkOf(painter, path.controlPointRect(), paint).fill(painter, path);
}

void Painter::stroke(QPainter &painter, const QPainterPath &path, const QPen &pen,
                     const Paint &paint)
{
    const qreal margin = marginOf(pen);
    const QRectF bounds = path.controlPointRect().adjusted(-margin, -margin, margin, margin);
    const bool isOneOfMany = ++m_lines > Limits::linesPerPage;
    inkOf(painter, bounds, paint).stroke(painter, path, pen, isOneOfMany);
}

Ink Painter::inkOf(const QPainter &painter, const QRectF &bounds, const Paint &paint)
{
    if (const auto *brush = std::get_if<QBrush>(&paint))
        return {*brush, {}};
    if (const auto *shading = std::get_if<std::shared_ptr<const Shading>>(&paint))
        return (*shading)->ink(painter, bounds);
    return inkOf(painter, bounds, *std::get<std::shared_ptr<const Pattern>>(paint));
}

Ink Painter::inkOf(const QPainter &painter, const QRectF &bounds, const Pattern &pattern)
{
    const QTransform toObject = pattern.isRelativeToPage ? m_toPage.inverted() : QTransform();
    const auto paintCell = [&](QPainter &cell) {
        const QTransform outer = std::exchange(m_toPage, pattern.matrix * toObject * m_toPage);
        ++m_openPatterns;
        paintAll(cell, pattern.cell);
        --m_openPatterns;
        m_toPage = outer;
    };
    const PatternPainter cells(pattern, toObject, paintCell);
    // Several cells for each one of an outer pattern would multiply.
    const std::optional<Ink> few =
        m_openPatterns == 0 ? cells.fewCells(painter, bounds) : std::nullopt;
    return few ? *few : cells.tiles(painter, bounds);
}

void Painter::paintContent(QPainter &painter, const Object &object, const Path &path)
{
    const QPen pen = visiblePen(painter, object.style, path.path);
    const qreal margin = marginOf(pen);
    const QRectF bounds = path.path.controlPointRect();
    if (!isOnDevice(painter, bounds.adjusted(-margin, -margin, margin, margin)))
        return;
    if (path.isFilled)
        fill(painter, path.path, fillOf(object));
    if (path.isStroked)
        stroke(painter, path.path, pen, strokeOf(object));
}

void Painter::paintContent(QPainter &painter, const Object &object, const Text &text)
{
    Face &face = m_fonts.faceOf(text);
    const bool lacksBold = face.lacksBold();
    for (const TextRun &run : text.runs) {
        layOutInParts(text, run, face, [&](const QVector<PlacedGlyph> &glyphs) {
            paintGlyphs(painter, object, glyphs, lacksBold);
        });
    }
}

void Painter::paintGlyphs(QPainter &painter, const Object &object,
                          const QVector<PlacedGlyph> &glyphs, bool lacksBold)
{
    m_glyphs += int(glyphs.size());
    if (m_glyphs > Limits::glyphsPerPage) {
        const QString kind = Wording::tr("过多的字符");
        m_document->leaveOut(kind, kind); // Of no file, so once for the document.
        return;
    }
    const Text &text = std::get<Text>(object.content);
    const Paint paint = fillOf(object);
    const QBrush *plain = text.isFilled ? std::get_if<QBrush>(&paint) : nullptr;
    const bool mustThicken = text.isFilled && lacksBold;
    const bool isStroked = text.isStroked && object.style.stroke;
    if (plain)
        fillGlyphs(painter, glyphs, *plain);
    if (plain && !mustThicken && !isStroked)
        return;
    const QPainterPath outlines = outlinesOf(glyphs);
    if (!isOnDevice(painter, outlines.controlPointRect()))
        return;
    if (text.isFilled && !plain)
        fill(painter, outlines, paint);
    if (mustThicken)
        stroke(painter, outlines, QPen(Qt::black, text.size * boldStroke), paint);
    if (isStroked)
        stroke(painter, outlines, visiblePen(painter, object.style, outlines), strokeOf(object));
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
