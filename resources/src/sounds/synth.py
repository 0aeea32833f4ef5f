"""The small tool box that the sounds are made with. A sound is an array of samples, about -1 to 1."""
import wave

import numpy as np

RATE = 22050
PEAK = 10 ** (-3.5 / 20)  # a little below the -3 dB that every sound stays under
LOUDEST = 10 ** (-14 / 20)  # a steady tone would sound far louder than a click of the same peak


def times(seconds):
    return np.arange(int(seconds * RATE)) / RATE


def curve(t, *points):
    """A smooth line through (time, value) points."""
    xs, ys = zip(*points)
    k = np.interp(t, xs, np.arange(len(xs)))
    low = np.minimum(k.astype(int), len(xs) - 2)
    f = k - low
    f = f * f * (3 - 2 * f)
    ys = np.array(ys, float)
    return ys[low] * (1 - f) + ys[low + 1] * f


def glide(t, *points):
    """A line through (time, frequency) points that is straight on a musical scale."""
    xs, ys = zip(*points)
    return np.exp(np.interp(t, xs, np.log(ys)))


def phase(frequency):
    return 2 * np.pi * np.cumsum(frequency) / RATE


def noise(n, seed):
    return np.random.RandomState(seed).uniform(-1, 1, n)


def resonance(f, centre, width):
    return 1 / (1 + ((f - centre) / (width / 2)) ** 2)


def voice(frequency, formants, tilt=1.0, top=10000):
    """A buzzing voice: every overtone is as loud as the formants (centre, width, gain) make it at its pitch.

    Centres may be arrays, so that the mouth opens and closes while the pitch moves."""
    base = phase(frequency)
    out = np.zeros_like(frequency)
    for k in range(1, int(top / frequency.min()) + 1):
        f = k * frequency
        level = sum(gain * resonance(f, centre, width) for centre, width, gain in formants) / k ** tilt
        out += np.where(f < top, level, 0) * np.sin(k * base + 0.7 * k * k)
    return out / np.abs(out).max()


def band(x, centre, width):
    """Noise or a click through one resonance; centre and width may change with time."""
    n = len(x)
    centre = np.broadcast_to(np.asarray(centre, float), n)
    width = np.broadcast_to(np.asarray(width, float), n)
    r = np.exp(-np.pi * width / RATE)
    a1, a2, gain = 2 * r * np.cos(2 * np.pi * centre / RATE), -r * r, 1 - r
    out = np.zeros(n)
    y1 = y2 = 0.0
    for i in range(n):
        y = gain[i] * x[i] + a1[i] * y1 + a2[i] * y2
        out[i], y2, y1 = y, y1, y
    return out


def lowpass(x, cutoff):
    a = 1 - np.exp(-2 * np.pi * np.broadcast_to(np.asarray(cutoff, float), len(x)) / RATE)
    out = np.zeros(len(x))
    y = z = 0.0
    for i in range(len(x)):  # two poles
        y += a[i] * (x[i] - y)
        z += a[i] * (y - z)
        out[i] = z
    return out


def highpass(x, cutoff):
    return x - lowpass(x, cutoff)


def add(target, sound, at):
    start = int(at * RATE)
    stop = min(len(target), start + len(sound))
    target[start:stop] += sound[:stop - start]


def unit(x):
    return x / np.abs(x).max()


def write(target, x, fade_in=0.002, fade_out=0.02):
    """Normalised, with a fade and some silence at both ends, so that nothing clicks."""
    n_in, n_out = int(fade_in * RATE), int(fade_out * RATE)
    x = np.array(x, float)
    if np.abs(x).max() > 0:
        x = highpass(x, 25)
        x[:n_in] *= 0.5 - 0.5 * np.cos(np.linspace(0, np.pi, n_in))
        x[-n_out:] *= 0.5 + 0.5 * np.cos(np.linspace(0, np.pi, n_out))
        x *= min(PEAK / np.abs(x).max(), LOUDEST / np.sqrt((x * x).mean()))
    pad = np.zeros(int(0.002 * RATE))
    x = np.concatenate([pad, x, pad])
    with wave.open(target, "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(np.rint(x * 32767).astype("<i2").tobytes())
