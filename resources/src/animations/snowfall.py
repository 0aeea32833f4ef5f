"""Large crystals that turn as they fall; each falls the height of the picture a whole number of times."""
import math

from stage import TAU, WHITE, Stage, scatter

SIZE, FRAMES, DELAY = (54, 54), 24, 7
EDGE = "#5b8fb0"
# place across, starting height, size, falls in a round, direction of turn
FLAKES = ((13, 0.05, 9.0, 1, 1), (39, 0.42, 10.5, 1, -1), (23, 0.62, 6.2, 1, 1), (47, 0.86, 5.6, 1, -1), (7, 0.55, 4.6, 1, 1), (31, 0.10, 4.8, 1, -1))


def crystal(s, x, y, r, angle):
    lines = []
    for i in range(6):
        a = angle + i * TAU / 6
        ux, uy = math.cos(a), math.sin(a)
        lines.append([(x, y), (x + ux * r, y + uy * r)])
        if r > 5:
            for side in (-1, 1):
                b = a + side * 0.95
                fx, fy = x + ux * r * 0.55, y + uy * r * 0.55
                lines.append([(fx, fy), (fx + math.cos(b) * r * 0.36, fy + math.sin(b) * r * 0.36)])
    width = 1.25 if r > 5 else 1.15
    for line in lines:
        s.polygon(line, None, EDGE, width + 1.9, close=False)
    for line in lines:
        s.polygon(line, None, WHITE, width, close=False)


def draw(s: Stage, t):
    for i, (x, start, r, falls, way) in enumerate(FLAKES):
        span = 54 + 2 * r + 4
        y = (start + t * falls) % 1 * span - r - 2
        sway = 3.5 * math.sin(TAU * (t + scatter(i, 1)))
        crystal(s, x + sway, y, r, way * TAU * t / 6 * (1 if r > 5 else 2))
