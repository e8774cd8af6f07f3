# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

"""Shapes that several glyphs share. Coordinates are those of the middle of a stroke."""

from math import cos, hypot, pi, sin, sqrt

from drawing import BOLD, HAIR, MARK, SLANT, number, path_data

GEAR_TEETH = 8


def mirrored(points, axis, when=True):
    """The points, mirrored at the vertical line x = axis if requested."""
    return [(2 * axis - x, y) for x, y in points] if when else points


def sheet(d, x, y, width, height, **style):
    """A plain page."""
    d.rect(x, y, width, height, 1, **dict({"fill": "paper"}, **style))


def page(d, x, y, width, height, fold, **style):
    """A page with its upper right corner folded."""
    right, bottom, outline = x + width, y + height, style.get("stroke", "ink")
    d.path(
        path_data("M", x + 1, y, "H", right - fold, "L", right, y + fold, "V", bottom - 1,
                  "a1 1 0 0 1-1 1H", x + 1, "a1 1 0 0 1-1-1V", y + 1, "a1 1 0 0 1 1-1z"),
        **dict({"fill": "paper"}, **style))
    d.polyline([(right - fold, y), (right - fold, y + fold), (right, y + fold)], stroke=outline)


def text_lines(d, x, right, rows, stroke="ink"):
    for y in rows:
        d.line(x, y, right, y, stroke=stroke)


def chevron(d, points, pen=MARK, stroke="ink"):
    d.polyline(points, stroke=stroke, pen=pen)


def arrow(d, tail, tip, head, stroke="accent", pen=HAIR, both=False):
    """A straight arrow along an axis or a diagonal; `head` is the length of its barbs."""
    d.line(*tail, *tip, stroke=stroke, pen=pen)
    for start, end in ((tail, tip), (tip, tail))[: 2 if both else 1]:
        d.polyline(_barbs(start, end, head), stroke=stroke, pen=pen)


def _barbs(start, end, head):
    ux, uy = (_sign(end[i] - start[i]) for i in (0, 1))
    x, y = end
    if ux and uy:
        return [(x - ux * head, y), (x, y), (x, y - uy * head)]
    return [(x - head * (ux + uy), y - head * (ux + uy)), (x, y),
            (x - head * (ux - uy), y - head * (uy - ux))]


def _sign(value):
    return (value > 0) - (value < 0)


def solid_head(d, x, y, size, towards, stroke="accent"):
    """A solid arrow head with its tip at (x, y), for arrows with no room for barbs."""
    dx, dy = towards
    base_x, base_y = x - dx * size, y - dy * size
    d.polygon([(x, y), (base_x + dy * size, base_y + dx * size),
               (base_x - dy * size, base_y - dx * size)], stroke=None, fill=stroke)


def plus(d, x, y, arm, stroke="accent", pen=BOLD):
    d.line(x - arm, y, x + arm, y, stroke=stroke, pen=pen)
    d.line(x, y - arm, x, y + arm, stroke=stroke, pen=pen)


def cross(d, x, y, arm, stroke="red", pen=MARK):
    d.line(x - arm, y - arm, x + arm, y + arm, stroke=stroke, pen=pen)
    d.line(x - arm, y + arm, x + arm, y - arm, stroke=stroke, pen=pen)


def check(d, x, y, arm, stroke="accent", pen=MARK):
    """A check mark around (x, y); `arm` is the height of its short side."""
    d.polyline([(x - 1.3 * arm, y), (x - 0.3 * arm, y + arm), (x + 1.3 * arm, y - 0.9 * arm)],
               stroke=stroke, pen=pen)


def cut_page(d, fill="paper"):
    """A folded page whose lower right corner is cut away around the badge `badge(d)`."""
    left, top, right, bottom, fold, gap = d.by_grid(
        g16=(2.5, 1.5, 12.5, 14.5, 3, 7.5), g24=(4.5, 2.5, 19.5, 21.5, 5, 9))
    cut_x, cut_y = right - d.by_grid(g16=4.5, g24=6.5), bottom - gap + d.by_grid(g16=1, g24=1)
    d.polygon([(left, top), (right - fold, top), (right, top + fold), (right, cut_y),
               (cut_x, cut_y), (cut_x, bottom), (left, bottom)], stroke=None, fill=fill)
    d.path(path_data("M", cut_x - 1, bottom, "H", left + 1, "a1 1 0 0 1-1-1V", top + 1,
                     "a1 1 0 0 1 1-1H", right - fold, "L", right, top + fold, "V", cut_y - 1))
    d.polyline([(right - fold, top), (right - fold, top + fold), (right, top + fold)])


def badge(d):
    """The middle of the mark for the operation on the object."""
    return d.by_grid(g16=(12, 12), g24=(18, 18))


def padlock(d, x, y, width, height, reach=1.5):
    """A closed padlock whose body starts at (x, y); `reach` is half the shackle's width."""
    middle = x + width / 2
    d.path(path_data("M", middle - reach, y, "V", y - 1,
                     f"a{number(reach)} {number(reach)} 0 0 1", 2 * reach, 0, "v1"),
           stroke="accent", pen=SLANT)
    d.rect(x, y, width, height, 0.5 if d.grid == 16 else 1, stroke="accent", fill="tint")


def shield(d):
    """A shield across the grid."""
    d.path(d.by_grid(
        g16="M8 1.5c2 1.2 4 1.7 5.5 1.8V8c0 3.2-2.2 5.3-5.5 6.5c-3.3-1.2-5.5-3.3-5.5-6.5V3.3"
            "C4 3.2 6 2.7 8 1.5z",
        g24="M12 2.5c3 1.9 5.7 2.6 8.5 2.8V12c0 4.7-3.3 7.8-8.5 9.5c-5.2-1.7-8.5-4.8-8.5-9.5V5.3"
            "C6.3 5.1 9 4.4 12 2.5z"), fill="tint", pen=SLANT)


def binoculars(d):
    top, eye, knee, bottom, outer, inner = d.by_grid(
        g16=(2.5, 5.5, 10, 13.5, 1.5, 6.5), g24=(3.5, 7.5, 14.5, 20.5, 2.5, 9.5))
    bridge = d.by_grid(g16=(6.5, 7.5, 3, 3), g24=(9.5, 10.5, 5, 5))
    d.rect(*bridge, stroke="accent", fill="tint")
    for mirror in (False, True):
        sides = [(outer + 2, top), (inner, top), (inner, eye), (inner, bottom), (outer, bottom),
                 (outer, knee), (outer + 2, eye)]
        points = mirrored(sides, d.grid / 2, mirror)
        d.polygon(points, fill="tint")
        d.line(*points[2], *points[6])


def bubble(d, x, y, width, height, tail, **style):
    """A speech bubble; `tail` is how far its tip hangs below."""
    right, bottom, foot = x + width, y + height, x + width * 0.25
    d.path(path_data("M", x + 1, y, "H", right - 1, "a1 1 0 0 1 1 1V", bottom - 1,
                     "a1 1 0 0 1-1 1H", foot + tail, "L", foot, bottom + tail, "V", bottom, "H",
                     x + 1, "a1 1 0 0 1-1-1V", y + 1, "a1 1 0 0 1 1-1z"),
           **dict({"fill": "paper"}, **style))


def magnifier(d, centre, radius, end, fill="tint", handle=BOLD):
    start = centre + radius * 0.707 + handle / 2
    d.circle(centre, centre, radius, fill=fill, pen=SLANT)
    d.line(start, start, end, end, pen=handle)


def letter_a(d, x, top, width, height, stroke="ink", pen=BOLD):
    """A capital A whose feet stand at (x, top + height) and (x + width, top + height)."""
    foot, bar = top + height, top + height * 0.64
    d.polyline([(x, foot), (x + width / 2, top), (x + width, foot)], stroke=stroke, pen=pen)
    inset = width / 2 * (1 - (bar - top) / height)
    d.line(x + inset, bar, x + width - inset, bar, stroke=stroke, pen=pen, cap="butt")


def star(x, y, radius):
    """The points of a five-pointed star."""
    inner = radius * 0.382
    return [(x + r * sin(i * pi / 5), y - r * cos(i * pi / 5))
            for i, r in enumerate([radius, inner] * 5)]


def twinkle(d, x, y, radius):
    """A solid star with four points."""
    waist = radius * 0.28
    d.polygon([(x, y - radius), (x + waist, y - waist), (x + radius, y), (x + waist, y + waist),
               (x, y + radius), (x - waist, y + waist), (x - radius, y), (x - waist, y - waist)],
              stroke=None, fill="accent")


def round_seal(d, x, y, radius, star_radius):
    d.circle(x, y, radius, stroke="red", fill="rose", pen=BOLD)
    d.polygon(star(x, y + 0.3, star_radius), stroke=None, fill="red")


def sun(d, centre, radius, inner, outer):
    """A sun with eight rays from `inner` to `outer`."""
    for step in range(8):
        x, y = sin(step * pi / 4), cos(step * pi / 4)
        d.line(centre + inner * x, centre + inner * y, centre + outer * x, centre + outer * y,
               pen=SLANT if x * y else HAIR)
    d.circle(centre, centre, radius, stroke="accent", fill="yellow", pen=SLANT)


def bulges(d, circles, **style):
    """The outline around overlapping circles (x, y, radius), which go round clockwise."""
    ends = [_outer_crossing(one, other) for one, other in zip(circles, circles[1:] + circles[:1])]
    data = path_data("M", *ends[-1])
    for (_, _, radius), end in zip(circles, ends):
        data += path_data(f"A{number(radius)} {number(radius)} 0 0 1", *end)
    d.path(data + "z", **style)


def _outer_crossing(one, other):
    """Where two circles cross, on the left of the way from the first to the second."""
    (x, y, radius), (to_x, to_y, other_radius) = one, other
    distance = hypot(to_x - x, to_y - y)
    along = (distance ** 2 + radius ** 2 - other_radius ** 2) / (2 * distance)
    aside = sqrt(radius ** 2 - along ** 2)
    way_x, way_y = (to_x - x) / distance, (to_y - y) / distance
    return x + along * way_x + aside * way_y, y + along * way_y - aside * way_x


def gear(d, centre, outer, root, hole):
    """A gear wheel; each tooth is a trapezium on the root circle."""
    points = []
    for tooth in range(GEAR_TEETH):
        out_x, out_y = (f(tooth * 2 * pi / GEAR_TEETH) for f in (sin, cos))
        for along, across in ((root, -2), (outer, -1.5), (outer, 1.5), (root, 2)):
            points.append((centre + along * out_x + across * out_y,
                           centre - along * out_y + across * out_x))
    d.polygon(points, fill="tint", pen=SLANT)
    d.circle(centre, centre, hole, fill="paper", pen=SLANT)


def small_gear(d, centre, radius, rim, tip):
    """A solid gear wheel, for grids with no room for outlined teeth."""
    d.circle(centre, centre, radius, pen=rim)
    for tooth in range(GEAR_TEETH):
        x, y = (f(tooth * 2 * pi / GEAR_TEETH) for f in (sin, cos))
        d.line(centre + radius * x, centre + radius * y, centre + tip * x, centre + tip * y,
               pen=BOLD, cap="butt")


def dashed_frame(d, x, y, size, corner, bridge):
    """A square selection frame: angles in the corners, a dash (`bridge`) between them."""
    far, middle = size, size / 2
    for cx, cy, sx, sy in ((x, y, 1, 1), (x + far, y, -1, 1), (x, y + far, 1, -1),
                           (x + far, y + far, -1, -1)):
        d.polyline([(cx + sx * corner, cy), (cx, cy), (cx, cy + sy * corner)])
    for x1, y1 in ((x + middle, y), (x + middle, y + far)):
        d.line(x1 - bridge / 2, y1, x1 + bridge / 2, y1)
    for x1, y1 in ((x, y + middle), (x + far, y + middle)):
        d.line(x1, y1 - bridge / 2, x1, y1 + bridge / 2)


def wave(d, x, y, lengths, rise, stroke="accent", pen=MARK):
    """A wavy line from (x, y) made of half waves of the given lengths."""
    data = path_data("M", x, y)
    for index, length in enumerate(lengths):
        bend = rise if index % 2 else -rise
        data += f"q{number(length / 2)} {number(bend)} {number(length)} 0"
    d.path(data, stroke=stroke, pen=pen)
