# SPDX-License-Identifier: GPL-3.0-or-later
"""The collection "night": the sky by night, and the moon's phases."""

import math

from ink import bolt, cloud, colour, flake, moon, outlined, radial, star, wave
from weather import (HEAVY_RAIN, LIGHT_RAIN, RAIN, drops, flakes, flash, glint, gusts, hailstones, ice_ground, mist_bars,
                     streaks, twinkle)


# The sky --------------------------------------------------------------------------------------------------------------

def clear(context, t):
    moon(context, 29, 34, 23)
    star(context, 40, 24, 7.4, twinkle(t, 0.25))
    star(context, 52, 11, 5.2, twinkle(t, 0.60))
    star(context, 56, 29, 4.6, twinkle(t, 0.95))


def starry(context, t):
    """A round piece of the night sky: stars alone are lost on a pale map."""
    outlined(context, lambda c: c.arc(32, 32, 28.5, 0, 2 * math.pi),
             radial(32, 32, 28.5, (0, colour("3f5f9a")), (0.6, colour("2a4277")), (1, colour("1b2c55"))),
             colour("c9d6ee"), 1.3)
    for x, y, size, shift in ((30, 30, 11.0, 0.25), (16, 21, 6.4, 0.6), (46, 18, 7.6, 0.9), (48, 42, 6.4, 0.45),
                              (17, 44, 7.4, 0.05), (34, 51, 5.0, 0.75), (31, 11, 4.6, 0.35)):
        star(context, x, y, size, twinkle(t, shift))


def mostly_clear(context, t):
    moon(context, 29, 28, 20, turn=-25)
    star(context, 45, 13, 6.2, twinkle(t, 0.25))
    star(context, 56, 26, 4.8, twinkle(t, 0.7))
    cloud(context, 44 + 1.2 * wave(t), 58, 0.72, "night")


def partly_cloudy(context, t):
    moon(context, 25, 24, 18, turn=-12)
    star(context, 40, 13, 5.8, twinkle(t, 0.25))
    star(context, 55, 24, 4.6, twinkle(t, 0.7))
    cloud(context, 35 + 1.2 * wave(t), 57, 1.04, "night")


def mostly_cloudy(context, t):
    moon(context, 20, 20, 14.5, turn=-12)
    cloud(context, 43 - 1.4 * wave(t), 44, 0.78, "dark", flip=True)
    cloud(context, 31 + 1.2 * wave(t), 57, 1.16, "night")


def cloudy(context, t):
    cloud(context, 40 - 1.8 * wave(t), 39, 0.95, "dark", flip=True)
    cloud(context, 29 + 1.4 * wave(t), 55, 1.16, "night")
    star(context, 11, 15, 5.4, twinkle(t, 0.25))


def overcast(context, t):
    cloud(context, 23 - 1.6 * wave(t), 36, 0.90, "storm")
    cloud(context, 42 + 1.6 * wave(t), 40, 0.92, "storm", flip=True)
    cloud(context, 31 + 1.2 * wave(t, 0.25), 55, 1.20, "dark")


# What falls -----------------------------------------------------------------------------------------------------------

def under_cloud(fall, tone="night"):
    """A full cloud with a crescent behind its shoulder, and something that falls from it."""
    def paint(context, t):
        moon(context, 48, 16, 12.5, turn=200)
        fall(context, t)
        cloud(context, 31, 41, 1.22, tone)
    return paint


def out_of_moonlight(fall, tone="night"):
    """A cloud that leaves half the moon free: showers."""
    def paint(context, t):
        moon(context, 21, 19, 14.5, turn=-12)
        fall(context, t)
        cloud(context, 36, 43, 1.06, tone)
    return paint


SHOWER = ((27, 0.15), (37, 0.65), (47, 0.40))


def dropping(columns, **more):
    return lambda context, t: drops(context, t, columns, **more)


def flaking(columns, size, **more):
    return lambda context, t: flakes(context, t, columns, size, **more)


showers = out_of_moonlight(dropping(SHOWER, top=42))


def hard_rain(context, t):
    streaks(context, t, HEAVY_RAIN, top=40, cycles=2, length=10)


def hard_shower(context, t):
    streaks(context, t, ((24, 0.05), (31, 0.55), (38, 0.25), (45, 0.80), (52, 0.42)), top=42, cycles=2, length=9)


def sleety(context, t):
    drops(context, t, ((28, 0.30), (49, 0.72)), top=40)
    flakes(context, t, ((18, 0.65), (39, 0.36)), 5.6)


def sleety_shower(context, t):
    drops(context, t, ((37, 0.65),), top=42)
    flakes(context, t, ((26, 0.30), (48, 0.36)), 5.4, top=41)


def thundery(context, t):
    drops(context, t, ((26, 0.15), (51, 0.55)), top=42)
    bolt(context, 36, 41.5, 1.0, flash(t))


def thunder(context, t):
    streaks(context, t, ((16, 0.1), (47, 0.35), (54, 0.8), (22, 0.6)), top=40, cycles=2, length=9)
    bolt(context, 32, 39.5, 1.1, flash(t))


def freezing(context, t):
    moon(context, 48, 16, 12.5, turn=200)
    drops(context, t, LIGHT_RAIN, top=40, bottom=57)
    cloud(context, 31, 40, 1.2, "dark")
    ice_ground(context, t)


# Mist, wind, cold -----------------------------------------------------------------------------------------------------

def fog(context, t):
    cloud(context, 32, 36, 1.16, "night")
    mist_bars(context, t)


def mist(context, t):
    moon(context, 33, 22, 17, turn=-20)
    star(context, 46, 12, 5.4, twinkle(t, 0.25))
    mist_bars(context, t, ((37, 11, 50), (45.5, 15, 57), (54, 9, 47)))


def windy(context, t):
    moon(context, 45, 20, 15.5, turn=200)
    context.translate(2, 14)
    context.scale(0.84, 0.84)
    gusts(context, t)


def frosty(context, t):
    moon(context, 25, 27, 19, turn=-38)
    glint(context, 13, 53, 5.2 * (0.4 + 0.6 * twinkle(t, 0.25)))
    glint(context, 53, 12, 5.8 * (0.4 + 0.6 * twinkle(t, 0.7)))
    flake(context, 45, 44, 15.5, turn=math.pi / 6 + math.pi / 3 * t, weight=2.4)


# The moon -------------------------------------------------------------------------------------------------------------

MOON_LINE = colour("a97d22")
SEAS = ((-8, -9, 6.0), (4, -13, 3.6), (7, -3, 5.0), (-4, 4, 4.2), (9, 9, 3.6), (-12, 8, 3.2), (1, 14, 2.8))


def phase(lit):
    """The moon's disc; `lit` is its age in the month, 0 to 1: 0 new, 0.5 full. The north's moon waxes from the right."""
    def paint(context, t):
        radius = 23.0
        context.translate(32, 32)
        near, far = ("5b6b86", "39465c") if lit else ("7f8fae", "4d5d7b")
        disc = radial(0, 0, radius * 1.1, (0, colour(near)), (1, colour(far)))
        outlined(context, lambda c: c.arc(0, 0, radius, 0, 2 * math.pi), disc, colour("26324a"), 1.3)
        if lit == 0:
            # The old moon in the young one's arms: a rim of light, which also shows it on a dark map.
            context.arc(0, 0, radius - 1.1, 0, 2 * math.pi)
            context.set_source_rgba(*colour("e9eef8"))
            context.set_line_width(2.4)
            context.stroke()
        else:
            mirror = 1 if lit <= 0.5 else -1
            context.save()
            context.scale(mirror, 1)
            context.new_path()
            context.arc(0, 0, radius, -math.pi / 2, math.pi / 2)
            # The line between day and night is half an ellipse, a circle seen from the side.
            bulge = math.cos(2 * math.pi * lit)
            context.save()
            context.scale(bulge if abs(bulge) > 0.001 else 0.001, 1)
            context.arc_negative(0, 0, radius, math.pi / 2, -math.pi / 2)
            context.restore()
            context.close_path()
            context.scale(mirror, 1)
            context.clip()
            context.set_source(radial(0, 0, radius * 1.1, (0, colour("fffdf0")), (0.6, colour("ffeeb4")),
                                      (1, colour("efc75f"))))
            context.paint()
            for x, y, size in SEAS:
                context.arc(x, y, size, 0, 2 * math.pi)
                context.set_source_rgba(*colour("d9ae52", 0.38))
                context.fill()
            context.restore()
        context.arc(0, 0, radius + 0.2, 0, 2 * math.pi)
        context.set_source_rgba(*MOON_LINE)
        context.set_line_width(1.6)
        context.stroke()
        for x, y, size, shift in ((-25, -23, 5.0, 0.25), (25, 22, 4.2, 0.7)):
            star(context, x, y, size, twinkle(t, shift))
    return paint


def shooting_star(context, t):
    star(context, 14, 44, 7.0, twinkle(t, 0.25))
    star(context, 50, 50, 5.4, twinkle(t, 0.6))
    star(context, 12, 14, 5.0, twinkle(t, 0.9))
    u = (t + 0.45) % 1.0
    if u < 0.9:
        # Longest in the middle of its way, which is where the loop begins.
        length = 30 * math.sin(math.pi * u / 0.9)
        x, y = 58 - 36 * u / 0.9, 8 + 30 * u / 0.9
        from_x, from_y = min(x + length * 0.77, 61), max(y - length * 0.64, 3)

        def tail(c):
            c.move_to(from_x, from_y)
            c.line_to(x - 1.8, y - 2.2)
            c.line_to(x + 1.8, y + 2.2)
            c.close_path()
        outlined(context, tail, colour("ffeaa0"), colour("a97d22"), 0.9)
        star(context, x, y, 9.0)


TABLE = {
    "clear-night": (clear, 16, 12, 48),
    "starry-night": (starry, 16, 12, 32),
    "mostly-clear-night": (mostly_clear, 14, 12, 64),
    "partly-cloudy-night": (partly_cloudy, 14, 12, 64),
    "mostly-cloudy-night": (mostly_cloudy, 14, 12, 64),
    "cloudy-night": (cloudy, 12, 14, 56),
    "overcast-night": (overcast, 12, 14, 48),
    "drizzle-night": (under_cloud(dropping(((20, 0.2), (28, 0.7), (36, 0.0), (44, 0.5), (52, 0.9)), size=0.62, top=40)),
                      14, 8, 64),
    "light-rain-night": (under_cloud(dropping(LIGHT_RAIN, top=40)), 14, 8, 64),
    "rain-night": (under_cloud(dropping(RAIN, top=40)), 14, 7, 64),
    "heavy-rain-night": (under_cloud(hard_rain, "storm"), 14, 7, 64),
    "showers-night": (showers, 14, 8, 72),
    "heavy-showers-night": (out_of_moonlight(hard_shower, "dark"), 14, 7, 72),
    "thunderstorm-night": (under_cloud(thunder, "storm"), 16, 8, 72),
    "thundery-showers-night": (out_of_moonlight(thundery, "dark"), 16, 8, 80),
    "light-snow-night": (under_cloud(flaking(((24, 0.35), (34, 0.85), (44, 0.60)), 5.6)), 16, 8, 64),
    "snow-night": (under_cloud(flaking(((17, 0.38), (28, 0.72), (38, 0.28), (49, 0.62)), 5.6)), 16, 8, 64),
    "heavy-snow-night": (under_cloud(flaking(((14, 0.32), (22, 0.72), (30, 0.22), (39, 0.62), (47, 0.35), (51, 0.80),
                                              (34, 0.98)), 5.2),
                                     "dark"), 14, 8, 64),
    "snow-showers-night": (out_of_moonlight(flaking(((26, 0.30), (37, 0.68), (48, 0.36)), 5.4, top=41)), 14, 8, 72),
    "sleet-night": (under_cloud(sleety), 16, 8, 72),
    "sleet-showers-night": (out_of_moonlight(sleety_shower), 16, 8, 72),
    "freezing-rain-night": (freezing, 14, 8, 72),
    "hail-night": (under_cloud(hailstones, "dark"), 16, 7, 72),
    "fog-night": (fog, 16, 12, 48),
    "mist-night": (mist, 14, 13, 64),
    "windy-night": (windy, 12, 8, 64),
    "frost-night": (frosty, 16, 11, 64),
    "shooting-star": (shooting_star, 16, 8, 40),
    "new-moon": (phase(0.0), 12, 15, 40),
    "crescent-moon": (phase(0.13), 12, 15, 56),
    "first-quarter": (phase(0.25), 12, 15, 56),
    "gibbous-moon": (phase(0.37), 12, 15, 56),
    "full-moon": (phase(0.5), 12, 15, 56),
    "last-quarter": (phase(0.75), 12, 15, 56),
}
