# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

"""Glyphs of documents on the 24 pixel grid: file commands, finding, selecting."""

from drawing import BOLD, MARK, SLANT
from parts import (arrow, binoculars, cross, cut_page, dashed_frame, padlock, page,
                   sheet, text_lines)


def close(d):
    page(d, 4.5, 2.5, 15, 19, 5)
    cross(d, 12, 14, 3, pen=BOLD)


def save_as(d):
    case = "M9.5 20.5H4.5a1 1 0 0 1-1-1V4.5a1 1 0 0 1 1-1H17.5l3 3V9"
    d.path(case, stroke=None, fill="tint")
    d.path("M7.5 3.5v5h8v-5", fill="paper")
    d.path("M6.5 20.5v-8H13", stroke="accent")
    d.path(case)
    d.polygon([(11.5, 21.5), (12.3, 18.2), (18.5, 12), (21.5, 15), (15, 20.9)], fill="paper",
              stroke="accent", pen=SLANT)


def property_(d):
    page(d, 4.5, 2.5, 15, 19, 5)
    for y in (9, 13, 17):
        d.rect(7, y, 2, 2, stroke=None, fill="accent")
        d.line(11.5, y + 0.5, 16.5, y + 0.5)


def open_recent(d):
    d.path("M10.5 18.5H3.5a1 1 0 0 1-1-1V5.5a1 1 0 0 1 1-1H8.5l2.5 3H19.5a1 1 0 0 1 1 1V10",
           fill="tint")
    d.circle(16.5, 16.5, 5, stroke="accent", fill="paper", pen=SLANT)
    d.polyline([(16.5, 13.5), (16.5, 16.5), (19, 16.5)], stroke="accent")


def help_(d):
    d.circle(12, 12, 9, fill="tint", pen=SLANT)
    d.path("M9 9.5a3 3 0 1 1 4.8 2.4c-1.2.8-1.8 1.4-1.8 2.6", stroke="accent", pen=BOLD)
    d.rect(11, 16, 2, 2, stroke=None, fill="accent")


def about(d):
    d.circle(12, 12, 9, fill="tint", pen=SLANT)
    d.rect(11, 11, 2, 6, stroke=None, fill="accent")
    d.rect(11, 7, 2, 2, stroke=None, fill="accent")


def update(d):
    d.path("M4 11A8 8 0 0 1 19 8", pen=BOLD)
    d.polyline([(19, 3), (19, 8), (14, 8)], pen=BOLD)
    d.path("M20 13A8 8 0 0 1 5 16", stroke="accent", pen=BOLD)
    d.polyline([(5, 21), (5, 16), (10, 16)], stroke="accent", pen=BOLD)


def export(d):
    d.polygon([(2.5, 2.5), (11.5, 2.5), (16.5, 7.5), (16.5, 21.5), (2.5, 21.5)], stroke=None,
              fill="paper")
    d.path("M16.5 10V7.5L11.5 2.5H3.5a1 1 0 0 0-1 1V20.5a1 1 0 0 0 1 1H15.5a1 1 0 0 0 1-1V18")
    d.polyline([(11.5, 2.5), (11.5, 7.5), (16.5, 7.5)])
    arrow(d, (8, 14), (21, 14), 4, pen=BOLD)


def send_mail(d):
    d.rect(2.5, 4.5, 19, 14, stroke=None, fill="paper")
    d.path("M10.5 18.5H3.5a1 1 0 0 1-1-1V5.5a1 1 0 0 1 1-1H20.5a1 1 0 0 1 1 1V11.5")
    d.polyline([(2.5, 5.5), (12, 12.5), (21.5, 5.5)], pen=SLANT)
    arrow(d, (13, 18), (21, 18), 3, pen=BOLD)


def print_preview(d):
    cut_page(d)
    text_lines(d, 7.5, 12.5, (7.5, 10.5))
    d.circle(15.5, 15.5, 4, stroke="accent", fill="tint", pen=SLANT)
    d.line(19, 19, 21.5, 21.5, stroke="accent", pen=BOLD)


def copy(d):
    sheet(d, 3.5, 2.5, 12, 15)
    sheet(d, 8.5, 6.5, 12, 15, stroke="accent")
    text_lines(d, 11.5, 17.5, (10.5, 13.5, 16.5), stroke="accent")


def delete(d):
    d.path("M5.5 6.5L6.5 20.5a1 1 0 0 0 1 1H16.5a1 1 0 0 0 1-1L18.5 6.5z", fill="tint")
    d.path("M8.5 6V3.5a1 1 0 0 1 1-1H14.5a1 1 0 0 1 1 1V6")
    d.line(3.5, 6.5, 20.5, 6.5)
    for x in (9.5, 14.5):
        d.line(x, 10.5, x, 17.5, stroke="red")


def snapshot(d):
    d.path("M3.5 7.5H7L9 4.5H15L17 7.5H20.5a1 1 0 0 1 1 1V18.5a1 1 0 0 1-1 1H3.5a1 1 0 0 1-1-1"
           "V8.5a1 1 0 0 1 1-1z", fill="tint")
    d.circle(12, 13, 4, stroke="accent", fill="paper", pen=MARK)


def find(d):
    binoculars(d)


def advanced_search(d):
    for y, right in ((4.5, 21.5), (9.5, 7.5), (14.5, 6.5), (19.5, 9.5)):
        d.line(2.5, y, right, y)
    d.circle(14.5, 13, 4.5, stroke="accent", fill="tint", pen=SLANT)
    d.line(18.2, 16.7, 21, 19.5, stroke="accent", pen=BOLD)


def select_all(d):
    dashed_frame(d, 2.5, 2.5, 19, corner=3, bridge=5)
    d.rect(6.5, 6.5, 11, 11, stroke="accent", fill="tint")


def select_page(d):
    dashed_frame(d, 2.5, 2.5, 19, corner=3, bridge=5)
    page(d, 7.5, 5.5, 9, 13, 4, fill="tint", stroke="accent")


def unselect(d):
    dashed_frame(d, 2.5, 2.5, 19, corner=3, bridge=5)
    cross(d, 12, 12, 3.5, pen=BOLD)


def track_info(d):
    """The trace of a pen, and a note about it."""
    d.path("M2.5 15C5 5 10.5 0.5 11.5 4.5C12.5 9 5 14.5 8 16", pen=BOLD)
    d.circle(16, 16, 5.5, stroke="accent", fill="paper", pen=MARK)
    d.rect(15, 12, 2, 2, stroke=None, fill="accent")
    d.rect(15, 15, 2, 5, stroke=None, fill="accent")


def save_envelope(d):
    d.rect(2.5, 4.5, 19, 14, stroke=None, fill="paper")
    d.path("M11.5 18.5H3.5a1 1 0 0 1-1-1V5.5a1 1 0 0 1 1-1H20.5a1 1 0 0 1 1 1V11")
    d.polyline([(2.5, 5.5), (12, 12.5), (21.5, 5.5)], pen=SLANT)
    padlock(d, 13.5, 16.5, 8, 5, reach=2)
