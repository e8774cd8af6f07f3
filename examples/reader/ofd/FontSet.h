// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Document.h"

#include <QRawFont>

#include <map>
#include <unordered_map>

namespace Ofd {

/** A glyph with an em of 1; the origin is the start of the baseline. */
struct Glyph
{
    QPainterPath path;
    qreal advance = 0;
};

/** A font for painting: the embedded one, or the nearest one that is installed. */
class Face
{
public:
    /** @p bytes of the embedded file; empty if there is none. */
    Face(const Font &font, const QByteArray &bytes, bool isBold, bool isItalic);

    bool isEmbedded() const { return m_isEmbedded; }
    /** Whether bold type is wanted and the font has none, so that strokes must thicken it. */
    bool lacksBold() const { return m_lacksBold; }

    /** Deletes the cached glyphs if there are too many. References to them become invalid. */
    void trim();
    const Glyph &glyphOf(uint character);
    /** The glyph of that index in the embedded font. */
    const Glyph &glyphAt(quint32 index) { return glyph(0, index); }

private:
    void addSystemFonts(const Font &font, bool isBold, bool isItalic);
    const Glyph &glyph(int font, quint32 index);

    QVector<QRawFont> m_fonts; ///< Tried for a character in this order.
    QHash<uint, QPair<int, quint32>> m_indexes;
    std::unordered_map<quint64, Glyph> m_glyphs; ///< A node-based map: addresses must stay valid.
    bool m_isEmbedded = false;
    bool m_lacksBold = false;
    bool m_slants = false;
};

/** The fonts that were looked for in the system; an endless number of them is an attack. */
class FontSearches
{
public:
    /** Whether it may be looked for; always true for a font that was before. */
    bool maySearch(const Font &font);

private:
    QSet<QString> m_names;
};

/** The faces of a document; each is created on first use. */
class FontSet
{
public:
    explicit FontSet(const Document &document)
        : m_document(document)
    {
    }

    Face &faceOf(const Text &text);

    /** The names of the fonts that are neither embedded nor installed. */
    static QStringList missing(const Resources &resources);

private:
    const Document &m_document;
    std::map<QString, Face> m_faces;
    FontSearches m_searches;
};

} // namespace Ofd
