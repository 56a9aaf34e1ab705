#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Shows animated GIF files side by side, for looking at them: one row of grounds (light, dark, map) per sheet.

    contact_sheet.py OUT.png FILE.gif...            first image of each, on three grounds
    contact_sheet.py --strip OUT.png FILE.gif...    all images of each, one row per file
"""

import argparse
import os

from PIL import Image

from geo import REPOSITORY

GROUNDS = ((245, 247, 249), (38, 52, 70), None)


def images(path):
    """All images as a viewer composes them."""
    result = []
    with Image.open(path) as file:
        for number in range(getattr(file, "n_frames", 1)):
            file.seek(number)
            result.append(file.convert("RGBA"))
    return result


def ground(kind, size):
    if kind is not None:
        return Image.new("RGB", size, kind)
    with Image.open(os.path.join(REPOSITORY, "content", "Maps", "europe.jpg")) as file:
        map_picture = file.convert("RGB").crop((150, 150, 600, 550))
    return map_picture.resize(size, Image.BICUBIC)


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--strip", action="store_true")
    parser.add_argument("--zoom", type=int, default=1)
    parser.add_argument("--columns", type=int, default=12)
    parser.add_argument("out")
    parser.add_argument("files", nargs="+")
    arguments = parser.parse_args()
    all_images = [images(path) for path in arguments.files]
    cell_width = max(im[0].width for im in all_images) + 8
    cell_height = max(im[0].height for im in all_images) + 8
    if arguments.strip:
        columns = max(len(im) for im in all_images)
        sheet = ground(GROUNDS[0], (columns * cell_width, len(all_images) * cell_height))
        for row, frames in enumerate(all_images):
            for column, frame in enumerate(frames):
                sheet.paste(frame, (column * cell_width + 4, row * cell_height + 4), frame)
    else:
        columns = min(arguments.columns, len(all_images))
        rows = -(-len(all_images) // columns)
        block = rows * cell_height
        sheet = Image.new("RGB", (columns * cell_width, block * len(GROUNDS)))
        for number, kind in enumerate(GROUNDS):
            sheet.paste(ground(kind, (columns * cell_width, block)), (0, number * block))
            for index, frames in enumerate(all_images):
                row, column = divmod(index, columns)
                position = (column * cell_width + 4, number * block + row * cell_height + 4)
                sheet.paste(frames[0], position, frames[0])
    if arguments.zoom > 1:
        sheet = sheet.resize((sheet.width * arguments.zoom, sheet.height * arguments.zoom), Image.NEAREST)
    sheet.save(arguments.out)


if __name__ == "__main__":
    main()
