// SPDX-FileCopyrightText: The MRToolBar authors
// SPDX-License-Identifier: MIT

#pragma once

#include <QtGlobal>

#include <cstddef>

/** The limits of what a file may contain. Ordinary documents stay far below all of them. */
namespace Ofd::Limits {

constexpr qint64 archiveBytes = 256LL << 20;
constexpr qint64 entryBytes = 64LL << 20;
constexpr qint64 unpackedBytes = 512LL << 20;
constexpr int entries = 50000;
/** Deflate reaches a ratio of about 1000 on equal bytes, but hardly 100 on text. */
constexpr qint64 packingRatio = 200;
/** The ratio of entries below this size is not checked. */
constexpr qint64 harmlessBytes = 1LL << 20;

constexpr int xmlDepth = 64;
/** Elements and attributes of one file. */
constexpr qint64 xmlNodes = 1500000;
constexpr int xmlAttributes = 128;
constexpr int pages = 20000;
constexpr int signatures = 1000;
/** Documents as pictures of seals; one that several signatures have counts once. */
constexpr int sealDrawings = 16;
constexpr int sealsPerPage = 100;
/** The pictures of all seals, and each of the further files of a signature. */
constexpr qint64 sealBytes = 16LL << 20;
/** Objects that are read for one page, or for all pages in common. */
constexpr qint64 objects = 2000000;
/** Characters and points of paths, with every composite and template expanded. */
constexpr qint64 marksPerPage = 3000000;
constexpr int linksPerPage = 10000;
/** Objects of templates that are kept for further pages. */
constexpr qint64 templateObjects = 200000;

/** Of one object, and areas of one clip. */
constexpr std::size_t clips = 1000;

constexpr qreal number = 1e7;
constexpr qreal pageSide = 10000;
constexpr qreal fontSize = 2000;
constexpr int dashes = 64;
constexpr qreal dashPeriod = 0.01;
constexpr qreal dashesPerPath = 50000;
/** Further objects on the page are blended part by part. */
constexpr int layersPerPage = 1000;
/** Further lines that go to and fro in a small area are painted in a quicker way. */
constexpr int linesPerPage = 1000;
/** Further characters are left out: nobody could read so many on a page. */
constexpr int glyphsPerPage = 250000;
constexpr int gradientStops = 4096;
constexpr std::size_t meshPoints = 300000;
/** Of a picture that is computed for a shading or a pattern. */
constexpr qreal shadingPixels = 4e6;
/** In millimetres; cells of a smaller width or height are no pattern. */
constexpr qreal patternSide = 1e-3;
constexpr int patternDepth = 8;
constexpr qint64 imagePixels = 100LL * 1000 * 1000;
/** Pixels of all scans of a progressive picture. */
constexpr qint64 imageScans = 20 * imagePixels;
/** Of a decoded picture. */
constexpr qint64 imageBytes = 192LL << 20;
/** In pictures whose decoder needs four bytes for each, besides the bytes of the picture. */
constexpr qint64 imageSamples = 40LL * 1000 * 1000;

} // namespace Ofd::Limits
