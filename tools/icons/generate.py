#!/usr/bin/env python3
"""Writes the icons of both skins and their resource list below Resources/.

With --check it writes nothing and fails if a file differs or a described icon is missing.
"""

import argparse
import re
import sys
from pathlib import Path

from catalogue import SKINS
from drawing import Drawing
from raster import png

RESOURCES = Path(__file__).resolve().parents[2] / "Resources"
RESOURCE_LIST = "toolbar_icon.qrc"
ICON_ATTRIBUTE = re.compile(r'\b(?:icon|dropicon)="([^"]+)"')

#: Named by a description without its size directory, so that its control shows no icon.
DELIBERATELY_MISSING = {("marodi", "FitWidth.svg")}


def content(icon):
    """The bytes of one icon file."""
    drawing = Drawing(icon.grid, icon.palette, icon.height)
    icon.glyph(drawing)
    if icon.path.endswith(".png"):
        return png(drawing, icon.shown)
    return drawing.svg(icon.shown).encode()


def resource_list(paths):
    files = "".join(f"    <file>{path}</file>\n" for path in sorted(paths))
    return f'<RCC>\n  <qresource prefix="/mr_toolbar/Resources">\n{files}  </qresource>\n</RCC>\n'


def generated():
    """Every file to write: its path below Resources/ and its bytes."""
    files = {f"{skin}/{icon.path}": content(icon)
             for skin, icons in SKINS.items() for icon in icons}
    files[RESOURCE_LIST] = resource_list(files).encode()
    return files


def described():
    """The icons that the descriptions name, as (description, path below Resources/)."""
    for description in sorted(RESOURCES.glob("*/mr_toolbar.*.xml")):
        skin = description.parent.name
        for name in sorted(set(ICON_ATTRIBUTE.findall(description.read_text("utf-8-sig")))):
            if (skin, name) not in DELIBERATELY_MISSING:
                yield description.relative_to(RESOURCES), f"{skin}/icons/{name.lstrip('/')}"


def problems(files):
    for path, data in files.items():
        target = RESOURCES / path
        if not target.is_file():
            yield f"{path} is missing; run generate.py"
        elif target.read_bytes() != data:
            yield f"{path} is not what generate.py writes"
    for description, path in described():
        if path not in files:
            yield f"{description} names {path}, which no glyph is drawn for"


def write(files):
    for path, data in files.items():
        target = RESOURCES / path
        target.parent.mkdir(parents=True, exist_ok=True)
        if not target.is_file() or target.read_bytes() != data:
            target.write_bytes(data)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--check", action="store_true",
                        help="write nothing; fail if a file differs or an icon is missing")
    arguments = parser.parse_args()
    files = generated()
    if arguments.check:
        first = next(problems(files), None)
        if first:
            sys.exit(f"generate.py: {first}")
    else:
        write(files)


if __name__ == "__main__":
    main()
