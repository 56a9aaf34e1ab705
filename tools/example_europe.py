# SPDX-License-Identifier: GPL-3.0-or-later
"""The five-day forecast: Europe, one Frame a day."""

from chart import pressure
from project_file import (ALICE_BLUE, DARK_BLUE, FIRE_BRICK, GAP, LEMON, LIGHT_STEEL, STEEL_BLUE, WHITE, Label, Period,
                          Project, Symbol, city, high, low)

SIZE = (800, 600)


def saturday_chart(chart):
    field = pressure(SIZE, ((168, 178, -32, 105, 1.35, 30), (640, 390, 15, 190, 1.5, 20), (70, 520, 9, 120, 1.6, 0),
                            (560, 40, -7, 120, 1.5, 0)))
    chart.isobars(field, range(984, 1040, 4))
    chart.front("occluded", ((168, 188), (194, 171), (222, 180)), side=1, spacing=24, first=12)
    chart.front("cold", ((222, 180), (228, 230), (214, 300), (168, 370), (94, 428), (0, 452)), side=1)
    chart.front("warm", ((222, 180), (270, 202), (306, 250), (322, 310)), side=1)


def tuesday_chart(chart):
    field = pressure(SIZE, ((400, 150, -29, 100, 1.4, 25), (110, 400, 17, 165, 1.4, -20), (700, 470, 7, 170, 1.3, 0)))
    chart.isobars(field, range(988, 1040, 4))
    chart.front("occluded", ((408, 162), (432, 148), (462, 158)), side=1, spacing=24, first=12)
    chart.front("cold", ((462, 158), (466, 230), (446, 310), (398, 376), (322, 424), (240, 450)), side=1)
    chart.front("warm", ((462, 158), (520, 176), (566, 220), (588, 282)), side=1)


PERIODS = [
    Period(
        "Saturday", "Atlantic storm reaches the British Isles",
        "Saturday: gales and rain in the west, quiet and mild elsewhere",
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
         Symbol("wind\\wind-sw-storm", (84, 232), "South-west 9 to 10 Beaufort"),
         Symbol("wind\\wind-s", (368, 228), "South 5 Beaufort")],
        low((138, 146), "984") + high((640, 350), "1030") +
        [city("London", 13, (268, 358)), city("Madrid", 21, (176, 530)), city("Rome", 19, (368, 540)),
         city("Berlin", 12, (402, 364)), city("Moscow", 6, (600, 254)), city("Athens", 22, (516, 560)),
         Label(f"{GAP}Storm warning{GAP}", (66, 402), 10, FIRE_BRICK, ground=LEMON, border=FIRE_BRICK,
               note="Confirm with the marine desk before 05 UTC.\r\nDrop it when gusts stay < 75 km/h & waves < 4 m.")],
        saturday_chart),
    Period(
        "Sunday", "Rain spreads to France and the Low Countries",
        "Sunday: showers and thunder behind the front",
        (("British Isles and North Sea",
          "Showers, some with thunder and hail, follow the clearing rain. The wind veers west and eases a little in the "
          "south, but remains stormy off northern Scotland. 9 to 13 degrees."),
         ("France and Central Europe",
          "Rain reaches Brittany at dawn and the Rhine in the evening. East of it a mild, bright afternoon: 18 degrees "
          "in Vienna, 16 in Warsaw."),
         ("Mediterranean",
          "Sunny and warm. In the Gulf of Lion the mistral stays away until Tuesday; sea temperatures near 20 degrees.")),
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
         Symbol("wind\\wind-w-strong", (88, 186), "West 9 Beaufort"),
         Symbol("warnings\\wind-orange", (84, 286), "Gusts of up to 100 km/h")],
        [city("Paris", 14, (284, 378)), city("Rome", 21, (384, 510)), city("Madrid", 22, (166, 522)),
         city("Warsaw", 16, (462, 372)), city("Moscow", 8, (606, 260)), city("Ankara", 26, (636, 536)),
         Label(f"{GAP}Gusts 100 km/h{GAP}", (88, 224), 10, FIRE_BRICK, ground=LEMON),
         Label("Fine and warm", (270, 545), 12, STEEL_BLUE, italic=True)]),
    Period(
        "Monday", "The front crosses Germany",
        "Monday: wet in the middle, clear skies in the south",
        (("North",
          "Snow down to 600 metres in southern Norway, sleet in Gothenburg. Over Lapland clear and cold with severe "
          "frost: 14 degrees below zero around Kiruna."),
         ("Central Europe",
          "Rain moves from the Rhine to the Oder, heaviest between Hamburg and Prague with 15 to 25 litres. Behind it the "
          "sky clears; some showers are left over the North Sea."),
         ("South and east",
          "Sunshine from Spain to the Aegean, up to 22 degrees. Ground frost at dawn in the valleys of the Carpathians, "
          "and fog on the lower Danube that lifts by noon.")),
        [Symbol("set-1\\showers", (228, 268), "Showers dying out"),
         Symbol("set-1\\partly-cloudy", (270, 366), "Clearing from the west"),
         Symbol("set-1\\rain", (376, 310), "Rain, 15 to 25 litres", "www.example.org/berlin"),
         Symbol("set-1\\sleet", (412, 234), "Sleet"),
         Symbol("set-1\\snow", (344, 150), "Snow above 600 metres", "www.example.org/oslo"),
         Symbol("set-1\\frost", (468, 62), "Severe frost"),
         Symbol("warnings\\ice-yellow", (270, 128), "Roads may be icy in Norway"),
         Symbol("set-1\\cloudy", (476, 300), "Rain by evening"),
         Symbol("set-1\\sun", (172, 478), "Sunny", "www.example.org/madrid"),
         Symbol("set-1\\sun", (384, 470), "Sunny"),
         Symbol("set-1\\fog", (540, 430), "Dense fog on the Danube"),
         Symbol("set-1\\mostly-sunny", (620, 490), "Mostly sunny"),
         Symbol("set-1\\mostly-cloudy", (604, 230), "Broken cloud"),
         Symbol("wind\\wind-nw", (132, 330), "North-west 7 Beaufort")],
        [city("Oslo", 3, (344, 190)), city("Berlin", 11, (376, 350)), city("Madrid", 18, (172, 518)),
         city("Rome", 20, (384, 510)), city("Bucharest", 10, (540, 470)),
         Label("Kiruna −14°", (468, 104), 10, DARK_BLUE, note="Record for the date is −17°, from 1986."),
         Label(f"{GAP}Icy roads{GAP}", (270, 172), 10, DARK_BLUE, ground=WHITE, border=STEEL_BLUE)]),
    Period(
        "Tuesday", "Cold air floods the north",
        "Tuesday: snow showers in Scandinavia, the front stalls on the Alps",
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
         Symbol("wind\\wind-nw-strong", (214, 168), "North-west 8 Beaufort"),
         Symbol("wind\\wind-n-storm", (304, 492), "Mistral, 9 Beaufort")],
        low((380, 136), "985") + high((92, 370), "1031") +
        [city("London", 10, (262, 362)), city("Warsaw", 8, (508, 340)), city("Madrid", 15, (170, 526)),
         city("Athens", 23, (528, 558)), city("Moscow", 5, (640, 266)),
         Label(f"{GAP}Snow above 1400 m{GAP}", (418, 486), 8, DARK_BLUE, ground=WHITE, border=STEEL_BLUE,
               note='Wording agreed with the avalanche service: "above", not "down to".')],
        tuesday_chart),
    Period(
        "Wednesday", "High pressure returns",
        "Wednesday: frosty dawn, then sunshine for most of the continent",
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
         Label(f"{GAP}Outlook: settled until Sunday{GAP}", (136, 560), 12, DARK_BLUE, bold=False, ground=ALICE_BLUE,
               border=LIGHT_STEEL)]),
]

PROJECT = Project("europe", "europe.jpg", PERIODS)
