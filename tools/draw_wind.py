# SPDX-License-Identifier: GPL-3.0-or-later
"""The collection "wind": directions, force, and what else the wind does, 48 x 48.

A wind is named after the side that it comes from, so its arrow points to the other.
"""

import math

import cairo

from ink import colour, halo, lettering, outlined, radial, ribbon, wave
from weather import gusts

SIDE = 48
ARROW, ARROW_LIGHT, ARROW_LINE = colour("2f7fc4"), colour("bfe3fb"), colour("17436e")
DIRECTIONS = ("n", "ne", "e", "se", "s", "sw", "w", "nw")
SIDES = ("north", "northeast", "east", "southeast", "south", "southwest", "west", "northwest")

# The arrow's left and right shade, its outline, its lights; half its shaft; images that a light needs for its way.
FORCES = {
    "light": (("a3d977", "5fae45"), "2f6a24", "f0ffdf", 2.9, 12),
    "strong": (("ffc35a", "f0921e"), "8f4d07", "fff1c9", 5.6, 8),
    "storm": (("f2706a", "c9252f"), "6e0f18", "ffe0d6", 6.6, 8),
}


def arrow_body(half, head):
    def body(c):
        c.move_to(0, -20.5)
        c.line_to(head, -5.5)
        c.line_to(half, -5.5)
        c.line_to(half, 19.5)
        c.line_to(0, 16.2)
        c.line_to(-half, 19.5)
        c.line_to(-half, -5.5)
        c.line_to(-head, -5.5)
        c.close_path()
    return body


def lights(context, t, body, half, ink):
    """Chevrons that run along the shaft to the tip."""
    context.save()
    body(context)
    context.clip()
    context.set_line_width(3.0)
    context.set_line_cap(cairo.LINE_CAP_BUTT)
    context.set_line_join(cairo.LINE_JOIN_MITER)
    context.set_source_rgba(*ink)
    for i in range(-1, 6):
        y = 22 - 9.0 * (i + t)
        if y < -17:
            continue
        context.move_to(-half, y + half - 0.2)
        context.line_to(0, y)
        context.line_to(half, y + half - 0.2)
    context.stroke()
    context.restore()


def wind_arrow(towards, shades=("4e9fdd", "2470b4"), line=ARROW_LINE, light=ARROW_LIGHT, half=4.6, head=11.5):
    """An arrow that points `towards` degrees clockwise from north."""
    def paint(context, t):
        context.translate(24, 24)
        context.rotate(math.radians(towards))
        body = arrow_body(half, head)
        gradient = cairo.LinearGradient(-12, 0, 12, 0)
        gradient.add_color_stop_rgba(0, *colour(shades[0]))
        gradient.add_color_stop_rgba(1, *colour(shades[1]))
        outlined(context, body, gradient, line, 1.25)
        lights(context, t, body, half - 1.4, light)
    return paint


def forced_arrow(towards, force):
    shades, line, light, half, _ = FORCES[force]
    return wind_arrow(towards, shades, colour(line), colour(light), half, head=9.5 if half < 4 else 11.5 + (half - 4.6))


def calm(context, t):
    """The station circle of still air: a dot in a ring that swells once."""
    radius = 12.5 + 2.5 * wave(t)
    ribbon(context, lambda c: c.arc(24, 24, radius, 0, 2 * math.pi), 3.0, colour("5fa9e2"), ARROW_LINE, 1.1)
    outlined(context, lambda c: c.arc(24, 24, 4.6, 0, 2 * math.pi),
             radial(24, 24, 4.6, (0, ARROW_LIGHT), (1, ARROW)), ARROW_LINE, 1.1)


# Force ----------------------------------------------------------------------------------------------------------------

BEAUFORT_SHADES = ("8fa3b5", "7fb2d6", "63b5c9", "57b89a", "6cba5f", "96c04a", "d8c23c", "f0b02e", "f2952c", "ee7431",
                   "e4533a", "e23a63", "c04aa8")


def beaufort(number):
    """A disc with the number; a ring of strokes turns around it, the faster the stronger."""
    def paint(context, t):
        shade = colour(BEAUFORT_SHADES[number])
        dark = tuple(part * 0.52 for part in shade[:3]) + (1.0,)
        pale = tuple(part * 0.45 + 0.55 for part in shade[:3]) + (1.0,)
        length = 0.035 * number + 0.16
        strokes = [math.pi / 2 * (index + t) for index in range(4 if number else 0)]
        if number > 10:  # the deepest colours need a rim of light on dark maps
            for angle in strokes:
                halo(context, lambda c: c.arc(24, 24, 19.6, angle - length, angle + length), 2.4 + 2 * 1.9)
            halo(context, lambda c: c.arc(24, 24, 15.2, 0, 2 * math.pi), 2 * 2.3)
        for angle in strokes:
            ribbon(context, lambda c: c.arc(24, 24, 19.6 if number > 10 else 20.0, angle - length, angle + length), 2.4, shade, dark, 1.0)
        outlined(context, lambda c: c.arc(24, 24, 15.2, 0, 2 * math.pi),
                 radial(24, 24, 15.2, (0, pale), (0.55, shade), (1, shade)), dark, 1.2)
        lettering(context, str(number), 24, 24, 15, (1, 1, 1, 1), dark, 1.3)
    return paint


# What else the wind does ----------------------------------------------------------------------------------------------

def windsock(context, t):
    ribbon(context, lambda c: (c.move_to(9, 45), c.line_to(9, 6)), 2.6, colour("c6d0da"), colour("4b5b6c"), 1.0)
    count, length = 5, 33.0

    def middle(share):
        return 13 - 1.5 * share + 2.6 * share * math.sin(2 * math.pi * (t - share * 0.8)) + 5 * share

    def half(share):
        return 7.2 - 3.6 * share

    for ring in range(count):
        first, last = ring / count, (ring + 1) / count

        def panel(c):
            steps = [first + (last - first) * i / 6 for i in range(7)]
            for share in steps:
                c.line_to(11 + length * share, middle(share) - half(share))
            for share in reversed(steps):
                c.line_to(11 + length * share, middle(share) + half(share))
            c.close_path()
        fill = colour("f06a3c") if ring % 2 == 0 else colour("ffffff")
        outlined(context, panel, fill, colour("8c3212"), 1.1)


def gusty(context, t):
    context.scale(0.75, 0.75)
    gusts(context, t)


def variable(context, t):
    """Two arrows that chase each other around."""
    context.translate(24, 24)
    context.rotate(0.5 * math.sin(2 * math.pi * t))
    for turn in (0, math.pi):
        context.save()
        context.rotate(turn)
        bend = (lambda c: c.arc(0, 0, 14.5, math.radians(-150), math.radians(-38)))
        ribbon(context, bend, 5.0, colour("4e9fdd"), ARROW_LINE, 1.2)

        def tip(c):
            c.move_to(14.5 * math.cos(math.radians(-4)), 14.5 * math.sin(math.radians(-4)))
            c.line_to(20.5 * math.cos(math.radians(-44)), 20.5 * math.sin(math.radians(-44)))
            c.line_to(7.0 * math.cos(math.radians(-44)), 7.0 * math.sin(math.radians(-44)))
            c.close_path()
        outlined(context, tip, colour("4e9fdd"), ARROW_LINE, 1.2)
        context.new_path()
        context.arc(0, 0, 14.5, math.radians(-146), math.radians(-44))
        context.set_line_width(2.0)
        context.set_source_rgba(*ARROW_LIGHT)
        context.stroke()
        context.restore()


TABLE = {f"wind-{name}": (wind_arrow(number * 45 + 180), 9, 10, 32) for number, name in enumerate(DIRECTIONS)}
for force, (_, _, _, _, images) in FORCES.items():
    delay = 12 if force == "light" else 10
    TABLE.update({f"wind-{name}-{force}": (forced_arrow(number * 45 + 180, force), images, delay, 32)
                  for number, name in enumerate(DIRECTIONS)})
TABLE["calm"] = (calm, 12, 14, 32)
TABLE["variable"] = (variable, 12, 14, 32)
TABLE["gusts"] = (gusty, 12, 8, 32)
TABLE["windsock"] = (windsock, 14, 8, 48)
TABLE.update({f"beaufort-{number:02}": (beaufort(number), 12 if number else 1, max(8, 16 - number), 40)
              for number in range(13)})
