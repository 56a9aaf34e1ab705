#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Checks the committed content: draws all of it again and compares bytes, and reads every file with another decoder.

Prints one line per fault and ends with 1 when there is any. Needs the geodata of fetch-geodata.sh. `--quick` leaves out
the drawing of everything anew, which takes some minutes.
"""

import argparse
import os
import subprocess
import sys
import tempfile

import numpy as np
from PIL import Image, JpegImagePlugin

import gif
import make_example
import make_media
import make_symbols
from geo import REPOSITORY
from ink import render
from regions import MAPS, REGIONS

TOOLS = os.path.dirname(os.path.abspath(__file__))
CONTENT = os.path.join(REPOSITORY, "content")

# What the program accepts: maps from 220 x 220 to 800 x 600, symbols from 16 x 16 to 250 x 250.
MAP_LIMITS = (220, 220, 800, 600)
SYMBOL_LIMITS = (16, 16, 250, 250)
COLOUR_TOLERANCE = 40      # largest difference between a drawn pixel and its palette colour, of 255

SMALLEST_COLLECTION = 24
IMAGES = (8, 24)           # of an animated symbol
LOOP = (80, 200)           # its length in hundredths of a second
CLEAN_EDGE = 1             # pixels between a symbol and its picture's rim that hold next to nothing
LARGEST_SYMBOL = 24 * 1024
LARGEST_MAP = 260 * 1024
LARGEST_CONTENT = 15 * 1024 * 1024


def within(size, limits):
    return limits[0] <= size[0] <= limits[2] and limits[1] <= size[1] <= limits[3]


def check_map(path, expected_size):
    with Image.open(path) as picture:
        if picture.format != "JPEG" or picture.mode != "RGB":
            yield "is no colour JPEG"
        elif JpegImagePlugin.get_sampling(picture) != 0:
            yield "has its colour halved (not 4:4:4)"
        if not within(picture.size, MAP_LIMITS) or picture.size != expected_size:
            yield f"has a size of {picture.size}"
    if os.path.getsize(path) > LARGEST_MAP:
        yield f"has {os.path.getsize(path)} bytes"


def check_maps():
    folder = os.path.join(CONTENT, "Maps")
    for name in sorted(set(MAPS) ^ set(os.listdir(folder))):
        yield f"Maps/{name} is {'missing' if name in MAPS else 'not drawn by a generator'}"
    for region in sorted(set(REGIONS) - {region for region, _ in MAPS.values()}):
        yield f"Maps: no map shows {region}"
    for name in sorted(set(MAPS) & set(os.listdir(folder))):
        for fault in check_map(os.path.join(folder, name), REGIONS[MAPS[name][0]].size):
            yield f"Maps/{name} {fault}"


def check_gif(path, paint, size, images, delay=None):
    """`delay` given: that of a symbol, whose loop has to be of a good length."""
    with Image.open(path) as picture:
        if picture.size != size:
            yield f"has a size of {picture.size}"
        if picture.info.get("loop") != 0:
            yield "does not loop for ever"
        count = getattr(picture, "n_frames", 1)
        # Images that came out equal are one that stays longer.
        if count > images or (delay is None and count != images):
            yield f"has {count} images, drawn were {images}"
            return
        shown, total = [], 0
        for number in range(count):
            picture.seek(number)
            pause = picture.info["duration"] // 10
            total += pause
            shown += [np.asarray(picture.convert("RGBA")).astype(int)] * (pause // delay if delay else 1)
        if len(shown) != images or (delay and total != images * delay):
            yield f"runs for {total} hundredths of a second"
            return
    if delay and images > 1 and not (IMAGES[0] <= count <= IMAGES[1] and LOOP[0] <= total <= LOOP[1]):
        yield f"has {count} images in {total} hundredths of a second"
    for number, picture in enumerate(shown):
        drawn, opaque = gif.flatten(render(paint, *size, number / images))
        if not np.array_equal(picture[..., 3] == 255, opaque):
            yield f"image {number}: its outline differs from the drawing"
        elif opaque.any():
            worst = np.abs(picture[..., :3] - drawn)[opaque].max()
            if worst > COLOUR_TOLERANCE:
                yield f"image {number}: a colour is off by {worst}"
        elif delay:
            yield f"image {number} is empty"


def check_transparency(path):
    """A symbol has to leave its corners and most of its rim free: what touches the rim looks cut off."""
    with Image.open(path) as picture:
        for number in range(getattr(picture, "n_frames", 1)):
            picture.seek(number)
            alpha = np.asarray(picture.convert("RGBA"))[..., 3] > 127
            if alpha.all() or not alpha.any():
                yield f"image {number} has no shape"
            rim = np.concatenate((alpha[:CLEAN_EDGE].ravel(), alpha[-CLEAN_EDGE:].ravel(),
                                  alpha[:, :CLEAN_EDGE].ravel(), alpha[:, -CLEAN_EDGE:].ravel()))
            if rim.mean() > 0.12:
                yield f"image {number} is cut off at the rim"


def check_soft(path):
    with Image.open(path) as picture:
        if picture.format != "PNG" or picture.mode != "RGBA":
            yield "is no PNG with transparency"
            return
        if picture.size != (make_symbols.SOFT_SIDE,) * 2:
            yield f"has a size of {picture.size}"
        alpha = np.asarray(picture)[..., 3]
    if not (alpha == 0).any() or not (alpha == 255).any():
        yield "has no clear ground or no solid part"
    if ((alpha > 0) & (alpha < 255)).sum() < 100:
        yield "has hard edges"


def check_collection(collection, table, side):
    folder = os.path.join(CONTENT, "Symbols", collection)
    expected = {name + ".gif" for name in table}
    for name in sorted(expected ^ set(os.listdir(folder))):
        yield f"{name} is {'missing' if name in expected else 'not drawn by a generator'}"
    if len(table) < SMALLEST_COLLECTION:
        yield f"has only {len(table)} symbols"
    if not within((side, side), SYMBOL_LIMITS):
        yield f"{side} is no symbol size"
    for name, (paint, images, delay, _) in table.items():
        path = os.path.join(folder, name + ".gif")
        if not os.path.exists(path):
            continue
        for fault in [*check_gif(path, paint, (side, side), images, delay), *check_transparency(path)]:
            yield f"{name}.gif {fault}"
        if os.path.getsize(path) > LARGEST_SYMBOL:
            yield f"{name}.gif has {os.path.getsize(path)} bytes"


def check_soft_collection():
    folder = os.path.join(CONTENT, "Symbols", "soft")
    expected = {name + ".png" for name in make_symbols.SOFT}
    for name in sorted(expected ^ set(os.listdir(folder))):
        yield f"{name} is {'missing' if name in expected else 'not drawn by a generator'}"
    for name in sorted(expected & set(os.listdir(folder))):
        for fault in check_soft(os.path.join(folder, name)):
            yield f"{name} {fault}"


def check_examples():
    """Reads every project back by position and counts its Frames."""
    with tempfile.TemporaryDirectory() as scratch:
        for project in make_example.PROJECTS:
            path = os.path.join(REPOSITORY, "examples", project.name + ".nvpf")
            preview = subprocess.run([sys.executable, os.path.join(TOOLS, "preview_project.py"), path, scratch],
                                     capture_output=True, text=True)
            if preview.returncode:
                yield f"{project.name}.nvpf does not read back: {preview.stderr.strip().splitlines()[-1]}"
            elif not preview.stdout.startswith(f"{len(project.periods)} "):
                yield f"{project.name}.nvpf has another number of Frames: {preview.stdout.strip()}"


def check_all():
    yield from check_maps()
    for collection, (table, side) in make_symbols.COLLECTIONS.items():
        for fault in check_collection(collection, table, side):
            yield f"Symbols/{collection}: {fault}"
    for fault in check_soft_collection():
        yield f"Symbols/soft: {fault}"
    known = {*make_symbols.COLLECTIONS, "soft"}
    for name in sorted(known ^ set(os.listdir(os.path.join(CONTENT, "Symbols")))):
        yield f"Symbols/{name} is {'missing' if name in known else 'not drawn by a generator'}"
    for name, (paint, images, _, _) in make_media.MEDIA.items():
        for fault in check_gif(os.path.join(CONTENT, "Media", name + ".gif"), paint,
                               (make_media.WIDTH, make_media.HEIGHT), images):
            yield f"Media/{name}.gif {fault}"
    for fault in check_examples():
        yield f"examples/{fault}"
    total = sum(os.path.getsize(os.path.join(folder, name)) for folder, _, names in os.walk(CONTENT) for name in names)
    if total > LARGEST_CONTENT:
        yield f"content has {total} bytes"


def check_repeatable(scratch):
    outside = {"examples": os.path.join(REPOSITORY, "examples"),
               "icons": os.path.join(REPOSITORY, "packaging", "icons")}
    for script, output in (("make_maps.py", "Maps"), ("make_symbols.py", "Symbols"), ("make_media.py", "Media"),
                           ("make_icons.py", "icons"), ("make_example.py", "examples")):
        target = os.path.join(scratch, output)
        run = subprocess.run([sys.executable, os.path.join(TOOLS, script), "--output", target],
                             capture_output=True, text=True)
        if run.returncode:
            yield f"{script} failed: {run.stdout}{run.stderr}"
            continue
        committed = outside.get(output, os.path.join(CONTENT, output))
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


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--quick", action="store_true", help="read the files, but do not draw them anew")
    arguments = parser.parse_args()
    faults = list(check_all())
    if not arguments.quick:
        with tempfile.TemporaryDirectory() as scratch:
            faults += check_repeatable(scratch)
    print("\n".join(faults) if faults else "content is as drawn")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
