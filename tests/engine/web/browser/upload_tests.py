# SPDX-License-Identifier: GPL-3.0-or-later
"""Pages as they stand on a server after an upload: what was sent is all that they need."""

import dataclasses
import subprocess
import sys
import tempfile
from contextlib import contextmanager
from pathlib import Path

from page_case import PageCase
from program import BUTTONS, EXTENDED
from projects import sample

SERVER = Path(__file__).resolve().parents[3] / "support" / "ftp_server.py"


@contextmanager
def ftp_server(*options):
    """The port of a server of this machine, and its folder."""
    with tempfile.TemporaryDirectory(prefix="nubivane-ftp-") as scratch:
        root = Path(scratch, "root")
        root.mkdir()
        command = [sys.executable, "-B", SERVER, root, "--log", Path(scratch, "log"), *options]
        with subprocess.Popen(command, stdin=subprocess.PIPE, stdout=subprocess.PIPE, text=True) as server:
            try:
                yield int(server.stdout.readline()), root
            finally:
                server.stdin.close()


class UploadedPage(PageCase):
    def test_works_from_the_servers_folder(self):
        for options in ((), ("--unix",)):
            for page_type in (BUTTONS, EXTENDED):
                with self.subTest(options=options, type=page_type), ftp_server(*options) as (port, root):
                    made = self.program.page(sample(3), page_type)
                    self.program.upload(made, port)
                    page = dataclasses.replace(made, folder=root / "nVane")
                    self.browser.open(page.url)
                    self.assert_shows(page, *((1, 2, 3) if page_type == EXTENDED else (1,)))
                    if page_type == BUTTONS:
                        self.browser.click("btn_3")
                        self.assert_shows(page, 3)
                    self.assert_quiet()
