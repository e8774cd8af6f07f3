# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

"""What the section [made] of the sources of OFD files may call."""

import base64
import struct

from make_samples import font, picture  # noqa: F401


def tiff(width=40, height=30):
    """A TIFF of four coloured quarters, not compressed, in big-endian order."""
    quarters = (b"\xc8\x28\x28", b"\x28\x28\xc8"), (b"\x3c\x8c\x46", b"\xfa\xc8\x28")
    rows = b"".join(left * (width // 2) + right * (width - width // 2)
                    for left, right in (quarters[y >= height // 2] for y in range(height)))
    return tiff_header(width, height) + rows


def tiff_header(width, height):
    entries = [(256, 4, width), (257, 4, height), (258, 3, 8 << 16), (259, 3, 1 << 16),
               (262, 3, 2 << 16), (273, 4, 8 + 2 + 9 * 12 + 4), (277, 3, 3 << 16),
               (278, 4, height), (279, 4, min(width * height * 3, 2 ** 32 - 1))]
    body = b"".join(struct.pack(">HHII", tag, kind, 1, value) for tag, kind, value in entries)
    return b"MM\0*" + struct.pack(">IH", 8, len(entries)) + body + bytes(4)


# The scene of picture() in black and white, coded as a fax.
SCENE = base64.b64decode("///ngYggcEDw8PeHh73gAgAg")


def jbig2(is_file=False, width=40, height=30, fax=SCENE):
    """A bilevel picture: bare segments as documents embed them, or a file."""
    def segment(number, kind, data):
        return struct.pack(">IBBBI", number, kind, 0, 1, len(data)) + data
    page = struct.pack(">IIIIBH", width, height, 0, 0, 0, 0)
    region = struct.pack(">IIIIBB", width, height, 0, 0, 0, 1) + fax
    segments = segment(0, 48, page) + segment(1, 38, region) + segment(2, 49, b"")
    if not is_file:
        return segments
    head = b"\x97JB2\r\n\x1a\n" + struct.pack(">BI", 1, 1)
    return head + segments + segment(3, 51, b"")
import zlib

import make_samples
from make_samples import font, picture  # noqa: F401


# Seals and signatures. Nobody has signed them, for only their pictures are looked at.

def der(tag, *parts):
    """A value in DER."""
    content = b"".join(parts)
    size = len(content)
    length = bytes([size]) if size < 128 else b"\x84" + struct.pack(">I", size)
    return bytes([tag]) + length + content


def seal(image, form=2020):
    """An electronic seal, without a signature of its maker."""
    def text(tag, characters):
        return der(tag, characters.encode())
    identifier, nothing = der(6, b"\x2a\x03"), der(3, b"\0")
    number = der(2, b"\x04" if form == 2020 else b"\x01")
    head = der(0x30, text(22, "ES"), number, text(22, "tests"))
    moment = text(24, "20240506070809Z") if form == 2020 else text(23, "240506070809Z")
    kind = [der(2, b"\x01")] if form == 2020 else []
    properties = der(0x30, der(2, b"\x01"), text(12, "测试章"), *kind, der(0x30),
                     moment, moment, moment)
    size = der(2, b"\x14")
    drawn = der(0x30, text(22, "any"), der(4, image), size, size)
    maker = [der(4), identifier, nothing]
    return der(0x30, der(0x30, head, text(22, "1"), properties, drawn),
               *(maker if form == 2020 else [der(0x30, *maker)]))


def signed(made, form=2020):
    """The value of a signature with that seal."""
    identifier, nothing = der(6, b"\x2a\x03"), der(3, b"\0")
    moment = der(24, b"20240506070809Z") if form == 2020 else nothing
    parts = [der(2, b"\x04"), made, moment, nothing, der(22)]
    if form == 2020:
        return der(0x30, der(0x30, *parts), der(4), identifier, nothing)
    return der(0x30, der(0x30, *parts, der(4), identifier), nothing)


# Pictures of a ring on white or on nothing, as seals are.

def is_ring(x, y, side):
    distance = ((x - (side - 1) / 2) ** 2 + (y - (side - 1) / 2) ** 2) ** 0.5 * 2 / side
    return 0.8 < distance <= 1 or distance < 0.3


def ring_png(side=40, colour=(200, 30, 30)):
    """Transparent beside the ring."""
    rows = b"".join(b"\0" + b"".join(bytes(colour) + b"\xff" if is_ring(x, y, side) else b"\0" * 4
                                     for x in range(side)) for y in range(side))

    def chunk(kind, data):
        return (struct.pack(">I", len(data)) + kind + data
                + struct.pack(">I", zlib.crc32(kind + data)))
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", side, side, 8, 6, 0, 0, 0))
            + chunk(b"IDAT", zlib.compress(rows)) + chunk(b"IEND", b""))


def ring_gif(side=40):
    """Transparent beside the ring; the table of strings is cleared before it needs longer codes."""
    pixels = bytes(is_ring(x, y, side) for y in range(side) for x in range(side))
    clear, end = b"\x80", b"\x81"
    codes = b"".join(clear + pixels[i:i + 100] for i in range(0, len(pixels), 100)) + end
    blocks = b"".join(bytes([len(codes[i:i + 255])]) + codes[i:i + 255]
                      for i in range(0, len(codes), 255))
    return (b"GIF89a" + struct.pack("<HHBBB", side, side, 0x80, 0, 0)
            + bytes((255, 255, 255, 30, 60, 200)) + b"\x21\xf9\x04\x01\0\0\0\0"
            + b"," + struct.pack("<HHHHB", 0, 0, side, side, 0) + b"\x07" + blocks + b"\0;")


def ring_bmp(side=40):
    pixels = b"".join(bytes((40, 140, 40)) if is_ring(x, y, side) else b"\xff" * 3
                      for y in range(side) for x in range(side))
    return (b"BM" + struct.pack("<IHHI", 54 + len(pixels), 0, 0, 54)
            + struct.pack("<IiiHHIIiiII", 40, side, side, 1, 24, 0, len(pixels), 2835, 2835, 0, 0)
            + pixels)


def ring_ofd():
    """A document with a page of 40 x 40 millimetres."""
    ring = make_samples.path(
        "2 2 36 36", "M 0 18 A 18 18 0 1 1 36 18 A 18 18 0 1 1 0 18 C",
        ' LineWidth="4"', make_samples.stroke("130 40 150"))
    page = make_samples.page(ring)
    return make_samples.archive(make_samples.package("章", [page], box="0 0 40 40"))


def from_base64(text):
    return base64.b64decode(text)
