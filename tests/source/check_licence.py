#!/usr/bin/env python3
# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

"""Fails if a source does not begin with its copyright and licence lines.

    check_licence.py [ROOT]

Sources are files that are compiled or run. Data, documents and generated files have no such lines.
"""

import sys
from pathlib import Path

LINES = ["SPDX-FileCopyrightText: The MRToolBar authors", "SPDX-License-Identifier: MIT"]
#: Comment marks by the suffix of the file name.
MARKS = {".cpp": "//", ".h": "//", ".py": "#", ".sh": "#", ".awk": "#", ".cmake": "#",
         "CMakeLists.txt": "#"}
FOLDERS = [".ci", "benchmarks", "cmake", "docs", "examples", "scripts", "tests", "toolbar", "tools"]


def comment_mark(path, text):
    """The comment mark of the file; None for a file that is not a source."""
    for ending, mark in MARKS.items():
        if path.name.endswith(ending):
            return mark
    return "#" if not path.suffix and text.startswith("#!") else None


def sources(root):
    """Each source with its text and its comment mark."""
    files = [root / "CMakeLists.txt"]
    for folder in FOLDERS:
        files += sorted(path for path in (root / folder).rglob("*") if path.is_file())
    for path in files:
        text = path.read_text(encoding="utf-8", errors="replace")
        mark = comment_mark(path, text)
        if mark:
            yield path, text, mark


def begins_with_lines(text, mark):
    lines = text.splitlines()[:3]
    if lines and lines[0].startswith("#!"):
        lines.pop(0)
    return lines[:2] == [f"{mark} {line}" for line in LINES]


def main():
    root = Path(sys.argv[1] if len(sys.argv) > 1 else Path(__file__).parents[2]).resolve()
    checked = list(sources(root))
    faults = [path for path, text, mark in checked if not begins_with_lines(text, mark)]
    for path in faults:
        print(f"{path.relative_to(root)}: does not begin with the licence lines", file=sys.stderr)
    print(f"{len(checked)} sources, {len(faults)} without the licence lines")
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
