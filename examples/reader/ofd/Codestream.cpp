// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#include "ofd/Codestream.h"

#include "ofd/Limits.h"

#include <QDataStream>

#include <algorithm>

namespace Ofd {

namespace {

const QByteArray fileStart = QByteArrayLiteral("\0\0\0\x0cjP  \r\n\x87\n");
const QByteArray bareStart = QByteArrayLiteral("\xff\x4f\xff\x51");

constexpr quint16 codingMarker = 0xff52;
constexpr quint16 componentMarker = 0xff53;
constexpr quint16 tileMarker = 0xff90;
constexpr quint16 dataMarker = 0xff93;
constexpr quint16 endMarker = 0xffd9;

constexpr int mostComponents = 4;
constexpr qint64 mostTiles = 4096;
constexpr qint64 mostBlocks = 500000;

/** Where the codestream of a file begins; -1 if it has none. */
qint64 startIn(const QByteArray &bytes)
{
    qint64 at = 0;
    while (at + 8 <= bytes.size()) {
        QDataStream stream(bytes.mid(int(at), 16));
        quint32 length = 0;
        char type[4] = {};
        stream >> length;
        stream.readRawData(type, 4);
        qint64 whole = length;
        const int head = length == 1 ? 16 : 8;
        if (length == 1)
            stream >> whole;
        if (!qstrncmp(type, "jp2c", 4))
            return at + head;
        if (whole < head || whole > bytes.size())
            return -1;
        at += whole;
    }
    return -1;
}

} // namespace

bool Codestream::isFile(const QByteArray &bytes)
{
    return bytes.startsWith(fileStart);
}

bool Codestream::isBare(const QByteArray &bytes)
{
    return bytes.startsWith(bareStart);
}

Codestream::Codestream(const QByteArray &bytes)
{
    const qint64 start = isFile(bytes) ? startIn(bytes) : 0;
    if (start < 0 || !bytes.mid(int(start), 4).startsWith(bareStart))
        return;
    QDataStream stream(bytes);
    stream.skipRawData(int(start) + 4);
    quint16 length = 0;
    stream >> length;
    readSizes(stream);
    m_isSound = m_isSound && stream.status() == QDataStream::Ok;
    if (m_isSound)
        readMarkers(bytes, int(start) + 4 + length);
}

void Codestream::readSizes(QDataStream &stream)
{
    quint16 profile = 0;
    quint16 components = 0;
    quint32 right = 0;
    quint32 bottom = 0;
    quint32 left = 0;
    quint32 top = 0;
    quint32 tileWidth = 0;
    quint32 tileHeight = 0;
    quint32 tileLeft = 0;
    quint32 tileTop = 0;
    stream >> profile >> right >> bottom >> left >> top;
    stream >> tileWidth >> tileHeight >> tileLeft >> tileTop >> components;
    m_width = qint64(right) - left;
    m_height = qint64(bottom) - top;
    m_components = components;
    m_isSound = m_width > 0 && m_height > 0 && tileWidth > 0 && tileHeight > 0 && tileLeft <= left
                && tileTop <= top;
    if (m_isSound)
        m_tiles = ((qint64(right) - tileLeft + tileWidth - 1) / tileWidth)
                  * ((qint64(bottom) - tileTop + tileHeight - 1) / tileHeight);
}

void Codestream::readMarkers(const QByteArray &bytes, int from)
{
    qint64 at = from;
    qint64 nextPart = -1;
    while (at >= 0 && at + 4 <= bytes.size()) {
        QDataStream stream(bytes.mid(int(at), 12));
        quint16 marker = 0;
        quint16 length = 0;
        stream >> marker >> length;
        if (marker == endMarker)
            return;
        if (marker == dataMarker) {
            at = nextPart;
            continue;
        }
        if (marker == tileMarker) {
            quint16 tile = 0;
            quint32 size = 0;
            stream >> tile >> size;
            // A size of 0 stands for the rest of the file.
            nextPart = size > length ? at + size : -1;
        } else if (marker == codingMarker) {
            readBlocks(bytes.mid(int(at) + 4, length - 2), 0, 5);
        } else if (marker == componentMarker) {
            readBlocks(bytes.mid(int(at) + 4, length - 2), 1, 2);
        }
        at += 2 + std::max<qint64>(length, 2);
    }
}

void Codestream::readBlocks(const QByteArray &parameters, int flags, int coding)
{
    const auto value = [&](int at) { return int(quint8(parameters.at(at))); };
    const int precincts = coding + 5;
    if (parameters.size() < precincts)
        return;
    const int levels = value(coding);
    m_leastBlock = std::min(m_leastBlock, value(coding + 1) + value(coding + 2) + 4);
    if (!(value(flags) & 1))
        return;
    for (int level = 0; level <= levels && precincts + level < parameters.size(); ++level) {
        const int sides = value(precincts + level);
        // The lower a resolution, the fewer samples it has.
        const int area = (sides & 15) + (sides >> 4) + 2 * (levels - level);
        m_leastBlock = std::min(m_leastBlock, area);
    }
}

bool Codestream::isAllowed() const
{
    return m_isSound && m_components > 0 && m_components <= mostComponents
           && m_width * m_height <= Limits::imagePixels && m_tiles <= mostTiles
           && samples() >> m_leastBlock <= mostBlocks;
}

} // namespace Ofd
