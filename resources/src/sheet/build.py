#!/usr/bin/python3
"""Lays everything that is made out on one sheet, build/resources.png, to be looked at: build.py RESOURCES"""
import glob
import os
import sys
import wave

import numpy as np
from PIL import Image, ImageDraw, ImageFont

ROOT = sys.argv[1]
WIDTH, MARGIN, GAP = 1760, 16, 10
PAPER, TEXT, LINE = (236, 233, 224), (20, 37, 43), (18, 96, 107)
BACKGROUNDS = ((255, 255, 255), (0, 0, 0), (212, 175, 55))  # what the animations must look clean on
LABEL = ImageFont.load_default()
GLYPHS = "Z [ sq √ ü E F G H ← ↑ → ↓"


def label(text):
    box = LABEL.getbbox(text)
    image = Image.new("RGBA", (box[2] + 2, 12), (0, 0, 0, 0))
    ImageDraw.Draw(image).text((0, 0), text, font=LABEL, fill=TEXT)
    return image


def named(text, image):
    name = label(text)
    card = Image.new("RGBA", (max(name.width, image.width), image.height + 14), (0, 0, 0, 0))
    card.paste(name, (0, 0), name)
    card.paste(image, (0, 14))
    return card


def title(text):
    name = label(text.upper())
    name = name.resize((name.width * 2, name.height * 2), Image.NEAREST)
    card = Image.new("RGBA", (WIDTH - 2 * MARGIN, 34), (0, 0, 0, 0))
    card.paste(name, (0, 8))
    ImageDraw.Draw(card).line((0, 32, card.width, 32), fill=LINE, width=2)
    return card


def picture(path):
    with Image.open(path) as image:
        return image.convert("RGBA")


def animation(path):
    """All frames, once on each background; of a twin for dense screens every fifth."""
    frames = []
    with Image.open(path) as gif:
        frame_count = gif.n_frames
        for i in range(0, gif.n_frames, 5 if "@2x" in path else 1):
            gif.seek(i)
            frames.append(gif.convert("RGBA"))
    w, h = frames[0].size
    per_row = min(len(frames), (WIDTH - 2 * MARGIN) // w)
    rows = -(-len(frames) // per_row)
    strip = Image.new("RGBA", (per_row * w, rows * h * len(BACKGROUNDS)))
    for b, background in enumerate(BACKGROUNDS):
        for i, frame in enumerate(frames):
            tile = Image.new("RGBA", (w, h), background + (255,))
            tile.alpha_composite(frame)
            strip.paste(tile, (i % per_row * w, (b * rows + i // per_row) * h))
    return named(f"{os.path.basename(path)}  {w} x {h}, {frame_count} frames", strip)


def glyphs(size, ink, paper):
    font = ImageFont.truetype(os.path.join(ROOT, "kestrixSymbols.ttf"), size)
    image = Image.new("RGBA", (int(font.getlength(GLYPHS)) + 16, size + 12), paper + (255,))
    ImageDraw.Draw(image).text((8, 6), GLYPHS, font=font, fill=ink)
    return image


def sound(path, width=230, height=72):
    """The spectrogram, with the waveform below it."""
    with wave.open(path) as file:
        rate = file.getframerate()
        x = np.frombuffer(file.readframes(file.getnframes()), "<i2") / 32768
    length = len(x) / rate
    window = 512
    padded = np.concatenate([np.zeros(window // 2), x, np.zeros(window)])
    starts = np.linspace(0, len(x) - 1, width).astype(int)
    spectrum = np.abs(np.fft.rfft(np.stack([padded[s:s + window] for s in starts]) * np.hanning(window))).T
    spectrum = spectrum[:height * 3].reshape(height, 3, width).max(axis=1)[::-1]
    level = np.clip((20 * np.log10(spectrum / 60 + 1e-6) + 54) / 54, 0, 1)
    level = np.rint(level * 12) / 12
    stops = np.array([(8, 30, 36), (18, 96, 107), (244, 166, 42), (255, 244, 220)], float)
    place = level * (len(stops) - 1)
    low = np.minimum(place.astype(int), len(stops) - 2)
    colour = stops[low] + (stops[low + 1] - stops[low]) * (place - low)[..., None]
    card = Image.new("RGBA", (width, height + 38), (255, 255, 255, 255))
    card.paste(Image.fromarray(np.rint(colour).astype(np.uint8), "RGB"), (0, 0))
    draw = ImageDraw.Draw(card)
    for i in range(width):
        part = x[i * len(x) // width:(i + 1) * len(x) // width]
        if len(part):
            draw.line((i, height + 19 - part.max() * 26, i, height + 19 - part.min() * 26), fill=LINE)
    return named(f"{os.path.basename(path)}  {length:.2f} s, 0 to {height * 3 * rate / window / 1000:.1f} kHz", card)


def shown_as(sizes, pattern):
    return [named(f"{s}", picture(os.path.join(ROOT, pattern.format(s)))) for s in sizes]


pictures = os.path.join(ROOT, "pictures", "")
plain = ["kestrixTypingOrlamu.png", "english.png", "chdown.png", "chmiddle.png", "chup.png", "chdown@2x.png", "chmiddle@2x.png",
         "chup@2x.png", "youTube.png", "youTube@2x.png", "arrowDown.png", "arrowDown@2x.png", "arrowLeft.png", "arrowLeft@2x.png",
         "optionsArrow.png", "optionsArrow@2x.png", "speaker@2x.png", "folder@2x.png", "english.gif"]
cards = [title("Pictures")]
cards += [named(name, picture(pictures + name)) for name in plain]
cards += [title("Icon")] + shown_as((256, 128, 48, 32, 16), "icons/kestrix-typing-{}.png")
cards += [title("Symbol font")]
for size in (48, 16, 12, 9):
    cards += [named(f"{size} px", glyphs(size, (0, 0, 0), (255, 255, 255)))]
cards += [named("16 px", glyphs(16, (255, 255, 255), (0, 0, 0)))]
cards += [title("Animations")]
cards += [animation(path) for path in sorted(glob.glob(os.path.join(ROOT, "animations", "*.gif")),
                                             key=lambda p: (-Image.open(p).width, os.path.basename(p)))]
cards += [title("Sounds")] + [sound(path) for path in sorted(glob.glob(os.path.join(ROOT, "sounds", "*.wav")))]

places, x, y, row = [], MARGIN, MARGIN, 0
for card in cards:
    if x + card.width > WIDTH - MARGIN and x > MARGIN:
        x, y, row = MARGIN, y + row + GAP, 0
    places.append((card, x, y))
    x, row = x + card.width + GAP, max(row, card.height)
sheet = Image.new("RGB", (WIDTH, y + row + MARGIN), PAPER)
for card, x, y in places:
    sheet.paste(card, (x, y), card)
target = os.path.join(os.path.dirname(ROOT), "build", "resources.png")
os.makedirs(os.path.dirname(target), exist_ok=True)
sheet.save(target)
