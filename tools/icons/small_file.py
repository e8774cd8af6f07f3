# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

"""Glyphs of documents and pages on the 16 pixel grid: file menu, editing, page tools."""

from drawing import BOLD, MARK, SLANT
from parts import (arrow, cross, cut_page, dashed_frame, padlock, page, plus, sheet,
                   solid_head, text_lines)


def close(d):
    page(d, 3.5, 1.5, 9, 13, 3)
    cross(d, 8, 9.5, 2)


def save_as(d):
    case = "M6.5 13.5H3.5a1 1 0 0 1-1-1V3.5a1 1 0 0 1 1-1H11.5l2 2V5.5"
    d.path(case, stroke=None, fill="tint")
    d.path("M5.5 2.5v3h5v-3", fill="paper")
    d.path("M4.5 13.5v-5H8", stroke="accent")
    d.path(case)
    d.polygon([(7.5, 14.5), (8, 12), (12.5, 7.5), (14.5, 9.5), (10, 14)], fill="paper",
              stroke="accent", pen=SLANT)


def property_(d):
    page(d, 3.5, 1.5, 9, 13, 3)
    for y in (7, 9, 11):
        d.rect(5, y, 1, 1, stroke=None, fill="accent")
    text_lines(d, 7.5, 10.5, (7.5, 9.5, 11.5))


def exit_(d):
    d.path("M8.5 4.5V2.5a1 1 0 0 0-1-1H3.5a1 1 0 0 0-1 1V13.5a1 1 0 0 0 1 1H7.5a1 1 0 0 0 1-1V11.5",
           fill="tint")
    arrow(d, (6, 8), (14, 8), 3, pen=BOLD)


def open_recent(d):
    d.path("M7 12.5H2.5a1 1 0 0 1-1-1V3.5a1 1 0 0 1 1-1H5.5l1.5 2H12.5a1 1 0 0 1 1 1V6.5",
           fill="tint")
    d.circle(11, 11, 3.5, stroke="accent", fill="paper", pen=SLANT)
    d.polyline([(11, 9), (11, 11), (12.5, 11)], stroke="accent")


def about(d):
    d.circle(8, 8, 6, fill="tint", pen=SLANT)
    d.rect(7, 7, 2, 5, stroke=None, fill="accent")
    d.rect(7, 4, 2, 2, stroke=None, fill="accent")


def help_(d):
    d.circle(8, 8, 6, fill="tint", pen=SLANT)
    d.path("M6 6.5a2 2 0 1 1 3.2 1.6c-.8.6-1.2.9-1.2 1.4", stroke="accent", pen=MARK)
    d.rect(7, 11, 2, 1.5, stroke=None, fill="accent")


def update(d):
    d.path("M2.75 7.25A5.3 5.3 0 0 1 12.6 5.25", pen=MARK)
    d.polyline([(12.75, 2), (12.75, 5.25), (9.5, 5.25)], pen=MARK)
    d.path("M13.25 8.75A5.3 5.3 0 0 1 3.4 10.75", stroke="accent", pen=MARK)
    d.polyline([(3.25, 14), (3.25, 10.75), (6.5, 10.75)], stroke="accent", pen=MARK)


def save_envelope(d):
    d.rect(1.5, 2.5, 13, 9, stroke=None, fill="paper")
    d.path("M7.5 11.5H2.5a1 1 0 0 1-1-1V3.5a1 1 0 0 1 1-1H13.5a1 1 0 0 1 1 1V6")
    d.polyline([(2, 3), (8, 7.5), (14, 3)], pen=SLANT)
    padlock(d, 9.5, 10.5, 5, 4)


def export(d):
    d.polygon([(1.5, 1.5), (7.5, 1.5), (10.5, 4.5), (10.5, 14.5), (1.5, 14.5)], stroke=None,
              fill="paper")
    d.path("M10.5 5.5V4.5L7.5 1.5H2.5a1 1 0 0 0-1 1V13.5a1 1 0 0 0 1 1H9.5a1 1 0 0 0 1-1V12.5")
    d.polyline([(7.5, 1.5), (7.5, 4.5), (10.5, 4.5)])
    arrow(d, (5, 9), (14, 9), 3, pen=BOLD)


def copy(d):
    sheet(d, 2.5, 1.5, 8, 10)
    sheet(d, 5.5, 4.5, 8, 10, stroke="accent")
    text_lines(d, 8, 11, (7.5, 9.5, 11.5), stroke="accent")


def delete(d):
    d.path("M3.5 4.5L4.5 13.5a1 1 0 0 0 1 1H10.5a1 1 0 0 0 1-1L12.5 4.5z", fill="tint")
    d.path("M5.5 4V2.5a1 1 0 0 1 1-1H9.5a1 1 0 0 1 1 1V4")
    d.line(2, 4.5, 14, 4.5)
    for x in (6.5, 9.5):
        d.line(x, 7.5, x, 11.5, stroke="red")


def insert_blank_page(d):
    cut_page(d)
    plus(d, 12, 12, 2)


def insert_page(d):
    page(d, 5.5, 1.5, 9, 13, 3)
    arrow(d, (2, 9), (10, 9), 3, pen=BOLD)


def delete_page(d):
    cut_page(d)
    cross(d, 12, 12, 2)


def extract_page(d):
    cut_page(d)
    arrow(d, (9, 14), (14, 9), 4, pen=MARK)


def replace_page(d):
    sheet(d, 1.5, 1.5, 6, 8)
    sheet(d, 8.5, 8.5, 6, 6, stroke="accent", fill="tint")
    d.polyline([(9, 2), (12, 2), (12, 4)], stroke="accent", pen=BOLD)
    solid_head(d, 12, 7, 2.5, (0, 1))


def select_page(d):
    dashed_frame(d, 1.5, 1.5, 13, corner=2, bridge=3)
    page(d, 4.5, 3.5, 7, 9, 3, fill="tint", stroke="accent")
