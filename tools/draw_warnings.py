# SPDX-License-Identifier: GPL-3.0-or-later
"""The collection "warnings": twelve dangers in four degrees, of which green says that there is none.

A pictogram is a function of (context, t, ink, ground) in a field of 64 x 64 whose middle lies at (32, 39); the sign gives
it the two colours that it may use.
"""

import math

import cairo

from ink import colour, wave

# Sign, its outline, the pictogram's ink.
DEGREES = {
    "green": (("a5e08a", "4fae4c"), "1f5c22", "10300f"),
    "yellow": (("ffe45c", "f5c71a"), "7a5c00", "2b2410"),
    "orange": (("ffb04a", "ee7d14"), "7a3600", "2b1606"),
    "red": (("f4665c", "cf2230"), "66060f", "ffffff"),
}


def triangle(c):
    c.move_to(32, 8.5)
    c.line_to(57.5, 55)
    c.line_to(6.5, 55)
    c.close_path()


def sign(pictogram, degree):
    shades, line, ink = DEGREES[degree]

    def paint(context, t):
        gradient = cairo.LinearGradient(0, 4, 0, 60)
        gradient.add_color_stop_rgba(0, *colour(shades[0]))
        gradient.add_color_stop_rgba(1, *colour(shades[1]))
        context.new_path()
        triangle(context)
        for width, source in ((12.6, colour(line)), (10, None)):
            context.set_line_width(width)
            if source:
                context.set_source_rgba(*source)
            else:
                context.set_source(gradient)
            context.stroke_preserve()
        context.set_source(gradient)
        context.fill()
        triangle(context)
        context.set_line_width(6.6)
        context.set_source_rgba(*colour("ffffff", 0.55))
        context.stroke()
        triangle(context)
        context.set_line_width(4.4)
        context.set_source(gradient)
        context.stroke_preserve()
        context.fill()
        context.set_line_width(3.2)
        context.set_source_rgba(*colour(ink))
        pictogram(context, t, colour(ink), colour(shades[1]))
    return paint


# Pictograms -----------------------------------------------------------------------------------------------------------

def wind(context, t, ink, ground):
    for number, (start, end, y, radius, side) in enumerate(((17, 32, 34, 4.6, -1), (13, 41, 42, 5.2, -1),
                                                            (20, 34, 49.5, 3.6, 1))):
        shift = 1.6 * wave(t, number / 3)
        context.move_to(start + shift, y)
        context.line_to(end + shift, y)
        if side < 0:
            context.arc_negative(end + shift, y - radius, radius, math.pi / 2, -math.pi * 0.9)
        else:
            context.line_to(end + 9 + shift, y)
        context.stroke()


def cloud_shape(context, x, y, scale):
    context.new_path()
    for px, py, radius in ((-7.5, -5, 5.2), (0, -8.5, 7.2), (8, -5.2, 5.6)):
        context.new_sub_path()
        context.arc(x + px * scale, y + py * scale, radius * scale, 0, 2 * math.pi)
    context.rectangle(x - 8 * scale, y - 6 * scale, 16 * scale, 6.2 * scale)
    context.fill()


def rain(context, t, ink, ground):
    cloud_shape(context, 32, 38.5, 0.98)
    context.set_line_width(2.6)
    for x, phase in ((24, 0.1), (31, 0.6), (38, 0.3)):
        u = (t + phase) % 1.0
        y = 41 + 9 * u
        context.move_to(x + 2 - 2 * u, y)
        context.line_to(x + 0.6 - 2 * u, min(y + 5, 54))
    context.stroke()


def thunderstorm(context, t, ink, ground):
    glow = (0.5 - 0.5 * math.cos(2 * math.pi * t)) ** 2
    lit = ground if ink[0] > 0.5 else (1, 1, 1, 1)
    points = ((35, 20), (24.5, 39.5), (31, 39.5), (27.5, 54), (41, 34.5), (33.6, 34.5), (40, 20))
    for x, y in points:
        context.line_to(x, y)
    context.close_path()
    context.set_source_rgba(*(dull + (bright - dull) * glow for dull, bright in zip(ink, lit)))
    context.fill_preserve()
    context.set_source_rgba(*ink)
    context.set_line_width(1.8)
    context.stroke()


def crystal(context, x, y, size, turn, width):
    context.set_line_width(width)
    for arm in range(6):
        angle = turn + arm * math.pi / 3
        cos, sin = math.cos(angle), math.sin(angle)
        context.move_to(x, y)
        context.line_to(x + cos * size, y + sin * size)
        for side in (-1, 1):
            branch = angle + side * math.pi / 3.2
            context.move_to(x + cos * size * 0.58, y + sin * size * 0.58)
            context.line_to(x + cos * size * 0.58 + math.cos(branch) * size * 0.36,
                            y + sin * size * 0.58 + math.sin(branch) * size * 0.36)
    context.stroke()


def snow(context, t, ink, ground):
    crystal(context, 32, 39.5, 14.5, math.pi / 6 + math.pi / 3 * t, 2.6)


def ice(context, t, ink, ground):
    """A car that skids."""
    context.save()
    context.translate(32 + 1.4 * wave(t), 37)
    context.rotate(math.radians(-7) + math.radians(3) * wave(t))

    def body(c):
        c.move_to(-13, 4.5)
        c.line_to(-13, -1)
        c.line_to(-9.5, -2.5)
        c.line_to(-6, -9)
        c.line_to(6, -9)
        c.line_to(9.5, -2.5)
        c.line_to(13, -1)
        c.line_to(13, 4.5)
        c.close_path()
    body(context)
    context.fill()
    context.set_source_rgba(*ground)
    context.move_to(-6.4, -3)
    context.line_to(-4.4, -6.8)
    context.line_to(4.4, -6.8)
    context.line_to(6.4, -3)
    context.close_path()
    context.fill()
    for x in (-9, 9):
        context.arc(x, 1.2, 1.6, 0, 2 * math.pi)
        context.fill()
    context.set_source_rgba(*ink)
    for x in (-11.5, 7.5):
        context.rectangle(x, 4, 4, 4)
        context.fill()
    context.restore()
    context.set_line_width(2.2)
    for x in (23, 41):
        for step in range(11):
            y = 47 + step * 0.75
            context.line_to(x + 1.9 * math.sin(y * 0.95 - 2 * math.pi * t), y)
        context.stroke()


def fog(context, t, ink, ground):
    context.set_line_width(3.4)
    for number, (y, half) in enumerate(((27, 6), (34, 10), (41, 13.5), (48, 16))):
        shift = 2.0 * wave(t, number / 4)
        context.move_to(32 - half + shift, y)
        context.line_to(32 + half + shift, y)
        context.stroke()


def thermometer(context, ink, ground, x, level):
    context.set_line_width(2.4)
    context.new_path()
    context.arc(x, 23, 3.6, math.pi, 0)
    context.arc(x, 47.5, 5.8, -math.pi / 2 + 0.66, 1.5 * math.pi - 0.66)
    context.close_path()
    context.stroke()
    context.arc(x, 47.5, 3.6, 0, 2 * math.pi)
    context.fill()
    context.set_line_width(2.6)
    context.move_to(x, 47)
    context.line_to(x, 43 - 18 * level)
    context.stroke()


def heat(context, t, ink, ground):
    thermometer(context, ink, ground, 27.5, 0.85 + 0.12 * wave(t))
    context.set_line_width(2.4)
    for number, x in enumerate((37, 43.5)):
        for step in range(15):
            y = 50 - step * (1.15 if number == 0 else 0.8)
            context.line_to(x + 1.5 * math.sin(y * 0.75 + 2 * math.pi * t), y)
        context.stroke()


def cold(context, t, ink, ground):
    thermometer(context, ink, ground, 26, 0.12 + 0.08 * wave(t))
    crystal(context, 40.5, 43, 7.8, math.pi / 6 + math.pi / 3 * t, 2.0)


def coast(context, t, ink, ground):
    """A wave that curls over."""
    lift = 1.2 * wave(t)
    context.move_to(14, 47)
    context.curve_to(20, 45, 20, 27 - lift, 33, 26 - lift)
    context.curve_to(40, 26 - lift, 42.5, 31, 41, 35)
    context.curve_to(38, 31, 32.5, 33, 33, 39)
    context.curve_to(33.5, 44, 40, 47, 49, 46.5)
    context.line_to(49, 48)
    context.line_to(14, 48)
    context.close_path()
    context.fill()
    context.set_line_width(2.6)
    for step in range(73):
        x = 13 + step * 0.53
        context.line_to(x, 52.5 - 1.5 * math.cos(2 * math.pi * (x / 12.7 - t)))
    context.stroke()


def avalanche(context, t, ink, ground):
    context.move_to(15, 52)
    context.line_to(29, 26)
    context.line_to(49, 52)
    context.close_path()
    context.fill()
    for number, size in enumerate((3.4, 2.6, 3.0)):
        u = (t + number / 3) % 1.0
        x, y = 32 + 17 * u, 24.5 + 22.5 * u - 2.6 * abs(math.sin(3 * math.pi * u))
        context.arc(x + 1.5, y, size * min(1, 0.3 + u * 2, (1 - u) * 5 + 0.2), 0, 2 * math.pi)
        context.set_source_rgba(*ground)
        context.set_line_width(2.4)
        context.stroke_preserve()
        context.set_source_rgba(*ink)
        context.fill()


def flood(context, t, ink, ground):
    context.move_to(32, 22)
    context.line_to(45, 34)
    context.line_to(42, 34)
    context.line_to(42, 43)
    context.line_to(22, 43)
    context.line_to(22, 34)
    context.line_to(19, 34)
    context.close_path()
    context.fill()
    context.rectangle(29, 35, 6, 8)
    context.set_source_rgba(*ground)
    context.fill()
    for width, source, base in ((5.6, ground, 46.0), (2.8, ink, 46.0), (2.8, ink, 52.2)):
        context.set_line_width(width)
        context.set_source_rgba(*source)
        half = 15 if base < 50 else 18.5
        for step in range(int(half * 4) + 1):
            x = 32 - half + step * 0.5
            context.line_to(x, base - 1.7 * math.cos(2 * math.pi * (x / 12 - t + base / 20)))
        context.stroke()


def fire(context, t, ink, ground):
    tip, side = 1.8 * wave(t), 1.6 * wave(t, 0.35)

    def flame(c, scale, sway):
        c.save()
        c.translate(32, 53)
        c.scale(scale, scale)
        c.move_to(0, 0)
        c.curve_to(-9, 0, -12.5, -6, -11.5, -13)
        c.curve_to(-10.5, -17, -8, -18, -7.5 + sway * 0.4, -23)
        c.curve_to(-4, -21, -3, -18, -2.6, -16.5)
        c.curve_to(-1, -20, 1, -25, 0.5 + sway, -32)
        c.curve_to(6, -28, 8, -22, 7.6, -17)
        c.curve_to(9, -18, 9.6, -20, 9.6 + sway * 0.5, -21.5)
        c.curve_to(13.5, -15, 13, 0, 0, 0)
        c.close_path()
        c.restore()
    flame(context, 1.0, tip)
    context.fill()
    flame(context, 0.46, side)
    context.set_source_rgba(*ground)
    context.fill()


PICTOGRAMS = {
    "wind": (wind, 12, 8), "rain": (rain, 14, 8), "thunderstorm": (thunderstorm, 12, 8), "snow": (snow, 14, 8),
    "ice": (ice, 12, 8), "fog": (fog, 16, 11), "heat": (heat, 14, 8), "cold": (cold, 14, 8),
    "coast": (coast, 14, 8), "avalanche": (avalanche, 16, 7), "flood": (flood, 14, 8), "fire": (fire, 14, 8),
}

TABLE = {f"{name}-{degree}": (sign(pictogram, degree), images, delay, 40)
         for name, (pictogram, images, delay) in PICTOGRAMS.items() for degree in DEGREES}
