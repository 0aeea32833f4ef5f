"""Drops that fall aslant and splash at the foot of the key."""
import math

from stage import Stage

SIZE, FRAMES, DELAY = (54, 54), 16, 5
DROP, SHINE, EDGE = "#4aa3df", "#d6f0ff", "#1b5c8f"
GROUND = 50
# where it lands, when it lands
DROPS = tuple((5.5 + 5.2 * (i * 4 % 9), (i * 0.37) % 1) for i in range(9))


def draw(s: Stage, t):
    for x, lands in DROPS:
        k = (t - lands) % 1
        fall = k / 0.72  # the rest of the round is the splash
        if fall < 1:
            y = -12 + (GROUND + 10) * fall ** 1.15
            dx = (1 - fall) * 9
            with s.at(x + dx, y, 8.5):
                s.path("M 0 -6 C 1 -2.5 2.2 -0.5 2.2 1.4 C 2.2 3 1.2 4 0 4 C -1.2 4 -2.2 3 -2.2 1.4 C -2.2 -0.5 -1 -2.5 0 -6 Z", DROP, EDGE, 1.2)
                s.path("M -0.7 0.2 Q -1 1.6 -0.2 2.4", None, SHINE, 0.9)
        else:
            a = (k - 0.72) / 0.28
            r = 1.6 + 4.6 * a
            s.ellipse(x, GROUND + 0.6, r, 0.6 + 1.1 * a, None, EDGE, 1.9 * (1 - a) + 0.7)
            s.ellipse(x, GROUND + 0.6, r, 0.6 + 1.1 * a, None, DROP, 1.0 * (1 - a) + 0.3)
            for side in (-1, -0.3, 0.8):
                h = 9 * math.sin(math.pi * min(1, a * 0.95 + 0.08)) * (1 - 0.3 * abs(side))
                s.circle(x + side * (2 + 5 * a), GROUND - h, 1.35 * (1 - a) + 0.5, DROP, EDGE, 0.9)
