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
