#!/usr/bin/env python3
"""Draws the cursor theme qaz-arrow beside this script as Xcursor files.

A cursor is a list of layers on a field of 32 units, each a colour and a distance function (negative inside).
Distances give smooth edges at every size, an outline round all layers together, and a soft shadow.
"""

import math
import pathlib
import struct

SIZES = 24, 32, 48
INK, WHITE, ACCENT, GOOD, BAD = (45, 55, 72), (255, 255, 255), (47, 134, 216), (63, 165, 82), (217, 80, 74)
OUTLINE = 1.5
FRAMES, FRAME_MS = 8, 90


# Shapes: functions from a point to its distance.
def polygon(*points):
    def distance(x, y):
        nearest, inside = 1e9, False
        for (ax, ay), (bx, by) in zip(points, points[1:] + points[:1]):
            share = ((x - ax) * (bx - ax) + (y - ay) * (by - ay)) / ((bx - ax) ** 2 + (by - ay) ** 2)
            share = min(max(share, 0), 1)
            nearest = min(nearest, math.hypot(x - ax - share * (bx - ax), y - ay - share * (by - ay)))
            if (ay > y) != (by > y) and x < (bx - ax) * (y - ay) / (by - ay) + ax:
                inside = not inside
        return -nearest if inside else nearest
    return distance


def line(width, *points):
    def distance(x, y):
        nearest = 1e9
        for (ax, ay), (bx, by) in zip(points, points[1:]):
            share = ((x - ax) * (bx - ax) + (y - ay) * (by - ay)) / ((bx - ax) ** 2 + (by - ay) ** 2)
            share = min(max(share, 0), 1)
            nearest = min(nearest, math.hypot(x - ax - share * (bx - ax), y - ay - share * (by - ay)))
        return nearest - width / 2
    return distance


def disc(cx, cy, radius):
    return lambda x, y: math.hypot(x - cx, y - cy) - radius


def ring(cx, cy, radius, width):
    return lambda x, y: abs(math.hypot(x - cx, y - cy) - radius) - width / 2


def box(left, top, right, bottom, radius):
    cx, cy, w, h = (left + right) / 2, (top + bottom) / 2, (right - left) / 2 - radius, (bottom - top) / 2 - radius

    def distance(x, y):
        dx, dy = abs(x - cx) - w, abs(y - cy) - h
        return math.hypot(max(dx, 0), max(dy, 0)) + min(max(dx, dy), 0) - radius
    return distance


def join(*shapes):
    return lambda x, y: min(shape(x, y) for shape in shapes)


def turned(shape, degrees, cx=16, cy=16):
    c, s = math.cos(math.radians(degrees)), math.sin(math.radians(degrees))
    return lambda x, y: shape(cx + (x - cx) * c + (y - cy) * s, cy - (x - cx) * s + (y - cy) * c)


def moved(shape, dx, dy, scale=1.0):
    return lambda x, y: shape((x - dx) / scale, (y - dy) / scale) * scale


ARROW = polygon((5, 3.5), (5, 25), (10.2, 20.4), (13.6, 27.6), (17.4, 25.8), (14.1, 18.8), (20.6, 18.6))
HEAD = polygon((16, 3), (22, 10.5), (10, 10.5))
DOUBLE = join(HEAD, turned(HEAD, 180), line(3, (16, 9), (16, 23)))
SINGLE = join(polygon((16, 4), (23.5, 13.5), (8.5, 13.5)), line(5, (16, 12), (16, 25)))
FLEUR = join(*(turned(polygon((16, 2.5), (20.5, 8.5), (11.5, 8.5)), a) for a in (0, 90, 180, 270)),
             line(2.6, (16, 7), (16, 25)), line(2.6, (7, 16), (25, 16)))
CROSS = join(*(turned(line(2, (16, 3.5), (16, 12.5)), a) for a in (0, 90, 180, 270)), disc(16, 16, 1.2))
BEAM = join(line(2, (16, 6), (16, 26)), line(2, (12, 4), (14.4, 4), (16, 6), (17.6, 4), (20, 4)),
            line(2, (12, 28), (14.4, 28), (16, 26), (17.6, 28), (20, 28)))
PALM = join(box(9.5, 15, 24, 27.5, 5), line(4, (8, 17.5), (12.5, 23)))
POINTING = join(PALM, line(4, (13, 5.5), (13, 18)), *(line(3.6, (x, y), (x, 18)) for x, y in
                                                     ((16.8, 12.5), (20.1, 13), (22.6, 14.5))))
OPEN = join(PALM, *(line(3.7, (x, y), (x, 18)) for x, y in ((11.6, 8.5), (15.2, 6.2), (18.8, 6.8), (22.2, 9.5))))
CLOSED = join(PALM, *(line(3.8, (x, y), (x, 18)) for x, y in ((11.8, 14.2), (15.2, 13), (18.8, 13.2), (22, 14.4))))
FORBIDDEN = join(ring(16, 16, 10.2, 3.6), line(3.4, (9, 9), (23, 23)))
LENS = join(ring(13.5, 13.5, 8, 2.8), line(4.2, (20.5, 20.5), (26.5, 26.5)))
MENU = box(16.5, 14.5, 28.5, 28.5, 1.8)
LINK = join(line(2.6, (17.5, 28), (17.5, 24), (20, 21.5), (24, 21.5)), polygon((23.4, 17), (29, 21.5), (23.4, 26)))
FINGER_GAPS = [line(0.8, (x, 15.5), (x, 19)) for x in (14.9, 18.5, 21.4)]
PLUS = join(line(2.4, (22, 17), (22, 27)), line(2.4, (17, 22), (27, 22)))
QUESTION = join(line(2.6, (18.6, 17.5), (20, 15.3), (22.6, 14.8), (25.2, 16.2), (25.4, 18.6), (22.4, 21), (22.2, 23)),
                disc(22.2, 27, 1.7))
PENCIL = join(polygon((4.5, 27.5), (7, 19.5), (12.5, 25)), line(7.4, (11.8, 20.2), (23.5, 8.5)))


def spinner(cx, cy, radius, width):
    """Frames of dots that run round in a circle; the leading dot is the largest."""
    for frame in range(FRAMES):
        dots = []
        for i in range(FRAMES):
            angle = 2 * math.pi * (frame - i) / FRAMES - math.pi / 2
            colour = tuple(round(a + (b - a) * i / FRAMES) for a, b in zip(ACCENT, (198, 214, 232)))
            dots.append((colour, disc(cx + radius * math.cos(angle), cy + radius * math.sin(angle),
                                      width * (1 - 0.5 * i / FRAMES))))
        yield dots


def with_arrow(*layers):
    return [(INK, ARROW), *layers]


def badge(colour, sign):
    return with_arrow((colour, disc(22, 22, 7.2)), (WHITE, sign))


# Name: hot spot, frames of layers, aliases.
CURSORS = {
    "left_ptr": ((5, 3.5), [with_arrow()], "default arrow top_left_arrow size-none"),
    "right_ptr": ((27, 3.5), [[(INK, lambda x, y: ARROW(32 - x, y))]], "draft_large draft_small"),
    "watch": ((16, 16), list(spinner(16, 16, 9.5, 3)), "wait"),
    "left_ptr_watch": ((5, 3.5), [with_arrow(*dots) for dots in spinner(23.5, 21.5, 5, 1.8)], "progress half-busy"),
    "question_arrow": ((5, 3.5), [with_arrow((ACCENT, QUESTION))], "help whats_this left_ptr_help"),
    "copy": ((5, 3.5), [badge(GOOD, moved(PLUS, 4.4, 4.4, 0.8))], "dnd-copy"),
    "alias": ((5, 3.5), [with_arrow((ACCENT, LINK))], "link dnd-link"),
    "no-drop": ((5, 3.5), [badge(BAD, line(2.4, (18.5, 22), (25.5, 22)))], "dnd-no-drop dnd-none"),
    "context-menu": ((5, 3.5), [with_arrow((INK, MENU), *((WHITE, line(1.5, (19.2, y), (25.8, y)))
                                                         for y in (18, 21.5, 25)))], ""),
    "xterm": ((16, 16), [[(INK, BEAM)]], "text ibeam"),
    "vertical-text": ((16, 16), [[(INK, turned(BEAM, 90))]], ""),
    "hand2": ((13, 4), [[(INK, POINTING), *((WHITE, gap) for gap in FINGER_GAPS)]], "pointer pointing_hand hand hand1"),
    "grab": ((16, 16), [[(INK, OPEN), *((WHITE, line(0.8, (x, 13), (x, 18))) for x in (13.4, 17, 20.5))]],
             "openhand"),
    "grabbing": ((16, 16), [[(INK, CLOSED), *((WHITE, line(0.8, (x, 15), (x, 18))) for x in (13.5, 17, 20.4))]],
                 "closedhand dnd-move"),
    "crosshair": ((16, 16), [[(INK, CROSS)]], "cross tcross cross_reverse diamond_cross"),
    "plus": ((16, 16), [[(INK, join(line(4.4, (16, 6), (16, 26)), line(4.4, (6, 16), (26, 16))))]], "cell"),
    "fleur": ((16, 16), [[(INK, FLEUR)]], "move size_all all-scroll"),
    "sb_v_double_arrow": ((16, 16), [[(INK, DOUBLE)]], "ns-resize n-resize s-resize row-resize size_ver split_v "
                          "v_double_arrow double_arrow top_side bottom_side"),
    "sb_h_double_arrow": ((16, 16), [[(INK, turned(DOUBLE, 90))]], "ew-resize e-resize w-resize col-resize size_hor "
                          "split_h h_double_arrow left_side right_side"),
    "bd_double_arrow": ((16, 16), [[(INK, turned(DOUBLE, -45))]], "nwse-resize nw-resize se-resize size_fdiag "
                        "top_left_corner bottom_right_corner"),
    "fd_double_arrow": ((16, 16), [[(INK, turned(DOUBLE, 45))]], "nesw-resize ne-resize sw-resize size_bdiag "
                        "top_right_corner bottom_left_corner"),
    "sb_up_arrow": ((16, 4), [[(INK, SINGLE)]], "up_arrow center_ptr based_arrow_up"),
    "sb_right_arrow": ((28, 16), [[(INK, turned(SINGLE, 90))]], "right_tee"),
    "sb_down_arrow": ((16, 28), [[(INK, turned(SINGLE, 180))]], "down_arrow based_arrow_down"),
    "sb_left_arrow": ((4, 16), [[(INK, turned(SINGLE, 270))]], "left_tee"),
    "not-allowed": ((16, 16), [[(BAD, FORBIDDEN)]], "crossed_circle forbidden circle"),
    "X_cursor": ((16, 16), [[(INK, join(line(4.6, (7.5, 7.5), (24.5, 24.5)), line(4.6, (24.5, 7.5), (7.5, 24.5))))]],
                 "pirate"),
    "pencil": ((4.5, 27.5), [[(INK, PENCIL), (ACCENT, line(3.4, (13.5, 18.5), (21, 11)))]], "draft"),
    "zoom-in": ((13.5, 13.5), [[(INK, LENS), (INK, line(2, (9.8, 13.5), (17.2, 13.5))),
                                (INK, line(2, (13.5, 9.8), (13.5, 17.2)))]], "zoom_in"),
    "zoom-out": ((13.5, 13.5), [[(INK, LENS), (INK, line(2, (9.8, 13.5), (17.2, 13.5)))]], "zoom_out"),
}


def rendered(layers, size):
    """Premultiplied ARGB words of a square image."""
    scale = size / 32
    everything = join(*(shape for _, shape in layers))
    words = []
    for row in range(size):
        for column in range(size):
            x, y = (column + 0.5) / scale, (row + 0.5) / scale
            shade = min(max((2.6 - everything(x - 0.6, y - 1.2)) / 3.6, 0), 1)
            pixel = [0, 0, 0, 0.34 * shade * shade]
            edge = everything(x, y)
            for colour, distance in [(WHITE, edge - OUTLINE)] + [(c, shape(x, y)) for c, shape in layers]:
                cover = min(max(0.5 - distance * scale, 0), 1)
                for i, value in enumerate((*colour, 255)):
                    pixel[i] = value / 255 * cover + pixel[i] * (1 - cover)
            red, green, blue, alpha = (round(255 * value) for value in pixel)
            words.append(alpha << 24 | red << 16 | green << 8 | blue)
    return words


def xcursor(hot_spot, frames):
    image_type, position = 0xFFFD0002, 16 + 12 * len(SIZES) * len(frames)
    contents, chunks = b"", b""
    for size in SIZES:
        hot = [min(int(value * size / 32), size - 1) for value in hot_spot]
        for layers in frames:
            contents += struct.pack("<3I", image_type, size, position + len(chunks))
            chunks += struct.pack("<9I", 36, image_type, size, 1, size, size, *hot, FRAME_MS if len(frames) > 1 else 0)
            chunks += struct.pack(f"<{size * size}I", *rendered(layers, size))
    return b"Xcur" + struct.pack("<3I", 16, 0x10000, len(SIZES) * len(frames)) + contents + chunks


def main():
    directory = pathlib.Path(__file__).resolve().parent / "qaz-arrow" / "cursors"
    directory.mkdir(parents=True, exist_ok=True)
    for name, (hot_spot, frames, aliases) in CURSORS.items():
        (directory / name).write_bytes(xcursor(hot_spot, frames))
        for alias in aliases.split():
            (directory / alias).unlink(missing_ok=True)
            (directory / alias).symlink_to(name)


main()
