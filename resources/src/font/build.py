#!/usr/bin/python3
"""Builds the symbol font: build.py OUTPUT.ttf

One drawing serves every direction (a mirrored or turned hand is the same hand), and the two halves of the
shuffle picture are cut from one drawing so that they meet exactly."""
import math
import os
import re
import sys
import tempfile

os.environ["SOURCE_DATE_EPOCH"] = "1700000000"
import fontforge  # noqa: E402  (reads the variable above when it is loaded)
import psMat  # noqa: E402

HERE = os.path.dirname(os.path.abspath(__file__))
ASCENT, DESCENT = 800, 200
BEARING = 45
MIDDLE = 330  # height of the optical centre of a turned glyph above the baseline

font = fontforge.font()
font.encoding = "UnicodeFull"
font.em = ASCENT + DESCENT
font.ascent, font.descent = ASCENT, DESCENT
font.familyname = "Kestrix Symbols"
font.fullname = "Kestrix Symbols"
font.fontname = "KestrixSymbols"
font.weight = "Regular"
font.version = "1.0"
font.copyright = "Drawn for Kestrix-Typing: English, same licence as the program"
font.appendSFNTName("English (US)", "UniqueID", "Kestrix Symbols 1.0")
font.hhea_ascent_add = font.hhea_descent_add = 0
font.os2_typoascent_add = font.os2_typodescent_add = 0
font.os2_winascent_add = font.os2_windescent_add = 0
font.hhea_ascent, font.hhea_descent, font.hhea_linegap = ASCENT, -DESCENT, 0
font.os2_typoascent, font.os2_typodescent, font.os2_typolinegap = ASCENT, -DESCENT, 0
# Nothing may be cut off, and the line must be no taller than the em.
font.os2_winascent, font.os2_windescent = ASCENT, DESCENT


def width_of(svg):
    with open(os.path.join(HERE, svg), encoding="utf-8") as source:
        return float(re.search(r'viewBox="0 0 ([\d.]+) 1000"', source.read()).group(1))


def outline(svg, element, part):
    """The clean outline of one element's fill or stroke."""
    scratch = font.createChar(-1, "scratch")
    scratch.clear()
    hidden = 'stroke="none"' if part == "fill" else 'fill="none"'
    element = re.sub(r"\b%s=\"[^\"]*\"" % ("stroke" if part == "fill" else "fill"), hidden, element)
    with tempfile.NamedTemporaryFile("w", suffix=".svg") as single:
        single.write(re.search(r"<svg[^>]*>", svg).group(0) + element + "</svg>")
        single.flush()
        scratch.importOutlines(single.name)
    scratch.correctDirection()
    scratch.removeOverlap()
    return scratch.foreground.dup()


def drawn(code, name, file):
    """Fill and stroke of every path are joined one by one: an import of both at once leaves holes where
    they overlap."""
    with open(os.path.join(HERE, file), encoding="utf-8") as source:
        svg = source.read()
    inherited = ""
    ink, cuts = fontforge.layer(), fontforge.layer()
    for element in re.findall(r"<g\b[^>]*>|</g>|<path\b[^>]*/>", svg):
        if element.startswith("<g"):
            inherited = element[2:-1]
            continue
        if element == "</g>":
            inherited = ""
            continue
        element = element.replace("<path", "<path" + inherited)
        target = cuts if 'class="cut"' in element else ink
        for part in ("fill", "stroke"):
            value = re.search(r"\b%s=\"([^\"]*)\"" % part, element)
            if value and value.group(1) != "none":
                for contour in outline(svg, element, part):
                    target += contour
    glyph = font.createChar(code, name)
    glyph.foreground = ink
    glyph.removeOverlap()
    if len(cuts):
        cutter = font.createChar(-1, "scratch")
        cutter.foreground = cuts
        cutter.removeOverlap()
        # exclude() takes its own layer out of the one it is given.
        layer = cutter.foreground
        layer.exclude(glyph.foreground)
        glyph.foreground = layer
    return glyph


def finished(glyph, snug=True):
    glyph.removeOverlap()
    glyph.simplify(1.5)
    glyph.round()
    glyph.correctDirection()
    if snug:
        left, _, right, _ = glyph.boundingBox()
        glyph.transform(psMat.translate(BEARING - left, 0))
        glyph.width = round(right - left + 2 * BEARING)
    return glyph


def turned(code, name, svg, quarter_turns=0, mirror=False):
    """A drawing that points right or left, turned counter-clockwise about its own centre."""
    glyph = drawn(code, name, svg)
    left, bottom, right, top = glyph.boundingBox()
    move = psMat.translate(-(left + right) / 2, -(bottom + top) / 2)
    if mirror:
        move = psMat.compose(move, psMat.scale(-1, 1))
    move = psMat.compose(move, psMat.rotate(quarter_turns * math.pi / 2))
    glyph.transform(psMat.compose(move, psMat.translate(0, MIDDLE)))
    return finished(glyph)


def half(code, name, svg, right_half):
    """One half of a drawing; it reaches a little over the cut, so that no seam shows between the two."""
    glyph = drawn(code, name, svg)
    left, bottom, right, top = glyph.boundingBox()
    centre = width_of(svg) / 2
    lap = 25
    x0, x1 = (centre - lap, right + 50) if right_half else (left - 50, centre + lap)
    pen = glyph.glyphPen(replace=False)
    pen.moveTo((x0, bottom - 50))
    pen.lineTo((x0, top + 50))
    pen.lineTo((x1, top + 50))
    pen.lineTo((x1, bottom - 50))
    pen.closePath()
    pen = None
    glyph.intersect()
    finished(glyph, snug=False)
    if right_half:
        glyph.transform(psMat.translate(-centre, 0))
        glyph.width = round(right + BEARING - centre)
    else:
        glyph.transform(psMat.translate(BEARING - left, 0))
        glyph.width = round(centre + BEARING - left)
    return glyph


notdef = font.createChar(-1, ".notdef")
pen = notdef.glyphPen()
for box, clockwise in (((60, 0, 540, 700), True), ((130, 70, 470, 630), False)):
    x0, y0, x1, y1 = box
    corners = [(x0, y0), (x0, y1), (x1, y1), (x1, y0)]
    corners = corners if clockwise else corners[::-1]
    pen.moveTo(corners[0])
    for corner in corners[1:]:
        pen.lineTo(corner)
    pen.closePath()
pen = None
notdef.width = 600
font.createChar(0x20, "space").width = 300

turned(ord("Z"), "Z", "back.svg")
turned(ord("["), "bracketleft", "back.svg", mirror=True)
half(ord("s"), "s", "shuffle.svg", right_half=False)
half(ord("q"), "q", "shuffle.svg", right_half=True)
turned(0x221A, "radical", "check.svg")
turned(0x00FC, "udieresis", "check.svg")
turned(ord("E"), "E", "hand.svg", mirror=True)
turned(ord("F"), "F", "hand.svg")
turned(ord("G"), "G", "hand.svg", quarter_turns=1)
turned(ord("H"), "H", "hand.svg", quarter_turns=-1)
turned(0x2190, "arrowleft", "arrow.svg")
turned(0x2191, "arrowup", "arrow.svg", quarter_turns=-1)
turned(0x2192, "arrowright", "arrow.svg", quarter_turns=2)
turned(0x2193, "arrowdown", "arrow.svg", quarter_turns=1)

font.removeGlyph("scratch")
font.generate(sys.argv[1], flags=("opentype", "no-FFTM-table"))
