#!/usr/bin/env python3
"""Synthesises the built-in sounds and the sound theme beside this script, the same bytes on every run.

A sound is a list of notes. Every note is a decaying struck tone or a swept noise; the sum is faded at both ends
and brought to the same peak, so that no sound of the set clicks or is louder than the others.
"""

import array
import math
import pathlib
import random
import sys
import wave

RATE = 22050
PEAK = 10 ** (-3 / 20)  # -3 dBFS
FADE_IN, FADE_OUT = 0.003, 0.04  # seconds

# Partials as (multiple of the pitch, strength, decay relative to the note's): what an instrument sounds like.
BELL = [(1, 1, 1), (2.0, 0.5, 1.6), (3.01, 0.25, 2.4), (4.23, 0.12, 4), (5.4, 0.08, 6)]
WOOD = [(1, 1, 1), (3.9, 0.35, 3), (9.2, 0.1, 6)]
SOFT = [(1, 1, 1), (2, 0.18, 1.4), (3, 0.06, 2)]
REED = [(1, 1, 1), (2, 0.4, 1), (3, 0.3, 1.2), (5, 0.15, 1.6)]


def pitch(name):
    """The frequency in Hz of a note such as "c5" or "f#4"."""
    semitone = {"c": 0, "d": 2, "e": 4, "f": 5, "g": 7, "a": 9, "b": 11}[name[0]] + name.count("#")
    return 440 * 2 ** ((semitone - 9) / 12 + int(name[-1]) - 4)


def tone(start, name, length, timbre=SOFT, strength=1.0, to=None, attack=0.006):
    """A struck tone from a start in seconds; it glides to another note when one is given."""
    low, high = pitch(name), pitch(to or name)

    def sound(samples):
        phase = 0.0
        for i in range(int(length * RATE)):
            share = i / (length * RATE)
            phase += 2 * math.pi * low * (high / low) ** share / RATE
            level = strength * min(1, i / (attack * RATE)) * (1 - share) ** 0.5
            samples[int(start * RATE) + i] += level * sum(
                part * math.exp(-4 * decay * share) * math.sin(multiple * phase) for multiple, part, decay in timbre)
    return start + length, sound


def breath(start, length, low, high, strength=1.0):
    """Filtered noise whose pitch in Hz moves from low to high: something that slides past."""
    def sound(samples):
        noise = random.Random(1)
        band = glow = 0.0
        for i in range(int(length * RATE)):
            share = i / (length * RATE)
            tune = 2 * math.sin(math.pi * low * (high / low) ** share / RATE)
            glow += tune * band
            band += tune * (noise.uniform(-1, 1) - glow - 0.35 * band)
            samples[int(start * RATE) + i] += strength * band * math.sin(math.pi * share) ** 2
    return start + length, sound


def rendered(notes):
    samples = array.array("d", bytes(8 * (int(max(end for end, _ in notes) * RATE) + 1)))
    for _, sound in notes:
        sound(samples)
    last = len(samples) - 1
    for i in range(len(samples)):
        samples[i] *= min(1, i / (FADE_IN * RATE), (last - i) / (FADE_OUT * RATE))
    scale = PEAK * 32767 / max(map(abs, samples))
    return array.array("h", [round(sample * scale) for sample in samples])


def arpeggio(names, step, length, timbre=SOFT):
    return [tone(step * i, name, length, timbre) for i, name in enumerate(names)]


BUILT_IN = {
    "x-qaz-wm-chimes": arpeggio(["g4", "c5", "e5", "g5"], 0.11, 1.1, BELL),
    "x-qaz-wm-error": [tone(0, "e4", 0.26, REED), tone(0.15, "c4", 0.4, REED)],
    "x-qaz-wm-notify": [tone(0, "a5", 0.5, BELL), tone(0.12, "e6", 0.6, BELL, 0.8)],
    "x-qaz-wm-slide": [breath(0, 0.34, 500, 2400)],
}

THEME = {
    "menu-popup": [tone(0, "e6", 0.12, WOOD), tone(0.0, "b5", 0.12, SOFT, 0.4)],
    "item-selected": [tone(0, "a5", 0.1, WOOD), tone(0.05, "e6", 0.14, WOOD)],
    "window-new": [tone(0, "c5", 0.22, SOFT, to="g5"), tone(0.1, "e6", 0.3, SOFT, 0.6)],
    "window-close": [tone(0, "g5", 0.24, SOFT, to="c5"), tone(0.12, "c5", 0.22, SOFT, 0.6)],
    "window-minimized": [tone(0, "e5", 0.28, SOFT, to="a4"), breath(0, 0.28, 1800, 500, 0.5)],
    "window-unminimized": [tone(0, "a4", 0.28, SOFT, to="e5"), breath(0, 0.28, 500, 1800, 0.5)],
    "window-maximized": [tone(0, "d5", 0.2, SOFT, to="a5"), tone(0.1, "d6", 0.3, BELL, 0.5)],
    "window-unmaximized": [tone(0, "a5", 0.2, SOFT, to="d5"), tone(0.1, "d5", 0.3, BELL, 0.5)],
    "desktop-login": arpeggio(["c5", "e5", "g5", "b5", "e6"], 0.13, 0.9, BELL) + [tone(0, "c4", 1.4, SOFT, 0.6)],
    "desktop-logout": arpeggio(["e6", "b5", "g5", "c5"], 0.13, 0.9, BELL) + [tone(0.3, "c4", 1.1, SOFT, 0.6)],
    "desktop-screen-lock": [tone(0, "d5", 0.12, WOOD), tone(0.11, "a4", 0.3, WOOD), tone(0.11, "d4", 0.4, SOFT, 0.6)],
    "dialog-error": [tone(0, "f4", 0.3, REED), tone(0.16, "c4", 0.45, REED), tone(0.16, "f#4", 0.4, SOFT, 0.4)],
    "window-attention-active": [tone(0, "g5", 0.35, BELL), tone(0.14, "g5", 0.35, BELL), tone(0.28, "d6", 0.5, BELL)],
    "desktop-switch-left": [breath(0, 0.3, 2200, 600), tone(0.02, "e5", 0.26, SOFT, 0.25, to="b4")],
}


def write(path, notes):
    path.parent.mkdir(parents=True, exist_ok=True)
    samples = rendered(notes)
    if sys.byteorder == "big":
        samples.byteswap()
    with wave.open(str(path), "wb") as file:
        file.setnchannels(1)
        file.setsampwidth(2)
        file.setframerate(RATE)
        file.writeframes(samples.tobytes())


def main():
    here = pathlib.Path(__file__).resolve().parent
    for name, notes in BUILT_IN.items():
        write(here / f"{name}.wav", notes)
    for name, notes in THEME.items():
        write(here / "qaz-glass" / "stereo" / f"{name}.wav", notes)


main()
