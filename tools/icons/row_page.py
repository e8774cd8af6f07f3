# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

"""Glyphs of the page tools on the 24 pixel grid."""

from drawing import BOLD
from parts import arrow, badge, cross, cut_page, page, plus, sheet, text_lines


def insert_blank_page(d):
    cut_page(d)
    plus(d, *badge(d), 3)


def insert_page(d):
    page(d, 8.5, 2.5, 13, 19, 5)
    arrow(d, (3, 14), (15, 14), 4, pen=BOLD)


def delete_page(d):
    cut_page(d)
    cross(d, *badge(d), 2.75, pen=BOLD)


def extract_page(d):
    cut_page(d)
    arrow(d, (14, 21), (21, 14), 5, pen=BOLD)


def replace_page(d):
    sheet(d, 2.5, 2.5, 9, 12)
    text_lines(d, 4.5, 9.5, (5.5, 8.5, 11.5))
    sheet(d, 12.5, 11.5, 9, 10, stroke="accent", fill="tint")
    d.polyline([(14, 3), (18, 3), (18, 8)], stroke="accent", pen=BOLD)
    d.polyline([(15, 6), (18, 9), (21, 6)], stroke="accent", pen=BOLD)


def move_page(d):
    sheet(d, 2.5, 2.5, 10, 8)
    sheet(d, 2.5, 13.5, 10, 8, stroke="accent", fill="tint")
    arrow(d, (18, 3), (18, 21), 3, pen=BOLD, both=True)


def crop_page(d):
    d.rect(7, 7, 10, 10, stroke=None, fill="tint")
    d.polyline([(3, 6), (18, 6), (18, 21)], stroke="accent", pen=BOLD)
    d.polyline([(6, 3), (6, 18), (21, 18)], pen=BOLD)
