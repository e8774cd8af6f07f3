// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/FontSet.h"

#include "ofd/Fault.h"
#include "ofd/Wording.h"

#include <QFont>
#include <QFontDatabase>
#include <QStringList>

#include <algorithm>

namespace Ofd {

namespace {

constexpr int rawSize = 256; // Pixels per em. Outlines can be scaled from any size.
constexpr int leastBold = 600;
constexpr qreal slant = 0.21;
constexpr std::size_t mostGlyphs = 20000;
/** Of one document. The system takes half a millisecond for a font that it has not. */
constexpr int mostSearches = 300;

bool containsAny(const QString &name, const QStringList &parts)
{
    for (const QString &part : parts) {
        if (name.contains(part, Qt::CaseInsensitive))
            return true;
    }
    return false;
}

/** The families that replace a font that is not installed, the best first. */
QStringList substitutesFor(const Font &font)
{
    static const QStringList serifMarks = {QStringLiteral("宋"),    QStringLiteral("仿"),
                                           QStringLiteral("楷"),    QStringLiteral("明"),
                                           QStringLiteral("Song"),  QStringLiteral("SimSun"),
                                           QStringLiteral("Kai"),   QStringLiteral("Fang"),
                                           QStringLiteral("Times"), QStringLiteral("Serif")};
    static const QStringList chineseSerif = {
        QStringLiteral("Noto Serif CJK SC"), QStringLiteral("Source Han Serif SC"),
        QStringLiteral("SimSun"), QStringLiteral("AR PL UMing CN")};
    static const QStringList chineseSans = {
        QStringLiteral("Noto Sans CJK SC"), QStringLiteral("Source Han Sans SC"),
        QStringLiteral("SimHei"), QStringLiteral("WenQuanYi Micro Hei")};
    const QString name = font.name + font.family;
    if (containsAny(name, {QStringLiteral("Courier"), QStringLiteral("Mono")}))
        return QStringList{QStringLiteral("Liberation Mono"), QStringLiteral("DejaVu Sans Mono")}
               + chineseSans;
    if (containsAny(name, {QStringLiteral("Times")}))
        return QStringList{QStringLiteral("Liberation Serif"), QStringLiteral("DejaVu Serif")}
               + chineseSerif;
    if (containsAny(name, {QStringLiteral("Arial"), QStringLiteral("Helvetica")}))
        return QStringList{QStringLiteral("Liberation Sans"), QStringLiteral("DejaVu Sans")}
               + chineseSans;
    const bool hasSerifs =
        font.hasSerifs
        || (containsAny(name, serifMarks) && !containsAny(name, {QStringLiteral("Sans")}));
    return hasSerifs ? chineseSerif + chineseSans : chineseSans + chineseSerif;
}

QRawFont installed(const QString &family, bool isBold, bool isItalic)
{
    QFont wanted(family);
    wanted.setPixelSize(rawSize);
    wanted.setHintingPreference(QFont::PreferNoHinting);
    wanted.setBold(isBold);
    wanted.setItalic(isItalic);
    const QRawFont found = QRawFont::fromFont(wanted);
    // For an unknown family the system returns some other font.
    return found.familyName().compare(family, Qt::CaseInsensitive) ? QRawFont() : found;
}

/** The names of a font, also the one in the other language, by which it may be installed. */
QStringList familiesOf(const Font &font)
{
    static const QList<QStringList> sameFonts = {
        {QStringLiteral("宋体"), QStringLiteral("SimSun")},
        {QStringLiteral("黑体"), QStringLiteral("SimHei")},
        {QStringLiteral("楷体"), QStringLiteral("KaiTi"), QStringLiteral("楷体_GB2312")},
        {QStringLiteral("仿宋"), QStringLiteral("FangSong"), QStringLiteral("仿宋_GB2312")}};
    QStringList families;
    for (const QString &name : {font.family, font.name}) {
        if (!name.isEmpty())
            families.append(name);
        for (const QStringList &names : sameFonts)
            families += names.contains(name) ? names : QStringList();
    }
    families.removeDuplicates();
    return families;
}

} // namespace

Face::Face(const Font &font, const QByteArray &bytes, bool isBold, bool isItalic)
{
    const QRawFont embedded =
        bytes.isEmpty() ? QRawFont() : QRawFont(bytes, rawSize, QFont::PreferNoHinting);
    m_isEmbedded = embedded.isValid();
    if (m_isEmbedded)
        m_fonts.append(embedded);
    addSystemFonts(font, isBold, isItalic);
    m_lacksBold = isBold && m_fonts.first().weight() < QFont::DemiBold;
    m_slants = isItalic && m_fonts.first().style() == QFont::StyleNormal;
}

void Face::addSystemFonts(const Font &font, bool isBold, bool isItalic)
{
    const QStringList families = familiesOf(font) + substitutesFor(font);
    for (const QString &family : families) {
        const QRawFont found = installed(family, isBold, isItalic);
        if (found.isValid())
            m_fonts.append(found);
    }
    QFont last;
    last.setPixelSize(rawSize);
    last.setBold(isBold);
    m_fonts.append(QRawFont::fromFont(last));
    m_fonts.append(QRawFont::fromFont(last, QFontDatabase::SimplifiedChinese));
}

const Glyph &Face::glyphOf(uint character)
{
    const auto known = m_indexes.constFind(character);
    if (known != m_indexes.cend())
        return glyph(known->first, known->second);
    const QString text = QString::fromUcs4(reinterpret_cast<const char32_t *>(&character), 1);
    for (int i = 0; i < m_fonts.size(); ++i) {
        const QVector<quint32> indexes = m_fonts.at(i).glyphIndexesForString(text);
        if (indexes.isEmpty() || indexes.first() == 0)
            continue;
        m_indexes.insert(character, {i, indexes.first()});
        return glyph(i, indexes.first());
    }
    // No font has the character, so the first one shows its glyph for missing characters.
    m_indexes.insert(character, {0, 0});
    return glyph(0, 0);
}

const Glyph &Face::glyph(int font, quint32 index)
{
    const quint64 key = quint64(font) << 32 | index;
    const auto known = m_glyphs.find(key);
    if (known != m_glyphs.end())
        return known->second;
    const QRawFont &raw = m_fonts.at(font);
    QTransform toEm = QTransform::fromScale(1.0 / rawSize, 1.0 / rawSize);
    if (m_slants)
        toEm.shear(-slant, 0);
    Glyph glyph;
    glyph.path = toEm.map(raw.pathForGlyph(index));
    glyph.path.setFillRule(Qt::WindingFill);
    const QVector<QPointF> advances = raw.advancesForGlyphIndexes({index});
    glyph.advance = advances.isEmpty() ? 0 : advances.first().x() / rawSize;
    return m_glyphs.emplace(key, std::move(glyph)).first->second;
}

void Face::trim()
{
    if (m_glyphs.size() > mostGlyphs)
        m_glyphs.clear();
}

bool FontSearches::maySearch(const Font &font)
{
    const QString name = font.family + QChar(u'/') + font.name;
    if (m_names.size() < mostSearches)
        m_names.insert(name);
    return m_names.contains(name);
}

Face &FontSet::faceOf(const Text &text)
{
    Font font = m_document.resources.fonts.value(text.font);
    if (font.file.isEmpty() && !m_searches.maySearch(font))
        font = {QString(), QString(), font.isBold, font.isItalic, false, QString()};
    const bool isBold = text.weight >= leastBold || font.isBold;
    const bool isItalic = text.isItalic || font.isItalic;
    // Those that are replaced without a search look the same.
    const bool isPlain =
        font.file.isEmpty() && font.name.isEmpty() && font.family.isEmpty() && !font.hasSerifs;
    const QString id = isPlain ? QString() : text.font;
    const QString key =
        id + QLatin1String(isBold ? "/bold" : "/") + QLatin1String(isItalic ? "/italic" : "/");
    const auto known = m_faces.find(key);
    if (known != m_faces.end()) {
        known->second.trim();
        return known->second;
    }
    QByteArray bytes;
    try {
        if (!font.file.isEmpty())
            bytes = m_document.package->read(font.file);
    } catch (const Fault &) {
        // Another font replaces it.
    }
    Face face(font, bytes, isBold, isItalic);
    if (!font.file.isEmpty() && !face.isEmbedded())
        m_document.leaveOut(Wording::tr("嵌入字体“%1”").arg(font.name), font.file);
    return m_faces.emplace(key, std::move(face)).first->second;
}

QStringList FontSet::missing(const Resources &resources)
{
    QStringList names;
    FontSearches searches;
    for (const Font &font : resources.fonts.all()) {
        const QStringList families = familiesOf(font);
        const bool isThere =
            !font.file.isEmpty()
            || (searches.maySearch(font)
                && std::any_of(families.cbegin(), families.cend(), [](const QString &family) {
                       return installed(family, false, false).isValid();
                   }));
        if (!isThere && !families.isEmpty())
            names.append(font.name.isEmpty() ? font.family : font.name);
    }
    names.removeDuplicates();
    names.sort();
    return names;
}

} // namespace Ofd
