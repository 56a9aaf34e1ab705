# SPDX-License-Identifier: GPL-3.0-or-later
"""Projects for the page tests, built in memory and written as the pair of files that the program opens.

The maps are flat PNG pictures, one colour a Frame, so that a test can tell by a pixel which Frame a person sees."""

import struct
import xml.etree.ElementTree as ElementTree
import zlib
from dataclasses import dataclass
from pathlib import Path

# Colours as (stored value, what a browser computes); all of them stand in the program's colour table.
RED = (255, "rgb(255, 0, 0)")
BLUE = (16711680, "rgb(0, 0, 255)")
YELLOW = (65535, "rgb(255, 255, 0)")
NO_COLOUR = (-1, "rgba(0, 0, 0, 0)")
BLACK = (0, "rgb(0, 0, 0)")

MAP_COLOURS = [
    (200, 60, 60), (60, 160, 60), (60, 60, 200), (200, 180, 60), (60, 180, 180), (160, 60, 180), (128, 128, 128),
]


@dataclass(frozen=True)
class Symbol:
    file: str
    left: int
    top: int
    width: int = 32
    height: int = 32
    link: str = ""
    tooltip: str = ""


@dataclass(frozen=True)
class Label:
    text: str
    left: int
    top: int
    width: int = 60
    height: int = 18
    colour: tuple = BLACK
    back_colour: tuple = NO_COLOUR
    border: bool = False
    border_colour: tuple = BLACK
    size: int = 8
    bold: bool = False
    italic: bool = False


@dataclass(frozen=True)
class Heading:
    """A title or a subtitle."""
    text: str = ""
    align: int = 0
    size: int = 24
    colour: tuple = BLACK
    back_colour: tuple = NO_COLOUR
    bold: bool = False
    italic: bool = False
    underline: bool = False
    overline: bool = False
    strike_through: bool = False


@dataclass(frozen=True)
class Frame:
    caption: str
    title: Heading = Heading()
    subtitle: Heading = Heading(size=14)
    paragraphs: tuple = ()      # (header, body) pairs
    symbols: tuple = ()
    labels: tuple = ()
    back_colour: tuple = NO_COLOUR
    border: int = 0
    border_colour: tuple = BLACK

    @property
    def sprites(self):
        """In the order in which a page numbers them."""
        return self.symbols + self.labels


@dataclass(frozen=True)
class Project:
    frames: tuple
    width: int = 320
    height: int = 240

    @property
    def has_titles(self):
        return any(frame.title.text or frame.subtitle.text for frame in self.frames)

    def first_sprite(self, number):
        """The page-wide number of the first sprite of a Frame, whether or not it has one."""
        return 1 + sum(len(frame.sprites) for frame in self.frames[:number - 1])

    def write(self, folder):
        """Writes both files and returns the path of the one to open."""
        pictures = [flat_png(self.width, self.height, (255, 255, 255))]
        pictures += [flat_png(self.width, self.height, map_colour(i)) for i in range(1, len(self.frames) + 1)]
        path = Path(folder, "project.nvpf")
        path.write_bytes(ElementTree.tostring(_file_element(self.frames, pictures), encoding="utf-8"))
        path.with_suffix(".nvpx").write_bytes(b"".join(pictures))
        return path


def map_colour(number):
    return MAP_COLOURS[(number - 1) % len(MAP_COLOURS)]


def sample(count, titles=True):
    """A project of count Frames that differ in what they carry: some lack a title, a subtitle, symbols or labels."""
    frames = []
    for number in range(1, count + 1):
        symbols = (Symbol(r"set-1\sun.gif", 10, 20), Symbol(r"sea\wave.png", 60, 25, 40, 36))
        labels = (Label(f"Wind {number}", 120, 30), Label(f"Sea {number}", 200, 90, border=True))
        if number % 3 == 2:
            symbols = ()
        if number % 3 == 0:
            symbols, labels = (), ()
        frames.append(Frame(
            caption=f"Day {number}",
            title=Heading(f"Title {number}") if titles and number % 4 else Heading(),
            subtitle=Heading(f"Subtitle {number}", size=14) if titles and number % 2 else Heading(size=14),
            paragraphs=((f"Morning {number}", f"Fog {number}"), (f"Evening {number}", f"Rain {number}")),
            symbols=symbols[:1 + number % 2],
            labels=labels[:1 + number % 2],
        ))
    return Project(tuple(frames))


def flat_png(width, height, colour):
    def chunk(kind, data):
        return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))

    row = b"\0" + bytes(colour) * width
    return (b"\x89PNG\r\n\x1a\n"
            + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 8, 2, 0, 0, 0))
            + chunk(b"IDAT", zlib.compress(row * height))
            + chunk(b"IEND", b""))


# The reader takes attributes and children by position, so every order below matters.

def _file_element(frames, pictures):
    root = ElementTree.Element("FILE", {
        "Frames": str(len(frames)), "Map": "map.png", "Size": str(len(pictures[0])), "Version": "2.0"})
    collection = ElementTree.SubElement(root, "Collection")
    for name in ("set-1", "sea"):
        ElementTree.SubElement(collection, "Item", {"Name": name, "Path": name})
    parent = ElementTree.SubElement(root, "Frames")
    for number, frame in enumerate(frames, 1):
        _add_frame(parent, number, frame, len(pictures[number]))
    return root


def _add_frame(parent, number, frame, picture_size):
    element = ElementTree.SubElement(
        parent, "Frame", {"Number": str(number), "Size": str(picture_size), "Label": frame.caption})
    _add_values(element, "Div", {
        "Backcolor": frame.back_colour[0], "Border": frame.border, "BorderColor": frame.border_colour[0]})
    _add_heading(element, "Title", frame.title)
    _add_heading(element, "Subtitle", frame.subtitle)
    _add_items(element, "Header", "Item", [_paragraph(header, 10, True) for header, _ in frame.paragraphs])
    _add_items(element, "Body", "Detail", [_paragraph(body, 8, False) for _, body in frame.paragraphs])
    _add_items(element, "Symbol", "Item", [_symbol(symbol) for symbol in frame.symbols])
    _add_items(element, "Label", "Item", [_label(label) for label in frame.labels])


def _add_values(parent, name, values):
    element = ElementTree.SubElement(parent, name)
    for key, value in values.items():
        ElementTree.SubElement(element, key).text = str(value)


def _add_items(parent, name, item_name, items):
    if items:
        element = ElementTree.SubElement(parent, name)
        for attributes in items:
            ElementTree.SubElement(element, item_name, {key: str(value) for key, value in attributes.items()})


def _add_heading(parent, name, heading):
    _add_values(parent, name, {
        "Backcolor": heading.back_colour[0], "Forecolor": heading.colour[0], "Border": 0, "BorderColor": 0,
        "FontName": "Arial", "FontSize": heading.size, "FontBold": heading.bold, "FontItalic": heading.italic,
        "FontUnderline": heading.underline, "FontOverline": heading.overline,
        "FontStrikethourht": heading.strike_through, "Align": heading.align, "Text": heading.text})


def _paragraph(text, size, bold):
    return {"Backcolor": -1, "Forecolor": 0, "Fontname": "Arial", "Fontsize": size, "Fontbold": bold,
            "Fontitalic": False, "Fontunderline": False, "Fontoverline": False, "Fontstrikethourht": False,
            "Text": text}


def _symbol(symbol):
    return {"Filename": symbol.file, "Height": symbol.height, "Width": symbol.width, "Left": symbol.left,
            "Top": symbol.top, "Link": symbol.link, "Tooltip": symbol.tooltip, "Note": ""}


def _label(label):
    return {"Backcolor": label.back_colour[0], "Forecolor": label.colour[0], "Border": 1 if label.border else 0,
            "Bordercolor": label.border_colour[0], "Fontname": "Arial", "Fontsize": label.size,
            "Fontbold": label.bold, "Fontitalic": label.italic, "Fontoverline": False,
            "Fontstrikethourht": False, "Fontunderline": False, "Height": label.height, "Width": label.width,
            "Left": label.left, "Top": label.top, "Text": label.text, "Note": ""}
