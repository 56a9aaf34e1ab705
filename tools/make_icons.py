#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Draws the program's icon in the sizes that desktops ask for, and as one .ico file, into packaging/icons.

The drawings are those that the windows show; the small sizes take the one made for them.
"""

import argparse
import io
import os
import subprocess

from PIL import Image

from geo import REPOSITORY

DRAWINGS = os.path.join(REPOSITORY, "src", "windows", "icons")
SIZES = (16, 22, 24, 32, 48, 64, 128, 256, 512)
SMALL = 24  # up to here the coarse drawing is the clearer one
ICO_SIZES = (16, 24, 32, 48, 64, 128, 256)


def drawn(size):
    source = os.path.join(DRAWINGS, "nubivane-16.svg" if size <= SMALL else "nubivane.svg")
    run = subprocess.run(["rsvg-convert", "--width", str(size), "--height", str(size), source],
                         capture_output=True, check=True)
    # Written anew: the converter's own files differ from version to version.
    return Image.open(io.BytesIO(run.stdout)).convert("RGBA")


def main():
    parser = argparse.ArgumentParser(description=__doc__, formatter_class=argparse.RawDescriptionHelpFormatter)
    parser.add_argument("--output", default=os.path.join(REPOSITORY, "packaging", "icons"))
    folder = parser.parse_args().output
    os.makedirs(folder, exist_ok=True)
    pictures = {size: drawn(size) for size in SIZES}
    for size, picture in pictures.items():
        picture.save(os.path.join(folder, f"nubivane-{size}.png"), optimize=True)
    images = [pictures[size] for size in ICO_SIZES]
    images[-1].save(os.path.join(folder, "nubivane.ico"), sizes=[(size, size) for size in ICO_SIZES],
                    append_images=images[:-1])
    print(f"{len(pictures)} sizes and nubivane.ico in {folder}")


if __name__ == "__main__":
    main()
