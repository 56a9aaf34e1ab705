# SPDX-License-Identifier: GPL-3.0-or-later
"""The hand in which all symbols are drawn: palette, line weight, shading, and the shapes that they share.

Coordinates are pixels of the finished symbol. Light comes from the top left.
"""

import math

import cairo
import numpy as np

import typeface

OVERSAMPLING = 4
LINE = 1.15  # width of an outline outside its shape


def colour(text, alpha=1.0):
    return tuple(int(text[i:i + 2], 16) / 255 for i in (0, 2, 4)) + (alpha,)


def render(paint, width, height, t):
    """Runs paint(context, t) enlarged; gives the premultiplied picture that gif.encode takes."""
    surface = cairo.ImageSurface(cairo.FORMAT_ARGB32, width * OVERSAMPLING, height * OVERSAMPLING)
    context = cairo.Context(surface)
    context.scale(OVERSAMPLING, OVERSAMPLING)
    context.set_line_join(cairo.LINE_JOIN_ROUND)
    context.set_line_cap(cairo.LINE_CAP_ROUND)
    context.set_tolerance(0.02)
    paint(context, t)
    surface.flush()
    data = np.frombuffer(surface.get_data(), np.uint8).reshape(height * OVERSAMPLING, width * OVERSAMPLING, 4)
    blocks = data.reshape(height, OVERSAMPLING, width, OVERSAMPLING, 4).astype(float).mean(axis=(1, 3)) / 255
    return blocks[..., [2, 1, 0, 3]]


def wave(t, shift=0.0):
    """A sine that closes over the loop."""
    return math.sin(2 * math.pi * (t + shift))


def vertical(top, bottom, first, second):
    gradient = cairo.LinearGradient(0, top, 0, bottom)
    gradient.add_color_stop_rgba(0, *first)
    gradient.add_color_stop_rgba(1, *second)
    return gradient


def radial(x, y, radius, *stops):
    gradient = cairo.RadialGradient(x - radius * 0.3, y - radius * 0.35, radius * 0.05, x, y, radius)
    for offset, value in stops:
        gradient.add_color_stop_rgba(offset, *value)
    return gradient


def outlined(context, path, fill, line, weight=LINE):
    """Fills path(context) with an outline that lies around it, half of its stroke under the fill."""
    context.new_path()
    path(context)
    context.set_source_rgba(*line)
    context.set_line_width(2 * weight)
    context.stroke_preserve()
    if isinstance(fill, tuple):
        context.set_source_rgba(*fill)
    else:
        context.set_source(fill)
    context.fill()


HALO = colour("fbf7ff")


def halo(context, path, width):
    """A pale rim for what follows on the same path: without it deep colours sink into a dark map."""
    context.new_path()
    path(context)
    context.set_source_rgba(*HALO)
    context.set_line_width(width)
    context.stroke()


def ribbon(context, path, width, fill, line, weight=LINE):
    """A stroke with an outline."""
    for extra, ink in ((2 * weight, line), (0, fill)):
        context.new_path()
        path(context)
        context.set_line_width(width + extra)
        if isinstance(ink, tuple):
            context.set_source_rgba(*ink)
        else:
            context.set_source(ink)
        context.stroke()


def lettering(context, text, x, y, points, fill, line, weight=LINE, most=1000):
    """Bold text with its ink centred at (x, y), narrowed where it would be wider than `most` pixels."""
    typeface.select(context, points, True, False)
    extents = context.text_extents(text)
    context.save()
    context.translate(x, y)
    context.scale(min(1.0, most / extents.width), 1)

    def letters(c):
        c.move_to(-extents.x_bearing - extents.width / 2, -extents.y_bearing - extents.height / 2)
        c.text_path(text)
    outlined(context, letters, fill, line, weight)
    context.restore()


# Clouds ---------------------------------------------------------------------------------------------------------------

CLOUD_TONES = {
    #         light side, shaded side, outline
    "white": (colour("ffffff"), colour("cbd9e6"), colour("7089a3")),
    "grey": (colour("eef2f6"), colour("aebccb"), colour("5f758d")),
    "dark": (colour("c3cdd8"), colour("77889b"), colour("45566b")),
    "storm": (colour("a3b0c0"), colour("566679"), colour("334255")),
    "night": (colour("dfe6f2"), colour("95a5bf"), colour("4c5e7d")),
}

# x, y, radius of the lobes from back to front, in a cloud whose base runs from -21 to 21 at y 0.
CLOUD_LOBES = ((-3.5, -15.5, 11.5), (9.5, -11.5, 9.5), (-13.5, -8.5, 8.5), (15.5, -6.5, 6.5))


def cloud(context, x, y, scale=1.0, tone="white", flip=False):
    """A cloud whose base is centred at (x, y)."""
    light, shade, line = CLOUD_TONES[tone]
    context.save()
    context.translate(x, y)
    context.scale(-scale if flip else scale, scale)

    def silhouette(grow):
        context.new_path()
        for lobe_x, lobe_y, radius in CLOUD_LOBES:
            context.new_sub_path()
            context.arc(lobe_x, lobe_y, radius + grow, 0, 2 * math.pi)
        # The base: a bar with round ends.
        height = 13.0
        left, right = -21.5, 21.8
        middle, radius = -height / 2, height / 2
        context.new_sub_path()
        context.arc(right - radius, middle, radius + grow, -math.pi / 2, math.pi / 2)
        context.arc(left + radius, middle, radius + grow, math.pi / 2, 3 * math.pi / 2)
        context.close_path()

    silhouette(LINE / scale)
    context.set_source_rgba(*line)
    context.fill()
    silhouette(0)
    context.save()
    context.clip()
    context.set_source(vertical(-26, 1, light, shade))
    context.paint()
    # Each lobe catches the light at its own top left and throws a soft shade on the ones behind it.
    side = -1 if flip else 1
    for lobe_x, lobe_y, radius in CLOUD_LOBES:
        halo = cairo.RadialGradient(lobe_x, lobe_y + 1, radius * 0.9, lobe_x, lobe_y + 1, radius * 1.22)
        halo.add_color_stop_rgba(0, *shade[:3], 0.50)
        halo.add_color_stop_rgba(1, *shade[:3], 0.0)
        context.set_source(halo)
        context.arc(lobe_x, lobe_y, radius * 1.25, 0, 2 * math.pi)
        context.fill()
        ball = cairo.RadialGradient(lobe_x - side * radius * 0.35, lobe_y - radius * 0.4, radius * 0.1,
                                    lobe_x, lobe_y, radius)
        ball.add_color_stop_rgba(0, *light[:3], 1.0)
        ball.add_color_stop_rgba(0.55, *light[:3], 0.85)
        ball.add_color_stop_rgba(1, *light[:3], 0.0)
        context.set_source(ball)
        context.arc(lobe_x, lobe_y, radius, 0, 2 * math.pi)
        context.fill()
    context.set_source(vertical(-11, 1, shade[:3] + (0.0,), shade[:3] + (0.95,)))
    context.paint()
    context.restore()
    context.restore()


# Sun, moon, stars -----------------------------------------------------------------------------------------------------

SUN_LINE = colour("d4820c")
SUN_RAY = colour("ffb92e")


def sun(context, x, y, radius, t, rays=8, reach=1.0):
    """A sun whose rays turn on by one place in the loop and breathe once."""
    for i in range(rays):
        angle = 2 * math.pi * (i + t) / rays
        inner = radius + 4.2
        length = radius * (0.62 + 0.10 * wave(t, 0.5 * (i % 2))) * reach
        tip = inner + length
        half = radius * 0.24

        def wedge(c, a=angle):
            cos, sin = math.cos(a), math.sin(a)
            c.move_to(x + cos * inner - sin * half, y + sin * inner + cos * half)
            c.line_to(x + cos * tip, y + sin * tip)
            c.line_to(x + cos * inner + sin * half, y + sin * inner - cos * half)
            c.close_path()
        outlined(context, wedge, SUN_RAY, SUN_LINE, 0.9)
    outlined(context, lambda c: c.arc(x, y, radius, 0, 2 * math.pi),
             radial(x, y, radius, (0, colour("fff7c9")), (0.45, colour("ffe06a")), (1, colour("ffb423"))), SUN_LINE)


MOON_LINE = colour("a97d22")


def moon(context, x, y, radius, turn=-38):
    """A crescent, hollow towards `turn` degrees from the right; the hollow's ring passes through the disc's rim."""
    inner, apart, turn = radius * 0.84, radius * 0.52, math.radians(turn)
    # Half angles under which the two circles' crossing points are seen from their centres.
    outer_half = math.acos((radius ** 2 + apart ** 2 - inner ** 2) / (2 * radius * apart))
    inner_half = math.acos((apart ** 2 + inner ** 2 - radius ** 2) / (2 * inner * apart))
    context.save()
    context.translate(x, y)

    def crescent(c):
        c.arc(0, 0, radius, turn + outer_half, turn - outer_half + 2 * math.pi)
        c.arc_negative(apart * math.cos(turn), apart * math.sin(turn), inner,
                       turn + math.pi + inner_half, turn + math.pi - inner_half)
        c.close_path()
    outlined(context, crescent,
             radial(0, 0, radius * 1.1, (0, colour("fffbe3")), (0.6, colour("ffeaa0")), (1, colour("f2c14e"))),
             MOON_LINE)
    context.restore()


def star(context, x, y, size, brightness=1.0):
    """A four-pointed star; brightness 0 to 1 sets its size."""
    size *= 0.45 + 0.55 * brightness

    def points(c):
        for i in range(8):
            radius = size if i % 2 == 0 else size * 0.36
            c.line_to(x + radius * math.sin(i * math.pi / 4), y - radius * math.cos(i * math.pi / 4))
        c.close_path()
    outlined(context, points, colour("fff3b8"), colour("b58a2a"), 0.9)


# What falls -----------------------------------------------------------------------------------------------------------

DROP_LINE = colour("1d5c9f")
SLANT = 0.26  # how far falling things drift to the left for each pixel of their fall


def drop(context, x, y, size=1.0):
    """A drop with its head at (x, y), its tail leaning back along the slant."""
    context.save()
    context.translate(x, y)
    context.rotate(math.atan(SLANT))
    context.scale(size, size)

    def body(c):
        c.move_to(0, -6.4)
        c.curve_to(0.9, -3.6, 2.7, -2.2, 2.7, 0.2)
        c.arc(0, 0.2, 2.7, 0, math.pi)
        c.curve_to(-2.7, -2.2, -0.9, -3.6, 0, -6.4)
        c.close_path()
    outlined(context, body, vertical(-6, 3, colour("8fd0f7"), colour("2f8fe0")), DROP_LINE, 1.0 / size)
    context.arc(-0.9, -0.2, 0.75, 0, 2 * math.pi)
    context.set_source_rgba(1, 1, 1, 0.85)
    context.fill()
    context.restore()


def streak(context, x, y, length=8.0):
    """A line of hard rain that ends at (x, y)."""
    ribbon(context, lambda c: (c.move_to(x + SLANT * length, y - length), c.line_to(x, y)),
           1.9, colour("4fa4ec"), DROP_LINE, 0.9)


FLAKE_LINE = colour("4f83b8")


def flake(context, x, y, size, turn=0.0, weight=1.5, fill=(1, 1, 1, 1)):
    """A six-armed snow crystal; small ones are plain stars, for branches would fill them up."""
    def arms(c):
        for i in range(6):
            angle = turn + i * math.pi / 3
            cos, sin = math.cos(angle), math.sin(angle)
            c.move_to(x, y)
            c.line_to(x + cos * size, y + sin * size)
            if size >= 8:
                for side in (-1, 1):
                    c.move_to(x + cos * size * 0.55, y + sin * size * 0.55)
                    branch = angle + side * math.pi / 3.4
                    c.line_to(x + cos * size * 0.55 + math.cos(branch) * size * 0.36,
                              y + sin * size * 0.55 + math.sin(branch) * size * 0.36)
    ribbon(context, arms, weight, fill, FLAKE_LINE, 0.85 if size < 8 else 1.1)


def pellet(context, x, y, radius):
    outlined(context, lambda c: c.arc(x, y, radius, 0, 2 * math.pi),
             radial(x, y, radius, (0, colour("ffffff")), (0.5, colour("e6f3fb")), (1, colour("9cc3e0"))),
             colour("44719c"), 1.0)


def bolt(context, x, y, scale=1.0, glow=1.0):
    """A flash with its top at (x, y); glow 0 to 1 takes it from amber to near white."""
    shape = ((2.0, 0), (-5.5, 11.2), (-0.8, 11.2), (-4.2, 20.5), (6.6, 7.8), (1.6, 7.8), (6.2, 0))

    def path(c):
        for px, py in shape:
            c.line_to(x + px * scale, y + py * scale)
        c.close_path()
    low, high = np.array(colour("ffc02b")), np.array(colour("fff6a8"))
    outlined(context, path, tuple(low + (high - low) * glow), colour("b06a00"), 1.1)


# Air and water --------------------------------------------------------------------------------------------------------

def mist_bar(context, x1, x2, y, width, fill, line):
    ribbon(context, lambda c: (c.move_to(x1, y), c.line_to(x2, y)), width, fill, line, 0.95)
