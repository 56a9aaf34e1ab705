# SPDX-License-Identifier: GPL-3.0-or-later
"""What moves in more than one collection: rain, snow and hail that fall in a loop, flashes, mist, gusts, waves.

Times are shares of the loop, 0 to 1; positions are pixels in a field of 64 x 64.
"""

import math

from ink import (SLANT, colour, drop, flake, mist_bar, outlined, pellet, radial, ribbon, streak, wave)


# Falling things -------------------------------------------------------------------------------------------------------

def falling(t, columns, top, bottom, cycles=1):
    """Yields (x, y, size) for each (x at the top, phase); things shrink away over the last part of their fall."""
    for x, phase in columns:
        u = (t * cycles + phase) % 1.0
        y = top + u * (bottom - top)
        size = 1.0 if u < 0.86 else max(0.0, 1 - (u - 0.86) / 0.14 * 0.75)
        yield x - SLANT * (y - top), y, size, u


def drops(context, t, columns, size=1.0, top=38, bottom=63, cycles=1):
    for x, y, shrink, _ in falling(t, columns, top, bottom, cycles):
        drop(context, x, y, size * shrink)


def streaks(context, t, columns, top=38, bottom=65, cycles=1, length=8.0):
    for x, y, _, _ in falling(t, columns, top, bottom, cycles):
        end = min(y, 61.5)
        streak(context, x + SLANT * (y - end), end, max(0.6, length - (y - end)))


def flakes(context, t, columns, size=5.0, top=36, bottom=63):
    for number, (x, y, shrink, u) in enumerate(falling(t, columns, top, bottom)):
        sway = 1.8 * math.sin(2 * math.pi * (u + 0.3 * number))
        # Sixty degrees bring a crystal back onto itself.
        flake(context, x + SLANT * (y - top) + sway, y, size * shrink, turn=math.pi / 3 * (u + 0.5 * number))


LIGHT_RAIN = ((25, 0.62), (34, 0.20), (43, 0.50))
RAIN = ((19, 0.35), (28, 0.72), (37, 0.25), (46, 0.58), (50, 0.02))
HEAVY_RAIN = ((16, 0.05), (23, 0.55), (30, 0.25), (37, 0.80), (44, 0.42), (51, 0.95), (55, 0.65))


def hailstones(context, t, stones=((17, 0.40), (25, 0.90), (34, 0.30), (43, 0.62), (48, 0.12)), top=36):
    for number, (x, phase) in enumerate(stones):
        u = (t + phase) % 1.0
        radius = (3.9, 3.2)[number % 2]
        ground = 60.0 - radius
        if u < 0.58:
            y = top + (ground - top) * (u / 0.58) ** 1.6
            pellet(context, x - SLANT * (y - top), y, radius)
        else:  # one bounce, rolling off
            v = (u - 0.58) / 0.42
            pellet(context, x - SLANT * (ground - top) - 3.5 * v, ground - 13 * v * (1 - v), radius * (1 - 0.8 * v ** 3))


def ice_ground(context, t):
    """A sheet of ice along the ground, with a glint that wanders over it."""
    def sheet(c):
        c.move_to(7, 58.5)
        c.line_to(57, 58.5)
    ribbon(context, sheet, 3.6, colour("cfeafa"), colour("4a87b8"), 1.0)
    glint(context, 14 + 36 * t, 57.6, 4.6 * (0.25 + 0.75 * math.sin(math.pi * t)))


# Lights ---------------------------------------------------------------------------------------------------------------

def flash(t):
    """Two quick flashes at the loop's start, then amber: full at once, so that a still picture shows them."""
    return {0: 1.0, 1: 0.35, 2: 0.9, 3: 0.45, 4: 0.2}.get(int(t * 16 + 1e-6), 0.0)


def twinkle(t, shift):
    return 0.5 + 0.5 * wave(t, shift)


def glint(context, x, y, size):
    def points(c):
        for i in range(8):
            radius = size if i % 2 == 0 else size * 0.32
            c.line_to(x + radius * math.sin(i * math.pi / 4), y - radius * math.cos(i * math.pi / 4))
        c.close_path()
    outlined(context, points, colour("ffffff"), colour("5d9bd0"), 0.9)


# Mist and wind --------------------------------------------------------------------------------------------------------

FOG, FOG_LINE = colour("dde6ec"), colour("75899c")
MIST_ROWS = ((38.5, 9, 53), (46.5, 13, 58), (54.5, 7, 50))


def mist_bars(context, t, rows=MIST_ROWS):
    for number, (y, left, right) in enumerate(rows):
        shift = 3.0 * wave(t, number / 3)
        mist_bar(context, left + shift, right + shift, y, 4.0, FOG, FOG_LINE)


GUST, GUST_LINE, GUST_LIGHT = colour("9cc7e4"), colour("3f6f97"), colour("ffffff")


def gusts(context, t, tones=(GUST, GUST_LINE, GUST_LIGHT)):
    """Three lines that blow to the right and curl at their ends; tones are those of the line, its outline, its lights."""
    fill, edge, light = tones
    curls = ((9, 28, 24, 6.6, -1), (4, 46, 34, 7.8, -1), (10, 33, 44, 6.8, 1))
    for number, (start, end, y, radius, side) in enumerate(curls):
        def line(c):
            c.move_to(start, y)
            c.line_to(end, y)
            if side < 0:
                c.arc_negative(end, y - radius, radius, math.pi / 2, -math.pi * 0.92)
            else:
                c.arc(end, y + radius, radius, -math.pi / 2, math.pi * 0.92)
        ribbon(context, line, 3.6, fill, edge, 1.05)
        # Lights run along the line; a whole number of dashes passes in the loop.
        context.save()
        context.new_path()
        line(context)
        context.set_line_width(1.7)
        context.set_dash((9.0, 15.0), -24.0 * t - 8 * number)
        context.set_source_rgba(*light)
        context.stroke()
        context.restore()


def whirl(context, t, tones=(colour("b9c3cf"), colour("4b596a")), top=26, bottom=61):
    """A funnel of turning bands, wide at the top."""
    rows = 7
    for number in range(rows):
        share = number / (rows - 1)
        y = top + (bottom - top) * share
        half = 17 * (1 - share) ** 1.25 + 2.0
        middle = 32 + 3.2 * share * math.sin(2 * math.pi * (t + share * 0.8)) - 2 * share
        swing = 1.6 * math.sin(2 * math.pi * (t * 2 + share * 1.5)) * (1 - share)

        def band(c):
            c.move_to(middle - half + swing, y - 0.6)
            c.curve_to(middle - half * 0.3, y + 1.6, middle + half * 0.3, y + 1.6, middle + half + swing, y - 0.6)
        ribbon(context, band, 3.6, tones[0], tones[1], 1.0)


# Warmth and water -----------------------------------------------------------------------------------------------------

def thermometer(context, x, level, red):
    """Level 0 to 1 is the height of the column."""
    glass, line = colour("f7fafc"), colour("5f7388")
    dark = colour("c21f1f") if red else colour("2068b8")
    light = colour("ff6a4d") if red else colour("63b4f2")

    def body(c):
        c.arc(x, 13, 5.6, math.pi, 0)
        c.arc(x, 49, 9.6, -math.pi / 2 + 0.62, 1.5 * math.pi - 0.62)
        c.close_path()
    outlined(context, body, glass, line, 1.2)
    top = 42 - level * 27
    context.new_path()
    context.arc(x, top, 2.5, math.pi, 0)
    context.line_to(x + 2.5, 45)
    context.line_to(x - 2.5, 45)
    context.close_path()
    context.set_source_rgba(*dark)
    context.fill()
    context.arc(x, 49, 6.9, 0, 2 * math.pi)
    context.set_source(radial(x, 49, 6.9, (0, light), (1, dark)))
    context.fill()
    context.set_line_width(1.2)
    context.set_source_rgba(*line)
    for mark in range(5):
        context.move_to(x + 3.4, 15 + mark * 5.6)
        context.line_to(x + 5.2, 15 + mark * 5.6)
    context.stroke()


def sea(amplitude, length, sharpness, foam=False):
    """Three rows of waves; sharpness 0 is a sine, towards 1 the crests get steep."""
    tones = ((colour("a9daf3"), colour("3a83bd")), (colour("6dbbea"), colour("2a70ae")),
             (colour("3f97d8"), colour("1d5a98")))

    def paint(context, t):
        for row, (fill, line) in enumerate(tones):
            base = 19 + row * 15.5

            def height(x, row=row):
                phase = 2 * math.pi * (x / length - t + row * 0.35)
                crest = 2 * (0.5 + 0.5 * math.cos(phase)) ** (1 + 1.6 * sharpness) - 1
                return -amplitude * crest

            def path(c, base=base, height=height):
                for step in range(0, 105):
                    x = 6 + step * 0.5
                    c.line_to(x, base + height(x))
            ribbon(context, path, 5.8, fill, line, 1.05)
            if foam:
                context.new_path()
                for step in range(0, 105):
                    x = 6 + step * 0.5
                    if height(x) < -amplitude * 0.35:
                        context.line_to(x, base + height(x) - 1.0)
                    else:
                        context.new_sub_path()
                context.set_line_width(2.2)
                context.set_source_rgba(1, 1, 1, 1)
                context.stroke()
    return paint
