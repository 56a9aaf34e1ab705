#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Draws the animations of the progress windows in content/Media: fileUpload.gif and fileCopy.gif, 272 x 60."""

import argparse
import math
import os

import cairo

import gif
from geo import REPOSITORY
from ink import colour, outlined, radial, render, vertical

WIDTH, HEIGHT = 272, 60
PAGES = 4  # in flight at a time; the loop lasts until each has taken the place of the next
PAPER_LINE = colour("64788e")
FOLDER_LINE = colour("a06f17")
STEEL_LINE = colour("43566b")


def rounded(context, x, y, width, height, radius):
    context.new_sub_path()
    context.arc(x + width - radius, y + radius, radius, -math.pi / 2, 0)
    context.arc(x + width - radius, y + height - radius, radius, 0, math.pi / 2)
    context.arc(x + radius, y + height - radius, radius, math.pi / 2, math.pi)
    context.arc(x + radius, y + radius, radius, math.pi, 1.5 * math.pi)
    context.close_path()


def page(context, x, y, scale, tilt):
    context.save()
    context.translate(x, y)
    context.rotate(tilt)
    context.scale(scale, scale)
    width, height, fold = 15.0, 19.0, 4.6
    left, top = -width / 2, -height / 2

    def sheet(c):
        c.move_to(left, top)
        c.line_to(left + width - fold, top)
        c.line_to(left + width, top + fold)
        c.line_to(left + width, top + height)
        c.line_to(left, top + height)
        c.close_path()
    outlined(context, sheet, vertical(top, top + height, colour("ffffff"), colour("e3ecf4")), PAPER_LINE, 1.0 / scale)
    context.move_to(left + width - fold, top)
    context.line_to(left + width - fold, top + fold)
    context.line_to(left + width, top + fold)
    context.close_path()
    context.set_source_rgba(*colour("b9c9d8"))
    context.fill()
    context.set_line_width(1.1)
    context.set_source_rgba(*colour("8ba3ba"))
    for row, length in enumerate((0.42, 0.72, 0.72, 0.55)):
        y_line = top + 5.2 + row * 3.2
        context.move_to(left + 2.4, y_line)
        context.line_to(left + 2.4 + length * width, y_line)
    context.stroke()
    context.restore()


def folder_back(context, x, y):
    """A folder 46 wide and 34 high with its top left at (x, y): the rear board with its tab."""
    def board(c):
        c.move_to(x + 2, y + 34)
        c.line_to(x + 2, y + 3)
        c.curve_to(x + 2, y + 1, x + 3, y, x + 5, y)
        c.line_to(x + 17, y)
        c.line_to(x + 21, y + 5)
        c.line_to(x + 42, y + 5)
        c.curve_to(x + 43.5, y + 5, x + 44, y + 6, x + 44, y + 7)
        c.line_to(x + 44, y + 34)
        c.close_path()
    outlined(context, board, vertical(y, y + 34, colour("e7b04a"), colour("d2932a")), FOLDER_LINE)


def folder_front(context, x, y):
    def board(c):
        c.move_to(x + 2, y + 34)
        c.line_to(x - 2.5, y + 14)
        c.line_to(x + 48.5, y + 14)
        c.line_to(x + 44, y + 34)
        c.close_path()
    outlined(context, board, vertical(y + 13, y + 34, colour("ffe08a"), colour("f2b441")), FOLDER_LINE)


def computer(context, x, y):
    """A screen 54 wide on its foot; (x, y) is its top left."""
    def foot(c):
        c.move_to(x + 21, y + 36)
        c.line_to(x + 33, y + 36)
        c.line_to(x + 35, y + 43)
        c.line_to(x + 41, y + 46.5)
        c.line_to(x + 13, y + 46.5)
        c.line_to(x + 19, y + 43)
        c.close_path()
    outlined(context, foot, vertical(y + 36, y + 47, colour("b3c0cd"), colour("e4eaf0")), STEEL_LINE)
    outlined(context, lambda c: rounded(c, x, y, 54, 37, 3.5),
             vertical(y, y + 37, colour("f1f5f8"), colour("c5d0db")), STEEL_LINE)
    glass = cairo.LinearGradient(x, y, x + 40, y + 37)
    glass.add_color_stop_rgba(0, *colour("8ccbf2"))
    glass.add_color_stop_rgba(1, *colour("2b6fb5"))
    rounded(context, x + 4, y + 4, 46, 29, 1.5)
    context.set_source(glass)
    context.fill()


def globe(context, x, y, radius, t):
    """A blue globe whose meridians turn on by one place in the loop."""
    outlined(context, lambda c: c.arc(x, y, radius, 0, 2 * math.pi),
             radial(x, y, radius, (0, colour("dff3ff")), (0.45, colour("79bff0")), (1, colour("2a74bd"))),
             colour("1c4f85"), 1.3)
    context.save()
    context.arc(x, y, radius, 0, 2 * math.pi)
    context.clip()
    context.set_source_rgba(1, 1, 1, 0.75)
    context.set_line_width(1.2)
    for degrees in (-50, -25, 0, 25, 50):
        height = y - radius * math.sin(math.radians(degrees))
        half = radius * math.cos(math.radians(degrees))
        context.move_to(x - half, height)
        context.line_to(x + half, height)
    context.stroke()
    for place in range(6):
        angle = math.radians(-90 + 30 * (place + t))
        half = radius * math.sin(angle)
        points = [(x + half * math.cos(math.radians(d)), y - radius * math.sin(math.radians(d)))
                  for d in range(-90, 91, 6)]
        context.move_to(*points[0])
        for point in points[1:]:
            context.line_to(*point)
        context.stroke()
    context.restore()


def flight(t, start, end, rise, steepness=2):
    """Yields (x, y, progress) of the pages on their arc, the first to land last so that it lies on top.

    Steepness 2 is a parabola; more lifts the pages sooner and flattens the middle of the way.
    """
    for number in range(PAGES):
        u = (number + t) / PAGES
        smooth = u * u * (3 - 2 * u) * 0.35 + u * 0.65  # softer at both ends
        yield (start[0] + (end[0] - start[0]) * smooth,
               start[1] + (end[1] - start[1]) * smooth - rise * (1 - abs(2 * smooth - 1) ** steepness), u)


def size_on_way(u, out, home):
    """Grows over the first part of the flight and shrinks over the last."""
    if u < 0.22:
        return out + (1 - out) * u / 0.22
    if u > 0.8:
        return 1 - (1 - home) * (u - 0.8) / 0.2
    return 1.0


def upload(context, t):
    computer(context, 5, 8)
    globe(context, 243, 31, 23, t)
    for x, y, u in flight(t, (32, 26), (243, 31), 9):
        page(context, x, y, size_on_way(u, 0.45, 0.25), 0.30 * math.sin(2 * math.pi * u))


def copy(context, t):
    left, right, top = 6, 220, 21
    folder_back(context, left, top)
    folder_back(context, right, top)
    pages = list(flight(t, (left + 23, 44), (right + 23, 44), 29, steepness=5))
    for x, y, u in pages:
        page(context, x, y, size_on_way(u, 0.8, 0.8), 0.9 * (u - 0.5) * math.sin(math.pi * u))
    folder_front(context, left, top)
    folder_front(context, right, top)


MEDIA = {
    "fileUpload": (upload, 12, 8, 44),
    "fileCopy": (copy, 12, 8, 48),
}


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--output", default=os.path.join(REPOSITORY, "content", "Media"))
    arguments = parser.parse_args()
    os.makedirs(arguments.output, exist_ok=True)
    for name, (paint, images, delay, colours) in MEDIA.items():
        pictures = [render(paint, WIDTH, HEIGHT, i / images) for i in range(images)]
        data = gif.encode(pictures, delay, colours)
        with open(os.path.join(arguments.output, name + ".gif"), "wb") as file:
            file.write(data)
        print(f"{name}.gif  {len(data)} bytes")


if __name__ == "__main__":
    main()
