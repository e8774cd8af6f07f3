# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

"""Glyphs of the view row: the 24 pixel grid."""

from drawing import BOLD, MARK, SLANT, path_data
from parts import arrow, magnifier, mirrored, page, plus, sheet, text_lines


def hand_tool(d):
    d.path("M7.5 13.5V6a1.5 1.5 0 0 1 3 0V4a1.5 1.5 0 0 1 3 0V5a1.5 1.5 0 0 1 3 0V8"
           "a1.5 1.5 0 0 1 3 0V14.5c0 4.4-2.6 7-6.5 7-3 0-4.6-1.2-6.1-3.7L4 13.2"
           "c-.5-.9-.2-1.7.5-2.1s1.5-.1 2 .7L7.5 13.5", fill="tint", pen=SLANT)
    for x, top in ((10.5, 6), (13.5, 5), (16.5, 8)):
        d.line(x, top, x, 11.5)


def text_select(d):
    d.rect(2, 4, 14, 16, stroke=None, fill="tint")
    d.line(4, 8, 14, 8, pen=BOLD, cap="butt")
    d.line(9, 8, 9, 17, pen=BOLD, cap="butt")
    d.path("M17.5 3.5h1.5q.5 0 .5.5 0-.5.5-.5h1.5M19.5 4v16M17.5 20.5h1.5q.5 0 .5-.5 0 .5.5.5h1.5",
           stroke="accent")


def _rotate(d, mirror):
    """A page and the quarter turn that is made with it."""
    at, sweep = (lambda x: 24 - x, 0) if mirror else (lambda x: x, 1)
    page_x = 12.5 if mirror else 2.5
    sheet(d, page_x, 9.5, 9, 12)
    d.path(path_data("M", at(6), 5, f"A12 12 0 0 {sweep}", at(18), 17), stroke="accent",
           pen=BOLD)
    d.polyline([(at(14.5), 13.5), (at(18), 17), (at(21.5), 13.5)], stroke="accent", pen=BOLD)


def rotate_clockwise(d):
    _rotate(d, mirror=False)


def rotate_anticlockwise(d):
    _rotate(d, mirror=True)


def _view_page(d):
    sheet(d, 4.5, 2.5, 15, 19)


def original_size(d):
    _view_page(d)
    for x in (8, 16):
        d.polyline([(x - 1.5, 9.5), (x, 8.5), (x, 16)], stroke="accent", pen=BOLD, cap="butt")
    for y in (10, 14):
        d.rect(11, y, 2, 2, stroke=None, fill="accent")


def fit_width(d):
    _view_page(d)
    arrow(d, (7, 12), (17, 12), 3, pen=BOLD, both=True)


def fit_height(d):
    _view_page(d)
    arrow(d, (12, 5), (12, 19), 3, pen=BOLD, both=True)


def fit_page(d):
    _view_page(d)
    for x, y, sx, sy in ((7.5, 5.5, 1, 1), (16.5, 5.5, -1, 1), (7.5, 18.5, 1, -1),
                         (16.5, 18.5, -1, -1)):
        arrow(d, (x + sx * 3, y + sy * 3), (x, y), 3, pen=SLANT)


def zoom_in(d):
    magnifier(d, 10, 6.5, 20.5)
    plus(d, 10, 10, 2.5)


def zoom_out(d):
    magnifier(d, 10, 6.5, 20.5)
    d.line(7.5, 10, 12.5, 10, stroke="accent", pen=BOLD)


def _page_step(d, forward, to_end):
    """Turns the page: to its neighbour, or as far as the pages go."""
    _view_page(d)
    shift = 2.5 if to_end else 0
    d.polyline(mirrored([(14 + shift, 7.5), (9.5 + shift, 12), (14 + shift, 16.5)], 12, forward),
               stroke="accent", pen=BOLD)
    if to_end:
        d.polyline(mirrored([(7, 8), (7, 16)], 12, forward), stroke="accent", pen=BOLD)


def first_page(d):
    _page_step(d, forward=False, to_end=True)


def prev_page(d):
    _page_step(d, forward=False, to_end=False)


def next_page(d):
    _page_step(d, forward=True, to_end=False)


def last_page(d):
    _page_step(d, forward=True, to_end=True)


def single_page(d):
    _view_page(d)
    text_lines(d, 7.5, 16.5, (7.5, 10.5, 13.5, 16.5), stroke="accent")


def double_page(d):
    for x in (2.5, 13.5):
        sheet(d, x, 4.5, 8, 15)
        text_lines(d, x + 2, x + 6, (8.5, 11.5, 14.5), stroke="accent")


def _flow(d, x, width):
    """A page and the next one, which goes on below the edge."""
    sheet(d, x, 2.5, width, 12)
    d.path(path_data("M", x, 22, "V", 18.5, "a1 1 0 0 1 1-1H", x + width - 1, "a1 1 0 0 1 1 1V",
                     22), fill="paper", cap="butt")
    text_lines(d, x + 2, x + width - 2, (5.5, 8.5, 11.5, 20.5))


def single_flow(d):
    _flow(d, 2.5, 11)
    arrow(d, (19, 4), (19, 20), 3, pen=BOLD, both=True)


def double_flow(d):
    _flow(d, 1.5, 6)
    _flow(d, 9.5, 6)
    arrow(d, (20, 4), (20, 20), 2, pen=BOLD, both=True)


def _spread(d, tips, tails):
    """A screen and two arrows along its diagonal."""
    d.rect(2.5, 4.5, 19, 15, 1, fill="paper")
    for tip, tail in zip(tips, tails):
        arrow(d, tail, tip, 4, pen=BOLD)


def full_screen(d):
    _spread(d, [(18, 8), (6, 16)], [(14, 12), (10, 12)])


def background(d):
    page(d, 4.5, 2.5, 15, 19, 5)
    d.circle(12, 14, 4, stroke="accent", fill="paper", pen=SLANT)
    d.path("M12 10a4 4 0 0 0 0 8z", stroke=None, fill="accent")


def exit_full_screen(d):
    _spread(d, [(14, 11), (10, 13)], [(18, 7), (6, 17)])


def goto_page(d):
    page(d, 4.5, 2.5, 15, 19, 5)
    for at in (10.5, 13.5):
        d.line(at, 9.5, at, 18.5, stroke="accent")
    for at in (12.5, 15.5):
        d.line(7.5, at, 16.5, at, stroke="accent")


def zoom(d):
    magnifier(d, 10, 7, 20.5)
    d.line(12.5, 7, 7.5, 13, stroke="accent", pen=MARK)
    for x, y in ((7.5, 8), (12.5, 12)):
        d.circle(x, y, 1.25, stroke=None, fill="accent")


def zoom_area(d):
    for x, y, sx, sy in ((2.5, 2.5, 1, 1), (19.5, 2.5, -1, 1), (2.5, 19.5, 1, -1)):
        d.polyline([(x + sx * 4, y), (x, y), (x, y + sy * 4)])
    d.line(9.5, 2.5, 12.5, 2.5)
    d.line(2.5, 9.5, 2.5, 12.5)
    d.circle(13.5, 13.5, 5, stroke="accent", fill="tint", pen=SLANT)
    d.line(18, 18, 21, 21, stroke="accent", pen=BOLD)


def _history(d, forward):
    d.circle(12, 12, 9, fill="tint", pen=SLANT)
    tail, tip = mirrored([(17, 12), (7, 12)], 12, forward)
    arrow(d, tail, tip, 4, pen=BOLD)


def prev_view(d):
    _history(d, forward=False)


def next_view(d):
    _history(d, forward=True)


def split_view(d):
    sheet(d, 2.5, 3.5, 19, 17)
    d.line(3, 12, 21, 12, stroke="accent", pen=BOLD, cap="butt")
    text_lines(d, 6.5, 17.5, (6.5, 8.5, 15.5, 17.5))


def read_aloud(d):
    d.polygon([(2.5, 9), (6, 9), (11, 4.5), (11, 19.5), (6, 15), (2.5, 15)], fill="tint",
              pen=SLANT)
    d.path("M14 9a4.2 4.2 0 0 1 0 6", stroke="accent", pen=MARK)
    d.path("M17 6a8.5 8.5 0 0 1 0 12", stroke="accent", pen=MARK)


def present(d):
    d.line(3, 4, 21, 4, pen=BOLD)
    d.rect(3.5, 4.5, 17, 11, fill="paper")
    d.polyline([(8, 21), (12, 16), (16, 21)], pen=SLANT)
    d.polygon([(10, 7.5), (10, 12.5), (14.5, 10)], stroke="accent", fill="accent")
