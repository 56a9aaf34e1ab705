#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Writes the example projects into examples/: five days over Europe, one day over Italy, a forecast for sailors."""

import argparse
import os

import example_europe
import example_italy
import example_mediterranean
from geo import REPOSITORY
from project_file import write

PROJECTS = (example_europe.PROJECT, example_italy.PROJECT, example_mediterranean.PROJECT)


def main():
    parser = argparse.ArgumentParser(description=__doc__)
    parser.add_argument("--output", default=os.path.join(REPOSITORY, "examples"))
    folder = parser.parse_args().output
    for project in PROJECTS:
        write(project, folder)


if __name__ == "__main__":
    main()
