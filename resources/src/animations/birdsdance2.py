"""Three little birds that hop and sway to music, the middle one against the beat of the others."""
import math

from stage import AMBER, AMBER_DARK, AMBER_PALE, CREAM, INK, TAU, TEAL_DARK, TEAL_MID, TEAL_PALE, Stage

SIZE, FRAMES, DELAY = (96, 60), 16, 6
BIRDS = (  # place, body, edge, belly, phase
    (18.5, TEAL_MID, TEAL_DARK, TEAL_PALE, 0.0),
    (48, "#e4572e", "#7a2410", "#ffc9a8", 0.5),
    (77.5, AMBER, "#8a4a0c", CREAM, 0.0),
)


def bird(s, x, body, edge, belly, t):
    step = TAU * t  # one sway to the left and one to the right
    hop = abs(math.sin(step))
    press = max(0.0, math.cos(2 * step)) * 0.13  # squashed at each landing
    sway = 17 * math.sin(step)
    y = 54 - 13 * hop
    for side in (-1, 1):  # feet
        s.path(f"M {x + side * 4} {y - 3} L {x + side * 4.6} {y + 1} M {x + side * 4.6 - 2.4} {y + 1.6} L {x + side * 4.6 + 2.4} {y + 1.6}", None, "#8a4a0c", 2.2)
    with s.at(x, y - 2, sway, 0.86 * (1 + press), 0.93 * (1 - press)):
        flap = 30 + 55 * hop
        s.path("M -3 -7 L -6 2 L 0 1 L 6 2 L 3 -7 Z", body, edge, 1.6)  # tail
        for side in (-1, 1):
            with s.at(side * 9, -15, side * (70 - flap)):
                with s.at(0, 0, 0, side, 1):
                    s.path("M -2 -2 C 4 -6 10 -4 12 1 C 8 5 2 5 -2 3 Z", body, edge, 1.7)
        s.path("M -11 -12 C -12 -24 -7 -31 0 -31 C 7 -31 12 -24 11 -12 C 10 -3 6 0 0 0 C -6 0 -10 -3 -11 -12 Z", body, edge, 1.8)
        s.path("M -7 -10 C -7 -16 -4 -18 0 -18 C 4 -18 7 -16 7 -10 C 6 -4 4 -2 0 -2 C -4 -2 -6 -4 -7 -10 Z", belly)
        s.path("M -1 -31 C -3 -35 -1 -37 1 -37 M 0 -31 C 1 -35 4 -36 5 -35", None, edge, 1.9)  # crest
        for side in (-1, 1):
            if hop > 0.82:  # eyes shut for joy at the top
                s.path(f"M {side * 4.4 - 2.2} -23 Q {side * 4.4} -26 {side * 4.4 + 2.2} -23", None, INK, 1.6)
            else:
                s.circle(side * 4.4, -24, 2.9, "#ffffff")
                s.circle(side * 4.0, -23.8, 1.8, INK)
        s.path("M -3 -20.5 Q 0 -22.5 3 -20.5 L 0 -15.5 Z", AMBER_PALE if body != AMBER else "#e4572e", "#7a3a0c", 1.2)


def note(s, x, y, scale, colour, edge):
    with s.at(x, y, -10, scale):
        for ink, width in ((edge, 4.2), (colour, 1.9)):
            s.path("M 2.4 0 L 2.4 -9 Q 6 -8 6 -4.5", None, ink, width)
        s.ellipse(0, 0.4, 3, 2.4, colour, edge, 1.3)
        s.path("M 2.4 0 L 2.4 -9", None, colour, 1.9)


def draw(s: Stage, t):
    for i, x in enumerate((33, 63)):
        k = (t + i * 0.5) % 1
        size = min(1, 5 * k, 5 * (1 - k))
        if size > 0.3:
            note(s, x + 3 * math.sin(TAU * k), 22 - 12 * k, 0.85 * size, AMBER_PALE if i else TEAL_PALE, "#8a4a0c" if i else TEAL_DARK)
    for x, body, edge, belly, phase in BIRDS:
        bird(s, x, body, edge, belly, (t + phase * 0.5) % 1)
