#!/usr/bin/python3
"""Renders the pictures: build.py RESOURCES

Every picture that the window shows is rendered twice: at its own size, and as its @2x twin for dense screens."""
import os
import subprocess
import sys

from PIL import Image

HERE = os.path.dirname(os.path.abspath(__file__))
ROOT = sys.argv[1]
PICTURES = os.path.join(ROOT, "pictures")
ICONS = os.path.join(ROOT, "icons")

SHOWN = {  # picture: its source and the width at 1x
    "kestrixTypingOrlamu": (["splash.py"], 640),
    "english": (["english.py"], 320),
    "youTube": (["youTube.svg"], 96),
    "chdown": (["instructor.py", "down"], 144),
    "chmiddle": (["instructor.py", "middle"], 144),
    "chup": (["instructor.py", "up"], 144),
    "arrowDown": (["arrowDown.svg"], 55),
    "arrowLeft": (["arrowLeft.svg"], 69),
    "optionsArrow": (["optionsArrow.svg"], 70),
    "exploreLearn": (["exploreLearn.svg"], 72),
    "exploreTranslator": (["exploreTranslator.svg"], 72),
    "exploreColor": (["exploreColor.svg"], 72),
    "exploreOther": (["exploreOther.svg"], 72),
}
SHRUNK = {  # only as the twin: forms name one file, and the labels shrink it
    "speaker": (["speaker.svg"], 24),
    "folder": (["folder.svg"], 28),
}
ICON_SIZES = (16, 32, 48, 128, 256)


def source_text(source):
    path = os.path.join(HERE, source[0])
    if path.endswith(".py"):
        return subprocess.run([sys.executable, path] + source[1:], check=True, capture_output=True).stdout
    with open(path, "rb") as file:
        return file.read()


def render(text, width, target):
    subprocess.run(["rsvg-convert", "-w", str(width), "-o", target], input=text, check=True)
    with Image.open(target) as image:
        image.load()
    if image.mode == "RGBA" and image.getextrema()[3][0] == 255:
        image = image.convert("RGB")
    image.save(target, optimize=True)


os.makedirs(PICTURES, exist_ok=True)
os.makedirs(ICONS, exist_ok=True)
for name, (source, width) in {**SHOWN, **SHRUNK}.items():
    text = source_text(source)
    if name in SHOWN:
        render(text, width, os.path.join(PICTURES, name + ".png"))
    render(text, width * 2, os.path.join(PICTURES, name + "@2x.png"))

icon = source_text(["kestrix-typing.svg"])
with open(os.path.join(ICONS, "kestrix-typing.svg"), "wb") as file:
    file.write(icon)
small = source_text(["kestrix-typing-small.svg"])
for size in ICON_SIZES:
    render(small if size == 16 else icon, size, os.path.join(ICONS, f"kestrix-typing-{size}.png"))


def to_gif(image, target):
    """One transparent frame: GIF knows only wholly clear and wholly opaque pixels."""
    alpha = image.getchannel("A").point(lambda a: 255 if a > 127 else 0)
    palette = image.convert("RGB").quantize(255, dither=Image.Dither.NONE)
    palette.paste(255, mask=alpha.point(lambda a: 255 - a))
    palette.save(target, transparency=255, optimize=False)


with Image.open(os.path.join(ICONS, "kestrix-typing-48.png")) as rendered:
    to_gif(rendered.convert("RGBA"), os.path.join(PICTURES, "english.gif"))
to_gif(Image.new("RGBA", (54, 54), (0, 0, 0, 0)), os.path.join(PICTURES, "blank.gif"))
