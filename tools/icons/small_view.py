# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

"""Glyphs of the view row on the 16 pixel grid."""

from drawing import BOLD, MARK, SLANT, path_data
from parts import arrow, chevron, magnifier, mirrored, page, plus, sheet, solid_head, text_lines


def hand_tool(d):
    d.path("M5.5 9V4a1 1 0 0 1 2 0V2.5a1 1 0 0 1 2 0V3.5a1 1 0 0 1 2 0V5.5a1 1 0 0 1 2 0V10"
           "c0 3-1.8 4.5-4.3 4.5-2 0-3.2-.9-4.2-2.5L2.7 9c-.4-.7-.2-1.3.3-1.6s1.1 0 1.4.5L5.5 9.5",
           fill="tint")
    for x, top in ((7.5, 4), (9.5, 3.5), (11.5, 5.5)):
        d.line(x, top, x, 7.5)


def text_select(d):
    d.rect(1, 3, 10, 10, stroke=None, fill="tint")
    d.line(2, 5, 10, 5, pen=BOLD, cap="butt")
    d.line(6, 5, 6, 12, pen=BOLD, cap="butt")
    for y in (2.5, 13.5):
        d.line(12.5, y, 14.5, y, stroke="accent")
    d.line(13.5, 2.5, 13.5, 13.5, stroke="accent")


def _rotate(d, mirror):
    """A page and the quarter turn that is made with it."""
    at, sweep = (lambda x: 16 - x, 0) if mirror else (lambda x: x, 1)
    sheet(d, 8.5 if mirror else 1.5, 6.5, 6, 8)
    d.path(path_data("M", at(4), 3, f"A8 8 0 0 {sweep}", at(12), 11), stroke="accent", pen=BOLD,
           cap="butt")
    solid_head(d, at(12), 13, 3, (0, 1))


def rotate_clockwise(d):
    _rotate(d, mirror=False)


def rotate_anticlockwise(d):
    _rotate(d, mirror=True)


def original_size(d):
    sheet(d, 1.5, 2.5, 13, 11)
    for x in (5, 12):
        d.polyline([(x - 1.5, 6), (x, 5), (x, 11)], stroke="accent", pen=BOLD, cap="butt")
    for y in (6, 9):
        d.rect(7, y, 2, 2, stroke=None, fill="accent")


def fit_width(d):
    sheet(d, 2.5, 1.5, 11, 13)
    d.line(6, 8, 10, 8, stroke="accent", pen=BOLD, cap="butt")
    solid_head(d, 4, 8, 3, (-1, 0))
    solid_head(d, 12, 8, 3, (1, 0))


def fit_height(d):
    sheet(d, 2.5, 1.5, 11, 13)
    d.line(8, 6, 8, 10, stroke="accent", pen=BOLD, cap="butt")
    solid_head(d, 8, 3, 3, (0, -1))
    solid_head(d, 8, 13, 3, (0, 1))


def fit_page(d):
    sheet(d, 2.5, 1.5, 11, 13)
    for x, y, sx, sy in ((4.5, 3.5, 1, 1), (11.5, 3.5, -1, 1), (4.5, 12.5, 1, -1),
                         (11.5, 12.5, -1, -1)):
        arrow(d, (x + sx * 2, y + sy * 2), (x, y), 2)


def zoom_in(d):
    magnifier(d, 7, 5, 14)
    plus(d, 7, 7, 2)


def zoom_out(d):
    magnifier(d, 7, 5, 14)
    d.line(5, 7, 9, 7, stroke="accent", pen=BOLD)


def zoom(d):
    magnifier(d, 7, 5.4, 14)
    d.line(8.7, 4.6, 5.3, 9.4, stroke="accent", pen=SLANT)
    for x, y in ((5, 5.5), (9, 8.5)):
        d.circle(x, y, 1, stroke=None, fill="accent")


def zoom_area(d):
    for x, y, sx, sy in ((1.5, 1.5, 1, 1), (13.5, 1.5, -1, 1), (1.5, 13.5, 1, -1)):
        d.polyline([(x + sx * 3, y), (x, y), (x, y + sy * 3)])
    d.line(6.5, 1.5, 8.5, 1.5)
    d.line(1.5, 6.5, 1.5, 8.5)
    d.circle(9, 9, 3.5, stroke="accent", fill="tint", pen=SLANT)
    d.line(12, 12, 14, 14, stroke="accent", pen=BOLD)


def goto_page(d):
    page(d, 2.5, 1.5, 11, 13, 3)
    for at in (6.5, 9.5):
        d.line(at, 5.5, at, 12.5, stroke="accent")
    for at in (7.5, 10.5):
        d.line(4.5, at, 11.5, at, stroke="accent")


def _step(d, forward, to_end):
    """Turns the page: to its neighbour, or as far as the pages go."""
    sheet(d, 2.5, 1.5, 11, 13)
    shift = 1.5 if to_end else 0
    chevron(d, mirrored([(9.25 + shift, 5), (6.75 + shift, 8), (9.25 + shift, 11)], 8, forward),
            pen=BOLD, stroke="accent")
    if to_end:
        d.polyline(mirrored([(4.5, 4.5), (4.5, 11.5)], 8, forward), stroke="accent")


def first_page(d):
    _step(d, forward=False, to_end=True)


def prev_page(d):
    _step(d, forward=False, to_end=False)


def next_page(d):
    _step(d, forward=True, to_end=False)


def last_page(d):
    _step(d, forward=True, to_end=True)


def single_page(d):
    sheet(d, 3.5, 1.5, 9, 13)
    text_lines(d, 5.5, 10.5, (4.5, 7.5, 10.5), stroke="accent")


def double_page(d):
    for x in (1.5, 9.5):
        sheet(d, x, 2.5, 5, 10)
        text_lines(d, x + 2, x + 3, (5.5, 7.5, 9.5), stroke="accent")


def _flow(d, x, width):
    """A page and the next one, which goes on below the edge."""
    d.rect(x, 1.5, width, 8, 0.5, fill="paper")
    right = x + width
    d.polyline([(x, 15), (x, 11.5), (right, 11.5), (right, 15)], fill="paper", cap="butt")


def _scroll(d):
    arrow(d, (13, 2), (13, 14), 2, pen=BOLD, both=True)


def single_flow(d):
    _flow(d, 1.5, 7)
    text_lines(d, 3.5, 6.5, (4.5, 6.5))
    _scroll(d)


def double_flow(d):
    _flow(d, 1.5, 3)
    _flow(d, 6.5, 3)
    _scroll(d)


def full_screen(d):
    d.rect(1.5, 2.5, 13, 11, 1, fill="paper")
    for tip_x, tip_y, way in ((13, 4, -1), (3, 12, 1)):
        d.polygon([(tip_x, tip_y), (tip_x + 4 * way, tip_y), (tip_x, tip_y - 4 * way)],
                  stroke=None, fill="accent")
        d.line(tip_x + 2 * way, tip_y - 2 * way, tip_x + 4 * way, tip_y - 4 * way,
               stroke="accent", pen=MARK)


def background(d):
    page(d, 3.5, 1.5, 9, 13, 3)
    d.circle(8, 9.5, 2.5, stroke="accent", fill="paper", pen=SLANT)
    d.path("M8 7a2.5 2.5 0 0 0 0 5z", stroke=None, fill="accent")
