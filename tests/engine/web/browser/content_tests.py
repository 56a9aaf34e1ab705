# SPDX-License-Identifier: GPL-3.0-or-later
"""What stands on a page, whatever its type: texts, styles, links, and how it is served."""

import threading
from functools import partial
from http.server import SimpleHTTPRequestHandler, ThreadingHTTPServer

from page_case import FRAME_ELEMENT, PageCase
from program import BUTTONS, EXTENDED, INTERVAL, SLIDER
from projects import BLUE, RED, YELLOW, Frame, Heading, Label, Project, Symbol, sample

ALL_TYPES = (BUTTONS, EXTENDED, INTERVAL, SLIDER)


class Symbols(PageCase):
    PROJECT = Project((Frame("Today", symbols=(
        Symbol(r"set-1\sun.gif", 10, 20, link="www.example.org/paris?a=1", tooltip="Sunny, 20%"),
        Symbol(r"set-1\rain.gif", 60, 20, link="www.example.org/rome"),
        Symbol(r"set-1\snow.gif", 110, 20, tooltip="Snow"),
        Symbol(r"sea\wave.png", 160, 20),
    )),))
    FOUND = """
    return [...document.querySelectorAll('img[id^=sprite_]')].map(e => {
        const link = e.closest('a');
        return [e.id, e.getAttribute('src'), e.getAttribute('alt'),
                link && link.getAttribute('href'), link && link.target, link && link.children.length];
    });
    """

    def test_have_their_links_and_tooltips(self):
        for page_type in ALL_TYPES:
            with self.subTest(type=page_type):
                page = self.open(self.PROJECT, page_type)
                self.assertEqual(self.browser.run(self.FOUND), [
                    ["sprite_1", "Symbols/set-1/sun.gif", "Sunny, 20%",
                     "http://www.example.org/paris?a=1", "_blank", 1],
                    ["sprite_2", "Symbols/set-1/rain.gif", None, "http://www.example.org/rome", "_blank", 1],
                    ["sprite_3", "Symbols/set-1/snow.gif", "Snow", None, None, None],
                    ["sprite_4", "Symbols/sea/wave.png", None, None, None, None],
                ])
                self.assert_laid_out(page)
                self.assert_quiet()


class Texts(PageCase):
    def test_hidden_by_the_setting(self):
        for page_type in ALL_TYPES:
            for count in (1, 3):
                with self.subTest(type=page_type, frames=count):
                    page = self.open(sample(count), page_type, {"Show forecast text": 0})
                    self.assertFalse([name for name in self.browser.elements() if name.startswith("textForecast")])
                    shown = {EXTENDED: range(1, count + 1), SLIDER: ()}.get(page_type, (1,))
                    self.assert_shows(page, *shown)
                    if page_type == BUTTONS and count > 1:
                        self.browser.click("btn_3")
                        self.assert_shows(page, 3)
                    self.assert_quiet()

    def test_stand_where_they_belong(self):
        page = self.open(sample(4), EXTENDED)
        seen = self.browser.elements()
        for number, frame in enumerate(page.project.frames, 1):
            self.assertEqual(seen[f"title_{number}"].text, frame.title.text)
            self.assertEqual(seen[f"subtitle_{number}"].text, frame.subtitle.text)
            self.assertEqual(seen[f"textForecast_{number}"].text.split(), [
                word for paragraph in frame.paragraphs for text in paragraph for word in text.split()])
            for i, label in enumerate(frame.labels, page.project.first_sprite(number) + len(frame.symbols)):
                self.assertEqual(seen[f"sprite_{i}"].text, label.text)


class Characters(PageCase):
    """The files know only the 8-bit characters of the Western European code page, a reader shall see them all."""

    # Everyday texts of that code page, as few and as many special letters as there are. The page names no
    # code page, so the browser guesses it from them.
    WESTERN = (
        "Températures entre 12° et 17°, soleil à Orléans", "Nebel über Österreich, Böen bis 90 km/h, süßer März",
        "Mañana lluvia en Cádiz, ¿nieve en León?", "Città nuvolose, però più caldo", "São Paulo: previsão de chuvas",
        "Åska i Malmö, kallt på Öland", "Snø på Røros, tåke på Ærø", "Þoka á Ísafirði, frost í Reykjavík",
        "“Storm” – 5 € …", "Rome 19°",
    )
    BEYOND = ("Łódź Ω", "Москва −14°", "日本 ☀ 😀", "שלום", "ﬂ ←→")

    def project(self, text):
        return Project((
            Frame(text, Heading(text), Heading(text, size=14), ((text, text),),
                  (Symbol(r"set-1\sun.gif", 10, 20, tooltip=text),), (Label(text, 60, 60, 200),)),
            Frame(f"2 {text}"),
        ))

    def test_appear_as_themselves(self):
        for text in self.WESTERN + self.BEYOND:
            with self.subTest(text):
                self.open(self.project(text), BUTTONS, {"Title": text})
                self.assert_texts(text)
                self.assertEqual([self.browser.elements()[f"btn_{i}"].text for i in (1, 2)], [text, f"2 {text}"])

    def test_appear_as_themselves_in_other_types(self):
        for page_type in (EXTENDED, INTERVAL):
            for text in (self.WESTERN[0], self.BEYOND[2]):
                with self.subTest(text, type=page_type):
                    self.open(self.project(text), page_type, {"Title": text})
                    self.assert_texts(text)

    def assert_texts(self, text):
        seen = self.browser.elements()
        for name in ("title_1", "subtitle_1", "sprite_2"):
            self.assertEqual(seen[name].text, text)
        self.assertEqual(seen["textForecast_1"].text.split(), text.split() * 2)
        self.assertEqual(self.browser.run("return sprite_1.alt;"), text)
        self.assertTrue(self.browser.run("return document.title;").startswith(f"{text} - "))

    def test_appear_as_themselves_in_the_script(self):
        for text in self.WESTERN + self.BEYOND:
            with self.subTest(text):
                self.open(self.project(text), SLIDER)
                self.assertEqual(self.browser.run("return labelTick;"), [text, f"2 {text}"])


class Styles(PageCase):
    def style(self, selector, *properties):
        return [self.browser.run(f"return getComputedStyle(document.querySelector('{selector}')).{name};")
                for name in properties]

    def test_of_headings(self):
        page = self.open(Project((
            Frame("1", Heading("Left", 0, 18, RED, YELLOW, True, True, True, True, True), Heading("Right", 1, 9)),
            Frame("2", Heading("Centre", 2)),
        )), EXTENDED)
        self.assertEqual(
            self.style("#title_1", "textAlign", "color", "backgroundColor", "fontWeight", "fontStyle", "fontSize"),
            ["left", RED[1], YELLOW[1], "700", "italic", "24px"])
        # A semicolon follows each decoration, so a browser takes the first alone.
        self.assertEqual(self.style("#title_1", "textDecorationLine"), ["underline"])
        self.assertEqual(
            self.style("#subtitle_1", "textAlign", "backgroundColor", "fontWeight", "fontStyle", "fontSize"),
            ["right", "rgba(0, 0, 0, 0)", "400", "normal", "12px"])
        self.assertEqual(self.style("#title_2", "textAlign"), ["center"])
        self.assert_laid_out(page)

    def test_of_labels(self):
        page = self.open(Project((Frame("1", labels=(
            Label("Plain", 10, 10),
            Label("Rich", 10, 40, 90, 25, BLUE, YELLOW, True, RED, 12, True, True),
        )),)), BUTTONS)
        self.assertEqual(self.style("#sprite_1", "color", "backgroundColor", "borderTopStyle", "fontWeight"),
                         ["rgb(0, 0, 0)", "rgba(0, 0, 0, 0)", "none", "400"])
        self.assertEqual(
            self.style("#sprite_2", "color", "backgroundColor", "borderTopStyle", "borderLeftColor",
                       "borderRightWidth", "fontWeight", "fontStyle", "fontSize"),
            [BLUE[1], YELLOW[1], "solid", RED[1], "1px", "700", "italic", "16px"])
        self.assert_laid_out(page)

    def test_of_the_text_box(self):
        borders = {1: "solid", 2: "double", 3: "groove", 4: "ridge", 5: "inset", 6: "outset"}
        page = self.open(Project(tuple(
            Frame(str(border), paragraphs=(("Head", "Body"),), back_colour=YELLOW, border=border, border_colour=RED)
            for border in borders)), EXTENDED)
        for number, border in borders.items():
            self.assertEqual(
                self.style(f"#textForecast_{number}", "borderTopStyle", "borderTopWidth", "borderTopColor",
                           "backgroundColor", "textAlign", "overflowY"),
                [border, "1px", RED[1], YELLOW[1], "justify", "auto"])
        self.assertEqual(self.style("#textForecast_1 font", "fontWeight", "fontSize"), ["700", "13.3333px"])
        self.assert_laid_out(page)

    def test_of_the_page(self):
        self.open(sample(1), BUTTONS)
        self.assertEqual(self.style("body", "backgroundColor"), ["rgb(255, 255, 255)"])
        self.open(sample(1), BUTTONS, {"Backcolor": YELLOW[0]})
        self.assertEqual(self.style("body", "backgroundColor"), [YELLOW[1]])


class FirstFrameWithoutSprites(PageCase):
    """The script then counts sprites from 0: the ranges of the other Frames begin one too low and stop one short.

    There is no sprite 0, so the script stops there: the Frame's own sprites stay hidden, and the page stays with
    it. The extended view needs no ranges."""

    PROJECT = Project((
        Frame("1", Heading("One")),
        Frame("2", Heading("Two"), symbols=(Symbol(r"set-1\sun.gif", 10, 20), Symbol(r"set-1\rain.gif", 60, 20)),
              labels=(Label("Wind", 120, 30),)),
        Frame("3", Heading("Three"), labels=(Label("Sea", 120, 30),)),
    ))
    RANGES = "return [idx_1, idx_2, idx_3, idx_4];"

    def test_the_ranges_are_one_too_low(self):
        for page_type in (BUTTONS, INTERVAL, SLIDER):
            with self.subTest(type=page_type):
                self.open(self.PROJECT, page_type)
                self.assertEqual(self.browser.run(self.RANGES), [0, 0, 3, 4])
                self.assert_quiet()

    def test_the_ranges_are_right_with_a_sprite_on_the_first(self):
        first = Frame("1", labels=(Label("Calm", 120, 30),))
        for page_type in (BUTTONS, INTERVAL, SLIDER):
            with self.subTest(type=page_type):
                self.open(Project((first, *self.PROJECT.frames[1:])), page_type)
                self.assertEqual(self.browser.run(self.RANGES), [1, 2, 5, 6])

    def test_the_next_frame_with_sprites_shows_without_them(self):
        for effects in (0, 1):
            with self.subTest(effects=effects):
                page = self.open(self.PROJECT, BUTTONS, {"Effects": effects})
                self.assert_shows(page, 1)
                self.browser.click("btn_2")
                self.assertEqual(self.visible(FRAME_ELEMENT), {"title_2", "subtitle_2", "map_2", "textForecast_2"})
                self.browser.click("btn_3")
                self.assertEqual(self.visible(FRAME_ELEMENT), {"map_2"})
                errors = self.browser.log()
                self.assertEqual(len(errors), 2)
                for error in errors:
                    self.assertIn("sprite_0", error)

    def test_frames_without_sprites_are_not_touched(self):
        page = self.open(Project(tuple(Frame(str(i), Heading(str(i))) for i in range(1, 4))), BUTTONS)
        for number in (3, 1, 2):
            self.browser.click(f"btn_{number}")
            self.assert_shows(page, number)
        self.assert_quiet()

    def test_the_extended_view_shows_all(self):
        page = self.open(self.PROJECT, EXTENDED)
        self.assert_shows(page, 1, 2, 3)
        self.assert_quiet()


class Served(PageCase):
    """A page looks and works the same from a web server as from a folder."""

    TEXT = "Tâche à 20° Ω"

    def test_from_a_web_server(self):
        frames = (Frame("Today", Heading(self.TEXT), symbols=(Symbol(r"set-1\sun.gif", 10, 20),)),
                  Frame("Tomorrow", Heading("Later"), symbols=(Symbol(r"sea\wave.png", 60, 20),)))
        page = self.program.page(Project(frames), BUTTONS)
        handler = partial(RecordingHandler, directory=str(page.folder))
        RecordingHandler.answers.clear()
        with ThreadingHTTPServer(("127.0.0.1", 0), handler) as server:
            thread = threading.Thread(target=server.serve_forever)
            thread.start()
            try:
                self.browser.open(f"http://127.0.0.1:{server.server_port}/Forecast.htm")
                self.assert_shows(page, 1)
                self.assert_on_top(page, 1)
                self.assert_laid_out(page)
                self.assertEqual(self.browser.elements()["title_1"].text, self.TEXT)
                self.browser.click("btn_2")
                self.assert_shows(page, 2)
                self.browser.open("about:blank")    # lets go of its connections
            finally:
                server.shutdown()
                thread.join()
        # A browser asks for its own icon as well, which no page has.
        RecordingHandler.answers.pop("/favicon.ico", None)
        self.assertEqual(RecordingHandler.answers, {f"/{name}": 200 for name in (
            "Forecast.htm", "Forecast.js", "Web/Forecast1.jpg", "Web/Forecast2.jpg",
            "Symbols/set-1/sun.gif", "Symbols/sea/wave.png")})


class RecordingHandler(SimpleHTTPRequestHandler):
    answers = {}

    def log_request(self, code="-", size="-"):
        self.answers[self.path] = int(code)

    def log_message(self, *_):
        pass
