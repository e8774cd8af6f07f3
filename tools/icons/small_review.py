# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

"""Glyphs of seals and of the proof marks on the 16 pixel grid."""

from drawing import BOLD, MARK, SLANT
from parts import (arrow, check, cross, dashed_frame, mirrored, plus, round_seal, sheet,
                   solid_head, star, text_lines)


def seal_sign(d):
    round_seal(d, 8, 8, 6, 3.6)


def page_seal(d):
    """A seal across the edges of pages that lie on each other."""
    for x, y in ((4.5, 1.5), (1.5, 4.5)):
        sheet(d, x, y, 8, 10)
    d.circle(10.5, 10.5, 3.5, stroke="red", fill="rose", pen=BOLD)
    d.circle(10.5, 10.5, 1, stroke=None, fill="red")


def chapter(d):
    """A square seal, carved like a fret, in the corner of a page."""
    d.path("M5 14.5H2.5a1 1 0 0 1-1-1V2.5a1 1 0 0 1 1-1H8.5L11.5 4.5V6", fill="paper")
    d.polyline([(8.5, 1.5), (8.5, 4.5), (11.5, 4.5)])
    d.rect(6, 7, 9, 8, 1, stroke=None, fill="red")
    d.polyline([(8.5, 14), (8.5, 8.5), (12.5, 8.5), (12.5, 12.5), (10.5, 12.5), (10.5, 10)],
               stroke="paper", cap="butt")


def seal_mark(d):
    """A seal in a pin that shows where on the page it belongs."""
    sheet(d, 1.5, 1.5, 10, 13)
    text_lines(d, 3.5, 6.5, (4.5,))
    d.path("M10.5 14C8 11.5 7 10 7 8.5a3.5 3.5 0 0 1 7 0C14 10 13 11.5 10.5 14z", stroke="red",
           fill="rose", pen=BOLD)
    d.circle(10.5, 8.5, 1, stroke=None, fill="red")


def stamp(d):
    d.path("M6 9.5c1-1.5.8-2.5.4-3.6a2.1 2.1 0 1 1 3.2 0c-.4 1.1-.6 2.1.4 3.6", fill="paper",
           pen=SLANT)
    d.rect(2.5, 8.5, 11, 3, 1, fill="tint")
    d.line(3, 14, 13, 14, stroke="red", pen=BOLD)


def _small_seal(d):
    """A seal that is open where the mark stands."""
    d.path("M7 12A5 5 0 1 1 12 7", stroke="red", fill="rose", pen=BOLD, cap="butt")
    d.polygon(star(7, 7.3, 3.4), stroke=None, fill="red")


def seal_verify(d):
    _small_seal(d)
    check(d, 12, 12.5, 1.75, pen=BOLD)


def seal_delete(d):
    _small_seal(d)
    cross(d, 12.5, 12.5, 1.75, stroke="ink")


def lock(d):
    d.path("M4.5 7V5a3.5 3.5 0 0 1 7 0V7", pen=MARK)
    d.rect(2.5, 7.5, 11, 7, 1, fill="tint")
    d.rect(7, 9, 2, 4, stroke=None, fill="accent")


def revision_add(d):
    text_lines(d, 1.5, 14.5, (2.5, 5.5))
    text_lines(d, 1.5, 6.5, (8.5, 11.5))
    plus(d, 12, 11, 3, stroke="red")


def revision_delete(d):
    text_lines(d, 1.5, 13.5, (2.5, 7.5, 12.5))
    cross(d, 7.5, 7.5, 3, pen=BOLD)


def revision_insertline(d):
    text_lines(d, 1.5, 14.5, (2.5,))
    for x in (1.5, 10.5):
        d.line(x, 6.5, x + 4, 6.5)
    d.polyline([(4, 13), (8, 8), (12, 13)], stroke="red", pen=BOLD)


def revision_replace(d):
    text_lines(d, 1.5, 7.5, (4.5,))
    cross(d, 4.5, 4.5, 2.5)
    d.polyline([(10, 4), (12, 4), (12, 8)], stroke="red", pen=BOLD)
    solid_head(d, 12, 11, 3, (0, 1), stroke="red")
    d.line(6, 14, 14, 14, stroke="accent", pen=BOLD)


def revision_moveout(d):
    text_lines(d, 1.5, 10.5, (1.5, 14.5))
    dashed_frame(d, 1.5, 4.5, 7, corner=1, bridge=1)
    arrow(d, (5, 8), (14, 8), 3, stroke="red", pen=BOLD)


def _red_arrow(d, tail, neck, towards):
    """An arrow along an axis; its shaft ends at the neck, where the head begins."""
    d.line(*tail, *neck, stroke="red", pen=BOLD, cap="butt")
    head = 3
    tip = [at + head * way for at, way in zip(neck, towards)]
    solid_head(d, *tip, head, towards, stroke="red")


def revision_increasespace(d):
    text_lines(d, 9.5, 14.5, (1.5, 7.5, 13.5))
    _red_arrow(d, (4, 8), (4, 4), (0, -1))
    _red_arrow(d, (4, 7), (4, 11), (0, 1))


def revision_reducespace(d):
    text_lines(d, 9.5, 14.5, (4.5, 7.5, 10.5))
    _red_arrow(d, (4, 1), (4, 4), (0, 1))
    _red_arrow(d, (4, 14), (4, 11), (0, -1))


def _shift(d, forward):
    """Lines moved within their paragraph: towards the start of the text if forward."""
    text_lines(d, 1.5, 14.5, (2.5, 13.5))
    for y in (6.5, 9.5):
        d.polyline(mirrored([(9.5, y), (14.5, y)], 8, forward))
    tail, neck = mirrored([(1, 8), (4, 8)], 8, forward)
    _red_arrow(d, tail, neck, (-1 if forward else 1, 0))


def revision_moveback(d):
    _shift(d, forward=False)


def revision_moveforward(d):
    _shift(d, forward=True)


def revision_view(d):
    d.path("M1.5 6C4.5 1 11.5 1 14.5 6C11.5 11 4.5 11 1.5 6z", fill="paper", pen=SLANT)
    d.circle(8, 6, 1.75, stroke="accent", fill="tint", pen=SLANT)
    d.line(2, 13, 14, 13, stroke="red", pen=BOLD)
