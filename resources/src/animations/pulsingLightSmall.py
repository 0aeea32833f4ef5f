"""A lamp that swells and fades: the rays lengthen with the light, and a ring runs outwards at its height."""
import math

from stage import AMBER, AMBER_PALE, TAU, WHITE, Stage, mix

SIZE, FRAMES, DELAY = (54, 54), 20, 6


def draw(s: Stage, t):
    glow = 0.5 - 0.5 * math.cos(TAU * t)
    c = 27
    for i in range(12):
        a = i * TAU / 12
        long = i % 2 == 0
        reach = 12.5 + (12.2 if long else 8.2) * glow
        start = 11.5 + 3.4 * glow
        if reach - start > 0.8:
            s.stroke([(c + math.cos(a) * start, c + math.sin(a) * start), (c + math.cos(a) * reach, c + math.sin(a) * reach)],
                     mix(AMBER, "#ffe9a8", glow), 1.5 + 1.1 * glow, mix("#6b3a0a", "#9a5508", glow), 1.0)
    r = 8.6 + 2.6 * glow
    s.circle(c, c, r, mix("#c9741a", AMBER, glow), mix("#6b3a0a", "#9a5508", glow), 1.7)
    s.circle(c, c, r * 0.74, mix("#dd8e22", AMBER_PALE, glow))
    s.circle(c, c, r * 0.46, mix("#f0a83a", "#fff6d8", glow))
    s.ellipse(c - r * 0.36, c - r * 0.42, r * 0.2, r * 0.14, mix("#f7cf8a", WHITE, glow))
