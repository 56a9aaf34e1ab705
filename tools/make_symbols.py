#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Draws the symbol collections in content/Symbols: animated GIF, and "soft" as still PNG.

A symbol is a function of (context, t) with t from 0 to 1 over the loop, and one entry in its collection's table. The
image at t = 0 is the one that a still picture shows, so every symbol must say all it has to say there already.
"""

import argparse
import os

import numpy as np
from PIL import Image, ImageFilter

import draw_air
import draw_barbs
import draw_day
import draw_fronts
import draw_night
import draw_sea
import draw_warnings
import draw_wind
import gif
from geo import REPOSITORY
from ink import render

# name: (table, side in pixels); a table has name: (painter, images, delay in hundredths of a second, palette)
COLLECTIONS = {
    "set-1": (draw_day.TABLE, 64),
    "night": (draw_night.TABLE, 64),
    "wind": (draw_wind.TABLE, 48),
    "fronts": (draw_fronts.TABLE, 64),
    "sea": (draw_sea.TABLE, 64),
    "warnings": (draw_warnings.TABLE, 64),
    "barbs": (draw_barbs.TABLE, draw_barbs.SIDE),
    "air": (draw_air.TABLE, 64),
}


# The still variant: every sky, by day and by night.
SOFT = {**{name: entry[0] for name, entry in draw_day.TABLE.items()},
        **{name: entry[0] for name, entry in draw_night.TABLE.items()}}
SOFT_SIDE = 64
SHADOW, SHADOW_SHARE, SHADOW_BLUR, SHADOW_OFFSET = (28, 44, 66), 0.42, 1.7, (1, 2)


def soft_picture(paint):
    """The first image with its soft edges kept and a shadow under it, which lifts it off any map."""
    picture = render(paint, SOFT_SIDE, SOFT_SIDE, 0.0)
    alpha = picture[..., 3]
    shade = Image.fromarray(np.rint(alpha * 255).astype(np.uint8)).filter(ImageFilter.GaussianBlur(SHADOW_BLUR))
    moved = Image.new("L", shade.size)
    moved.paste(shade, SHADOW_OFFSET)
    under = np.asarray(moved, dtype=float) / 255 * SHADOW_SHARE * (1 - alpha)
    total = alpha + under
    colours = picture[..., :3] * 255 + under[..., None] * np.array(SHADOW)
    straight = np.where(total[..., None] > 0, colours / np.maximum(total, 1e-6)[..., None], 0)
    return Image.fromarray(np.rint(np.clip(np.dstack((straight, total * 255)), 0, 255)).astype(np.uint8), "RGBA")


def draw_collection(folder, collection, wanted):
    table, size = COLLECTIONS[collection]
    os.makedirs(folder, exist_ok=True)
    for name, (paint, images, delay, colours) in table.items():
        if wanted and name not in wanted:
            continue
        data = gif.encode([render(paint, size, size, i / images) for i in range(images)], delay, colours)
        with open(os.path.join(folder, name + ".gif"), "wb") as file:
            file.write(data)
        print(f"{collection}/{name}.gif  {len(data)} bytes, {images} images, {images * delay / 100:.2f} s")


def draw_soft(folder, wanted):
    os.makedirs(folder, exist_ok=True)
    for name, paint in SOFT.items():
        if not wanted or name in wanted:
            soft_picture(paint).save(os.path.join(folder, name + ".png"), optimize=True)
    print(f"soft  {len(SOFT)} pictures")


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--output", default=os.path.join(REPOSITORY, "content", "Symbols"))
    parser.add_argument("--collection", choices=[*COLLECTIONS, "soft"], help="draw only this one")
    parser.add_argument("names", nargs="*", help="draw only these")
    arguments = parser.parse_args()
    for collection in COLLECTIONS:
        if arguments.collection in (None, collection):
            draw_collection(os.path.join(arguments.output, collection), collection, arguments.names)
    if arguments.collection in (None, "soft"):
        draw_soft(os.path.join(arguments.output, "soft"), arguments.names)


if __name__ == "__main__":
    main()
