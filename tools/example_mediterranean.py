# SPDX-License-Identifier: GPL-3.0-or-later
"""The marine forecast: the Mediterranean today, tonight and tomorrow, with wind, waves and warnings."""

from project_file import (ALICE_BLUE, DARK_BLUE, FIRE_BRICK, GAP, LEMON, LIGHT_STEEL, Label, Period, Project, Symbol, high,
                          low, places)

MAP = "mediterranean.jpg"
at = places(MAP)

ALBORAN, BALEARIC, LIONS, SARDINIA = at(-2.8, 36.0), at(3.6, 38.6), at(4.5, 41.6), at(6.9, 39.0)
TYRRHENIAN, ADRIATIC, SICILY, IONIAN = at(12.0, 39.8), at(15.8, 43.0), at(12.0, 36.0), at(18.2, 37.2)
SIRTE, AEGEAN, LIBYAN, LEVANT = at(18.5, 32.7), at(25.0, 38.6), at(24.0, 33.6), at(31.5, 33.8)
BLACK_SEA = at(32.8, 43.2)


def beside(place, right=0, down=0):
    return place[0] + right, place[1] + down


def sea_area(place, wind, waves, says, right=46):
    """Wind and, beside it, the height of the waves."""
    return [Symbol("wind\\" + wind, beside(place, -right // 2), says),
            Symbol("sea\\" + waves, beside(place, right // 2 + 10), says)]


def name(text, place, right=5, down=42):
    return Label(text, beside(place, right, down), 8, DARK_BLUE, bold=False, italic=True)


NAMES = [name("Alboran", ALBORAN, 2, 38), name("Lions", LIONS), name("Tyrrhenian", TYRRHENIAN),
         name("Ionian", IONIAN), name("Libyan Sea", LIBYAN), name("Levant", LEVANT), name("Black Sea", BLACK_SEA)]


PERIODS = [
    Period(
        "Today", "Mistral sets in, gale in the west",
        "Friday, 06 to 18 UTC: a low over the Ligurian Sea deepens",
        (("Western basin",
          "Lions: north-west 8 to 9, gusts of force 10; waves of 4 to 5 metres. Balearic and Sardinian waters: west to "
          "north-west 6 to 7. Alboran: west 5, later 4. Thundery squalls along the front; good visibility behind it."),
         ("Central basin",
          "Tyrrhenian: south-west 6, rising 2 to 3 metres. Strait of Sicily: south 4 to 5. Ionian: south 3 to 4, hazy. "
          "Adriatic: south-east 5 to 6, waves of 2 metres in the north."),
         ("Eastern basin",
          "Aegean: north 3, slight sea. Levant: light winds, smooth. Morning mist on the coast of Cilicia.")),
        sea_area(LIONS, "wind-nw-storm", "waves-05-m", "North-west 9, waves of 5 m") +
        sea_area(ALBORAN, "wind-w", "waves-01-m", "West 5, waves of 1 m") +
        sea_area(TYRRHENIAN, "wind-sw-strong", "waves-03-m", "South-west 6, waves of 3 m") +
        sea_area(IONIAN, "wind-s", "waves-01-m", "South 4, waves of 1 m") +
        sea_area(LIBYAN, "wind-nw-light", "sea-calm", "North-west 2, smooth") +
        sea_area(LEVANT, "calm", "sea-calm", "Light winds, smooth") +
        sea_area(BLACK_SEA, "wind-ne", "sea-moderate", "North-east 4, moderate sea") +
        [Symbol("sea\\flag-storm", at(-3.5, 41.6), "Storm warning for the Gulf of Lions",
                note="Valid until 18 UTC; next issue at noon."),
         Symbol("set-1\\thunderstorm", at(9.2, 36.0, -20, 0), "Thundery squalls along the front"),
         Symbol("set-1\\sun", at(33.0, 39.3), "Sunny"), Symbol("set-1\\mostly-sunny", at(15.0, 31.2), "Mostly sunny")],
        NAMES + low(at(9.0, 44.4, -30, -16), "995") + high(at(28.0, 45.6, 0, 6), "1026") +
        [Label(f"{GAP}Storm: Gulf of Lions{GAP}", at(3.0, 43.9, -110, -10), 10, FIRE_BRICK, ground=LEMON,
               border=FIRE_BRICK)],
        "mediterranean-today"),
    Period(
        "Tonight", "The low crosses Italy",
        "Friday, 18 to 06 UTC: thunderstorms over the Tyrrhenian Sea",
        (("Western basin",
          "Lions: north-west 8, easing to 7 before dawn. Sardinian waters: north-west 7, waves of 4 metres, swell running "
          "into the Strait of Sicily. Alboran: variable 2 to 3."),
         ("Central basin",
          "Tyrrhenian: south-west 7, veering north-west, with thunderstorms and waterspouts. Ionian: south 6. Adriatic: "
          "south-east 7, high water in Venice at 23 UTC."),
         ("Eastern basin",
          "Aegean: south 3 to 4. Levant: light winds, clear.")),
        sea_area(LIONS, "wind-nw-storm", "waves-04-m", "North-west 8, waves of 4 m") +
        sea_area(ALBORAN, "variable", "sea-slight", "Variable 2 to 3, slight sea") +
        sea_area(TYRRHENIAN, "wind-sw-strong", "waves-04-m", "South-west 7, waves of 4 m") +
        sea_area(IONIAN, "wind-s-strong", "waves-02-m", "South 6, waves of 2 m") +
        sea_area(LIBYAN, "wind-w", "waves-01-m", "West 4, waves of 1 m") +
        sea_area(LEVANT, "wind-w-light", "sea-calm", "West 2, smooth") +
        sea_area(BLACK_SEA, "wind-e", "sea-moderate", "East 4, moderate sea") +
        [Symbol("sea\\swell-from-northwest", at(7.8, 38.0, -8, 10), "Swell from the north-west, 3 m"),
         Symbol("night\\thunderstorm-night", at(9.9, 43.6, 14, -14), "Thunderstorms"),
         Symbol("sea\\waterspout", at(13.2, 36.6, -10, 30), "Waterspouts are possible"),
         Symbol("sea\\high-tide", at(15.4, 44.0), "High water in Venice at 23 UTC"),
         Symbol("night\\clear-night", at(33.0, 39.3), "Clear"),
         Symbol("night\\mostly-clear-night", at(15.0, 31.2), "Mostly clear")],
        NAMES + [Label(f"{GAP}Gale: Lions, Sardinia{GAP}", at(3.0, 43.9, -110, -10), 10, FIRE_BRICK, ground=LEMON,
                       border=FIRE_BRICK)]),
    Period(
        "Tomorrow", "Gale moves to the Ionian Sea",
        "Saturday: the mistral dies down, rough in the centre",
        (("Western basin",
          "High pressure builds. Lions: north-west 5, decreasing 3. Elsewhere variable 2 to 3, the swell goes down to one "
          "metre. Fine and clear."),
         ("Central basin",
          "Ionian: north-west 8, waves of 5 metres. Strait of Sicily: north-west 7. Southern Adriatic: north 6. Showers "
          "and thunderstorms, visibility moderate in rain."),
         ("Eastern basin",
          "Aegean: south 6, in the evening 7, waves of 3 metres. Levant: south-west 4, first clouds. Dust from Libya "
          "towards Crete.")),
        sea_area(LIONS, "wind-nw", "waves-02-m", "North-west 5, waves of 2 m") +
        sea_area(ALBORAN, "variable", "sea-slight", "Variable 2 to 3, slight sea") +
        sea_area(TYRRHENIAN, "wind-n", "waves-02-m", "North 5, waves of 2 m") +
        sea_area(IONIAN, "wind-nw-storm", "waves-05-m", "North-west 8, waves of 5 m") +
        sea_area(LIBYAN, "wind-sw-strong", "waves-03-m", "South-west 7, waves of 3 m") +
        sea_area(LEVANT, "wind-sw", "waves-01-m", "South-west 4, waves of 1 m") +
        sea_area(BLACK_SEA, "wind-s", "sea-moderate", "South 4, moderate sea") +
        [Symbol("sea\\sailing-boat", at(3.0, 38.9, -10, 24), "Good sailing in the west"),
         Symbol("set-1\\sun", at(-3.6, 40.4), "Sunny"), Symbol("set-1\\sandstorm", at(20.6, 29.4), "Dust from the desert"),
         Symbol("set-1\\rain", at(24.6, 43.8), "Rain, thunder at times"),
         Symbol("set-1\\mostly-sunny", at(8.6, 34.0), "Dry"),
         Symbol("sea\\flag-gale", at(15.0, 31.2), "Gale warning for the Ionian Sea")],
        NAMES + high(at(1.5, 45.4, 0, -14), "1027") + low(at(18.9, 41.4, 0, -22), "998") +
        [Label(f"{GAP}Gale: Ionian Sea{GAP}", at(10.0, 30.2, 0, -4), 10, FIRE_BRICK, ground=LEMON, border=FIRE_BRICK),
         Label(f"{GAP}Sunday: fine in the west{GAP}", (92, 500), 10, DARK_BLUE, bold=False, ground=ALICE_BLUE,
               border=LIGHT_STEEL)],
        "mediterranean-tomorrow"),
]

PROJECT = Project("mediterranean", MAP, PERIODS)
