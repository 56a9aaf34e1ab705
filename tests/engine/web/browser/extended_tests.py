# SPDX-License-Identifier: GPL-3.0-or-later
"""The page that shows all Frames, one under another."""

import layout
from page_case import SAMPLES, PageCase
from program import EXTENDED


class Loading(PageCase):
    def test_shows_every_frame_in_its_place(self):
        for chosen in SAMPLES:
            with self.subTest(chosen):
                page = self.open(chosen.project, EXTENDED, chosen.html)
                self.assert_quiet()
                self.assert_shows(page, *range(1, page.frame_count + 1))
                self.assert_on_top(page, 1)
                self.assert_laid_out(page)
                self.assert_blocks_apart(page)

    def assert_blocks_apart(self, page):
        """Each Frame ends before the next one begins, and the page can be scrolled to the end of the last."""
        seen = self.browser.elements()
        blocks = []
        for number in range(1, page.frame_count + 1):
            parts = [seen[name] for name in page.elements_of(number)]
            blocks.append((min(part.top for part in parts), max(part.top + part.height for part in parts)))
        for (_, end), (start, _) in zip(blocks, blocks[1:]):
            self.assertLess(end, start)
        scrollable = self.browser.run("return document.scrollingElement.scrollHeight;")
        self.assertGreaterEqual(scrollable, blocks[-1][1])
        self.assertAlmostEqual(blocks[-1][1], layout.top(page) + (page.frame_count - 1) * layout.stride(page)
                               + layout.outer(page.project.height), delta=0.1)
