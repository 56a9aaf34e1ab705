#!/usr/bin/env python3
"""Compares the animated GIFs and videos of nubivane-cli with those of public tools.

animations.py BUILD WORK [--repeat N]. All encode the same pictures: the captures that
nubivane-cli itself takes, handed to the peers as PNG. Five numbers count at once: bytes; PSNR;
PSNR after a slight blur, which is where bands show; flicker, the share of pixels that stand still in
the pictures and change in the GIF; and seconds. Needs ffmpeg, gifsicle, ImageMagick, Pillow, numpy.
"""
import argparse
import glob
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
    parser.add_argument("--repeat", type=int, default=3)
    options = parser.parse_args()
    bench = Bench(os.path.abspath(options.build), os.path.abspath(options.work), options.repeat)
    os.makedirs(bench.work, exist_ok=True)
    for kind in ("flat", "shaded"):
        subprocess.run([sys.executable, os.path.join(HERE, "make_frame.py"), kind, bench.program,
                        bench.work], check=True)
        measure(bench, kind, "one", "anigif", 10)
        measure(bench, kind, "film", "film", 100)


def measure(bench, kind, what, verb, delay):
    project = bench.path("%s-%s.nvpf" % (kind, what))
    folder = bench.path("%s-%s" % (kind, what))
    ours = bench.path("%s-%s.gif" % (kind, what))
    shutil.rmtree(folder, ignore_errors=True)
    os.makedirs(folder)
    subprocess.run([os.path.join(os.path.dirname(bench.program), "bench", "bench_captures"),
                    bench.program, project, verb, folder], check=True)
    truth = [Image.open(file).convert("RGB") for file in sorted(glob.glob(folder + "/*.png"))]
    soft = [blurred(image) for image in truth]
    frame = ["1"] if verb == "anigif" else []
    peers = bench.peers(folder, delay)
    commands = {"nubivane-cli": bench.cli(verb, project, *frame, ours)}
    commands.update({name: ["sh", "-c", command] for name, (_, command) in peers.items()})
    results = compare(bench.repeat, commands)
    print("%s map, %s, %d images" % (kind, verb, len(truth)))
    print("  %-46s %8s %6s %6s %8s %6s" % ("", "bytes", "PSNR", "soft", "flicker", "s"))
    files = {"nubivane-cli": ours, **{name: out for name, (out, _) in peers.items()}}
    for name, file in files.items():
        shown = decoded(file, bench.path("decoded"))
        if len(shown) < len(truth):
            print("  %-46s has %d images of %d" % (name, len(shown), len(truth)))
            continue
        print("  %-46s %8d %6.2f %6.2f %8.3f %6.2f" % (
            name, os.path.getsize(file), psnr(zip(truth, shown)),
            psnr(zip(soft, map(blurred, shown))), flicker(truth, shown), results[name].wall))


if __name__ == "__main__":
    main()
