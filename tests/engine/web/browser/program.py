# SPDX-License-Identifier: GPL-3.0-or-later
"""Makes pages with the command-line program, each in a program folder of its own."""

import shutil
import subprocess
import tempfile
from dataclasses import dataclass
from pathlib import Path

from projects import Project

BUTTONS, EXTENDED, INTERVAL, SLIDER = 1, 2, 3, 4
SETTINGS = r"Nubivane\6.0.0\Settings"
SETTINGS_FILE = "settings.ini"


@dataclass(frozen=True)
class Page:
    project: Project
    type: int
    folder: Path
    shows_text: bool

    @property
    def url(self):
        return Path(self.folder, "Forecast.htm").resolve().as_uri()

    @property
    def frame_count(self):
        return len(self.project.frames)

    def elements_of(self, number):
        """The ids of everything that belongs to a Frame."""
        ids = {f"map_{number}"}
        if self.project.has_titles:
            ids |= {f"title_{number}", f"subtitle_{number}"}
        if self.shows_text:
            ids.add(f"textForecast_{number}")
        first = self.project.first_sprite(number)
        return ids | {f"sprite_{first + i}" for i in range(len(self.project.frames[number - 1].sprites))}

    def elements(self):
        return set().union(*(self.elements_of(number) for number in range(1, self.frame_count + 1)))


class Program:
    def __init__(self, cli, fixtures, scratch):
        self._cli = Path(cli).resolve()
        self._fixtures = Path(fixtures)
        self._scratch = Path(scratch)
        self._folders = 0
        self._pages = {}
        self._settings = {}     # the contents of a settings file by what was set

    def page(self, project, page_type, html=None, slider=None):
        """The page of a project; html and slider hold settings that differ from the defaults."""
        settings = [(SETTINGS, "Html page", key, value) for key, value in (html or {}).items()]
        settings += [(SETTINGS + r"\Html page", "Slider", key, value) for key, value in (slider or {}).items()]
        known_as = (project, page_type, tuple(settings))
        if known_as not in self._pages:
            self._pages[known_as] = self._make(project, page_type, tuple(settings))
        return self._pages[known_as]

    def _make(self, project, page_type, settings):
        self._folders += 1
        folder = self._scratch / f"page-{self._folders}"
        shutil.copytree(self._fixtures, folder)
        self._store(folder, settings)
        self._run(folder, "page", str(project.write(folder)), "--type", str(page_type))
        hidden = any(key == "Show forecast text" and str(value) != "1" for _, _, key, value in settings)
        return Page(project, page_type, folder, not hidden)

    def upload(self, page, port):
        """Sends a page with all that belongs to it to the tests' own FTP server on a port."""
        with tempfile.TemporaryDirectory() as scratch:
            # Settings of its own: those beside the page stay as they are.
            settings, password = Path(scratch, SETTINGS_FILE), Path(scratch, "password")
            password.write_text("secret")
            base = [self._cli, "--program-folder", page.folder, "--settings", settings]
            self._call(*base, "settings", "set", SETTINGS, "Ftp", "nubivane folder", "nVane")
            self._call(*base, "upload", page.folder / "project.nvpf", "--initialize", "--host", "127.0.0.1",
                       "--port", str(port), "--user", "user", "--password-file", password,
                       "--encryption", "none",
                       warning="The password travels in clear: encryption is switched off.")

    def _store(self, folder, settings):
        if not settings:
            return
        file = folder / SETTINGS_FILE
        if settings not in self._settings:
            for section, group, key, value in settings:
                self._run(folder, "settings", "set", section, group, key, str(value))
            self._settings[settings] = file.read_bytes()
        file.write_bytes(self._settings[settings])

    def _run(self, folder, *arguments):
        self._call(self._cli, "--program-folder", folder, "--settings", folder / SETTINGS_FILE, *arguments)

    @staticmethod
    def _call(*command, warning=""):
        done = subprocess.run(command, capture_output=True, text=True, timeout=60, check=False)
        if done.returncode or done.stderr.strip() != warning:
            raise RuntimeError(f"{' '.join(map(str, command))} ended with {done.returncode}: {done.stderr.strip()}")
