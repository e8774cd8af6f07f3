#!/usr/bin/env python3
# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

"""Makes OFD files from readable sources: make_ofd.py FOLDER SOURCE...

Each SOURCE gives FOLDER/<its name>.ofd. A source begins with lines that say what must be seen; they
are not part of the file. Then come sections, each below a line in brackets:

    [page]               content of a layer; several of them make several pages
    [page before]        what comes before the content of the last page, such as an area or templates
    [size 60 40]         the sheet in millimetres; 60 x 40 without it
    [resources]          inside of the element Res
    [common]             inside of CommonData
    [document]           after the list of pages in Document.xml
    [body]               inside of DocBody, such as signatures
    [entry PATH]         an entry of the package as it stands
    [root NAME PATH]     an XML entry with a root element of that name
    [base64 PATH]        an entry of bytes
    [made PATH]          an entry of bytes that an expression with the functions of makers.py gives
"""

import base64
import pathlib
import sys

sys.dont_write_bytecode = True
HERE = pathlib.Path(__file__).resolve().parent
sys.path[:0] = [str(HERE), str(HERE.parents[1] / "examples/reader/samples")]

import make_samples  # noqa: E402
import makers  # noqa: E402


def sections(source):
    """The sections as pairs of head and text, without what stands before the first one."""
    found = []
    for line in source.splitlines():
        if line.startswith("[") and line.endswith("]"):
            found.append((line[1:-1], []))
        elif found:
            found[-1][1].append(line)
    return [(head, "\n".join(lines)) for head, lines in found]


def entry(kind, rest, text):
    """The path and the content of an entry that is given by itself."""
    if kind == "root":
        name, path = rest.split(" ", 1)
        return path, make_samples.xml(name, text)
    if kind == "entry":
        return rest, text.strip() + "\n"
    if kind == "base64":
        return rest, base64.b64decode(text)
    if kind == "made":
        return rest, eval(text.strip(), vars(makers))  # The sources are our own.
    sys.exit(f"make_ofd.py: unknown section [{kind} {rest}]")


def made(name, source):
    parts = {"resources": "", "common": "", "document": "", "body": "", "size": "60 40"}
    pages, before, entries = [], [], {}
    for head, text in sections(source):
        kind, _, rest = head.partition(" ")
        if head == "page":
            pages.append(text)
            before.append("")
        elif head == "page before":
            before[-1] += text
        elif kind == "size":
            parts["size"] = rest
        elif head in parts:
            parts[head] += text
        else:
            path, content = entry(kind, rest, text)
            entries[path] = content
    contents = [make_samples.page(page, first) for page, first in zip(pages, before)]
    package = make_samples.package(name, contents, parts["resources"], common=parts["common"],
                                   rest=parts["document"], box="0 0 " + parts["size"])
    package["OFD.xml"] = package["OFD.xml"].replace("</ofd:DocBody>",
                                                    parts["body"] + "</ofd:DocBody>")
    package.update(entries)
    return make_samples.archive(package)


def main():
    folder = pathlib.Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    for argument in sys.argv[2:]:
        source = pathlib.Path(argument)
        data = made(source.stem, source.read_text(encoding="utf-8"))
        (folder / f"{source.stem}.ofd").write_bytes(data)


if __name__ == "__main__":
    main()
