#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Measures nubivane-cli as a whole against public tools that do comparable work.

whole_program.py BUILD WORK [NAME ...] runs the named benchmarks (all by default): save, page,
responsive, grow, show, start. BUILD is a build folder of the preset "bench"; test projects are made
in WORK once and kept there.
"""
import argparse
import glob
import json
import os
import re
import shutil
import statistics
import subprocess
import sys

from measure import compare

HERE = os.path.dirname(os.path.abspath(__file__))
SETTINGS = r"Nubivane\6.0.0\Settings"

PARSE_AND_DUMP = """
import json, sys, xml.etree.ElementTree as tree
def plain(e):
    return {"name": e.tag, "text": e.text, **e.attrib, "children": [plain(c) for c in e]}
json.dump(plain(tree.parse(sys.argv[1]).getroot()), sys.stdout)
"""


class Bench:
    def __init__(self, build, work, repeat):
        self.build, self.work, self.repeat = build, work, repeat
        self.folder = self.path("program")
        os.makedirs(self.folder, exist_ok=True)

    def path(self, name):
        return os.path.join(self.work, name)

    def cli(self, *words):
        return [os.path.join(self.build, "Nubivane", "nubivane-cli"), "--program-folder",
                self.folder, "--settings", self.path("settings.ini"), *words]

    def project(self, name, **options):
        """Makes a project unless an earlier run has."""
        path = self.path(name + ".nvpf")
        if not os.path.exists(path):
            words = [word for key, value in options.items() for word in ("--" + key, str(value))]
            subprocess.run([sys.executable, os.path.join(HERE, "make_project.py"), path,
                            "--program-folder", self.folder, *words], check=True)
        return path

    @staticmethod
    def row(what, result, note=""):
        print("  %-46s %8.3f %8.3f %8.3f %7.1f  %s"
              % (what, result.wall, result.best, result.cpu, result.peak, note), flush=True)

    def peer(self, what, result, ours):
        self.row(what, result, "we take %.2f times this; best %.2f, CPU %.2f"
                 % (ours.wall / result.wall, ours.best / result.best, ours.cpu / result.cpu))


def data_of(project):
    return project[:-1] + "x"


def blocks_of(project):
    """The pictures of the Frames as they lie in the data file, one by one."""
    with open(project, encoding="utf-8") as file:  # of the elements FILE and Frame
        sizes = [int(size) for size in re.findall(r'<F[A-Za-z]+ [^>]*?\bSize="(\d+)"', file.read())]
    with open(data_of(project), "rb") as data:
        data.seek(sizes[0])
        for size in sizes[1:]:
            yield data.read(size)


def bench_save(bench):
    """Open and save: 500 Frames of 800 x 600 pixels."""
    project = bench.project("save-500", frames=500, sprites=20, quality=85)
    target = bench.path("saved.nvpf")
    copy = 'cp "$0" "$2" && cp "$1" "$3" && sync "$2" "$3"'

    def clean():
        for file in glob.glob(bench.path("saved.*")):
            os.remove(file)

    results = compare(bench.repeat, {
        "save": bench.cli("save", project, target),
        "copy": ["sh", "-c", copy, project, data_of(project), target, data_of(target)],
        "xmllint": ["xmllint", "--noout", project],
    }, before=clean)
    megabytes = (os.path.getsize(project) + os.path.getsize(data_of(project))) / 1e6
    ours = results["save"]
    bench.row("nubivane-cli save", ours, "%.1f MB in two files" % megabytes)
    bench.peer("cp of both files, flushed", results["copy"], ours)
    bench.peer("xmllint --noout of the XML", results["xmllint"], ours)


def read_file(path):
    with open(path, "rb") as file:
        return file.read()


def extract_pictures(project, folder):
    shutil.rmtree(folder, ignore_errors=True)
    os.makedirs(folder)
    for number, block in enumerate(blocks_of(project), 1):
        with open(os.path.join(folder, "%d.jpg" % number), "wb") as file:
            file.write(block)


def bench_page(bench):
    """A page of 500 Frames with 20 sprites each; pictures of another quality, then of ours."""
    project = bench.project("save-500", frames=500, sprites=20, quality=85)
    pictures = bench.path("pictures")
    extract_pictures(project, pictures)
    copies = bench.path("copies")

    def clean():
        shutil.rmtree(copies, ignore_errors=True)
        shutil.copytree(pictures, copies)

    reencode = 'cd "$0" && ls *.jpg | xargs -P2 -I{} sh -c "djpeg {} | cjpeg -quality 92 > {}.new"'
    results = compare(bench.repeat, {
        "page": bench.cli("page", project),
        "pictures": [os.path.join(bench.build, "bench", "bench_pictures"), project,
                     bench.path("program")],
        "mogrify": ["sh", "-c", 'mogrify -quality 92 "$0"/*.jpg', copies],
        "djpeg": ["sh", "-c", reencode, copies],
    }, before=clean, listen=["pictures"])
    ours = results["page"]
    alone = [json.loads(output) for output in results["pictures"].outputs]
    bench.row("nubivane-cli page, every picture encoded anew", ours,
              "%.2f cores busy" % (ours.cpu / ours.wall))
    for name, part in [("read and encoded", "encode"),
                       ("read, encoded and written", "encode and write")]:
        times = [run["read"] + run[part] for run in alone]
        middle, best = statistics.median(times), min(times)
        print("  %-46s %8.3f %8.3f" % ("the same pictures, only " + name, middle, best))
        cpu = statistics.median(run["read CPU"] + run[part + " CPU"] for run in alone)
        print("  %-46s %7.1f%% %7.1f%%  %.1f%% of the CPU time"
              % ("beyond that, of the whole", 100 - 100 * middle / ours.wall,
                 100 - 100 * best / ours.best, 100 - 100 * cpu / ours.cpu))
    bench.peer("mogrify -quality 92", results["mogrify"], ours)
    bench.peer("djpeg | cjpeg -quality 92, two at a time", results["djpeg"], ours)

    project = bench.project("pass-500", frames=500, sprites=20, quality=92)
    extract_pictures(project, pictures)
    copy = 'rm -rf "$1" && mkdir "$1" && cp "$0"/*.jpg "$1" && sync "$1"/*.jpg'
    results = compare(bench.repeat, {
        "page": bench.cli("page", project),
        "copy": ["sh", "-c", copy, pictures, copies],
    })
    bench.row("nubivane-cli page, pictures passed on", results["page"])
    bench.peer("cp of 500 pictures, flushed", results["copy"], results["page"])
    same = all(read_file(os.path.join(bench.folder, "Web", "Forecast%d.jpg" % i)) == block
               for i, block in enumerate(blocks_of(project), 1))
    print("  passed on as they were: %s" % ("yes" if same else "NO"))


def bench_responsive(bench):
    """The responsive page beside the buttons page: 500 Frames with 20 sprites each, pictures of another quality."""
    project = bench.project("save-500", frames=500, sprites=20, quality=85)
    pictures = bench.path("pictures")
    extract_pictures(project, pictures)
    webp = 'ls "$0"/*.jpg | xargs -P2 -I{} convert {} -quality 82 "$1"/picture.webp'
    results = compare(bench.repeat, {
        "buttons": bench.cli("page", project, "--type", "1"),
        "responsive": bench.cli("page", project, "--type", "5"),
        "webp": ["sh", "-c", webp, pictures, bench.work],
    })
    buttons, webp = results["buttons"], results["webp"]
    bench.row("nubivane-cli page --type 1", buttons)
    bench.row("500 pictures as WebP by convert, two at a time", webp)
    bench.row("nubivane-cli page --type 5", results["responsive"],
              "%.2f times 1.3 of the first and the second"
              % (results["responsive"].wall / (1.3 * buttons.wall + webp.wall)))


def bench_grow(bench):
    """The whole program at 100 to 800 Frames with small pictures that are passed on."""
    for frames in (100, 200, 400, 800):
        project = bench.project("grow-%d" % frames, frames=frames, sprites=20, quality=92,
                                width=80, height=60)
        results = compare(bench.repeat, {
            "show": bench.cli("show", project),
            "page": bench.cli("page", project),
            "save": bench.cli("save", project, bench.path("saved.nvpf")),
        })
        for name, result in results.items():
            bench.row("%s, %d Frames" % (name, frames), result,
                      "%.3f ms a Frame" % (1000 * result.wall / frames))


def bench_show(bench):
    """100,000 sprites, half of them Symbols and half Labels, on 50 Frames."""
    project = bench.project("show-100000", frames=50, sprites=2000, width=80, height=60)
    results = compare(bench.repeat, {
        "show": bench.cli("show", project),
        "python": ["python3", "-c", PARSE_AND_DUMP, project],
        "xmllint": ["xmllint", "--noout", project],
    })
    ours = results["show"]
    bench.row("nubivane-cli show", ours, "XML of %.1f MB" % (os.path.getsize(project) / 1e6))
    bench.peer("Python's xml.etree and json", results["python"], ours)
    bench.peer("xmllint --noout", results["xmllint"], ours)


def bench_start(bench):
    """Start of the program: medians of 50 runs."""
    program = os.path.join(bench.build, "Nubivane", "nubivane-cli")
    results = compare(50, {
        "version": [program, "--version"],
        "settings": bench.cli("settings", "get", "a", "b", "c"),
        "true": ["/bin/true"],
    })
    ours = results["version"]
    bench.row("nubivane-cli --version", ours, "wanted: under 0.050 s")
    bench.row("nubivane-cli settings get", results["settings"])
    bench.peer("/bin/true", results["true"], ours)


BENCHMARKS = {"save": bench_save, "page": bench_page,
              "responsive": bench_responsive, "grow": bench_grow, "show": bench_show,
              "start": bench_start}


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("build")
    parser.add_argument("work")
    parser.add_argument("names", nargs="*", metavar="NAME", help=", ".join(BENCHMARKS))
    parser.add_argument("--repeat", type=int, default=5)
    arguments = parser.parse_args()
    bench = Bench(os.path.abspath(arguments.build), os.path.abspath(arguments.work),
                  arguments.repeat)
    for name in arguments.names or BENCHMARKS:
        print("%s: %s" % (name, BENCHMARKS[name].__doc__))
        print("  %-46s %8s %8s %8s %7s" % ("", "median s", "best s", "CPU s", "peak MB"))
        BENCHMARKS[name](bench)
        print(flush=True)


if __name__ == "__main__":
    main()
