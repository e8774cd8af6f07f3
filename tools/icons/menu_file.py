# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

"""Glyphs of the file menu: the 20 pixel grid."""

from drawing import BOLD, MARK, SLANT
from parts import arrow, cross, padlock, page, text_lines


def open_recent(d):
    d.path("M9 15.5H3.5a1 1 0 0 1-1-1V4.5a1 1 0 0 1 1-1H7.5l2 2H15.5a1 1 0 0 1 1 1V9",
           fill="tint")
    d.circle(13.5, 13.5, 4, stroke="accent", fill="paper", pen=SLANT)
    d.polyline([(13.5, 11.5), (13.5, 13.5), (15.5, 13.5)], stroke="accent")


def save_as(d):
    case = "M8.5 16.5H4.5a1 1 0 0 1-1-1V4.5a1 1 0 0 1 1-1H14.5l2 2V8"
    d.path(case, stroke=None, fill="tint")
    d.path("M6.5 3.5v4h7v-4", fill="paper")
    d.path("M5.5 16.5v-6H10", stroke="accent")
    d.path(case)
    d.polygon([(9.5, 17.5), (10, 15), (15.5, 9.5), (17.5, 11.5), (12, 17)], fill="paper",
              stroke="accent", pen=SLANT)


def property_(d):
    page(d, 3.5, 2.5, 13, 15, 4)
    for y in (9.5, 12.5, 15):
        d.rect(6, y - 0.5 if y < 15 else 15, 1, 1, stroke=None, fill="accent")
    text_lines(d, 8.5, 13.5, (9.5, 12.5, 15.5))


def close(d):
    page(d, 4.5, 2.5, 11, 15, 4)
    cross(d, 10, 11.5, 2.5)


def exit_(d):
    d.path("M11.5 6V3.5a1 1 0 0 0-1-1H4.5a1 1 0 0 0-1 1V16.5a1 1 0 0 0 1 1H10.5a1 1 0 0 0 1-1V14",
           fill="tint")
    arrow(d, (8, 10), (17, 10), 3, pen=BOLD)


def about(d):
    d.circle(10, 10, 7.5, fill="tint", pen=SLANT)
    d.rect(9, 9, 2, 5, stroke=None, fill="accent")
    d.rect(9, 6, 2, 2, stroke=None, fill="accent")


def help_(d):
    d.circle(10, 10, 7.5, fill="tint", pen=SLANT)
    d.path("M7.5 8a2.5 2.5 0 1 1 4 2c-1 .7-1.5 1.1-1.5 2", stroke="accent", pen=MARK)
    d.rect(9, 13.5, 2, 2, stroke=None, fill="accent")


def update(d):
    d.path("M3.5 9A6.5 6.5 0 0 1 15.75 6.75", pen=MARK)
    d.polyline([(15.75, 2.5), (15.75, 6.75), (11.5, 6.75)], pen=MARK)
    d.path("M16.5 11A6.5 6.5 0 0 1 4.25 13.25", stroke="accent", pen=MARK)
    d.polyline([(4.25, 17.5), (4.25, 13.25), (8.5, 13.25)], stroke="accent", pen=MARK)


def export(d):
    d.polygon([(2.5, 2.5), (10.5, 2.5), (13.5, 5.5), (13.5, 17.5), (2.5, 17.5)], stroke=None,
              fill="paper")
    d.path("M13.5 8V6.5L9.5 2.5H3.5a1 1 0 0 0-1 1V16.5a1 1 0 0 0 1 1H12.5a1 1 0 0 0 1-1V15")
    d.polyline([(9.5, 2.5), (9.5, 6.5), (13.5, 6.5)])
    arrow(d, (7, 11.5), (17, 11.5), 3, pen=BOLD)


def save_envelope(d):
    d.rect(2.5, 3.5, 15, 11, stroke=None, fill="paper")
    d.path("M9.5 14.5H3.5a1 1 0 0 1-1-1V4.5a1 1 0 0 1 1-1H16.5a1 1 0 0 1 1 1V8.5")
    d.polyline([(2.5, 4.5), (10, 9.5), (17.5, 4.5)], pen=SLANT)
    padlock(d, 11.5, 13.5, 6, 4, reach=2)


def clear_recent(d):
    d.path("M16.5 8.5A7 7 0 1 0 9 16.5", fill="paper", pen=SLANT)
    d.polyline([(9.5, 5.5), (9.5, 9.5), (12.5, 9.5)])
    cross(d, 14.5, 14.5, 2.5)
