// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/PageText.h"

#include "ofd/ReadingOrder.h"
#include "ofd/TextLayout.h"

#include <algorithm>
#include <cmath>

namespace Ofd {

namespace {

constexpr qreal ascent = 0.88;
constexpr qreal descent = 0.14;
/** As a share of the line height: a wider gap is a blank. */
constexpr qreal blankGap = 0.3;
/** As a share of the line height: after a wider gap a run begins another column. */
constexpr qreal columnGap = 3;
constexpr qreal sameLineOverlap = 0.5;
constexpr char16_t firstEastAsian = 0x2E80;

struct Character
{
    QString text;
    QRectF box;
};

/** Characters side by side, or one below the other in a vertical run. */
struct Piece
{
    QVector<Character> characters;
    QRectF rect;
    bool isLevel = true; ///< Not turned, as a watermark is.

    void append(const Character &character)
    {
        characters.append(character);
        rect |= character.box;
    }
};

bool isOnLineOf(const QRectF &before, const QRectF &box)
{
    const qreal overlap =
        std::min(before.bottom(), box.bottom()) - std::max(before.top(), box.top());
    const qreal height = std::min(before.height(), box.height());
    const qreal gap = box.left() - before.right();
    return overlap > sameLineOverlap * height && gap > -before.width() - height / 2
           && gap < columnGap * height;
}

bool isVertical(const QVector<Character> &run)
{
    const QPointF way = run.last().box.center() - run.first().box.center();
    return std::abs(way.y()) > std::abs(way.x());
}

/** Puts the characters into the order of reading and joins them to lines. */
class LineMaker
{
public:
    void addAll(const QVector<Piece> &pieces)
    {
        QVector<int> level;
        QVector<int> turned;
        QVector<QRectF> rects;
        for (int i = 0; i < pieces.size(); ++i) {
            (pieces.at(i).isLevel ? level : turned).append(i);
            if (pieces.at(i).isLevel)
                rects.append(pieces.at(i).rect);
        }
        const QVector<int> order = readingOrder(rects);
        for (const int index : order)
            add(pieces.at(level.at(index)));
        // Lines across the page would separate what belongs together.
        for (const int index : std::as_const(turned))
            add(pieces.at(index));
    }

    PageText take() { return std::move(m_result); }

private:
    void add(const Piece &piece)
    {
        for (const Character &character : piece.characters)
            add(character.text, character.box);
    }

    void add(const QString &character, const QRectF &box)
    {
        const bool isFirst = m_result.lines.isEmpty();
        if (isFirst || !isOnLineOf(m_result.boxes.last(), box)) {
            if (!isFirst)
                append(QStringLiteral("\n"), QRectF());
            m_result.lines.append({int(m_result.text.size()), 0, box});
        } else if (isApart(box) && mayNeedBlank(character.at(0))) {
            const QRectF &before = m_result.boxes.last();
            append(QStringLiteral(" "),
                   QRectF(before.topRight(), QPointF(box.left(), box.bottom())));
            ++m_result.lines.last().length;
        }
        append(character, box);
        TextSpan &line = m_result.lines.last();
        line.length += int(character.size());
        line.rect |= box;
    }

    void append(const QString &text, const QRectF &box)
    {
        m_result.text += text;
        for (int i = 0; i < text.size(); ++i)
            m_result.boxes.append(box);
    }

    bool isApart(const QRectF &box) const
    {
        const QRectF &before = m_result.boxes.last();
        return box.left() - before.right() > blankGap * std::min(before.height(), box.height());
    }

    /** Chinese characters with wide gaps need no blank. */
    bool mayNeedBlank(QChar next) const
    {
        const QChar before = m_result.text.back();
        return !before.isSpace() && !next.isSpace()
               && (before.unicode() < firstEastAsian || next.unicode() < firstEastAsian);
    }

    PageText m_result;
};

/** Collects the pieces of a page; writers split lines at any place, so runs are joined. */
class TextCollector
{
public:
    TextCollector(const Document &document, const Page &page, FontSet &fonts)
        : m_document(document)
        , m_page(page)
        , m_fonts(fonts)
    {
    }

    void addAll(const Objects &objects, const QTransform &toPage)
    {
        for (const Object &object : objects) {
            const QTransform place = object.placement() * toPage;
            if (const auto *text = std::get_if<Text>(&object.content))
                addText(*text, place);
            else if (const auto *group = std::get_if<Group>(&object.content))
                addAll(*group->objects, place);
            else if (const auto *composite = std::get_if<Composite>(&object.content))
                addComposite(composite->resource, place);
        }
    }

    const QVector<Piece> &pieces() const { return m_pieces; }

private:
    void addComposite(const QString &resource, const QTransform &place)
    {
        if (const auto objects = m_document.composite(resource, m_page))
            addAll(*objects, place);
    }

    void addText(const Text &text, const QTransform &place)
    {
        Face &face = m_fonts.faceOf(text);
        const bool isLevel = qFuzzyIsNull(place.m12()) || qFuzzyIsNull(place.m11());
        for (const TextRun &run : text.runs) {
            QVector<Character> characters;
            const QVector<PlacedGlyph> glyphs = layOut(text, run, face);
            for (const PlacedGlyph &glyph : glyphs) {
                const QRectF em(0, -ascent, glyph.width, ascent + descent);
                if (!glyph.text.isEmpty() && glyph.text.at(0) >= QChar(u' '))
                    characters.append({glyph.text, (glyph.place * place).mapRect(em)});
            }
            if (!characters.isEmpty())
                addRun(characters, isLevel);
        }
    }

    void addRun(const QVector<Character> &run, bool isLevel)
    {
        const bool isDown = isVertical(run);
        bool mustBegin = isDown;
        for (const Character &character : run) {
            if (mustBegin || !continuesLast(character.box, isLevel, isDown)) {
                m_pieces.append(Piece());
                m_pieces.last().isLevel = isLevel;
            }
            mustBegin = false;
            m_pieces.last().append(character);
        }
    }

    bool continuesLast(const QRectF &box, bool isLevel, bool isDown) const
    {
        if (m_pieces.isEmpty() || m_pieces.last().isLevel != isLevel)
            return false;
        return isDown || isOnLineOf(m_pieces.last().characters.last().box, box);
    }

    const Document &m_document;
    const Page &m_page;
    FontSet &m_fonts;
    QVector<Piece> m_pieces;
};

} // namespace

PageText textOf(const Document &document, int page, FontSet &fonts)
{
    const auto source = document.page(page);
    TextCollector collector(document, *source, fonts);
    const QTransform toSheet = QTransform::fromTranslate(-source->area.left(), -source->area.top());
    for (const auto &layer : source->layers)
        collector.addAll(*layer, toSheet);
    for (const Annotation &annotation : source->annotations) {
        if (annotation.isVisible)
            collector.addAll({annotation.appearance}, toSheet);
    }
    LineMaker lines;
    lines.addAll(collector.pieces());
    return lines.take();
}

} // namespace Ofd
