#!/usr/bin/python3
"""The instructor, a kestrel with round spectacles: instructor.py down|middle|up > picture.svg

The head is a ball whose markings lie at fixed places on it. The three pictures differ only in how far the
ball is tilted, so that it stays one and the same face, and in the eyelids."""
import math
import sys

from art import (AMBER, AMBER_DARK, AMBER_PALE, CHESTNUT, CHESTNUT_DARK, CREAM, CREAM_DARK, INK, SLATE, SLATE_DARK,
                 TEAL, TEAL_DARK, TEAL_MID, svg)

POSES = {  # tilt of the head in degrees, height of the head, how far the lids are closed, gaze
    "down": (-25, 112, 0.30, -5),
    "middle": (2, 103, 0.0, 0),
    "up": (33, 93, -0.1, 7),
}
pose = sys.argv[1]
TILT, CY, LID, GAZE = POSES[pose]
CX, R, WIDE = 144, 78, 1.08
YAW = -9  # it looks a little towards the keyboard


def turn(p):
    x, y, z = p
    a, b = math.radians(TILT), math.radians(YAW)
    y, z = y * math.cos(a) + z * math.sin(a), z * math.cos(a) - y * math.sin(a)
    x, z = x * math.cos(b) + z * math.sin(b), z * math.cos(b) - x * math.sin(b)
    return x, y, z


def at(lon, lat, height=1.0):
    lo, la = math.radians(lon), math.radians(lat)
    return (math.sin(lo) * math.cos(la) * height, math.sin(la) * height, math.cos(lo) * math.cos(la) * height)


def flat(p, on_ball=True):
    x, y, z = turn(p)
    if on_ball and z < 0:  # behind the rim: to the rim
        length = math.hypot(x, y) or 1
        x, y = x / length, y / length
    return CX + x * R * WIDE, CY - y * R


def closed(points):
    return "M" + " L".join(f"{x:.2f},{y:.2f}" for x, y in points) + " Z"


def ring(lon, lat, radius, height=1.0, start=0, stop=360, squash=1.0):
    """Points of a circle around a place on the ball."""
    lo, la = math.radians(lon), math.radians(lat)
    centre = at(lon, lat)
    east = (math.cos(lo), 0, -math.sin(lo))
    north = (-math.sin(lo) * math.sin(la), math.cos(la), -math.cos(lo) * math.sin(la))
    out = []
    for degrees in range(start, stop + 1, 5):
        t, r = math.radians(degrees), math.radians(radius)
        e, n = math.sin(r) * math.cos(t), math.sin(r) * math.sin(t) * squash
        out.append(tuple((centre[i] * math.cos(r) + east[i] * e + north[i] * n) * height for i in range(3)))
    return out


def patch(points, fill, extra=""):
    return f'<path d="{closed([flat(p) for p in points])}" fill="{fill}" {extra}/>'


def line(points, colour, width, on_ball=True):
    d = "M" + " L".join(f"{x:.2f},{y:.2f}" for x, y in (flat(p, on_ball) for p in points))
    return f'<path d="{d}" fill="none" stroke="{colour}" stroke-width="{width}" stroke-linecap="round" stroke-linejoin="round"/>'


def visible(p):
    return turn(p)[2] > 0.05


body = []
# The shoulders, the spotted breast and the bow tie stay where they are.
body.append(f'<path d="M40,232 C40,190 72,168 110,162 H178 C216,168 248,190 248,232 Z" fill="{CHESTNUT}" stroke="{INK}" stroke-width="5" stroke-linejoin="round"/>')
for x, y in ((62, 212), (80, 196), (74, 226), (226, 212), (208, 196), (214, 226)):
    body.append(f'<path d="M{x - 5},{y - 3} Q{x},{y + 9} {x + 5},{y - 3} Z" fill="{CHESTNUT_DARK}"/>')
body.append(f'<path d="M94,232 C92,200 104,172 120,164 H168 C184,172 196,200 194,232 Z" fill="{CREAM}"/>')
for x, y in ((112, 214), (176, 214), (128, 226), (160, 226)):
    body.append(f'<path d="M{x - 4},{y - 4} Q{x},{y + 9} {x + 4},{y - 4} Z" fill="{CHESTNUT}"/>')

# It sits below the chin; the bowed head hangs over it.
tie = (f'<path d="M144,184 C128,170 112,168 106,174 V204 C112,210 128,208 144,194 C160,208 176,210 182,204 V174 C176,168 160,170 144,184 Z" fill="{TEAL}" stroke="{INK}" stroke-width="4.5" stroke-linejoin="round"/>'
       f'<rect x="135" y="179" width="18" height="20" rx="6" fill="{TEAL_MID}" stroke="{INK}" stroke-width="4.5"/>')
body.append(f'<g transform="translate(0,{22 if pose == "down" else 8})">{tie}</g>')

# Head.
head = f'<ellipse cx="{CX}" cy="{CY}" rx="{R * WIDE:.2f}" ry="{R}" fill="{SLATE}"/>'
body.append(f'<ellipse cx="{CX}" cy="{CY + 7}" rx="{R * WIDE - 6:.2f}" ry="{R}" fill="{INK}" opacity="0.28" clip-path="url(#shoulders)"/>')
body.append(head)
face = []
for side in (-1, 1):
    face.append(patch(ring(side * 31, -27, 33), CREAM))
face.append(patch(ring(0, -66, 44), CREAM))
face.append(patch(ring(0, 2, 15), SLATE))
for side in (-1, 1):
    face.append(patch(ring(side * 52, -22, 9, squash=0.75), AMBER_PALE, 'opacity="0.75"'))
for lon, low, high in ((-14, 50, 62), (14, 50, 62), (0, 44, 58), (-34, 48, 58), (34, 48, 58), (0, 72, 82), (-50, 36, 45), (50, 36, 45),
                       (-60, 62, 72), (60, 62, 72), (-22, 30, 36), (22, 30, 36)):
    if visible(at(lon, low)):
        face.append(line([at(lon, low), at(lon, (low + high) / 2), at(lon, high)], SLATE_DARK, 5))
# the dark stripe below each eye is what makes a falcon of it
for side in (-1, 1):
    face.append(patch([at(side * 23, -8), at(side * 39, -8), at(side * 41, -30), at(side * 36, -52), at(side * 32, -54), at(side * 30, -40)],
                      SLATE_DARK, f'stroke="{SLATE_DARK}" stroke-width="4" stroke-linejoin="round"'))
body.append(f'<g clip-path="url(#ball)">{"".join(face)}'
            f'<ellipse cx="{CX}" cy="{CY - 10}" rx="{R * WIDE * 1.12:.2f}" ry="{R * 1.12:.2f}" fill="none" stroke="{INK}" stroke-opacity="0.14" stroke-width="26"/></g>')
body.append(f'<ellipse cx="{CX}" cy="{CY}" rx="{R * WIDE:.2f}" ry="{R}" fill="none" stroke="{INK}" stroke-width="5"/>')

# Crest: three feathers at the crown that show which way it tilts.
crest = []
for lon, reach in ((-26, 1.15), (26, 1.15), (0, 1.24)):
    root = [at(lon - 15, 74, 0.97), at(lon + 15, 74, 0.97)]
    tip = at(lon, 92, reach)
    (x0, y0), (x1, y1), (x2, y2) = flat(root[0], False), flat(tip, False), flat(root[1], False)
    crest.append(f'<path d="M{x0:.2f},{y0:.2f} Q{x1 - 9:.2f},{(y0 + y1) / 2:.2f} {x1:.2f},{y1:.2f} Q{x1 + 9:.2f},{(y2 + y1) / 2:.2f} {x2:.2f},{y2:.2f}" '
                 f'fill="{SLATE_DARK}" stroke="{INK}" stroke-width="4" stroke-linejoin="round" stroke-linecap="round"/>')
if pose != "up":
    body += crest
else:
    body.insert(body.index(head), "".join(crest))

# Eyes.
EYE, EYE_LAT = 26, 9
for side in (-1, 1):
    lon = side * EYE
    body.append(patch(ring(lon, EYE_LAT, 19.5), "#ffffff"))
    pupil = ring(lon - 1 + side * -2, EYE_LAT + GAZE, 13)
    body.append(f'<g clip-path="url(#eye{side + 1})">{patch(pupil, INK)}')
    px = sum(flat(p)[0] for p in pupil) / len(pupil)
    py = sum(flat(p)[1] for p in pupil) / len(pupil)
    body.append(f'<circle cx="{px + 6:.2f}" cy="{py - 6:.2f}" r="5.6" fill="#fff"/><circle cx="{px - 5:.2f}" cy="{py + 6:.2f}" r="2.6" fill="#fff" opacity="0.85"/>')
    if LID > 0:
        rim = [flat(p) for p in ring(lon, EYE_LAT, 22)]
        top, bottom = min(y for _, y in rim), max(y for _, y in rim)
        edge = top + (bottom - top) * LID
        left, right = min(x for x, _ in rim), max(x for x, _ in rim)
        body.append(f'<path d="M{left - 4:.2f},{top - 6:.2f} H{right + 4:.2f} V{edge + 6:.2f} Q{(left + right) / 2:.2f},{edge - 12:.2f} {left - 4:.2f},{edge + 6:.2f} Z" '
                    f'fill="{SLATE}" stroke="{INK}" stroke-width="4"/>')
    body.append("</g>")
clips = "".join(f'<clipPath id="eye{side + 1}"><path d="{closed([flat(p) for p in ring(side * EYE, EYE_LAT, 19.5)])}"/></clipPath>' for side in (-1, 1))

# Spectacles stand a little off the face.
OFF = 1.05
for side in (-1, 1):
    body.append(line(ring(side * EYE, EYE_LAT, 21.5, OFF), TEAL_DARK, 7))
    body.append(line(ring(side * EYE, EYE_LAT, 21.5, OFF), TEAL_MID, 3))
    hinge = [p for p in ring(side * EYE, EYE_LAT, 21.5, OFF, 0 if side > 0 else 180, 5 if side > 0 else 185)][:1][0]
    body.append(line([hinge, at(side * 62, EYE_LAT + 1, 1.03), at(side * 80, EYE_LAT + 2, 1.01)], TEAL_DARK, 6))
body.append(line([at(-6, EYE_LAT + 4, OFF), at(-3, EYE_LAT + 8, 1.07), at(3, EYE_LAT + 8, 1.07), at(6, EYE_LAT + 4, OFF)], TEAL_DARK, 6))

# Beak: a short hooked cone from between the spectacles.
base_l, base_r = flat(at(-15, -15, 1.0)), flat(at(15, -15, 1.0))
top = flat(at(0, -2, 1.06), False)
ridge = flat(at(0, -14, 1.36), False)
tip = flat(at(0, -34, 1.34), False)
chin = flat(at(0, -30, 1.03), False)
low_l, low_r = flat(at(-10, -27, 1.02)), flat(at(10, -27, 1.02))
mouth_tip = flat(at(0, -33, 1.2), False)
body.append(f'<path d="M{low_l[0]:.2f},{low_l[1]:.2f} Q{mouth_tip[0] - 4:.2f},{mouth_tip[1] + 9:.2f} {mouth_tip[0]:.2f},{mouth_tip[1] + 7:.2f} Q{mouth_tip[0] + 4:.2f},{mouth_tip[1] + 9:.2f} {low_r[0]:.2f},{low_r[1]:.2f} Z" '
            f'fill="{AMBER_DARK}" stroke="{INK}" stroke-width="4.5" stroke-linejoin="round"/>')
body.append(f'<path d="M{base_l[0]:.2f},{base_l[1]:.2f} Q{base_l[0] + 3:.2f},{top[1]:.2f} {top[0]:.2f},{top[1]:.2f} Q{base_r[0] - 3:.2f},{top[1]:.2f} {base_r[0]:.2f},{base_r[1]:.2f} '
            f'Q{(base_r[0] + tip[0]) / 2 + 8:.2f},{(base_r[1] + tip[1]) / 2 + 3:.2f} {tip[0]:.2f},{tip[1]:.2f} Q{(base_l[0] + tip[0]) / 2 - 8:.2f},{(base_l[1] + tip[1]) / 2 + 3:.2f} {base_l[0]:.2f},{base_l[1]:.2f} Z" '
            f'fill="{AMBER}" stroke="{INK}" stroke-width="4.5" stroke-linejoin="round"/>')
body.append(f'<path d="M{top[0]:.2f},{top[1] + 6:.2f} Q{ridge[0] - 1:.2f},{ridge[1]:.2f} {(tip[0] * 3 + ridge[0]) / 4:.2f},{(tip[1] * 3 + ridge[1]) / 4:.2f}" fill="none" stroke="{AMBER_PALE}" stroke-width="5" stroke-linecap="round"/>')

defs = (f'<clipPath id="ball"><ellipse cx="{CX}" cy="{CY}" rx="{R * WIDE:.2f}" ry="{R}"/></clipPath>{clips}'
        '<clipPath id="shoulders"><path d="M40,232 C40,190 72,168 110,162 H178 C216,168 248,190 248,232 Z"/></clipPath>')
sys.stdout.write(svg(288, 230, "".join(body), defs))
