#!/usr/bin/env python3
"""Makes a project of one Frame with moving symbols, and one of twelve: make_frame.py KIND PROGRAM WORK

KIND is "flat" (a map of few colours) or "shaded" (tens of thousands). The symbols are those that
ship with the program; WORK/KIND-one.nvpf and WORK/KIND-film.nvpf are written. Needs Pillow.
"""
import io
import os
import random
import sys

from PIL import Image, ImageDraw

SYMBOLS = ["rain", "snow", "thunderstorm", "fog", "cloudy", "sun", "hail", "wind-north"]
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


def frame_xml(number, size, sprites):
    items = "".join('<Item Filename="%s" Height="64" Width="64" Left="%d" Top="%d" Link="" '
                    'Tooltip="" Note=""/>' % sprite for sprite in sprites)
    line = ("<Backcolor>-1</Backcolor><Forecolor>0</Forecolor><Border>0</Border>"
            "<BorderColor>0</BorderColor><FontName>Arial</FontName><FontSize>24</FontSize>"
            "<FontBold>False</FontBold><FontItalic>False</FontItalic>"
            "<FontUnderline>False</FontUnderline><FontOverline>False</FontOverline>"
            "<FontStrikethourht>False</FontStrikethourht><Align>0</Align><Text/>")
    return ('<Frame Number="%d" Size="%d" Label="%d"><Div><Backcolor>-1</Backcolor><Border>0</Border>'
            "<BorderColor>0</BorderColor></Div><Title>%s</Title><Subtitle>%s</Subtitle>"
            "<Symbol>%s</Symbol><Label/></Frame>" % (number, size, number, line, line, items))


def write_project(path, name, block, sprites):
    frames = "".join(frame_xml(i, len(block), s) for i, s in enumerate(sprites, 1))
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


main()
