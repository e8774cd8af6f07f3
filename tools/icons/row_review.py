# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

"""Glyphs of seals and of the proof marks: the 24 pixel grid."""

from drawing import BOLD, MARK, SLANT
from parts import (arrow, check, cross, dashed_frame, mirrored, plus, round_seal,
                   sheet, star, text_lines)


def seal_sign(d):
    round_seal(d, 12, 12, 9, 5.5)


def chapter(d):
    """A square seal, carved like a fret, in the corner of a page."""
    d.path("M8 21.5H3.5a1 1 0 0 1-1-1V3.5a1 1 0 0 1 1-1H12.5L17.5 7.5V8", fill="paper")
    d.polyline([(12.5, 2.5), (12.5, 7.5), (17.5, 7.5)])
    d.rect(10, 10, 12, 12, 1, stroke=None, fill="red")
    d.polyline([(12.5, 20), (12.5, 12.5), (19.5, 12.5), (19.5, 19.5), (15.5, 19.5), (15.5, 15.5),
                (17, 15.5)], stroke="paper", cap="butt")


def page_seal(d):
    """A seal across the edges of pages that lie on each other."""
    for x, y in ((8.5, 2.5), (5.5, 5.5), (2.5, 8.5)):
        sheet(d, x, y, 11, 13)
    round_seal(d, 16, 16, 5, 3.5)


def seal_mark(d):
    """A seal in a pin that shows where on the page it belongs."""
    sheet(d, 2.5, 2.5, 15, 19)
    text_lines(d, 5.5, 9.5, (6.5, 9.5, 12.5))
    d.path("M16 21.5C12 17 10 14 10 11.5a6 6 0 0 1 12 0C22 14 20 17 16 21.5z", stroke="red",
           fill="rose", pen=BOLD)
    d.polygon(star(16, 12, 3.8), stroke=None, fill="red")


def stamp(d):
    d.path("M9 13.5c1.5-2 1-3.5.5-5a3 3 0 1 1 5 0c-.5 1.5-1 3 .5 5", fill="paper", pen=SLANT)
    d.rect(4.5, 13.5, 15, 4, 1, fill="tint")
    d.line(5, 21, 19, 21, stroke="red", pen=BOLD)


def revision_add(d):
    text_lines(d, 2.5, 21.5, (3.5, 8.5))
    text_lines(d, 2.5, 10.5, (13.5, 18.5))
    plus(d, 17, 17, 4, stroke="red")


def revision_delete(d):
    text_lines(d, 2.5, 21.5, (3.5, 11.5, 19.5))
    cross(d, 12, 11.5, 4.5, pen=BOLD)


def revision_insertline(d):
    text_lines(d, 2.5, 21.5, (3.5,))
    for x in (2.5, 15.5):
        d.line(x, 9.5, x + 6, 9.5)
    d.polyline([(6, 19), (12, 12), (18, 19)], stroke="red", pen=BOLD)


def revision_replace(d):
    text_lines(d, 2.5, 13.5, (6.5,))
    cross(d, 8, 6.5, 3, pen=BOLD)
    d.polyline([(16, 6), (18, 6), (18, 15)], stroke="red", pen=BOLD)
    d.polyline([(14.5, 11.5), (18, 15), (21.5, 11.5)], stroke="red", pen=BOLD)
    d.line(10, 20, 21, 20, stroke="accent", pen=BOLD)


def revision_moveout(d):
    text_lines(d, 2.5, 14.5, (3.5, 20.5))
    dashed_frame(d, 2.5, 7.5, 9, corner=2, bridge=1)
    arrow(d, (7, 12), (21, 12), 4, stroke="red", pen=BOLD)


def _space_between(d, rows, arrows):
    """Lines of text and, beside them, what happens to the space between them."""
    text_lines(d, 12.5, 21.5, rows)
    for tail, tip in arrows:
        arrow(d, (6, tail), (6, tip), 3, stroke="red", pen=BOLD)


def revision_increasespace(d):
    _space_between(d, (2.5, 11.5, 20.5), ((11.5, 3), (11.5, 20)))


def revision_reducespace(d):
    _space_between(d, (7.5, 11.5, 15.5), ((3, 9), (20, 14)))


def _shift(d, forward):
    """Lines moved within their paragraph: towards the start of the text if forward."""
    text_lines(d, 2.5, 21.5, (4.5, 19.5))
    for y in (9.5, 14.5):
        d.polyline(mirrored([(14.5, y), (21.5, y)], 12, forward))
    tail, tip = mirrored([(3, 12), (11, 12)], 12, forward)
    arrow(d, tail, tip, 4, stroke="red", pen=BOLD)


def revision_moveback(d):
    _shift(d, forward=False)


def revision_moveforward(d):
    _shift(d, forward=True)


def revision_view(d):
    d.path("M2.5 9c2.5-4 6-5.5 9.5-5.5s7 1.5 9.5 5.5c-2.5 4-6 5.5-9.5 5.5s-7-1.5-9.5-5.5z",
           fill="paper", pen=SLANT)
    d.circle(12, 9, 2.5, stroke="accent", fill="tint", pen=MARK)
    d.line(4.5, 18.5, 19.5, 18.5)
    d.line(5, 21, 14, 21, stroke="red", pen=BOLD)


def _settled(d):
    """A changed line of the text."""
    text_lines(d, 2.5, 21.5, (4.5,))
    d.line(3, 9, 18, 9, stroke="red", pen=BOLD)
    text_lines(d, 2.5, 10.5, (14.5, 19.5))


def revision_accept(d):
    _settled(d)
    check(d, 17, 17.5, 3, pen=BOLD)


def revision_reject(d):
    _settled(d)
    cross(d, 17.5, 17.5, 3, pen=BOLD)
