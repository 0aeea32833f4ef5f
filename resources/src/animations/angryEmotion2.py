"""A face that trembles with rage, steams from the ears and rattles like a machine gun."""
import math

from stage import INK, TAU, WHITE, Stage, mix

SIZE, FRAMES, DELAY = (96, 60), 18, 5
EDGE = "#6e1410"


def steam(s, x, y, side, k):
    for i in range(3):
        age = (k + i / 3) % 1
        r = 4.8 * math.sin(math.pi * min(1, age * 1.08)) ** 0.8
        if r > 0.9:
            s.circle(x + side * 15 * age, y - 9 * age, r, "#e8eef0", "#7d929b", 1.4)


def draw(s: Stage, t):
    beat = (t * 9) % 1  # nine shots in a round
    anger = 0.5 - 0.5 * math.cos(TAU * t)
    shake = (1.7 if beat < 0.5 else -1.7) * (0.5 + 0.5 * anger)
    x, y = 35 + shake, 32 + (0.9 if beat < 0.5 else -0.5)
    steam(s, x - 22, y - 8, -1, (t * 2) % 1)
    steam(s, x + 20, y - 14, 1, (t * 2 + 0.5) % 1)
    # tracers fly out of the mouth
    for i in range(3):
        k = (t * 14 / 3 + i / 3) % 1
        head = x + 24 + 52 * k
        s.stroke([(head - 9 + 4 * k, y + 11 - 1.5 * k), (head, y + 11 - 1.5 * k)], "#ffd75e", 3.2, "#b3530c", 1.0)
    s.circle(x, y, 24.5, mix("#ea5a2a", "#d92a1c", anger), EDGE, 2.4)
    s.path(f"M {x - 17} {y - 10} C {x - 12} {y - 20} {x - 2} {y - 22} {x + 6} {y - 20}", None, mix("#f7946a", "#f0705c", anger), 3.2)
    # eyes, half covered by the brows
    for ex in (-7, 11):
        s.ellipse(x + ex, y - 2, 5.6, 6.2, WHITE, EDGE, 1.3)
        s.circle(x + ex + 1.8, y - 0.6, 2.5, INK)
    drop = 1.6 * anger
    s.path(f"M {x - 16} {y - 13 + drop} L {x + 1} {y - 5.5 + drop} L {x + 1} {y - 10.5 + drop} L {x - 14} {y - 17 + drop} Z", "#3a0c0a", "#3a0c0a", 1.6)
    s.path(f"M {x + 20} {y - 13 + drop} L {x + 4.5} {y - 5.5 + drop} L {x + 4.5} {y - 10.5 + drop} L {x + 18} {y - 17 + drop} Z", "#3a0c0a", "#3a0c0a", 1.6)
    # the mouth bares its teeth and fires
    s.path(f"M {x - 9} {y + 9} Q {x + 6} {y + 5} {x + 19} {y + 7} Q {x + 20} {y + 12} {x + 17} {y + 15} Q {x + 4} {y + 17} {x - 8} {y + 15} Q {x - 11} {y + 12} {x - 9} {y + 9} Z", WHITE, "#3a0c0a", 1.8)
    for tx in (-3, 3, 9, 15):
        s.path(f"M {x + tx} {y + 7.6} L {x + tx} {y + 15}", None, "#3a0c0a", 1.1)
    s.path(f"M {x - 8} {y + 11.6} L {x + 18} {y + 11}", None, "#3a0c0a", 1.1)
    if beat < 0.5:
        points = []
        for i in range(14):
            a = i * TAU / 14 + 0.2
            r = 10.5 if i % 2 == 0 else 4.8
            points.append((x + 26 + math.cos(a) * r, y + 11 + math.sin(a) * r))
        s.polygon(points, "#ffd75e", "#c25410", 1.5)
        s.circle(x + 26, y + 11, 3.2, "#fffbe8")
