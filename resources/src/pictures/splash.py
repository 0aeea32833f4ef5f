#!/usr/bin/python3
"""The splash: a kestrel hovers over a field of keys at sunrise. splash.py > picture.svg"""
import sys

from art import AMBER, AMBER_PALE, CREAM, INK, TEAL_DARK, keycap, lettering, svg
from kestrel import hovering

W, H = 640, 360
body = [f'<rect width="{W}" height="{H}" fill="url(#sky)"/>']
for r, o in ((196, 0.10), (158, 0.14), (122, 0.22)):
    body.append(f'<circle cx="484" cy="150" r="{r}" fill="{AMBER_PALE}" opacity="{o}"/>')
body.append(f'<circle cx="484" cy="150" r="92" fill="url(#sun)"/>')
for x, y, w in ((176, 58, 70), (214, 40, 70), (548, 236, 110), (20, 206, 70)):
    body.append(f'<rect x="{x}" y="{y}" width="{w}" height="7" rx="3.5" fill="{CREAM}" opacity="0.16"/>')
body.append('<path d="M0,292 C80,256 150,262 232,280 C330,248 420,262 500,276 C560,252 610,256 640,266 V360 H0 Z" fill="#0e4a55"/>')
body.append('<path d="M0,306 C110,280 210,292 320,298 C440,284 540,292 640,284 V360 H0 Z" fill="#0b3a42"/>')
# The field: two rows of keys, the nearer one larger; one key glows, and that is what the bird has seen.
rows = ((284, 40, 44.5, -18, 15, "#166470"), (322, 52, 58, -26, 12, "#1a747c"))
for y, size, step, x0, count, top in rows:
    for i in range(count):
        x = x0 + i * step
        lit = i == 12 and y == 284
        body.append(keycap(round(x, 1), y - (3 if lit else 0), size, AMBER if lit else top,
                           "#8a4a14" if lit else "#062b32", "#ffe2a0" if lit else "#2b939a",
                           "K" if lit else "", INK))
body.append(hovering(480, 142, 0.97))
for text, y in (("Kestrix-", 142), ("Typing", 216)):
    body.append(lettering(text, 40, y + 3, 50, TEAL_DARK, weight=42))
    body.append(lettering(text, 40, y, 50, CREAM, weight=28))
body.append(lettering("English", 41, 70, 20, AMBER_PALE, weight=25))
defs = ('<linearGradient id="sky" x1="0" y1="0" x2="0" y2="1"><stop offset="0" stop-color="#0b3a42"/><stop offset="0.5" stop-color="#1c7d84"/>'
        '<stop offset="0.82" stop-color="#f0b45a"/></linearGradient>'
        '<radialGradient id="sun"><stop offset="0" stop-color="#fff4dc"/><stop offset="1" stop-color="#ffdb8c"/></radialGradient>')
sys.stdout.write(svg(W, H, "".join(body), defs))
