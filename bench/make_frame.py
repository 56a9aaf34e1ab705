#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Makes projects of Frames with moving symbols: make_frame.py KIND PROGRAM WORK

KIND is "flat" (a map of few colours) or "shaded" (tens of thousands): WORK/KIND-one.nvpf with one
Frame and WORK/KIND-film.nvpf with twelve are written. With "shaded" also WORK/long-N.nvpf, whose
one Frame takes N captures, and WORK/stills.nvpf, a hundred Frames with four Labels each, with
WORK/stills.json for peers. The symbols of the shaded maps ship with the program. Needs Pillow.
"""
import io
import json
import os
import random
import sys

from PIL import Image, ImageDraw

SYMBOLS = ["rain", "snow", "thunderstorm", "fog", "cloudy", "sun", "hail", "wind-north"]
LENGTHS = [125, 250, 500, 1000]  # captures of the long ones, a tenth of a second each
DRAWN = ["drop", "star", "flake", "bolt", "ring", "bar", "cross", "dot"]


def flat_map():
    image = Image.new("RGB", (800, 600), (150, 190, 220))
    draw = ImageDraw.Draw(image)
    rng = random.Random(4)
    for number in range(60):
        x, y = rng.randrange(800), rng.randrange(600)
        shape = [(x + rng.randrange(-90, 90), y + rng.randrange(-90, 90)) for _ in range(9)]
        draw.polygon(shape, fill=(200 - number, 210 - 2 * (number % 40), 120 + number),
                     outline=(60, 60, 60))
    return image


def flat_symbols(folder):
    """Eight moving symbols of four colours each, so that a whole animation has few."""
    os.makedirs(folder, exist_ok=True)
    for number, name in enumerate(DRAWN):
        images = []
        for step in range(20):
            image = Image.new("P", (48, 48), 0)
            image.putpalette([255, 0, 255, 240, 240, 255 - number, 30, 40 + number, 160, 250, 200, 0])
            draw = ImageDraw.Draw(image)
            draw.ellipse((4, 6, 43, 30), fill=1, outline=2)
            for drop in range(4):
                y = 28 + (step * 2 + drop * 5 + number) % 18
                draw.rectangle((8 + drop * 9, y - 3, 10 + drop * 9, y), fill=2 + drop % 2)
            images.append(image)
        images[0].save(os.path.join(folder, name + ".gif"), save_all=True,
                       append_images=images[1:], duration=100, loop=0, transparency=0, disposal=2)


def slow_symbol(path, captures):
    """Two images whose pass takes as long as so many captures; the first counts for none."""
    images = [Image.new("P", (9, 9), index) for index in (1, 2)]
    for image in images:
        image.putpalette([255, 0, 255, 240, 60, 40, 40, 60, 240])
    images[0].save(path, save_all=True, append_images=images[1:], duration=50 * (captures - 1),
                   loop=0)


def label_xml(text, left, top):
    return ('<Item Backcolor="-1" Forecolor="255" Border="0" Bordercolor="0" Fontname="Arial" '
            'Fontsize="12" Fontbold="False" Fontitalic="False" Fontoverline="False" '
            'Fontstrikethourht="False" Fontunderline="False" Height="20" Width="60" Left="%d" '
            'Top="%d" Text="%s" Note=""/>' % (left, top, text))


def frame_xml(number, size, sprites, labels=()):
    items = "".join('<Item Filename="%s" Height="64" Width="64" Left="%d" Top="%d" Link="" '
                    'Tooltip="" Note=""/>' % sprite for sprite in sprites)
    line = ("<Backcolor>-1</Backcolor><Forecolor>0</Forecolor><Border>0</Border>"
            "<BorderColor>0</BorderColor><FontName>Arial</FontName><FontSize>24</FontSize>"
            "<FontBold>False</FontBold><FontItalic>False</FontItalic>"
            "<FontUnderline>False</FontUnderline><FontOverline>False</FontOverline>"
            "<FontStrikethourht>False</FontStrikethourht><Align>0</Align><Text/>")
    return ('<Frame Number="%d" Size="%d" Label="%d"><Div><Backcolor>-1</Backcolor><Border>0</Border>'
            "<BorderColor>0</BorderColor></Div><Title>%s</Title><Subtitle>%s</Subtitle>"
            "<Symbol>%s</Symbol><Label>%s</Label></Frame>"
            % (number, size, number, line, line, items, "".join(label_xml(*l) for l in labels)))


def write_project(path, name, block, sprites, labels=()):
    frames = "".join(frame_xml(i, len(block), s, labels[i - 1] if labels else ())
                     for i, s in enumerate(sprites, 1))
    with open(path, "w", encoding="utf-8") as file:
        file.write('<FILE Frames="%d" Map="%s" Size="%d" Version="2.0"><Collection/><Frames>%s'
                   "</Frames></FILE>" % (len(sprites), name, len(block), frames))
    with open(path[:-1] + "x", "wb") as file:
        file.write(block * (len(sprites) + 1))


def main():
    kind, program, work = sys.argv[1:4]
    os.makedirs(work, exist_ok=True)
    rng = random.Random(11)
    if kind == "flat":
        flat_symbols(os.path.join(program, "Symbols", "drawn"))
        names = ["drawn\\%s.gif" % name for name in DRAWN]
        buffer = io.BytesIO()
        flat_map().save(buffer, "PNG")
        name, block = "bench-flat.png", buffer.getvalue()
    else:
        names = ["set-1\\%s.gif" % name for name in SYMBOLS]
        name = "europe.jpg"
        with open(os.path.join(program, "Maps", name), "rb") as file:
            block = file.read()

    def scatter():
        return [(n, rng.randrange(20, 710), rng.randrange(20, 510)) for n in names]

    write_project(os.path.join(work, kind + "-one.nvpf"), name, block, [scatter()])
    write_project(os.path.join(work, kind + "-film.nvpf"), name, block,
                  [scatter() for _ in range(12)])
    if kind == "flat":
        return
    for captures in LENGTHS:
        slow = "drawn\\slow-%d.gif" % captures
        os.makedirs(os.path.join(program, "Symbols", "drawn"), exist_ok=True)
        slow_symbol(os.path.join(program, "Symbols", *slow.split("\\")), captures)
        write_project(os.path.join(work, "long-%d.nvpf" % captures), name, block,
                      [scatter() + [(slow, 5, 5)]])
    symbols = [scatter() for _ in range(100)]
    labels = [[("%d degrees" % rng.randrange(30), rng.randrange(700), rng.randrange(560))
               for _ in range(4)] for _ in symbols]
    write_project(os.path.join(work, "stills.nvpf"), name, block, symbols, labels)
    with open(os.path.join(work, "stills.json"), "w") as file:
        json.dump({"map": os.path.join(program, "Maps", name), "symbols": [
            [(os.path.join(program, "Symbols", *path.split("\\")), x, y) for path, x, y in frame]
            for frame in symbols], "labels": labels}, file)


main()
