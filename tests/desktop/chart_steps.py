# SPDX-License-Identifier: GPL-3.0-or-later
"""What a person does to draw a chart and to set up a Frame, a line for each thing.

    chart_steps.py figures CHART.json        KIND WIDTH TEXT X Y X Y ...    (TEXT "-" for none)
    chart_steps.py symbols PROJECT.json N    NAME LEFT TOP
    chart_steps.py labels PROJECT.json N     POINTS COLOR LEFT TOP TEXT
    chart_steps.py texts PROJECT.json N      the texts of all labels as a list

PROJECT.json is what `nubivane-cli show` prints, N the number of a Frame from 0.
"""

import json
import sys


def figures(chart):
    for figure in chart:
        points = " ".join(f"{x} {y}" for x, y in figure["points"])
        print(figure["kind"], figure["width"], figure.get("text", "-"), points)


def symbols(frame):
    for symbol in frame["Symbols"]:
        name = symbol["FileGif"].replace("/", "\\").rsplit("\\", 1)[1].removesuffix(".gif")
        print(name, symbol["PosX"], symbol["PosY"])


def labels(frame):
    for label in frame["Labels"]:
        print(label["FontSize"], label["Forecolor"], label["PosX"], label["PosY"], label["Text"])


def texts(frame):
    print(json.dumps([label["Text"] for label in frame["Labels"]]))


def main(what, file, number=None):
    with open(file, encoding="utf-8") as source:
        content = json.load(source)
    if what == "figures":
        figures(content)
    else:
        {"symbols": symbols, "labels": labels, "texts": texts}[what](content["Frames"][int(number)])


if __name__ == "__main__":
    main(*sys.argv[1:])
