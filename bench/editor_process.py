#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Measures the editor as a process on a display of its own: how long it takes from its start to a
window that can be used, and what it costs while nobody touches it.

    editor_process.py BUILD_FOLDER WORK_FOLDER [--repeat N]

Needs Xvfb and xdotool, and /proc for the CPU's share.
"""
import argparse
import contextlib
import glob
import os
import shutil
import statistics
import subprocess
import sys
import time

import make_project

COLLECTIONS = 20
SYMBOLS = 100  # in each collection
PLAYING = 50   # symbols on the map
SPLASH = 1.5   # seconds for which the splash stands, whatever the machine
IDLE = 10      # seconds over which the idle editor is watched


def program_folder(build, work):
    """The built program with 20 collections of moving symbols, all of them in the palette."""
    folder = os.path.join(work, "editor")
    shutil.rmtree(folder, ignore_errors=True)
    shutil.copytree(os.path.join(build, "Nubivane"), folder,
                    ignore=shutil.ignore_patterns("Symbols", "Web", "*.htm", "*.js"))
    moving = sorted(glob.glob(os.path.join(build, "Nubivane", "Symbols", "*", "*.gif")))
    names = ["sky"] + ["set-%02d" % number for number in range(2, COLLECTIONS + 1)]
    for name in names:
        collection = os.path.join(folder, "Symbols", name)
        os.makedirs(collection)
        for number in range(SYMBOLS):
            shutil.copy(moving[number % len(moving)], "%s/%03d.gif" % (collection, number))
    for (_, file), source in zip(make_project.SYMBOLS, moving[::7]):
        shutil.copy(source, os.path.join(folder, "Symbols", "sky", file))
    return folder, names


def environment(work, display):
    home = os.path.join(work, "home")
    shutil.rmtree(home, ignore_errors=True)
    os.makedirs(home, mode=0o700)
    return dict(os.environ, HOME=home, XDG_CONFIG_HOME=home, XDG_RUNTIME_DIR=home, DISPLAY=display,
                QT_QPA_PLATFORM="xcb", QT_STYLE_OVERRIDE="Fusion")


def start_display():
    reader, writer = os.pipe()
    server = subprocess.Popen(["Xvfb", "-noreset", "-displayfd", str(writer), "-screen", "0",
                               "1280x1024x24", "-nolisten", "tcp"], pass_fds=[writer],
                              stderr=subprocess.DEVNULL)
    os.close(writer)
    with os.fdopen(reader) as number:
        return server, ":" + number.readline().strip()


def wait_for_window(process, env):
    """Until the main window is shown; it is then ready for input."""
    while True:
        found = subprocess.run(["xdotool", "search", "--onlyvisible", "--name", " - Nubivane$"],
                               env=env, capture_output=True, check=False)
        if found.stdout.strip():
            return time.perf_counter()
        if process.poll() is not None:
            sys.exit("the editor ended by itself")


def cpu_seconds(process):
    with open("/proc/%d/stat" % process.pid, encoding="ascii") as file:
        fields = file.read().rpartition(")")[2].split()
    return (int(fields[11]) + int(fields[12])) / os.sysconf("SC_CLK_TCK")


@contextlib.contextmanager
def editor(folder, env, *arguments):
    """The editor and the seconds until its window stood, the splash not counted."""
    start = time.perf_counter()
    process = subprocess.Popen([os.path.join(folder, "Nubivane"), *arguments], env=env,
                               stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL)
    try:
        yield process, wait_for_window(process, env) - start - SPLASH
    finally:
        process.kill()
        process.wait()


def time_start(folder, env):
    """With no project, so that the palette shows the collections of the settings."""
    with editor(folder, env) as (_, seconds):
        return seconds


def idle_share(folder, env, project):
    """The part of a core that the editor takes with all symbols playing."""
    with editor(folder, env, project) as (process, _):
        time.sleep(3)  # thumbnails that came into sight are loaded by then
        before, since = cpu_seconds(process), time.perf_counter()
        time.sleep(IDLE)
        return (cpu_seconds(process) - before) / (time.perf_counter() - since)


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("build")
    parser.add_argument("work")
    parser.add_argument("--repeat", type=int, default=7)
    arguments = parser.parse_args()
    os.makedirs(arguments.work, exist_ok=True)
    folder, names = program_folder(arguments.build, os.path.abspath(arguments.work))
    project = os.path.join(os.path.abspath(arguments.work), "playing.nvpf")
    make_project.write_project(project, 1, 2 * PLAYING, 85, 800, 600)

    server, display = start_display()
    try:
        env = environment(os.path.abspath(arguments.work), display)
        for number, name in enumerate(names, 1):
            subprocess.run([os.path.join(folder, "nubivane-cli"), "settings", "set",
                            "Nubivane\\6.0.0\\Settings", "Symbols collection", str(number), name],
                           env=env, check=True)
        starts = [time_start(folder, env) for _ in range(arguments.repeat)]
        idle = idle_share(folder, env, project)
    finally:
        server.terminate()
        server.wait()
    print("start to a usable window, without the splash, %d collections of %d symbols: "
          "%.0f ms median, %.0f best, %.0f worst; wanted: under 400"
          % (COLLECTIONS, SYMBOLS, 1000 * statistics.median(starts), 1000 * min(starts),
             1000 * max(starts)))
    print("idle with %d playing symbols: %.1f %% of a core; wanted: under 10"
          % (PLAYING, 100 * idle))


if __name__ == "__main__":
    main()
