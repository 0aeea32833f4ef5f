"""A flash, a ball of fire that swells and breaks up into smoke, and sparks that fly out of it."""
import math

from stage import AMBER, AMBER_PALE, TAU, Stage, ease, mix, scatter

SIZE, FRAMES, DELAY = (96, 90), 18, 5
CX, CY = 48, 45
FIRE = ("#fffbe8", "#ffe27a", "#fbb02f", "#ef6c1a", "#b93a14", "#6a4a44", "#4a4746")
EDGE = ("#f2b233", "#e08318", "#c25410", "#8e2b0c", "#5c1c10", "#3a2b2b", "#2c2a2b")


def ramp(colours, t):
    t = min(0.9999, max(0, t)) * (len(colours) - 1)
    return mix(colours[int(t)], colours[int(t) + 1], t % 1)


def puffs(t):
    """Place, size and age of every puff: the outer ones start later and leave first."""
    for i in range(16):
        ring = 0 if i < 4 else 1
        a = i * 2.399963 + (0.5 if ring else 0)
        birth = 0.0 if not ring else 0.05 + 0.06 * scatter(i, 1)
        age = (t - birth) / (0.84 + 0.18 * scatter(i, 2) - birth)
        if not 0 <= age < 1:
            continue
        far = (9 + 4 * scatter(i, 3)) if not ring else (22 + 8 * scatter(i, 4))
        out = far * (1 - (1 - age) ** 2.6)
        grow = 1 - (1 - min(1, age / 0.32)) ** 2
        shrink = 1 - ease((age - 0.48) / 0.56)
        r = (15 if not ring else 11.5 + 3 * scatter(i, 5)) * grow * shrink
        yield CX + math.cos(a) * out, CY + math.sin(a) * out * 0.92 - 9 * age * age, r, age


def draw(s: Stage, t):
    if t < 0.12:  # the flash: a star of two frames
        k = t / 0.12
        points = []
        for i in range(24):
            a = i * TAU / 24 + 0.13
            r = (14 + 27 * k) * (1.0 if i % 2 == 0 else 0.46) * (1 + 0.10 * math.cos(i * 2.1))
            points.append((CX + math.cos(a) * r, CY + math.sin(a) * r))
        s.polygon(points, "#ffe27a", "#e08318", 2)
        s.circle(CX, CY, 7 + 9 * k, "#fffbe8")
        if t < 0.05:
            return
    # sparks
    for i in range(14):
        a = i * TAU / 14 + 0.16 * math.sin(i * 7.3)
        age = (t - 0.06) / (0.58 + 0.3 * scatter(i, 6))
        if 0 < age < 1:
            head = 12 + (30 + 14 * scatter(i, 7)) * (1 - (1 - age) ** 2)
            tail = max(10, head - 11 * (1 - age))
            fall = 12 * age * age
            w = 2.6 * (1 - age) + 0.7
            s.stroke([(CX + math.cos(a) * tail, CY + math.sin(a) * tail * 0.9 + fall * 0.8),
                      (CX + math.cos(a) * head, CY + math.sin(a) * head * 0.9 + fall)], mix(AMBER_PALE, "#ef6c1a", age), w, "#a83c0c", 0.9)
    cloud = list(puffs(t))
    for x, y, r, age in cloud:
        if r > 0.8:
            s.circle(x, y, r + 1.7, ramp(EDGE, age * 1.05))
    for x, y, r, age in cloud:
        if r > 0.8:
            rim = mix(ramp(FIRE, age * 1.05), ramp(EDGE, age * 1.05), 0.15 + 0.4 * min(1, age * 3))
            s.circle(x, y, r, rim)  # its own rim sets each puff off from the one behind it
            s.circle(x - 0.5, y - 0.7, r - 1.3, ramp(FIRE, age * 1.05))
            if r > 2.4 and age < 0.9:  # the lit side, up and to the left
                s.circle(x - r * 0.2, y - r * 0.26, r * 0.55, ramp(FIRE, age * 1.05 - 0.12))
    for x, y, r, age in cloud:
        if r * 0.45 * (1 - age * 2) > 2.2:
            s.circle(x * 0.75 + CX * 0.25, y * 0.75 + CY * 0.25, r * 0.45 * (1 - age * 2), ramp(FIRE, age - 0.25))
