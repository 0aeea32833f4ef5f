#!/usr/bin/python3
"""The picture of the opening window: a kestrel on the keys A, B and C. english.py > picture.svg"""
import sys

from art import AMBER, CREAM, INK, TEAL_DARK, TEAL_MID, TEAL_PALE, keycap, svg
from kestrel import perched

W, H = 320, 200
body = [f'<rect x="1" y="1" width="{W - 2}" height="{H - 2}" rx="18" fill="url(#air)"/>',
        f'<circle cx="196" cy="82" r="66" fill="{CREAM}" opacity="0.75"/>',
        f'<path d="M1,176 C80,164 240,164 319,176 V181 Q319,199 301,199 H19 Q1,199 1,181 Z" fill="{TEAL_DARK}"/>']
for i, (letter, top, side, rim, ink) in enumerate((("A", AMBER, "#8a4a14", "#ffe2a0", INK), ("B", CREAM, "#b58f52", "#ffffff", TEAL_DARK),
                                                   ("C", TEAL_MID, "#073239", TEAL_PALE, CREAM))):
    body.append(keycap(44 + i * 80, 110, 72, top, side, rim, letter, ink=ink, depth=10))
body.append(perched(160, 113, 0.735))
defs = '<linearGradient id="air" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#1f8a8f"/><stop offset="1" stop-color="#ffcf6b"/></linearGradient>'
sys.stdout.write(svg(W, H, "".join(body), defs))
