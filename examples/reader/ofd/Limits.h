// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

/** How far a file may go. A document made by honest means stays far below every one of these. */
namespace Ofd::Limits {

constexpr qint64 archiveBytes = 256LL << 20;
constexpr qint64 entryBytes = 64LL << 20;
constexpr qint64 unpackedBytes = 512LL << 20;
constexpr int entries = 50000;
/** Deflate reaches about 1000 on a run of one byte, but hardly 100 on text. */
constexpr qint64 packingRatio = 200;
/** Below this an entry may be packed as tightly as it likes. */
constexpr qint64 harmlessBytes = 1LL << 20;

constexpr int xmlDepth = 64;
constexpr int xmlElements = 4000000;
constexpr int pages = 20000;
constexpr qint64 objects = 2000000;
/** Characters and points of paths, with every composite and template painted out. */
constexpr qint64 marksPerPage = 3000000;
constexpr qint64 marks = 30000000;

constexpr qreal number = 1e7;
constexpr qreal pageSide = 10000;
constexpr qreal fontSize = 2000;
constexpr int dashes = 64;
constexpr qreal dashPeriod = 0.01;
constexpr qreal dashesPerPath = 50000;
constexpr qint64 imagePixels = 100LL * 1000 * 1000;

} // namespace Ofd::Limits
