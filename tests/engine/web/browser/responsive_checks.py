# SPDX-License-Identifier: GPL-3.0-or-later
"""What checkers and scales say of the responsive page: accessibility, validity, weight."""

import gzip
import json
import os
import subprocess
import tempfile
from pathlib import Path

try:
    import jsonschema
except ImportError:
    jsonschema = None

from browser import CHROMIUM
from projects import Frame, Heading, Project, Symbol
from responsive_case import ResponsiveCase, sample
from responsive_tests import COLOURFUL, MAP, TAKEN

HERE = Path(__file__).resolve().parent
AXE = HERE / "node_modules/axe-core/axe.min.js"
LIGHTHOUSE = HERE / "node_modules/.bin/lighthouse"
CHECKER = HERE / "node_modules/vnu-jar/build/dist/vnu.jar"
JAVA = "/usr/bin/java"
SOURCES = HERE.parents[3]
LOOKS = HERE / "looks"
CONVERT, COMPARE = "/usr/bin/convert", "/usr/bin/compare"
TOLERANCE = 0.08    # of the way from black to white, root mean square

required = False

# Twenty symbols with a tooltip on each of five periods, no labels.
WORDS = ("Sunny", "Heavy rain", "Snow above 900 m", "Waves of 2 m")
FULL = Project(tuple(
    Frame(f"Day {day}", Heading(f"Forecast for day {day}"), symbols=tuple(
        Symbol(r"set-1\sun.gif" if i % 2 else r"set-1\rain.gif", 13 * i % 280, 37 * (i + day) % 200,
               tooltip=f"{WORDS[(i + day) % 4]} at place {i}, {3 * i + day} degrees") for i in range(20)))
    for day in range(1, 6)))


class Checks(ResponsiveCase):
    def need(self, *files):
        for file in files:
            if not os.path.exists(file):
                if required:
                    self.fail(f"{file} is missing")
                self.skipTest(f"{file} is missing")

    def assert_no_violation(self, engine, state):
        engine.run(AXE.read_text())
        found = engine.run_async("axe.run().then(arguments[arguments.length - 1]);")
        self.assertEqual([(rule["id"], [node["html"][:120] for node in rule["nodes"]]) for rule in found["violations"]],
                         [], state)

    def test_no_violation_of_accessibility_in_any_state(self):
        if self.once():
            self.need(AXE)
        for engine in self.once():
            try:
                for project, addresses in ((MAP, ("", "#monday")), (COLOURFUL, ("", "#night")), (sample(1), ("",)),
                                           (sample(40), ("#day-40",)), (TAKEN, ("",))):
                    for dark, width in ((False, 1440), (True, 360)):
                        engine.size(width, 900, mobile=width < 500)
                        engine.prefer(dark=dark)
                        for address in addresses:
                            engine.open(self.site(project) + address)
                            self.assert_no_violation(engine, (address, dark, width))
                engine.open(self.site(MAP))
                engine.hover(".s2 img")
                self.assert_no_violation(engine, "a tooltip is open")
                engine.click(".play")
                self.assert_no_violation(engine, "playing")
            finally:
                engine.prefer()
                engine.size(1200, 1000)

    def test_valid_html(self):
        if not self.once():
            return
        self.need(JAVA, CHECKER)
        pages = [self.folder(project) / "Forecast.htm" for project in (sample(1), sample(5), MAP, COLOURFUL, TAKEN)]
        pages += [self.folder(MAP, settings=(("Language", "he"), ("Play button", 2), ("Title", "<b>\"&'"),
                                             ("Address", "https://example.org/a b"))) / "Forecast.htm"]
        done = subprocess.run([JAVA, "-Xmx512m", "-jar", CHECKER, "--errors-only", *pages], capture_output=True,
                              text=True, check=False)
        self.assertEqual(done.stderr, "")
        self.assertEqual(done.returncode, 0)

    def test_lighthouse_finds_nothing_to_mend(self):
        """What it says of speed depends on what else the machine does; bench/page_quality.py has the figures."""
        if not self.once():
            return
        self.need(LIGHTHOUSE)
        url = self.site(SOURCES / "examples/europe.nvpf", program_folder=self.maker.content)
        with tempfile.TemporaryDirectory(prefix="nubivane-lighthouse-", ignore_cleanup_errors=True) as home:
            done = subprocess.run(
                [LIGHTHOUSE, url, "--quiet", "--output=json", "--output-path=stdout", "--form-factor=mobile",
                 "--only-categories=accessibility,best-practices,seo",
                 "--chrome-flags=--headless=new --no-sandbox --disable-gpu"],
                env=os.environ | {"CHROME_PATH": CHROMIUM, "HOME": home}, capture_output=True, text=True, timeout=180,
                check=False)
        self.assertEqual(done.returncode, 0, done.stderr)
        found = json.loads(done.stdout)
        weak = [(name, audit["title"]) for name, audit in found["audits"].items() if audit["score"] not in (None, 1)]
        self.assertEqual({name: part["score"] for name, part in found["categories"].items()},
                         {"accessibility": 1, "best-practices": 1, "seo": 1}, weak)

    def test_the_json_is_what_its_schema_says(self):
        if not self.once():
            return
        if not jsonschema:
            self.need("python3-jsonschema")
        schema = json.loads((SOURCES / "docs/forecast.schema.json").read_text())
        for project in (sample(1), sample(5), MAP, COLOURFUL, TAKEN, FULL):
            found = json.loads((self.folder(project) / "Forecast.json").read_text(encoding="utf-8"))
            jsonschema.Draft202012Validator(schema).validate(found)
            self.assertEqual([period["name"] for period in found["periods"]],
                             [" ".join(frame.caption.replace("\x85", "").split()) for frame in project.frames])

    def test_it_looks_as_it_did(self):
        """Small pictures, since fonts differ by pixels from machine to machine: what they are for is a page that has lost
        its style, its map or its place for the text."""
        self.need(COMPARE)
        for engine in self.once():
            url = self.site(SOURCES / "examples/europe.nvpf", program_folder=self.maker.content)
            try:
                for width, height in ((360, 740), (768, 1024), (1440, 900)):
                    for scheme in ("light", "dark"):
                        engine.size(width, height)
                        engine.prefer(dark=scheme == "dark", reduced=True)
                        engine.open(url)
                        self.assert_looks_like(engine.picture(), LOOKS / f"{width}-{scheme}.png")
            finally:
                engine.prefer()
                engine.size(1200, 1000)

    def assert_looks_like(self, picture, kept):
        small = subprocess.run([CONVERT, "png:-", "-resize", "20%", "-colors", "128", "png8:-"], input=picture,
                               capture_output=True, check=True).stdout
        if os.environ.get("NUBIVANE_KEEP_LOOKS"):
            kept.parent.mkdir(exist_ok=True)
            kept.write_bytes(small)
        found = subprocess.run([COMPARE, "-metric", "RMSE", kept, "png:-", "null:"], input=small,
                               capture_output=True, check=False)
        share = float(found.stderr.decode().partition("(")[2].partition(")")[0])
        self.assertLess(share, TOLERANCE, kept.name)

    def test_files_of_a_full_page_are_small(self):
        if not self.once():
            return
        folder = self.folder(FULL)
        weight = sum(len(gzip.compress((folder / f"Forecast.{ending}").read_bytes(), 9))
                     for ending in ("htm", "css", "js"))
        self.assertLessEqual(weight, 20_000)

    def test_first_view_weighs_less_than_that_of_the_buttons_page(self):
        """Of a page of five periods and of the same with one."""
        for engine in self.once():
            project = SOURCES / "examples/europe.nvpf"
            weights = {}
            for page_type in (1, 5):
                url = self.site(project, page_type=page_type, program_folder=self.maker.content)
                folder = self.folder(project, page_type=page_type, program_folder=self.maker.content)
                self.server.requests.clear()
                engine.open(url)
                engine.wait("return [...document.images].filter(i => i.loading != 'lazy').every(i => i.complete);")
                names = {path.rpartition("/")[0].partition("/")[2].partition("/")[2] + "/" + path.rpartition("/")[2]
                         for path, code in self.server.requests if code == 200}
                weights[page_type] = sum((folder / name.lstrip("/")).stat().st_size for name in names)
            self.assertLessEqual(weights[5], 0.75 * weights[1], weights)

    def test_a_style_of_ones_own_is_linked_where_it_stands(self):
        for engine in self.each_engine():
            engine.open(self.site(MAP))
            self.assertEqual(engine.run("return document.querySelectorAll('link[href*=custom]').length;"), 0)
            folder = self.folder(COLOURFUL)
            own = folder / "Forecast-custom.css"
            if not own.exists():
                own.write_text(":root { --radius: 31px; }\n")
                self.maker._sites.clear()
                subprocess.run([self.maker._cli, "--program-folder", self.maker._fixtures, "--settings",
                                folder / "settings.ini", "page", COLOURFUL.write(folder), "--type", "5", "--into",
                                folder], check=True, capture_output=True)
            self.assertEqual(own.read_text(), ":root { --radius: 31px; }\n")
            engine.open(self.server.url(f"{folder.name}/Forecast.htm"))
            self.assertEqual(engine.run("return getComputedStyle(document.querySelector('.period')).borderTopLeftRadius;"),
                             "31px")
