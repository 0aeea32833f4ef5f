#!/usr/bin/python3
"""Synthesises the sounds: build.py RESOURCES"""
import os
import sys

import numpy as np

import synth
from synth import add, band, curve, glide, highpass, lowpass, noise, phase, times, unit, voice


def swell(t, seconds):
    """The start of what comes in while something else sounds: begun at once, it would tick."""
    return curve(t, (0, 0), (seconds, 1), (t[-1], 1))


def silence():
    return times(0.1) * 0


def bark():
    """One short woof: a rough voice whose pitch jumps up and falls, breath in it, the mouth opening and closing."""
    t = times(0.27)
    f = glide(t, (0, 260), (0.025, 520), (0.07, 470), (0.16, 300), (0.27, 190))
    rough = 1 + 0.035 * lowpass(noise(len(t), 3), 400) * 6
    f1 = curve(t, (0, 420), (0.04, 900), (0.12, 760), (0.27, 420))
    f2 = curve(t, (0, 1000), (0.04, 1650), (0.12, 1350), (0.27, 900))
    body = voice(f * rough, ((f1, 320, 1.0), (f2, 420, 0.7), (2900, 800, 0.28)), tilt=0.35, top=8000)
    body *= 1 + 0.45 * np.sin(phase(f / 2))  # the growl an octave below
    breath = unit(band(noise(len(t), 5), f1 * 1.1, 700) + 0.8 * band(noise(len(t), 6), f2, 900))
    loud = curve(t, (0, 0), (0.014, 1), (0.07, 0.85), (0.15, 0.34), (0.27, 0))
    puff = curve(t, (0, 0), (0.008, 1), (0.05, 0.4), (0.27, 0))
    return np.tanh(1.6 * (unit(body) * loud + 0.42 * breath * puff))


def meow():
    """m - e - o - w: pitch and formants rise and fall again, and the lips close at both ends."""
    t = times(0.78)
    f = glide(t, (0, 430), (0.10, 560), (0.28, 760), (0.45, 720), (0.66, 500), (0.78, 400))
    f = f * (1 + 0.012 * np.sin(2 * np.pi * 6.2 * t) * curve(t, (0, 0), (0.3, 1), (0.78, 1)))
    f1 = curve(t, (0, 320), (0.09, 380), (0.20, 820), (0.36, 1050), (0.58, 700), (0.78, 420))
    f2 = curve(t, (0, 1250), (0.09, 1700), (0.20, 2500), (0.36, 1900), (0.58, 1150), (0.78, 800))
    body = voice(f, ((f1, 260, 1.0), (f2, 340, 0.75), (3600, 700, 0.25), (5200, 1000, 0.08)), tilt=0.45)
    breath = band(noise(len(t), 8), f2, 600)
    loud = curve(t, (0, 0), (0.07, 0.32), (0.12, 0.4), (0.24, 1), (0.46, 0.9), (0.66, 0.42), (0.78, 0))
    return (body + 0.05 * unit(breath)) * loud


def quack():
    """A nasal buzz: hard pulses, little fundamental, two narrow bands that open as the bill does."""
    t = times(0.25)
    f = glide(t, (0, 250), (0.04, 285), (0.14, 250), (0.25, 190))
    f = f * (1 + 0.05 * unit(lowpass(noise(len(t), 11), 60)))
    f1 = curve(t, (0, 800), (0.06, 1300), (0.15, 1250), (0.25, 900))
    f2 = curve(t, (0, 1900), (0.06, 2500), (0.15, 2400), (0.25, 2000))
    body = voice(f, ((f1, 330, 1.0), (f2, 420, 0.9), (3700, 700, 0.35)), tilt=0.0, top=9000)
    pulse = np.clip(np.sin(phase(f)) + 0.35, 0.12, 1)  # the reed closes in every period
    loud = curve(t, (0, 0), (0.018, 0.9), (0.06, 1), (0.16, 0.75), (0.25, 0))
    return np.tanh(1.8 * unit(body * pulse)) * loud


def photon():
    """A ray gun: a bright tone that drops through four octaves."""
    t = times(0.36)
    f = glide(t, (0, 4200), (0.05, 2300), (0.15, 900), (0.36, 170))
    p = phase(f)
    # overtones that would come back as aliases from above the highest frequency are left out
    tone = np.sin(p) + sum(level * np.clip((9500 - k * f) / 1500, 0, 1) * np.sin(k * p + 0.4)
                           for k, level in ((2, 0.35), (3, 0.18), (4, 0.1)))
    echo = np.zeros(len(t))
    dry = tone * np.exp(-t * 7.5)
    add(echo, dry, 0)
    add(echo, 0.25 * dry * swell(t, 0.02), 0.055)
    return echo


def photon2():
    """A heavier shot: three falling rings close together over a humming charge."""
    t = times(0.72)
    out = np.zeros(len(t))
    for i, (at, loud) in enumerate(((0.0, 1.0), (0.15, 0.85), (0.30, 0.7))):
        s = times(0.72 - at)
        f = glide(s, (0, 1900 - 150 * i), (0.08, 820), (0.42, 110))
        p = phase(f)
        wobble = np.sin(2 * np.pi * 46 * s)
        ring = np.sin(p + 2.4 * wobble * np.exp(-s * 3)) * np.exp(-s * 9)
        add(out, loud * (ring * swell(s, 0.02) if at else ring), at)
    hum = np.sin(phase(glide(t, (0, 150), (0.72, 60)))) * np.exp(-t * 5)
    hiss = band(noise(len(t), 14), glide(t, (0, 5200), (0.72, 500)), 1200)
    return out + 0.45 * hum + 0.22 * unit(hiss) * np.exp(-t * 5)


def whistle():
    """Lips: an almost pure tone that slides up, holds and dips, with a little breath around it."""
    t = times(0.56)
    f = glide(t, (0, 1150), (0.06, 1250), (0.22, 2150), (0.40, 2250), (0.56, 1500))
    f = f * (1 + 0.006 * np.sin(2 * np.pi * 7 * t))
    p = phase(f)
    loud = curve(t, (0, 0), (0.05, 0.7), (0.22, 1), (0.42, 0.9), (0.56, 0))
    breath = band(noise(len(t), 21), f, 500)
    return (np.sin(p) + 0.045 * np.sin(2 * p) + 0.10 * unit(breath)) * loud


def bubble():
    """Bubbles sing higher as they reach the surface: one large, then two small ones."""
    t = times(0.30)
    out = np.zeros(len(t))
    for at, low, high, length, loud in ((0.0, 330, 980, 0.14, 1.0), (0.115, 620, 1500, 0.09, 0.5), (0.19, 820, 1900, 0.07, 0.3)):
        s = times(length)
        f = glide(s, (0, low), (length * 0.35, low * 1.2), (length, high))
        shape = curve(s, (0, 0), (length * 0.12, 1), (length * 0.5, 0.6), (length, 0))
        add(out, loud * (np.sin(phase(f)) + 0.08 * np.sin(2 * phase(f))) * shape, at)
    return out


def chime():
    """Two struck bars, a fifth apart; the overtones of a free bar are out of tune and die first."""
    t = times(1.35)
    out = np.zeros(len(t))
    for at, f, loud in ((0.0, 1046.5, 0.8), (0.13, 1568.0, 1.0)):
        s = times(1.35 - at)
        bar = np.zeros(len(s))
        for ratio, level, decay in ((1.0, 1.0, 4.2), (1.0028, 0.35, 4.4), (2.756, 0.42, 9.0), (5.404, 0.16, 18.0)):
            if f * ratio < 9800:
                bar += level * np.sin(2 * np.pi * f * ratio * s) * np.exp(-decay * s)
        strike = highpass(noise(len(s), 31), 3000) * np.exp(-s * 400)
        add(out, loud * (bar + 0.12 * strike), at)
    return out


def explosion():
    """A crack, a boom that sinks below hearing, and rubble that rumbles away."""
    t = times(1.4)
    hiss = noise(len(t), 41)
    crack = highpass(hiss, 900) * np.exp(-t * 26)
    roar = unit(lowpass(noise(len(t), 42), glide(t, (0, 5200), (0.12, 2600), (0.5, 900), (1.4, 220))))
    roar *= curve(t, (0, 0), (0.012, 1), (0.16, 0.72), (0.5, 0.34), (1.0, 0.10), (1.4, 0))
    boom = np.sin(phase(glide(t, (0, 120), (0.25, 58), (1.4, 34)))) * np.exp(-t * 4.8)
    rubble = np.zeros(len(t))
    chance = np.random.RandomState(43)
    for _ in range(60):
        at = 0.08 + 0.8 * chance.uniform() ** 1.5
        s = times(0.03)
        add(rubble, chance.uniform(0.2, 1) * band(chance.uniform(-1, 1, len(s)), chance.uniform(300, 1600), 500) * np.exp(-s * 130), at)
    rubble *= np.exp(-t * 2.4)
    return np.tanh(1.9 * (0.8 * crack + 1.5 * roar + 0.55 * boom + 0.5 * unit(rubble)))


def machine_gun():
    """27 shots, thirty in a second, three to each flash of the angry face: a crack and a short thump, over the whirr
    of the barrels; the last one rings out."""
    t = times(1.16)
    out = np.zeros(len(t))
    for i in range(27):
        s = times(0.16)
        hard = noise(len(s), 50 + i)
        crack = highpass(hard, 1200) * np.exp(-s * 230)
        blast = unit(lowpass(noise(len(s), 90 + i), glide(s, (0, 4200), (0.03, 1000), (0.16, 300)))) * np.exp(-s * 75)
        thump = np.sin(phase(glide(s, (0, 230), (0.03, 95), (0.16, 60)))) * np.exp(-s * 55)
        loud = 1 - 0.09 * (i % 3)
        add(out, loud * (0.9 * crack + 1.0 * blast + 0.5 * thump), i / 30)
    turning = glide(t, (0, 300), (0.06, 420), (0.9, 420), (1.16, 150))
    whirr = np.sin(phase(turning)) + 0.5 * np.sin(phase(2 * turning)) + 0.5 * unit(band(noise(len(t), 150), 5 * turning, 500))
    out += 0.07 * whirr * curve(t, (0, 0), (0.05, 1), (0.9, 1), (1.16, 0))
    tail = np.zeros(len(t))
    for delay, level in ((0.047, 0.16), (0.071, 0.12), (0.113, 0.10)):
        add(tail, level * lowpass(out, 1500), delay)
    return np.tanh(1.5 * (out + tail))


def typewriter():
    """The type bar hits the platen, and the key falls back with a lighter click."""
    t = times(0.18)
    out = np.zeros(len(t))

    def hit(seed, at, loud, bright):
        s = times(0.11)
        snap = noise(len(s), seed) * np.exp(-s * 900)
        ring = sum(level * np.sin(2 * np.pi * f * s + seed) * np.exp(-s * decay)
                   for f, level, decay in ((1780 * bright, 0.5, 95), (2950 * bright, 0.42, 130), (4620 * bright, 0.3, 190), (6900, 0.16, 260)))
        thud = np.sin(2 * np.pi * 175 * s) * np.exp(-s * 62)
        rattle = highpass(noise(len(s), seed + 1), 2200) * np.exp(-s * 120)
        add(out, loud * (1.0 * snap + 0.6 * ring + 0.3 * thud / bright + 0.18 * rattle), at)

    # The type strikes as the key is pressed, the carriage moves on, the key comes back.
    hit(63, 0.002, 1.0, 1.0)
    hit(61, 0.034, 0.14, 1.25)
    hit(67, 0.085, 0.26, 1.35)
    return out


SOUNDS = {
    "silence": silence, "bark": bark, "meow": meow, "quack1": quack, "photon": photon, "photon2": photon2,
    "whistle": whistle, "bubble2": bubble, "chime1": chime, "explosion1": explosion, "machineGun2": machine_gun,
    "typewriter": typewriter,
}

out_dir = os.path.join(sys.argv[1], "sounds")
os.makedirs(out_dir, exist_ok=True)
for name in sys.argv[2:] or SOUNDS:
    synth.write(os.path.join(out_dir, name + ".wav"), SOUNDS[name]())
