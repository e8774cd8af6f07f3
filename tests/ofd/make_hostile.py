#!/usr/bin/env python3
# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

"""Makes files that try to crash, fill or block a reader: make_hostile.py FOLDER

FOLDER/expected.tsv says of each what the reader must answer: "refused" or "painted" with a part of
the sentence that it gives, or nothing if any end will do. The last field tells how many times the
usual time it may take, which is more than one for files of which all content has to be painted.
"""

import base64
import pathlib
import random
import struct
import sys
import zipfile
import zlib

sys.dont_write_bytecode = True
HERE = pathlib.Path(__file__).resolve().parent
sys.path[:0] = [str(HERE), str(HERE.parents[1] / "examples/reader/samples")]

import makers  # noqa: E402
from make_samples import (archive, code, encrypted, package, page, path,  # noqa: E402
                          path_sample, picture, samples, template_sample, text, text_sample, xml)

SEED = 20240506
HEAVY = {"points": 3, "points-filled": 2, "characters": 2, "scribbles": 3, "texts": 2}
LEFT_OUT = {f"jp2-{kind}": "（JPEG 2000）" for kind in
                                    ("tiles", "blocks", "components", "precincts")}
LEFT_OUT["characters"] = "过多的字符"
SQUARE = "M 0 0 L 40 0 L 40 40 L 0 40 C"


def zipped(entries):
    """An archive whose directory may lie: triples of name, bytes, and fields that differ."""
    body, directory = b"", b""
    for name, data, lies in entries:
        packed = lies.get("data", data)
        fields = struct.pack("<HHHHHIII", 20, lies.get("flags", 0), lies.get("method", 0), 0, 0x58A6,
                             lies.get("crc", zlib.crc32(data)), lies.get("packed", len(packed)),
                             lies.get("size", len(data)))
        directory += (b"PK\1\2" + struct.pack("<H", 20) + fields
                      + struct.pack("<HHHHHII", len(name), 0, 0, 0, 0, 0, len(body)) + name)
        body += b"PK\3\4" + fields + struct.pack("<HH", len(name), 0) + name + packed
    return body + directory + b"PK\5\6" + struct.pack(
        "<HHHHIIH", 0, 0, len(entries) & 0xFFFF, len(entries) & 0xFFFF, len(directory), len(body), 0)


def plain(content="", res="", **more):
    return package("敌意", [page(content)], res, **more)


def with_page(content, res="", **more):
    return archive(plain(content, res, **more))


def with_entry(name, data, content=""):
    return archive({**plain(content), name: data})


def lying(name, **lies):
    """A plain document with lies about one entry, which comes last."""
    entries = [(key.encode(), value.encode(), {}) for key, value in plain().items() if key != name]
    return zipped(entries + [(name.encode(), plain().get(name, "x").encode(), lies)])


def with_image(data, box="0 0 40 30", matrix="40 0 0 30 0 0"):
    media = ('<ofd:MultiMedias><ofd:MultiMedia ID="21" Type="Image">'
             "<ofd:MediaFile>it</ofd:MediaFile></ofd:MultiMedia></ofd:MultiMedias>")
    image = f'<ofd:ImageObject ID="800" ResourceID="21" Boundary="{box}" CTM="{matrix}"/>'
    return archive(plain(image, media, others={"Doc_0/Res/it": data}))


def with_font(data):
    fonts = ('<ofd:Fonts><ofd:Font ID="4" FontName="Shapes"><ofd:FontFile>it</ofd:FontFile>'
             "</ofd:Font></ofd:Fonts>")
    return archive(plain(text("0 0 90 20", 4, 10, code("ABAB", 0, 10)), fonts,
                         others={"Doc_0/Res/it": data}))


def png(width, height, rows=b""):
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 0, 0, 0, 0))
            + chunk(b"IDAT", zlib.compress(rows)) + chunk(b"IEND", b""))


def scans(side, count):
    """A progressive JPEG that sends the whole picture so many times, each time in some bytes."""
    def part(mark, data):
        return struct.pack(">BBH", 0xFF, mark, len(data) + 2) + data
    blocks = (side // 8) ** 2
    codes = (part(0xDB, b"\0" + b"\1" * 64) + part(0xC4, b"\0\1" + bytes(16))
             + part(0xC4, b"\x10\1" + bytes(15) + b"\xe0"))
    again = part(0xDA, b"\1\1\0\1\x3f\0") + bytes(blocks // 16384 * 15 // 8 + 2)
    return (b"\xff\xd8" + part(0xC2, struct.pack(">BHHB", 8, side, side, 1) + b"\1\x11\0") + codes
            + part(0xDA, b"\1\1\0\0\0\0") + bytes(blocks // 8 + 1) + again * count + b"\xff\xd9")


def codestream(width, height, components=3, tile=None, block=4, precincts=b""):
    tile = tile or max(width, height)
    siz = struct.pack(">HIIIIIIIIH", 0, width, height, 0, 0, tile, tile, 0, 0, components)
    siz += b"\7\1\1" * components
    coding = struct.pack(">BBHBBBBBB", 1 if precincts else 0, 0, 1, 0, 5, block, block, 0, 1) + precincts
    quantity = b"\x40" + b"\x48" * 16
    marks = [(0x51, siz), (0x52, coding), (0x5C, quantity)]
    head = b"".join(struct.pack(">BBH", 0xFF, mark, len(data) + 2) + data for mark, data in marks)
    return b"\xff\x4f" + head + struct.pack(">HHHIBB", 0xFF90, 10, 0, 0, 0, 1) + b"\xff\x93" + bytes(64)


def giants():
    """Pictures that say in their first bytes that they are 60000 pixels wide and high."""
    side = 60000
    small = struct.pack("<HH", side, side)
    scan = struct.pack(">HHBHHB", 0xFFC0, 17, 8, side, side, 3) + b"\1\x11\0\2\x11\0\3\x11\0"
    return {
        "PNG": png(side, side), "JPEG": b"\xff\xd8" + scan + b"\xff\xd9",
        "BMP": b"BM" + struct.pack("<IIIIiiHHIIiiII", 54, 0, 54, 40, side, side, 1, 24, 0, 0, 0, 0, 0, 0),
        "GIF": b"GIF89a" + small + b"\0\0\0," + bytes(4) + small + b"\0\2\0;",
        "TIFF": makers.tiff_header(side, side),
        "WebP": b"RIFF" + struct.pack("<I", 22) + b"WEBPVP8X" + struct.pack("<II", 10, 0)
                + struct.pack("<I", side - 1)[:3] * 2,
        "JPEG 2000": codestream(side, side), "JBIG2": makers.jbig2(width=side, height=side),
    }


def archives():
    deflated = zipfile.ZIP_DEFLATED
    inner = archive({"x": bytes(1 << 20)}, deflated)
    bomb = zlib.compressobj(9, zlib.DEFLATED, -15)
    squeezed = bomb.compress(bytes(100 << 20)) + bomb.flush()
    names = {"slash": b"../outside.xml", "backslash": b"..\\outside.xml", "root": b"/etc/outside.xml",
             "middle": b"Doc_0\\..\\..\\outside.xml", "drive": b"C:\\outside.xml", "disk": b"c:/outside.xml"}
    broken = {
        "bomb-deflate": (archive({**plain(), "Doc_0/Bomb.xml": bytes(8 << 20)}, deflated), "refused", "异常巨大"),
        "bomb-nested": (with_entry("Doc_0/Inner.zip", archive({f"{i}": inner for i in range(60)})), "painted", ""),
        "bomb-sum": (zipped([(b"%d" % i, b"", {"size": 60 << 20, "packed": 60 << 20}) for i in range(10)]),
                     "refused", "解压后过大"),
        "bomb-lies": (lying("OFD.xml", data=squeezed, method=8), "refused", "损坏"),
        "entries-many": (zipped([(b"%d" % i, b"", {}) for i in range(50001)]), "refused", "文件过多"),
        "entries-lie": (archive(plain())[:-12] + b"\xff\xff" + archive(plain())[-10:], "refused", "不完整"),
        "entries-twice": (zipped([(b"OFD.xml", b"<first/>", {})]
                                 + [(n.encode(), c.encode(), {}) for n, c in plain().items()]), "painted", ""),
        "crc": (lying("OFD.xml", crc=1), "refused", "损坏"),
        "method": (lying("OFD.xml", method=99), "refused", "损坏"),
        "encrypted": (encrypted(archive(plain())), "refused", "加密"),
        "empty": (b"", "refused", "ZIP"), "text": (b"not an archive\n" * 9, "refused", "ZIP"),
        "start-only": (b"PK\3\4", "refused", "不完整"),
        "no-entry-point": (archive({"x.xml": "<x/>"}), "refused", "OFD.xml"),
        "folders-only": (archive({"OFD.xml/": "", "Doc_0/": ""}), "refused", "OFD.xml"),
        "no-document": (archive({k: v for k, v in plain().items() if "Document" not in k}), "refused", "入口"),
    }
    for kind, name in names.items():
        broken[f"escape-{kind}"] = zipped([(name, b"<x/>", {})]), "refused", "包外"
    for kind, place in {"up": "../../x.xml", "back": "..\\..\\x.xml", "drive": "C:\\x.xml",
                        "percent": "%2e%2e/%2e%2e/x.xml"}.items():
        entries = plain()
        entries["Doc_0/Document.xml"] = entries["Doc_0/Document.xml"].replace("PublicRes.xml", place)
        broken[f"location-{kind}"] = archive(entries), "refused", "包外"
    return broken


def markup():
    laughs = '<!DOCTYPE x [<!ENTITY a "ha">' + "".join(
        f'<!ENTITY {chr(98 + i)} "{f"&{chr(97 + i)};" * 10}">' for i in range(9)) + "]><x>&j;</x>"
    outside = '<!DOCTYPE x [<!ENTITY a SYSTEM "file:///etc/passwd">]><x>&a;</x>'
    start = '<?xml version="1.0"?><Res>'
    many = "<a" + "".join(f' a{i}=""' for i in range(100000)) + "/></Res>"
    lists = {"laughs": laughs, "outside": outside, "depth": start + "<a>" * 100000,
             "wide": start + "<a/>" * 5000000 + "</Res>",
             "attributes": start + "".join(
                 "<a" + "".join(f' a{i}=""' for i in range(500)) + "/>" for _ in range(5000)) + "</Res>",
             "one-element": start + many,
             "quoted": start.replace("<Res>", '<Res x=">">') + "<!-- ' -->" + '<a x=">"' + many[2:],
             "utf-16": (start + "<!--∀--><a b='㸀'" + many[2:]).encode("utf-16"),
             "utf-7": b'<?xml version="1.0" encoding="UTF-7"?>+' + base64.b64encode(
                 ("<Res>" + many).encode("utf-16-be")).rstrip(b"=") + b"-",
             "ebcdic": b'<?xml version="1.0" encoding="IBM037"?>' + ("<Res>" + many).encode("cp037"),
             "attributes-short": start + ("<a" + "".join(f' a{i}=""' for i in range(100)) + "/>") * 30000,
             "bytes": bytes(range(256)) * 40,
             "no-end": start, "nothing": "", "wrong-encoding": '<?xml version="1.0" encoding="x-none"?><Res/>'}
    made = {f"xml-{name}": (with_entry("Doc_0/PublicRes.xml", data), "refused", "PublicRes")
            for name, data in lists.items()}
    made["xml-text"] = with_entry("Doc_0/PublicRes.xml", start + "x" * (16 << 20) + "</Res>"), "painted", ""
    many = "<ofd:PublicRes>PublicRes.xml</ofd:PublicRes>" * 20000
    fonts = "<ofd:Fonts>" + '<ofd:Font ID="1" FontName="x"/>' * 2000 + "</ofd:Fonts>"
    made["resources-again"] = with_page("", fonts, common=many), "painted", "缺少字体：x"
    outline = "<ofd:Outlines>" + '<ofd:OutlineElem Title="x"/>' * 100000 + "</ofd:Outlines>"
    made["outline"] = with_page("", rest=outline), "painted", ""
    return made


def pages():
    def boxed(box):
        return archive(package("敌意", [page("")], "", box=box))

    def numbered(count):
        entries = plain()
        item = '<ofd:Page ID="1" BaseLoc="Pages/Page_0/Content.xml"/>'
        entries["Doc_0/Document.xml"] = entries["Doc_0/Document.xml"].replace(item, item * count)
        return archive(entries)
    made = {f"box-{i}": (boxed(box), "refused" if "e" in box or "-" in box else "", "")
            for i, box in enumerate(("0 0 1e6 1e6", "0 0 -5 -5", "0 0 nan nan", "0 0 inf 9", "0 0 1e400 9",
                                     "0 0 9999 9999", "0 0 0.0001 9999", "9 9", ""))}
    made.update({"pages-none": (numbered(0), "refused", "没有页面"),
                 "pages-many": (numbered(20001), "", ""),
                 "pages-same": (numbered(20000), "painted", "")})
    loop = page("", '<ofd:Template TemplateID="41"/>')
    made["template-loop"] = archive(package(
        "敌意", [loop], "", common='<ofd:TemplatePage ID="41" BaseLoc="Pages/Page_0/Content.xml"/>')), "", ""
    twice = {f"Doc_0/T{i}.xml": page("", f'<ofd:Template TemplateID="{i + 1}"/>' * 9) for i in range(9)}
    made["template-tree"] = archive(package("敌意", [page("", '<ofd:Template TemplateID="0"/>')], "", twice,
        common="".join(f'<ofd:TemplatePage ID="{i}" BaseLoc="T{i}.xml"/>' for i in range(9)))), "", ""
    layers = plain()
    layers["Doc_0/Pages/Page_0/Content.xml"] = xml("Page", "<ofd:Content>" + "<ofd:Layer/>" * 100000
                                                   + "</ofd:Content>")
    made["layers"] = archive(layers), "", ""
    notes = xml("PageAnnot", ('<ofd:Annot Type="Stamp"><ofd:Appearance Boundary="0 0 9 9">'
                              + path("0 0 9 9", SQUARE) + "</ofd:Appearance></ofd:Annot>") * 20000)
    made["annotations"] = archive(plain(others={
        "Doc_0/A.xml": xml("Annotations", '<ofd:Page PageID="1"><ofd:FileLoc>B.xml</ofd:FileLoc></ofd:Page>'),
        "Doc_0/B.xml": notes}, rest="<ofd:Annotations>A.xml</ofd:Annotations>")), "", ""
    return made


def unit(number, inside):
    return (f'<ofd:CompositeGraphicUnits><ofd:CompositeGraphicUnit ID="{number}" Width="9" Height="9">'
            f"<ofd:Content>{inside}</ofd:Content></ofd:CompositeGraphicUnit></ofd:CompositeGraphicUnits>")


def use(number):
    return f'<ofd:CompositeObject ID="1" ResourceID="{number}" Boundary="0 0 9 9"/>'


def contents():
    """Contents of a page by name, with resources."""
    dice = random.Random(SEED)

    def course(count, wide=210, high=297):
        return "M 0 0" + "".join(f" L {dice.random() * wide:.1f} {dice.random() * high:.1f}"
                                 for _ in range(count))
    area = ('<ofd:Area><ofd:Path Boundary="0 0 40 40"><ofd:AbbreviatedData>' + SQUARE
            + "</ofd:AbbreviatedData></ofd:Path></ofd:Area>")
    clips = "<ofd:Clips>" + f"<ofd:Clip>{area}</ofd:Clip>" * 100000 + "</ofd:Clips>"
    areas = f"<ofd:Clips><ofd:Clip>{area * 20000}</ofd:Clip></ofd:Clips>"
    segments = "".join(f'<ofd:Segment Position="{i / 50000}"><ofd:Color Value="{i % 256} 0 0"/></ofd:Segment>'
                       for i in range(50000))
    axial = ('<ofd:FillColor><ofd:AxialShd StartPoint="{}" EndPoint="{}" MapType="Repeat" MapUnit="{}" Extend="3">{}'
             "</ofd:AxialShd></ofd:FillColor>")
    two = segments[:200].split("</ofd:Segment>")[0] + "</ofd:Segment>"
    cell = path("0 0 1 1", SQUARE, ' Fill="true"')
    pattern = ('<ofd:FillColor><ofd:Pattern Width="{0}" Height="{0}" XStep="{0}" YStep="{0}"><ofd:CellContent>'
               + cell + "</ofd:CellContent></ofd:Pattern></ofd:FillColor>")
    filled = ' Fill="true" Stroke="false"'
    long = "M 0 0 L 9999999 9999999"
    glyphs = "<ofd:CGTransform><ofd:Glyphs>4294967295 1e7 -1 65536</ofd:Glyphs></ofd:CGTransform>"
    return {
        "points": path("0 0 210 297", course(1000000)),
        "points-filled": path("0 0 210 297", course(200000), filled),
        "scribbles": "".join(path(f"{i % 200} {i % 290} 20 20", course(9, 20, 20)) for i in range(20000)),
        "dashes-tiny": path("0 0 9 9", "M 0 0 L 9 9", ' DashPattern="1e-9 1e-9"'),
        "dashes-long": path("0 0 9 9", long, ' DashPattern="0.01 0.01"'),
        "dashes-many": path("0 0 9 9", "M 0 0 L 9 9", f' DashPattern="{"1 " * 100000}"'),
        "dashes-offset": path("0 0 90 9", "M 0 0 L 90 9", ' DashPattern="1 1" DashOffset="9999999"'),
        "line-wide": path("0 0 9 9", "M 0 0 L 9 9 L 0 9", ' LineWidth="9999999" MiterLimit="9999999"'),
        "arcs": path("0 0 9 9", "M 0 0" + " A 1e-300 9999999 9e6 1 1 9 9 A 9e6 1e-9 1 0 0 1 1" * 9999),
        "commands": path("0 0 9 9", "C L B 1 2 M M A A 1 Q nan inf L - L 1e C C C S 1 1"),
        "clips": path("0 0 40 40", SQUARE, filled, clips),
        "clip-areas": path("0 0 40 40", SQUARE, filled, areas),
        "blocks": "<ofd:PageBlock>" * 100 + "</ofd:PageBlock>" * 100,
        "composite-loop": (use(31), unit(31, use(32)) + unit(32, use(31))),
        "composite-tree": (use(31), "".join(unit(31 + i, use(32 + i) * 10) for i in range(10)) + unit(41, cell)),
        "composite-chain": (use(0), "".join(unit(i, use(i + 1)) for i in range(20000))),
        "parameters-loop": (cell, '<ofd:DrawParams><ofd:DrawParam ID="1" Relative="2"/><ofd:DrawParam ID="2"'
                                  ' Relative="1"/></ofd:DrawParams>'),
        "parameters-chain": (cell, "<ofd:DrawParams>" + "".join(
            f'<ofd:DrawParam ID="{i}" Relative="{i + 1}"/>' for i in range(50000)) + "</ofd:DrawParams>"),
        "palette": (path("0 0 9 9", SQUARE, filled, '<ofd:FillColor Index="999999999" ColorSpace="9"/>'),
                    '<ofd:ColorSpaces><ofd:ColorSpace ID="9" Type="RGB"><ofd:Palette>'
                    + "<ofd:CV>1 2 3</ofd:CV>" * 200000 + "</ofd:Palette></ofd:ColorSpace></ofd:ColorSpaces>"),
        "shade-segments": path("0 0 40 40", SQUARE, filled, axial.format("0 0", "40 0", 5, segments)),
        "shade-repeated": path("0 0 40 40", SQUARE, filled, axial.format("0 0", "1e-9 0", "1e-9", two * 2)),
        "shade-point": path("0 0 40 40", SQUARE, filled, axial.format("7 7", "7 7", 0, two)),
        "pattern-tiny": path("0 0 210 297", "M 0 0 L 210 0 L 210 297 C", filled, pattern.format("1e-6")),
        "pattern-nothing": path("0 0 40 40", SQUARE, filled, pattern.format("0")),
        "pattern-huge": path("0 0 40 40", SQUARE, filled, pattern.format("9999999")),
        "font-size": text("0 0 9 9", 1, 100000, code("大")),
        "font-negative": text("0 0 9 9", 1, -5, code("大")),
        "font-nan": text("0 0 9 9", 1, "nan", code("大")),
        "deltas": text("0 0 99 9", 1, 5, code("很多字" * 9, 0, 5, f' DeltaX="{"g 2000000000 1 " * 9999}"')),
        "deltas-count": text("0 0 99 9", 1, 5, code("很多字", 0, 5, ' DeltaX="g -5 1 g 1e99 2 g g g"')),
        "characters": text("0 0 210 297", 1, 3, code("字" * 1000000, 0, 5, ' DeltaX="g 999999 0.0001"')),
        "glyphs": text("0 0 99 9", 1, 5, glyphs + code("四个字符", 0, 5)),
        "texts": "".join(text("0 0 99 9", 1, 5, code("字", i % 200, i % 290)) for i in range(50000)),
        "fonts": ("".join(text("0 0 99 9", i, 5, code("字", i % 200, i % 290)) for i in range(20000)),
                  "<ofd:Fonts>" + "".join(f'<ofd:Font ID="{i}" FontName="name{i}"/>' for i in range(20000))
                  + "</ofd:Fonts>"),
        "numbers": "".join(path(f"0 0 {n} {n}", f"M {n} 0 L 9 {n} B {n} {n} 0 {n} {n} 9", f' CTM="{n} 0 0 {n} {n} 0"')
                           for n in ("9999999", "-9999999", "1e-300", "nan", "0", "-inf", "x")),
        "number-huge": path("0 0 1e308 1e308", SQUARE),
        "alpha": path("0 0 9 9", SQUARE, ' Alpha="1e6"') + path("0 0 9 9", SQUARE, ' Alpha="-1"'),
    }


def pictures():
    made = {f"giant-{name.replace(' ', '-')}": (with_image(data), "painted", f"（{name}")
            for name, data in giants().items()}
    whole = {"png": picture(), "tiff": makers.tiff(), "jbig2": makers.jbig2(),
             "jp2": codestream(40, 30), "jpeg": b"\xff\xd8\xff\xe0" + bytes(range(256))}
    dice = random.Random(SEED)
    for name, data in whole.items():
        made[f"cut-{name}"] = with_image(data[:len(data) * 2 // 3]), "painted", ""
        spoilt = bytearray(data)
        for _ in range(9):
            spoilt[dice.randrange(8, len(data))] = dice.randrange(256)
        made[f"spoilt-{name}"] = with_image(bytes(spoilt)), "painted", ""
    for name, data in {
            "grey": png(10000, 10000, bytes(10001 * 10000)), "png-empty": png(9999, 9999),
            "jp2": codestream(5000, 5000), "jp2-tiles": codestream(9000, 9000, tile=9),
            "jp2-blocks": codestream(5000, 5000, block=0), "jp2-components": codestream(99, 99, 16384),
            "jp2-precincts": codestream(5000, 5000, precincts=bytes(6)),
            "jbig2": makers.jbig2(width=10000, height=10000),
            "jpeg-scans": scans(8000, 2000), "jpeg-progressive": scans(4000, 9),
            "jbig2-endless": makers.jbig2(width=10000, height=0xFFFFFFFF)}.items():
        made[f"large-{name}"] = with_image(data), "painted", LEFT_OUT.get(name, "")
    made["image-stretched"] = with_image(picture(), "-9999999 0 9999999 9999999", "9999999 9e6 -9e6 9e6 0 0"), "", ""
    made["image-is-xml"] = with_image(b"<svg/>"), "painted", "图像"
    font = bytearray(makers.font())
    made["font-cut"] = with_font(bytes(font[:200])), "painted", "Shapes"
    made["font-is-image"] = with_font(picture()), "painted", "Shapes"
    for i in range(6):
        spoilt = bytearray(font)
        for _ in range(12):
            spoilt[dice.randrange(12, len(font))] = dice.randrange(256)
        made[f"font-spoilt-{i}"] = with_font(bytes(spoilt)), "painted", ""
    return made


def damaged():
    """Good documents that end early, or in which bits are wrong: in the archive or in its entries."""
    dice = random.Random(SEED)
    made = {}
    good = samples()["template"]
    for i in range(20):
        made[f"truncated-{i}"] = good[:len(good) * i // 20], "refused", ""
    rich = [template_sample(), path_sample(), text_sample()]
    for i in range(60):
        entries = dict(rich[i % 3])
        if i % 4 == 0:
            data = bytearray(archive(entries))
            for _ in range(1 + i // 8):
                data[dice.randrange(len(data))] ^= 1 << dice.randrange(8)
            made[f"flipped-{i}"] = bytes(data), "", ""
            continue
        for _ in range(1 + i // 8):
            name = dice.choice(list(entries))
            content = entries[name]
            data = bytearray(content if isinstance(content, bytes) else content.encode())
            data[dice.randrange(len(data))] = dice.choice(b"0123456789-.<>\"/ \xff" + bytes([dice.randrange(256)]))
            entries[name] = bytes(data)
        made[f"changed-{i}"] = archive(entries), "", ""
    return made


def main():
    folder = pathlib.Path(sys.argv[1])
    folder.mkdir(parents=True, exist_ok=True)
    made = {**archives(), **markup(), **pages(), **pictures(), **damaged()}
    for name, content in contents().items():
        content, res = content if isinstance(content, tuple) else (content, "")
        made[name] = with_page(content, res), "", LEFT_OUT.get(name, "")
    (folder / "folder.ofd").mkdir(exist_ok=True)
    lines = ["folder\trefused\t文件夹\t1"]
    for name, (data, end, part) in made.items():
        (folder / f"{name}.ofd").write_bytes(data)
        lines.append(f"{name}\t{end}\t{part}\t{HEAVY.get(name, 1)}")
    (folder / "expected.tsv").write_text("\n".join(lines) + "\n", encoding="utf-8")


if __name__ == "__main__":
    main()
