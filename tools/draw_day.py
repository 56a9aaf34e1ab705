# SPDX-License-Identifier: GPL-3.0-or-later
"""The standard collection "set-1": the sky by day, with the usual signs for night, wind, warmth and sea."""

import math

import cairo

import draw_night
from ink import bolt, cloud, colour, flake, mist_bar, outlined, ribbon, sun, wave
from weather import (HEAVY_RAIN, LIGHT_RAIN, RAIN, drops, flakes, flash, glint, gusts, hailstones, ice_ground, mist_bars,
                     sea, streaks, thermometer, twinkle, whirl)

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


def thunderstorm(context, t):
    streaks(context, t, ((17, 0.1), (49, 0.35), (57, 0.8), (23, 0.6)), cycles=2, length=9)
    bolt(context, 33, 37.5, 1.18, flash(t))
    cloud(context, 32, 39, 1.28, "storm")


def thundery_showers(context, t):
    sun(context, 20, 18, 8.0, t)
    drops(context, t, ((26, 0.15), (51, 0.55)), top=42)
    bolt(context, 36, 41.5, 1.0, flash(t))
    cloud(context, 36, 43, 1.06, "dark")


def heavy_showers(context, t):
    sun(context, 20, 18, 8.0, t)
    streaks(context, t, ((24, 0.05), (31, 0.55), (38, 0.25), (45, 0.80), (52, 0.42)), top=42, cycles=2, length=9)
    cloud(context, 36, 43, 1.06, "grey")


def lightning(context, t):
    bolt(context, 21, 38, 1.0, flash(t))
    bolt(context, 42, 37.5, 1.18, flash((t + 0.5) % 1))
    cloud(context, 32 + 1.2 * wave(t), 39, 1.26, "storm")


def rainbow(context, t):
    bands = ("e25b5b", "f19a3e", "f7d64a", "6cc070", "4a9be0", "7d63c4")
    line = colour("6d7f94")
    context.set_line_cap(cairo.LINE_CAP_BUTT)
    for extra, shades in ((1.15, (None,)), (0, bands)):
        for number, shade in enumerate(shades):
            radius, width = (18.4, 18.0) if shade is None else (26.4 - 3.2 * number, 3.3)
            context.new_path()
            context.arc(32, 44, radius, math.pi * (1 if shade else 0.99), 0)
            context.set_line_width(width + 2 * extra)
            context.set_source_rgba(*(line if shade is None else colour(shade)))
            context.stroke()
    context.set_line_cap(cairo.LINE_CAP_ROUND)
    cloud(context, 17 + 1.5 * wave(t), 56, 0.62)
    cloud(context, 46 - 1.5 * wave(t, 0.1), 57, 0.78, "grey", flip=True)


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
    hailstones(context, t)
    cloud(context, 32, 39, 1.28, "dark")


def freezing_rain(context, t):
    drops(context, t, LIGHT_RAIN, bottom=57)
    cloud(context, 32, 39, 1.28, "grey")
    ice_ground(context, t)


def sleet_showers(context, t):
    sun(context, 20, 18, 8.0, t)
    drops(context, t, ((37, 0.65),), top=42)
    flakes(context, t, ((26, 0.30), (48, 0.36)), 5.4, top=41)
    cloud(context, 36, 43, 1.06, "white")


def hail_showers(context, t):
    sun(context, 20, 18, 8.0, t)
    hailstones(context, t, ((27, 0.40), (37, 0.90), (47, 0.20)), top=41)
    cloud(context, 36, 43, 1.06, "grey")


def blizzard(context, t):
    for y, phase in ((41, 0.45), (50.5, 0.95), (59, 0.2)):
        u = (t + phase) % 1.0
        middle, half = 6 + 52 * u, 9 * math.sin(math.pi * u)
        if half > 2:
            mist_bar(context, middle - half, middle + half, y, 2.6, colour("e4f0f8"), colour("5f8db5"))
    cloud(context, 32 + 1.0 * wave(t), 34, 1.2, "dark")
    for number, (y, phase, size) in enumerate(((36, 0.05, 6.2), (44, 0.40, 5.6), (50, 0.72, 6.2), (53, 0.20, 5.2))):
        u = (t + phase) % 1.0
        x = 4 + 54 * u
        # Flakes fly in from the left and out at the right: they grow and shrink at the edges.
        scale = min(1.0, u / 0.12, (1 - u) / 0.12)
        if scale > 0.25:
            flake(context, x, y + 6 * u + 1.2 * math.sin(6 * math.pi * u + number), size * scale, turn=u * math.pi)


# Fog ------------------------------------------------------------------------------------------------------------------

def fog(context, t):
    cloud(context, 32, 36, 1.16, "grey")
    mist_bars(context, t)


def mist(context, t):
    sun(context, 32, 26, 10.5, t)
    mist_bars(context, t, ((36, 11, 50), (44.5, 15, 57), (53, 9, 47)))


# Wind -----------------------------------------------------------------------------------------------------------------

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


# The sun's day, and what whirls ----------------------------------------------------------------------------------------

def horizon(arrow_up):
    """The sun at the horizon; it rises or sinks a little over the loop and comes back."""
    def paint(context, t):
        context.save()
        context.rectangle(0, 0, 64, 42.6)
        context.clip()
        sun(context, 32, 42 - (2.2 if arrow_up else -2.2) * wave(t), 12.5, t, rays=12)
        context.restore()
        ribbon(context, lambda c: (c.move_to(6, 43.5), c.line_to(58, 43.5)), 3.2, colour("f2b04a"), colour("b06f14"), 1.0)

        def arrow(c):
            for x, y in ((0, -7), (8, 1.2), (3.2, 1.2), (3.2, 6), (-3.2, 6), (-3.2, 1.2), (-8, 1.2)):
                c.line_to(32 + x, 54.5 + (y if arrow_up else -y))
            c.close_path()
        outlined(context, arrow, colour("ffd77a"), colour("b06f14"))
    return paint


SAND = (colour("ecc98b"), colour("96692c"), colour("fff4d8"))


def sandstorm(context, t):
    context.translate(2, -2)
    gusts(context, t, SAND)
    for number, (x, y, phase) in enumerate(((8, 15, 0.0), (14, 54, 0.4), (24, 58, 0.75), (44, 19, 0.55), (50, 31, 0.2))):
        u = (t + phase) % 1.0
        radius = 2.0 * min(1.0, u / 0.2, (1 - u) / 0.2)
        if radius > 0.7:
            outlined(context, lambda c: c.arc(x + 12 * (u - 0.5), y + math.sin(2 * math.pi * u), radius, 0, 2 * math.pi),
                     SAND[0], SAND[1], 0.9)


def tornado(context, t):
    whirl(context, t, top=34)
    cloud(context, 32 + 0.8 * wave(t), 35, 1.16, "storm")


def windy(context, t):
    context.save()
    context.translate(3, 17)
    context.scale(0.78, 0.78)
    gusts(context, t)
    context.restore()
    cloud(context, 40 + 1.2 * wave(t), 28.5, 0.95, "white")


# name: (painter, images, delay in hundredths of a second, palette)
TABLE = {
    "sun": (sunny, 14, 8, 48),
    "mostly-sunny": (mostly_sunny, 14, 8, 64),
    "partly-cloudy": (partly_cloudy, 14, 8, 64),
    "mostly-cloudy": (mostly_cloudy, 14, 12, 64),
    "cloudy": (cloudy, 12, 14, 48),
    "overcast": (overcast, 12, 14, 48),
    "drizzle": (drizzle, 14, 8, 56),
    "light-rain": (light_rain, 14, 8, 56),
    "rain": (rain, 14, 7, 56),
    "heavy-rain": (heavy_rain, 14, 7, 56),
    "showers": (showers, 14, 8, 72),
    "heavy-showers": (heavy_showers, 14, 7, 72),
    "showers-night": (draw_night.showers, 14, 8, 72),
    "thunderstorm": (thunderstorm, 16, 8, 72),
    "thundery-showers": (thundery_showers, 16, 8, 80),
    "lightning": (lightning, 16, 8, 56),
    "rainbow": (rainbow, 14, 8, 80),
    "light-snow": (light_snow, 16, 8, 44),
    "snow": (snow, 16, 8, 40),
    "heavy-snow": (heavy_snow, 14, 8, 40),
    "snow-showers": (snow_showers, 14, 8, 64),
    "blizzard": (blizzard, 16, 7, 48),
    "sleet": (sleet, 16, 8, 56),
    "sleet-showers": (sleet_showers, 16, 8, 72),
    "freezing-rain": (freezing_rain, 14, 8, 56),
    "hail": (hail, 16, 7, 56),
    "hail-showers": (hail_showers, 16, 7, 72),
    "fog": (fog, 16, 12, 48),
    "mist": (mist, 14, 13, 56),
    "clear-night": (draw_night.clear, 16, 12, 48),
    "partly-cloudy-night": (draw_night.partly_cloudy, 14, 12, 64),
    "sunrise": (horizon(True), 14, 12, 48),
    "sunset": (horizon(False), 14, 12, 48),
    "windy": (windy, 12, 8, 56),
    "wind-north": (gusts_turned(90), 12, 8, 32),
    "wind-east": (gusts_turned(0, mirror=True), 12, 8, 32),
    "wind-south": (gusts_turned(-90), 12, 8, 32),
    "wind-west": (gusts_turned(0), 12, 8, 32),
    "sandstorm": (sandstorm, 12, 8, 32),
    "tornado": (tornado, 16, 7, 48),
    "hot": (hot, 14, 8, 64),
    "cold": (cold, 16, 8, 48),
    "frost": (frost, 14, 12, 32),
    "sea-calm": (sea(1.5, 26, 0.0), 12, 15, 32),
    "sea-moderate": (sea(3.0, 26, 0.3), 12, 8, 32),
    "sea-rough": (sea(4.6, 26, 0.55, foam=True), 12, 8, 40),
}
