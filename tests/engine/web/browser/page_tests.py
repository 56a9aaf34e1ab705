#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Makes forecast pages with the command-line program and uses them in a browser as a person does.

Ends with 0 when all is well, 1 when a test failed, 2 on wrong usage, and 77 when no browser can be run here,
unless CI or NUBIVANE_REQUIRE_BROWSER is set in the environment: then that too is a failure."""

import argparse
import os
import sys
import tempfile
import time
import unittest
from contextlib import ExitStack
from pathlib import Path

sys.dont_write_bytecode = True      # the sources' folder stays clean

import buttons_tests
import content_tests
import extended_tests
import interval_tests
import slider_tests
import upload_tests
from browser import Browser, Unavailable
from page_case import PageCase
from program import Program

MODULES = (content_tests, buttons_tests, extended_tests, interval_tests, slider_tests,
           upload_tests)
FAILED, SKIPPED = 1, 77


def main():
    choices = read_arguments()
    with ExitStack() as cleanup:
        if choices.keep:
            choices.keep.mkdir(parents=True, exist_ok=True)
            scratch = tempfile.mkdtemp(prefix="run-", dir=choices.keep)
            print(f"The pages stay in {scratch}")
        else:
            scratch = cleanup.enter_context(temporary_folder())
        try:
            browser = Browser(cleanup.enter_context(temporary_folder()))
        except Unavailable as reason:
            required = os.environ.get("CI") or os.environ.get("NUBIVANE_REQUIRE_BROWSER")
            print(f"{'FAILED' if required else 'SKIPPED'}: no browser for the page tests: {reason}", file=sys.stderr)
            return FAILED if required else SKIPPED
        cleanup.callback(browser.close)
        PageCase.browser = browser
        PageCase.program = Program(choices.cli, choices.fixtures, scratch)
        return run(choices.k)


def temporary_folder():
    return tempfile.TemporaryDirectory(prefix="nubivane-pages-", ignore_cleanup_errors=True)


def read_arguments():
    parser = argparse.ArgumentParser(description="Tests of the forecast pages in a browser.")
    parser.add_argument("--cli", type=Path, required=True, help="the command-line program")
    parser.add_argument("--fixtures", type=Path, required=True, help="a program folder with the symbols")
    parser.add_argument("--keep", type=Path, metavar="DIR", help="leave the pages in a new folder in DIR")
    parser.add_argument("-k", metavar="PATTERN", action="append", default=[],
                        help="only tests whose name holds PATTERN")
    choices = parser.parse_args()
    if not os.access(choices.cli, os.X_OK):
        parser.error(f"no program at {choices.cli}")
    if not choices.fixtures.is_dir():
        parser.error(f"no folder at {choices.fixtures}")
    return choices


def run(patterns):
    loader = unittest.TestLoader()
    loader.testNamePatterns = [f"*{pattern}*" for pattern in patterns] or None
    suite = unittest.TestSuite(loader.loadTestsFromModule(module) for module in MODULES)
    result = unittest.TextTestRunner(verbosity=2, resultclass=TimedResult).run(suite)
    if not result.testsRun:
        print("FAILED: no test has such a name", file=sys.stderr)
    return 0 if result.wasSuccessful() and result.testsRun else FAILED


class TimedResult(unittest.TextTestResult):
    """Tells what each test takes, since the whole run should stay short."""

    def startTest(self, test):
        self._started = time.monotonic()
        super().startTest(test)

    def addSuccess(self, test):
        self.stream.write(f"{time.monotonic() - self._started:.1f} s ... ")
        super().addSuccess(test)


if __name__ == "__main__":
    sys.exit(main())
