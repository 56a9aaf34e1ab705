# SPDX-License-Identifier: GPL-3.0-or-later
"""Three engines behind one face: Chromium, Firefox and WebKit, driven as a person's hands would."""

import base64
import json
import os
import socket
import subprocess
import tempfile
import time
from contextlib import contextmanager
from pathlib import Path

import browser
from browser import Unavailable

FIREFOX = "/usr/bin/firefox-esr"
WEBKIT_DRIVER = "/usr/bin/WebKitWebDriver"
MINI_BROWSER = "/usr/lib/x86_64-linux-gnu/webkit2gtk-4.1/MiniBrowser"

KEYS = {"ArrowLeft": "\ue012", "ArrowUp": "\ue013", "ArrowRight": "\ue014", "ArrowDown": "\ue015",
        "Home": "\ue011", "End": "\ue010", "Escape": "\ue00c", "Enter": "\ue007", "Tab": "\ue004"}
MIDDLE = """
const e = document.querySelector(arguments[0]);
e.scrollIntoView({block: 'nearest', inline: 'nearest'});
const b = e.getBoundingClientRect();
return [Math.round(b.left + b.width / 2), Math.round(b.top + b.height / 2)];
"""


def pointer(kind, steps):
    return {"type": "pointer", "id": kind, "parameters": {"pointerType": kind}, "actions": steps}


def move(x, y, duration=0):
    return {"type": "pointerMove", "duration": duration, "x": x, "y": y, "origin": "viewport"}


DOWN, UP = {"type": "pointerDown", "button": 0}, {"type": "pointerUp", "button": 0}


class Engine:
    """What all engines can; each says how actions, scripts and addresses reach it."""

    touch = True
    prints = True

    def click(self, selector):
        x, y = self.run(MIDDLE, selector)
        self.act([pointer("mouse", [move(x, y), DOWN, UP])])

    def hover(self, selector):
        x, y = self.run(MIDDLE, selector)
        self.act([pointer("mouse", [move(x, y)])])

    def tap(self, selector):
        x, y = self.run(MIDDLE, selector)
        self.act([pointer("touch", [move(x, y), DOWN, UP])])

    def swipe(self, selector, distance):
        x, y = self.run(MIDDLE, selector)
        start = x - distance // 2
        steps = [move(start + distance * i // 5, y, 20) for i in range(1, 6)]
        self.act([pointer("touch", [move(start, y), DOWN, *steps, UP])])

    def press(self, key):
        value = KEYS[key]
        self.act([{"type": "key", "id": "keys", "actions": [
            {"type": "keyDown", "value": value}, {"type": "keyUp", "value": value}]}])

    def wait(self, script, *arguments, seconds=10):
        """Until the script answers something true."""
        end = time.monotonic() + seconds
        while not (answer := self.run(script, *arguments)):
            if time.monotonic() > end:
                raise AssertionError(f"{self.name}: not within {seconds} s: {script}")
            time.sleep(0.02)
        return answer


class SeleniumEngine(Engine):
    driver = None

    def open(self, url):
        self.driver.get("about:blank")  # else an address that differs in its end alone loads nothing
        self.log()
        self.driver.get(url)

    def run(self, script, *arguments):
        return self.driver.execute_script(script, *arguments)

    def act(self, actions):
        self.driver.execute("actions", {"actions": actions})

    def back(self):
        self.driver.back()

    def close(self):
        self.driver.quit()


class Chromium(SeleniumEngine):
    name = "Chromium"

    def __init__(self, scratch, switches=()):
        self.driver = browser._start(scratch, switches)
        self.size(1200, 1000)

    @contextmanager
    def still_reader(self):
        """The engine of a reader who asks for less motion. Another one, since a wish that is only emulated reaches a page
        without script after its first pictures have been asked for."""
        with tempfile.TemporaryDirectory(prefix="nubivane-still-", ignore_cleanup_errors=True) as scratch:
            reader = Chromium(Path(scratch), ("--force-prefers-reduced-motion",))
            try:
                yield reader
            finally:
                reader.close()

    def cdp(self, command, **values):
        return self.driver.execute_cdp_cmd(command, values)

    def size(self, width, height, mobile=False):
        self.cdp("Emulation.setDeviceMetricsOverride", width=width, height=height, deviceScaleFactor=1, mobile=mobile)
        self.cdp("Emulation.setTouchEmulationEnabled", enabled=True)

    def prefer(self, dark=False, reduced=False):
        self.cdp("Emulation.setEmulatedMedia", features=[
            {"name": "prefers-color-scheme", "value": "dark" if dark else "light"},
            {"name": "prefers-reduced-motion", "value": "reduce" if reduced else "no-preference"}])

    @contextmanager
    def without_script(self):
        self.cdp("Emulation.setScriptExecutionDisabled", value=True)
        try:
            yield
        finally:
            self.cdp("Emulation.setScriptExecutionDisabled", value=False)

    def log(self):
        return [entry["message"] for entry in self.driver.get_log("browser") if "favicon.ico" not in entry["message"]]

    def run_async(self, script):
        return self.driver.execute_async_script(script)

    def picture(self):
        return base64.b64decode(self.cdp("Page.captureScreenshot", format="png")["data"])

    def pdf(self):
        return base64.b64decode(self.cdp("Page.printToPDF", printBackground=True, paperWidth=8.27,
                                         paperHeight=11.69)["data"])


class WebKit(SeleniumEngine):
    """MiniBrowser on a display of its own; it takes no touches there, tells nothing of its console and prints only
    by its window."""

    name = "WebKit"
    touch = False
    prints = False

    def __init__(self, scratch):
        for program in (WEBKIT_DRIVER, MINI_BROWSER, "/usr/bin/Xvfb"):
            if not os.access(program, os.X_OK):
                raise Unavailable(f"{program} is missing")
        self._home = Path(scratch, "webkit-home")
        self._desktop = self._home / ".config/gtk-3.0/settings.ini"
        self._desktop.parent.mkdir(parents=True)
        self._display = _start_display()
        self._wishes = (False, False)
        try:
            self.driver = self._start()
        except Unavailable:
            self._display[0].terminate()
            raise

    def _start(self, *arguments):
        from selenium import webdriver
        from selenium.common.exceptions import WebDriverException
        from selenium.webdriver.webkitgtk.options import Options
        dark, reduced = self._wishes
        self._desktop.write_text(f"[Settings]\ngtk-enable-animations={int(not reduced)}\n")
        kept = dict(os.environ)
        if dark:
            os.environ["GTK_THEME"] = "Adwaita:dark"
        os.environ |= {"DISPLAY": self._display[1], "HOME": str(self._home), "LIBGL_ALWAYS_SOFTWARE": "1",
                       "XDG_CONFIG_HOME": str(self._home / ".config"), "NO_AT_BRIDGE": "1", "LC_ALL": "C.UTF-8"}
        if os.geteuid() == 0:
            os.environ["WEBKIT_DISABLE_SANDBOX_THIS_IS_DANGEROUS"] = "1"
        options = Options()
        options.binary_location = MINI_BROWSER
        options.add_argument("--automation")
        for argument in arguments:
            options.add_argument(argument)
        try:
            return webdriver.WebKitGTK(executable_path=WEBKIT_DRIVER, options=options, service_log_path=os.devnull)
        except (WebDriverException, OSError) as error:
            raise Unavailable(f"WebKit does not start ({str(error).strip().splitlines()[0]})") from error
        finally:
            os.environ.clear()
            os.environ.update(kept)

    def prefer(self, dark=False, reduced=False):
        """By the desktop's settings, which it reads when it starts."""
        if (dark, reduced) != self._wishes:
            self._wishes = (dark, reduced)
            self.driver.quit()
            self.driver = self._start()

    @contextmanager
    def still_reader(self):
        self.prefer(reduced=True)
        try:
            yield self
        finally:
            self.prefer()

    @contextmanager
    def without_script(self):
        self.driver.quit()
        self.driver = self._start("--enable-javascript=false")
        try:
            yield
        finally:
            self.driver.quit()
            self.driver = self._start()

    def log(self):
        return []

    def close(self):
        super().close()
        self._display[0].terminate()
        self._display[0].wait()


def _start_display():
    read, write = os.pipe()
    server = subprocess.Popen(["/usr/bin/Xvfb", "-displayfd", str(write), "-screen", "0", "1280x1024x24",
                               "-nolisten", "tcp"], pass_fds=[write], stderr=subprocess.DEVNULL)
    os.close(write)
    with os.fdopen(read) as numbers:
        number = numbers.readline().strip()
    if not number:
        raise Unavailable("Xvfb does not start")
    return server, f":{number}"


class Firefox(Engine):
    """By its own protocol, Marionette: numbered JSON messages, each behind its length."""

    name = "Firefox"

    def __init__(self, scratch):
        if not os.access(FIREFOX, os.X_OK):
            raise Unavailable(f"{FIREFOX} is missing")
        profile = tempfile.mkdtemp(prefix="firefox-", dir=scratch)
        with socket.socket() as free:
            free.bind(("127.0.0.1", 0))
            port = free.getsockname()[1]
        preferences = {"marionette.port": port, "dom.w3c_touch_events.enabled": 1, "network.proxy.type": 0,
                       "browser.shell.checkDefaultBrowser": False, "datareporting.policy.dataSubmissionEnabled": False,
                       "app.update.enabled": False, "network.captive-portal-service.enabled": False}
        Path(profile, "user.js").write_text("".join(
            f"user_pref({json.dumps(key)}, {json.dumps(value)});\n" for key, value in preferences.items()))
        left_out = ("DISPLAY", "WAYLAND_DISPLAY")
        environment = {key: value for key, value in os.environ.items() if key not in left_out}
        self._program = subprocess.Popen(
            [FIREFOX, "--headless", "--no-remote", "--marionette", "--remote-allow-system-access", "--profile",
             profile], env=environment | {"HOME": profile, "LC_ALL": "C.UTF-8"},
            stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
        self._numbers = 0
        self._link = self._connect(port)
        self._read()
        self._call("WebDriver:NewSession", capabilities={})
        self._call("WebDriver:SetWindowRect", width=1200, height=1000)

    def _connect(self, port):
        end = time.monotonic() + 60
        while time.monotonic() < end and self._program.poll() is None:
            try:
                return socket.create_connection(("127.0.0.1", port), timeout=60)
            except OSError:
                time.sleep(0.1)
        self._program.kill()
        raise Unavailable("Firefox does not start")

    def _read(self):
        length = b""
        while (byte := self._link.recv(1)) != b":":
            length += byte
        message = b""
        while len(message) < int(length):
            message += self._link.recv(int(length) - len(message))
        return json.loads(message)

    def _call(self, command, **values):
        self._numbers += 1
        message = json.dumps([0, self._numbers, command, values]).encode()
        self._link.sendall(str(len(message)).encode() + b":" + message)
        _, _, error, result = self._read()
        if error:
            raise RuntimeError(f"Firefox: {command}: {error['message']}")
        return result

    def open(self, url):
        self._call("WebDriver:Navigate", url="about:blank")
        self._system("Services.console.reset();")
        self._call("WebDriver:Navigate", url=url)

    def run(self, script, *arguments):
        return self._call("WebDriver:ExecuteScript", script=script, args=list(arguments))["value"]

    def act(self, actions):
        self._call("WebDriver:PerformActions", actions=actions)

    def back(self):
        self._call("WebDriver:Back")

    def size(self, width, height, mobile=False):
        self._call("WebDriver:SetWindowRect", width=max(width, 450), height=height)

    @contextmanager
    def still_reader(self):
        self.prefer(reduced=True)
        try:
            yield self
        finally:
            self.prefer()

    def _system(self, script):
        self._call("Marionette:SetContext", value="chrome")
        try:
            return self.run(script)
        finally:
            self._call("Marionette:SetContext", value="content")

    def prefer(self, dark=False, reduced=False):
        self._system(f"Services.prefs.setIntPref('layout.css.prefers-color-scheme.content-override', {0 if dark else 1});"
                     f"Services.prefs.setIntPref('ui.prefersReducedMotion', {int(reduced)});")

    @contextmanager
    def without_script(self):
        self._system("Services.prefs.setBoolPref('javascript.enabled', false);")
        try:
            yield
        finally:
            self._system("Services.prefs.setBoolPref('javascript.enabled', true);")

    def log(self):
        return self._system("return Services.console.getMessageArray().map(String)"
                            ".filter(text => text.includes('127.0.0.1') || text.includes('file:'));")

    def pdf(self):
        return base64.b64decode(self._call("WebDriver:Print", background=True)["value"])

    def close(self):
        try:
            self._call("Marionette:Quit", flags=["eForceQuit"])
            self._program.wait(timeout=20)
        except (RuntimeError, OSError, subprocess.TimeoutExpired):
            self._program.kill()
            self._program.wait()


ENGINES = (Chromium, Firefox, WebKit)
