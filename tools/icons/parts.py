"""What several glyphs are made of. Coordinates are those of the stroke's centre."""

from math import cos, pi, sin

from drawing import BOLD, HAIR, MARK, SLANT, number, path_data

GEAR_TEETH = 8


def mirrored(points, axis, when=True):
    """The points, mirrored at the vertical line x = axis if asked for."""
    return [(2 * axis - x, y) for x, y in points] if when else points


def sheet(d, x, y, width, height, **style):
    """A plain page."""
    d.rect(x, y, width, height, 1, **dict({"fill": "paper"}, **style))


def page(d, x, y, width, height, fold, **style):
    """A page with its upper right corner folded."""
    right, bottom = x + width, y + height
    d.path(
        path_data("M", x + 1, y, "H", right - fold, "L", right, y + fold, "V", bottom - 1,
                  "a1 1 0 0 1-1 1H", x + 1, "a1 1 0 0 1-1-1V", y + 1, "a1 1 0 0 1 1-1z"),
        **dict({"fill": "paper"}, **style))
    d.polyline([(right - fold, y), (right - fold, y + fold), (right, y + fold)])


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


def plus(d, x, y, arm, stroke="accent", pen=BOLD):
    d.line(x - arm, y, x + arm, y, stroke=stroke, pen=pen)
    d.line(x, y - arm, x, y + arm, stroke=stroke, pen=pen)


def cross(d, x, y, arm, stroke="red", pen=MARK):
    d.line(x - arm, y - arm, x + arm, y + arm, stroke=stroke, pen=pen)
    d.line(x - arm, y + arm, x + arm, y - arm, stroke=stroke, pen=pen)


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


def round_seal(d, x, y, radius, star_radius):
    d.circle(x, y, radius, stroke="red", fill="rose", pen=BOLD)
    d.polygon(star(x, y + 0.3, star_radius), stroke=None, fill="red")


def gear(d, centre, outer, root, hole):
    """A gear wheel; each tooth is a trapezium on the root circle."""
    step, points = 2 * pi / GEAR_TEETH, []
    for tooth in range(GEAR_TEETH):
        for radius, offset in ((root, -0.30), (outer, -0.17), (outer, 0.17), (root, 0.30)):
            angle = (tooth + offset) * step - pi / 2
            points.append((centre + radius * cos(angle), centre + radius * sin(angle)))
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
