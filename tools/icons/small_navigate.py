# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

"""Glyphs of the navigation panels, the page backgrounds and the tabs on the 16 pixel grid."""

from drawing import BOLD, MARK, SLANT
from parts import (arrow, bubble, check, cross, page, plus, sheet, shield, sun, text_lines,
                   twinkle)


def navigator(d):
    sheet(d, 1.5, 2.5, 13, 11)
    d.rect(2, 3, 4, 10, stroke=None, fill="tint")
    d.line(6.5, 2.5, 6.5, 13.5)
    text_lines(d, 3.5, 4.5, (5.5, 7.5, 9.5), stroke="accent")


def outline(d):
    d.polyline([(3.5, 5), (3.5, 12.5), (5, 12.5)])
    d.line(3.5, 7.5, 5, 7.5)
    for x, y in ((2, 1), (6, 6), (6, 11)):
        d.rect(x, y, 3, 3, stroke=None, fill="accent")
        d.line(x + 5.5, y + 1.5, 14.5, y + 1.5)


def thumbnail(d):
    """Small pages in a column, one of them chosen, beside the page that it shows."""
    sheet(d, 1.5, 1.5, 4, 5, stroke="accent", fill="tint")
    sheet(d, 1.5, 9.5, 4, 5)
    sheet(d, 8.5, 1.5, 6, 13)
    text_lines(d, 10.5, 12.5, (5.5, 7.5, 9.5))


def custom_tag(d):
    d.path("M8.5 1.5H13.5a1 1 0 0 1 1 1V7.5L7.5 14.5L1.5 8.5z", fill="tint", pen=SLANT)
    d.circle(11.5, 4.5, 1, stroke="accent", fill="paper", pen=SLANT)


def bookmark(d):
    d.polygon([(3.5, 1.5), (12.5, 1.5), (12.5, 14.5), (8, 10.5), (3.5, 14.5)], stroke="accent",
              fill="tint", pen=SLANT)


def _cut_bookmark(d):
    d.polygon([(2.5, 1.5), (9.5, 1.5), (9.5, 9), (6, 10.5), (2.5, 14)], stroke=None, fill="tint")
    d.polyline([(9.5, 7), (9.5, 1.5), (2.5, 1.5), (2.5, 14), (6, 10.5)], pen=SLANT)


def bookmark_add(d):
    _cut_bookmark(d)
    plus(d, 12, 12, 2)


def bookmark_delete(d):
    _cut_bookmark(d)
    cross(d, 12, 12, 2)


def _branch(d):
    d.rect(1.5, 4.5, 7, 7, 1, fill="paper")
    for y, x in ((2.5, 6.5), (5.5, 11.5), (8.5, 11.5), (11.5, 11.5)):
        d.line(x, y, 14.5, y)


def outline_expand(d):
    _branch(d)
    d.line(3.5, 8, 6.5, 8, stroke="accent", pen=BOLD)
    d.line(5, 6.5, 5, 9.5, stroke="accent", pen=BOLD)


def outline_collapse(d):
    _branch(d)
    d.line(3.5, 8, 6.5, 8, stroke="accent", pen=BOLD)


def annotation(d):
    bubble(d, 1.5, 2.5, 13, 9, 3)
    text_lines(d, 4.5, 11.5, (5.5, 8.5), stroke="accent")


def attachment(d):
    d.path("M11.5 5.5V11a3.5 3.5 0 0 1-7 0V4.5a2.5 2.5 0 0 1 5 0V10.5a1 1 0 0 1-2 0V5.5",
           stroke="accent", pen=MARK)


def attachment_save(d):
    d.path("M7.5 5.5V11.5a3 3 0 0 1-6 0V3.5a2 2 0 0 1 4 0V10.5a1 1 0 0 1-2 0V5.5", pen=SLANT)
    arrow(d, (12, 5), (12, 11), 2, pen=BOLD)
    d.line(10, 14, 14, 14, stroke="accent", pen=BOLD)


def background_default(d):
    page(d, 2.5, 1.5, 11, 13, 3)
    text_lines(d, 5.5, 8.5, (5.5,))
    text_lines(d, 5.5, 10.5, (8.5, 11.5))


def background_daytime(d):
    sun(d, 7.5, 3, 5, 6)


def background_nighttime(d):
    d.path("M13.5 9.8A6 6 0 1 1 6.2 2.5a4.8 4.8 0 0 0 7.3 7.3z", fill="tint", pen=SLANT)
    twinkle(d, 12, 4, 2.5)


def background_eye_guard(d):
    """A page of a gentle colour, with an eye."""
    page(d, 2.5, 1.5, 11, 13, 3, fill="tint")
    d.path("M3.5 9C6 5 10 5 12.5 9C10 13 6 13 3.5 9z", stroke="accent", fill="paper", pen=SLANT)
    d.rect(7, 8, 2, 2, stroke=None, fill="accent")


def background_parchment(d):
    """A sheet of parchment that rolls up at its ends."""
    d.path("M4.5 11V3.5a2 2 0 0 1 2-2H12.5a2 2 0 0 0-1 2V12.5a2 2 0 0 1-2 2H8V11z", fill="yellow")
    d.path("M11.5 4.5H14.5V3a1.5 1.5 0 0 0-3 0z", fill="paper")
    d.path("M9.5 14.5H3.5a2 2 0 0 1-2-2V11.5H7.5V12.5a2 2 0 0 0 2 2z", fill="paper")
    text_lines(d, 6.5, 9.5, (5.5, 7.5))


def tab_read(d):
    for side in (1, -1):
        at = lambda x: 7.5 + side * x
        d.path(f"M7.5 4.5C{at(1.5):g} 3 {at(3.5):g} 2.5 {at(6):g} 2.5V12.5"
               f"c{-2.5 * side:g} 0 {-4.5 * side:g}.5 {-6 * side:g} 2z", fill="tint", pen=SLANT)


def tab_annotate(d):
    d.path("M6 14.5H2.5a1 1 0 0 1-1-1V2.5a1 1 0 0 1 1-1H10.5a1 1 0 0 1 1 1V4")
    text_lines(d, 4, 8, (5.5, 8.5))
    d.polygon([(7.5, 14.5), (8, 12), (12.5, 7.5), (14.5, 9.5), (10, 14)], fill="tint", pen=SLANT)


def tab_security(d):
    shield(d)
    check(d, 8, 8, 2.5)
