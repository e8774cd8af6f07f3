# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

"""Glyphs of the annotation row on the 16 pixel grid."""

from drawing import BOLD, MARK, SLANT
from parts import bubble, bulges, cross, letter_a, page, text_lines, wave


def highlight(d):
    d.rect(1, 7, 14, 7, stroke=None, fill="yellow")
    letter_a(d, 4, 3, 8, 9)


def underline(d):
    letter_a(d, 4, 2, 8, 8)
    d.line(3, 14, 13, 14, stroke="accent", pen=BOLD)


def wavy_line(d):
    letter_a(d, 4, 2, 8, 8)
    wave(d, 2, 13, [3] * 4, 2.2)


def delete_line(d):
    letter_a(d, 4, 2.5, 8, 11)
    d.line(2, 9, 14, 9, stroke="red", pen=BOLD)


def _node(d, x, y):
    d.rect(x - 1, y - 1, 2, 2, stroke="accent", fill="paper")


def straight_line(d):
    d.line(3, 13, 13, 3, pen=MARK)
    _node(d, 2.5, 13.5)
    _node(d, 13.5, 2.5)


def arrow(d):
    d.line(2.5, 13.5, 12.5, 3.5, pen=MARK)
    d.polyline([(7, 3), (13, 3), (13, 9)], stroke="accent", pen=BOLD)


def rectangle(d):
    d.rect(1.5, 3.5, 13, 9, fill="tint")


def ellipse(d):
    d.path("M1.5 8a6.5 4.5 0 1 1 13 0a6.5 4.5 0 1 1-13 0z", fill="tint", pen=SLANT)


def polygon(d):
    d.polygon([(8, 1.5), (14.5, 6.5), (12, 13.5), (4, 13.5), (1.5, 6.5)], fill="tint", pen=SLANT)


def polyline(d):
    points = [(2.5, 12.5), (5.5, 4.5), (9.5, 10.5), (13.5, 2.5)]
    d.polyline(points, pen=SLANT)
    for x, y in points:
        _node(d, x, y)


def cloud(d):
    bulges(d, [(4.1, 9.3, 2.6), (7, 6.2, 3.2), (11.5, 8.9, 3), (10, 9.9, 3.1), (6, 9.9, 3.1)],
           fill="tint", pen=SLANT)


def shape(d):
    d.rect(1.5, 1.5, 8, 8, fill="paper")
    d.circle(10.5, 10.5, 4, stroke="accent", fill="tint", pen=SLANT)


def free_text(d):
    d.rect(2.5, 2.5, 11, 11)
    for x in (2, 14):
        for y in (2, 14):
            d.rect(x - 1, y - 1, 2, 2, stroke=None, fill="ink")
    d.line(5, 6, 11, 6, stroke="accent", pen=BOLD, cap="butt")
    d.line(8, 6, 8, 11, stroke="accent", pen=BOLD, cap="butt")


def note_box(d):
    d.path("M2.5 1.5H13.5a1 1 0 0 1 1 1V9.5L9.5 14.5H2.5a1 1 0 0 1-1-1V2.5a1 1 0 0 1 1-1z",
           fill="yellow")
    d.polyline([(9.5, 14.5), (9.5, 9.5), (14.5, 9.5)], fill="paper")
    text_lines(d, 4.5, 11.5, (4.5, 6.5))


def watermark(d):
    page(d, 3.5, 1.5, 9, 13, 3)
    d.path("M8 5.5c-1.9 2.2-2.75 3.4-2.75 4.5a2.75 2.75 0 0 0 5.5 0c0-1.1-.85-2.3-2.75-4.5z",
           stroke="accent", fill="tint", pen=SLANT)


def _barrel(d, fill):
    d.polygon([(2.5, 10.5), (3.5, 7.5), (9.5, 1.5), (11.5, 3.5), (5.5, 9.5)], fill=fill,
              pen=SLANT)


def pencil(d):
    _barrel(d, "yellow")
    d.line(8, 3, 10, 5, pen=SLANT)
    wave(d, 2, 13.5, [3] * 4, 2.2, pen=SLANT)


def _sign_pen(d, thickness):
    d.polygon([(5.5, 5.5), (9.5, 1.5), (11.5, 3.5), (7.5, 7.5)], fill="tint", pen=SLANT)
    d.polygon([(5.5, 5.5), (2.5, 10.5), (7.5, 7.5)], fill="paper", pen=SLANT)
    y = 14 - thickness / 2 + (thickness == 2)
    d.line(2.5, y, 13.5, y, stroke="accent", pen=thickness)


def sign_pen_05mm(d):
    _sign_pen(d, 1)


def sign_pen_1mm(d):
    _sign_pen(d, 2)


def _soft_pen(d, thickness):
    d.polygon([(7, 5), (10.5, 1.5), (12.5, 3.5), (9, 7)], fill="yellow", pen=SLANT)
    d.path("M7 5L9 7C8.5 9.5 6 10.5 3 10.5C4.5 9.5 4.5 6.5 7 5z", fill="ink")
    d.path("M3 13.5q2.5-1.6 5-.5t5-.5", stroke="accent", pen=thickness)


def soft_pen_1mm(d):
    _soft_pen(d, 1)


def soft_pen_2mm(d):
    _soft_pen(d, 2)


def soft_pen_3mm(d):
    _soft_pen(d, 3.2)


def tablet(d):
    d.rect(1.5, 4.5, 13, 10, stroke=None, fill="paper")
    d.path("M8 4.5H2.5a1 1 0 0 0-1 1V13.5a1 1 0 0 0 1 1H13.5a1 1 0 0 0 1-1V9")
    d.path("M4 11.5c1-3 2-3 2.4-1.5s1 1.5 1.8.3", stroke="accent", pen=SLANT)
    d.polygon([(8.5, 9.5), (9, 7), (13, 3), (14.5, 4.5), (10.5, 8.5)], fill="tint", pen=SLANT)


def _eraser(d, scale, x, y):
    """A slanted eraser that stands on its lower left corner at (x, y)."""
    for fill, corners in (("paper", [(0, -3.5), (6.5, -10), (11, -5.5), (5.5, 0), (3.5, 0)]),
                          ("tint", [(3.25, -6.75), (6.5, -10), (11, -5.5), (7.75, -2.25)])):
        d.polygon([(x + scale * px, y + scale * py) for px, py in corners], fill=fill, pen=SLANT)


def eraser(d):
    """An eraser on a line, part of which it has erased."""
    _eraser(d, 1, 3.5, 11.5)
    d.line(2, 14, 7, 14, stroke="accent", pen=BOLD)


def eraser_small(d):
    _eraser(d, 0.58, 5, 12.5)
    d.line(2.5, 13.5, 13.5, 13.5)


def eraser_middle(d):
    _eraser(d, 0.78, 4, 12.5)
    d.line(2.5, 13.5, 13.5, 13.5)


def eraser_large(d):
    _eraser(d, 1, 2.5, 12.5)
    d.line(2.5, 13.5, 13.5, 13.5)


def affix_image(d):
    d.rect(1.5, 2.5, 13, 11, stroke=None, fill="paper")
    d.circle(5, 6, 1.5, stroke="accent", fill="yellow")
    ridge = [(2, 12), (6, 8.5), (8, 10.5), (11, 7.5), (14, 10.5)]
    d.polygon(ridge + [(14, 13), (2, 13)], stroke=None, fill="tint")
    d.polyline(ridge, stroke="accent", pen=SLANT)
    d.rect(1.5, 2.5, 13, 11, 1)


def display_mask(d):
    """A screen on which parts of the text are covered."""
    d.rect(1.5, 1.5, 13, 10, 1, fill="paper")
    d.line(4.5, 14.5, 11.5, 14.5)
    d.line(8, 12, 8, 14, pen=BOLD, cap="butt")
    d.rect(3, 4, 6, 2, stroke=None, fill="ink")
    d.rect(7, 8, 6, 2, stroke=None, fill="ink")
    text_lines(d, 10.5, 12.5, (5.5,), stroke="accent")
    text_lines(d, 3.5, 5.5, (8.5,), stroke="accent")


def annot_hide(d):
    bubble(d, 1.5, 2.5, 13, 9, 3)
    d.line(3, 2, 14, 13, stroke="accent", pen=BOLD)


def annot_delete(d):
    d.path("M13.5 2.5H2.5a1 1 0 0 0-1 1V9.5a1 1 0 0 0 1 1H4.5V14L8 10.5V8L14.5 7.5V3.5"
           "a1 1 0 0 0-1-1z", stroke=None, fill="paper")
    d.path("M8 10.5L4.5 13.5V10.5H2.5a1 1 0 0 1-1-1V3.5a1 1 0 0 1 1-1H13.5a1 1 0 0 1 1 1V7")
    text_lines(d, 4.5, 11.5, (5.5,))
    cross(d, 12, 12, 2)
