# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

"""A drawing on a small pixel grid: the shapes of one icon and their SVG text."""

from collections import namedtuple

Colour = namedtuple("Colour", "value opacity", defaults=(1.0,))
Shape = namedtuple("Shape", "kind geometry stroke fill pen cap")

#: Stroke widths in pixels of the grid. HAIR is for outlines of bodies, BOLD for separate marks;
#: SLANT makes a slanted or curved hairline look as heavy as a straight one.
HAIR, SLANT, MARK, BOLD = 1, 1.2, 1.5, 2


def number(value):
    """The coordinate as its shortest text."""
    return f"{round(value, 2):g}"


def path_data(*parts):
    """Path data from command letters and numbers, as `path_data("M", 1, 2, "H", 5)`."""
    return " ".join(part if isinstance(part, str) else number(part) for part in parts)


class Drawing:
    """Collects shapes. Colours are given by role and looked up in the palette."""

    def __init__(self, grid, palette, height=None):
        self.grid = grid
        self.height = height or grid
        self.palette = palette
        self.shapes = []

    def by_grid(self, **choices):
        """The value for this grid, as `by_grid(g16=..., g24=...)`."""
        return choices[f"g{self.grid}"]

    def path(self, data, **style):
        self._add("path", {"d": data}, **style)

    def line(self, x1, y1, x2, y2, **style):
        self.polyline([(x1, y1), (x2, y2)], **style)

    def polyline(self, points, **style):
        self._add("polyline", {"points": points}, **style)

    def polygon(self, points, **style):
        self._add("polygon", {"points": points}, **style)

    def rect(self, x, y, width, height, radius=0, **style):
        geometry = {"x": x, "y": y, "width": width, "height": height}
        if radius:
            geometry["rx"] = geometry["ry"] = radius
        self._add("rect", geometry, **style)

    def circle(self, x, y, radius, **style):
        self._add("circle", {"cx": x, "cy": y, "r": radius}, **style)

    def svg(self, width=None):
        """The SVG text; a width other than the grid's shows the same drawing larger."""
        height = self.height if width is None else width * self.height / self.grid
        box = f"0 0 {number(self.grid)} {number(self.height)}"
        lines = [
            f'<svg xmlns="http://www.w3.org/2000/svg" width="{number(width or self.grid)}" '
            f'height="{number(height)}" viewBox="{box}">',
            f'<g fill="none" stroke="{self.palette["ink"].value}" '
            'stroke-linecap="round" stroke-linejoin="round">',
        ]
        lines += [self._element(shape) for shape in self.shapes]
        return "\n".join(lines + ["</g>", "</svg>", ""])

    def _add(self, kind, geometry, stroke="ink", fill=None, pen=HAIR, cap="round"):
        fill = fill if fill and self.palette[fill] else None
        stroke = stroke if stroke and self.palette[stroke] else None
        if stroke or fill:
            self.shapes.append(Shape(kind, geometry, stroke, fill, pen, cap))

    def _element(self, shape):
        attributes = [f'{name}="{_value(value)}"' for name, value in shape.geometry.items()]
        if shape.stroke is None:
            attributes.append('stroke="none"')
        elif shape.stroke != "ink":
            attributes += self._paint("stroke", shape.stroke)
        if shape.stroke and shape.pen != HAIR:
            attributes.append(f'stroke-width="{number(shape.pen)}"')
        if shape.stroke and shape.cap != "round":
            attributes.append(f'stroke-linecap="{shape.cap}"')
        if shape.fill:
            attributes += self._paint("fill", shape.fill)
        return f"<{shape.kind} {' '.join(attributes)}/>"

    def _paint(self, what, role):
        colour = self.palette[role]
        paint = [f'{what}="{colour.value}"']
        if colour.opacity != 1:
            paint.append(f'{what}-opacity="{number(colour.opacity)}"')
        return paint


def _value(value):
    if isinstance(value, str):
        return value
    if isinstance(value, list):
        return " ".join(f"{number(x)},{number(y)}" for x, y in value)
    return number(value)
