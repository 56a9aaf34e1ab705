# SPDX-License-Identifier: GPL-3.0-or-later
"""Text as the program sets it: 96 dots per inch, no hinting, Arial's widths by way of Liberation Sans."""

import math

import cairo

ASCENT, DESCENT, LINE_GAP = 0.905, 0.212, 0.033  # of Arial and Liberation Sans, in ems


def pixels(points):
    return points * 96 / 72


def select(context, points, bold, italic):
    context.select_font_face("Liberation Sans", cairo.FONT_SLANT_ITALIC if italic else cairo.FONT_SLANT_NORMAL,
                             cairo.FONT_WEIGHT_BOLD if bold else cairo.FONT_WEIGHT_NORMAL)
    context.set_font_size(pixels(points))
    options = cairo.FontOptions()
    options.set_hint_style(cairo.HINT_STYLE_NONE)
    options.set_hint_metrics(cairo.HINT_METRICS_OFF)
    options.set_antialias(cairo.ANTIALIAS_GRAY)
    context.set_font_options(options)


def box(text, points, bold=False, italic=False, border=False):
    """Width and height of a one-line label that holds the text, its border included."""
    context = cairo.Context(cairo.ImageSurface(cairo.FORMAT_A8, 8, 8))
    select(context, points, bold, italic)
    frame = 2 if border else 0
    width = math.ceil(context.text_extents(text).x_advance) + 1 + frame
    height = math.ceil(pixels(points) * (ASCENT + DESCENT + LINE_GAP)) + frame
    return width, height
