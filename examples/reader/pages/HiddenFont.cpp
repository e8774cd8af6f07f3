// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "pages/HiddenFont.h"

#include <QDataStream>
#include <QFont>
#include <QFontDatabase>
#include <QIODevice>
#include <QMap>
#include <QStringList>

namespace {

constexpr quint16 unitsPerEm = 1000;
constexpr quint16 advance = 500;
constexpr qint16 ascent = 800;
constexpr qint16 descent = -200;
/** The characters of the basic plane before and after the surrogates. */
constexpr quint32 firstRange[] = {0x20, 0xD7FF};
constexpr quint32 lastRange[] = {0xE000, 0xFFFD};
constexpr quint32 glyphsOfFirst = firstRange[1] - firstRange[0] + 1;
constexpr quint32 glyphsOfLast = lastRange[1] - lastRange[0] + 1;
/** With the glyph for what is missing. */
constexpr quint16 glyphs = 1 + glyphsOfFirst + glyphsOfLast;

const QString family = QStringLiteral("MRToolBar Reader Hidden");

/** Numbers of a table, big-endian and of the width that they have here. */
template <typename... Numbers>
QByteArray packed(Numbers... numbers)
{
    QByteArray bytes;
    QDataStream stream(&bytes, QIODevice::WriteOnly);
    (stream << ... << numbers);
    return bytes;
}

QByteArray characterMap()
{
    constexpr quint32 groups = 2;
    const QByteArray header = packed(quint16(0), quint16(1), quint16(3), quint16(10), quint32(12));
    return header + packed(quint16(12), quint16(0), quint32(16 + 12 * groups), quint32(0), groups)
           + packed(firstRange[0], firstRange[1], quint32(1))
           + packed(lastRange[0], lastRange[1], 1 + glyphsOfFirst);
}

QByteArray names()
{
    const QString style = QStringLiteral("Regular");
    const QStringList texts = {family, style, family, family};
    const quint16 ids[] = {1, 2, 4, 6};
    QByteArray records;
    QByteArray strings;
    for (int i = 0; i < texts.size(); ++i) {
        QByteArray text;
        for (const QChar character : texts.at(i))
            text += packed(character.unicode());
        records += packed(quint16(3), quint16(1), quint16(0x409), ids[i], quint16(text.size()),
                          quint16(strings.size()));
        strings += text;
    }
    return packed(quint16(0), quint16(texts.size()), quint16(6 + records.size())) + records
           + strings;
}

QMap<QByteArray, QByteArray> tables()
{
    const quint16 none = 0;
    return {
        {"cmap", characterMap()},
        {"glyf", QByteArray(4, '\0')},
        {"head", packed(quint32(0x10000), quint32(0x10000), quint32(0), quint32(0x5F0F3CF5),
                        quint16(3), unitsPerEm, quint64(0), quint64(0), none, descent, advance,
                        ascent, none, quint16(8), quint16(2), none, none)},
        {"hhea", packed(quint32(0x10000), ascent, descent, none, advance, none, none, advance,
                        quint16(1), none, none, none, none, none, none, none, quint16(1))},
        {"hmtx", packed(advance, none) + QByteArray(2 * (glyphs - 1), '\0')},
        {"loca", QByteArray(2 * (glyphs + 1), '\0')},
        {"maxp", packed(quint32(0x10000), glyphs) + QByteArray(26, '\0')},
        {"name", names()},
        {"post", packed(quint32(0x30000)) + QByteArray(28, '\0')},
    };
}

} // namespace

QByteArray HiddenFont::file()
{
    const QMap<QByteArray, QByteArray> all = tables();
    QByteArray directory = packed(quint32(0x10000), quint16(all.size()), quint16(128), quint16(3),
                                  quint16(16 * (all.size() - 8)));
    const quint32 start = quint32(directory.size() + 16 * all.size());
    QByteArray body;
    for (auto table = all.cbegin(); table != all.cend(); ++table) {
        directory +=
            table.key() + packed(quint32(0), start + quint32(body.size()), quint32(table->size()));
        body += *table + QByteArray(-table->size() & 3, '\0');
    }
    return directory + body;
}

QFont HiddenFont::font(int pixelSize)
{
    static const int id = QFontDatabase::addApplicationFontFromData(file());
    QFont font(QFontDatabase::applicationFontFamilies(id).value(0));
    font.setPixelSize(pixelSize);
    font.setHintingPreference(QFont::PreferNoHinting);
    return font;
}
