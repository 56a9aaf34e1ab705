#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""stills_pillow.py STILLS.json FOLDER ENDING: draws the stills that make_frame.py describes with
Pillow, in one process, as nubivane-cli does."""
import json
import os
import sys

from PIL import Image, ImageDraw, ImageFont

with open(sys.argv[1]) as file:
    stills = json.load(file)
QUALITY = 92  # of JPEG, as ours
font = ImageFont.truetype("LiberationSans-Regular.ttf", 16)
pictures = {}
for number, (symbols, labels) in enumerate(zip(stills["symbols"], stills["labels"]), 1):
    picture = Image.open(stills["map"]).convert("RGB")
    for path, x, y in symbols:
        if path not in pictures:
            pictures[path] = Image.open(path).convert("RGBA")
        picture.paste(pictures[path], (x, y), pictures[path])
    draw = ImageDraw.Draw(picture)
    for text, x, y in labels:
        draw.text((x, y), text, fill=(255, 0, 0), font=font)
    picture.save(os.path.join(sys.argv[2], "%03d.%s" % (number, sys.argv[3])), quality=QUALITY)
