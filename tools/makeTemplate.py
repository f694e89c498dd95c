#!/usr/bin/env python3
"""Makes _files/BOM_template.dotx, into which the report of a BOM list is put when it is exported as a document.

    tools/makeTemplate.py [OUT]

A sheet of A4 with a heading line, and at its foot the date and "page of pages" as fields. The same call always writes
the same bytes. Whoever wants another look edits the file with a word processor, or puts another one in its place.
"""
import sys
import zipfile
from pathlib import Path

OUT = Path(__file__).resolve().parent.parent / "_files" / "BOM_template.dotx"
WORD = "http://schemas.openxmlformats.org/wordprocessingml/2006/main"
PACKAGE = "http://schemas.openxmlformats.org/package/2006"
OFFICE = "http://schemas.openxmlformats.org/officeDocument/2006/relationships"
TYPE = "application/vnd.openxmlformats-officedocument.wordprocessingml."

WIDTH, HEIGHT, MARGIN, EDGE = 11906, 16838, 850, 425  # A4 in twentieths of a point
INNER = WIDTH - 2 * MARGIN


def xml(root, namespaces, content):
    return f'<?xml version="1.0" encoding="UTF-8" standalone="yes"?>\n<{root} {namespaces}>{content}</{root}>'


def word(root, content):
    return xml(f"w:{root}", f'xmlns:w="{WORD}" xmlns:r="{OFFICE}"', content)


def run(text):
    return f'<w:r><w:t xml:space="preserve">{text}</w:t></w:r>'


def field(code):
    return (f'<w:fldSimple w:instr=" {code} "><w:r><w:t>1</w:t></w:r></w:fldSimple>')


def line(style, border, left, right):
    return (f'<w:p><w:pPr><w:pStyle w:val="{style}"/><w:pBdr><w:{border} w:val="single" w:sz="6" w:space="4"'
            f' w:color="37475A"/></w:pBdr><w:tabs><w:tab w:val="right" w:pos="{INNER}"/></w:tabs></w:pPr>'
            f'{left}<w:r><w:tab/></w:r>{right}</w:p>')


def style(kind, name, caption, properties, default=""):
    return (f'<w:style w:type="{kind}" w:styleId="{name}"{default}><w:name w:val="{caption}"/>'
            f'{properties}</w:style>')


FONT = '<w:rFonts w:ascii="Liberation Sans" w:hAnsi="Liberation Sans" w:cs="Liberation Sans"/>'

PARTS = {
    "[Content_Types].xml": xml(
        "Types", f'xmlns="{PACKAGE}/content-types"',
        '<Default Extension="rels" ContentType="application/vnd.openxmlformats-package.relationships+xml"/>'
        f'<Override PartName="/word/document.xml" ContentType="{TYPE}template.main+xml"/>'
        f'<Override PartName="/word/styles.xml" ContentType="{TYPE}styles+xml"/>'
        f'<Override PartName="/word/header1.xml" ContentType="{TYPE}header+xml"/>'
        f'<Override PartName="/word/footer1.xml" ContentType="{TYPE}footer+xml"/>'),
    "_rels/.rels": xml(
        "Relationships", f'xmlns="{PACKAGE}/relationships"',
        f'<Relationship Id="rId1" Type="{OFFICE}/officeDocument" Target="word/document.xml"/>'),
    "word/_rels/document.xml.rels": xml(
        "Relationships", f'xmlns="{PACKAGE}/relationships"',
        f'<Relationship Id="rId1" Type="{OFFICE}/styles" Target="styles.xml"/>'
        f'<Relationship Id="rId2" Type="{OFFICE}/header" Target="header1.xml"/>'
        f'<Relationship Id="rId3" Type="{OFFICE}/footer" Target="footer1.xml"/>'),
    # The report goes to its end.
    "word/document.xml": word(
        "document",
        '<w:body><w:p/><w:sectPr><w:headerReference w:type="default" r:id="rId2"/>'
        f'<w:footerReference w:type="default" r:id="rId3"/><w:pgSz w:w="{WIDTH}" w:h="{HEIGHT}"/>'
        f'<w:pgMar w:top="{2 * MARGIN}" w:right="{MARGIN}" w:bottom="{3 * MARGIN // 2}" w:left="{MARGIN}"'
        f' w:header="{MARGIN}" w:footer="{EDGE}" w:gutter="0"/></w:sectPr></w:body>'),
    "word/styles.xml": word(
        "styles",
        f'<w:docDefaults><w:rPrDefault><w:rPr>{FONT}<w:sz w:val="18"/></w:rPr></w:rPrDefault></w:docDefaults>'
        + style("paragraph", "Normal", "Normal", "", ' w:default="1"')
        + style("paragraph", "Header", "header", '<w:basedOn w:val="Normal"/><w:rPr><w:b/><w:sz w:val="20"/></w:rPr>')
        + style("paragraph", "Footer", "footer", '<w:basedOn w:val="Normal"/><w:rPr><w:sz w:val="16"/></w:rPr>')),
    "word/header1.xml": word("hdr", line("Header", "bottom", run("Wykaz materiałów"), run("Bill of materials"))),
    "word/footer1.xml": word("ftr", line("Footer", "top", field('DATE \\@ &quot;dd.MM.yyyy&quot;'),
                                         field("PAGE") + run(" / ") + field("NUMPAGES"))),
}


def main():
    path = Path(sys.argv[1]) if len(sys.argv) > 1 else OUT
    with zipfile.ZipFile(path, "w", zipfile.ZIP_DEFLATED) as package:
        for name, content in PARTS.items():
            entry = zipfile.ZipInfo(name, (2026, 1, 1, 0, 0, 0))
            entry.compress_type = zipfile.ZIP_DEFLATED
            package.writestr(entry, content.encode("utf-8"))


if __name__ == "__main__":
    main()
