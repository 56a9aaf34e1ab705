#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Makes sites of the responsive page and uses them in Chromium, Firefox and WebKit; asks checkers what they find.

Exit codes as those of page_tests.py. An engine or checker that cannot run here is told in a line of its own; where
CI or NUBIVANE_REQUIRE_BROWSER is set, that is a failure."""

import argparse
import os
import sys
import tempfile
import unittest
from contextlib import ExitStack
from pathlib import Path

sys.dont_write_bytecode = True      # the sources' folder stays clean

import responsive_checks
import responsive_tests
from browser import Unavailable
from engines import ENGINES
from page_tests import FAILED, SKIPPED, TimedResult
from responsive_case import ResponsiveCase, Server, SiteMaker

MODULES = (responsive_tests, responsive_checks)


def main():
    choices = read_arguments()
    required = bool(os.environ.get("CI") or os.environ.get("NUBIVANE_REQUIRE_BROWSER"))
    with ExitStack() as cleanup:
        scratch = Path(cleanup.enter_context(
            tempfile.TemporaryDirectory(prefix="nubivane-sites-", ignore_cleanup_errors=True)))
        engines = []
        for engine in ENGINES:
            if choices.engine and engine.name.lower() not in choices.engine:
                continue
            try:
                folder = scratch / engine.name
                folder.mkdir()
                engines.append(engine(folder))
                cleanup.callback(engines[-1].close)
            except Unavailable as reason:
                print(f"{'FAILED' if required else 'SKIPPED'}: {engine.name}: {reason}", file=sys.stderr)
                if required:
                    return FAILED
        if not engines:
            return SKIPPED
        sites = scratch / "sites"
        sites.mkdir()
        ResponsiveCase.server = Server(sites)
        cleanup.callback(ResponsiveCase.server.close)
        ResponsiveCase.maker = SiteMaker(choices.cli, choices.fixtures, choices.content, sites)
        responsive_checks.required = required
        failed = False
        for engine in engines:
            print(f"{engine.name}:", file=sys.stderr)
            ResponsiveCase.engines = [engine]
            failed |= run(choices.k) == FAILED
        return FAILED if failed else 0


def read_arguments():
    parser = argparse.ArgumentParser(description="Tests of the responsive page on several engines.")
    parser.add_argument("--cli", type=Path, required=True, help="the command-line program")
    parser.add_argument("--fixtures", type=Path, required=True, help="a program folder with the tests' symbols")
    parser.add_argument("--content", type=Path, required=True, help="the program folder that is shipped")
    parser.add_argument("--engine", action="append", default=[], help="only this one: chromium, firefox or webkit")
    parser.add_argument("-k", metavar="PATTERN", action="append", default=[],
                        help="only tests whose name holds PATTERN")
    return parser.parse_args()


def run(patterns):
    loader = unittest.TestLoader()
    loader.testNamePatterns = [f"*{pattern}*" for pattern in patterns] or None
    suite = unittest.TestSuite(loader.loadTestsFromModule(module) for module in MODULES)
    result = unittest.TextTestRunner(verbosity=2, resultclass=TimedResult).run(suite)
    return 0 if result.wasSuccessful() and result.testsRun else FAILED


if __name__ == "__main__":
    sys.exit(main())
