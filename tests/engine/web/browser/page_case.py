# SPDX-License-Identifier: GPL-3.0-or-later
"""What the tests of all page types share."""

import itertools
import re
import unittest
from typing import NamedTuple

import layout
import projects

FRAME_COUNTS = (1, 2, 3, 4, 7)
FRAME_ELEMENT = re.compile(r"(title|subtitle|map|textForecast|sprite)_\d+$")
BUTTON = re.compile(r"btn(_\d+|Left|Right)$")


class Sample(NamedTuple):
    frames: int
    titles: bool

    @property
    def project(self):
        return projects.sample(self.frames, self.titles)

    @property
    def html(self):
        """Transitions are on for every other sample, so each number of Frames is seen with and without them."""
        return {"Effects": (self.frames + self.titles) % 2}


SAMPLES = [Sample(*choice) for choice in itertools.product(FRAME_COUNTS, (True, False))]


class PageCase(unittest.TestCase):
    # Both are set once for the whole run.
    browser = None
    program = None

    def open(self, project, page_type, html=None, slider=None):
        page = self.program.page(project, page_type, html, slider)
        self.browser.open(page.url)
        return page

    def visible(self, pattern):
        return {name for name, element in self.browser.elements().items() if element.visible and pattern.match(name)}

    def assert_shows(self, page, *numbers):
        """Exactly these Frames are to be seen, complete, and every other one is hidden."""
        seen = {name: element for name, element in self.browser.elements().items() if FRAME_ELEMENT.match(name)}
        self.assertEqual(set(seen), page.elements())
        expected = set().union(*(page.elements_of(number) for number in numbers))
        self.assertEqual({name for name, element in seen.items() if element.visible}, expected)
        for name in expected:
            self.assertNotEqual(seen[name].natural_width, 0, f"{name}: its picture is not loaded")

    def assert_on_top(self, page, number):
        """Nothing covers the Frame's sprites, and the map's colour is the Frame's own."""
        seen = self.browser.elements()
        for name in page.elements_of(number):
            if name.startswith("sprite_"):
                self.assertTrue(seen[name].on_top, f"{name} is covered")
        # A point of the map that no sprite of the sample projects covers; its picture is a JPEG by now.
        painted = self.browser.colour_at(layout.LEFT + 5, layout.top(page) + page.project.height - 5)
        for part, expected in zip(painted, projects.map_colour(number)):
            self.assertAlmostEqual(part, expected, delta=4, msg=f"the map of another Frame than {number} is painted")

    def assert_laid_out(self, page):
        window_width = self.browser.run("return document.body.clientWidth;")
        seen = self.browser.elements()
        for name, box in layout.boxes(page, window_width).items():
            self.assert_box(seen, name, box)

    def assert_box(self, seen, name, box):
        element = seen[name]
        found = layout.Box(element.left, element.top, element.width, element.height)
        for side in layout.Box._fields:
            if getattr(box, side) is not None:
                self.assertAlmostEqual(getattr(found, side), getattr(box, side), delta=0.1, msg=f"{name}: {side}")

    def assert_quiet(self):
        self.assertEqual(self.browser.log(), [], "the console is not empty")
