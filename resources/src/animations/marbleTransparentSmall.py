"""A glass marble with bands of colour that rolls on the spot; the light on it stays where it is."""
import math

import cairo
import numpy as np

from stage import TEAL_DARK, WHITE, Stage, rgb

SIZE, FRAMES, DELAY = (54, 54), 20, 6
R = 23.5
BANDS = ("#0f5560", "#1f8a8f", "#f4a62a", "#fff0cf", "#f4a62a", "#1f8a8f", "#a6d8d4", "#1f8a8f")


def ball(t, n=216):
    """Every point of the disc is carried back to the turning ball, where a twisted band gives its colour."""
    axis = (np.arange(n) + 0.5) / n * 2 - 1
    x, y = np.meshgrid(axis, -axis)
    inside = x * x + y * y < 1
    z = np.sqrt(np.clip(1 - x * x - y * y, 0, 1))
    lean = math.radians(24)
    u, v = x * math.cos(lean) + y * math.sin(lean), y * math.cos(lean) - x * math.sin(lean)
    lon = np.arctan2(u, z) / (2 * math.pi)
    # half a turn shows the same bands again, as the pattern is laid round the ball twice
    place = (2 * lon + 0.34 * np.sin(2.6 * v) + 0.05 * np.sin(7 * v + 1) - t) % 1 * len(BANDS)
    table = np.array([rgb(b) for b in BANDS])
    low = place.astype(int) % len(BANDS)
    part = np.clip((place % 1 - 0.35) / 0.3, 0, 1)[..., None]
    colour = table[low] * (1 - part) + table[(low + 1) % len(BANDS)] * part
    light = np.clip(0.55 * z + 0.35 * (y - x) * 0.7 + 0.42, 0.42, 1.12)
    rim = np.clip((np.hypot(x, y) - 0.80) / 0.2, 0, 1)
    light = light * (1 - 0.35 * rim) + 0.22 * rim * (x - y > 0.6)
    pixels = np.zeros((n, n, 4), np.uint8)
    shaded = np.clip(colour * light[..., None], 0, 1)
    pixels[..., 0], pixels[..., 1], pixels[..., 2] = (np.rint(shaded[..., i] * 255) for i in (2, 1, 0))
    pixels[..., 3] = 255
    pixels[~inside] = 0
    return pixels


def draw(s: Stage, t):
    n = 216
    data = bytearray(ball(t, n).tobytes())
    picture = cairo.ImageSurface.create_for_data(data, cairo.FORMAT_ARGB32, n, n, n * 4)
    s.circle(27, 27, R, TEAL_DARK, TEAL_DARK, 2.4)
    with s.at(27 - R, 27 - R, 0, 2 * R / n):
        s.c.set_source_surface(picture, 0, 0)
        s.c.paint()
    s.circle(27, 27, R, None, TEAL_DARK, 1.8)
    s.path("M 13 19 C 15 13 20 9.5 26 9.5 C 22 12 18.5 15 16.5 20 C 15.5 22.5 12 22 13 19 Z", WHITE)
    s.circle(31.5, 11.6, 1.5, WHITE)
