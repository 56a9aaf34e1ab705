# SPDX-License-Identifier: GPL-3.0-or-later
"""The single-day forecast: Italy, from the night to the evening, with symbols of the night where it is dark."""

from project_file import (ALICE_BLUE, DARK_BLUE, FIRE_BRICK, GAP, LEMON, LIGHT_STEEL, Label, Period, Project, Symbol, city,
                          places)

MAP = "italy.jpg"
at = places(MAP)

TURIN, ALPS, VENICE = at(8.0, 45.05), at(10.6, 46.7), at(12.45, 45.2)
FLORENCE, ANCONA, ROME = at(11.1, 43.5), at(13.6, 43.35), at(12.6, 41.65)
NAPLES, BARI, COSENZA = at(14.7, 40.75), at(16.9, 40.8), at(16.4, 38.95)
PALERMO, CAGLIARI = at(13.9, 37.6), at(9.05, 39.65)
LIGURIAN_SEA, TYRRHENIAN_SEA = at(8.6, 43.55), at(11.7, 39.8)
ADRIATIC_SEA, IONIAN_SEA = at(15.75, 42.75), at(18.6, 38.7)


def below(place, down=40):
    return place[0], place[1] + down


def sky(**places_and_symbols):
    """Symbols of the sky at named places: collection and name, and what it says."""
    return [Symbol(file, globals()[place], *rest) for place, (file, *rest) in places_and_symbols.items()]


def towns(**degrees):
    named = {"TURIN": "Turin", "VENICE": "Venice", "FLORENCE": "Florence", "ROME": "Rome", "NAPLES": "Naples",
             "BARI": "Bari", "PALERMO": "Palermo", "CAGLIARI": "Cagliari", "ANCONA": "Ancona", "COSENZA": "Cosenza"}
    return [city(named[place], value, below(globals()[place])) for place, value in degrees.items()]


PERIODS = [
    Period(
        "Night", "Quiet and mostly clear",
        "Thursday, 00 to 06: fog on the Po, first clouds in the west before dawn",
        (("North",
          "Clear in the mountains with frost above 1200 metres. Dense fog forms between Turin and Venice; in places one "
          "sees less than a hundred metres."),
         ("Centre and Sardinia",
          "Stars over Tuscany, Lazio and the Marche. From three o'clock cloud from the west covers Sardinia."),
         ("South and Sicily",
          "A clear and mild night with light winds from the land. Lowest 12 to 15 degrees on the coasts.")),
        sky(TURIN=("night\\fog-night", "Dense fog"), ALPS=("night\\frost-night", "Frost above 1200 metres"),
            VENICE=("night\\mist-night", "Fog patches"), FLORENCE=("night\\clear-night", "Clear"),
            ANCONA=("night\\clear-night", "Clear"), ROME=("night\\mostly-clear-night", "Mostly clear"),
            NAPLES=("night\\starry-night", "Clear"), BARI=("night\\clear-night", "Clear"),
            COSENZA=("night\\clear-night", "Clear"), PALERMO=("night\\partly-cloudy-night", "Some cloud"),
            CAGLIARI=("night\\cloudy-night", "Cloud from three o'clock"),
            LIGURIAN_SEA=("wind\\wind-se-light", "South-east 2 Beaufort"),
            TYRRHENIAN_SEA=("wind\\wind-s-light", "South 2 Beaufort"),
            ADRIATIC_SEA=("wind\\wind-w-light", "West 2 Beaufort"), IONIAN_SEA=("wind\\calm", "Calm")),
        towns(TURIN=4, VENICE=7, FLORENCE=8, ROME=11, NAPLES=13, BARI=13, PALERMO=15, CAGLIARI=14) +
        [Label(f"{GAP}Fog on the motorways{GAP}", below(TURIN, -44), 8, FIRE_BRICK, ground=LEMON, border=FIRE_BRICK,
               note="Ask the road office at five; drop it when the webcams show more than 500 m.")]),
    Period(
        "Morning", "A front reaches the north-west",
        "Thursday, 06 to 12: rain in Liguria and Piedmont, fine elsewhere",
        (("North",
          "The fog lifts towards ten. Rain spreads from Liguria to Milan, with snow above 1500 metres in the western "
          "Alps. Still dry in the north-east."),
         ("Centre and Sardinia",
          "Sardinia turns wet with a strong mistral. Tuscany and Lazio see cloud thicken; the Adriatic side stays sunny."),
         ("South and Sicily",
          "Sun from dawn to noon, pleasant temperatures and a freshening wind from the south.")),
        sky(TURIN=("set-1\\rain", "Rain", "www.example.org/turin"), ALPS=("set-1\\light-snow", "Snow above 1500 metres"),
            VENICE=("set-1\\mist", "Fog lifts at ten"), FLORENCE=("set-1\\cloudy", "Cloud thickens"),
            ANCONA=("set-1\\sun", "Sunny"), ROME=("set-1\\mostly-sunny", "Sunny, cloud later", "www.example.org/rome"),
            NAPLES=("set-1\\sun", "Sunny"), BARI=("set-1\\sun", "Sunny"), COSENZA=("set-1\\mostly-sunny", "Mostly sunny"),
            PALERMO=("set-1\\sun", "Sunny"), CAGLIARI=("set-1\\showers", "Showers"),
            LIGURIAN_SEA=("wind\\wind-sw-strong", "South-west 6 Beaufort"),
            TYRRHENIAN_SEA=("wind\\wind-sw", "South-west 4 Beaufort"),
            ADRIATIC_SEA=("wind\\wind-se", "South-east 4 Beaufort"), IONIAN_SEA=("wind\\wind-s", "South 3 Beaufort")) +
        [Symbol("fronts\\cold-front-to-east", at(7.1, 42.3), "Cold front, moves east"),
         Symbol("fronts\\cold-front-to-east", at(7.0, 40.9), "Cold front, moves east")],
        towns(TURIN=9, VENICE=11, FLORENCE=14, ANCONA=16, ROME=17, NAPLES=18, BARI=18, PALERMO=20, CAGLIARI=16)),
    Period(
        "Afternoon", "Thunderstorms from Tuscany to Naples",
        "Thursday, 12 to 18: the front crosses the Apennines",
        (("North",
          "Steady rain over Lombardy and Veneto, 20 to 40 litres. Clearing from the west: Turin sees the sun "
          "again at four."),
         ("Centre and Sardinia",
          "Thunderstorms with hail and squalls move through Tuscany, Umbria and Lazio. Sardinia has sun and showers in "
          "turn, and the mistral blows at force eight."),
         ("South and Sicily",
          "Campania gets its first storms towards evening. Elsewhere sunny and hot with a sirocco: up to 27 degrees.")),
        sky(TURIN=("set-1\\partly-cloudy", "Clearing"), ALPS=("set-1\\snow", "Snow above 1400 metres"),
            VENICE=("set-1\\heavy-rain", "Heavy rain", "www.example.org/venice"),
            FLORENCE=("set-1\\thunderstorm", "Thunderstorms with hail", "www.example.org/florence"),
            ANCONA=("set-1\\showers", "Showers"),
            ROME=("set-1\\thundery-showers", "Thundery showers", "www.example.org/rome"),
            NAPLES=("set-1\\mostly-cloudy", "Storms by evening"), BARI=("set-1\\mostly-sunny", "Warm and sunny"),
            COSENZA=("set-1\\sun", "Sunny"), PALERMO=("set-1\\hot", "Up to 27 degrees"),
            CAGLIARI=("set-1\\windy", "Sun, showers, gale"), LIGURIAN_SEA=("wind\\wind-nw-storm", "Mistral, 9 Beaufort"),
            TYRRHENIAN_SEA=("wind\\wind-sw-strong", "South-west 7 Beaufort"),
            ADRIATIC_SEA=("wind\\wind-se-strong", "Sirocco, 6 Beaufort"),
            IONIAN_SEA=("wind\\wind-s", "South 5 Beaufort")) +
        [Symbol("fronts\\cold-front-to-east", at(10.9, 40.95), "Cold front, moves east"),
         Symbol("warnings\\thunderstorm-orange", at(9.3, 41.6), "Thunderstorms from Tuscany to Lazio")],
        towns(TURIN=13, VENICE=10, FLORENCE=14, ROME=17, NAPLES=20, BARI=23, PALERMO=27, CAGLIARI=17) +
        [Label(f"{GAP}Hail and squalls{GAP}", at(10.6, 42.75, -112, 10), 10, FIRE_BRICK, ground=LEMON, border=FIRE_BRICK)]),
    Period(
        "Evening", "The rain moves south",
        "Thursday, 18 to 24: storms over the south, clear and cold behind them",
        (("North",
          "A starry evening with a cold wind from the mountains. Ground frost in the valleys towards midnight."),
         ("Centre and Sardinia",
          "Last showers in the Abruzzi, with snow on the passes. Clear in Tuscany and Sardinia; the mistral dies down."),
         ("South and Sicily",
          "Thunderstorms from Naples to Calabria, heaviest before ten. Sicily gets rain by midnight. The sirocco gives way "
          "to wind from the north-west.")),
        sky(TURIN=("night\\clear-night", "Clear"), ALPS=("night\\frost-night", "Frost"),
            VENICE=("night\\mostly-clear-night", "Clearing"),
            FLORENCE=("night\\clear-night", "Clear"), ANCONA=("night\\showers-night", "Last showers"),
            ROME=("night\\partly-cloudy-night", "Cloud breaks up"),
            NAPLES=("night\\thunderstorm-night", "Thunderstorms", "www.example.org/naples"),
            BARI=("night\\rain-night", "Rain"), COSENZA=("night\\thundery-showers-night", "Thundery showers"),
            PALERMO=("night\\light-rain-night", "Rain by midnight"), CAGLIARI=("night\\mostly-clear-night", "Mostly clear"),
            LIGURIAN_SEA=("wind\\wind-n", "North 5 Beaufort"),
            TYRRHENIAN_SEA=("wind\\wind-nw-strong", "North-west 7 Beaufort"),
            ADRIATIC_SEA=("wind\\wind-nw", "North-west 5 Beaufort"), IONIAN_SEA=("wind\\wind-w", "West 5 Beaufort")),
        towns(TURIN=6, VENICE=8, FLORENCE=7, ROME=11, NAPLES=14, BARI=15, PALERMO=18, CAGLIARI=11) +
        [Label(f"{GAP}Friday: sunny and cool{GAP}", (120, 560), 12, DARK_BLUE, bold=False, ground=ALICE_BLUE,
               border=LIGHT_STEEL)]),
]

PROJECT = Project("italy", MAP, PERIODS)
