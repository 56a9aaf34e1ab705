# SPDX-License-Identifier: GPL-3.0-or-later
"""The responsive page as readers use it, on every engine: with and without script, by mouse, keys and touch."""

import re
import subprocess
import tempfile
from contextlib import nullcontext
from pathlib import Path

from projects import Frame, Heading, Label, Project, Symbol
from responsive_case import ResponsiveCase, sample

COUNTS = (1, 2, 5, 40)
STATE = """
const tabs = [...document.querySelectorAll('[role=tablist] > [role=tab]')];
return {
    tabs: tabs.map(t => t.textContent), focus: tabs.indexOf(document.activeElement),
    selected: tabs.flatMap((t, i) => t.getAttribute('aria-selected') == 'true' ? [i] : []),
    panels: tabs.map(t => document.getElementById(t.getAttribute('aria-controls'))).map(p => p.getAttribute('role')),
    shown: [...document.querySelectorAll('.period')].flatMap((p, i) => p.getClientRects().length ? [i] : []),
    controls: tabs.map(t => t.getAttribute('aria-controls')), ids: [...document.querySelectorAll('.period')].map(p => p.id),
    address: decodeURIComponent(location.hash), labels: tabs.every((t, i) =>
        document.getElementById(t.getAttribute('aria-controls')).getAttribute('aria-labelledby') == t.id),
};
"""
STACK = """
const page = document.querySelector('iframe').contentDocument;
return [...page.querySelectorAll('.period')].map(p => {
    const b = p.getBoundingClientRect();
    return [b.top, b.bottom, p.textContent];
});
"""


class Journeys(ResponsiveCase):
    """Tabs by every way there is, for one period and for forty."""

    def state(self, engine):
        return engine.run(STATE)

    def assert_shows(self, engine, number, count):
        state = self.state(engine)
        self.assertEqual(state["shown"], [number])
        self.assertEqual(state["selected"], [number])
        self.assertEqual(len(state["tabs"]), count)

    def test_by_mouse_keys_and_address(self):
        for engine in self.each_engine():
            for count in COUNTS:
                with self.subTest(periods=count):
                    self.walk(engine, self.site(sample(count)), count)

    def walk(self, engine, url, count):
        engine.open(url)
        if count == 1:
            self.assertEqual(self.state(engine)["shown"], [0])
            self.assertEqual(engine.run("return document.querySelectorAll('[role=tablist], [role=tab], nav').length;"), 0)
            self.assert_quiet(engine)
            return
        state = self.state(engine)
        self.assertEqual(state["controls"], state["ids"])
        self.assertEqual(state["ids"], [f"day-{i}" for i in range(1, count + 1)])
        self.assertEqual(set(state["panels"]), {"tabpanel"})
        self.assertTrue(state["labels"])
        self.assert_shows(engine, 0, count)

        engine.click("[role=tab]:nth-child(2)")
        self.assert_shows(engine, 1, count)
        self.assertEqual(self.state(engine)["address"], "#day-2")
        engine.back()
        engine.wait("return !location.hash && document.querySelector('[role=tab]').ariaSelected == 'true'"
                    " || !location.hash && document.querySelector('[role=tab]').getAttribute('aria-selected') == 'true';")
        self.assert_shows(engine, 0, count)

        engine.run("document.querySelector('[role=tab]').focus();")
        for key, number in (("ArrowRight", 1), ("End", count - 1), ("Home", 0), ("ArrowLeft", count - 1),
                            ("ArrowRight", 0)):
            engine.press(key)
            self.assert_shows(engine, number, count)
            self.assertEqual(self.state(engine)["focus"], number, key)

        engine.click(".next")
        self.assert_shows(engine, 1, count)
        engine.click(".previous")
        self.assert_shows(engine, 0, count)
        engine.click(".previous")   # there is none: nothing happens
        self.assert_shows(engine, 0, count)
        self.assert_quiet(engine)

        engine.open(f"{url}#day-{count}")
        self.assert_shows(engine, count - 1, count)
        engine.run("location.hash = 'day-1';")
        engine.wait("return document.querySelector('[role=tab]').getAttribute('aria-selected') == 'true';")
        engine.open(f"{url}#no-such-day")
        self.assert_shows(engine, 0, count)
        self.assert_quiet(engine)

    def test_by_swipes(self):
        for engine in self.each_engine(lambda one: one.touch):
            for count in COUNTS:
                with self.subTest(periods=count):
                    engine.open(self.site(sample(count)))
                    engine.swipe(".period:not([hidden]) .map", -160)
                    if count > 1:
                        self.assert_shows(engine, 1, count)
                        engine.swipe(".period:not([hidden]) .map", 160)
                        self.assert_shows(engine, 0, count)
                        engine.swipe(".period:not([hidden]) .map", 160)
                        self.assert_shows(engine, 0, count)
                    self.assert_quiet(engine)

    def test_play_and_pause(self):
        quick = (("Timer", 1), ("Language", "en"))
        for engine in self.each_engine():
            engine.open(self.site(sample(2), settings=quick))
            engine.click(".play")
            self.assertEqual(engine.run("return document.querySelector('.play').getAttribute('aria-label');"), "Pause")
            for number in (2, 1):   # and round again
                engine.wait(f"return !document.querySelector('#day-{number}').hidden;")
            engine.click(".play")
            self.assertEqual(engine.run("return document.querySelector('.play').getAttribute('aria-label');"), "Play")
            shown = self.state(engine)["shown"]
            engine.run("window.changed = 0; new MutationObserver(() => ++window.changed)"
                       ".observe(document.querySelector('main'), {attributes: true, subtree: true});"
                       "setTimeout(() => { window.past = true; }, 1500);")
            engine.wait("return window.past;")
            self.assertEqual(engine.run("return window.changed;"), 0)
            self.assertEqual(self.state(engine)["shown"], shown)
            self.assert_quiet(engine)

    def test_starting_by_itself(self):
        itself = (("Timer", 1), ("Play button", 2))
        for engine in self.each_engine():
            engine.open(self.site(sample(2), settings=itself))
            engine.wait("return !document.querySelector('#day-2').hidden;")
            engine.prefer(reduced=True)
            try:
                engine.open(self.site(sample(2), settings=itself))
                self.assertFalse(engine.run("return document.querySelector('.play').classList.contains('on');"))
            finally:
                engine.prefer()

    def test_without_script_all_stand_below_each_other(self):
        for engine in self.each_engine():
            for count in COUNTS:
                with self.subTest(periods=count):
                    engine.open(self.site(sample(count)).replace("Forecast.htm", "frame.htm"))
                    boxes = engine.run(STACK)
                    self.assertEqual(len(boxes), count)
                    for number, (top, bottom, text) in enumerate(boxes, 1):
                        self.assertLess(top, bottom)
                        self.assertIn(f"Day {number}", text)
                        self.assertIn(f"Fog {number}", text)
                    for (_, bottom, _), (top, _, _) in zip(boxes, boxes[1:]):
                        self.assertLessEqual(bottom, top)

    def test_in_a_frame_and_from_a_file(self):
        for engine in self.each_engine():
            engine.open(self.site(sample(2)).replace("Forecast.htm", "plain.htm"))
            engine.wait("return document.querySelector('iframe').contentDocument.querySelectorAll('[role=tab]').length == 2;")
            engine.open(Path(self.folder(sample(2)), "Forecast.htm").as_uri())
            engine.click("[role=tab]:nth-child(2)")
            self.assert_shows(engine, 1, 2)
            self.assert_quiet(engine)


MAP = Project((
    Frame("Sunday", Heading("Fine"), symbols=(
        Symbol(r"set-1\sun.gif", 10, 20, link="www.example.org", tooltip="Sunny all day"),
        Symbol(r"set-1\rain.gif", 280, 200, tooltip="Heavy rain over the whole of the eastern Alps, with thunder"),
        Symbol(r"sea\wave.png", 150, 100)), labels=(Label("Rome 19°", 60, 120), Label("ירושלים", 200, 60)),
          paragraphs=(("Morning", "Fog"),)),
    Frame("Monday", Heading("Dull"), symbols=(Symbol(r"set-1\snow.gif", 10, 20, tooltip="Snow"),)),
))
PLACES = """
const map = document.querySelector('.map').getBoundingClientRect();
return [map.width, ...[...document.querySelectorAll('.period:first-child :is(.s, .t)')].map(e => {
    const b = e.getBoundingClientRect();
    return [(b.left - map.left) / map.width * 320, (b.top - map.top) / map.width * 320, b.width / map.width * 320];
})];
"""


class OnTheMap(ResponsiveCase):
    def test_places_and_proportions_at_every_width(self):
        for engine in self.once():
            for width in (280, 360, 768, 1440):
                engine.size(width, 900)
                engine.open(self.site(MAP))
                whole, *found = engine.run(PLACES)
                self.assertLessEqual(whole, 320)
                self.assertGreaterEqual(whole, min(320, width - 40))
                for (left, top, size), place in zip(found, ((10, 20, 32), (280, 200, 32), (150, 100, 32), (60, 120, 60),
                                                            (200, 60, 60))):
                    self.assertAlmostEqual(left, place[0], delta=0.5)
                    self.assertAlmostEqual(top, place[1], delta=0.5)
                    self.assertAlmostEqual(size, place[2], delta=1)
                self.assertLessEqual(engine.run("return document.documentElement.scrollWidth;"), width)
            engine.size(1200, 1000)

    def test_links_are_large_enough_for_fingers(self):
        for engine in self.once():
            engine.size(280, 600, mobile=True)
            engine.open(self.site(MAP))
            box = engine.run("const b = document.querySelector('.s a').getBoundingClientRect(); return [b.width, b.height];")
            self.assertGreaterEqual(min(box), 44)
            engine.size(1200, 1000)

    def tip(self, engine, number):
        return engine.run("""const t = document.querySelectorAll('.tip')[arguments[0]], b = t.getBoundingClientRect();
            return getComputedStyle(t).visibility == 'visible' && b.left >= 0 && b.right <= innerWidth;""", number)

    def test_tooltips(self):
        for engine in self.each_engine():
            engine.open(self.site(MAP))
            self.assertFalse(self.tip(engine, 0) or self.tip(engine, 1))
            engine.hover(".s2 img")
            self.assertTrue(self.tip(engine, 1))
            engine.press("Escape")
            self.assertFalse(self.tip(engine, 1))
            engine.hover("h1")
            engine.run("document.querySelector('.s1 a').focus();")
            self.assertTrue(self.tip(engine, 0))
            if engine.touch:
                engine.tap(".s2 img")
                self.assertTrue(self.tip(engine, 1))
                self.assertFalse(self.tip(engine, 0))
            self.assert_quiet(engine)

    def test_texts_have_their_direction(self):
        for engine in self.each_engine():
            engine.open(self.site(MAP))
            self.assertEqual(engine.run("return [...document.querySelectorAll('.t')].map(t => getComputedStyle(t).direction);"),
                             ["ltr", "rtl"])


HOSTILE = "</script><img src=x onerror=document.title='taken'>\"'&\x01\x85"
TAKEN = Project((Frame(HOSTILE.replace("\x01", ""), Heading(HOSTILE.replace("\x01", "")), Heading("a", size=14), symbols=(
    Symbol(r"set-1\sun.gif", 10, 20, link="javascript:alert(1)", tooltip=HOSTILE.replace("\x01", "")),),
    labels=(Label(HOSTILE.replace("\x01", ""), 60, 120),), paragraphs=((HOSTILE.replace("\x01", ""), "b"),)),
    Frame("Second")))


class Loading(ResponsiveCase):
    def asked(self, engine, url):
        self.server.requests.clear()
        engine.open(url)
        engine.wait("return [...document.images].filter(i => i.loading != 'lazy').every(i => i.complete);")
        return {path.rpartition("/")[2] for path, _ in self.server.requests if path.endswith((".gif", ".png", ".jpg", ".webp"))}

    def test_nothing_that_is_not_shown_and_all_that_is(self):
        for engine in self.each_engine():
            asked = self.asked(engine, self.site(MAP))
            self.assertTrue({"Forecast1.webp", "Forecast-symbol-set-1-sun.gif"} <= asked, asked)
            self.assertFalse({name for name in asked if "snow" in name or "Forecast2" in name or name.endswith(".jpg")}, asked)
            self.assertEqual({code for _, code in self.server.requests} - {200}, set())
            engine.click("[role=tab]:nth-child(2)")
            engine.wait("return [...document.querySelectorAll('#monday img')].every(i => i.complete && i.naturalWidth);")

    def test_still_pictures_for_readers_who_ask_for_less_motion(self):
        for engine in self.each_engine():
            with engine.still_reader() as reader:
                for reading, tabs in ((nullcontext, 2), (reader.without_script, 0)):
                    with reading():
                        asked = self.asked(reader, self.site(MAP))
                        self.assertEqual(reader.run("return document.querySelectorAll('[role=tab]').length;"), tabs)
                    self.assertIn("Forecast-symbol-set-1-sun-still.png", asked)
                    self.assertFalse({name for name in asked if name.endswith(".gif")})

    def test_hostile_texts_are_texts(self):
        for engine in self.each_engine():
            engine.open(self.site(TAKEN))
            self.assertEqual(engine.run("return document.title;"), "Forecast")
            self.assertEqual(engine.run("return document.querySelectorAll('img[src=x], a[href^=java]').length;"), 0)
            self.assertIn("<img src=x", engine.run("return document.querySelector('h3').textContent;"))
            self.assert_quiet(engine)


INKS = """
const seen = [];
const rgb = text => text.match(/[\\d.]+/g).map(Number);
const lum = c => c.slice(0, 3).map(v => (v /= 255) <= 0.04045 ? v / 12.92 : ((v + 0.055) / 1.055) ** 2.4)
    .reduce((sum, v, i) => sum + v * [0.2126, 0.7152, 0.0722][i], 0);
for (const e of document.querySelectorAll('h1, .tabs a, h3, h4, .text p, footer p')) {
    if (!e.getClientRects().length) continue;
    let behind = e;
    while (behind && (rgb(getComputedStyle(behind).backgroundColor)[3] ?? 1) == 0) behind = behind.parentElement;
    const [a, b] = [lum(rgb(getComputedStyle(e).color)), lum(rgb(getComputedStyle(behind).backgroundColor))];
    seen.push([e.textContent, (Math.max(a, b) + 0.05) / (Math.min(a, b) + 0.05)]);
}
return seen;
"""
COLOURFUL = Project((Frame(
    "Day", Heading("Navy", colour=(8650752, "")), Heading("Yellow", size=14, colour=(65535, "")),
    paragraphs=(("Head", "Body"),), back_colour=(16776183, ""), border=1),
    Frame("Night", Heading("Red on blue", colour=(255, ""), back_colour=(16711680, "")))))


class Looks(ResponsiveCase):
    def test_every_text_can_be_read_in_both_schemes(self):
        for engine in self.each_engine():
            grounds = []
            try:
                for dark in (False, True):
                    engine.prefer(dark=dark)
                    for address in ("", "#night"):
                        engine.open(self.site(COLOURFUL) + address)
                        for text, contrast in engine.run(INKS):
                            self.assertGreaterEqual(contrast, 4.5, f"{text}, dark: {dark}")
                    grounds.append(engine.run("return getComputedStyle(document.documentElement).backgroundColor;"))
            finally:
                engine.prefer()
            self.assertNotEqual(*grounds)

    def test_text_beside_the_map_where_there_is_room(self):
        for engine in self.once():
            for width, beside in ((1440, True), (360, False)):
                engine.size(width, 900)
                engine.open(self.site(MAP))
                seen = engine.run("""const map = document.querySelector('.map').getBoundingClientRect();
                    return ['h3', 'h4', '.box p'].map(s => document.querySelector(s)).map(e => {
                        const b = e.getBoundingClientRect();
                        return [b.left >= map.right, b.top >= map.bottom, parseFloat(getComputedStyle(e).fontSize)]; });""")
                for at_side, below, size in seen:
                    self.assertTrue(at_side if beside else below)
                    self.assertGreaterEqual(size, 10 if beside else 16)
            engine.size(1200, 1000)

    def test_each_period_prints_on_a_page_of_its_own(self):
        for engine in self.each_engine(lambda one: one.prints):
            for count in (1, 2, 5, 40):
                if engine.name == "Firefox" and count == 40:
                    continue    # takes half a minute there
                with self.subTest(periods=count), tempfile.TemporaryDirectory() as scratch:
                    engine.open(self.site(sample(count)))
                    file = Path(scratch, "page.pdf")
                    file.write_bytes(engine.pdf())
                    tell = lambda *words: subprocess.run(words, capture_output=True, text=True, check=True).stdout
                    self.assertEqual(int(re.search(r"Pages:\s+(\d+)", tell("pdfinfo", file))[1]), count)
                    texts = tell("pdftotext", "-layout", file, "-").split("\f")
                    for number in range(1, count + 1):
                        for word in (f"Day {number}",) if count > 1 else ():
                            self.assertIn(word, texts[number - 1])
                        self.assertIn(f"Rain {number}", texts[number - 1])
                    pictures = tell("pdfimages", "-list", file).splitlines()[2:]
                    pages = {int(line.split()[0]) for line in pictures if int(line.split()[3]) >= 320}
                    self.assertEqual(pages, set(range(1, count + 1)), "a map is missing")
