"""What the drawn pictures share: the colours, the lettering and the kestrel's feathers.

Everything returns SVG text; coordinates are those of the picture that uses it."""
import math

TEAL_DARK = "#0b3a42"
TEAL = "#12606b"
TEAL_MID = "#1f8a8f"
TEAL_PALE = "#a6d8d4"
AMBER = "#f4a62a"
AMBER_PALE = "#ffcf6b"
AMBER_DARK = "#c97a12"
CHESTNUT = "#b3582c"
CHESTNUT_DARK = "#7c3718"
CREAM = "#fff4dc"
CREAM_DARK = "#ecd3a4"
SLATE = "#5d7f8e"
SLATE_DARK = "#3c5a68"
INK = "#14262b"

# Letters of one even stroke with round ends: cap height 150, x-height 96, baseline 0.
LETTERS = {
    "A": (112, "M0,0 L56,-150 L112,0 M21,-48 H91"),
    "B": (92, "M0,0 V-150 H42 C88,-150 88,-80 42,-80 H0 M42,-80 C106,-80 106,0 42,0 H0"),
    "C": (104, "M104,-120 C92,-141 76,-150 58,-150 C22,-150 0,-118 0,-75 C0,-32 22,0 58,0 C76,0 92,-9 104,-30"),
    "E": (80, "M80,-150 H0 V0 H80 M0,-77 H68"),
    "K": (88, "M0,0 V-150 M84,-150 L0,-62 M26,-90 L88,0"),
    "T": (104, "M0,-150 H104 M52,-150 V0"),
    "e": (96, "M2,-48 H96 A48,48 0 1 0 84,-16"),
    "g": (92, "M92,-96 V4 C92,34 74,48 46,48 C28,48 14,43 4,33 M92,-48 A46,48 0 1 1 0,-48 A46,48 0 1 1 92,-48"),
    "h": (78, "M0,0 V-150 M0,-52 C0,-82 18,-96 42,-96 C66,-96 78,-80 78,-56 V0"),
    "i": (0, "M0,0 V-96 M0,-140 v0.01"),
    "l": (0, "M0,-150 V0"),
    "n": (78, "M0,0 V-96 M0,-52 C0,-82 18,-96 42,-96 C66,-96 78,-80 78,-56 V0"),
    "p": (92, "M0,46 V-96 M0,-48 A46,48 0 1 1 92,-48 A46,48 0 1 1 0,-48"),
    "r": (50, "M0,0 V-96 M0,-46 C2,-80 22,-97 50,-95"),
    "s": (74, "M70,-80 C62,-92 50,-96 38,-96 C16,-96 4,-86 4,-73 C4,-40 74,-58 74,-25 C74,-9 58,0 38,0 C22,0 8,-6 0,-19"),
    "t": (56, "M22,-138 V-32 C22,-8 34,0 50,0 H56 M-4,-96 H54"),
    "x": (72, "M0,-96 L72,0 M72,-96 L0,0"),
    "y": (80, "M0,-96 L40,-4 M80,-96 L37,12 C27,38 14,48 -6,46"),
    "-": (40, "M0,-52 H40"),
}


def text_width(text, gap=48):
    return sum(LETTERS[c][0] + gap for c in text) - gap


def lettering(text, x, y, size, colour, weight=27, gap=48, extra=""):
    """A line of text; size is the cap height in the picture's own units."""
    scale = size / 150
    paths, advance = [], 0
    for c in text:
        width, path = LETTERS[c]
        paths.append(f'<path transform="translate({advance},0)" d="{path}"/>')
        advance += width + gap
    return (f'<g transform="translate({x:.2f},{y:.2f}) scale({scale:.4f})" fill="none" stroke="{colour}" '
            f'stroke-width="{weight}" stroke-linecap="round" stroke-linejoin="round" {extra}>{"".join(paths)}</g>')


def keycap(x, y, size, top, side, rim, letter="", ink=INK, depth=None):
    """A key seen a little from above: its skirt, its top and a letter."""
    depth = size * 0.17 if depth is None else depth
    r = size * 0.19
    inset = size * 0.09
    face = size - 2 * inset
    out = [
        f'<rect x="{x}" y="{y}" width="{size}" height="{size + depth}" rx="{r}" fill="{side}"/>',
        f'<rect x="{x + inset:.2f}" y="{y + inset * 0.5:.2f}" width="{face:.2f}" height="{face * 1.02:.2f}" '
        f'rx="{r * 0.8:.2f}" fill="{top}" stroke="{rim}" stroke-width="{size * 0.025:.2f}"/>',
    ]
    if letter:
        cap = size * 0.4
        width = text_width(letter) * cap / 150
        out.append(lettering(letter, x + (size - width) / 2, y + inset * 0.5 + (face + cap) / 2, cap, ink, weight=30))
    return "".join(out)


def feather(x, y, angle, length, width, fill, extra=""):
    """A rounded feather from its root outwards; 0 degrees points right, 90 down."""
    w = width / 2
    path = (f"M0,{-w * 0.5:.2f} C{length * 0.4:.2f},{-w * 1.15:.2f} {length * 0.86:.2f},{-w * 1.1:.2f} {length:.2f},0 "
            f"C{length * 0.9:.2f},{w * 1.05:.2f} {length * 0.4:.2f},{w * 1.1:.2f} 0,{w * 0.5:.2f} Z")
    return f'<path transform="translate({x:.2f},{y:.2f}) rotate({angle:.2f})" d="{path}" fill="{fill}" {extra}/>'


def polar(x, y, angle, length):
    a = math.radians(angle)
    return x + math.cos(a) * length, y + math.sin(a) * length


def svg(width, height, body, defs=""):
    return (f'<svg xmlns="http://www.w3.org/2000/svg" viewBox="0 0 {width} {height}" width="{width}" height="{height}">'
            f"<defs>{defs}</defs>{body}</svg>\n")
