"""A whirl of three arms. A third of a turn brings each arm to the next one's place, but the colours differ, so
the round is one whole turn."""
import math

from stage import AMBER, AMBER_DARK, CHESTNUT_DARK, CREAM, TAU, TEAL_DARK, TEAL_MID, Stage

SIZE, FRAMES, DELAY = (54, 54), 20, 5
ARMS = ((AMBER, AMBER_DARK), (TEAL_MID, TEAL_DARK), ("#e4572e", CHESTNUT_DARK))


def arm(a0):
    """The two flanks of an arm that leaves the centre, swells and ends in a point."""
    left, right = [], []
    for i in range(41):
        k = i / 40
        r = 3.4 + 21.5 * k
        a = a0 + 3.9 * k ** 0.8
        w = 0.3 + 5.2 * math.sin(math.pi * min(1, 0.10 + 0.90 * k)) ** 0.9
        x, y = 27 + math.cos(a) * r, 27 + math.sin(a) * r
        nx, ny = math.cos(a - 0.55), math.sin(a - 0.55)
        left.append((x + nx * w / 2, y + ny * w / 2))
        right.append((x - nx * w / 2, y - ny * w / 2))
    return left, right


def draw(s: Stage, t):
    for i, (fill, edge) in enumerate(ARMS):
        left, right = arm(TAU * (i / 3 + t))
        s.polygon(left + right[::-1], fill, edge, 1.6)
        shine = [((a[0] * 3 + b[0]) / 4, (a[1] * 3 + b[1]) / 4) for a, b in zip(left, right)][10:30]
        s.polygon(shine, None, CREAM, 0.9, close=False)
    s.circle(27, 27, 4.6 + 0.5 * math.sin(TAU * 2 * t), CREAM, TEAL_DARK, 1.6)
