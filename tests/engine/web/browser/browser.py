# SPDX-License-Identifier: GPL-3.0-or-later
"""A headless Chromium under real mouse events, and what a person would see in it."""

import base64
import os
import struct
import zlib
from dataclasses import dataclass
from pathlib import Path

try:
    from selenium import webdriver
    from selenium.common.exceptions import WebDriverException
    from selenium.webdriver.chrome.service import Service
    from selenium.webdriver.common.actions.action_builder import ActionBuilder
    from selenium.webdriver.remote.remote_connection import RemoteConnection
    NO_SELENIUM = None
except ImportError as error:
    NO_SELENIUM = error

CHROMIUM = "/usr/bin/chromium"
CHROMEDRIVER = "/usr/bin/chromedriver"

SWITCHES = (
    "--headless=new", "--no-sandbox", "--disable-gpu", "--disable-quic", "--no-first-run",
    "--disable-background-networking", "--disable-component-update", "--disable-sync",
    "--disable-dev-shm-usage",                                      # containers give too little of it
    "--no-proxy-server",
    "--host-resolver-rules=MAP * ~NOTFOUND , EXCLUDE 127.0.0.1",    # nothing leaves this machine
    "--window-size=1200,1000",
)

# Positions are those of the page, whether or not it is scrolled.
ELEMENTS = """
return [...document.querySelectorAll('[id]')].map(e => {
    const style = getComputedStyle(e), box = e.getBoundingClientRect();
    const middle = document.elementFromPoint(box.left + box.width / 2, box.top + box.height / 2);
    return [e.id, {
        visible: style.visibility == 'visible' && style.display != 'none' && style.opacity > 0,
        left: box.left + scrollX, top: box.top + scrollY, width: box.width, height: box.height,
        on_top: e.contains(middle),
        natural_width: e.tagName == 'IMG' ? e.naturalWidth : null,
        text: e.tagName == 'INPUT' ? e.value : e.textContent,
    }];
});
"""

# Notes what is visible after each task of the page that changed a style: a mutation observer runs when
# the task is over, so half-done changes are never seen.
RECORDER = """
const noted = [];
let loaded;
Object.defineProperty(window, 'notedStates', {value: () => ({loaded, noted})});
addEventListener('load', () => { loaded = performance.now(); });
new MutationObserver(() => {
    const visible = [...document.querySelectorAll('[id]')]
        .filter(e => getComputedStyle(e).visibility == 'visible').map(e => e.id);
    noted.push([performance.now(), visible]);
}).observe(document, {attributes: true, attributeFilter: ['style'], subtree: true});
"""

COUNT_CHANGES = """
window.changeCount = 0;
new MutationObserver(changes => { window.changeCount += changes.length; })
    .observe(document, {attributes: true, childList: true, characterData: true, subtree: true});
"""


class Unavailable(Exception):
    """No browser can be run on this machine."""


@dataclass(frozen=True)
class Element:
    visible: bool
    left: float
    top: float
    width: float
    height: float
    on_top: bool            # nothing covers its middle
    natural_width: int      # of a picture: 0 when it could not be loaded
    text: str


class Browser:
    def __init__(self, scratch):
        self._driver = _start(Path(scratch))

    def close(self):
        self._driver.quit()

    def open(self, url):
        self.log()      # what the last page logged must not count for this one
        self._driver.get(url)

    def open_recorded(self, url):
        """Opens a page whose visible states are noted from the first moment on; see states."""
        added = self._driver.execute_cdp_cmd("Page.addScriptToEvaluateOnNewDocument", {"source": RECORDER})
        try:
            self.open(url)
        finally:
            self._driver.execute_cdp_cmd("Page.removeScriptToEvaluateOnNewDocument", added)

    def states(self):
        """The moment of loading and the (moment, visible ids) after each change, in milliseconds."""
        found = self.run("return notedStates();")
        return found["loaded"], [(moment, set(visible)) for moment, visible in found["noted"]]

    def run(self, script):
        return self._driver.execute_script(script)

    def elements(self):
        return {name: Element(**values) for name, values in self.run(ELEMENTS)}

    def log(self):
        """The console's messages since the last call."""
        return [entry["message"] for entry in self._driver.get_log("browser")]

    def count_changes(self):
        self.run(COUNT_CHANGES)

    def changes(self):
        return self.run("return changeCount;")

    def colour_at(self, x, y):
        """The colour that is painted at a point of the window."""
        clip = {"x": x, "y": y, "width": 1, "height": 1, "scale": 1}
        shot = self._driver.execute_cdp_cmd("Page.captureScreenshot", {"format": "png", "clip": clip})
        return _first_pixel(base64.b64decode(shot["data"]))

    def click(self, element_id):
        box = self.elements()[element_id]
        self._mouse(lambda mouse: mouse
                    .move_to_location(box.left + box.width / 2, box.top + box.height / 2)
                    .click())

    def drag(self, element_id):
        """Use as "with browser.drag(id) as hand": the button goes down here and up at the end."""
        return Drag(self, element_id)

    def _mouse(self, act):
        actions = ActionBuilder(self._driver, duration=0)
        act(actions.pointer_action)
        actions.perform()


class Drag:
    # A hand moves in small steps, and a page sees each of them. Larger ones may leap over the narrow place
    # where the slider notices its last tick.
    STRIDE = 12

    def __init__(self, browser, element_id):
        self._browser = browser
        box = browser.elements()[element_id]
        self._x = round(box.left + box.width / 2)
        self._y = round(box.top + box.height / 2)

    def __enter__(self):
        self._browser._mouse(lambda mouse: mouse.move_to_location(self._x, self._y).pointer_down())
        return self

    def __exit__(self, *_):
        self._browser._mouse(lambda mouse: mouse.pointer_up())

    def by(self, distance):
        self.to(self._x + round(distance))

    def to(self, target):
        stride = self.STRIDE if target > self._x else -self.STRIDE
        self._move([*range(self._x + stride, target, stride), target])

    def leap(self, distance):
        """One quick movement, of which the page sees only the end."""
        self._move([self._x + round(distance)])

    def _move(self, stops):
        def act(mouse):
            for x in stops:
                mouse.move_to_location(x, self._y)
        self._browser._mouse(act)
        self._x = stops[-1]


def _start(scratch, switches=()):
    if NO_SELENIUM:
        raise Unavailable(f"selenium is missing ({NO_SELENIUM})")
    for program in (CHROMIUM, CHROMEDRIVER):
        if not os.access(program, os.X_OK):
            raise Unavailable(f"{program} is missing")

    options = webdriver.ChromeOptions()
    options.binary_location = CHROMIUM
    for switch in (*SWITCHES, *switches):
        options.add_argument(switch)
    options.add_argument(f"--user-data-dir={scratch / 'browser'}")
    options.set_capability("goog:loggingPrefs", {"browser": "ALL"})

    # A home of its own, one language and no display: neither a user's browser nor a desktop has a part in the result.
    home = scratch / "home"
    home.mkdir()
    left_out = ("DISPLAY", "WAYLAND_DISPLAY", "LANGUAGE", "CHROMIUM_FLAGS")
    environment = {key: value for key, value in os.environ.items() if key not in left_out}
    environment |= {"HOME": str(home), "LC_ALL": "C.UTF-8"}
    os.environ["NO_PROXY"] = os.environ["no_proxy"] = "localhost,127.0.0.1"     # the way to the driver

    RemoteConnection.set_timeout(60)
    try:
        driver = webdriver.Chrome(service=Service(CHROMEDRIVER, env=environment), options=options)
    except (WebDriverException, OSError) as error:
        raise Unavailable(f"chromium does not start ({str(error).strip().splitlines()[0]})") from error
    driver.set_page_load_timeout(30)
    driver.set_script_timeout(10)
    return driver


def _first_pixel(png):
    """Red, green and blue of the first pixel of a PNG; it has no neighbours, so every filter leaves it as it is."""
    position, data = 8, b""
    while position < len(png):
        length, kind = struct.unpack(">I4s", png[position:position + 8])
        if kind == b"IDAT":
            data += png[position + 8:position + 8 + length]
        position += length + 12
    return tuple(zlib.decompress(data)[1:4])
