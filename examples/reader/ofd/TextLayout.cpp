// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/TextLayout.h"

#include <algorithm>
#include <cmath>

namespace Ofd {

namespace {

/** The smallest factor by which letters of a replacement font are narrowed. */
constexpr qreal mostSqueeze = 0.5;
constexpr int mostAtOnce = 4096;

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
        // Along the height of the letters the next one follows after an em.
        m_isAlongLetters = (text.readDirection - text.charDirection) % 180 == 0;
    }

    void walk(const std::function<void(const QVector<PlacedGlyph> &)> &take)
    {
        const auto codes = m_run.text.toUcs4();
        for (int i = 0; i < codes.size(); ++i) {
            place(i, codes.at(i), i + 1 < codes.size());
            if (m_placed.size() < mostAtOnce)
                continue;
            take(m_placed);
            m_placed.clear();
        }
        take(m_placed);
    }

private:
    void place(int index, uint code, bool hasNext)
    {
        const QVector<const Glyph *> glyphs = glyphsOf(m_run, index, code, m_face);
        const qreal advance = glyphs.isEmpty() ? 0 : glyphs.first()->advance;
        const QPointF step = stepAt(index, advance * m_em);
        // The last character has no next one, so that its glyph gives its width.
        const qreal room = hasNext ? std::hypot(step.x(), step.y()) : 0;
        const qreal squeeze = mustFit(step) ? squeezeFor(advance * m_em, room) : 1;
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
            return m_forward.map(QPointF(m_isAlongLetters ? advance : m_text.size, 0));
        return QPointF(distanceAt(m_run.deltaX, index), distanceAt(m_run.deltaY, index));
    }

    /** Whether an upright letter of a replaced font could reach into the one to its right. */
    bool mustFit(QPointF step) const
    {
        return m_areStepsGiven && !m_face.isEmbedded() && m_text.charDirection == 0 && step.x() > 0
               && step.y() == 0;
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
    bool m_isAlongLetters = true;
    qreal m_em;
    QPointF m_origin;
    QVector<PlacedGlyph> m_placed;
};

} // namespace

void layOutInParts(const Text &text, const TextRun &run, Face &face,
                   const std::function<void(const QVector<PlacedGlyph> &)> &take)
{
    RunWalker(text, run, face).walk(take);
}

QVector<PlacedGlyph> layOut(const Text &text, const TextRun &run, Face &face)
{
    QVector<PlacedGlyph> all;
    layOutInParts(text, run, face, [&all](const QVector<PlacedGlyph> &part) { all += part; });
    return all;
}

} // namespace Ofd
