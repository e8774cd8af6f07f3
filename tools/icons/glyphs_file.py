"""Glyphs of the file menu and the quick access bar: 16, 20 and 24 pixel grids."""

from drawing import BOLD, MARK, SLANT, path_data
from parts import arrow, chevron, cross, gear, page, plus, small_gear, text_lines


def open_file(d):
    left, top, right, bottom, flap, lean = d.by_grid(
        g16=(1.5, 2.5, 12.5, 13.5, 6.5, 2), g20=(2.5, 3.5, 15.5, 16.5, 8.5, 2),
        g24=(2.5, 4.5, 19.5, 19.5, 10.5, 2.5))
    tab = left + (right - left) * 0.36
    d.path(path_data("M", left, bottom, "V", top + 1, "a1 1 0 0 1 1-1H", tab, "l2 2H",
                     right - 1, "a1 1 0 0 1 1 1V", flap), fill="paper")
    d.polygon([(left, bottom), (left + lean, flap), (right + lean, flap), (right, bottom)],
              fill="tint")


def open_recent(d):
    d.path("M9 15.5H3.5a1 1 0 0 1-1-1V4.5a1 1 0 0 1 1-1H7.5l2 2H15.5a1 1 0 0 1 1 1V9",
           fill="tint")
    d.circle(13.5, 13.5, 4, stroke="accent", fill="paper", pen=SLANT)
    d.polyline([(13.5, 11.5), (13.5, 13.5), (15.5, 13.5)], stroke="accent")


def _disk(d, near, far):
    size = far - near
    case = path_data("M", near + 1, near, "H", far - 2, "l2 2V", far - 1, "a1 1 0 0 1-1 1H",
                     near + 1, "a1 1 0 0 1-1-1V", near + 1, "a1 1 0 0 1 1-1z")
    d.path(case, stroke=None, fill="tint")
    d.path(path_data("M", near + 3, near, "v", round(size * 0.28), "h", size - 6, "v",
                     -round(size * 0.28)), fill="paper")
    d.path(path_data("M", near + 2, far, "v", -round(size * 0.45), "h", size - 4, "v",
                     round(size * 0.45)), stroke="accent", fill="paper")
    d.path(case)


def save(d):
    near, far = d.by_grid(g16=(2.5, 13.5), g20=(3.5, 16.5))
    _disk(d, near, far)


def save_as(d):
    case = "M8.5 16.5H4.5a1 1 0 0 1-1-1V4.5a1 1 0 0 1 1-1H14.5l2 2V8"
    d.path(case, stroke=None, fill="tint")
    d.path("M6.5 3.5v4h7v-4", fill="paper")
    d.path("M5.5 16.5v-6H10", stroke="accent")
    d.path(case)
    d.polygon([(9.5, 17.5), (10, 15), (15.5, 9.5), (17.5, 11.5), (12, 17)], fill="paper",
              stroke="accent", pen=SLANT)


def _printer(d, x, right, inner, top, body, slot, bottom):
    far = x + right - inner
    d.path(path_data("M", inner, body, "V", top, "H", far, "V", body), fill="paper")
    d.path(path_data("M", inner, slot + 2, "H", x + 1, "a1 1 0 0 1-1-1V", body + 1,
                     "a1 1 0 0 1 1-1H", right - 1, "a1 1 0 0 1 1 1V", slot + 1,
                     "a1 1 0 0 1-1 1H", far, "V", slot, "H", inner, "z"), fill="tint")
    d.path(path_data("M", inner, slot, "V", bottom, "H", far, "V", slot, "z"), fill="paper",
           stroke="accent")


def print_file(d):
    _printer(d, *d.by_grid(g16=(1.5, 14.5, 4.5, 1.5, 5.5, 9.5, 14.5),
                           g20=(2.5, 17.5, 5.5, 2.5, 7.5, 12.5, 17.5)))
    d.line(*d.by_grid(g16=(11.5, 7.5, 12.5, 7.5), g20=(13.5, 9.5, 15.5, 9.5)))


def print_mask(d):
    _printer(d, 1.5, 14.5, 4.5, 1.5, 5.5, 8.5, 14.5)
    d.rect(6, 10, 4, 3, stroke=None, fill="ink")


def property_sheet(d):
    page(d, 3.5, 2.5, 13, 15, 4)
    for y in (9.5, 12.5, 15):
        d.rect(6, y - 0.5 if y < 15 else 15, 1, 1, stroke=None, fill="accent")
    text_lines(d, 8.5, 13.5, (9.5, 12.5, 15.5))


def close_document(d):
    page(d, 4.5, 2.5, 11, 15, 4)
    cross(d, 10, 11.5, 2.5)


def exit_program(d):
    d.path("M11.5 6V3.5a1 1 0 0 0-1-1H4.5a1 1 0 0 0-1 1V16.5a1 1 0 0 0 1 1H10.5a1 1 0 0 0 1-1V14",
           fill="tint")
    arrow(d, (8, 10), (17, 10), 3, pen=BOLD)


def about(d):
    d.circle(10, 10, 7.5, fill="tint", pen=SLANT)
    d.rect(9, 9, 2, 5, stroke=None, fill="accent")
    d.rect(9, 6, 2, 2, stroke=None, fill="accent")


def help_mark(d):
    d.circle(10, 10, 7.5, fill="tint", pen=SLANT)
    d.path("M7.5 8a2.5 2.5 0 1 1 4 2c-1 .7-1.5 1.1-1.5 2", stroke="accent", pen=MARK)
    d.rect(9, 13.5, 2, 2, stroke=None, fill="accent")


def update(d):
    d.path("M3.5 9A6.5 6.5 0 0 1 15.75 6.75", pen=MARK)
    d.polyline([(15.75, 2.5), (15.75, 6.75), (11.5, 6.75)], pen=MARK)
    d.path("M16.5 11A6.5 6.5 0 0 1 4.25 13.25", stroke="accent", pen=MARK)
    d.polyline([(4.25, 17.5), (4.25, 13.25), (8.5, 13.25)], stroke="accent", pen=MARK)


def settings(d):
    if d.grid == 16:
        small_gear(d, 8, radius=3.75, rim=2.3, tip=6.9)
    else:
        gear(d, 10, 8, 6.1, 2.5)


def _turn_back(d, mirror):
    """An arrow that bends back; mirrored for redo."""
    grid = d.grid
    tip, reach, run, radius, pen = d.by_grid(g16=(2.5, 3.5, 9, 3.5, MARK), g24=(4, 5, 14, 5, BOLD))
    y = d.by_grid(g16=5.75, g24=9)
    at, sweep = (lambda x: grid - x, 0) if mirror else (lambda x: x, 1)
    d.polyline([(at(tip + reach), y - reach), (at(tip), y), (at(tip + reach), y + reach)],
               stroke="accent", pen=pen)
    d.path(path_data("M", at(tip), y, "H", at(run), f"A{radius} {radius} 0 0 {sweep}", at(run),
                     y + 2 * radius, "H", at(run - 3 * grid / 16)), stroke="accent", pen=pen)


def undo(d):
    _turn_back(d, mirror=False)


def redo(d):
    _turn_back(d, mirror=True)


def menu(d):
    text_lines(d, 1.5, 14.5, (3.5, 7.5, 11.5))


def more(d):
    for x in (3, 8, 13):
        d.circle(x, 8, 1.5, stroke=None, fill="ink")


def quick_access_set(d):
    d.line(4.5, 5.5, 11.5, 5.5)
    d.polygon([(4, 8), (12, 8), (8, 12)], stroke=None, fill="ink")


def fold(d):
    chevron(d, [(3.5, 10), (8, 5.5), (12.5, 10)])


def extend_left(d):
    chevron(d, [(7.5, 2), (3.5, 6), (7.5, 10)])


def extend_right(d):
    chevron(d, [(4.5, 2), (8.5, 6), (4.5, 10)])


def arrow_down(d):
    d.polygon([(0, 2), (8, 2), (4, 6)], stroke=None, fill="ink")


def check_mark(d):
    d.polyline([(3, 8.5), (6.5, 12), (13, 4.5)], stroke="accent", pen=BOLD)


def software_mark(d):
    """An "i" in a circle beside three capitals, on a grid of 33 by 11."""
    d.circle(5.5, 5.5, 5)
    d.line(5.5, 5.5, 5.5, 7.5)
    d.rect(5, 3, 1, 1, stroke=None, fill="ink")
    d.rect(13.5, 1.5, 5, 8, 2.5)
    d.polyline([(25.5, 1.5), (21.5, 1.5), (21.5, 9.5)])
    d.line(21.5, 5.5, 24.5, 5.5)
    d.path("M28.5 1.5H30.5a2 2 0 0 1 2 2V7.5a2 2 0 0 1-2 2H28.5z")


def insert_blank_page(d):
    d.polygon([(2.5, 1.5), (9.5, 1.5), (12.5, 4.5), (12.5, 8), (8, 8), (8, 14.5), (2.5, 14.5)],
              stroke=None, fill="paper")
    d.path("M7 14.5H3.5a1 1 0 0 1-1-1V2.5a1 1 0 0 1 1-1H9.5L12.5 4.5V7")
    d.polyline([(9.5, 1.5), (9.5, 4.5), (12.5, 4.5)])
    plus(d, 12, 12, 2)


def insert_page(d):
    page(d, 5.5, 1.5, 9, 13, 3)
    arrow(d, (2, 9), (10, 9), 3, pen=BOLD)
