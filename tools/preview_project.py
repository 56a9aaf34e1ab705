#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Shows a project as pictures: each Frame's block with its symbols and labels, written as PNG.

    preview_project.py PROJECT.nvpf OUT-FOLDER

Reads by position, as the format demands, so a slip in a writer's order shows at once.
"""

import io
import os
import sys
import xml.etree.ElementTree as ElementTree

import cairo
import numpy as np
from PIL import Image

import typeface
from geo import REPOSITORY


def rgb(value):
    return (value & 255) / 255, (value >> 8 & 255) / 255, (value >> 16 & 255) / 255


def draw_label(context, values):
    ground, ink, border, border_colour, _, points, bold, italic = values[:8]
    height, width, left, top, text = values[11:16]
    x, y, width, height = int(left), int(top), int(width), int(height)
    if int(ground) != -1:
        context.rectangle(x, y, width, height)
        context.set_source_rgb(*rgb(int(ground)))
        context.fill()
    inset = 0
    if int(border):
        context.rectangle(x + 0.5, y + 0.5, width - 1, height - 1)
        context.set_source_rgb(*rgb(int(border_colour)))
        context.set_line_width(1)
        context.stroke()
        inset = 1
    typeface.select(context, int(points), bold == "True", italic == "True")
    context.set_source_rgb(*rgb(int(ink)))
    context.move_to(x + inset, y + inset + round(typeface.pixels(int(points)) * typeface.ASCENT))
    context.show_text(text)


def main():
    project, folder = sys.argv[1:3]
    os.makedirs(folder, exist_ok=True)
    root = ElementTree.parse(project).getroot()
    count, map_name, map_size, version = list(root.attrib.values())[:4]
    assert version == "2.0"
    with open(project[:project.rindex(".") + 1] + "nvpx", "rb") as file:
        data = file.read()
    sizes = [int(map_size)] + [int(list(frame.attrib.values())[1]) for frame in root.findall("Frames/*")]
    assert len(sizes) == int(count) + 1 and sum(sizes) == len(data), "sizes and data disagree"
    with open(os.path.join(REPOSITORY, "content", "Maps", map_name), "rb") as file:
        assert data[:sizes[0]] == file.read(), "block 0 is not the map file"
    offset = sizes[0]
    for number, frame in enumerate(root.findall("Frames/*"), 1):
        picture = Image.open(io.BytesIO(data[offset:offset + sizes[number]])).convert("RGB")
        offset += sizes[number]
        for item in frame.findall("Symbol/*"):
            name, height, width, left, top = list(item.attrib.values())[:5]
            path = os.path.join(REPOSITORY, "content", "Symbols", *name.split("\\"))
            symbol = Image.open(path).convert("RGBA")
            if symbol.size != (int(width), int(height)):
                symbol = symbol.resize((int(width), int(height)), Image.BICUBIC)
            picture.paste(symbol, (int(left), int(top)), symbol)
        pixels = np.dstack([np.asarray(picture)[..., ::-1], np.full(picture.size[::-1], 255, np.uint8)]).copy()
        surface = cairo.ImageSurface.create_for_data(pixels, cairo.FORMAT_ARGB32, *picture.size)
        context = cairo.Context(surface)
        for item in frame.findall("Label/*"):
            draw_label(context, list(item.attrib.values()))
        surface.flush()
        surface.write_to_png(os.path.join(folder, f"frame-{number}.png"))
    print(f"{count} pictures in {folder}")


if __name__ == "__main__":
    main()
