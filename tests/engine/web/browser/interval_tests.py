# SPDX-License-Identifier: GPL-3.0-or-later
"""The page that moves on by itself."""

import time

from page_case import FRAME_COUNTS, FRAME_ELEMENT, SAMPLES, PageCase
from program import INTERVAL
from projects import sample


class Loading(PageCase):
    def test_shows_the_first_frame_in_its_place(self):
        for chosen in SAMPLES:
            with self.subTest(chosen):
                page = self.open(chosen.project, INTERVAL, chosen.html)
                self.assert_quiet()
                self.assert_shows(page, 1)
                self.assert_on_top(page, 1)
                self.assert_laid_out(page)


class Cycle(PageCase):
    SECOND = 1000

    def test_goes_round_and_begins_again(self):
        for count in FRAME_COUNTS[1:]:
            with self.subTest(frames=count):
                page = self.program.page(sample(count), INTERVAL, {"Timer": 1, "Effects": count % 2})
                self.browser.open_recorded(page.url)
                loaded, states = self.wait_for_states(count + 1)
                self.assertLess(states[0][0] - loaded, self.SECOND / 2, "the first Frame does not show at once")
                for step, (moment, visible) in enumerate(states):
                    number = step % count + 1
                    self.assertEqual({name for name in visible if FRAME_ELEMENT.match(name)},
                                     page.elements_of(number), f"step {step}")
                    # A busy machine is late now and then; no page is ever early.
                    self.assertGreater(moment - states[0][0], step * self.SECOND - 100, f"step {step} comes too early")
                self.assert_quiet()

    def test_one_frame_stays(self):
        page = self.open(sample(1), INTERVAL, {"Timer": 1})
        self.browser.count_changes()
        time.sleep(1.3)
        self.assertEqual(self.browser.changes(), 0)
        self.assert_shows(page, 1)

    def wait_for_states(self, count):
        give_up = time.monotonic() + count + 10
        while time.monotonic() < give_up:
            loaded, states = self.browser.states()
            if len(states) >= count:
                return loaded, states[:count]
            time.sleep(0.05)
        self.fail(f"only {len(states)} of {count} changes came")
