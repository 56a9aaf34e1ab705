#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Compares the pictures that move, and stills, of nubivane-cli with those of public tools.

animations.py BUILD WORK [NAME ...] [--repeat N] runs the named benchmarks (all by default): gif,
long, video, still. All encode the same pictures: the captures that
nubivane-cli itself takes, handed to the peers as PNG. Five numbers count at once: bytes; PSNR;
PSNR after a slight blur, which is where bands show; flicker, the share of pixels that stand still in
the pictures and change in the GIF; and seconds. Needs ffmpeg, gifsicle, ImageMagick, Pillow, numpy.
"""
import argparse
import glob
import json
import os
import shlex
import shutil
import subprocess
import sys

import numpy
from PIL import Image, ImageFilter

from measure import compare

HERE = os.path.dirname(os.path.abspath(__file__))


def decoded(path, folder):
    """The images of a GIF or video as ffmpeg shows them."""
    shutil.rmtree(folder, ignore_errors=True)
    os.makedirs(folder)
    subprocess.run(["ffmpeg", "-v", "error", "-i", path, "-vsync", "0", "-pix_fmt", "rgb24",
                    os.path.join(folder, "%04d.png")], check=True)
    return [Image.open(file).convert("RGB") for file in sorted(glob.glob(folder + "/*.png"))]


def psnr(pairs):
    squares = [numpy.mean((numpy.asarray(a, float) - numpy.asarray(b, float)) ** 2)
               for a, b in pairs]
    mean = numpy.mean(squares)
    return 99.99 if mean == 0 else 10 * numpy.log10(255 ** 2 / mean)


def blurred(image):
    return image.filter(ImageFilter.GaussianBlur(1.5))


def flicker(truth, shown):
    """Per mille of the pixels that stand still from one picture to the next and yet change."""
    still = changed = 0
    for i in range(1, len(truth)):
        same = (numpy.asarray(truth[i]) == numpy.asarray(truth[i - 1])).all(axis=2)
        moved = (numpy.asarray(shown[i]) != numpy.asarray(shown[i - 1])).any(axis=2)
        still += same.sum()
        changed += (same & moved).sum()
    return 1000 * changed / max(1, still)


class Bench:
    def __init__(self, build, work, repeat):
        self.work, self.repeat = work, repeat
        self.program = os.path.join(build, "Nubivane")
        self.cli_path = os.path.join(self.program, "nubivane-cli")

    def path(self, name):
        return os.path.join(self.work, name)

    def cli(self, *words):
        return [self.cli_path, "--settings", self.path("settings.ini"), *words]

    def peers(self, folder, delay):
        """Commands by name; each writes OUT.gif."""
        rate = "%g" % (100 / delay)
        pictures = ["-framerate", rate, "-i", folder + "/%04d.png"]
        palette = self.path("palette.png")

        def ffmpeg(dither):
            out = self.path("ffmpeg-%s.gif" % dither.split(":")[0])
            make = ["ffmpeg", "-v", "error", "-y", *pictures, "-vf", "palettegen", palette]
            use = ["ffmpeg", "-v", "error", "-y", *pictures, "-i", palette, "-lavfi",
                   "paletteuse=dither=" + dither, out]
            return out, "%s && %s" % (quoted(make), quoted(use))

        commands = {"ffmpeg " + d: ffmpeg(d) for d in ("none", "sierra2_4a", "bayer:bayer_scale=3")}
        # A palette for each image: the nearest to what encoders of high quality do.
        out = self.path("ffmpeg-each.gif")
        graph = ("split[a][b];[a]palettegen=stats_mode=single[p];"
                 "[b][p]paletteuse=new=1:dither=sierra2_4a")
        commands["ffmpeg, a palette for each image"] = out, quoted(
            ["ffmpeg", "-v", "error", "-y", *pictures, "-lavfi", graph, out])
        out = self.path("magick.gif")
        commands["ImageMagick"] = out, quoted(["convert", "-delay", "%g" % delay, "-loop", "0",
                                               folder + "/*.png", "-layers", "OptimizeFrame", out])
        for name, (out, command) in list(commands.items()):
            optimized = out[:-4] + "-o3.gif"
            commands[name + " + gifsicle -O3"] = optimized, "%s && %s" % (
                command, quoted(["gifsicle", "-w", "-O3", out, "-o", optimized]))
        return commands


def quoted(words):
    """A shell command; patterns of file names stay open to the shell."""
    return " ".join(word if "*" in word else shlex.quote(word) for word in words)


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("build")
    parser.add_argument("work")
    parser.add_argument("names", nargs="*", default=[])
    parser.add_argument("--repeat", type=int, default=3)
    options = parser.parse_args()
    bench = Bench(os.path.abspath(options.build), os.path.abspath(options.work), options.repeat)
    os.makedirs(bench.work, exist_ok=True)
    for kind in ("flat", "shaded"):
        subprocess.run([sys.executable, os.path.join(HERE, "make_frame.py"), kind, bench.program,
                        bench.work], check=True)
    benchmarks = {"gif": gifs, "long": growth, "video": videos, "still": stills}
    for name in options.names or benchmarks:
        benchmarks[name](bench)


def take_captures(bench, name, verb):
    """The captures of a project as PNG files in a folder of its own; returns the folder."""
    folder = bench.path(name)
    shutil.rmtree(folder, ignore_errors=True)
    os.makedirs(folder)
    subprocess.run([os.path.join(os.path.dirname(bench.program), "bench", "bench_captures"),
                    bench.program, bench.path(name + ".nvpf"), verb, folder], check=True)
    return folder


def pictures_in(folder):
    return [Image.open(file).convert("RGB") for file in sorted(glob.glob(folder + "/*.png"))]


def gifs(bench):
    for kind in ("flat", "shaded"):
        measure(bench, kind, "one", "anigif", 10)
        measure(bench, kind, "film", "film", 100)


def measure(bench, kind, what, verb, delay):
    name = "%s-%s" % (kind, what)
    project = bench.path(name + ".nvpf")
    folder = take_captures(bench, name, verb)
    truth = pictures_in(folder)
    soft = [blurred(image) for image in truth]
    frame = ["1"] if verb == "anigif" else []
    peers = bench.peers(folder, delay)
    ours, fine = bench.path(name + ".gif"), bench.path(name + "-fine.gif")
    commands = {"nubivane-cli": bench.cli(verb, project, *frame, ours),
                "nubivane-cli --fine": bench.cli(verb, project, *frame, fine, "--fine")}
    commands.update({name: ["sh", "-c", command] for name, (_, command) in peers.items()})
    results = compare(bench.repeat, commands)
    print("%s map, %s, %d images" % (kind, verb, len(truth)))
    print("  %-46s %8s %6s %6s %8s %6s %6s" % ("", "bytes", "PSNR", "soft", "flicker", "s", "CPU"))
    files = {"nubivane-cli": ours, "nubivane-cli --fine": fine,
             **{name: out for name, (out, _) in peers.items()}}
    for name, file in files.items():
        shown = decoded(file, bench.path("decoded"))
        if len(shown) < len(truth):
            print("  %-46s has %d images of %d" % (name, len(shown), len(truth)))
            continue
        print("  %-46s %8d %6.2f %6.2f %8.3f %6.2f %6.2f" % (
            name, os.path.getsize(file), psnr(zip(truth, shown)),
            psnr(zip(soft, map(blurred, shown))), flicker(truth, shown), results[name].wall,
            results[name].cpu), flush=True)


def growth(bench):
    """Time and memory of long animations."""
    print("long animations, shaded map of 800 x 600, captures")
    for captures in (125, 250, 500, 1000):
        name = "long-%d" % captures
        results = compare(max(1, bench.repeat // 2), {name: bench.cli(
            "anigif", bench.path(name + ".nvpf"), "1", bench.path(name + ".gif"))})
        print("  %5d %8.2f s %8.2f ms each %7.1f MB at most %9d bytes" % (
            captures, results[name].wall, 1000 * results[name].wall / captures,
            results[name].peak, os.path.getsize(bench.path(name + ".gif"))), flush=True)


def videos(bench):
    """The same frames by the same codecs."""
    folder = take_captures(bench, "shaded-one", "anigif")
    truth = pictures_in(folder)
    pictures = ["ffmpeg", "-v", "error", "-y", "-framerate", "10", "-i", folder + "/%04d.png"]
    peers = {"avi": [*pictures, "-c:v", "mjpeg", "-q:v", "2", "-pix_fmt", "yuvj444p"],
             "mp4": [*pictures, "-c:v", "libx264", "-crf", "18", "-pix_fmt", "yuv420p",
                     "-movflags", "+faststart"]}
    print("shaded map, %d images" % len(truth))
    print("  %-46s %8s %6s %6s %6s" % ("", "bytes", "PSNR", "s", "CPU"))
    for verb, peer in peers.items():
        files = {"nubivane-cli " + verb: bench.path("ours." + verb),
                 "ffmpeg " + verb: bench.path("ffmpeg." + verb)}
        ours, theirs = files
        results = compare(bench.repeat, {
            ours: bench.cli(verb, bench.path("shaded-one.nvpf"), "1", files[ours]),
            theirs: [*peer, files[theirs]]})
        for name, file in files.items():
            shown = decoded(file, bench.path("decoded"))
            print("  %-46s %8d %6.2f %6.2f %6.2f" % (
                name, os.path.getsize(file), psnr(zip(truth, shown)), results[name].wall,
                results[name].cpu), flush=True)


def magick_stills(description, folder, ending):
    """A shell script that draws each still by one run of ImageMagick."""
    with open(description) as file:
        what = json.load(file)
    lines = ["set -e"]
    for number, (symbols, labels) in enumerate(zip(what["symbols"], what["labels"]), 1):
        words = ["convert", what["map"]]
        for path, x, y in symbols:
            words += [path + "[0]", "-geometry", "+%d+%d" % (x, y), "-composite"]
        words += ["-font", "Liberation-Sans", "-pointsize", "16", "-fill", "red"]
        for text, x, y in labels:
            words += ["-annotate", "+%d+%d" % (x, y + 14), text]
        lines.append(quoted([*words, os.path.join(folder, "%03d.%s" % (number, ending))]))
    return "\n".join(lines)


def stills(bench):
    """A hundred stills of a map, 8 symbols and 4 labels."""
    print("100 stills of 800 x 600")
    print("  %-46s %8s %6s %6s" % ("", "bytes", "s", "CPU"))
    for ending in ("png", "jpg", "bmp"):
        folders = {name: bench.path("stills-" + name) for name in ("ours", "pillow", "magick")}
        for folder in folders.values():
            shutil.rmtree(folder, ignore_errors=True)
            os.makedirs(folder)
        results = compare(bench.repeat, {
            "ours": bench.cli("still", bench.path("stills.nvpf"), "all",
                              os.path.join(folders["ours"], "%d." + ending)),
            "pillow": [sys.executable, os.path.join(HERE, "stills_pillow.py"),
                       bench.path("stills.json"), folders["pillow"], ending],
            "magick": ["sh", "-c", magick_stills(bench.path("stills.json"), folders["magick"],
                                                 ending)]})
        for name, title in (("ours", "nubivane-cli"), ("pillow", "Pillow"),
                            ("magick", "ImageMagick")):
            size = sum(entry.stat().st_size for entry in os.scandir(folders[name]))
            print("  %-46s %8d %6.2f %6.2f" % (title + ", " + ending, size, results[name].wall,
                                               results[name].cpu), flush=True)


if __name__ == "__main__":
    main()
