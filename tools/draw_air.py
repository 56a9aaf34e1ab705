# SPDX-License-Identifier: GPL-3.0-or-later
"""The collection "air": what is in it and what comes through it: the sun's ultraviolet, pollen, dust, smoke and ash."""

import math

from ink import cloud, colour, lettering, outlined, radial, ribbon, sun, vertical, wave
from weather import gusts, mist_bars, whirl

# The colours of the five bands of the index of ultraviolet, light, full and outline, by the band's highest figure.
BANDS = ((2, "8fd06c", "3f9a3a", "1d5520"), (5, "ffe873", "f2bf16", "7a5c00"), (7, "ffc06a", "ee8216", "7a3c00"),
         (10, "ff8a78", "d62d2f", "6c0d14"), (99, "cfa3ec", "8a46bb", "421463"))
LEVELS = (("1-low", "4fae52"), ("2-moderate", "f2c21c"), ("3-high", "ee8216"), ("4-very-high", "d62d2f"))


# Ultraviolet ----------------------------------------------------------------------------------------------------------

def ultraviolet(figure):
    light, full, line = next(tones for highest, *tones in BANDS if figure <= highest)

    def paint(context, t):
        x, y, radius, rays = 32, 27.5, 15.5, 12
        for number in range(rays):
            angle = 2 * math.pi * (number + t) / rays

            def ray(c):
                c.move_to(x + (radius + 3.4) * math.cos(angle), y + (radius + 3.4) * math.sin(angle))
                c.line_to(x + (radius + 7.6) * math.cos(angle), y + (radius + 7.6) * math.sin(angle))
            ribbon(context, ray, 3.4, colour(full), colour(line), 1.0)
        outlined(context, lambda c: c.arc(x, y, radius, 0, 2 * math.pi),
                 radial(x, y, radius, (0, colour(light)), (1, colour(full))), colour(line), 1.3)
        lettering(context, f"{figure}+" if figure == 11 else str(figure), x, y, 17, (1, 1, 1, 1), colour(line), 1.6,
                  most=25)
        lettering(context, "UV", x, 56.6, 10.5, (1, 1, 1, 1), colour(line), 1.7)
    return paint


# Pollen ---------------------------------------------------------------------------------------------------------------

LEAF, LEAF_DARK, LEAF_LINE = colour("8fce63"), colour("3f8f3c"), colour("1f5424")
GRAIN, GRAIN_LINE = colour("ffd84a"), colour("8a6410")


def tree(context, t):
    context.translate(24, 0)

    def trunk(c):
        c.move_to(-2.6, 51)
        c.line_to(-1.6, 34)
        c.line_to(1.6, 34)
        c.line_to(2.6, 51)
        c.close_path()
    outlined(context, trunk, colour("a8733f"), colour("573211"), 1.2)
    sway = 0.8 * wave(t)

    def crown(c):
        for x, y, radius in ((-8 + sway, 28, 8.5), (8 + sway, 28, 8.5), (sway * 1.3, 17.5, 10.5), (sway, 30, 9)):
            c.new_sub_path()
            c.arc(x, y, radius, 0, 2 * math.pi)
    outlined(context, crown, vertical(8, 40, LEAF, LEAF_DARK), LEAF_LINE, 1.3)


def grass(context, t):
    context.translate(24, 51)
    for number, (lean, length) in enumerate(((-15, 27), (-7, 36), (1, 41), (9, 34), (16, 25))):
        tip = lean + 2.0 * wave(t, number / 9)

        def blade(c):
            c.move_to(lean * 0.18, 0)
            c.curve_to(lean * 0.2, -length * 0.4, lean * 0.5, -length * 0.7, tip, -length)
        ribbon(context, blade, 2.6, LEAF_DARK, LEAF_LINE, 1.0)
        context.save()
        context.translate(tip, -length)
        context.rotate(math.atan2(tip - lean * 0.5, length * 0.3))
        context.scale(1, 2.6)
        outlined(context, lambda c: c.arc(0, 0, 2.5, 0, 2 * math.pi), colour("dfc663"), colour("75591a"), 0.7)
        context.restore()


def weed(context, t):
    context.translate(24, 51)
    sway = 1.6 * wave(t)

    def stem(c):
        c.move_to(0, 0)
        c.curve_to(0, -14, sway * 0.4, -26, sway, -40)
    ribbon(context, stem, 3.0, LEAF_DARK, LEAF_LINE, 1.1)
    for side, y, reach in ((1, -8, 15), (-1, -14, 15), (1, -21, 12), (-1, -27, 10)):
        def leaf(c):
            c.move_to(sway * -y / 50, y)
            c.curve_to(side * reach * 0.4, y - 8, side * reach * 0.8, y - 7, side * reach, y - 3.5)
            c.curve_to(side * reach * 0.7, y + 2, side * reach * 0.3, y + 2, sway * -y / 50, y)
            c.close_path()
        outlined(context, leaf, vertical(y - 8, y + 2, LEAF, LEAF_DARK), LEAF_LINE, 1.1)
    for x, y, radius in ((0, -41, 4.2), (-4.6, -36.5, 3.4), (4.6, -36.5, 3.4)):
        outlined(context, lambda c: c.arc(sway + x, y, radius, 0, 2 * math.pi), colour("f3e28c"), colour("75591a"), 1.0)


def gauge(context, level):
    """Four fields, as many of them filled as the level says."""
    for number, (_, shade) in enumerate(LEVELS):
        filled = number <= level
        outlined(context, lambda c: c.rectangle(7 + 13 * number, 55.5, 10.6, 5.2),
                 colour(LEVELS[level][1]) if filled else colour("f3f5f7"), colour("33414f"), 1.1)


def pollen(plant, level):
    def paint(context, t):
        context.save()
        plant(context, t)
        context.restore()
        # Grains drift off to the right, more of them the higher the level.
        for number in range(3 + level):
            u = (t + number / (3 + level)) % 1.0
            x, y = 36 + 22 * u, 12 + (number * 17 % 37) + 3 * math.sin(2 * math.pi * (u + number * 0.3))
            size = 3.2 * min(1.0, 5 * (1 - u), 0.4 + 5 * u)
            outlined(context, lambda c: c.arc(x, y, size, 0, 2 * math.pi),
                     radial(x, y, max(size, 0.5), (0, colour("fff3b0")), (1, GRAIN)), GRAIN_LINE, 1.0)
        gauge(context, level)
    return paint


# Dust, smoke, ash -----------------------------------------------------------------------------------------------------

DUST = (colour("e3bd77"), colour("7d5417"), colour("fff0cf"))
ASH = (colour("8b8f98"), colour("33363d"))


def dust_haze(context, t):
    sun(context, 32, 22, 9.5, t, reach=0.8)
    for number, (y, left, right) in enumerate(((35, 10, 50), (43, 14, 57), (51, 7, 48), (59, 16, 53))):
        shift = 3.0 * wave(t, number / 4)
        ribbon(context, lambda c: (c.move_to(left + shift, y), c.line_to(right + shift, y)), 4.2, DUST[0], DUST[1], 1.05)


def haze(context, t):
    sun(context, 32, 21, 9.5, t, reach=0.8)
    mist_bars(context, t, ((36, 10, 50), (44.5, 14, 57), (53, 8, 49)))


def blowing_dust(context, t):
    gusts(context, t, DUST)
    for number, (y, phase) in enumerate(((57, 0.0), (54, 0.35), (59, 0.7), (16, 0.5))):
        u = (t + phase) % 1.0
        size = 1.9 * min(1.0, 6 * u, 6 * (1 - u))
        if size > 0.5:
            outlined(context, lambda c: c.arc(7 + 50 * u, y - 2.5 * math.sin(math.pi * u), size, 0, 2 * math.pi),
                     DUST[0], DUST[1], 0.9)


def dust_storm(context, t):
    """A wall of dust that rolls on."""
    def wall(c):
        for x, y, radius in ((14, 47, 10), (29, 47, 12), (45, 48, 11), (18, 30, 10.5), (34, 27, 13), (47, 34, 10), (28, 16, 9)):
            c.new_sub_path()
            angle = 2 * math.pi * t + x
            c.arc(x + 1.3 * math.cos(angle), y + 1.3 * math.sin(angle), radius, 0, 2 * math.pi)
        c.rectangle(8, 44, 46, 14)
    outlined(context, wall, vertical(6, 60, colour("f0d49a"), colour("b98238")), DUST[1], 1.3)
    for number, (x, y, radius) in enumerate(((17, 44, 6), (33, 42, 7.5), (47, 46, 5.5), (21, 29, 6), (38, 27, 7.5), (30, 15, 5))):
        turn = 2 * math.pi * (t + number / 6)
        ribbon(context, lambda c: c.arc(x, y, radius, turn, turn + 3.6), 2.2, colour("8f6322"), colour("8f6322", 0.0), 0)


def dust_devil(context, t):
    whirl(context, t, DUST[:2], top=8, bottom=58)


def smoke(context, t):
    def flame(c):
        lick = 1.5 * wave(t)
        c.move_to(32, 61)
        c.curve_to(22, 61, 20, 53, 25, 46)
        c.curve_to(26, 50, 28, 50, 29, 49)
        c.curve_to(29, 44, 32 + lick, 41, 33 + lick, 37)
        c.curve_to(39, 43, 45, 52, 41, 58)
        c.curve_to(39, 61, 36, 61, 32, 61)
        c.close_path()
    puffs = sorted((number + t) % 4 / 4 for number in range(4))
    for u in reversed(puffs):
        x, y = 33 + 15 * u * u + 2.5 * math.sin(2 * math.pi * u), 40 - 28 * u
        radius = 4.5 + 7.0 * u
        if u > 0.94:
            radius *= (1 - u) / 0.06
        outlined(context, lambda c: c.arc(x, y, max(radius, 0.3), 0, 2 * math.pi),
                 radial(x, y, max(radius, 0.3), (0, colour("d3d7dc")), (1, ASH[0])), ASH[1], 1.1)
    outlined(context, flame, vertical(37, 61, colour("ffd24a"), colour("ec5a1c")), colour("8c2c08"), 1.3)


def volcano(context, t):
    puffs = sorted((number + t) % 4 / 4 for number in range(4))
    for u in reversed(puffs):
        x, y = 31 + 13 * u * u, 33 - 21 * u
        radius = 4.5 + 7.2 * u
        if u > 0.94:
            radius *= (1 - u) / 0.06
        outlined(context, lambda c: c.arc(x, y, max(radius, 0.3), 0, 2 * math.pi),
                 radial(x, y, max(radius, 0.3), (0, colour("a9adb5")), (1, colour("63676f"))), colour("2a2d33"), 1.1)

    def mountain(c):
        c.move_to(5, 60)
        c.curve_to(15, 54, 20, 44, 24, 34)
        c.line_to(29, 36.5)
        c.line_to(33, 34)
        c.line_to(38, 36)
        c.curve_to(43, 46, 50, 55, 59, 60)
        c.close_path()
    outlined(context, mountain, vertical(34, 60, colour("9a7a66"), colour("5d4638")), colour("2f2119"), 1.3)
    glow = 0.5 + 0.5 * wave(t)
    shade = tuple(a + (b - a) * glow for a, b in zip(colour("ee5a1c"), colour("ffc23d")))

    def lava(c):
        c.move_to(29, 36.5)
        c.curve_to(29, 43, 26, 47, 28, 54)
        c.curve_to(31, 49, 31, 47, 33, 45)
        c.curve_to(35, 48, 37, 50, 38, 53)
        c.curve_to(38, 46, 35, 42, 33, 35)
        c.close_path()
    outlined(context, lava, shade, colour("8c2c08"), 0.9)


def ash_fall(context, t):
    for number, (x, phase) in enumerate(((14, 0.1), (21, 0.6), (28, 0.3), (35, 0.85), (42, 0.45), (49, 0.05), (53, 0.7))):
        u = (t + phase) % 1.0
        size = (2.5, 1.9)[number % 2] * min(1.0, 8 * (1 - u))
        outlined(context, lambda c: c.arc(x + 2.0 * math.sin(2 * math.pi * (u + number * 0.4)), 38 + 22 * u,
                                          max(size, 0.3), 0, 2 * math.pi), ASH[0], ASH[1], 1.0)
    cloud(context, 32, 39, 1.28, "storm")


TABLE = {f"uv-{figure:02}": (ultraviolet(figure), 10, 8, 32) for figure in range(1, 12)}
TABLE.update({f"pollen-{name}-{level}": (pollen(plant, number), 12, 8, 40)
              for name, plant in (("tree", tree), ("grass", grass), ("weed", weed))
              for number, (level, _) in enumerate(LEVELS)})
TABLE.update({
    "haze": (haze, 14, 8, 48),
    "dust-haze": (dust_haze, 14, 8, 48),
    "blowing-dust": (blowing_dust, 12, 8, 32),
    "dust-storm": (dust_storm, 12, 8, 40),
    "dust-devil": (dust_devil, 14, 7, 32),
    "smoke": (smoke, 12, 8, 48),
    "volcano": (volcano, 12, 8, 56),
    "ash-fall": (ash_fall, 14, 8, 48),
})
