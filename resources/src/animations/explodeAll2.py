"""A flash, a ball of fire that rolls outwards and licks at its edge, smoke that eats into it, sparks.

Flames have no outline that a pen could draw. They are computed point by point: noise that travels outwards with
the ball bends its edge and its layers, and how hot a point is tells its color."""
import math
from functools import lru_cache, reduce

import cairo
import numpy as np

from stage import TAU, Stage, ease, mix, rgb, scatter

SIZE, FRAMES, DELAY = (96, 90), 27, 10  # played three times as fast: 0.9 s
CX, CY = 48, 46
HEAT = ((0.00, "#2f2a2b"), (0.10, "#4a2a20"), (0.20, "#8e2a10"), (0.34, "#d2480f"), (0.50, "#f58a1c"), (0.66, "#ffc63d"),
        (0.82, "#fff0a0"), (1.00, "#fffdf0"))
COOLING = (0, 0.10, 0.24, 0.48, 0.64, 0.80, 1), (-0.1, 0.12, 0.36, 0.47, 0.66, 1.0, 1.35)  # time, heat lost
SMOKE_DARK, SMOKE, SMOKE_PALE = "#2b2425", "#4d4342", "#7d7067"

TABLE = np.random.RandomState(5).permutation(256)
TABLE = np.concatenate([TABLE, TABLE])
SLOPES = np.random.RandomState(6).uniform(-1, 1, (256, 3))
SLOPES /= np.sqrt((SLOPES * SLOPES).sum(axis=1))[:, None]


def noise(x, y, z):
    """Smooth noise in space, about -1 to 1; z is one number."""
    xi, yi, zi = np.floor(x).astype(int), np.floor(y).astype(int), math.floor(z)
    x, y, z = x - xi, y - yi, z - zi
    u, v, w = (k * k * k * (k * (k * 6 - 15) + 10) for k in (x, y, z))

    def corner(i, j, k):
        g = SLOPES[TABLE[TABLE[TABLE[(zi + k) & 255] + ((yi + j) & 255)] + ((xi + i) & 255)]]
        return g[..., 0] * (x - i) + g[..., 1] * (y - j) + g[..., 2] * (z - k)

    def edge(j, k):
        a = corner(0, j, k)
        return a + u * (corner(1, j, k) - a)

    def side(k):
        a = edge(0, k)
        return a + v * (edge(1, k) - a)

    a = side(0)
    return 1.6 * (a + w * (side(1) - a))


def layers(x, y, z, count):
    return sum(noise(x * 2 ** i + 17 * i, y * 2 ** i - 9 * i, z * 1.4 ** i + 5 * i) * 0.52 ** i for i in range(count))


def colors(heat):
    at, shades = zip(*HEAT)
    shades = np.array([rgb(each) for each in shades])
    return np.stack([np.interp(heat, at, shades[:, i]) for i in range(3)], axis=-1)


def smooth(x):
    x = np.clip(x, 0, 1)
    return x * x * (3 - 2 * x)


def opened(mask, n):
    """Without what is thinner than 2 n + 1 points: specks and hairs."""
    for best in (np.minimum, np.maximum):
        for axis in (0, 1):
            mask = reduce(best, (np.roll(mask, k, axis) for k in range(-n, n + 1)))
    return mask


@lru_cache(None)  # for the picture and its twin
def ball(t):
    grain = 4  # points to a pixel's side
    y, x = np.mgrid[0:SIZE[1] * grain, 0:SIZE[0] * grain]
    x, y = (x + 0.5) / grain - CX, (y + 0.5) / grain - CY
    late = ease((t - 0.42) / 0.5)
    radius = 18 + 19 * (1 - (1 - min(1, t / 0.55)) ** 2.4) + 3 * t
    x, y = x / radius, (y + 6 * t * t) / radius / 0.94  # smoke rises
    r = np.sqrt(x * x + y * y)
    # The pattern rolls outwards as the ball swells, and bends as it goes.
    bend = 0.17 * layers(x * 1.7 + 3, y * 1.7, 2.2 * t, 2), 0.17 * layers(x * 1.7, y * 1.7 + 8, 2.2 * t + 4, 2)
    spread = 1 / (0.55 + 0.45 * r + 0.9 * t)
    px, py = (x + bend[0]) * spread, (y + bend[1]) * spread
    billow = 1 - 2 * np.abs(layers(px * 3.0, py * 3.0, 1.3 * t + 2, 3))  # round, with creases between
    tongues = layers(px * 3.8 + 11, py * 3.8, 2.6 * t + 9, 3)
    body = 0.94 - r + (0.20 - 0.06 * late) * tongues + (0.10 + 0.06 * late) * billow
    # Smoke tears where the noise is thin, wherever that is, until nothing is left.
    thin = 0.75 * layers(px * 2.0 + 31, py * 2.0 + 7, 0.9 * t, 3) + 0.25 * billow
    tear = -1.1 + 2.0 * ease((t - 0.46) / 0.60)
    level = np.minimum(body - 0.05, (thin + 0.5 * body - tear) * 0.35)
    heat = 0.86 * smooth(body * 1.15 + 0.16) + 0.27 * billow + 0.26 - np.interp(t, *COOLING)
    color = colors(np.clip(heat, 0, 1))
    # What is cold is smoke, lit from above and from within.
    light = np.clip(0.50 + 0.40 * billow - 0.22 * (x + 1.4 * y), 0, 1)[..., None]
    dark, mid, pale = (np.array(rgb(each)) for each in (SMOKE_DARK, SMOKE, SMOKE_PALE))
    smoke = np.where(light < 0.5, dark + (mid - dark) * light * 2, mid + (pale - mid) * (light * 2 - 1))
    cold = smooth((0.17 - heat) / 0.17)[..., None]
    color = color + (smoke - color) * cold
    # Its own edge, darker than what it closes.
    rim = smooth(1 - level * radius / 1.6)[..., None]
    rim_color = np.array(rgb("#b83a0c")) * (1 - cold) + dark * cold
    color = color + (rim_color - color) * rim * 0.75
    pixels = np.zeros(x.shape + (4,), np.uint8)
    pixels[..., :3] = np.rint(np.clip(color[..., ::-1], 0, 1) * 255)
    pixels[..., 3] = 255
    pixels[~opened(level > 0, grain // 2)] = 0
    return cairo.ImageSurface.create_for_data(pixels, cairo.FORMAT_ARGB32, x.shape[1], x.shape[0])


def show(s, image):
    s.c.save()
    s.c.scale(s.width / image.get_width(), s.height / image.get_height())
    s.c.set_source_surface(image)
    s.c.get_source().set_filter(cairo.FILTER_NEAREST)
    s.c.paint()
    s.c.restore()


def sparks(s, t):
    """Drops of fire, thick at the head, that slow down, sink, redden and go out."""
    for i in range(18):
        a = i * TAU / 18 + 0.25 * math.sin(i * 7.3)
        age = (t - 0.06) / (0.46 + 0.36 * scatter(i, 6))
        if not 0.08 < age < 1:
            continue
        far = 27 + 11 * scatter(i, 7)
        dx, dy = math.cos(a) * 1.06, math.sin(a) * 0.88
        out = 8 + far * (1 - (1 - age) ** 3.2)
        x, y = CX + dx * out, CY + dy * out + 9 * age * age
        dy += 0.9 * age * age  # it turns down
        tail = (4 + 9 * (1 - age)) / math.hypot(dx, dy)
        w = 1.45 * (1 - age) ** 0.6 + 0.3
        for wide, long, color in ((w + 0.75, 1.25, mix("#c2500f", "#6e1d0e", age)),
                                   (w, 1, mix("#fff3b0", "#f0601c", age * 1.2))):
            across = wide / math.hypot(dx, dy)
            s.polygon([(x - dx * tail * long, y - dy * tail * long), (x + dy * across, y - dx * across),
                       (x - dy * across, y + dx * across)], color)
            s.circle(x, y, wide, color)


def flash(s, t):
    """Rays of two lengths, for as long as the ball is small."""
    k = min(1, 0.45 + t / 0.13)
    for wide, long, color in ((1, 1, "#e08318"), (0.62, 0.86, "#ffd65c"), (0.36, 0.7, "#fffbe8")):
        points = []
        for i in range(28):
            a = i * TAU / 28 + 0.13
            r = 17 * k * wide if i % 2 else (42 if i % 4 else 31) * k * long * (1 + 0.1 * math.cos(i * 2.1))
            points.append((CX + math.cos(a) * r * 1.05, CY - 1 + math.sin(a) * r * 0.93))
        s.polygon(points, color)
    s.circle(CX, CY, 6 + 6 * k, "#ffe27a")
    s.circle(CX, CY, 5 + 5 * k, "#fffbe8")


def draw(s: Stage, t):
    if t < 0.1:
        flash(s, t)
    sparks(s, t)
    if t > 0.03:
        show(s, ball(t))
