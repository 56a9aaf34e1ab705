# SPDX-License-Identifier: GPL-3.0-or-later
"""Writing example projects: what lies on each Frame, and the two files of the project format.

This is a second, independent writer of that format: attribute and element positions are the format's contract, so every
list below keeps the order in which it goes into the file.
"""

import io
import os
from dataclasses import dataclass

import numpy as np
from PIL import Image

import chart
import typeface
from geo import REPOSITORY, MapFrame
from make_maps import JPEG
from make_symbols import COLLECTIONS
from regions import MAPS, REGIONS

# Colours as the format has them: red in the low byte. Only values of the program's colour table occur, since the page
# writer knows no others.
NONE = -1
BLACK = 0
DARK_BLUE = 9175040
MIDNIGHT = 7542808
STEEL_BLUE = 11895362
SLATE = 9732723
DARK_SLATE = 4869417
ALICE_BLUE = 16776183
LIGHT_STEEL = 14600117
LEMON = 13564927
WHITE = 16777215
FIRE_BRICK = 2171061

SOLID = 1
GAP = "\u00a0"  # keeps a label's text off its border, on the map and on the page


@dataclass
class Symbol:
    file: str               # collection and name, without ".gif"
    at: tuple               # the middle, in map pixels
    tooltip: str = ""
    link: str = ""
    note: str = ""

    def collection(self):
        return self.file.split("\\")[0]

    def box(self):
        # The pictures' own sizes: exported pictures ignore any other.
        side = COLLECTIONS[self.collection()][1]
        return self.at[0] - side // 2, self.at[1] - side // 2, side, side


@dataclass
class Label:
    text: str
    at: tuple               # the middle, in map pixels
    points: int = 10
    colour: int = MIDNIGHT
    bold: bool = True
    italic: bool = False
    ground: int = NONE
    border: int = NONE      # border colour; NONE: no border
    note: str = ""

    def box(self):
        width, height = typeface.box(self.text, self.points, self.bold, self.italic, self.border != NONE)
        return self.at[0] - width // 2, self.at[1] - height // 2, width, height


@dataclass
class Period:
    caption: str
    title: str
    subtitle: str
    texts: tuple            # (header, body) pairs
    symbols: list
    labels: list
    chart: str = ""         # name of a chart in charts/; none leaves the map bare


@dataclass
class Project:
    name: str               # of both files, without extension
    map: str                # file name in content/Maps
    periods: list

    def size(self):
        return REGIONS[MAPS[self.map][0]].size


def places(map_name):
    """A function that finds a place on a map: (longitude, latitude, pixels to the right, pixels down) to map pixels."""
    region = REGIONS[MAPS[map_name][0]]
    frame = MapFrame(region.projection(), region.size, region.centre, region.degrees_wide)

    def at(longitude, latitude, right=0, down=0):
        x, y = frame.to_pixels(np.array([[longitude, latitude]]))[0]
        return round(x) + right, round(y) + down
    return at


def high(at, value):
    return [Label("H", at, 36, DARK_BLUE), Label(value, (at[0], at[1] + 30), 10, DARK_BLUE)]


def low(at, value):
    return [Label("L", at, 36, FIRE_BRICK), Label(value, (at[0], at[1] + 30), 10, FIRE_BRICK)]


def city(name, degrees, at, **more):
    return Label(f"{name} {degrees}°", at, **more)


# The format -----------------------------------------------------------------------------------------------------------

def escape(text):
    for plain, written in (("&", "&amp;"), ("<", "&lt;"), (">", "&gt;"), ('"', "&quot;"),
                           ("\r", "&#13;"), ("\n", "&#10;"), ("\t", "&#9;")):
        text = text.replace(plain, written)
    return text


def written(value):
    if isinstance(value, bool):
        return "True" if value else "False"
    return escape(str(value))


def element(name, attributes=(), content=""):
    head = name + "".join(f' {key}="{written(value)}"' for key, value in attributes)
    return f"<{head}>{content}</{name}>" if content else f"<{head}/>"


def value_element(name, value):
    return f"<{name}>{written(value)}</{name}>"


def caption_block(name, text, points, colour, bold):
    return element(name, content="".join(value_element(*pair) for pair in (
        ("Backcolor", NONE), ("Forecolor", colour), ("Border", 0), ("BorderColor", BLACK), ("FontName", "Arial"),
        ("FontSize", points), ("FontBold", bold), ("FontItalic", False), ("FontUnderline", False),
        ("FontOverline", False), ("FontStrikethourht", False), ("Align", 0), ("Text", text))))


def text_item(name, text, points, colour, bold):
    return element(name, (
        ("Backcolor", NONE), ("Forecolor", colour), ("Fontname", "Arial"), ("Fontsize", points), ("Fontbold", bold),
        ("Fontitalic", False), ("Fontunderline", False), ("Fontoverline", False), ("Fontstrikethourht", False),
        ("Text", text)))


def symbol_item(symbol):
    left, top, width, height = symbol.box()
    return element("Item", (
        ("Filename", symbol.file + ".gif"), ("Height", height), ("Width", width), ("Left", left), ("Top", top),
        ("Link", symbol.link), ("Tooltip", symbol.tooltip), ("Note", symbol.note)))


def label_item(label):
    left, top, width, height = label.box()
    bordered = label.border != NONE
    return element("Item", (
        ("Backcolor", label.ground), ("Forecolor", label.colour), ("Border", 1 if bordered else 0),
        ("Bordercolor", label.border if bordered else BLACK), ("Fontname", "Arial"), ("Fontsize", label.points),
        ("Fontbold", label.bold), ("Fontitalic", label.italic), ("Fontoverline", False), ("Fontstrikethourht", False),
        ("Fontunderline", False), ("Height", height), ("Width", width), ("Left", left), ("Top", top),
        ("Text", label.text), ("Note", label.note)))


def frame_element(number, size, period):
    children = element("Div", content=value_element("Backcolor", ALICE_BLUE) + value_element("Border", SOLID) +
                       value_element("BorderColor", LIGHT_STEEL))
    children += caption_block("Title", period.title, 24, DARK_BLUE, True)
    children += caption_block("Subtitle", period.subtitle, 14, SLATE, False)
    lists = (("Header", [text_item("Item", header, 18, DARK_BLUE, True) for header, _ in period.texts]),
             ("Body", [text_item("Detail", body, 14, DARK_SLATE, False) for _, body in period.texts]),
             ("Symbol", [symbol_item(symbol) for symbol in period.symbols]),
             ("Label", [label_item(label) for label in period.labels]))
    for name, items in lists:
        if items:
            children += element(name, content="".join(items))
    return element("Frame", (("Number", number), ("Size", size), ("Label", period.caption)), children)


def jpeg(picture):
    buffer = io.BytesIO()
    picture.save(buffer, **JPEG)
    return buffer.getvalue()


def layout_faults(period, size):
    """Everything has to lie inside the map and nothing on top of anything else."""
    boxes = [(symbol.file, symbol.box()) for symbol in period.symbols] + \
            [(label.text, label.box()) for label in period.labels]
    for index, (name, (left, top, width, height)) in enumerate(boxes):
        if left < 0 or top < 0 or left + width > size[0] or top + height > size[1]:
            yield f"{period.caption}: {name} leaves the map"
        for other, (x, y, w, h) in boxes[index + 1:]:
            # A pressure centre's value may tuck under the foot of its letter, where the letter's box is empty.
            if {name, other} & {"H", "L"} and (name + other).strip("HL").isdigit():
                continue
            if left < x + w and x < left + width and top < y + h and y < top + height:
                yield f"{period.caption}: {name} and {other} overlap"


def write(project, folder):
    with open(os.path.join(REPOSITORY, "content", "Maps", project.map), "rb") as file:
        map_bytes = file.read()
    faults = [fault for period in project.periods for fault in layout_faults(period, project.size())]
    if faults:
        raise SystemExit("\n".join(f"{project.name}: {fault}" for fault in faults))
    bare = Image.open(io.BytesIO(map_bytes)).convert("RGB")
    blocks = [map_bytes]
    for period in project.periods:
        picture = bare
        if period.chart:
            picture = chart.draw(period.chart, bare)
        blocks.append(jpeg(picture))

    used = {symbol.collection() for period in project.periods for symbol in period.symbols}
    collections = "".join(element("Item", (("Name", name), ("Path", name))) for name in COLLECTIONS if name in used)
    frames = "".join(frame_element(number, len(blocks[number]), period)
                     for number, period in enumerate(project.periods, 1))
    document = element("FILE", (("Frames", len(project.periods)), ("Map", project.map), ("Size", len(map_bytes)),
                                ("Version", "2.0")),
                       element("Collection", content=collections) + element("Frames", content=frames)).encode("utf-8")
    os.makedirs(folder, exist_ok=True)
    for extension, data in (("nvpx", b"".join(blocks)), ("nvpf", document)):
        with open(os.path.join(folder, f"{project.name}.{extension}"), "wb") as file:
            file.write(data)
    print(f"examples/{project.name}.nvpf {len(document)} bytes, .nvpx {sum(map(len, blocks))} bytes, {len(blocks)} blocks")
