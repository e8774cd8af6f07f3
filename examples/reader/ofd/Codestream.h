// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QByteArray>

class QDataStream;

namespace Ofd {

/**
 * What a picture in JPEG 2000 says of itself before any decoding. The decoder allocates whatever
 * the headers demand: for samples, for tiles, and for the blocks in which samples are coded.
 */
class Codestream
{
public:
    static bool isFile(const QByteArray &bytes);
    static bool isBare(const QByteArray &bytes);

    explicit Codestream(const QByteArray &bytes);

    bool isAllowed() const;
    qint64 samples() const { return m_width * m_height * m_components; }

private:
    void readSizes(QDataStream &stream);
    void readMarkers(const QByteArray &bytes, int from);
    void readBlocks(const QByteArray &parameters, int flags, int coding);

    bool m_isSound = false;
    qint64 m_width = 0;
    qint64 m_height = 0;
    qint64 m_tiles = 0;
    int m_components = 0;
    int m_leastBlock = 12; ///< The area of the smallest block, as a power of two.
};

} // namespace Ofd
