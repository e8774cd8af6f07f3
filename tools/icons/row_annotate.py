# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

"""Glyphs of the annotation row: text marks, shapes, pens and erasers on the 24 pixel grid."""

from drawing import BOLD, MARK, SLANT
from parts import badge, bubble, bulges, cross, cut_page, letter_a, page, text_lines, wave


def _marked_letter(d):
    letter_a(d, 6.5, 4, 11, 12)


def highlight(d):
    d.rect(2, 11, 20, 10, stroke=None, fill="yellow")
    letter_a(d, 6.5, 5, 11, 13)


def underline(d):
    _marked_letter(d)
    d.line(5, 20, 19, 20, stroke="accent", pen=BOLD)


def wavy_line(d):
    _marked_letter(d)
    wave(d, 4, 20, [4] * 4, 3.5)


def delete_line(d):
    letter_a(d, 6.5, 5, 11, 14)
    d.line(4, 14, 20, 14, stroke="red", pen=BOLD)


def display_mask(d):
    """A screen on which parts of the text are covered."""
    d.rect(2.5, 3.5, 19, 14, 1, fill="paper")
    d.line(7.5, 20.5, 16.5, 20.5)
    d.line(12, 18, 12, 20, pen=BOLD, cap="butt")
    d.rect(5, 6, 9, 3, stroke=None, fill="ink")
    d.rect(10, 12, 9, 3, stroke=None, fill="ink")
    text_lines(d, 16.5, 18.5, (7.5,), stroke="accent")
    text_lines(d, 5.5, 7.5, (13.5,), stroke="accent")


def _node(d, x, y):
    d.rect(x - 1.5, y - 1.5, 3, 3, stroke="accent", fill="paper")


def straight_line(d):
    d.line(5, 19, 19, 5, pen=MARK)
    _node(d, 4, 20)
    _node(d, 20, 4)


def arrow(d):
    d.line(4, 20, 19, 5, pen=MARK)
    d.polyline([(11, 4), (20, 4), (20, 13)], stroke="accent", pen=BOLD)


def rectangle(d):
    d.rect(2.5, 5.5, 19, 13, fill="tint")


def ellipse(d):
    d.path("M2.5 12a9.5 6.5 0 1 1 19 0a9.5 6.5 0 1 1-19 0z", fill="tint", pen=SLANT)


def polygon(d):
    d.polygon([(12, 2.5), (21.5, 9.5), (18, 20.5), (6, 20.5), (2.5, 9.5)], fill="tint",
              pen=SLANT)


def polyline(d):
    points = [(4, 19), (9, 8), (15, 15), (20, 5)]
    d.polyline(points, pen=MARK)
    for x, y in points:
        _node(d, x, y)


def cloud(d):
    bulges(d, [(6, 13.5, 3.5), (9.8, 9.1, 4.6), (15.6, 10, 3.6), (18.3, 14, 3.2), (15, 14.3, 4.7),
               (9, 14.3, 4.7)], fill="tint", pen=SLANT)


def shape(d):
    d.rect(2.5, 2.5, 12, 12, 1, fill="paper")
    d.circle(15.5, 15.5, 6, stroke="accent", fill="tint", pen=SLANT)


def free_text(d):
    d.rect(3.5, 4.5, 17, 15)
    for x, y in ((3.5, 4.5), (20.5, 4.5), (3.5, 19.5), (20.5, 19.5)):
        d.rect(x - 1, y - 1, 2, 2, fill="paper")
    d.line(8, 9, 16, 9, stroke="accent", pen=BOLD, cap="butt")
    d.line(12, 9, 12, 16, stroke="accent", pen=BOLD, cap="butt")


def note_box(d):
    d.path("M4.5 3.5H19.5a1 1 0 0 1 1 1V14.5L14.5 20.5H4.5a1 1 0 0 1-1-1V4.5a1 1 0 0 1 1-1z",
           fill="yellow")
    d.polyline([(14.5, 20.5), (14.5, 14.5), (20.5, 14.5)], fill="paper")
    text_lines(d, 7.5, 16.5, (7.5, 10.5))


def watermark(d):
    page(d, 4.5, 2.5, 15, 19, 5)
    d.path("M12 8.5c-2.2 3-3.5 5-3.5 6.8a3.5 3.5 0 0 0 7 0c0-1.8-1.3-3.8-3.5-6.8z",
           stroke="accent", fill="tint", pen=SLANT)


def _pen_body(d, fill, tip_fill="ink"):
    """A slanted barrel with a pointed tip at the lower left."""
    d.polygon([(4.5, 16.5), (6, 11.5), (15, 2.5), (18.5, 6), (9.5, 15)], fill=fill, pen=SLANT)
    d.polygon([(4.5, 16.5), (5.3, 13.8), (7.2, 15.7)], fill=tip_fill)


def pencil(d):
    _pen_body(d, "yellow")
    d.line(12.5, 5, 16, 8.5, pen=SLANT)
    d.line(6, 11.5, 9.5, 15, pen=SLANT)
    wave(d, 4, 20.5, [4] * 4, 2.5, pen=SLANT)


def _sign_pen(d, thickness):
    d.polygon([(8, 9.5), (15, 2.5), (18.5, 6), (11.5, 13)], fill="tint", pen=SLANT)
    d.polyline([(8, 9.5), (4.5, 16.5), (11.5, 13)], fill="paper", pen=SLANT)
    d.line(4.5, 16.5, 8, 13, pen=SLANT)
    d.line(4.5, 20 + thickness % 2 / 2, 19.5, 20 + thickness % 2 / 2, stroke="accent",
           pen=thickness)


def sign_pen_05mm(d):
    _sign_pen(d, 1)


def sign_pen_1mm(d):
    _sign_pen(d, 2)


def _soft_pen(d, thickness):
    d.polygon([(10.5, 8), (16, 2.5), (18.5, 5), (13, 10.5)], fill="yellow", pen=SLANT)
    d.path("M10.5 8L13 10.5C12.5 14 9 15.5 4.5 15.5C6.5 14 6.5 9.5 10.5 8z", fill="ink",
           pen=SLANT)
    d.path("M4.5 20.5q4-2.5 7.5-1t7.5-1", stroke="accent", pen=thickness)


def soft_pen_1mm(d):
    _soft_pen(d, 1.5)


def soft_pen_2mm(d):
    _soft_pen(d, 2.5)


def soft_pen_3mm(d):
    _soft_pen(d, 3.6)


def tablet(d):
    d.rect(2.5, 6.5, 19, 14, stroke=None, fill="paper")
    d.path("M13 6.5H3.5a1 1 0 0 0-1 1V19.5a1 1 0 0 0 1 1H20.5a1 1 0 0 0 1-1V13")
    d.path("M5.5 16.5c1.5-4 3-4 3.5-2s1 2.5 2.5.5", stroke="accent", pen=MARK)
    d.polygon([(12.5, 14), (13, 11), (19.5, 4.5), (22, 7), (15.5, 13.5)], fill="tint", pen=SLANT)


def _eraser(d, scale, x, y):
    """A slanted eraser whose lower left corner touches (x, y)."""
    for fill, corners in (("paper", [(0, -5), (10, -15), (17, -8), (9, 0), (5, 0)]),
                          ("tint", [(5, -10), (10, -15), (17, -8), (12, -3)])):
        d.polygon([(x + scale * px, y + scale * py) for px, py in corners], fill=fill, pen=SLANT)


def eraser(d):
    """An eraser on a line, part of which it has erased."""
    _eraser(d, 0.95, 5, 17.5)
    wave(d, 3, 20, [3.5, 3.5], 2.4)
    d.line(14, 20.5, 21.5, 20.5)


def eraser_small(d):
    _eraser(d, 0.58, 7, 19.5)
    d.line(4.5, 20.5, 19.5, 20.5)


def eraser_middle(d):
    _eraser(d, 0.78, 5.5, 19.5)
    d.line(4.5, 20.5, 19.5, 20.5)


def eraser_large(d):
    _eraser(d, 1, 3.5, 19.5)
    d.line(4.5, 20.5, 19.5, 20.5)


def affix_image(d):
    d.rect(2.5, 4.5, 19, 15, stroke=None, fill="paper")
    d.circle(7.5, 9.5, 2, stroke="accent", fill="yellow")
    ridge = [(3, 18.5), (9, 12.5), (12.5, 16), (16, 12), (21, 17)]
    d.polygon(ridge + [(21, 19), (3, 19)], stroke=None, fill="tint")
    d.polyline(ridge, stroke="accent", pen=SLANT)
    d.rect(2.5, 4.5, 19, 15, 1)


def annot_hide(d):
    bubble(d, 2.5, 3.5, 19, 13, 4)
    d.line(5, 3, 20, 18, stroke="accent", pen=BOLD)


def annot_delete(d):
    d.path("M12 16.5L7.5 20.5V16.5H3.5a1 1 0 0 1-1-1V4.5a1 1 0 0 1 1-1H20.5a1 1 0 0 1 1 1V12",
           fill="paper")
    text_lines(d, 6.5, 17.5, (7.5, 10.5))
    cross(d, 18, 18, 2.75, pen=BOLD)


def watermark_delete(d):
    cut_page(d)
    d.path("M10.5 8c-2 2.8-3 4.4-3 6a3 3 0 0 0 6 0c0-1.6-1-3.2-3-6z", stroke="accent",
           fill="tint", pen=SLANT)
    cross(d, *badge(d), 2.75, pen=BOLD)


def colour(d):
    d.path("M12 3.5c-5.2 0-9.5 3.6-9.5 8.5S6.5 20.5 11.5 20.5c1.7 0 2.2-1.2 1.6-2.3"
           "c-.8-1.5.2-3.2 2-3.2H18.5c1.9 0 3-1.3 3-3.3c0-4.7-4.3-8.2-9.5-8.2z",
           fill="paper", pen=SLANT)
    for x, y, role in ((7, 13, "red"), (8.5, 8, "yellow"), (14, 7, "accent")):
        d.circle(x, y, 1.5, stroke="ink" if role == "yellow" else role, fill=role)


def fill_colour(d):
    d.polygon([(10.5, 4.5), (18.5, 12.5), (11, 20), (3, 12)], fill="paper", pen=SLANT)
    d.polygon([(3, 12), (18, 12), (11, 20)], stroke=None, fill="tint")
    d.polygon([(10.5, 4.5), (18.5, 12.5), (11, 20), (3, 12)], pen=SLANT)
    d.line(8.5, 2.5, 12.5, 6.5, pen=SLANT)
    d.path("M19.5 14.5c-1.2 1.8-2 2.9-2 4a2 2 0 0 0 4 0c0-1.1-.8-2.2-2-4z", stroke="accent",
           fill="accent")


def line_width(d):
    d.line(3, 4.5, 21, 4.5)
    d.line(3, 10, 21, 10, pen=BOLD)
    d.rect(2, 15, 20, 5, 1, stroke=None, fill="accent")


def callout(d):
    d.rect(7.5, 3.5, 14, 11, 1, fill="paper")
    text_lines(d, 10.5, 18.5, (7.5, 10.5))
    d.polyline([(7.5, 11), (3.5, 20)], stroke="accent", pen=MARK)
    d.polyline([(3, 15.5), (3.3, 20.5), (7.5, 18)], stroke="accent", pen=MARK)
