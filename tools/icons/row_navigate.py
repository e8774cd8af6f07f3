# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

"""Glyphs of the navigation panels and the page backgrounds on the 24 pixel grid."""

from drawing import BOLD, MARK, SLANT
from parts import bubble, page, plus, sheet, sun, text_lines, twinkle


def navigator(d):
    sheet(d, 2.5, 3.5, 19, 17)
    d.rect(3, 4, 6, 16, stroke=None, fill="tint")
    d.line(9.5, 3.5, 9.5, 20.5)
    text_lines(d, 4.5, 7.5, (7.5, 10.5, 13.5), stroke="accent")


def outline(d):
    d.polyline([(5, 7), (5, 18.5), (9, 18.5)])
    d.line(5, 11.5, 9, 11.5)
    for x, y in ((3, 3), (9, 10), (9, 17)):
        d.rect(x, y, 4, 4, stroke=None, fill="accent")
        d.line(x + 7, y + 2, 21, y + 2, pen=BOLD)


def thumbnail(d):
    """Small pages in a column, one of them chosen, beside the page that it shows."""
    sheet(d, 2.5, 3.5, 5, 7, stroke="accent", fill="tint")
    sheet(d, 2.5, 13.5, 5, 7)
    sheet(d, 10.5, 3.5, 11, 17)
    text_lines(d, 13.5, 18.5, (8.5, 11.5, 14.5))


def custom_tag(d):
    d.path("M12.5 2.5H20.5a1 1 0 0 1 1 1V11.5L11.5 21.5L2.5 12.5z", fill="tint", pen=SLANT)
    d.circle(17, 7, 2, stroke="accent", fill="paper", pen=SLANT)


def bookmark(d):
    d.polygon([(6.5, 2.5), (17.5, 2.5), (17.5, 21.5), (12, 16), (6.5, 21.5)], stroke="accent",
              fill="tint", pen=SLANT)


def bookmark_add(d):
    d.polygon([(4.5, 2.5), (15.5, 2.5), (15.5, 13), (10, 15.5), (4.5, 20.5)], stroke=None,
              fill="tint")
    d.polyline([(15.5, 12.5), (15.5, 2.5), (4.5, 2.5), (4.5, 20.5), (10, 15.5), (12, 17.3)],
               pen=SLANT)
    plus(d, 18, 18, 3)


def annotation(d):
    bubble(d, 2.5, 3.5, 19, 13, 4)
    text_lines(d, 6.5, 17.5, (7.5, 12.5), stroke="accent")


def attachment(d):
    d.path("M17 8V16a5 5 0 0 1-10 0V6.5a3.5 3.5 0 0 1 7 0V15.5a2 2 0 0 1-4 0V8", stroke="accent",
           pen=MARK)


def attachment_add(d):
    d.path("M13 7.5V15.5a4.5 4.5 0 0 1-9 0V6a3.25 3.25 0 0 1 6.5 0V14.5a2 2 0 0 1-4 0V7.5",
           pen=MARK)
    plus(d, 18, 18, 3)


def background_default(d):
    page(d, 4.5, 2.5, 15, 19, 5)
    text_lines(d, 7.5, 11.5, (7.5,))
    text_lines(d, 7.5, 16.5, (11.5, 14.5, 17.5))


def background_daytime(d):
    sun(d, 12, 4.5, 7.25, 9.5)


def background_nighttime(d):
    d.path("M20.5 14.6A9 9 0 1 1 9.8 3.3a7.2 7.2 0 0 0 10.7 11.3z", fill="tint", pen=SLANT)
    twinkle(d, 17.5, 6, 3.5)


def background_eye_guard(d):
    """A page of a gentle colour, with an eye."""
    page(d, 4.5, 2.5, 15, 19, 5, fill="tint")
    d.path("M6.5 14C9.5 9.5 14.5 9.5 17.5 14C14.5 18.5 9.5 18.5 6.5 14z", stroke="accent",
           fill="paper", pen=MARK)
    d.circle(12, 14, 2, stroke=None, fill="accent")


def background_parchment(d):
    """A sheet of parchment that rolls up at its ends."""
    d.path("M6.5 16V5.5a3 3 0 0 1 3-3H19a2.5 2.5 0 0 0-2.5 2.5V18.5a3 3 0 0 1-3 3H12V16z",
           fill="yellow")
    d.path("M16.5 6.5H21.5V5a2.5 2.5 0 0 0-5 0z", fill="paper")
    d.path("M13.5 21.5H5.5a3 3 0 0 1-3-3V16.5H10.5V18.5a3 3 0 0 0 3 3z", fill="paper")
    text_lines(d, 9.5, 13.5, (7.5, 10.5, 13.5))
