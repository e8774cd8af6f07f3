"""Glyphs of seals and of the proof marks: the 24 pixel grid."""

from drawing import BOLD, MARK, SLANT
from parts import arrow, dashed_frame, mirrored, plus, round_seal, sheet


def seal_sign(d):
    round_seal(d, 12, 12, 9, 5.5)


def square_seal(d):
    d.rect(4, 4, 16, 16, 2, stroke="red", fill="rose", pen=BOLD)
    for points in ([(11, 8), (8, 8), (8, 16), (11, 16)], [(8, 12), (11, 12)],
                   [(14, 17), (14, 8), (17, 8), (17, 14)]):
        d.polyline(points, stroke="red", pen=BOLD)


def page_seal(d):
    for x in (2.5, 13.5):
        sheet(d, x, 3.5, 8, 17)
    round_seal(d, 12, 12, 6, 4)


def seal_mark(d):
    round_seal(d, 8, 15, 6, 3.5)
    d.polygon([(17.5, 3.5), (22, 6.5), (17.5, 9.5)], stroke="accent", fill="accent")
    d.line(17.5, 2.5, 17.5, 21.5)


def stamp(d):
    d.path("M9 13.5c1.5-2 1-3.5.5-5a3 3 0 1 1 5 0c-.5 1.5-1 3 .5 5", fill="paper", pen=SLANT)
    d.rect(4.5, 13.5, 15, 4, 1, fill="tint")
    d.line(5, 21, 19, 21, stroke="red", pen=BOLD)


def save_envelope(d):
    d.rect(2.5, 4.5, 19, 14, stroke=None, fill="paper")
    d.path("M12.5 18.5H3.5a1 1 0 0 1-1-1V5.5a1 1 0 0 1 1-1H20.5a1 1 0 0 1 1 1V11")
    d.polyline([(2.5, 5.5), (12, 12.5), (21.5, 5.5)], pen=SLANT)
    d.path("M16.5 16.5V15a2 2 0 0 1 4 0v1.5", stroke="accent", pen=SLANT)
    d.rect(14.5, 16.5, 8, 5, 1, stroke="accent", fill="tint")


def _cell(d, x, y, size=6, stroke="ink"):
    """One character of the text, as a box."""
    d.rect(x, y, size, size, 1, stroke=stroke, fill="tint")


def proof_add(d):
    _cell(d, 2.5, 14.5)
    _cell(d, 15.5, 14.5)
    d.polyline([(8.5, 12), (12, 16.5), (15.5, 12)], stroke="red", pen=MARK)
    plus(d, 12, 6, 3, stroke="red")


def proof_delete(d):
    _cell(d, 3.5, 11.5, 7)
    d.path("M2 15H16a4 4 0 1 0-4-4V20", stroke="red", pen=BOLD)


def proof_insert_line(d):
    _cell(d, 2.5, 8.5)
    _cell(d, 15.5, 8.5)
    d.line(12, 4, 12, 19, stroke="red", pen=BOLD)
    for edge, point in ((2.5, 6), (20.5, 17)):
        d.polygon([(8.5, edge), (15.5, edge), (12, point)], stroke="red", fill="red")


def proof_replace(d):
    _cell(d, 3.5, 3.5, 7)
    d.line(2.5, 11.5, 11.5, 2.5, stroke="red", pen=MARK)
    d.polyline([(14, 6), (18, 6), (18, 11)], stroke="red", pen=BOLD)
    d.polyline([(15, 9), (18, 12), (21, 9)], stroke="red", pen=BOLD)
    _cell(d, 14.5, 14.5, 7, stroke="accent")


def proof_move_out(d):
    dashed_frame(d, 2.5, 12.5, 9, corner=2, bridge=1)
    arrow(d, (7, 17), (12, 12), 4, stroke="red", pen=BOLD)
    _cell(d, 14.5, 2.5, 7)


def _spacing(d, cells, tails, tips):
    for x in cells:
        _cell(d, x, 13.5)
    for tail, tip in zip(tails, tips):
        arrow(d, (tail, 7), (tip, 7), 3, stroke="red", pen=BOLD)


def proof_increase_space(d):
    _spacing(d, (2.5, 15.5), (10, 14), (3, 21))


def proof_reduce_space(d):
    _spacing(d, (4.5, 13.5), (3, 21), (10, 14))


def _shift(d, forward):
    """A character pushed against a line: towards the start of the text when forward."""
    _cell(d, 14.5 if forward else 2.5, 8.5, 7)
    tail, tip = mirrored([(12, 12), (18, 12)], 12, forward)
    arrow(d, tail, tip, 3, stroke="red", pen=BOLD)
    d.polyline(mirrored([(21, 6), (21, 18)], 12, forward), stroke="red", pen=BOLD)


def proof_move_back(d):
    _shift(d, forward=False)


def proof_move_forward(d):
    _shift(d, forward=True)


def proof_view(d):
    d.path("M2.5 9c2.5-4 6-5.5 9.5-5.5s7 1.5 9.5 5.5c-2.5 4-6 5.5-9.5 5.5s-7-1.5-9.5-5.5z",
           fill="paper", pen=SLANT)
    d.circle(12, 9, 2.5, stroke="accent", fill="tint", pen=MARK)
    d.line(4.5, 18.5, 19.5, 18.5)
    d.line(5, 21, 14, 21, stroke="red", pen=BOLD)
