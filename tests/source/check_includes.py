#!/usr/bin/env python3
# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

"""Fails if an #include is not allowed by the table MAY_INCLUDE, or if includes form a circle.

    check_includes.py [ROOT]

The keys of the table are the rooms (folders) of the tree; a file belongs to the deepest one that
contains it.
"""

import posixpath
import re
import sys
from pathlib import Path

#: Headers in toolbar/ that every room may include.
COMMON = "common ground"
COMMON_GROUND = {"toolbar/Latin1.h", "toolbar/MRToolBarExport.h", "toolbar/NamedList.h",
                 "toolbar/QtCompat.h", "toolbar/ToolBarTypes.h"}
#: The headers that are installed; toolbar/CMakeLists.txt lists them.
PUBLIC = "public headers"

#: What the files of a room may include besides those of their own room. A folder includes its
#: subfolders.
MAY_INCLUDE = {
    COMMON: [],
    "toolbar": ["toolbar"],
    "toolbar/assist": [COMMON, "toolbar/state", "toolbar/commands", "toolbar/widgets",
                       "toolbar/skin", "toolbar/description"],
    "toolbar/build": [COMMON, "toolbar/state", "toolbar/commands", "toolbar/fields",
                      "toolbar/widgets", "toolbar/skin", "toolbar/description"],
    "toolbar/find": [COMMON, "toolbar/widgets", "toolbar/skin", "toolbar/description"],
    "toolbar/state": [COMMON, "toolbar/commands", "toolbar/widgets", "toolbar/description"],
    "toolbar/commands": [COMMON, "toolbar/widgets", "toolbar/description"],
    "toolbar/fields": [COMMON, "toolbar/widgets", "toolbar/description"],
    "toolbar/widgets": [COMMON, "toolbar/skin", "toolbar/description"],
    "toolbar/skin": [COMMON],
    "toolbar/description": [COMMON],
    "toolbar/handwrite": [COMMON, "toolbar/skin"],
    "examples": [PUBLIC, "examples", "tools/check"],
    "examples/reader/ofd": [],
    "tools": [PUBLIC, COMMON, "toolbar/skin", "toolbar/description"],
    "tests": ["toolbar", "examples", "tools"],
    "benchmarks": ["toolbar"],
}

FOLDERS = ["toolbar", "examples", "tools", "tests", "benchmarks"]
#: The folders where a header is searched after the folder of the file and the root.
MORE_FOLDERS = ["examples/reader"]
INCLUDE = re.compile(r'\s*#\s*include\s*(?:"([^"]+)"|<([^>]+)>)')


def public_headers(root):
    build = (root / "toolbar/CMakeLists.txt").read_text(encoding="utf-8")
    listed = re.search(r"set\(public_headers\s([^)]*)\)", build)
    if not listed:
        sys.exit("check_includes.py: toolbar/CMakeLists.txt has no list public_headers")
    return {f"toolbar/{header}" for header in listed[1].split()}


def is_below(path, folder):
    return path == folder or path.startswith(folder + "/")


def room_of(path):
    if path in COMMON_GROUND:
        return COMMON
    return max((room for room in MAY_INCLUDE if is_below(path, room)), key=len)


def is_source(path):
    return any(is_below(path, folder) for folder in FOLDERS)


def resolved(root, path, name):
    """The included file as a path below the root; None for one outside the tree."""
    for folder in [posixpath.dirname(path), "", *MORE_FOLDERS]:
        candidate = posixpath.normpath(posixpath.join(folder, name))
        if is_source(candidate) and (root / candidate).is_file():
            return candidate
    # The path of a missing file still shows its room.
    return name if is_source(name) else None


def read_includes(root):
    """The includes of each file: (line, path) by path, all below the root."""
    includes = {}
    for folder in FOLDERS:
        for file in sorted((root / folder).rglob("*")):
            if file.suffix not in (".cpp", ".h"):
                continue
            path = file.relative_to(root).as_posix()
            found = []
            for number, line in enumerate(file.read_text(encoding="utf-8").splitlines(), 1):
                match = INCLUDE.match(line)
                target = resolved(root, path, match[1] or match[2]) if match else None
                if target:
                    found.append((number, target))
            includes[path] = found
    return includes


def folders_without_room(includes):
    for folder in sorted({posixpath.dirname(path) for path in includes}):
        if room_of(folder) == "toolbar" and folder != "toolbar":
            yield f"{folder}: the table MAY_INCLUDE has no row for this folder"


def is_allowed(room, target, public):
    return room_of(target) == room or any(
        target in public if known == PUBLIC
        else room_of(target) == COMMON if known == COMMON
        else is_below(target, known)
        for known in MAY_INCLUDE[room])


def upward_includes(includes, public):
    for path, targets in includes.items():
        room = room_of(path)
        for line, target in targets:
            if not is_allowed(room, target, public):
                known = ", ".join(MAY_INCLUDE[room]) or "nothing else"
                yield f'{path}:{line}: includes "{target}", but {room} may know: {known}'


def circles(edges):
    """The circles of the graph, found by a depth-first search, each as the list of its members."""
    done = set()
    for start in sorted(edges):
        # Each entry is a node and its targets that are still to be visited.
        trail = [] if start in done else [(start, iter(sorted(edges[start])))]
        while trail:
            node, targets = trail[-1]
            on_trail = [entry for entry, _ in trail]
            target = next(targets, None)
            if target is None:
                done.add(node)
                trail.pop()
            elif target in on_trail:
                yield on_trail[on_trail.index(target):] + [target]
            elif target not in done:
                trail.append((target, iter(sorted(edges.get(target, ())))))


def include_circles(includes):
    files = {path: {target for _, target in targets} for path, targets in includes.items()}
    rooms = {}
    for path, targets in files.items():
        room = room_of(path)
        rooms.setdefault(room, set()).update({room_of(target) for target in targets} - {room})
    for circle in circles(files):
        yield "files include each other: " + " -> ".join(circle)
    for circle in circles(rooms):
        yield "rooms include each other: " + " -> ".join(circle)


def main():
    root = Path(sys.argv[1] if len(sys.argv) > 1 else Path(__file__).parents[2]).resolve()
    includes = read_includes(root)
    if not includes:
        sys.exit(f"check_includes.py: there are no sources below {root}")
    faults = [
        *folders_without_room(includes),
        *upward_includes(includes, public_headers(root)),
        *include_circles(includes),
    ]
    for fault in faults:
        print(fault, file=sys.stderr)
    sys.exit(1 if faults else 0)


if __name__ == "__main__":
    main()
