// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include "ofd/Document.h"

#include <QRawFont>

#include <map>
#include <unordered_map>

namespace Ofd {

/** A glyph of one em, its baseline's start at the origin. */
struct Glyph
{
    QPainterPath path;
    qreal advance = 0;
};

/** A font as it can be painted: the embedded one, or the nearest that the machine has. */
class Face
{
public:
    /** @p bytes of the embedded file; empty if there is none. */
    Face(const Font &font, const QByteArray &bytes, bool isBold, bool isItalic);

    bool isEmbedded() const { return m_isEmbedded; }
    /** Whether bold type was asked for of a font that has none; strokes must thicken it then. */
    bool lacksBold() const { return m_lacksBold; }

    /** Forgets glyphs, which nobody may hold, once they are too many. */
    void trim();
    const Glyph &glyphOf(uint character);
    /** Of the embedded font, by its index in there. */
    const Glyph &glyphAt(quint32 index) { return glyph(0, index); }

    /** Whether this is a font file that can be painted. */
    static bool isReadable(const QByteArray &bytes);

private:
    void addSystemFonts(const Font &font, bool isBold, bool isItalic);
    const Glyph &glyph(int font, quint32 index);

    QVector<QRawFont> m_fonts; ///< Asked for a character one after the other.
    QHash<uint, QPair<int, quint32>> m_indexes;
    std::unordered_map<quint64, Glyph> m_glyphs; ///< Glyphs are pointed to and must not move.
    bool m_isEmbedded = false;
    bool m_lacksBold = false;
    bool m_slants = false;
};

/** The faces of a document, each made when it is first painted. */
class FontSet
{
public:
    explicit FontSet(const Document &document)
        : m_document(document)
    {
    }

    Face &faceOf(const Text &text);

private:
    const Document &m_document;
    std::map<QString, Face> m_faces;
};

} // namespace Ofd
