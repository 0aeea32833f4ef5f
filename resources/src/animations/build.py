#!/usr/bin/python3
"""Renders the animations: build.py RESOURCES

Each module named below has SIZE, FRAMES, DELAY (hundredths of a second) and draw(stage, t) for a time t from
0 (first frame) to 1 (the first frame again). Each is rendered twice: at its own size, and as its @2x twin for
dense screens. A frame is drawn eight times too large; a pixel of the small picture is opaque where at least half
of it is covered, and its colour is that of the covered part alone, so nothing of an imagined background shows at
the edges."""
import importlib
import os
import subprocess
import sys
import tempfile

import numpy as np
from PIL import Image

from stage import Stage

ROOT = os.path.join(sys.argv[1], "animations")
NAMES = ("explodeAll2", "butterfly1", "birdsdance2", "angryEmotion2", "swirl1", "snowfall", "snowSmall",
         "bouncingSheepSmall", "rain", "pulsingLightSmall", "marbleTransparentSmall", "kittyWalk")
ZOOM = 8
COLOURS = 95


def small_frame(draw, size, density, t):
    stage = Stage(*size, ZOOM * density)
    draw(stage, t)
    stage.surface.flush()
    width, height = (density * each for each in size)
    pixels = np.ndarray((height * ZOOM, stage.surface.get_stride() // 4, 4), np.uint8, stage.surface.get_data())
    pixels = pixels[:, :width * ZOOM, :].astype(np.float64)
    pixels = pixels.reshape(height, ZOOM, width, ZOOM, 4).mean(axis=(1, 3))
    alpha = pixels[..., 3]
    opaque = alpha >= 127.5
    colour = np.where(opaque[..., None], pixels[..., [2, 1, 0]] * 255 / np.maximum(alpha, 1)[..., None], 0)
    return np.clip(np.rint(colour), 0, 255).astype(np.uint8), opaque


def shared_palette(frames):
    seen = np.concatenate([colour[opaque] for colour, opaque in frames])
    strip = Image.fromarray(seen.reshape(1, -1, 3), "RGB").quantize(COLOURS, dither=Image.Dither.NONE)
    used = len(strip.getcolors())
    return np.array(strip.getpalette()[:used * 3], np.int32).reshape(-1, 3)


def nearest(colour, palette):
    distance = ((colour[:, :, None, :].astype(np.int32) - palette[None, None]) ** 2).sum(axis=3)
    return distance.argmin(axis=2).astype(np.uint8)


def make(name, target, density):
    module = importlib.import_module(name)
    frames = [small_frame(module.draw, module.SIZE, density, i / module.FRAMES) for i in range(module.FRAMES)]
    palette = shared_palette(frames)
    with tempfile.TemporaryDirectory() as scratch:
        files = []
        for i, (colour, opaque) in enumerate(frames):
            index = np.where(opaque, nearest(colour, palette) + 1, 0).astype(np.uint8)
            image = Image.fromarray(index, "P")
            image.putpalette([0, 0, 0] + palette.flatten().tolist())
            files.append(os.path.join(scratch, f"{i:03}.gif"))
            image.save(files[-1], transparency=0, optimize=False)
        subprocess.run(["gifsicle", "--no-comments", "--no-names", f"--delay={module.DELAY}", "--loopcount=forever",
                        "--disposal=background", "-O2", "-o", target] + files, check=True)


os.makedirs(ROOT, exist_ok=True)
for name in sys.argv[2:] or NAMES:
    make(name, os.path.join(ROOT, name + ".gif"), 1)
    make(name, os.path.join(ROOT, name + "@2x.gif"), 2)
