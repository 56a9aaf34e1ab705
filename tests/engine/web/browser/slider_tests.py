# SPDX-License-Identifier: GPL-3.0-or-later
"""The page with a cursor that is dragged along a track."""

import layout
from page_case import FRAME_COUNTS, FRAME_ELEMENT, SAMPLES, PageCase
from program import SLIDER
from projects import RED, sample

CURSOR_WIDTH = 12
TICKS = """
return [...document.querySelectorAll('div:not([id])')].map(e => {
    const box = e.getBoundingClientRect();
    return [getComputedStyle(e).visibility, box.left, box.top, box.width, box.height];
});
"""


class SliderCase(PageCase):
    def tick_distance(self, page):
        return round(page.project.width / (page.frame_count - 1))

    def right_end(self, page):
        """The cursor's last place: the track's inner width reaches two pixels beyond the map."""
        return layout.LEFT + page.project.width + 2 - CURSOR_WIDTH

    def snapped(self, page, number):
        if number == page.frame_count:
            return self.right_end(page)
        return layout.LEFT + (number - 1) * self.tick_distance(page)

    def cursor(self):
        return self.browser.elements()["cursor"].left

    def drag_to(self, page, number, beside=0.0):
        """Drags the cursor to a Frame's tick, or beside it by a share of the distance between two ticks."""
        target = layout.LEFT + (number - 1 + beside) * self.tick_distance(page)
        with self.browser.drag("cursor") as hand:
            hand.by(min(target, self.right_end(page)) - self.cursor())

    def assert_no_unexpected_errors(self):
        """The label's fade asks for filters that this browser does not have; the script stops there."""
        for message in self.browser.log():
            self.assertIn("blendTrans", message)


class Loading(SliderCase):
    def test_everything_is_hidden_in_its_place(self):
        # The cursor stands at the first tick, but no Frame is chosen before it has been dragged.
        for chosen in SAMPLES:
            with self.subTest(chosen):
                page = self.open(chosen.project, SLIDER, chosen.html)
                self.assert_quiet()
                self.assert_shows(page)
                self.assert_laid_out(page)
                if chosen.frames == 1:
                    self.assertEqual({name for name, element in self.browser.elements().items() if element.visible},
                                     set())
                    self.assertEqual(self.browser.run(TICKS), [])
                else:
                    self.assert_slider_laid_out(page)

    def assert_slider_laid_out(self, page):
        seen = self.browser.elements()
        below = layout.top(page) + page.project.height
        self.assertTrue(seen["tracker"].visible)
        self.assert_box(seen, "tracker", layout.Box(layout.LEFT, below + 12, page.project.width + 4, 7))
        self.assertTrue(seen["cursor"].visible)
        self.assertTrue(seen["cursor"].on_top)
        self.assert_box(seen, "cursor", layout.Box(layout.LEFT, below + 5, CURSOR_WIDTH + 2, 18))
        longest = max(len(frame.caption) for frame in page.project.frames)
        self.assertFalse(seen["lblTick"].visible)
        self.assert_box(seen, "lblTick", layout.Box(layout.LEFT, below + 30, 9 * longest + 2, 20))
        step = round((page.project.width - 2) / (page.frame_count - 1))
        self.assertEqual(self.browser.run(TICKS), [
            ["visible", layout.LEFT + i * step, below + 12, 6, 8] for i in range(page.frame_count)])

    def test_without_ticks_and_label(self):
        page = self.open(sample(3), SLIDER, slider={"Tick": 0, "Tooltip": 0, "Color": RED[0]})
        self.assert_quiet()
        self.assertEqual(self.browser.run(TICKS), [])
        self.assertNotIn("lblTick", self.browser.elements())
        self.assertEqual(self.browser.run("return getComputedStyle(cursor).backgroundColor;"), RED[1])
        self.drag_to(page, 3)
        self.assert_shows(page, 3)
        self.assertEqual(self.cursor(), self.right_end(page))
        self.assert_quiet()


class Dragging(SliderCase):
    def test_to_each_tick_shows_its_frame(self):
        for count, effects in ((2, 0), (3, 0), (3, 1), (4, 1), (7, 0)):
            with self.subTest(frames=count, effects=effects):
                page = self.open(sample(count), SLIDER, {"Effects": effects})
                for number in (*range(2, count + 1), 1):
                    self.drag_to(page, number)
                    self.assert_shows(page, number)
                    self.assert_on_top(page, number)
                    self.assertEqual(self.cursor(), self.snapped(page, number))
                self.assert_no_unexpected_errors()

    def test_beside_a_tick_snaps_to_it(self):
        page = self.open(sample(4), SLIDER)
        for number, beside in ((2, 0.4), (2, -0.4), (3, 0.3), (4, -0.4), (1, 0.4), (3, -0.4)):
            with self.subTest(frame=number, beside=beside):
                self.drag_to(page, number, beside)
                self.assert_shows(page, number)
                self.assertEqual(self.cursor(), self.snapped(page, number))

    def test_the_cursor_follows_the_hand_and_the_frame_waits(self):
        page = self.open(sample(3), SLIDER)
        self.drag_to(page, 2)
        start = self.cursor()
        with self.browser.drag("cursor") as hand:
            for distance in (31, 60, -25):
                hand.by(distance)
                start += distance
                self.assertEqual(self.cursor(), start)
                self.assert_shows(page, 2)
        self.assert_shows(page, 2)
        self.assertEqual(self.cursor(), self.snapped(page, 2))

    def test_beyond_the_ends_stops_at_them(self):
        for count in FRAME_COUNTS[1:]:
            with self.subTest(frames=count):
                page = self.open(sample(count), SLIDER)
                # Not into the margin to the left of the page's body, where it does not hear the mouse.
                for x, end, number in ((400, self.right_end(page), count), (10, layout.LEFT, 1)):
                    with self.browser.drag("cursor") as hand:
                        hand.to(x)
                        self.assertEqual(self.cursor(), end)
                    self.assertEqual(self.cursor(), end)
                    self.assert_shows(page, number)
                self.assert_no_unexpected_errors()

    def test_nothing_follows_after_the_release(self):
        page = self.open(sample(3), SLIDER)
        with self.browser.drag("cursor") as hand:
            hand.by(self.tick_distance(page))
        hand.by(80)
        self.assertEqual(self.cursor(), self.snapped(page, 2))
        self.assert_shows(page, 2)

    def test_the_label_is_never_seen(self):
        # Its text is set, but the script stops at the missing filters before the label would show.
        page = self.open(sample(3), SLIDER)
        for number in (2, 3, 1):
            with self.browser.drag("cursor") as hand:
                hand.by(layout.LEFT + (number - 1) * self.tick_distance(page) - self.cursor() - (number == 3) * 15)
                label = self.browser.elements()["lblTick"]
                self.assertFalse(label.visible)
                self.assertEqual(label.text, page.project.frames[number - 1].caption)
            self.assertFalse(self.browser.elements()["lblTick"].visible)
        self.assertTrue(self.browser.log())


class FirstGrip(SliderCase):
    """The script counts from the second tick, where the cursor does not stand yet, until a tick has been passed."""

    def test_a_click_without_a_movement_shows_the_second_frame(self):
        page = self.open(sample(4), SLIDER)
        self.browser.click("cursor")
        self.assert_shows(page, 2)
        self.assertEqual(self.cursor(), self.snapped(page, 2))

    def test_a_pull_to_the_left_shows_the_second_frame(self):
        page = self.open(sample(4), SLIDER)
        with self.browser.drag("cursor") as hand:
            hand.by(-15)
        self.assert_shows(page, 2)
        self.assertEqual(self.cursor(), layout.LEFT)

    def test_a_leap_beyond_the_right_end_shows_the_second_frame(self):
        page = self.open(sample(4), SLIDER)
        with self.browser.drag("cursor") as hand:
            hand.leap(500)
        self.assert_shows(page, 2)
        self.assertEqual(self.cursor(), self.right_end(page))

    def test_a_short_pull_to_the_right_chooses_no_frame(self):
        # The first Frame counts as shown already.
        page = self.open(sample(4), SLIDER)
        with self.browser.drag("cursor") as hand:
            hand.by(10)
        self.assert_shows(page)
        self.assertEqual(self.visible(FRAME_ELEMENT), set())
        self.assertEqual(self.cursor(), layout.LEFT)
