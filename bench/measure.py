# SPDX-License-Identifier: GPL-3.0-or-later
"""Runs programs and tells what they took."""
import os
import statistics
import subprocess
import sys
import time
from dataclasses import dataclass, field


@dataclass
class Run:
    """One run, or the medians of several with the best of them. Seconds and megabytes."""
    wall: float
    best: float
    cpu: float
    peak: float
    outputs: list = field(default_factory=list)


def run(command, keep_output=False):
    """Runs a command to its end and stops everything when it fails.

    A child's peak counts from before it becomes the other program: it is never below this process's
    own size at that moment, some 15 MB.
    """
    with open("/proc/self/clear_refs", "w") as peak:
        peak.write("5")  # sets this process's own peak back to its present size
    start = time.perf_counter()
    child = subprocess.Popen(command, stdout=subprocess.PIPE if keep_output else subprocess.DEVNULL)
    output = child.stdout.read() if keep_output else b""
    _, status, usage = os.wait4(child.pid, 0)
    wall = time.perf_counter() - start
    child.returncode = os.waitstatus_to_exitcode(status)
    if child.returncode != 0:
        sys.exit("failed with %d: %s" % (child.returncode, " ".join(command)))
    return Run(wall, wall, usage.ru_utime + usage.ru_stime, usage.ru_maxrss / 1024, [output])


def median(runs):
    return Run(statistics.median(r.wall for r in runs), min(r.wall for r in runs),
               statistics.median(r.cpu for r in runs), max(r.peak for r in runs),
               [output for r in runs for output in r.outputs])


def compare(repeat, commands, before=lambda: None, listen=()):
    """Runs named commands in turn, `repeat` times, so that all meet the same machine. `before` is
    called before each, and the disk has come to rest. Keeps what the commands named in `listen`
    print. Returns the medians by name."""
    runs = {name: [] for name in commands}
    for _ in range(repeat):
        for name, command in commands.items():
            before()
            os.sync()
            runs[name].append(run(command, keep_output=name in listen))
    return {name: median(list_of_runs) for name, list_of_runs in runs.items()}
