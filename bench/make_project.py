#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Makes a project of any size: make_project.py PROJECT.nvpf [--frames N] [--sprites N] ...

The two files are written directly, without the program that is measured. Every Frame has its own
picture, a map like weather maps are: smooth areas, a little grain, thin lines and small text.
The same arguments give the same files. Needs Pillow (Debian: python3-pil).
"""
import argparse
import io
import os
import random
from xml.sax.saxutils import quoteattr

from PIL import Image, ImageDraw

SYMBOLS = [("sky", name + ".gif") for name in ("sun", "cloud", "rain", "snow", "fog", "wind")]


class Maps:
    """Pictures of one size, each cut from another place of a larger relief and drawn on."""

    def __init__(self, width, height, rng):
        self.size = width, height
        self.rng = rng
        wide = width * 3, height * 3
        coarse = Image.effect_noise((24, 18), 120).resize(wide, Image.Resampling.BICUBIC)
        grain = Image.effect_noise(wide, 18)
        relief = Image.blend(coarse, grain, 0.06)
        sea = relief.point(lambda v: 90 + v // 3)
        self.relief = Image.merge("RGB", (relief, sea, relief.point(lambda v: 200 - v // 3)))

    def make(self, number):
        width, height = self.size
        x, y = self.rng.randrange(2 * width), self.rng.randrange(2 * height)
        image = self.relief.crop((x, y, x + width, y + height))
        draw = ImageDraw.Draw(image)
        for _ in range(16):
            line = [(self.rng.randrange(width), self.rng.randrange(height)) for _ in range(4)]
            draw.line(line, fill=tuple(self.rng.randrange(256) for _ in range(3)), width=2)
        draw.text((8, 8), "Forecast %d" % number, fill=(255, 255, 255))
        return image


def encode(image, quality):
    file = io.BytesIO()
    image.save(file, "JPEG", quality=quality)
    return file.getvalue()


def text_line(name, text):
    children = ("<Backcolor>-1</Backcolor><Forecolor>16711680</Forecolor><Border>0</Border>"
                "<BorderColor>0</BorderColor><FontName>Arial</FontName><FontSize>24</FontSize>"
                "<FontBold>True</FontBold><FontItalic>False</FontItalic>"
                "<FontUnderline>False</FontUnderline><FontOverline>False</FontOverline>"
                "<FontStrikethourht>False</FontStrikethourht><Align>2</Align>")
    return "<%s>%s<Text>%s</Text></%s>" % (name, children, text, name)


def text_item(tag, text):
    return ('<%s Backcolor="-1" Forecolor="0" Fontname="Arial" Fontsize="9" Fontbold="False" '
            'Fontitalic="False" Fontunderline="False" Fontoverline="False" '
            'Fontstrikethourht="False" Text=%s/>' % (tag, quoteattr(text)))


def symbol(rng):
    folder, name = rng.choice(SYMBOLS)
    return ('<Item Filename="%s\\%s" Height="48" Width="48" Left="%d" Top="%d" '
            'Link="forecast.example/%d" Tooltip="fair" Note=""/>'
            % (folder, name, rng.randrange(750), rng.randrange(550), rng.randrange(1000)))


def label(rng):
    return ('<Item Backcolor="-1" Forecolor="255" Border="0" Bordercolor="0" Fontname="Arial" '
            'Fontsize="12" Fontbold="True" Fontitalic="False" Fontoverline="False" '
            'Fontstrikethourht="False" Fontunderline="False" Height="20" Width="60" Left="%d" '
            'Top="%d" Text="%d °C" Note="maximum"/>'
            % (rng.randrange(740), rng.randrange(580), rng.randrange(-20, 40)))


def frame(number, size, sprites, rng):
    symbols = (sprites + 1) // 2
    parts = ['<Frame Number="%d" Size="%d" Label="Map%d">' % (number, size, number),
             "<Div><Backcolor>-1</Backcolor><Border>0</Border><BorderColor>0</BorderColor></Div>",
             text_line("Title", "Forecast for day %d" % number),
             text_line("Subtitle", "issued in the morning"),
             "<Header>"] + [text_item("Item", name) for name in ("Sky", "Wind", "Sea")]
    parts += ["</Header><Body>"] + [text_item("Detail", "calm \u2013 %d to %d" % (i, i + 1))
                                    for i in range(3)] + ["</Body>"]
    if symbols:
        parts += ["<Symbol>"] + [symbol(rng) for _ in range(symbols)] + ["</Symbol>"]
    if sprites - symbols:
        parts += ["<Label>"] + [label(rng) for _ in range(sprites - symbols)] + ["</Label>"]
    return "".join(parts) + "</Frame>"


def write_program_folder(folder):
    """A program folder with the symbols that the projects use, and empty settings."""
    for name in ("Maps", "Web"):
        os.makedirs(os.path.join(folder, name), exist_ok=True)
    for collection, name in SYMBOLS:
        os.makedirs(os.path.join(folder, "Symbols", collection), exist_ok=True)
        Image.new("P", (48, 48)).save(os.path.join(folder, "Symbols", collection, name))


def write_project(path, frames, sprites, quality, width, height):
    rng = random.Random(frames * 1000 + sprites)
    maps = Maps(width, height, rng)
    bare = encode(maps.make(0), quality)
    xml = ['<FILE Frames="%d" Map="bench.jpg" Size="%d" Version="2.0"><Collection>'
           '<Item Name="sky" Path="sky"/></Collection><Frames>' % (frames, len(bare))]
    with open(os.path.splitext(path)[0] + ".nvpx", "wb") as data:
        data.write(bare)
        for number in range(1, frames + 1):
            block = encode(maps.make(number), quality)
            data.write(block)
            xml.append(frame(number, len(block), sprites, rng))
    xml.append("</Frames></FILE>")
    with open(path, "w", encoding="utf-8", newline="") as file:
        file.write("".join(xml))


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("project")
    parser.add_argument("--frames", type=int, default=500)
    parser.add_argument("--sprites", type=int, default=20, help="on each Frame")
    parser.add_argument("--quality", type=int, default=85, help="of the JPEG pictures")
    parser.add_argument("--width", type=int, default=800)
    parser.add_argument("--height", type=int, default=600)
    parser.add_argument("--program-folder", help="is filled with the symbols that are named")
    arguments = parser.parse_args()
    if arguments.program_folder:
        write_program_folder(arguments.program_folder)
    write_project(arguments.project, arguments.frames, arguments.sprites, arguments.quality,
                  arguments.width, arguments.height)


if __name__ == "__main__":
    main()
