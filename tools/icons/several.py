# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

"""Glyphs that are drawn on more than one grid, and the bare arrows and marks."""

from drawing import BOLD, MARK, path_data
from parts import chevron, gear, small_gear


def open_file(d):
    left, top, right, bottom, flap, lean = d.by_grid(
        g16=(1.5, 2.5, 12.5, 13.5, 6.5, 2), g20=(2.5, 3.5, 15.5, 16.5, 8.5, 2),
        g24=(2.5, 4.5, 19.5, 19.5, 10.5, 2.5))
    tab = left + (right - left) * 0.36
    d.path(path_data("M", left, bottom, "V", top + 1, "a1 1 0 0 1 1-1H", tab, "l2 2H",
                     right - 1, "a1 1 0 0 1 1 1V", flap), fill="paper")
    d.polygon([(left, bottom), (left + lean, flap), (right + lean, flap), (right, bottom)],
              fill="tint")


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
    near, far = d.by_grid(g16=(2.5, 13.5), g20=(3.5, 16.5), g24=(3.5, 20.5))
    _disk(d, near, far)


def _printer(d, x, right, inner, top, body, slot, bottom):
    far = x + right - inner
    d.path(path_data("M", inner, body, "V", top, "H", far, "V", body), fill="paper")
    d.path(path_data("M", inner, slot + 2, "H", x + 1, "a1 1 0 0 1-1-1V", body + 1,
                     "a1 1 0 0 1 1-1H", right - 1, "a1 1 0 0 1 1 1V", slot + 1,
                     "a1 1 0 0 1-1 1H", far, "V", slot, "H", inner, "z"), fill="tint")
    d.path(path_data("M", inner, slot, "V", bottom, "H", far, "V", slot, "z"), fill="paper",
           stroke="accent")


def print_(d):
    _printer(d, *d.by_grid(g16=(1.5, 14.5, 4.5, 1.5, 5.5, 9.5, 14.5),
                           g20=(2.5, 17.5, 5.5, 2.5, 7.5, 12.5, 17.5),
                           g24=(2.5, 21.5, 6.5, 2.5, 8.5, 14.5, 21.5)))
    d.line(*d.by_grid(g16=(11.5, 7.5, 12.5, 7.5), g20=(13.5, 9.5, 15.5, 9.5),
                      g24=(16.5, 11.5, 18.5, 11.5)))


def print_mask(d):
    """A printed page on which a part of the text is covered."""
    _printer(d, *d.by_grid(g16=(1.5, 14.5, 4.5, 1.5, 4.5, 7.5, 14.5),
                           g24=(2.5, 21.5, 6.5, 2.5, 7.5, 11.5, 21.5)))
    d.rect(*d.by_grid(g16=(6, 9, 4, 2), g24=(9, 14, 6, 3)), stroke=None, fill="ink")
    d.line(*d.by_grid(g16=(6.5, 12.5, 9.5, 12.5), g24=(9.5, 18.5, 14.5, 18.5)), stroke="accent")


def set_(d):
    if d.grid == 16:
        small_gear(d, 8, radius=3.5, rim=3, tip=7)
    else:
        gear(d, *d.by_grid(g20=(10, 8.5, 5.8, 2.5), g24=(12, 9.5, 6.5, 3)))


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


def extend_left(d):
    chevron(d, [(7.5, 2), (3.5, 6), (7.5, 10)])


def extend_right(d):
    chevron(d, [(4.5, 2), (8.5, 6), (4.5, 10)])


def arrow_down(d):
    d.polygon([(0, 2), (8, 2), (4, 6)], stroke=None, fill="ink")


def software_mark(d):
    """An "i" in a circle beside a program's window, on a grid of 33 by 11."""
    d.circle(5.5, 5.5, 5)
    d.line(5.5, 5.5, 5.5, 7.5)
    d.rect(5, 3, 1, 1, stroke=None, fill="ink")
    d.rect(15.5, 0.5, 17, 10, 1)
    d.line(15.5, 3.5, 32.5, 3.5)
    for x in (26, 28, 30):
        d.rect(x, 2, 1, 1, stroke=None, fill="ink")
    d.rect(16, 4, 4, 6, stroke=None, fill="tint")
    d.line(22.5, 6.5, 29.5, 6.5)
    d.line(22.5, 8.5, 27.5, 8.5)
