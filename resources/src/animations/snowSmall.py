"""Small flakes in three depths: the near ones are larger and fall faster."""
import math

from stage import TAU, WHITE, Stage, mix, scatter

SIZE, FRAMES, DELAY = (54, 54), 24, 7


def draw(s: Stage, t):
    for i in range(19):
        depth = i % 3
        falls = 1 if depth < 2 else 2
        r = (1.45, 1.95, 2.7)[depth]
        x = 2 + 50 * scatter(i, 0.37)
        y = (i * 0.414 + 0.11 + falls * t) % 1 * 60 - 3
        x += (1.2, 1.8, 2.6)[depth] * math.sin(TAU * (t * (1 + depth // 2) + scatter(i, 2)))
        s.circle(x, y, r, WHITE, mix("#8fb3c9", "#4f86a8", depth / 2), 1.1)
