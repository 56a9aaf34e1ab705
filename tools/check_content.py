#!/usr/bin/python3
"""Checks the committed content: draws all of it again and compares bytes, and reads every file with another decoder.

Prints one line per fault and ends with 1 when there is any. Needs the geodata of fetch-geodata.sh.
"""

import os
import subprocess
import sys
import tempfile

import numpy as np
from PIL import Image, JpegImagePlugin

import gif
import make_media
import make_symbols
from geo import REPOSITORY
from ink import render

TOOLS = os.path.dirname(os.path.abspath(__file__))
CONTENT = os.path.join(REPOSITORY, "content")

# What the program accepts: maps from 220 x 220 to 800 x 600, symbols from 16 x 16 to 250 x 250.
MAP_LIMITS = (220, 220, 800, 600)
SYMBOL_LIMITS = (16, 16, 250, 250)
COLOUR_TOLERANCE = 40  # largest difference between a drawn pixel and its palette colour, of 255


def within(size, limits):
    return limits[0] <= size[0] <= limits[2] and limits[1] <= size[1] <= limits[3]


def check_map(path):
    with Image.open(path) as picture:
        if picture.format != "JPEG" or picture.mode != "RGB":
            yield "is no colour JPEG"
        elif JpegImagePlugin.get_sampling(picture) != 0:
            yield "has its colour halved (not 4:4:4)"
        if not within(picture.size, MAP_LIMITS):
            yield f"has a size of {picture.size}"


def check_gif(path, paint, size, images):
    with Image.open(path) as picture:
        if picture.size != size:
            yield f"has a size of {picture.size}"
        if picture.info.get("loop") != 0:
            yield "does not loop for ever"
        count = getattr(picture, "n_frames", 1)
        if count != images:
            yield f"has {count} images, drawn were {images}"
            return
        for number in range(images):
            picture.seek(number)
            shown = np.asarray(picture.convert("RGBA")).astype(int)
            drawn, opaque = gif.flatten(render(paint, *size, number / images))
            if not np.array_equal(shown[..., 3] == 255, opaque):
                yield f"image {number}: its outline differs from the drawing"
            elif opaque.any():
                worst = np.abs(shown[..., :3] - drawn)[opaque].max()
                if worst > COLOUR_TOLERANCE:
                    yield f"image {number}: a colour is off by {worst}"


def check_all():
    for name in sorted(os.listdir(os.path.join(CONTENT, "Maps"))):
        for fault in check_map(os.path.join(CONTENT, "Maps", name)):
            yield f"Maps/{name} {fault}"
    for collection, (table, side) in make_symbols.COLLECTIONS.items():
        folder = os.path.join(CONTENT, "Symbols", collection)
        expected = {name + ".gif" for name in table}
        for name in sorted(expected ^ set(os.listdir(folder))):
            yield f"Symbols/{collection}/{name} is {'missing' if name in expected else 'not drawn by a generator'}"
        if not within((side, side), SYMBOL_LIMITS):
            yield f"Symbols/{collection}: {side} is no symbol size"
        for name, (paint, images, _, _) in table.items():
            path = os.path.join(folder, name + ".gif")
            if os.path.exists(path):
                for fault in check_gif(path, paint, (side, side), images):
                    yield f"Symbols/{collection}/{name}.gif {fault}"
    for name, (paint, images, _, _) in make_media.MEDIA.items():
        for fault in check_gif(os.path.join(CONTENT, "Media", name + ".gif"), paint,
                               (make_media.WIDTH, make_media.HEIGHT), images):
            yield f"Media/{name}.gif {fault}"


def check_repeatable(scratch):
    examples = os.path.join(REPOSITORY, "examples")
    for script, output in (("make_maps.py", "Maps"), ("make_symbols.py", "Symbols"), ("make_media.py", "Media"),
                           ("make_example.py", "examples")):
        target = os.path.join(scratch, output)
        run = subprocess.run([sys.executable, os.path.join(TOOLS, script), "--output", target], capture_output=True, text=True)
        if run.returncode:
            yield f"{script} failed: {run.stdout}{run.stderr}"
            continue
        committed = examples if output == "examples" else os.path.join(CONTENT, output)
        for folder, _, names in os.walk(target):
            for name in sorted(names):
                new = os.path.join(folder, name)
                old = os.path.join(committed, os.path.relpath(new, target))
                with open(new, "rb") as file:
                    drawn = file.read()
                try:
                    with open(old, "rb") as file:
                        same = file.read() == drawn
                except FileNotFoundError:
                    same = False
                if not same:
                    yield f"{os.path.relpath(old, REPOSITORY)} differs from what {script} draws now"
    example = subprocess.run([sys.executable, os.path.join(TOOLS, "preview_project.py"),
                              os.path.join(examples, "europe.nvpf"), os.path.join(scratch, "preview")],
                             capture_output=True, text=True)
    if example.returncode:
        yield f"europe.nvpf does not read back: {example.stderr.strip().splitlines()[-1]}"


def main():
    faults = list(check_all())
    with tempfile.TemporaryDirectory() as scratch:
        faults += check_repeatable(scratch)
    print("\n".join(faults) if faults else "content is as drawn")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
