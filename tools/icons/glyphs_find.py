"""Glyphs of searching, selecting and traces: the 16 pixel grid."""

from drawing import BOLD, MARK, SLANT
from parts import chevron, cross, dashed_frame, magnifier, page


def find(d):
    magnifier(d, 6.5, 5, 14)


def search(d):
    magnifier(d, 7, 4.5, 13, fill="paper", handle=MARK)


def advanced_search(d):
    for y, right in ((2.5, 14.5), (6.5, 4), (10.5, 4)):
        d.line(1.5, y, right, y)
    d.circle(9.5, 9, 3.5, stroke="accent", fill="tint", pen=SLANT)
    d.line(12.5, 12, 14.5, 14, stroke="accent", pen=BOLD)


def search_previous(d):
    chevron(d, [(3.5, 10.5), (8, 6), (12.5, 10.5)])


def search_next(d):
    chevron(d, [(3.5, 6), (8, 10.5), (12.5, 6)])


def search_options(d):
    for y, knob in ((4.5, 10.5), (11.5, 5.5)):
        d.line(1.5, y, knob - 2, y)
        d.line(knob + 2, y, 14.5, y)
        d.circle(knob, y, 2, fill="tint")


def select_all(d):
    dashed_frame(d, 1.5, 1.5, 13, corner=2, bridge=3)
    d.rect(4.5, 4.5, 7, 7, stroke="accent", fill="tint")


def select_page(d):
    page(d, 2.5, 1.5, 10, 13, 3, fill="tint")
    d.polyline([(5, 9), (7, 11), (10.5, 7)], stroke="accent", pen=MARK)


def unselect(d):
    dashed_frame(d, 1.5, 1.5, 13, corner=2, bridge=3)
    cross(d, 8, 8, 2.5)


def trace_information(d):
    d.path("M3.5 13.5H10a2.5 2.5 0 0 0 0-5H6a2.5 2.5 0 0 1 0-5H9", pen=SLANT)
    d.circle(2.5, 13.5, 1, fill="paper")
    d.circle(11.5, 3.5, 2, stroke="accent", fill="tint", pen=SLANT)
