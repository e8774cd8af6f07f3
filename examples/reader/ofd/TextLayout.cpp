// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/TextLayout.h"

#include <algorithm>
#include <cmath>

namespace Ofd {

namespace {

/** The smallest factor by which letters of a replacement font are narrowed. */
constexpr qreal mostSqueeze = 0.5;
constexpr uint firstWide = 0x2000; // Characters from here on may be a full em wide.

bool isShown(uint character)
{
    return character >= 0x20 && character != 0x7F;
}

/** The distance at the index; further characters repeat the last distance. */
qreal distanceAt(const QVector<qreal> &deltas, int index)
{
    return deltas.isEmpty() ? 0 : deltas.at(std::min(index, int(deltas.size()) - 1));
}

/** The factor that narrows a glyph to the available width; 1 if it fits. */
qreal squeezeFor(qreal advance, qreal room)
{
    if (room <= 0 || advance <= room)
        return 1;
    return std::max(mostSqueeze, room / advance);
}

QTransform placeOf(const Text &text, QPointF origin, qreal squeeze)
{
    QTransform place = QTransform::fromTranslate(origin.x(), origin.y());
    place.rotate(text.charDirection);
    place.scale(text.size * text.horizontalScale * squeeze, text.size);
    return place;
}

/** The range that gives glyphs by index for a character; nullptr if the font maps it. */
const GlyphRange *rangeOf(const TextRun &run, int code)
{
    for (const GlyphRange &range : run.glyphs) {
        if (code >= range.firstCode && code < range.firstCode + range.codeCount)
            return &range;
    }
    return nullptr;
}

/** The glyphs of one character: those given by the document, or that of the font. */
QVector<const Glyph *> glyphsOf(const TextRun &run, int code, uint character, Face &face)
{
    const GlyphRange *range = face.isEmbedded() ? rangeOf(run, code) : nullptr;
    if (!range)
        return isShown(character) ? QVector<const Glyph *>{&face.glyphOf(character)}
                                  : QVector<const Glyph *>();
    QVector<const Glyph *> glyphs;
    const int index = code - range->firstCode;
    const bool isLast = index == range->codeCount - 1;
    for (int i = index; i < range->glyphs.size() && (i == index || isLast); ++i)
        glyphs.append(&face.glyphAt(range->glyphs.at(i)));
    return glyphs;
}

/** Iterates over a run and places its glyphs. */
class RunWalker
{
public:
    RunWalker(const Text &text, const TextRun &run, Face &face)
        : m_text(text)
        , m_run(run)
        , m_face(face)
        , m_areStepsGiven(!run.deltaX.isEmpty() || !run.deltaY.isEmpty())
        , m_em(text.size * text.horizontalScale)
        , m_origin(run.start)
    {
        m_forward.rotate(text.readDirection);
    }

    QVector<PlacedGlyph> walk()
    {
        const auto codes = m_run.text.toUcs4();
        for (int i = 0; i < codes.size(); ++i)
            place(i, codes.at(i), i + 1 < codes.size());
        return std::move(m_placed);
    }

private:
    void place(int index, uint code, bool hasNext)
    {
        const QVector<const Glyph *> glyphs = glyphsOf(m_run, index, code, m_face);
        const qreal advance = glyphs.isEmpty() ? 0 : glyphs.first()->advance;
        const QPointF step = stepAt(index, advance * m_em);
        const qreal room = roomFor(code, step, hasNext);
        const bool mayTouch = !m_areStepsGiven || m_face.isEmbedded() || step.y() != 0;
        const qreal squeeze = mayTouch ? 1 : squeezeFor(advance * m_em, room);
        PlacedGlyph next;
        next.text = QString::fromUcs4(reinterpret_cast<const char32_t *>(&code), 1);
        next.place = placeOf(m_text, m_origin, squeeze);
        const qreal own = room > 0 && m_em > 0 ? room / m_em / squeeze : advance;
        next.width = std::min(own, std::max(1.0, advance));
        append(next, glyphs);
        m_origin += step;
    }

    /** The offset to the next character: by the run's distances, else by the advance. */
    QPointF stepAt(int index, qreal advance) const
    {
        if (!m_areStepsGiven)
            return m_forward.map(QPointF(advance, 0));
        return QPointF(distanceAt(m_run.deltaX, index), distanceAt(m_run.deltaY, index));
    }

    /** The width for a character. The last one has no distance to the next: it gets a default. */
    qreal roomFor(uint code, QPointF step, bool hasNext)
    {
        const qreal length = std::hypot(step.x(), step.y());
        if (code >= firstWide)
            return hasNext ? length : 0;
        if (hasNext)
            m_letterRoom = m_letterRoom > 0 ? std::min(m_letterRoom, length) : length;
        return hasNext ? length : m_letterRoom;
    }

    void append(PlacedGlyph next, const QVector<const Glyph *> &glyphs)
    {
        if (glyphs.isEmpty())
            m_placed.append(next);
        for (const Glyph *glyph : glyphs) {
            next.glyph = glyph;
            m_placed.append(next);
            next.text.clear();
            next.place.translate(glyph->advance, 0);
        }
    }

    const Text &m_text;
    const TextRun &m_run;
    Face &m_face;
    bool m_areStepsGiven;
    QTransform m_forward;
    qreal m_em;
    QPointF m_origin;
    qreal m_letterRoom = 0;
    QVector<PlacedGlyph> m_placed;
};

} // namespace

QVector<PlacedGlyph> layOut(const Text &text, const TextRun &run, Face &face)
{
    return RunWalker(text, run, face).walk();
}

} // namespace Ofd
