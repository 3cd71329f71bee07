#!/usr/bin/env python3
"""Draws the XPM images of the decoration themes beside this script.

Each theme is one function of a point of a window, so that neighbouring images join without a seam: the
images are cut out of it. The title image is tiled from the corner of the window, not of the title, so its
first rows are those that continue it below. A button image holds the normal state above the pressed one. It is
opaque, because it is copied over the title and a transparent pixel would punch a hole into it. The title runs
to the window's edge but for (right - left + 1) columns, so a right frame of 2 * left - 1 looks as broad as the
left one.
"""

import math
import pathlib

SAMPLES = 5  # per pixel and direction
WIDTH = 200  # of the window that the images are cut from
CORNER = 16


def colour(text):
    return tuple(int(text[i:i + 2], 16) for i in (1, 3, 5))


def mix(first, second, share):
    share = min(max(share, 0.0), 1.0)
    return tuple(a + (b - a) * share for a, b in zip(first, second))


def ramp(top, bottom):
    """A vertical gradient: a function of 0 (top) to 1 (bottom)."""
    top, bottom = colour(top), colour(bottom)
    return lambda share: mix(top, bottom, share)


def depth(x, y, left, top, right, bottom, radius):
    """How far a point lies inside a rounded rectangle; negative outside."""
    dx = max(left + radius - x, x - right + radius, 0)
    dy = max(top + radius - y, y - bottom + radius, 0)
    if dx and dy:
        return radius - math.hypot(dx, dy)
    return min(x - left, right - x, y - top, bottom - y)


def stroke(x, y, start, end):
    """The distance from a point to a line between two points."""
    dx, dy = end[0] - start[0], end[1] - start[1]
    share = ((x - start[0]) * dx + (y - start[1]) * dy) / (dx * dx + dy * dy)
    share = min(max(share, 0), 1)
    return math.hypot(x - start[0] - share * dx, y - start[1] - share * dy)


def glyph(name, x, y):
    """Whether a point, relative to the button's centre, belongs to its sign."""
    outside = max(abs(x), abs(y)) > 3.5
    if name == "minimizeA":
        return not outside and y > 1.5
    if name == "maximizeA":
        return not outside and (max(abs(x), abs(y)) > 2.5 or y < -1.5)
    return min(stroke(x, y, (-3, -3), (3, 3)), stroke(x, y, (-3, 3), (3, -3))) <= 0.85


class Slate:
    """Flat and dark, one pixel of frame."""
    frame, left, right, title, button = 3, 1, 1, 27, 19
    body = staticmethod(ramp("#566577", "#36414d"))

    def window(self, x, y):
        inside = depth(x, y, 0, 0, WIDTH, 999, 5)
        if inside < 0:
            return None
        if inside < 1:
            return colour("#1d242c")
        if y < 2:
            return colour("#8696a8")
        if y > self.frame + self.title - 1:
            return colour("#1d242c")
        return self.body((y - 2) / (self.frame + self.title - 2))

    def face(self, name, x, y, pressed, ground):
        close = name == "closeA"
        inside = depth(x, y, -7.5, -7.5, 7.5, 7.5, 3)
        if inside > 0 and (close or pressed):
            ground = colour(("#a83a33" if pressed else "#d9574e") if close else "#27303a")
        return colour("#f4f7fa") if glyph(name, x, y) else ground


class Meadow:
    """Light and round, under a coat of gloss."""
    frame, left, right, title, button = 5, 2, 3, 25, 19
    gloss = staticmethod(ramp("#e4f7d3", "#b9e3a0"))
    body = staticmethod(ramp("#9bd587", "#7cc46c"))

    def window(self, x, y):
        bar = self.frame + self.title
        inside = depth(x, y, 0, 0, WIDTH, 999, 8)
        if inside < 0:
            return None
        if inside < 1 or bar - 1 < y < bar:
            return colour("#3f7f3c")
        if inside < 2:
            return colour("#f3fcec")
        return self.gloss(2 * y / bar) if 2 * y < bar else self.body(2 * y / bar - 1)

    def face(self, name, x, y, pressed, ground):
        distance = math.hypot(x, y)
        if distance > 8.5:
            return ground
        if distance > 7.5:
            return colour("#3f7f3c")
        top, bottom = ("#ffc4a8", "#ef7a5c") if name == "closeA" else ("#ffffff", "#d5efc4")
        if pressed:
            top, bottom = bottom, top
        return colour("#2b5a2c") if glyph(name, x, y) else ramp(top, bottom)((y + 7) / 14)


class Amber:
    """Carved and warm: bevels, a brushed bar and square keys."""
    frame, left, right, title, button = 4, 3, 5, 27, 19
    wood = staticmethod(ramp("#d7a768", "#a06a34"))
    bar = staticmethod(ramp("#ffdc8a", "#e59a2b"))

    def window(self, x, y):
        inside = depth(x, y, 0, 0, WIDTH, 999, 3)
        if inside < 0:
            return None
        lit = min(x, y) <= min(WIDTH - x, 999 - y)
        if inside < 1:
            return colour("#5d3a17")
        if inside < 2:
            return colour("#f3d3a0" if lit else "#835325")
        bar = self.frame + self.title
        if y < self.frame or not self.left <= x <= WIDTH - self.right:
            return self.wood(y / bar)
        if y < self.frame + 1 or bar - 1 < y:
            return colour("#6d451d")
        shade = self.bar((y - self.frame) / self.title)
        return mix(shade, colour("#b4701a"), 0.22) if int(y) % 3 == 0 else shade

    def face(self, name, x, y, pressed, ground):
        inside = depth(x, y, -8.5, -9.5, 8.5, 9.5, 1.5)
        if inside < 0:
            return ground
        if inside < 1:
            return colour("#5d3a17")
        if inside < 2:
            return colour("#fff3d2" if (x + y < 0) != pressed else "#a86f2c")
        if glyph(name, x, y):
            return colour("#8c1f12" if name == "closeA" else "#4a2c0f")
        return ramp("#d99a45", "#f0bd68")((y + 8) / 16) if pressed else ramp("#ffe7b0", "#efb552")((y + 8) / 16)


def rendered(width, height, paint):
    """Rows of colours; None where most of a pixel is transparent."""
    rows = []
    steps = [(i + 0.5) / SAMPLES for i in range(SAMPLES)]
    for y in range(height):
        row = []
        for x in range(width):
            seen = [c for c in (paint(x + dx, y + dy) for dy in steps for dx in steps) if c]
            row.append(tuple(round(sum(c[i] for c in seen) / len(seen)) for i in range(3))
                       if 2 * len(seen) > SAMPLES ** 2 else None)
        rows.append(row)
    return rows


def xpm(name, rows):
    digits = ".+@#$%&*=-;>,')!~{]^/(_:<[}|1234567890abcdefghijklmnopqrstuvwxyz"
    colours = sorted({c for row in rows for c in row}, key=lambda c: c or (-1,))
    keys = {c: digits[i % len(digits)] + digits[i // len(digits)] for i, c in enumerate(colours)}
    lines = [f"{len(rows[0])} {len(rows)} {len(colours)} 2"]
    lines += [f"{keys[c]} c " + ("None" if c is None else "#%02x%02x%02x" % c) for c in colours]
    lines += ["".join(keys[c] for c in row) for row in rows]
    return "/* XPM */\nstatic char *%s[] = {\n%s\n};\n" % (name, ",\n".join(f'"{line}"' for line in lines))


def images(theme):
    bar = theme.frame + theme.title
    cuts = {  # x, y, width, height in the window
        "frameATL": (0, 0, CORNER, bar),
        "frameAT": (96, 0, 16, theme.frame),
        "frameATR": (WIDTH - CORNER, 0, CORNER, bar),
        "frameAL": (0, bar, theme.left, 16),
        "frameAR": (WIDTH - theme.right, bar, theme.right, 16),
    }
    for name, (left, top, width, height) in cuts.items():
        yield name, rendered(width, height, lambda x, y: theme.window(left + x, top + y))
    yield "titleAT", rendered(16, theme.title, lambda x, y: theme.window(
        96 + x, y if y >= theme.frame else y + theme.title))
    for name in "minimizeA", "maximizeA", "closeA":
        def paint(x, y):
            pressed, y = divmod(y, theme.title)
            return theme.face(name, x - theme.button / 2, y - theme.title / 2, bool(pressed),
                              theme.window(96 + x, theme.frame + y))
        yield name, rendered(theme.button, 2 * theme.title, paint)


def main():
    for theme in Slate(), Meadow(), Amber():
        directory = pathlib.Path(__file__).resolve().parent / type(theme).__name__
        directory.mkdir(exist_ok=True)
        for name, rows in images(theme):
            (directory / f"{name}.xpm").write_text(xpm(name, rows))


main()
