#!/usr/bin/python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Asks whether the tests would notice: makes random mutants of the engine's sources, one small fault each, builds
the tests of the folder and runs them. A mutant that no test notices has survived.

    scripts/mutants.py --count 60 --seed 7 src/engine/gif src/engine/picture/image_ex.cpp

The faults: a comparison is moved or turned round, a condition is negated, "and" becomes "or", a sum a difference,
a number one more or less, true false; a statement is left out. The same seed and the same sources give the same mutants.

The files are changed where they stand and put back at the end, whatever ends it, so it is best run in a tree of its
own ("git worktree add ../mutants"); files with changes that are not committed are refused. Mutants that
the compiler refuses do not count. A survivor that does nothing else than the original is named, with its reason, in
tests/equivalent_mutants.txt, and does not count either."""

import argparse
import os
import random
import re
import signal
import subprocess
import sys
import time
from pathlib import Path

ROOT = Path(__file__).resolve().parent.parent
EQUIVALENT = ROOT / "tests/equivalent_mutants.txt"
# Folders whose faults the tests of another folder find too.
OTHER_TESTS = {"video": ["video", "export"]}
# What is there for the reader alone, or changes nothing that a test may ask for.
HARMLESS = re.compile(r"^\s*(#|//|using |namespace |static_assert|Q_OBJECT|Q_DECLARE)|\breserve\(|\.squeeze\(")


def main():
    options = parse_arguments()
    files = find_sources(options.paths)
    refuse_changed(files)
    equivalent = read_equivalent()
    places = [place for file in files for place in places_in(file)]
    random.Random(options.seed).shuffle(places)
    if options.only:
        places = [place for place in places if place.name() in options.only]
    if not places:
        sys.exit("there is nothing to change in these files")
    build = Build(options)
    build.prepare({test for file in files for test in tests_of(file)})
    signal.signal(signal.SIGTERM, lambda *_: sys.exit(143))
    run(places, equivalent, build, options)


def parse_arguments():
    parser = argparse.ArgumentParser(description=__doc__.split("\n\n")[0])
    parser.add_argument("paths", nargs="*", default=["src/engine"], help="sources or folders of src/engine")
    parser.add_argument("--count", type=int, default=30, help="mutants that compile")
    parser.add_argument("--seed", type=int, default=1)
    parser.add_argument("--build", default="build/mutants", help="the build folder")
    parser.add_argument("--cmake", action="append", default=[], help="an option for cmake, such as -DA=B")
    parser.add_argument("--jobs", type=int, default=os.cpu_count())
    parser.add_argument("--timeout", type=int, default=120, help="seconds for the tests of one mutant")
    parser.add_argument("--only", action="append", help="one mutant by its printed name, once more")
    return parser.parse_args()


class Place:
    """One fault at one place of a file."""

    def __init__(self, file, line, start, end, text, new):
        self.file, self.line, self.start, self.end = file, line, start, end
        self.old, self.new = text[start:end], new
        self.source = text

    def name(self):
        """Tells the mutant from all others, also when lines before it come and go."""
        begin = self.source.rfind("\n", 0, self.start) + 1
        end = self.source.find("\n", self.start)
        where = " ".join(self.source[begin:end].split())
        return f"{self.file.relative_to(ROOT / 'src/engine')}: {where} [{shown(self.old)} -> {shown(self.new)}]"

    def apply(self):
        self.file.write_text(self.source[:self.start] + self.new + self.source[self.end:])

    def revert(self):
        self.file.write_text(self.source)


def shown(text):
    text = " ".join(text.split())
    return text if len(text) <= 60 else text[:57] + "..."


def find_sources(paths):
    files = []
    for path in map(lambda text: (ROOT / text).resolve(), paths):
        found = [path] if path.is_file() else sorted(path.rglob("*.cpp"))
        if not found or any(not file.is_relative_to(ROOT / "src/engine") for file in found):
            sys.exit(f"{path}: no source of the engine")
        files += found
    return [file for file in files if all((ROOT / "tests/engine" / folder).is_dir() for folder in folders_of(file))]


def folders_of(file):
    folder = file.relative_to(ROOT / "src/engine").parts[0]
    return OTHER_TESTS.get(folder, [folder])


def tests_of(file):
    return [f"engine_{folder}_tests" for folder in folders_of(file)]


def refuse_changed(files):
    changed = subprocess.run(["git", "status", "--porcelain", "--", *map(str, files)], cwd=ROOT, check=True,
                             capture_output=True, text=True).stdout
    if changed:
        sys.exit("these files have changes that are not committed:\n" + changed)


def read_equivalent():
    """The names of mutants that differ in nothing, a reason in the comment above each."""
    if not EQUIVALENT.exists():
        return set()
    return {line.strip() for line in EQUIVALENT.read_text().splitlines() if line.strip() and not line.startswith("#")}


def masked(text):
    """The text with blanks in the place of comments and of what stands in quotes, of the same length."""
    kept = re.compile(r'//[^\n]*|/\*.*?\*/|R"\((?:.|\n)*?\)"|"(?:\\.|[^"\\\n])*"|(?<![0-9a-fA-F])\'(?:\\.|[^\'\\\n])+\'', re.S)
    return kept.sub(lambda match: re.sub(r"[^\n]", " ", match.group()), text)


COMPARISONS = {"<": "<=", "<=": "<", ">": ">=", ">=": ">", "==": "!=", "!=": "=="}
WORDS = {"true": "false", "false": "true", "std::min": "std::max", "std::max": "std::min", "qMin": "qMax",
         "qMax": "qMin", "begin()": "end()"}


def places_in(file):
    text = file.read_text()
    code = masked(text)
    found = []
    offset = 0
    for number, line in enumerate(code.split("\n"), 1):
        if not HARMLESS.search(line):
            for start, end, new in faults_of(line):
                found.append(Place(file, number, offset + start, offset + end, text, new))
        offset += len(line) + 1
    found += removed_statements(file, text, code)
    return found


def faults_of(line):
    """(start, end, replacement) of each fault within one line."""
    for match in re.finditer(r"(?<=\s)(<=|>=|==|!=|<|>)(?=\s)", line):
        yield match.start(), match.end(), COMPARISONS[match.group()]
    for match in re.finditer(r"(?<=\s)(&&|\|\|)(?=\s)", line):
        yield match.start(), match.end(), "||" if match.group() == "&&" else "&&"
    for match in re.finditer(r"(?<=[\w)\]] )([+*/%-])(?= [\w(])", line):
        yield match.start(), match.end(), {"+": "-", "-": "+", "*": "+", "/": "*", "%": "/"}[match.group()]
    for match in re.finditer(r"(?<=[\w)\]] )([+-])=(?= )", line):
        yield match.start(), match.end(), "-=" if match.group() == "+=" else "+="
    for match in re.finditer(r"\b(true|false|std::min|std::max|qMin|qMax)\b", line):
        yield match.start(), match.end(), WORDS[match.group()]
    for match in re.finditer(r"(?<![\w.#])(\d+)(?![\w.'])", line):
        yield match.start(), match.end(), str(int(match.group()) + 1)
        if int(match.group()) > 1:
            yield match.start(), match.end(), str(int(match.group()) - 1)
    for match in re.finditer(r"\b(?:if|while) \(", line):
        end = closing(line, match.end() - 1)
        inner = line[match.end():end] if end else ""
        if inner and ";" not in inner and not re.match(r"(const |auto |!?std::optional|[A-Za-z:<>]+[&*]? \w+ = )", inner):
            yield match.end(), end, f"!({inner.strip()})"


def closing(line, at):
    """Where the bracket that opens at a place is closed; None when that is on another line."""
    depth = 0
    for i in range(at, len(line)):
        depth += {"(": 1, ")": -1}.get(line[i], 0)
        if depth == 0:
            return i
    return None


def removed_statements(file, text, code):
    """Calls and assignments on lines of their own."""
    found = []
    offset = 0
    lines = code.split("\n")
    for number, line in enumerate(lines, 1):
        before = lines[number - 2].rstrip() if number > 1 else ""
        whole = re.match(r"\s+([\w.>\-\[\]:()]+(?:\(.*\)| [+\-|&]?= .*|\+\+)|\+\+[\w.]+|break|continue);$", line)
        begins = before == "" or before.endswith((";", "{", "}", ":")) or before.endswith(")")
        if whole and begins and not HARMLESS.search(line) and not line.strip().startswith(("return", "throw", "~")):
            start = offset + len(line) - len(line.lstrip())
            # An empty block, so that an "if" before it keeps one.
            found.append(Place(file, number, start, offset + len(line), text, "{}"))
        offset += len(line) + 1
    return found


class Build:
    def __init__(self, options):
        self.folder = (ROOT / options.build).resolve()
        self.options = options

    def prepare(self, tests):
        self.must(["cmake", "--preset", "debug", "-B", str(self.folder), *self.options.cmake])
        self.must(self.ninja(sorted(tests)))
        for test in sorted(tests):
            if not self.passes(test):
                sys.exit(f"{test} fails before anything was changed")

    def must(self, command):
        if subprocess.run(command, cwd=ROOT, stdout=subprocess.DEVNULL).returncode != 0:
            sys.exit("failed: " + " ".join(command))

    def ninja(self, tests):
        return ["ninja", "-C", str(self.folder), "-j", str(self.options.jobs), *tests]

    def compiles(self, tests):
        return subprocess.run(self.ninja(tests), cwd=ROOT, stdout=subprocess.DEVNULL).returncode == 0

    def passes(self, test):
        """False also for a crash and for tests that do not end."""
        environment = dict(os.environ, QT_QPA_PLATFORM="offscreen")
        program = subprocess.Popen([str(self.folder / "tests" / test), "--gtest_fail_fast", "--gtest_brief=1"],
                                   cwd=ROOT, env=environment, stdout=subprocess.DEVNULL, stderr=subprocess.DEVNULL,
                                   start_new_session=True)
        try:
            return program.wait(self.options.timeout) == 0
        except subprocess.TimeoutExpired:
            return False
        finally:
            end_group(program)


def end_group(program):
    """Ends what the tests have started too."""
    try:
        os.killpg(program.pid, signal.SIGKILL)
    except ProcessLookupError:
        pass
    program.wait()


def run(places, equivalent, build, options):
    survivors = []
    killed = 0
    known = 0
    for place in places:
        if killed + len(survivors) == options.count:
            break
        started = time.time()
        verdict = verdict_on(place, equivalent, build)
        print(f"{verdict:11} {time.time() - started:4.0f} s  line {place.line} of {place.name()}", flush=True)
        killed += verdict == "killed"
        known += verdict == "equivalent"
        if verdict == "SURVIVED":
            survivors.append(place)
    report(survivors, killed, known)


def verdict_on(place, equivalent, build):
    if place.name() in equivalent:
        return "equivalent"
    tests = tests_of(place.file)
    try:
        place.apply()
        # The tests are linked anew only where the mutant compiles.
        if not build.compiles(tests):
            return "no program"
        return "SURVIVED" if all(build.passes(test) for test in tests) else "killed"
    finally:
        place.revert()


def report(survivors, killed, known):
    total = killed + len(survivors)
    if total == 0:
        sys.exit("no mutant compiled")
    print(f"\n{killed} of {total} mutants were noticed: {100 * killed / total:.0f} %"
          f" ({known} that change nothing are not counted)")
    for place in survivors:
        print(f"  survived: line {place.line} of {place.name()}")


if __name__ == "__main__":
    main()
