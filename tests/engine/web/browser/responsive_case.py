# SPDX-License-Identifier: GPL-3.0-or-later
"""Sites of the responsive page, served under the strictest policy, for tests on several engines."""

import subprocess
import threading
import unittest
from functools import partial
from http.server import SimpleHTTPRequestHandler, ThreadingHTTPServer
from pathlib import Path

import projects
from program import SETTINGS, SETTINGS_FILE

# What a page may do is said by the server; what it asked for stands in `requests`.
POLICY = "default-src 'self'"
# A page within another that has forbidden all script: what every reader without script sees.
FRAME = """<!DOCTYPE html><html lang="en"><title>Frame</title>
<iframe sandbox="allow-same-origin" src="{page}" width="800" height="4000"></iframe></html>"""
PLAIN_FRAME = """<!DOCTYPE html><html lang="en"><title>Frame</title>
<iframe src="{page}" width="600" height="900"></iframe></html>"""


class Handler(SimpleHTTPRequestHandler):
    def end_headers(self):
        self.send_header("Content-Security-Policy", POLICY)
        self.send_header("Cache-Control", "no-store")
        super().end_headers()

    def log_request(self, code="-", size="-"):
        self.server.requests.append((self.path.partition("?")[0], int(code)))

    def log_message(self, *_):
        pass

    def handle(self):
        try:
            super().handle()
        except (BrokenPipeError, ConnectionResetError):
            pass    # a browser that has gone on to the next page


class Server:
    def __init__(self, folder):
        self.folder = Path(folder)
        self._server = ThreadingHTTPServer(("127.0.0.1", 0), partial(Handler, directory=str(folder)))
        self._server.requests = []
        self._thread = threading.Thread(target=self._server.serve_forever, daemon=True)
        self._thread.start()

    @property
    def requests(self):
        return self._server.requests

    def url(self, path):
        return f"http://127.0.0.1:{self._server.server_port}/{path}"

    def close(self):
        self._server.shutdown()
        self._thread.join()
        self._server.server_close()


class SiteMaker:
    """Makes each site once with the command-line program, in a folder of the server's."""

    def __init__(self, cli, fixtures, content, folder):
        self._cli, self._fixtures, self.content, self._folder = Path(cli).resolve(), fixtures, content, Path(folder)
        self._sites = {}
        self._number = 0

    def make(self, project, page_type=5, settings=(), program_folder=None):
        """The path of the page below the server's folder. `project` is a project or a file of one."""
        known_as = (project, page_type, tuple(settings))
        if known_as not in self._sites:
            self._number += 1
            work = self._folder / f"work-{self._number}"
            work.mkdir()
            file = project if isinstance(project, Path) else project.write(work)
            base = [self._cli, "--program-folder", program_folder or self._fixtures, "--settings",
                    work / SETTINGS_FILE]
            for key, value in settings:
                self._call(*base, "settings", "set", SETTINGS, "Html page", key, str(value))
            site = self._folder / f"site-{self._number}"
            self._call(*base, "page", file, "--type", str(page_type), "--into", site)
            for name, text in (("frame.htm", FRAME), ("plain.htm", PLAIN_FRAME)):
                (site / name).write_text(text.format(page="Forecast.htm"))
            self._sites[known_as] = f"{site.name}/Forecast.htm"
        return self._sites[known_as]

    @staticmethod
    def _call(*command):
        done = subprocess.run(command, capture_output=True, text=True, timeout=120, check=False)
        if done.returncode:
            raise RuntimeError(f"{' '.join(map(str, command))} ended with {done.returncode}: {done.stderr.strip()}")


class ResponsiveCase(unittest.TestCase):
    # The engine of the moment; the others are set once for the whole run.
    engines = ()
    server = None
    maker = None

    def each_engine(self, only=lambda engine: True):
        return [engine for engine in self.engines if only(engine)]

    def once(self):
        """For what needs no engine, or the one that can be told sizes."""
        return self.each_engine(lambda engine: engine.name == "Chromium")

    def site(self, project, **choices):
        return self.server.url(self.maker.make(project, **choices))

    def folder(self, project, **choices):
        return self.server.folder / Path(self.maker.make(project, **choices)).parent

    def assert_quiet(self, engine):
        self.assertEqual(engine.log(), [], "the console is not empty")


def sample(count):
    """Periods with tabs of their own: Day 1, Day 2 and so on."""
    return projects.sample(count)
