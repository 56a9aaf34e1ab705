#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes the GIF files of this folder, byte by byte, so that each holds exactly the case of its name.

Run it without arguments from anywhere. draw_strips.py then draws what a browser makes of them.
"""

import struct
from pathlib import Path

FOLDER = Path(__file__).resolve().parent

RED, GREEN, BLUE, WHITE = (208, 48, 40), (40, 160, 72), (48, 88, 200), (248, 248, 240)
YELLOW, BLACK, GREY, PINK = (240, 200, 40), (16, 16, 24), (136, 144, 152), (232, 120, 184)
PALETTE = [RED, GREEN, BLUE, WHITE, YELLOW, BLACK, GREY, PINK]
R, G, B, W, Y, K, S, P = range(8)
SCREEN = (24, 16)


def palette_bits(palette):
    return max(1, (len(palette) - 1).bit_length())


def packed(palette):
    size = 1 << palette_bits(palette)
    return b"".join(bytes(c) for c in palette) + bytes(3 * (size - len(palette)))


def compressed(pixels, bits):
    """LZW without a dictionary: cleared before the codes could grow."""
    bits = max(2, bits)
    clear, end, width = 1 << bits, (1 << bits) + 1, bits + 1
    codes = []
    for i, pixel in enumerate(pixels):
        if i % (clear - 2) == 0:
            codes.append(clear)
        codes.append(pixel)
    codes += [end] if pixels else [clear, end]
    number = sum(code << (width * i) for i, code in enumerate(codes))
    data = number.to_bytes((width * len(codes) + 7) // 8, "little")
    blocks = [data[i:i + 255] for i in range(0, len(data), 255)]
    return bytes([bits]) + b"".join(bytes([len(b)]) + b for b in blocks) + b"\0"


def control(delay=10, disposal=0, clear=None):
    flags = disposal << 2 | (clear is not None)
    return b"\x21\xf9\x04" + struct.pack("<BHB", flags, delay, clear or 0) + b"\0"


def interlaced(rows):
    order = [*range(0, len(rows), 8), *range(4, len(rows), 8), *range(2, len(rows), 4), *range(1, len(rows), 2)]
    return [rows[y] for y in order]


def image(rect, paint, palette=None, interlace=False, bits=None):
    """`paint` is one index or a function of x and y inside the image."""
    left, top, width, height = rect
    at = paint if callable(paint) else lambda x, y: paint
    rows = [[at(x, y) for x in range(width)] for y in range(height)]
    if interlace:
        rows = interlaced(rows)
    bits = bits or palette_bits(palette or PALETTE)
    flags = (0x80 | palette_bits(palette) - 1 if palette else 0) | (0x40 if interlace else 0)
    return (b"\x2c" + struct.pack("<HHHHB", left, top, width, height, flags)
            + (packed(palette) if palette else b"") + compressed([p for row in rows for p in row], bits))


def gif(*parts, screen=SCREEN, palette=PALETTE, background=Y, version=b"GIF89a", end=b"\x3b"):
    flags = 0x70 | (0x80 | palette_bits(palette) - 1 if palette else 0)
    return (version + struct.pack("<HHBBB", *screen, flags, background, 0)
            + (packed(palette) if palette else b"") + b"".join(parts) + end)


def loop(times):
    return b"\x21\xff\x0bNETSCAPE2.0\x03\x01" + struct.pack("<H", times) + b"\0"


def checks(a, b):
    return lambda x, y: a if (x // 2 + y // 2) % 2 else b


def bands(*colors):
    return lambda x, y: colors[y % len(colors)]


def ring(color, hole):
    return lambda x, y: hole if 2 <= x <= 4 and 2 <= y <= 3 else color


WHOLE = (0, 0, *SCREEN)

FILES = {
    # Every disposal after and before every other, over a background that must not shine through.
    "disposals": gif(
        loop(0),
        control(disposal=1, clear=K), image((2, 1, 18, 12), checks(B, K)),
        control(disposal=0, clear=K), image((0, 0, 8, 6), ring(R, K)),
        control(disposal=2, clear=K), image((6, 4, 10, 8), ring(G, K)),
        control(disposal=3, clear=K), image((4, 2, 12, 6), ring(W, K)),
        control(disposal=3, clear=K), image((12, 6, 8, 8), ring(S, K)),
        control(disposal=2, clear=K), image((1, 9, 8, 6), ring(P, K)),
        control(disposal=1, clear=K), image((14, 0, 10, 5), checks(Y, K)),
        control(disposal=0), image((20, 12, 4, 4), R)),
    "restored-first-image": gif(
        control(disposal=3), image((2, 2, 12, 8), checks(R, W)),
        control(disposal=3), image((8, 6, 12, 8), G),
        control(disposal=1), image((0, 0, 4, 4), B)),
    "uncovered-canvas": gif(
        control(disposal=1), image((4, 3, 8, 6), R),
        control(disposal=2), image((10, 6, 10, 8), G),
        control(disposal=2), image((0, 0, 6, 6), B),
        control(disposal=0), image((18, 0, 6, 4), S)),
    "interlaced": gif(
        control(disposal=1), image((0, 0, 24, 16), bands(R, G, B, W, Y), interlace=True),
        control(disposal=2, clear=K), image((3, 2, 9, 13), bands(K, P, S), interlace=True),
        control(disposal=1), image((14, 1, 9, 3), bands(R, W, B), interlace=True),
        control(disposal=1), image((2, 14, 20, 1), G, interlace=True)),
    "local-palettes": gif(
        control(disposal=1), image(WHOLE, checks(0, 1), palette=[PINK, GREY]),
        control(disposal=1, clear=2), image((4, 4, 12, 8), bands(0, 1, 2), palette=[BLACK, YELLOW, RED]),
        control(disposal=1), image((0, 0, 6, 6), B),
        control(disposal=1), image((18, 10, 6, 6), lambda x, y: x + 6 * y,
                                   palette=[(7 * i, 255 - 7 * i, 128) for i in range(36)])),
    "local-palettes-alone": gif(
        control(disposal=1), image(WHOLE, checks(0, 1), palette=[BLUE, WHITE]),
        control(disposal=1, clear=0), image((4, 4, 12, 8), bands(0, 1), palette=[BLACK, GREEN]), palette=None),
    "delays": gif(*(part for delay, color in [(0, R), (1, G), (2, B), (3, W), (10, Y), (65535, K)]
                    for part in (control(delay=delay, disposal=1), image((0, 0, 8, 8), color))), screen=(8, 8)),
    "no-control": gif(image(WHOLE, R), image((4, 4, 8, 8), G), version=b"GIF87a"),
    # A control block counts for the next image alone.
    "control-once": gif(
        control(disposal=1), image(WHOLE, checks(B, W)),
        control(delay=30, disposal=2, clear=G), image((2, 2, 8, 8), bands(R, G)),
        image((6, 6, 12, 8), bands(G, S))),
    "one-image": gif(control(delay=50, disposal=2, clear=K), image((4, 2, 16, 12), checks(G, K))),
    "outside-the-screen": gif(
        control(disposal=1), image(WHOLE, W),
        control(disposal=2), image((18, 10, 12, 12), checks(R, B)),
        control(disposal=3), image((0, 12, 40, 8), bands(G, Y)),
        control(disposal=1), image((30, 2, 5, 5), P),
        control(disposal=1), image((20, 0, 4, 30), bands(K, S), interlace=True)),
    # The rest holds what no encoder should write.
    "first-beyond-screen": gif(
        control(disposal=1), image((4, 4, 28, 18), checks(R, W)), control(), image((0, 0, 6, 6), G)),
    "screen-of-nothing": gif(
        control(disposal=1), image((3, 2, 20, 12), checks(R, W)), control(), image((0, 0, 6, 6), G), screen=(0, 0)),
    "reserved-disposals": gif(
        control(disposal=1), image(WHOLE, W),
        control(disposal=4), image((2, 2, 8, 8), R),
        control(disposal=5), image((4, 4, 8, 8), G),
        control(disposal=6), image((6, 6, 8, 8), B),
        control(disposal=7), image((8, 8, 8, 8), P),
        control(disposal=1), image((20, 0, 4, 4), K)),
    "index-beyond-palette": gif(
        control(disposal=1), image(WHOLE, checks(B, W)),
        control(disposal=1), image((2, 2, 8, 8), lambda x, y: x, palette=[RED, GREEN, YELLOW, BLACK], bits=3),
        screen=SCREEN),
    "no-palette": gif(control(disposal=1), image(WHOLE, checks(1, 5)), control(), image((2, 2, 4, 4), 2), palette=None),
    "empty-image": gif(
        control(disposal=1), image(WHOLE, W),
        control(disposal=2), image((2, 2, 0, 0), R),
        control(disposal=1), image((4, 4, 8, 8), G)),
    "first-image-empty": gif(
        control(disposal=1), image((0, 0, 0, 0), W),
        control(disposal=1), image((4, 4, 8, 8), G)),
}

if __name__ == "__main__":
    for name, data in FILES.items():
        (FOLDER / f"{name}.gif").write_bytes(data)
