#!/usr/bin/python3
"""Writes examples/europe.nvpf and examples/europe.nvpx: a project of five forecast periods on content/Maps/europe.jpg.

This is a second, independent writer of the project format: attribute and element positions are the format's contract,
so every list below keeps the order in which it goes into the file.
"""

import argparse
import io
import os
from dataclasses import dataclass

from PIL import Image

import typeface
from chart import Chart, pressure
from geo import REPOSITORY
from make_maps import JPEG

MAP = "europe.jpg"
SIZE = (800, 600)

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

    def box(self):
        # The pictures' own sizes: exported pictures ignore any other.
        side = 48 if self.file.startswith("wind\\") else 64
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
    chart: object = None    # function that draws on a Chart; None leaves the map bare


def high(at, value):
    return [Label("H", at, 36, DARK_BLUE), Label(value, (at[0], at[1] + 30), 10, DARK_BLUE)]


def low(at, value):
    return [Label("L", at, 36, FIRE_BRICK), Label(value, (at[0], at[1] + 30), 10, FIRE_BRICK)]


def city(name, degrees, at, **more):
    return Label(f"{name} {degrees}°", at, **more)


# The five periods -----------------------------------------------------------------------------------------------------

def saturday_morning_chart(chart):
    field = pressure(SIZE, ((168, 178, -32, 105, 1.35, 30), (640, 390, 15, 190, 1.5, 20), (70, 520, 9, 120, 1.6, 0),
                            (560, 40, -7, 120, 1.5, 0)))
    chart.isobars(field, range(984, 1040, 4))
    chart.front("occluded", ((168, 188), (194, 171), (222, 180)), side=1, spacing=24, first=12)
    chart.front("cold", ((222, 180), (228, 230), (214, 300), (168, 370), (94, 428), (0, 452)), side=1)
    chart.front("warm", ((222, 180), (270, 202), (306, 250), (322, 310)), side=1)


def sunday_chart(chart):
    field = pressure(SIZE, ((400, 150, -29, 100, 1.4, 25), (110, 400, 17, 165, 1.4, -20), (700, 470, 7, 170, 1.3, 0)))
    chart.isobars(field, range(988, 1040, 4))
    chart.front("occluded", ((408, 162), (432, 148), (462, 158)), side=1, spacing=24, first=12)
    chart.front("cold", ((462, 158), (466, 230), (446, 310), (398, 376), (322, 424), (240, 450)), side=1)
    chart.front("warm", ((462, 158), (520, 176), (566, 220), (588, 282)), side=1)


PERIODS = [
    Period(
        "Sat morning", "Atlantic storm reaches the British Isles",
        "Saturday, 06 to 12 UTC: gales and rain in the west, quiet and mild elsewhere",
        (("British Isles and North Sea",
          "A deep low west of Scotland brings heavy rain to Ireland and western Britain, with gusts of 90 to 110 km/h "
          "on exposed coasts. Eastern England stays dry until noon. Very rough seas from the Hebrides to Biscay."),
         ("Central Europe",
          "Fog patches in river valleys lift by ten o'clock; afterwards long sunny spells from Germany to Hungary and "
          "temperatures between 12 and 17 degrees. Clouds thicken slowly over the Low Countries."),
         ("Mediterranean",
          "High pressure holds: sunshine from Spain to Greece, light winds and a calm sea. Warmest in Andalusia and "
          "on Crete, with up to 24 degrees.")),
        [Symbol("set-1\\heavy-rain", (150, 286), "Heavy rain, gusts to 110 km/h", "www.example.org/ireland"),
         Symbol("set-1\\cloudy", (268, 318), "Rain from noon", "www.example.org/london"),
         Symbol("set-1\\sea-rough", (72, 356), "Very rough sea, waves of 7 to 9 m",
                note="Wave model of 00 UTC; compare with the buoys."),
         Symbol("set-1\\showers", (150, 58), "Showers of rain and sleet"),
         Symbol("set-1\\partly-cloudy", (292, 404), "Cloud increasing"),
         Symbol("set-1\\sun", (176, 490), "Sunny", "www.example.org/madrid"),
         Symbol("set-1\\mist", (402, 324), "Fog patches, then sunny"),
         Symbol("set-1\\light-snow", (452, 68), "Light snow in the hills"),
         Symbol("set-1\\sun", (368, 500), "Sunny all day", "www.example.org/rome"),
         Symbol("set-1\\mostly-sunny", (520, 344), "Dry, sunny spells"),
         Symbol("set-1\\cloudy", (600, 214), "Mostly cloudy"),
         Symbol("set-1\\sun", (516, 520), "Sunny"),
         Symbol("wind\\wind-sw", (84, 232), "South-west 9 to 10 Beaufort"),
         Symbol("wind\\wind-s", (368, 228), "South 5 Beaufort")],
        low((138, 146), "984") + high((640, 350), "1030") +
        [city("London", 13, (268, 358)), city("Madrid", 21, (176, 530)), city("Rome", 19, (368, 540)),
         city("Berlin", 12, (402, 364)), city("Moscow", 6, (600, 254)), city("Athens", 22, (516, 560)),
         Label(f"{GAP}Storm warning{GAP}", (66, 402), 10, FIRE_BRICK, ground=LEMON, border=FIRE_BRICK,
               note="Confirm with the marine desk before 05 UTC.\r\nDrop it when gusts stay < 75 km/h & waves < 4 m.")],
        saturday_morning_chart),
    Period(
        "Sat afternoon", "Rain spreads to France and the Low Countries",
        "Saturday, 12 to 18 UTC: showers and thunder behind the front",
        (("British Isles and North Sea",
          "Showers, some with thunder and hail, follow the clearing rain. The wind veers west and eases a little in the "
          "south, but remains stormy off northern Scotland. 9 to 13 degrees."),
         ("France and Central Europe",
          "Rain reaches Brittany at midday and the Rhine in the evening. East of it a mild, bright afternoon: 18 degrees "
          "in Vienna, 16 in Warsaw."),
         ("Mediterranean",
          "Sunny and warm. In the Gulf of Lion the mistral stays away until Sunday; sea temperatures near 20 degrees.")),
        [Symbol("set-1\\thundery-showers", (190, 262), "Showers with thunder and hail", "www.example.org/ireland"),
         Symbol("set-1\\showers", (268, 226), "Showers"),
         Symbol("set-1\\rain", (284, 338), "Rain, at times heavy", "www.example.org/paris"),
         Symbol("set-1\\heavy-rain", (206, 376), "Heavy rain on the coast"),
         Symbol("set-1\\snow-showers", (168, 66), "Snow showers"),
         Symbol("set-1\\mostly-cloudy", (378, 268), "Cloud from the west"),
         Symbol("set-1\\mostly-sunny", (462, 332), "Bright and mild"),
         Symbol("set-1\\sun", (384, 470), "Sunny", "www.example.org/rome"),
         Symbol("set-1\\sun", (166, 482), "Sunny"),
         Symbol("set-1\\light-rain", (352, 172), "Light rain by evening"),
         Symbol("set-1\\cloudy", (606, 220), "Cloudy"),
         Symbol("set-1\\mostly-sunny", (540, 424), "Sunny spells"),
         Symbol("set-1\\hot", (636, 496), "Unusually warm", note="Five degrees above the mean for the date."),
         Symbol("wind\\wind-w", (88, 186), "West 9 Beaufort")],
        [city("Paris", 14, (284, 378)), city("Rome", 21, (384, 510)), city("Madrid", 22, (166, 522)),
         city("Warsaw", 16, (462, 372)), city("Moscow", 8, (606, 260)), city("Ankara", 26, (636, 536)),
         Label(f"{GAP}Gusts 100 km/h{GAP}", (88, 224), 10, FIRE_BRICK, ground=LEMON),
         Label("Fine and warm", (270, 545), 12, STEEL_BLUE, italic=True)]),
    Period(
        "Sat night", "The front crosses Germany",
        "Night to Sunday, 18 to 06 UTC: wet in the middle, clear skies in the south",
        (("North",
          "Snow down to 600 metres in southern Norway, sleet in Gothenburg. Over Lapland clear and cold with severe "
          "frost: 14 degrees below zero around Kiruna."),
         ("Central Europe",
          "Rain moves from the Rhine to the Oder, heaviest between Hamburg and Prague with 15 to 25 litres. Behind it the "
          "sky clears; fog may form along the Loire."),
         ("South and east",
          "A starry night from Spain to the Aegean. Ground frost in the valleys of the Carpathians, fog on the lower "
          "Danube.")),
        [Symbol("set-1\\showers-night", (228, 268), "Showers dying out"),
         Symbol("set-1\\partly-cloudy-night", (270, 366), "Clearing, local fog"),
         Symbol("set-1\\rain", (376, 310), "Rain, 15 to 25 litres", "www.example.org/berlin"),
         Symbol("set-1\\sleet", (412, 234), "Sleet"),
         Symbol("set-1\\snow", (344, 150), "Snow above 600 metres", "www.example.org/oslo"),
         Symbol("set-1\\frost", (468, 62), "Severe frost"),
         Symbol("set-1\\cloudy", (476, 300), "Rain before dawn"),
         Symbol("set-1\\clear-night", (172, 478), "Clear", "www.example.org/madrid"),
         Symbol("set-1\\clear-night", (384, 470), "Clear"),
         Symbol("set-1\\fog", (540, 430), "Dense fog on the Danube"),
         Symbol("set-1\\clear-night", (620, 490), "Clear"),
         Symbol("set-1\\partly-cloudy-night", (604, 230), "Broken cloud"),
         Symbol("wind\\wind-nw", (132, 330), "North-west 7 Beaufort")],
        [city("Oslo", 1, (344, 190)), city("Berlin", 9, (376, 350)), city("Madrid", 9, (172, 518)),
         city("Rome", 11, (384, 510)), city("Bucharest", 4, (540, 470)),
         Label("Kiruna −14°", (468, 104), 10, DARK_BLUE, note="Record for the date is −17°, from 1986."),
         Label(f"{GAP}Icy roads{GAP}", (272, 160), 10, DARK_BLUE, ground=WHITE, border=STEEL_BLUE)]),
    Period(
        "Sunday", "Cold air floods the north",
        "Sunday: snow showers in Scandinavia, the front stalls on the Alps",
        (("Scandinavia and Baltic",
          "A gale centre over the Skagerrak draws polar air south. Snow and sleet in Sweden and Finland, rain on the "
          "Baltic coasts with gusts of 85 km/h. Temperatures fall all day, to 2 degrees in Stockholm."),
         ("Central Europe and Alps",
          "Rain from Poland to Lake Geneva, snow above 1400 metres by evening. Northern Germany sees sun and short "
          "showers. Highs of 8 to 11 degrees."),
         ("Mediterranean",
          "The mistral rises to storm force in the Rhone valley. Thunderstorms in the Gulf of Genoa at night; sunny "
          "from Sicily eastward.")),
        [Symbol("set-1\\snow-showers", (330, 108), "Snow showers"),
         Symbol("set-1\\heavy-snow", (498, 108), "Heavy snow", "www.example.org/finland"),
         Symbol("set-1\\showers", (384, 270), "Showers, gusts to 85 km/h"),
         Symbol("set-1\\rain", (508, 300), "Rain all day", "www.example.org/warsaw"),
         Symbol("set-1\\sleet", (376, 440), "Rain, snow above 1400 m", "www.example.org/alps"),
         Symbol("set-1\\partly-cloudy", (262, 322), "Sun and cloud", "www.example.org/london"),
         Symbol("set-1\\sun", (170, 486), "Sunny, cool wind"),
         Symbol("set-1\\sea-moderate", (300, 218), "Waves of 3 to 4 m"),
         Symbol("set-1\\mostly-sunny", (528, 518), "Warm and mostly sunny"),
         Symbol("set-1\\overcast", (640, 226), "Overcast"),
         Symbol("set-1\\mostly-cloudy", (556, 410), "Cloud from the west"),
         Symbol("set-1\\frost", (180, 62), "Frost all day"),
         Symbol("wind\\wind-nw", (214, 168), "North-west 8 Beaufort"),
         Symbol("wind\\wind-n", (304, 492), "Mistral, 9 Beaufort")],
        low((380, 136), "985") + high((92, 370), "1031") +
        [city("London", 10, (262, 362)), city("Warsaw", 8, (508, 340)), city("Madrid", 15, (170, 526)),
         city("Athens", 23, (528, 558)), city("Moscow", 5, (640, 266)),
         Label(f"{GAP}Snow above 1400 m{GAP}", (418, 486), 8, DARK_BLUE, ground=WHITE, border=STEEL_BLUE,
               note='Wording agreed with the avalanche service: "above", not "down to".')],
        sunday_chart),
    Period(
        "Monday", "High pressure returns",
        "Monday: frosty dawn, then sunshine for most of the continent",
        (("North",
          "The last snow showers leave Finland in the morning. Frost everywhere at dawn, down to 18 degrees below zero "
          "in Lapland, followed by a bright, still day."),
         ("Central Europe",
          "A ridge builds from France to Poland. Fog along the Rhine and the Danube until noon, otherwise sun from "
          "morning to evening and 7 to 12 degrees."),
         ("Mediterranean",
          "Thunderstorms over southern Italy and the Ionian Sea drift to Greece. Fine in the west; the mistral dies "
          "down.")),
        [Symbol("set-1\\cold", (462, 66), "Severe frost at dawn", "www.example.org/lapland"),
         Symbol("set-1\\light-snow", (540, 160), "Last snow showers"),
         Symbol("set-1\\sun", (372, 196), "Bright and still"),
         Symbol("set-1\\mostly-sunny", (240, 300), "Sunny spells", "www.example.org/london"),
         Symbol("set-1\\sun", (300, 386), "Sunny", "www.example.org/paris"),
         Symbol("set-1\\fog", (388, 322), "Fog, then sunny"),
         Symbol("set-1\\mostly-sunny", (480, 316), "Dry and cool"),
         Symbol("set-1\\sun", (176, 486), "Sunny"),
         Symbol("set-1\\thunderstorm", (400, 510), "Thunderstorms, heavy at times", "www.example.org/naples"),
         Symbol("set-1\\thundery-showers", (514, 516), "Thundery showers by evening"),
         Symbol("set-1\\rain", (606, 440), "Rain on the Black Sea coast"),
         Symbol("set-1\\cloudy", (620, 234), "Cloudy, slight snow"),
         Symbol("set-1\\drizzle", (156, 60), "Drizzle"),
         Symbol("wind\\calm", (310, 266), "Calm")],
        high((428, 246), "1035") +
        [city("Paris", 11, (300, 426)), city("Madrid", 17, (176, 526)), city("Naples", 16, (400, 550)),
         city("London", 9, (230, 340)), city("Moscow", 0, (620, 274)),
         Label("Kiruna −18°", (462, 108), 10, DARK_BLUE),
         Label(f"{GAP}Outlook: settled until Thursday{GAP}", (136, 560), 12, DARK_BLUE, bold=False, ground=ALICE_BLUE,
               border=LIGHT_STEEL)]),
]


# The files ------------------------------------------------------------------------------------------------------------

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


def layout_faults(period):
    """Everything has to lie inside the map and nothing on top of anything else."""
    boxes = [(symbol.file, symbol.box()) for symbol in period.symbols] + \
            [(label.text, label.box()) for label in period.labels]
    for index, (name, (left, top, width, height)) in enumerate(boxes):
        if left < 0 or top < 0 or left + width > SIZE[0] or top + height > SIZE[1]:
            yield f"{period.caption}: {name} leaves the map"
        for other, (x, y, w, h) in boxes[index + 1:]:
            # A pressure centre's value may tuck under the foot of its letter, where the letter's box is empty.
            if {name, other} & {"H", "L"} and (name + other).strip("HL").isdigit():
                continue
            if left < x + w and x < left + width and top < y + h and y < top + height:
                yield f"{period.caption}: {name} and {other} overlap"


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--output", default=os.path.join(REPOSITORY, "examples"))
    folder = parser.parse_args().output
    with open(os.path.join(REPOSITORY, "content", "Maps", MAP), "rb") as file:
        map_bytes = file.read()
    bare = Image.open(io.BytesIO(map_bytes)).convert("RGB")
    faults = [fault for period in PERIODS for fault in layout_faults(period)]
    if faults:
        raise SystemExit("\n".join(faults))
    blocks = [map_bytes]
    for period in PERIODS:
        picture = bare
        if period.chart:
            chart = Chart(SIZE)
            period.chart(chart)
            picture = chart.over(bare)
        blocks.append(jpeg(picture))

    collections = "".join(element("Item", (("Name", name), ("Path", name))) for name in ("set-1", "wind"))
    frames = "".join(frame_element(number, len(blocks[number]), period) for number, period in enumerate(PERIODS, 1))
    document = element("FILE", (("Frames", len(PERIODS)), ("Map", MAP), ("Size", len(map_bytes)), ("Version", "2.0")),
                       element("Collection", content=collections) + element("Frames", content=frames))

    os.makedirs(folder, exist_ok=True)
    with open(os.path.join(folder, "europe.nvpx"), "wb") as file:
        file.write(b"".join(blocks))
    with open(os.path.join(folder, "europe.nvpf"), "wb") as file:
        file.write(document.encode("utf-8"))
    print(f"examples/europe.nvpf {len(document.encode('utf-8'))} bytes, "
          f"examples/europe.nvpx {sum(map(len, blocks))} bytes in {len(blocks)} blocks")


if __name__ == "__main__":
    main()
