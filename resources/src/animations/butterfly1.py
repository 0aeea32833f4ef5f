"""A butterfly that flutters along a figure of eight; its wings beat three times on the way."""
import math

from stage import AMBER, AMBER_PALE, CREAM, INK, TAU, Stage

SIZE, FRAMES, DELAY = (96, 76), 18, 5
WING_EDGE = "#3a1c10"


def half(s, open_, side):
    with s.at(0, 0, 0, side * open_, 1):
        # hind wing, then fore wing
        s.path("M 1 2 C 8 -1 22 4 23 13 C 24 21 15 26 9 21 C 4 17 2 9 1 2 Z", "#e07b1c", WING_EDGE, 2.6)
        s.path("M 4 6 C 9 5 16 8 17 13 C 17 17 12 18 9 15 C 6 12 5 9 4 6 Z", AMBER)
        s.path("M 1 0 C 3 -14 16 -27 28 -25 C 35 -23 31 -6 22 1 C 15 6 6 5 1 0 Z", "#f08a1d", WING_EDGE, 2.8)
        s.path("M 4 -2 C 7 -11 15 -19 23 -19 C 26 -18 24 -7 18 -2 C 13 2 8 2 4 -2 Z", AMBER_PALE)
        s.path("M 3 -1 C 10 -5 17 -12 25 -20 M 4 1 C 11 -1 17 -3 23 -5", None, WING_EDGE, 1.3)
        for x, y, r in ((27.5, -20, 1.7), (28.3, -14.5, 1.4), (25.8, -8.5, 1.3), (20.5, 14.5, 1.4), (18, 19, 1.3)):
            s.circle(x, y, r, CREAM)


def draw(s: Stage, t):
    a = TAU * t
    x = 48 + 17 * math.sin(a)
    y = 40 - 9 * math.sin(2 * a)
    beat = math.cos(3 * a)
    open_ = 0.60 + 0.40 * beat
    lean = 16 * math.cos(a)
    with s.at(x, y + 2.6 * beat, lean, 0.98):
        for side in (-1, 1):
            half(s, max(0.24, open_), side)
        s.path("M -1 -9 C -4 -15 -7 -18 -9 -19 M 1 -9 C 4 -15 7 -18 9 -19", None, WING_EDGE, 1.4)
        s.circle(-9, -19, 1.4, WING_EDGE)
        s.circle(9, -19, 1.4, WING_EDGE)
        s.ellipse(0, 5, 2.7, 13, "#6b3a1c", INK, 1.2)
        s.circle(0, -8.5, 3.6, "#6b3a1c", INK, 1.2)
        s.ellipse(-0.8, 2, 0.8, 6, "#b07a4a")
