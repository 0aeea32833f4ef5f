"""A sheep that bounces: pressed flat on landing, stretched on the way up."""
import math

from stage import INK, TAU, WHITE, Stage

SIZE, FRAMES, DELAY = (34, 54), 14, 6
WOOL, WOOL_EDGE, FACE = "#fff8ea", "#8a7a66", "#3d3540"


def draw(s: Stage, t):
    air = 4 * t * (1 - t)  # a thrown body: up and down again in one round
    ground = max(0.0, 1 - air / 0.30)
    press = 0.17 * ground * ground
    stretch = 0.09 * math.sin(math.pi * min(1, max(0, (air - 0.1) / 0.7)))
    y = 52 - 18 * air
    lean = 9 * math.cos(math.pi * t) * (1 - ground)
    with s.at(16.6, y, -lean, 0.93 * (1 + press - stretch), 0.93 * (1 - press + stretch)):
        tuck = 5.0 * air
        for x, back in ((-6.5, 1), (-2.5, 0.4), (3, -0.4), (7, -1)):
            s.polygon([(x, -9), (x - back * tuck * 0.8, -0.8 - tuck * 0.35)], None, INK, 3.6, close=False)
            s.polygon([(x, -9), (x - back * tuck * 0.8, -1.2 - tuck * 0.35)], None, FACE, 2.0, close=False)
        s.circle(-12.8, -17.5, 2.6, WOOL, WOOL_EDGE, 1.4)  # tail
        lumps = [(math.cos(a) * 8.6, -15.5 + math.sin(a) * 6.0) for a in (i * TAU / 9 + 0.2 for i in range(9))]
        for x, dy in lumps:
            s.circle(x, dy, 4.7, WOOL_EDGE)
        for x, dy in lumps:
            s.circle(x, dy, 3.5, WOOL)
        s.ellipse(0, -15.5, 9, 6.6, WOOL)
        s.path("M -5 -17 Q -3 -14.5 -0.5 -17 M -1 -12.5 Q 1.5 -10.5 3.5 -13", None, "#d8c8ae", 1.1)
        nod = -2.2 * air + 2 * ground
        with s.at(8.5, -20.5 + nod, 6 * ground):
            s.path("M -4.5 -2 Q -9 -3 -9.4 1 Q -6.5 2.5 -4 0.6 Z", FACE, INK, 1.1)  # ear
            s.path("M -4.6 -3 C -4 -6.5 4 -6.5 5 -3 C 6 1.5 5.4 5.4 3 6.6 C 0.6 7.4 -3 6 -4.4 1.6 Z", FACE, INK, 1.2)
            for x, dy in ((-3, -5.4), (0.4, -6.6), (3.4, -5)):
                s.circle(x, dy, 2.5, WOOL, WOOL_EDGE, 1.1)
            s.circle(0.2, -5, 2.2, WOOL)
            s.circle(1.7, -0.6, 1.7, WHITE)
            s.circle(2.2, -0.5 - 0.5 * air, 0.95, INK)
