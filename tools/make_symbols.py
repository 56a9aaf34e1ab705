#!/usr/bin/python3
"""Draws the symbol collections in content/Symbols: "set-1" (weather, 64 x 64) and "wind" (directions, 48 x 48).

A symbol is a function of (context, t) with t from 0 to 1 over the loop, and one entry in its collection's table. The
image at t = 0 is the one that a still picture shows, so every symbol must say all it has to say there already.
"""

import argparse
import math
import os

import cairo

import gif
from geo import REPOSITORY
from ink import (SLANT, bolt, cloud, colour, drop, flake, mist_bar, moon, outlined, pellet, radial, render, ribbon, star,
                 streak, sun, wave)


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


# Sun and clouds -------------------------------------------------------------------------------------------------------

def sunny(context, t):
    sun(context, 32, 32, 13.5, t)


def mostly_sunny(context, t):
    sun(context, 29, 29, 12.5, t)
    cloud(context, 44 + 1.2 * wave(t), 57, 0.72)


def partly_cloudy(context, t):
    sun(context, 23.5, 23.5, 10.2, t)
    cloud(context, 36 + 1.3 * wave(t), 56, 1.08)


def mostly_cloudy(context, t):
    sun(context, 19, 19, 8.2, t)
    cloud(context, 43 - 1.4 * wave(t), 44, 0.78, "grey", flip=True)
    cloud(context, 31 + 1.2 * wave(t), 57, 1.16, "white")


def cloudy(context, t):
    cloud(context, 40 - 1.8 * wave(t), 39, 0.95, "grey", flip=True)
    cloud(context, 29 + 1.4 * wave(t), 55, 1.16, "white")


def overcast(context, t):
    cloud(context, 23 - 1.6 * wave(t), 36, 0.90, "dark")
    cloud(context, 42 + 1.6 * wave(t), 40, 0.92, "dark", flip=True)
    cloud(context, 31 + 1.2 * wave(t, 0.25), 55, 1.20, "grey")


# Rain -----------------------------------------------------------------------------------------------------------------

def drizzle(context, t):
    drops(context, t, ((20, 0.2), (28, 0.7), (36, 0.0), (44, 0.5), (52, 0.9)), size=0.62)
    cloud(context, 32, 39, 1.28, "white")


def light_rain(context, t):
    drops(context, t, LIGHT_RAIN)
    cloud(context, 32, 39, 1.28, "white")


def rain(context, t):
    drops(context, t, RAIN)
    cloud(context, 32, 39, 1.28, "grey")


def heavy_rain(context, t):
    streaks(context, t, HEAVY_RAIN, cycles=2, length=10)
    cloud(context, 32, 39, 1.28, "dark")


def showers(context, t):
    sun(context, 20, 18, 8.0, t)
    drops(context, t, ((27, 0.15), (37, 0.65), (47, 0.40)), top=42)
    cloud(context, 36, 43, 1.06, "white")


def showers_night(context, t):
    moon(context, 21, 19, 14.5, turn=-12)
    drops(context, t, ((27, 0.15), (37, 0.65), (47, 0.40)), top=42)
    cloud(context, 36, 43, 1.06, "night")


def flash(t):
    """Two quick flashes at the loop's start, then amber: full at once, so that a still picture shows them."""
    return {0: 1.0, 1: 0.35, 2: 0.9, 3: 0.45, 4: 0.2}.get(int(t * 16 + 1e-6), 0.0)


def thunderstorm(context, t):
    streaks(context, t, ((17, 0.1), (49, 0.35), (57, 0.8), (23, 0.6)), cycles=2, length=9)
    bolt(context, 33, 37.5, 1.18, flash(t))
    cloud(context, 32, 39, 1.28, "storm")


def thundery_showers(context, t):
    sun(context, 20, 18, 8.0, t)
    drops(context, t, ((26, 0.15), (51, 0.55)), top=42)
    bolt(context, 36, 41.5, 1.0, flash(t))
    cloud(context, 36, 43, 1.06, "dark")


# Ice ------------------------------------------------------------------------------------------------------------------

def light_snow(context, t):
    flakes(context, t, ((24, 0.35), (34, 0.85), (44, 0.60)), 5.6)
    cloud(context, 32, 39, 1.28, "white")


def snow(context, t):
    flakes(context, t, ((17, 0.38), (28, 0.72), (38, 0.28), (49, 0.62)), 5.6)
    cloud(context, 32, 39, 1.28, "grey")


def heavy_snow(context, t):
    flakes(context, t, ((14, 0.32), (22, 0.72), (30, 0.22), (39, 0.62), (47, 0.35), (51, 0.80), (34, 0.98)), 5.2)
    cloud(context, 32, 39, 1.28, "dark")


def snow_showers(context, t):
    sun(context, 20, 18, 8.0, t)
    flakes(context, t, ((26, 0.30), (37, 0.68), (48, 0.36)), 5.4, top=41)
    cloud(context, 36, 43, 1.06, "white")


def sleet(context, t):
    drops(context, t, ((28, 0.30), (49, 0.72)))
    flakes(context, t, ((18, 0.65), (39, 0.36)), 5.6)
    cloud(context, 32, 39, 1.28, "grey")


def hail(context, t):
    for number, (x, phase) in enumerate(((17, 0.40), (25, 0.90), (34, 0.30), (43, 0.62), (48, 0.12))):
        u = (t + phase) % 1.0
        radius = (3.9, 3.2)[number % 2]
        ground = 60.0 - radius
        if u < 0.58:
            y = 36 + (ground - 36) * (u / 0.58) ** 1.6
            pellet(context, x - SLANT * (y - 36), y, radius)
        else:  # one bounce, rolling off
            v = (u - 0.58) / 0.42
            pellet(context, x - SLANT * (ground - 36) - 3.5 * v, ground - 13 * v * (1 - v), radius * (1 - 0.8 * v ** 3))
    cloud(context, 32, 39, 1.28, "dark")


# Fog ------------------------------------------------------------------------------------------------------------------

FOG, FOG_LINE = colour("dde6ec"), colour("75899c")


def fog(context, t):
    cloud(context, 32, 36, 1.16, "grey")
    for row, (y, left, right) in enumerate(((38.5, 9, 53), (46.5, 13, 58), (54.5, 7, 50))):
        shift = 3.0 * wave(t, row / 3)
        mist_bar(context, left + shift, right + shift, y, 4.0, FOG, FOG_LINE)


def mist(context, t):
    sun(context, 32, 26, 10.5, t)
    for row, (y, left, right) in enumerate(((36, 11, 50), (44.5, 15, 57), (53, 9, 47))):
        shift = 3.0 * wave(t, row / 3)
        mist_bar(context, left + shift, right + shift, y, 4.0, FOG, FOG_LINE)


# Night ----------------------------------------------------------------------------------------------------------------

def twinkle(t, shift):
    return 0.5 + 0.5 * wave(t, shift)


def clear_night(context, t):
    moon(context, 29, 34, 23)
    star(context, 40, 24, 7.4, twinkle(t, 0.25))
    star(context, 52, 11, 5.2, twinkle(t, 0.60))
    star(context, 56, 29, 4.6, twinkle(t, 0.95))


def partly_cloudy_night(context, t):
    moon(context, 25, 24, 18, turn=-12)
    star(context, 40, 13, 5.8, twinkle(t, 0.25))
    star(context, 55, 24, 4.6, twinkle(t, 0.7))
    cloud(context, 35 + 1.2 * wave(t), 57, 1.04, "night")


# Wind -----------------------------------------------------------------------------------------------------------------

GUST, GUST_LINE, GUST_LIGHT = colour("9cc7e4"), colour("3f6f97"), colour("ffffff")


def gusts(context, t):
    """Three lines that blow to the right and curl at their ends, in a field of 64 x 64."""
    curls = ((9, 28, 24, 6.6, -1), (4, 46, 34, 7.8, -1), (10, 33, 44, 6.8, 1))
    for number, (start, end, y, radius, side) in enumerate(curls):
        def line(c):
            c.move_to(start, y)
            c.line_to(end, y)
            if side < 0:
                c.arc_negative(end, y - radius, radius, math.pi / 2, -math.pi * 0.92)
            else:
                c.arc(end, y + radius, radius, -math.pi / 2, math.pi * 0.92)
        ribbon(context, line, 3.6, GUST, GUST_LINE, 1.05)
        # Lights run along the line; a whole number of dashes passes in the loop.
        context.save()
        context.new_path()
        line(context)
        context.set_line_width(1.7)
        context.set_dash((9.0, 15.0), -24.0 * t - 8 * number)
        context.set_source_rgba(*GUST_LIGHT)
        context.stroke()
        context.restore()


def gusts_turned(angle, mirror=False):
    def paint(context, t):
        context.translate(32, 32)
        context.rotate(math.radians(angle))
        if mirror:
            context.scale(-1, 1)
        context.translate(-30, -34)
        gusts(context, t)
    return paint


# Warm and cold --------------------------------------------------------------------------------------------------------

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


def hot(context, t):
    sun(context, 43, 21, 9.0, t)
    thermometer(context, 17, 0.88 + 0.10 * wave(t), True)


def cold(context, t):
    flake(context, 43.5, 23, 14.5, turn=math.pi / 6 + math.pi / 3 * t, weight=2.4)
    thermometer(context, 17, 0.16 + 0.06 * wave(t), False)


def frost(context, t):
    ice = cairo.LinearGradient(12, 8, 52, 58)
    ice.add_color_stop_rgba(0, *colour("ffffff"))
    ice.add_color_stop_rgba(1, *colour("a9d4f3"))
    flake(context, 32, 32, 26, turn=math.pi / 6, weight=3.6, fill=ice)
    for x, y, size, shift in ((15, 10, 6.4, 0.25), (50, 10, 5.2, 0.6), (51, 55, 6.4, 0.9), (13, 55, 5.2, 0.45)):
        brightness = twinkle(t, shift)
        if brightness > 0.12:
            glint(context, x, y, size * brightness)


def glint(context, x, y, size):
    def points(c):
        for i in range(8):
            radius = size if i % 2 == 0 else size * 0.32
            c.line_to(x + radius * math.sin(i * math.pi / 4), y - radius * math.cos(i * math.pi / 4))
        c.close_path()
    outlined(context, points, colour("ffffff"), colour("5d9bd0"), 0.9)


# Sea ------------------------------------------------------------------------------------------------------------------

def sea(amplitude, length, sharpness, foam=False):
    """Three rows of waves; sharpness 0 is a sine, towards 1 the crests get steep."""
    tones = ((colour("a9daf3"), colour("3a83bd")), (colour("6dbbea"), colour("2a70ae")), (colour("3f97d8"), colour("1d5a98")))

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


# Wind directions ------------------------------------------------------------------------------------------------------

ARROW, ARROW_LIGHT, ARROW_LINE = colour("2f7fc4"), colour("bfe3fb"), colour("17436e")


def wind_arrow(towards):
    """An arrow that points `towards` degrees clockwise from north; lights run along its shaft."""
    def paint(context, t):
        context.translate(24, 24)
        context.rotate(math.radians(towards))

        def body(c):
            c.move_to(0, -20.5)
            c.line_to(11.5, -5.5)
            c.line_to(4.6, -5.5)
            c.line_to(4.6, 19.5)
            c.line_to(0, 16.2)
            c.line_to(-4.6, 19.5)
            c.line_to(-4.6, -5.5)
            c.line_to(-11.5, -5.5)
            c.close_path()
        gradient = cairo.LinearGradient(-12, 0, 12, 0)
        gradient.add_color_stop_rgba(0, *colour("4e9fdd"))
        gradient.add_color_stop_rgba(1, *colour("2470b4"))
        outlined(context, body, gradient, ARROW_LINE, 1.25)
        context.save()
        body(context)
        context.clip()
        context.set_line_width(3.0)
        context.set_line_cap(cairo.LINE_CAP_BUTT)
        context.set_line_join(cairo.LINE_JOIN_MITER)
        context.set_source_rgba(*ARROW_LIGHT)
        for i in range(-1, 6):
            y = 22 - 9.0 * (i + t)
            if y < -17:
                continue
            context.move_to(-3.2, y + 3.0)
            context.line_to(0, y)
            context.line_to(3.2, y + 3.0)
        context.stroke()
        context.restore()
    return paint


def calm(context, t):
    """The station circle of still air: a dot in a ring that swells once."""
    radius = 12.5 + 2.5 * wave(t)
    ribbon(context, lambda c: c.arc(24, 24, radius, 0, 2 * math.pi), 3.0, colour("5fa9e2"), ARROW_LINE, 1.1)
    outlined(context, lambda c: c.arc(24, 24, 4.6, 0, 2 * math.pi),
             radial(24, 24, 4.6, (0, ARROW_LIGHT), (1, ARROW)), ARROW_LINE, 1.1)


# name: (painter, images, delay in hundredths of a second, palette)
SET_1 = {
    "sun": (sunny, 14, 10, 48),
    "mostly-sunny": (mostly_sunny, 14, 10, 64),
    "partly-cloudy": (partly_cloudy, 14, 11, 64),
    "mostly-cloudy": (mostly_cloudy, 14, 12, 64),
    "cloudy": (cloudy, 12, 14, 48),
    "overcast": (overcast, 12, 14, 48),
    "drizzle": (drizzle, 14, 9, 56),
    "light-rain": (light_rain, 14, 8, 56),
    "rain": (rain, 14, 7, 56),
    "heavy-rain": (heavy_rain, 14, 7, 56),
    "showers": (showers, 14, 8, 72),
    "showers-night": (showers_night, 14, 8, 72),
    "thunderstorm": (thunderstorm, 16, 8, 72),
    "thundery-showers": (thundery_showers, 16, 8, 80),
    "light-snow": (light_snow, 16, 11, 44),
    "snow": (snow, 16, 10, 40),
    "heavy-snow": (heavy_snow, 14, 10, 40),
    "snow-showers": (snow_showers, 14, 11, 64),
    "sleet": (sleet, 16, 8, 56),
    "hail": (hail, 16, 7, 56),
    "fog": (fog, 16, 12, 48),
    "mist": (mist, 14, 13, 56),
    "clear-night": (clear_night, 16, 12, 48),
    "partly-cloudy-night": (partly_cloudy_night, 14, 12, 64),
    "wind-north": (gusts_turned(90), 12, 8, 32),
    "wind-east": (gusts_turned(0, mirror=True), 12, 8, 32),
    "wind-south": (gusts_turned(-90), 12, 8, 32),
    "wind-west": (gusts_turned(0), 12, 8, 32),
    "hot": (hot, 14, 10, 64),
    "cold": (cold, 16, 11, 48),
    "frost": (frost, 14, 12, 32),
    "sea-calm": (sea(1.5, 26, 0.0), 12, 15, 32),
    "sea-moderate": (sea(3.0, 26, 0.3), 12, 11, 32),
    "sea-rough": (sea(4.6, 26, 0.55, foam=True), 12, 8, 40),
}

# A wind is named after the side that it comes from, so its arrow points to the other.
WIND = {f"wind-{name}": (wind_arrow(number * 45 + 180), 9, 10, 32)
        for number, name in enumerate(("n", "ne", "e", "se", "s", "sw", "w", "nw"))}
WIND["calm"] = (calm, 12, 14, 32)

COLLECTIONS = {"set-1": (SET_1, 64), "wind": (WIND, 48)}


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--output", default=os.path.join(REPOSITORY, "content", "Symbols"))
    parser.add_argument("names", nargs="*", help="draw only these")
    arguments = parser.parse_args()
    for collection, (table, size) in COLLECTIONS.items():
        folder = os.path.join(arguments.output, collection)
        os.makedirs(folder, exist_ok=True)
        for name, (paint, images, delay, colours) in table.items():
            if arguments.names and name not in arguments.names:
                continue
            pictures = [render(paint, size, size, i / images) for i in range(images)]
            data = gif.encode(pictures, delay, colours)
            with open(os.path.join(folder, name + ".gif"), "wb") as file:
                file.write(data)
            print(f"{collection}/{name}.gif  {len(data)} bytes, {images} images, {images * delay / 100:.2f} s")


if __name__ == "__main__":
    main()
