#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""What Lighthouse says of the pages of an example on its mobile profile: page_quality.py PROGRAM_FOLDER [RUNS]

Serves each page from this machine and prints the scores of the median run. Needs Chromium and what
setup-debian.sh installs for "test".
"""
import functools
import http.server
import json
import os
import pathlib
import statistics
import subprocess
import sys
import tempfile
import threading

ROOT = pathlib.Path(__file__).resolve().parents[1]
LIGHTHOUSE = ROOT / "tests/engine/web/browser/node_modules/.bin/lighthouse"
PAGES = {1: "buttons", 5: "responsive"}


class Quiet(http.server.SimpleHTTPRequestHandler):
    def log_message(self, *_):
        pass


def scores(url, home):
    done = subprocess.run(
        [LIGHTHOUSE, url, "--quiet", "--output=json", "--output-path=stdout", "--form-factor=mobile",
         "--only-categories=performance,accessibility,best-practices,seo",
         "--chrome-flags=--headless=new --no-sandbox --disable-gpu"],
        env=os.environ | {"CHROME_PATH": "/usr/bin/chromium", "HOME": home}, capture_output=True, check=True)
    return {name: 100 * part["score"] for name, part in json.loads(done.stdout)["categories"].items()}


def main():
    program, runs = pathlib.Path(sys.argv[1]).resolve(), int(sys.argv[2]) if len(sys.argv) > 2 else 3
    with tempfile.TemporaryDirectory(ignore_cleanup_errors=True) as scratch:
        handler = functools.partial(Quiet, directory=scratch)
        server = http.server.ThreadingHTTPServer(("127.0.0.1", 0), handler)
        threading.Thread(target=server.serve_forever, daemon=True).start()
        for number, name in PAGES.items():
            subprocess.run([program / "nubivane-cli", "--settings", f"{scratch}/settings.ini", "page",
                            ROOT / "examples/europe.nvpf", "--type", str(number), "--into", f"{scratch}/{name}"],
                           stdout=subprocess.DEVNULL, check=True)
            found = [scores(f"http://127.0.0.1:{server.server_port}/{name}/Forecast.htm", scratch)
                     for _ in range(runs)]
            print(f"{name:12}", *(f"{kind} {statistics.median(run[kind] for run in found):.0f}" for kind in found[0]),
                  sep="  ", flush=True)
        server.shutdown()


if __name__ == "__main__":
    main()
