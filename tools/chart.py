# SPDX-License-Identifier: GPL-3.0-or-later
"""Fronts and isobars of the examples: drawn by the engine's own figures, which the editor's tools draw too.

A chart is a file in `charts/`: the figures in the order of drawing, each with its kind, the pen's width and the pixels
that somebody clicks. The program `draw_figures` puts them on a map.
"""

import os
import subprocess
import tempfile

from PIL import Image

from geo import REPOSITORY

CHARTS = os.path.join(REPOSITORY, "tools", "charts")
PROGRAM = os.environ.get("NUBIVANE_DRAW_FIGURES", os.path.join(REPOSITORY, "build", "debug", "draw_figures"))


def draw(name, ground):
    """The picture with a chart on it."""
    if not os.path.exists(PROGRAM):
        raise SystemExit(f"{PROGRAM} is missing: cmake --build build/debug --target draw_figures")
    # Letters come from the fonts that the tests use: the same on every machine.
    surroundings = dict(os.environ, QT_QPA_PLATFORM="offscreen",
                        FONTCONFIG_FILE=os.path.join(REPOSITORY, "tests", "support", "fonts.conf"))
    with tempfile.TemporaryDirectory() as folder:
        before, after = os.path.join(folder, "before.png"), os.path.join(folder, "after.png")
        ground.save(before)
        subprocess.run([PROGRAM, before, os.path.join(CHARTS, name + ".json"), after], env=surroundings, check=True)
        with Image.open(after) as drawn:
            return drawn.convert("RGB")
