// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/PageText.h"

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

/** Joins consecutive runs of one line, because writers split lines at any place. */
class TextCollector
{
public:
    TextCollector(const Document &document, FontSet &fonts)
        : m_document(document)
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

    PageText take() { return std::move(m_result); }

private:
    void addComposite(const QString &resource, const QTransform &place)
    {
        if (const auto objects = m_document.resources.composites.value(resource))
            addAll(*objects, place);
    }

    void addText(const Text &text, const QTransform &place)
    {
        Face &face = m_fonts.faceOf(text);
        for (const TextRun &run : text.runs) {
            const QVector<PlacedGlyph> glyphs = layOut(text, run, face);
            for (const PlacedGlyph &glyph : glyphs) {
                const QRectF em(0, -ascent, glyph.width, ascent + descent);
                if (!glyph.text.isEmpty() && glyph.text.at(0) >= QChar(u' '))
                    addCharacter(glyph.text, (glyph.place * place).mapRect(em));
            }
        }
    }

    void addCharacter(const QString &character, const QRectF &box)
    {
        const bool isFirst = m_result.lines.isEmpty();
        if (isFirst || !continues(box)) {
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

    bool continues(const QRectF &box) const
    {
        const QRectF &before = m_result.boxes.last();
        const qreal overlap =
            std::min(before.bottom(), box.bottom()) - std::max(before.top(), box.top());
        const qreal height = std::min(before.height(), box.height());
        const qreal gap = box.left() - before.right();
        return overlap > sameLineOverlap * height && gap > -before.width() - height / 2
               && gap < columnGap * height;
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

    const Document &m_document;
    FontSet &m_fonts;
    PageText m_result;
};

} // namespace

PageText textOf(const Document &document, int page, FontSet &fonts)
{
    TextCollector collector(document, fonts);
    const Page &source = document.pages.at(page);
    const QTransform toSheet = QTransform::fromTranslate(-source.area.left(), -source.area.top());
    for (const auto &layer : source.layers)
        collector.addAll(*layer, toSheet);
    for (const Annotation &annotation : source.annotations) {
        if (annotation.isVisible)
            collector.addAll({annotation.appearance}, toSheet);
    }
    return collector.take();
}

} // namespace Ofd
