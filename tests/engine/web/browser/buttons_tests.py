# SPDX-License-Identifier: GPL-3.0-or-later
"""The page with a button a Frame."""

import layout
from page_case import BUTTON, FRAME_COUNTS, SAMPLES, PageCase
from program import BUTTONS
from projects import Project, sample


class ButtonsCase(PageCase):
    def assert_strip(self, page, first=1):
        """The visible buttons are those that begin with the given Frame's, side by side under the map."""
        expected = layout.strip(page, first)
        seen = self.browser.elements()
        self.assertEqual({name for name, element in seen.items() if BUTTON.match(name) and element.visible},
                         set(expected))
        for name, box in expected.items():
            self.assert_box(seen, name, box)
            if name.startswith("btn_"):
                self.assertEqual(seen[name].text, page.project.frames[int(name[4:]) - 1].caption)
        edges = sorted((seen[name].left, seen[name].left + seen[name].width) for name in expected)
        for (_, right), (left, _) in zip(edges, edges[1:]):
            self.assertAlmostEqual(left - right, layout.GAP, delta=0.1)
        if edges:
            # The right arrow may take a pixel more than is left.
            self.assertAlmostEqual(edges[-1][1], layout.LEFT + layout.outer(page.project.width), delta=1)

    def assert_click_changes_nothing(self, button):
        self.browser.count_changes()
        self.browser.click(button)
        self.assertEqual(self.browser.changes(), 0)


class Loading(ButtonsCase):
    def test_shows_the_first_frame_in_its_place(self):
        for chosen in SAMPLES:
            with self.subTest(chosen):
                page = self.open(chosen.project, BUTTONS, chosen.html)
                self.assert_quiet()
                self.assert_shows(page, 1)
                self.assert_on_top(page, 1)
                self.assert_laid_out(page)
                self.assert_strip(page)

    def test_the_strip_is_as_wide_as_the_map(self):
        # Widths that leave a rest, which the last element of the strip takes.
        for width in (301, 318, 319, 401):
            for count in (2, 3, 4):
                with self.subTest(width=width, frames=count):
                    self.assert_strip(self.open(Project(sample(count).frames, width, 200), BUTTONS))


class FrameButtons(ButtonsCase):
    def test_a_button_shows_its_frame_alone(self):
        for count in (2, 3):
            for effects in (0, 1):
                with self.subTest(frames=count, effects=effects):
                    page = self.open(sample(count), BUTTONS, {"Effects": effects})
                    for number in (*range(count, 0, -1), count):
                        self.browser.click(f"btn_{number}")
                        self.assert_shows(page, number)
                        self.assert_on_top(page, number)
                    self.assert_strip(page)
                    self.assert_quiet()

    def test_the_current_one_does_nothing(self):
        for count in FRAME_COUNTS[1:]:
            with self.subTest(frames=count):
                page = self.open(sample(count), BUTTONS)
                self.assert_click_changes_nothing("btn_1")
                self.assert_shows(page, 1)
                self.browser.click("btn_2")
                self.assert_click_changes_nothing("btn_2")
                self.assert_shows(page, 2)


class Arrows(ButtonsCase):
    def test_lead_to_every_button_and_back(self):
        for count in (4, 7):
            for effects in (0, 1):
                with self.subTest(frames=count, effects=effects):
                    page = self.open(sample(count), BUTTONS, {"Effects": effects})
                    last = count - 2
                    for first in range(1, last + 1):
                        self.assert_strip(page, first)
                        for number in (first, first + 1, first + 2):
                            self.browser.click(f"btn_{number}")
                            self.assert_shows(page, number)
                        self.assert_on_top(page, first + 2)
                        if first < last:
                            self.browser.click("btnRight")
                    for first in range(last - 1, 0, -1):
                        self.browser.click("btnLeft")
                        self.assert_strip(page, first)
                    self.browser.click("btn_1")
                    self.assert_shows(page, 1)
                    self.assert_quiet()

    def test_at_the_ends_do_nothing(self):
        for count in (4, 7):
            with self.subTest(frames=count):
                page = self.open(sample(count), BUTTONS)
                self.assert_click_changes_nothing("btnLeft")
                for _ in range(count - 3):
                    self.browser.click("btnRight")
                self.assert_click_changes_nothing("btnRight")
                self.assert_strip(page, count - 2)

    def test_leave_the_frame_alone(self):
        page = self.open(sample(7), BUTTONS)
        self.browser.click("btn_2")
        for arrow in ("btnRight",) * 4 + ("btnLeft",) * 4:
            self.browser.click(arrow)
            self.assert_shows(page, 2)
