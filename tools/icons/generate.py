#!/usr/bin/env python3
# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

"""Writes the icons of both skins and their resource list below Resources/.

With --check it writes nothing and fails if a file differs, is missing or is not in the catalogue,
if an icon of a description is not drawn, if the number of icons in a directory is wrong, if two
icons of a directory have the same shapes, or if a colour has too little contrast with its
background.
"""

import argparse
import re
import sys
from collections import Counter
from pathlib import Path

sys.dont_write_bytecode = True  # No __pycache__ in the sources when a build runs the check.

from catalogue import COUNTS, SAME_DRAWING, SKINS
from drawing import Drawing
from palettes import faint_colours
from raster import png

RESOURCES = Path(__file__).resolve().parents[2] / "Resources"
RESOURCE_LIST = "toolbar_icon.qrc"
ICON_ATTRIBUTE = re.compile(r'\b(?:icon|dropicon)="([^"]+)"')

#: A description names it without the size directory, so its control shows no icon.
DELIBERATELY_MISSING = {("marodi", "FitWidth.svg")}


def drawn(icon):
    drawing = Drawing(icon.grid, icon.palette, icon.height)
    icon.glyph(drawing)
    return drawing


def content(icon):
    """The bytes of one icon file."""
    drawing = drawn(icon)
    if icon.path.endswith(".png"):
        return png(drawing, icon.shown)
    return drawing.svg(icon.shown).encode()


def catalogued():
    """Every icon with its path below Resources/."""
    for skin, icons in SKINS.items():
        for icon in icons:
            yield f"{skin}/{icon.path}", icon


def resource_list(paths):
    files = "".join(f"    <file>{path}</file>\n" for path in sorted(paths))
    return f'<RCC>\n  <qresource prefix="/mr_toolbar/Resources">\n{files}  </qresource>\n</RCC>\n'


def generated():
    """Every file to write: its path below Resources/ and its bytes."""
    files = {path: content(icon) for path, icon in catalogued()}
    files[RESOURCE_LIST] = resource_list(files).encode()
    return files


def described():
    """The icons in the descriptions, as (description, path below Resources/)."""
    for description in sorted(RESOURCES.glob("*/mr_toolbar.*.xml")):
        skin = description.parent.name
        for name in sorted(set(ICON_ATTRIBUTE.findall(description.read_text("utf-8-sig")))):
            if (skin, name) not in DELIBERATELY_MISSING:
                yield description.relative_to(RESOURCES), f"{skin}/icons/{name.lstrip('/')}"


def catalogue_problems():
    """The faults of the catalogue itself: names, counts, colours, duplicates."""
    paths = [path for path, _ in catalogued()]
    for path, times in Counter(paths).items():
        if times > 1:
            yield f"{path} is entered {times} times"
    counts = Counter(str(Path(path).parent) for path in paths if "/icon" in path)
    for directory in sorted(COUNTS.keys() | counts.keys()):
        have, want = counts[directory], COUNTS.get(directory, 0)
        if have != want:
            yield f"{directory} has {have} icons, not {want}"
    for colour, ground in faint_colours():
        yield f"{colour} is too faint on {ground}"
    yield from twins()


def twins():
    """Icons of one directory with the same shapes, regardless of colours."""
    seen = {}
    for path, icon in catalogued():
        shapes = tuple((shape.kind, repr(shape.geometry), shape.pen, bool(shape.fill))
                       for shape in drawn(icon).shapes)
        first = seen.setdefault((str(Path(path).parent), shapes), path)
        if first != path and tuple(sorted((first, path))) not in SAME_DRAWING:
            yield f"{path} looks like {first}"


def file_problems(files):
    for path, data in files.items():
        target = RESOURCES / path
        if not target.is_file():
            yield f"{path} is missing; run generate.py"
        elif target.read_bytes() != data:
            yield f"{path} is not what generate.py writes"
    for description, path in described():
        if path not in files:
            yield f"{description} names {path}, which no glyph is drawn for"
    for found in sorted([*RESOURCES.glob("*/icons/**/*"), *RESOURCES.glob("*/drawings/**/*")]):
        path = str(found.relative_to(RESOURCES))
        if found.is_file() and path not in files:
            yield f"{path} is no icon of the catalogue"


def write(files):
    for path, data in files.items():
        target = RESOURCES / path
        target.parent.mkdir(parents=True, exist_ok=True)
        if not target.is_file() or target.read_bytes() != data:
            target.write_bytes(data)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--check", action="store_true",
                        help="write nothing; fail if the files and the catalogue disagree")
    arguments = parser.parse_args()
    problems = list(catalogue_problems())
    files = {} if problems else generated()
    if arguments.check and not problems:
        problems = list(file_problems(files))
    for problem in problems:
        print(f"generate.py: {problem}", file=sys.stderr)
    if problems:
        sys.exit(1)
    if not arguments.check:
        write(files)


if __name__ == "__main__":
    main()
