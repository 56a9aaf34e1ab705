# SPDX-License-Identifier: GPL-3.0-or-later
"""The collection "sea": the state of the sea, swell, tides, and what a coast has to know.

Swell is named after the side that it comes from, as winds are.
"""

import math

from draw_wind import SIDES
from ink import colour, lettering, outlined, radial, ribbon, vertical, wave
from weather import sea, thermometer, whirl

WATER = ((colour("a9daf3"), colour("3a83bd")), (colour("6dbbea"), colour("2a70ae")), (colour("3f97d8"), colour("1d5a98")))
WOOD, WOOD_LINE = colour("c98d4f"), colour("6d4218")
STEEL, STEEL_LINE = colour("d3dbe3"), colour("4b5b6c")


def surf(context, t, rows=((46.0, 1), (56.0, 2)), amplitude=2.4, length=26, left=5, right=59):
    """Rows of waves that roll to the right, for things to swim in."""
    for number, (base, tone) in enumerate(rows):
        fill, line = WATER[tone]

        def path(c):
            for step in range(int((right - left) * 2) + 1):
                x = left + step * 0.5
                c.line_to(x, base - amplitude * math.cos(2 * math.pi * (x / length - t + number * 0.4)))
        ribbon(context, path, 6.0, fill, line, 1.05)


def bob(context, t, x, y, roll=0.07, lift=1.6):
    """Rocks what is drawn after it about (x, y)."""
    context.translate(x, y + lift * wave(t, 0.25))
    context.rotate(roll * wave(t))


# Swell and height -----------------------------------------------------------------------------------------------------

def swell(towards):
    """An arrow whose shaft is a running wave."""
    def paint(context, t):
        context.translate(32, 32)
        context.rotate(math.radians(towards - 90))
        # Upright waves read better than upside-down ones.
        side = -1 if 90 < towards % 360 <= 270 else 1

        def shaft(c):
            for step in range(0, 71):
                x = -27 + step * 0.5
                c.line_to(x, 5.0 * math.sin(2 * math.pi * (side * x / 17.5 - side * t)))

        def tip(c):
            c.move_to(29, 0)
            c.line_to(9, -14)
            c.line_to(9, 14)
            c.close_path()
        fill, line = colour("35b0a9"), colour("0d5552")
        ribbon(context, shaft, 7.4, fill, line, 1.3)
        outlined(context, tip, fill, line, 1.3)
        shaft(context)
        context.set_line_width(7.4)
        context.set_source_rgba(*fill)
        context.stroke()
        shaft(context)
        context.set_line_width(2.2)
        context.set_source_rgba(*colour("d5f7f2"))
        context.stroke()
    return paint


def height(metres):
    """A figure over the waves; their size grows with it."""
    number = float(metres)
    amplitude = 1.4 + 0.34 * min(number, 10)
    tone = (colour("1d5a98") if number < 4 else colour("b0600a") if number < 7 else colour("a81d2c"))

    def paint(context, t):
        surf(context, t, ((45.0, 0), (55.5, 2)), amplitude, 26)
        lettering(context, metres + " m", 32, 19, 19, (1, 1, 1, 1), tone, 2.0, most=57)
    return paint


# Water ----------------------------------------------------------------------------------------------------------------

def temperature(level, red):
    def paint(context, t):
        context.save()
        context.translate(15, -3)
        thermometer(context, 17, level + 0.05 * wave(t), red)
        context.restore()
        surf(context, t, ((46.5, 1), (56.5, 2)))
    return paint


def gauge(context):
    """A tide post at the right."""
    def post(c):
        c.rectangle(45, 6, 8, 54)
    outlined(context, post, colour("fbfcfd"), STEEL_LINE, 1.2)
    for number in range(6):
        context.rectangle(45, 10 + number * 9, 8, 4.5)
        context.set_source_rgba(*colour("e2574c"))
        context.fill()


def tide(trend):
    """Rising 1, falling -1."""
    def paint(context, t):
        gauge(context)
        # The level comes in on a slow wave and the loop's seam lies where it stands still.
        lift = 3.0 * wave(t)
        surf(context, t, ((41.0 - lift, 0), (50.0 - lift * 0.6, 1), (57.6, 2)), 1.6)

        def arrow(c):
            for x, y in ((0, -12), (10, 0), (4.2, 0), (4.2, 12), (-4.2, 12), (-4.2, 0), (-10, 0)):
                c.line_to(22 + x, 20 + trend * (y - 1.5 * wave(t)))
            c.close_path()
        outlined(context, arrow, vertical(6, 34, colour("8fd0f7"), colour("2f8fe0")), colour("1d5a98"), 1.3)
    return paint


def tide_mark(high):
    def paint(context, t):
        gauge(context)
        top = 21.0 if high else 48.5
        rows = [(top + 9.1 * number, min(2, number)) for number in range(5) if top + 9.1 * number < 58]
        surf(context, t, rows, 1.6)
    return paint


# Ice and mist ---------------------------------------------------------------------------------------------------------

ICE, ICE_SHADE, ICE_LINE = colour("ffffff"), colour("b5d9f0"), colour("4a80ad")


def floe(context, points, shade=True):
    def top(c):
        for point in points:
            c.line_to(*point)
        c.close_path()
    outlined(context, top, vertical(min(y for _, y in points), max(y for _, y in points), ICE, ICE_SHADE), ICE_LINE, 1.15)


def drift_ice(context, t):
    surf(context, t, ((26.0, 0), (42.0, 1), (56.0, 2)), 2.0)
    for x, y, scale, shift in ((20, 20, 0.9, 0.0), (46, 27, 0.7, 0.4), (38, 44, 1.15, 0.7), (13, 47, 0.65, 0.25)):
        context.save()
        bob(context, (t + shift) % 1.0, x, y, 0.06, 1.3)
        context.scale(scale, scale)
        floe(context, ((-14, 1), (-9, -5), (2, -6.5), (12, -3.5), (14.5, 1.5), (6, 5.5), (-8, 5.5)))
        context.restore()


def iceberg(context, t):
    context.save()
    bob(context, t, 32, 46, 0.035, 1.2)
    floe(context, ((-23, 3), (-17, -13), (-10, -17), (-6, -29), (1, -36), (8, -27), (11, -17), (19, -10), (23, 3)))
    for points in (((1, -36), (8, -27), (4, -14), (-2, -20)), ((11, -17), (19, -10), (23, 3), (12, 3), (8, -6)),
                   ((-17, -13), (-10, -17), (-9, -4), (-14, 3), (-23, 3))):
        for point in points:
            context.line_to(*point)
        context.close_path()
        context.set_source_rgba(*colour("93c3e6", 0.75))
        context.fill()
    context.restore()
    surf(context, t, ((48.5, 1), (57.0, 2)))


def sea_fog(context, t):
    surf(context, t, ((48.0, 1), (57.0, 2)))
    # Deeper in tone than the bars under a cloud, since nothing but them says what it is.
    for number, (y, left, right) in enumerate(((11.5, 15, 44), (21, 8, 55), (30.5, 13, 58), (40, 6, 49))):
        shift = 3.0 * wave(t, number / 4)
        ribbon(context, lambda c: (c.move_to(left + shift, y), c.line_to(right + shift, y)), 5.6,
               vertical(y - 3, y + 3, colour("f4f7fa"), colour("a9b9c8")), colour("43566b"), 1.3)


def waterspout(context, t):
    whirl(context, t, (colour("8fc4e4"), colour("27618f")), top=8, bottom=50)
    surf(context, t, ((50.0, 1), (58.0, 2)), 1.8)


def breaker(context, t):
    """A great wave that curls over, with foam along its crest."""
    lift = 1.6 * wave(t)

    def body(c):
        c.move_to(3, 58)
        c.curve_to(9, 50, 12, 26 - lift, 27, 14 - lift)
        c.curve_to(40, 6 - lift, 55, 13 - lift, 58, 27)
        c.curve_to(51, 20, 43, 21, 40, 27)
        c.curve_to(36, 36, 45, 49, 61, 51)
        c.line_to(61, 58)
        c.close_path()
    outlined(context, body, vertical(8, 58, colour("9bd6f5"), colour("2572b8")), colour("17507f"), 1.3)
    context.save()
    body(context)
    context.clip()
    context.set_line_width(2.0)
    for number in range(4):
        shift = 7.0 * ((number + t) % 4)
        context.move_to(2 + shift, 60)
        context.curve_to(10 + shift, 48, 12 + shift * 0.8, 30, 26 + shift * 0.55, 20)
        context.set_source_rgba(1, 1, 1, 0.75 * math.sin(math.pi * ((number + t) % 4) / 4))
        context.stroke()
    context.restore()
    for number, (x, y) in enumerate(((29, 13.5), (36, 11), (43.5, 11.5), (50.5, 15.5), (56, 22), (57.5, 28))):
        radius = 3.4 + 0.7 * wave(t, number / 3)
        outlined(context, lambda c: c.arc(x, y - lift * 0.9, radius, 0, 2 * math.pi), (1, 1, 1, 1), colour("4a8fc0"), 1.0)
    for number, (x, y) in enumerate(((29, 13.5), (36, 11), (43.5, 11.5), (50.5, 15.5), (56, 22))):
        context.arc(x + 1.5, y - lift * 0.9 + 1, 2.6, 0, 2 * math.pi)
        context.set_source_rgba(1, 1, 1, 1)
        context.fill()


# On the water and the coast -------------------------------------------------------------------------------------------

def sailing_boat(context, t):
    context.save()
    bob(context, t, 32, 46)

    def mast(c):
        c.move_to(0, -4)
        c.line_to(0, -40)
    ribbon(context, mast, 1.8, WOOD, WOOD_LINE, 0.9)

    def main_sail(c):
        c.move_to(2.4, -38)
        c.curve_to(13, -28, 19, -18, 20, -9)
        c.line_to(2.4, -9)
        c.close_path()

    def fore_sail(c):
        c.move_to(-2.4, -34)
        c.curve_to(-7, -24, -12, -15, -17, -9)
        c.line_to(-2.4, -9)
        c.close_path()
    outlined(context, main_sail, vertical(-38, -9, colour("ffffff"), colour("d5e2ee")), STEEL_LINE, 1.1)
    outlined(context, fore_sail, vertical(-34, -9, colour("ff8a75"), colour("e2574c")), colour("7c1f14"), 1.1)

    def hull(c):
        c.move_to(-21, -4.5)
        c.line_to(22, -4.5)
        c.curve_to(19, 2, 15, 6, 11, 7)
        c.line_to(-12, 7)
        c.curve_to(-17, 5, -20, 1, -21, -4.5)
        c.close_path()
    outlined(context, hull, vertical(-5, 7, colour("e0a766"), colour("a76a2f")), WOOD_LINE, 1.2)
    context.restore()
    surf(context, t, ((50.0, 1), (57.2, 2)), 2.0)


def buoy(context, t):
    context.save()
    bob(context, t, 32, 46, 0.13, 2.0)

    def body(c):
        c.move_to(-6, -22)
        c.line_to(6, -22)
        c.line_to(13, 6)
        c.line_to(-13, 6)
        c.close_path()
    outlined(context, body, colour("f04f3e"), colour("7c1f14"), 1.2)
    context.save()
    body(context)
    context.clip()
    context.rectangle(-14, -14, 28, 8)
    context.set_source_rgba(1, 1, 1, 1)
    context.fill()
    context.restore()
    ribbon(context, lambda c: (c.move_to(0, -23), c.line_to(0, -31)), 2.0, STEEL, STEEL_LINE, 0.9)
    glow = 0.5 + 0.5 * wave(t, 0.25)
    shade = tuple(dull + (bright - dull) * glow for dull, bright in zip(colour("d9b25a"), colour("ffe14a")))
    outlined(context, lambda c: c.arc(0, -34, 4.2, 0, 2 * math.pi),
             radial(0, -34, 4.2, (0, colour("fffbe0")), (1, shade)), colour("8a6410"), 1.0)
    context.restore()
    surf(context, t, ((49.0, 1), (57.5, 2)))


def lighthouse(context, t):
    # One beam sweeps by in the loop: wide when it looks at us, gone when it looks away.
    sweep = math.cos(2 * math.pi * t)
    for side in (-1, 1):
        reach = 26 * max(0.0, 0.55 + 0.45 * sweep * side)
        if reach > 4:
            def beam(c):
                c.move_to(32 + side * 4, 13.5)
                c.line_to(32 + side * (5 + reach), 13.5 - reach * 0.28)
                c.line_to(32 + side * (5 + reach), 13.5 + reach * 0.28)
                c.close_path()
            outlined(context, beam, colour("ffe98a"), colour("c99b1c"), 0.9)

    def tower(c):
        c.move_to(27, 19)
        c.line_to(37, 19)
        c.line_to(40.5, 52)
        c.line_to(23.5, 52)
        c.close_path()
    outlined(context, tower, colour("ffffff"), STEEL_LINE, 1.2)
    context.save()
    tower(context)
    context.clip()
    for y in (19, 34, 49):
        context.rectangle(20, y, 24, 7.5)
        context.set_source_rgba(*colour("e2483d"))
        context.fill()
    context.restore()
    outlined(context, lambda c: c.rectangle(28.6, 9.6, 6.8, 8), colour("fff3b0"), STEEL_LINE, 1.0)

    def roof(c):
        c.move_to(26.6, 9.6)
        c.line_to(32, 3.4)
        c.line_to(37.4, 9.6)
        c.close_path()
    outlined(context, roof, colour("e2483d"), colour("7c1f14"), 1.0)
    ribbon(context, lambda c: (c.move_to(26, 18.6), c.line_to(38, 18.6)), 2.2, STEEL, STEEL_LINE, 0.9)
    surf(context, t, ((51.5, 1), (57.8, 2)), 1.6)


def flag(shades, line, halves=False, square=False, count=1):
    """A flag in the wind on its pole. `halves` splits it level (bathing), `square` puts the storm's black field on it."""
    def cloth(context, t, x, y, long, tall):
        def wavy(share):
            return 3.0 * share * math.sin(2 * math.pi * (share * 0.9 - t))

        def band(first, last, start=0.0, end=1.0):
            def path(c):
                steps = [start + (end - start) * i / 24 for i in range(25)]
                for share in steps:
                    c.line_to(x + long * share, y + tall * first + wavy(share))
                for share in reversed(steps):
                    c.line_to(x + long * share, y + tall * last + wavy(share))
                c.close_path()
            return path
        outlined(context, band(0, 1), colour(shades[0]), colour(line), 1.3)
        if halves:
            band(0.5, 1)(context)
            context.set_source_rgba(*colour(shades[1]))
            context.fill()
        if square:
            band(0.3, 0.7, 0.3, 0.7)(context)
            context.set_source_rgba(*colour("22262b"))
            context.fill()
        for share in (0.18, 0.42, 0.66, 0.9):
            slope = math.cos(2 * math.pi * (share * 0.9 - t))
            band(0, 1, share - 0.1, share + 0.1)(context)
            context.set_source_rgba(*((1, 1, 1, 0.16 * slope) if slope > 0 else (0, 0, 0, -0.13 * slope)))
            context.fill()

    def paint(context, t):
        ribbon(context, lambda c: (c.move_to(11, 60), c.line_to(11, 5)), 2.8, STEEL, STEEL_LINE, 1.0)
        if count == 1:
            cloth(context, t, 13.4, 9, 44, 27)
        else:
            cloth(context, t, 13.4, 8, 40, 20)
            cloth(context, (t + 0.3) % 1, 13.4, 34, 40, 20)
        outlined(context, lambda c: c.arc(11, 4.6, 2.6, 0, 2 * math.pi), colour("f4c542"), colour("8a6410"), 0.9)
    return paint


def anchor(context, t):
    def shape(c):
        c.move_to(32, 17)
        c.line_to(32, 55)
        c.move_to(20, 24)
        c.line_to(44, 24)
        c.new_sub_path()
        c.arc(32, 33, 22, math.radians(22), math.radians(158))
    ribbon(context, shape, 5.0, colour("5e97cb"), colour("173f66"), 1.3)
    ribbon(context, lambda c: c.arc(32, 11.5, 5.2, 0, 2 * math.pi), 3.6, colour("5e97cb"), colour("173f66"), 1.3)
    for side in (-1, 1):
        def fluke(c):
            c.move_to(32 + side * 25, 34)
            c.line_to(32 + side * 13.5, 43)
            c.line_to(32 + side * 24, 48)
            c.close_path()
        outlined(context, fluke, colour("5e97cb"), colour("173f66"), 1.2)
    shape(context)
    context.set_line_width(5.0)
    context.set_source_rgba(*colour("5e97cb"))
    context.stroke()


HEIGHTS = ("0.5", "1", "2", "3", "4", "5", "6", "8", "10")

TABLE = {
    "sea-calm": (sea(1.2, 26, 0.0), 12, 16, 32),
    "sea-slight": (sea(2.2, 26, 0.1), 12, 13, 32),
    "sea-moderate": (sea(3.0, 26, 0.3), 12, 8, 32),
    "sea-rough": (sea(4.6, 26, 0.55, foam=True), 12, 8, 40),
    "sea-very-rough": (sea(5.6, 26, 0.75, foam=True), 12, 8, 40),
    "sea-high": (breaker, 12, 8, 56),
    "drift-ice": (drift_ice, 14, 13, 48),
    "iceberg": (iceberg, 14, 13, 48),
    "sea-fog": (sea_fog, 16, 12, 48),
    "waterspout": (waterspout, 16, 7, 48),
    "water-cold": (temperature(0.14, False), 12, 8, 48),
    "water-mild": (temperature(0.50, False), 12, 8, 48),
    "water-warm": (temperature(0.82, True), 12, 8, 48),
    "tide-rising": (tide(1), 14, 8, 48),
    "tide-falling": (tide(-1), 14, 8, 48),
    "high-tide": (tide_mark(True), 12, 8, 48),
    "low-tide": (tide_mark(False), 12, 8, 48),
    "sailing-boat": (sailing_boat, 14, 8, 64),
    "buoy": (buoy, 14, 8, 56),
    "lighthouse": (lighthouse, 16, 8, 56),
    "anchorage": (anchor, 1, 10, 24),
    "flag-green": (flag(("3fae5a",), "14532a"), 12, 8, 32),
    "flag-yellow": (flag(("f8cf3f",), "80610a"), 12, 8, 32),
    "flag-red": (flag(("e0433f",), "6c0d14"), 12, 8, 32),
    "flag-bathing": (flag(("e0433f", "f8cf3f"), "6c2a0d", halves=True), 12, 8, 40),
    "flag-gale": (flag(("e0433f",), "6c0d14", count=2), 12, 8, 40),
    "flag-storm": (flag(("e0433f",), "6c0d14", square=True), 12, 8, 40),
    "flag-hurricane": (flag(("e0433f",), "6c0d14", square=True, count=2), 12, 8, 40),
}
TABLE.update({f"swell-from-{name}": (swell(number * 45 + 180), 12, 8, 32) for number, name in enumerate(SIDES)})
TABLE.update({"waves-half-m" if metres == "0.5" else f"waves-{metres.zfill(2)}-m": (height(metres), 12, 8, 40)
              for metres in HEIGHTS})
