# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

"""Glyphs of the navigation panels and the page backgrounds on the 24 pixel grid."""

from drawing import BOLD, MARK, SLANT
from parts import (bubble, cut_page, plus, sheet, shield, solid_head, sun, text_lines,
                   twinkle)


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
    for x, y in ((4.5, 2.5), (13.5, 2.5), (13.5, 13.5)):
        sheet(d, x, y, 6, 8)
    sheet(d, 4.5, 13.5, 6, 8, stroke="accent", fill="tint")


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
    cut_page(d)
    d.path("M14 17.5a3.5 3.5 0 1 1 3.5 3.5", stroke="accent", pen=BOLD)
    solid_head(d, 14, 20, 3, (0, 1))


def background_daytime(d):
    sun(d, 12, 4.5, 7.25, 9.5)


def background_nighttime(d):
    d.path("M20.5 14.6A9 9 0 1 1 9.8 3.3a7.2 7.2 0 0 0 10.7 11.3z", fill="tint", pen=SLANT)
    twinkle(d, 17.5, 6, 3.5)


def background_eye_guard(d):
    shield(d)
    d.path("M6.5 11.5C9.5 7.5 14.5 7.5 17.5 11.5C14.5 15.5 9.5 15.5 6.5 11.5z", stroke="accent",
           fill="paper", pen=SLANT)
    d.circle(12, 11.5, 1.6, stroke=None, fill="accent")


def background_parchment(d):
    d.rect(6.5, 5.5, 11, 13, fill="yellow")
    text_lines(d, 9.5, 14.5, (9.5, 12, 14.5))
    for y in (2.5, 17.5):
        d.rect(3.5, y, 17, 4, 2, fill="paper")
