# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

"""Glyphs of verifying, locking and certifying on the 24 pixel grid."""

from drawing import BOLD, MARK
from parts import check, cross, sheet, star, text_lines


def _seal_to_mark(d):
    """A seal that is open where the mark stands."""
    d.path("M10 17A7 7 0 1 1 17 10", stroke="red", fill="rose", pen=BOLD, cap="butt")
    d.polygon(star(10, 10.4, 4.3), stroke=None, fill="red")


def seal_verify(d):
    _seal_to_mark(d)
    check(d, 17, 18, 3, pen=BOLD)


def seal_delete(d):
    _seal_to_mark(d)
    cross(d, 18.5, 18.5, 2.5, stroke="ink", pen=BOLD)


def certificate(d):
    sheet(d, 2.5, 4.5, 19, 12)
    text_lines(d, 5.5, 12.5, (8.5,))
    text_lines(d, 5.5, 10.5, (11.5,))
    d.polygon([(13.5, 14.5), (13.5, 21.5), (16, 19.5), (18.5, 21.5), (18.5, 14.5)], stroke="red",
              fill="rose")
    d.circle(16, 12.5, 3.5, stroke="red", fill="rose", pen=MARK)


def lock(d):
    d.path("M7 10.5V8a5 5 0 0 1 10 0V10.5", pen=BOLD)
    d.rect(4.5, 10.5, 15, 10, 1, fill="tint")
    d.rect(11, 13, 2, 5, stroke=None, fill="accent")
