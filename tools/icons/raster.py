# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

"""Converts a drawing of straight shapes to a PNG by regular sampling and a minimal encoder."""

import struct
import zlib

SAMPLES = 8


def png(drawing, width):
    """The PNG of a drawing made of lines and rectangles, `width` pixels wide and high."""
    scale = width / drawing.grid
    layers = [layer for shape in drawing.shapes for layer in _layers(shape, drawing.palette)]
    rows = []
    for y in range(width):
        row = bytearray([0])
        for x in range(width):
            row += _pixel(layers, x, y, scale)
        rows.append(bytes(row))
    header = struct.pack(">IIBBBBB", width, width, 8, 6, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + _chunk(b"IHDR", header)
            + _chunk(b"IDAT", zlib.compress(b"".join(rows), 9)) + _chunk(b"IEND", b""))


def _chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(
        ">I", zlib.crc32(kind + data))


def _layers(shape, palette):
    """Functions that test whether a point is painted, with their colours, from bottom to top."""
    points, closed = _outline(shape)
    pairs = list(zip(points, points[1:] + points[:1] if closed else points[1:]))
    if shape.fill:
        yield _rgb(palette[shape.fill]), lambda x, y: _inside(pairs, x, y)
    if shape.stroke:
        reach = (shape.pen / 2) ** 2
        yield (_rgb(palette[shape.stroke]),
               lambda x, y: any(_distance2(x, y, *pair) <= reach for pair in pairs))


def _outline(shape):
    geometry = shape.geometry
    if shape.kind == "rect":
        x, y = geometry["x"], geometry["y"]
        right, bottom = x + geometry["width"], y + geometry["height"]
        return [(x, y), (right, y), (right, bottom), (x, bottom)], True
    if shape.kind in ("polyline", "polygon"):
        return geometry["points"], shape.kind == "polygon"
    raise ValueError(f"a {shape.kind} cannot be drawn as PNG; use lines and rectangles")


def _rgb(colour):
    return tuple(int(colour.value[i:i + 2], 16) for i in (1, 3, 5))


def _inside(pairs, x, y):
    crossings = 0
    for (x1, y1), (x2, y2) in pairs:
        if (y1 > y) != (y2 > y) and x < x1 + (y - y1) * (x2 - x1) / (y2 - y1):
            crossings += 1
    return crossings % 2 == 1


def _distance2(x, y, start, end):
    (x1, y1), (x2, y2) = start, end
    dx, dy = x2 - x1, y2 - y1
    length2 = dx * dx + dy * dy
    t = max(0, min(1, ((x - x1) * dx + (y - y1) * dy) / length2)) if length2 else 0
    return (x - x1 - t * dx) ** 2 + (y - y1 - t * dy) ** 2


def _pixel(layers, column, row, scale):
    """The mean of the samples of one pixel, in which colours are weighted by their coverage."""
    total, covered = [0, 0, 0], 0
    for i in range(SAMPLES):
        for j in range(SAMPLES):
            x = (column + (i + 0.5) / SAMPLES) / scale
            y = (row + (j + 0.5) / SAMPLES) / scale
            colour = next((rgb for rgb, paints in reversed(layers) if paints(x, y)), None)
            if colour:
                covered += 1
                total = [a + b for a, b in zip(total, colour)]
    if not covered:
        return bytes(4)
    mean = [round(channel / covered) for channel in total]
    return bytes(mean + [round(255 * covered / SAMPLES ** 2)])
