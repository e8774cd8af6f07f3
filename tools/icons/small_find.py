# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

"""Glyphs of searching, selecting, menu marks and folding on the 16 pixel grid."""

from drawing import BOLD, MARK, SLANT
from parts import binoculars, chevron, cross, dashed_frame, letter_a, magnifier, text_lines


def find(d):
    binoculars(d)


def search(d):
    magnifier(d, 7, 4.5, 13, fill="paper", handle=MARK)


def advanced_search(d):
    for y, right in ((2.5, 14.5), (6.5, 4), (10.5, 4)):
        d.line(1.5, y, right, y)
    d.circle(9.5, 9, 3.5, stroke="accent", fill="tint", pen=SLANT)
    d.line(12.5, 12, 14.5, 14, stroke="accent", pen=BOLD)


def search_prev(d):
    chevron(d, [(3.5, 10.5), (8, 6), (12.5, 10.5)])


def search_next(d):
    chevron(d, [(3.5, 6), (8, 10.5), (12.5, 6)])


def search_set(d):
    for y, knob in ((4.5, 10.5), (11.5, 5.5)):
        d.line(1.5, y, knob - 2, y)
        d.line(knob + 2, y, 14.5, y)
        d.circle(knob, y, 2, fill="tint")


def search_clear(d):
    d.circle(8, 8, 6, fill="tint", pen=SLANT)
    cross(d, 8, 8, 2.5, stroke="accent")


def whole_word(d):
    d.circle(4.5, 6.5, 2, pen=SLANT)
    d.line(6.5, 4.5, 6.5, 8.5)
    d.line(9.5, 1.5, 9.5, 8.5)
    d.circle(11.5, 6.5, 2, pen=SLANT)
    d.polyline([(1.5, 11.5), (1.5, 13.5), (14.5, 13.5), (14.5, 11.5)], stroke="accent")


def match_case(d):
    letter_a(d, 1.5, 3, 7, 10, pen=MARK)
    d.circle(12, 10.5, 2, stroke="accent", pen=MARK)
    d.line(14, 8.25, 14, 12.75, stroke="accent", pen=MARK)


def select_all(d):
    dashed_frame(d, 1.5, 1.5, 13, corner=2, bridge=3)
    d.rect(4.5, 4.5, 7, 7, stroke="accent", fill="tint")


def unselect(d):
    dashed_frame(d, 1.5, 1.5, 13, corner=2, bridge=3)
    cross(d, 8, 8, 2.5)


def track_info(d):
    """The trace of a pen, and a note about it."""
    d.path("M1.5 9C3.5 2 7 0.5 7.5 3C8 6 3.5 9.5 5.5 10.5", pen=BOLD)
    d.circle(10.5, 10.5, 4, stroke="accent", fill="paper", pen=SLANT)
    d.rect(10, 8, 1, 1, stroke=None, fill="accent")
    d.rect(10, 10, 1, 3, stroke=None, fill="accent")


def menu(d):
    text_lines(d, 1.5, 14.5, (3.5, 7.5, 11.5))


def more(d):
    for x in (3, 8, 13):
        d.circle(x, 8, 1.5, stroke=None, fill="ink")


def quick_access_set(d):
    d.line(4.5, 5.5, 11.5, 5.5)
    d.polygon([(4, 8), (12, 8), (8, 12)], stroke=None, fill="ink")


def fold(d):
    """The line of tabs, and an arrow up for hiding the row below or down for showing it."""
    d.rect(1.5, 2.5, 13, 3, fill="tint")
    chevron(d, [(4, 12.5), (8, 8.5), (12, 12.5)])


def unfold(d):
    d.rect(1.5, 2.5, 13, 3, fill="tint")
    chevron(d, [(4, 8.5), (8, 12.5), (12, 8.5)])


def sub_menu(d):
    d.polygon([(6, 3.5), (6, 12.5), (10.5, 8)], stroke=None, fill="ink")


def check_mark(d):
    d.polyline([(3, 8.5), (6.5, 12), (13, 4.5)], stroke="accent", pen=BOLD)


def radio_mark(d):
    d.circle(8, 8, 3, stroke=None, fill="accent")
