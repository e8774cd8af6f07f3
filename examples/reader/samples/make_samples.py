#!/usr/bin/env python3
# SPDX-FileCopyrightText: The MRToolBar authors
# SPDX-License-Identifier: MIT

"""Writes the sample documents next to this script; --check only tests if they are up to date.

The names of documents that the reader must refuse begin with "broken-", and those of documents with
a page that cannot be read begin with "damaged-".
"""

import argparse
import io
import pathlib
import struct
import sys
import zipfile
import zlib

FOLDER = pathlib.Path(__file__).resolve().parent
NAMESPACE = 'xmlns:ofd="http://www.ofdspec.org/2016"'
A4 = "0 0 210 297"


def xml(name, body, attributes=""):
    return (f'<?xml version="1.0" encoding="UTF-8"?>\n'
            f"<ofd:{name} {NAMESPACE}{attributes}>{body}</ofd:{name}>\n")


def entry_point(title):
    return xml("OFD", f"""
<ofd:DocBody><ofd:DocInfo>
<ofd:DocID>0123456789abcdef0123456789abcdef</ofd:DocID>
<ofd:Title>{title}</ofd:Title><ofd:Author>示例作者</ofd:Author>
<ofd:CreationDate>2024-05-06</ofd:CreationDate><ofd:Creator>make_samples.py</ofd:Creator>
<ofd:Keywords><ofd:Keyword>示例</ofd:Keyword><ofd:Keyword>版式</ofd:Keyword></ofd:Keywords>
</ofd:DocInfo><ofd:DocRoot>Doc_0/Document.xml</ofd:DocRoot></ofd:DocBody>""",
               ' Version="1.0" DocType="OFD"')


def document(pages, common="", rest="", box=A4):
    list_of_pages = "".join(f'<ofd:Page ID="{i + 1}" BaseLoc="Pages/Page_{i}/Content.xml"/>'
                            for i in range(pages))
    return xml("Document", f"""
<ofd:CommonData><ofd:MaxUnitID>900</ofd:MaxUnitID>
<ofd:PageArea><ofd:PhysicalBox>{box}</ofd:PhysicalBox></ofd:PageArea>
<ofd:PublicRes>PublicRes.xml</ofd:PublicRes>{common}</ofd:CommonData>
<ofd:Pages>{list_of_pages}</ofd:Pages>{rest}""")


def page(layer, before="", attributes=""):
    return xml("Page", f"{before}<ofd:Content><ofd:Layer ID=\"500\"{attributes}>{layer}</ofd:Layer>"
                       "</ofd:Content>")


def resources(body):
    return xml("Res", body, ' BaseLoc="Res"')


def package(title, pages, res="", others=None, **document_parts):
    """The entries of a package in their order."""
    entries = {
        "OFD.xml": entry_point(title),
        "Doc_0/Document.xml": document(len(pages), **document_parts),
        "Doc_0/PublicRes.xml": resources(res),
    }
    for i, content in enumerate(pages):
        entries[f"Doc_0/Pages/Page_{i}/Content.xml"] = content
    entries.update(others or {})
    return entries


def archive(entries, compression=zipfile.ZIP_STORED):
    """A ZIP archive, stored and with a fixed date, so that the bytes are always the same."""
    buffer = io.BytesIO()
    with zipfile.ZipFile(buffer, "w", compression) as file:
        for name, content in entries.items():
            information = zipfile.ZipInfo(name, (2024, 5, 6, 0, 0, 0))
            information.compress_type = compression
            file.writestr(information, content)
    return buffer.getvalue()


def text(boundary, font, size, code, attributes="", inside=""):
    return (f'<ofd:TextObject ID="600" Boundary="{boundary}" Font="{font}" Size="{size}"'
            f"{attributes}>{inside}{code}</ofd:TextObject>")


def code(characters, x=0, y=0, deltas=""):
    return f'<ofd:TextCode X="{x}" Y="{y}"{deltas}>{characters}</ofd:TextCode>'


def path(boundary, data, attributes="", inside=""):
    return (f'<ofd:PathObject ID="700" Boundary="{boundary}"{attributes}>{inside}'
            f"<ofd:AbbreviatedData>{data}</ofd:AbbreviatedData></ofd:PathObject>")


def fill(value, attributes=""):
    return f'<ofd:FillColor Value="{value}"{attributes}/>'


def stroke(value):
    return f'<ofd:StrokeColor Value="{value}"/>'


# A font whose three glyphs are an empty one, a square and a triangle, an em of 1000 units each.

def glyph(points):
    if not points:
        return b""
    xs, ys = [p[0] for p in points], [p[1] for p in points]
    data = struct.pack(">hhhhh", 1, min(xs), min(ys), max(xs), max(ys))
    data += struct.pack(">HH", len(points) - 1, 0) + bytes([1] * len(points))
    for values in (xs, ys):
        previous = 0
        for value in values:
            data += struct.pack(">h", value - previous)
            previous = value
    return data + b"\0" * (-len(data) % 4)


def character_map(codes):
    """A character map in format 4 with a segment for each character."""
    segments = sorted(codes.items()) + [(0xFFFF, 0)]
    count = len(segments)
    ends = b"".join(struct.pack(">H", c) for c, _ in segments)
    deltas = b"".join(struct.pack(">H", (g - c) % 65536) for c, g in segments[:-1])
    body = struct.pack(">HHHH", count * 2, 0, 0, 0) + ends + b"\0\0" + ends
    body += deltas + struct.pack(">H", 1) + b"\0\0" * count
    table = struct.pack(">HHH", 4, len(body) + 6, 0) + body
    return struct.pack(">HHHHI", 0, 1, 3, 1, 12) + table


def font():
    glyphs = [glyph([]), glyph([(100, 0), (100, 800), (900, 800), (900, 0)]),
              glyph([(100, 0), (500, 800), (900, 0)])]
    offsets = [sum(len(g) for g in glyphs[:i]) for i in range(len(glyphs) + 1)]
    head = struct.pack(">IIIIHHQQhhhhHHhhh", 0x10000, 0x10000, 0, 0x5F0F3CF5, 3, 1000, 0, 0,
                       0, -200, 1000, 1000, 0, 8, 2, 1, 0)
    hhea = struct.pack(">IhhhHhhhhhhhhhhhH", 0x10000, 900, -200, 0, 1000, 0, 0, 1000, 1, 0, 0,
                       0, 0, 0, 0, 0, 3)
    maxp = struct.pack(">IH13H", 0x10000, 3, 4, 1, 0, 0, 1, 0, 0, 0, 0, 0, 0, 0, 0)
    tables = {
        b"cmap": character_map({ord("A"): 1, ord("B"): 2}), b"glyf": b"".join(glyphs),
        b"head": head, b"hhea": hhea, b"hmtx": struct.pack(">Hh", 1000, 100) * 3,
        b"loca": b"".join(struct.pack(">I", o) for o in offsets), b"maxp": maxp,
    }
    directory, body = b"", b""
    start = 12 + 16 * len(tables)
    for tag, data in sorted(tables.items()):
        directory += struct.pack(">4sIII", tag, 0, start + len(body), len(data))
        body += data + b"\0" * (-len(data) % 4)
    return struct.pack(">IHHHH", 0x10000, len(tables), 64, 2, 48) + directory + body


def picture(width=40, height=30):
    """A PNG of sky, hill and sun, not compressed, so that every zlib writes the same bytes."""
    rows = b""
    for y in range(height):
        rows += b"\0"
        for x in range(width):
            sun = (x - 30) ** 2 + (y - 8) ** 2 < 20
            hill = y > 18 + 6 * ((x - 14) / 20) ** 2
            rows += bytes((250, 200, 40) if sun else (60, 140, 70) if hill else (150, 200, 240))

    def chunk(kind, data):
        checked = kind + data
        return struct.pack(">I", len(data)) + checked + struct.pack(">I", zlib.crc32(checked))
    stored = b"\x78\x01"
    parts = [rows[i:i + 65535] for i in range(0, len(rows), 65535)]
    for i, part in enumerate(parts):
        stored += struct.pack("<BHH", i == len(parts) - 1, len(part), len(part) ^ 0xFFFF) + part
    stored += struct.pack(">I", zlib.adler32(rows))
    header = struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0)
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", header) + chunk(b"IDAT", stored)
            + chunk(b"IEND", b""))


FONTS = """<ofd:Fonts>
<ofd:Font ID="1" FontName="黑体" FamilyName="黑体"/>
<ofd:Font ID="2" FontName="宋体" FamilyName="宋体"/>
<ofd:Font ID="3" FontName="Times New Roman" FamilyName="Times New Roman"/>
<ofd:Font ID="4" FontName="Shapes"><ofd:FontFile>shapes.ttf</ofd:FontFile></ofd:Font>
</ofd:Fonts>"""


def text_sample():
    glyphs = ('<ofd:CGTransform CodePosition="1" CodeCount="2" GlyphCount="2">'
              "<ofd:Glyphs>1 2</ofd:Glyphs></ofd:CGTransform>")
    first = page("".join([
        text("20 20 160 12", 1, 8, code("版式文档示例", 0, 8, ' DeltaX="g 5 9"'), ' Weight="700"'),
        text("20 40 170 6", 2, 4,
             code("页面由文字、图形和图像组成，它们各有", 0, 4, ' DeltaX="g 17 4"')),
        text("20 47 170 6", 2, 4, code("自己的坐标。", 0, 4, ' DeltaX="4 g 3 4 4"')),
        text("20 60 170 8", 3, 5, code("A line in a serif face, as wide as it likes.", 0, 5)),
        text("20 72 170 8", 3, 5, code("Slanted and blue", 0, 5), ' Italic="true"',
             fill("20 80 200")),
        text("150 90 40 80", 2, 6, code("竖排文字", 0, 6, ' DeltaY="g 3 8"')),
        text("20 90 100 40", 1, 6, code("斜向", 0, 6, ' DeltaX="8"'),
             ' CTM="0.866 -0.5 0.5 0.866 0 20"', fill("200 40 40")),
        text("20 140 100 14", 1, 12, code("空心字", 0, 11, ' DeltaX="g 2 14"'),
             ' Fill="false" Stroke="true" LineWidth="0.2"', stroke("0 110 60")),
        text("20 160 100 12", 4, 10, glyphs + code("ABAB", 0, 10, ' DeltaX="g 3 12"'), "",
             fill("90 60 160")),
        text("20 180 100 8", 2, 6, code("宽字", 0, 6, ' DeltaX="12"'), ' HScale="2"'),
        text("20 195 100 8", 2, 6, code("半透明", 0, 6, ' DeltaX="g 2 6"'), ' Alpha="90"'),
    ]))
    second = page(text("10 10 80 8", 2, 5, code("第二页是横放的小页", 0, 5, ' DeltaX="g 8 5"')),
                  "<ofd:Area><ofd:PhysicalBox>0 0 148 105</ofd:PhysicalBox></ofd:Area>")
    rest = """<ofd:Outlines><ofd:OutlineElem Title="第一章"><ofd:Actions><ofd:Action Event="CLICK">
<ofd:Goto><ofd:Dest Type="Fit" PageID="1"/></ofd:Goto></ofd:Action></ofd:Actions>
<ofd:OutlineElem Title="第一节"><ofd:Actions><ofd:Action Event="CLICK"><ofd:Goto>
<ofd:Dest Type="Fit" PageID="2"/></ofd:Goto></ofd:Action></ofd:Actions></ofd:OutlineElem>
</ofd:OutlineElem></ofd:Outlines>
<ofd:Bookmarks><ofd:Bookmark Name="小页"><ofd:Dest Type="Fit" PageID="2"/></ofd:Bookmark>
</ofd:Bookmarks>"""
    return package("文字示例", [first, second], FONTS, {"Doc_0/Res/shapes.ttf": font()}, rest=rest)


def path_sample():
    star = "M 20 2 L 31 36 L 2 15 L 38 15 L 9 36 C"
    clip = ("<ofd:Clips><ofd:Clip><ofd:Area><ofd:Path Boundary=\"0 0 40 40\">"
            "<ofd:AbbreviatedData>M 20 0 L 40 20 L 20 40 L 0 20 C</ofd:AbbreviatedData></ofd:Path>"
            "</ofd:Area></ofd:Clip></ofd:Clips>")
    axial = ('<ofd:FillColor><ofd:AxialShd StartPoint="0 0" EndPoint="40 0">'
             '<ofd:Segment Position="0"><ofd:Color Value="250 210 60"/></ofd:Segment>'
             '<ofd:Segment Position="1"><ofd:Color Value="200 40 90"/></ofd:Segment>'
             "</ofd:AxialShd></ofd:FillColor>")
    radial = ('<ofd:FillColor><ofd:RadialShd StartPoint="14 14" EndPoint="20 20" StartRadius="0"'
              ' EndRadius="20"><ofd:Segment><ofd:Color Value="255 255 255"/></ofd:Segment>'
              '<ofd:Segment><ofd:Color Value="40 90 180"/></ofd:Segment></ofd:RadialShd>'
              "</ofd:FillColor>")
    filled = ' Fill="true" Stroke="false"'
    square = "M 0 0 L 40 0 L 40 40 L 0 40 C"
    content = page("".join([
        path("20 20 40 40", star, ' Fill="true" LineWidth="0.5"', fill("250 210 60")),
        path("80 20 40 40", star, ' Fill="true" Rule="Even-Odd" LineWidth="0.5"',
             fill("250 210 60")),
        path("140 20 40 40", "S 0 20 Q 10 0 20 20 B 25 30 35 30 40 10", ' DrawParam="12"'),
        path("20 80 40 40", "M 0 20 A 20 20 0 1 1 20 40 L 20 20 C", filled, fill("60 140 70")),
        path("80 80 40 40", "M 5 20 A 18 9 30 0 0 35 20 A 18 9 30 0 0 5 20 C", ' LineWidth="1"'),
        path("140 80 40 40", square, filled, clip + fill("120 60 160")),
        path("20 140 40 40", square, filled, axial),
        path("80 140 40 40", "M 0 20 A 20 20 0 1 1 40 20 A 20 20 0 1 1 0 20 C", filled, radial),
        path("140 140 30 30", "M 0 0 L 30 0 L 30 30 L 0 30 C", filled, fill("220 40 40")),
        path("150 150 30 30", "M 0 0 L 30 0 L 30 30 L 0 30 C", filled + ' Alpha="128"',
             fill("40 80 220")),
        path("20 200 160 10", "M 0 5 L 160 5", ' LineWidth="1" DashPattern="6 2 1 2"'),
        path("20 215 160 10", "M 0 5 L 160 5", ' LineWidth="2" Cap="Round" DashPattern="0 5"'),
        path("20 232 40 30", "M 4 26 L 20 4 L 36 26", ' LineWidth="5" Join="Round" Cap="Round"'),
        path("80 232 40 30", "M 4 26 L 20 4 L 36 26", ' LineWidth="5" Join="Bevel" Cap="Butt"'),
        path("140 232 40 30", "M 4 26 L 20 4 L 36 26",
             ' LineWidth="5" MiterLimit="10" Cap="Square"'),
    ]))
    parameters = ("<ofd:DrawParams>"
                  f'<ofd:DrawParam ID="11" LineWidth="1.5" Cap="Round">{stroke("200 40 40")}'
                  "</ofd:DrawParam>"
                  '<ofd:DrawParam ID="12" Relative="11" LineWidth="3"/></ofd:DrawParams>')
    return package("图形示例", [content], parameters)


def image_sample():
    media = ('<ofd:MultiMedias><ofd:MultiMedia ID="21" Type="Image" Format="PNG">'
             "<ofd:MediaFile>picture.png</ofd:MediaFile></ofd:MultiMedia></ofd:MultiMedias>")

    def image(boundary, matrix, more=""):
        return (f'<ofd:ImageObject ID="800" ResourceID="21" Boundary="{boundary}"{matrix}{more}/>')
    content = page("".join([
        image("20 20 80 60", ' CTM="80 0 0 60 0 0"'),
        image("120 20 40 30", ""),
        image("120 60 49 49", ' CTM="28 28 -21 21 21 0"'),
        image("20 100 40 30", ' CTM="40 0 0 30 0 0"', ' Alpha="100"'),
    ]))
    return package("图像示例", [content], media, {"Doc_0/Res/picture.png": picture()})


def template_sample():
    back = page(path("0 0 210 20", "M 0 0 L 210 0 L 210 20 L 0 20 C",
                     ' Fill="true" Stroke="false"', fill("210 230 250")))
    front = page(text("150 4 60 12", 2, 6, code("模板在前", 0, 8, ' DeltaX="g 3 6"')))
    blocks = text("20 30 100 8", 2, 5, code("块中之块", 0, 5, ' DeltaX="g 3 5"'))
    for _ in range(4):
        blocks = f'<ofd:PageBlock ID="900">{blocks}</ofd:PageBlock>'
    use = ('<ofd:CompositeObject ID="901" ResourceID="31" Boundary="{0} 50 {1} {1}"'
           ' CTM="{2} 0 0 {2} 0 0"/>')
    first = page(blocks + use.format(20, 30, 1) + use.format(60, 60, 2),
                 '<ofd:Template TemplateID="41" ZOrder="Background"/>'
                 '<ofd:Template TemplateID="42" ZOrder="Foreground"/>')
    second = page(path("20 40 50 20", "M 0 0 L 50 0 L 50 20 L 0 20 C",
                       ' Fill="true" Stroke="false"', fill("0 200 0 0", ' ColorSpace="32"')),
                  '<ofd:Template TemplateID="41"/>')
    composite = ("<ofd:ColorSpaces><ofd:ColorSpace ID=\"32\" Type=\"CMYK\"/></ofd:ColorSpaces>"
                 '<ofd:CompositeGraphicUnits><ofd:CompositeGraphicUnit ID="31" Width="30"'
                 ' Height="30"><ofd:Content>'
                 + path("0 0 30 30", "M 15 0 L 30 30 L 0 30 C", ' Fill="true"', fill("250 210 60"))
                 + "</ofd:Content></ofd:CompositeGraphicUnit></ofd:CompositeGraphicUnits>")
    templates = ('<ofd:TemplatePage ID="41" BaseLoc="Tpls/Tpl_0/Content.xml"/>'
                 '<ofd:TemplatePage ID="42" BaseLoc="Tpls/Tpl_1/Content.xml"/>')
    note = xml("PageAnnot", '<ofd:Annot ID="51" Type="Watermark"><ofd:Appearance'
               ' Boundary="60 120 100 20">'
               + text("0 0 100 20", 2, 12, code("批注外观", 0, 12, ' DeltaX="g 3 12"'),
                      ' Alpha="100"', fill("200 0 0"))
               + "</ofd:Appearance></ofd:Annot>")
    others = {
        "Doc_0/Tpls/Tpl_0/Content.xml": back,
        "Doc_0/Tpls/Tpl_1/Content.xml": front,
        "Doc_0/Annots/Annotations.xml": xml(
            "Annotations", '<ofd:Page PageID="1"><ofd:FileLoc>Note.xml</ofd:FileLoc></ofd:Page>'),
        "Doc_0/Annots/Note.xml": note,
    }
    return package("模板示例", [first, second], FONTS + composite, {**others, "Doc_0/Res/shapes.ttf": font()}, common=templates,
                   rest="<ofd:Annotations>Annots/Annotations.xml</ofd:Annotations>")


def encrypted(data):
    """The archive with the flag for encrypted entries set."""
    data = bytearray(data)
    for signature, offset in ((b"PK\x03\x04", 6), (b"PK\x01\x02", 8)):
        at = data.find(signature)
        while at >= 0:
            data[at + offset] |= 1
            at = data.find(signature, at + 4)
    return bytes(data)


def broken_samples():
    plain = package("损坏的示例", [page("")])

    def with_page(content, res=""):
        return archive(package("损坏的示例", [page(content)], res))
    loop = ('<ofd:CompositeGraphicUnits><ofd:CompositeGraphicUnit ID="{0}" Width="9" Height="9">'
            '<ofd:Content><ofd:CompositeObject ID="1" ResourceID="{1}" Boundary="0 0 9 9"/>'
            "</ofd:Content></ofd:CompositeGraphicUnit></ofd:CompositeGraphicUnits>")
    template = page("", '<ofd:Template TemplateID="41"/>')
    deep = "<ofd:PageBlock>" * 100 + "</ofd:PageBlock>" * 100
    parameters = ('<ofd:DrawParams><ofd:DrawParam ID="11" Relative="12"/>'
                  '<ofd:DrawParam ID="12" Relative="11"/></ofd:DrawParams>')
    return {
        "broken-truncated": archive(plain)[:900],
        "broken-encrypted": encrypted(archive(plain)),
        "broken-bomb": archive({**plain, "Doc_0/Bomb.xml": b" " * (4 << 20)},
                               zipfile.ZIP_DEFLATED),
        "broken-escape": archive({**plain, "../outside.xml": "<x/>"}),
        "broken-location": archive({**plain, "Doc_0/Document.xml":
                                    plain["Doc_0/Document.xml"].replace("PublicRes.xml",
                                                                        "../../PublicRes.xml")}),
        "damaged-composite-loop": with_page(
            '<ofd:CompositeObject ID="70" Boundary="0 0 9 9" ResourceID="31"/>',
            loop.format(31, 32) + loop.format(32, 31)),
        "damaged-template-loop": archive(package(
            "损坏的示例", [template], "", {"Doc_0/Tpl.xml": template},
            common='<ofd:TemplatePage ID="41" BaseLoc="Tpl.xml"/>')),
        "broken-parameter-loop": with_page("", parameters),
        "damaged-depth": with_page(deep),
        "broken-page-size": archive(package("损坏的示例", [page("")], box="0 0 1e6 1e6")),
        "damaged-font-size": with_page(text("0 0 9 9", 1, 100000, code("大"))),
        "damaged-dashes": with_page(path("0 0 9 9", "M 0 0 L 9 9", ' DashPattern="1e-9 1e-9"')),
    }


def samples():
    good = {"text": text_sample(), "paths": path_sample(), "image": image_sample(),
            "template": template_sample()}
    return {**{name: archive(entries) for name, entries in good.items()}, **broken_samples()}


def agrees(have, want):
    """Whether two archives unpack to the same. Packed bytes differ between versions of zlib."""
    if have == want:
        return True
    try:
        with zipfile.ZipFile(io.BytesIO(have)) as a, zipfile.ZipFile(io.BytesIO(want)) as b:
            return a.namelist() == b.namelist() and all(a.read(n) == b.read(n)
                                                        for n in a.namelist())
    except (zipfile.BadZipFile, RuntimeError):
        return False


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--check", action="store_true", help="write nothing, report differences")
    check = parser.parse_args().check
    wanted = {FOLDER / f"{name}.ofd": data for name, data in samples().items()}
    stale = [file for file, data in wanted.items()
             if not file.exists() or not agrees(file.read_bytes(), data)]
    unknown = sorted(set(FOLDER.glob("*.ofd")) - set(wanted))
    if check:
        for file in stale + unknown:
            print(f"{file.name} does not agree with this script", file=sys.stderr)
        return 1 if stale or unknown else 0
    for file in stale:
        file.write_bytes(wanted[file])
        print(f"wrote {file.name}")
    return 0


if __name__ == "__main__":
    sys.exit(main())
