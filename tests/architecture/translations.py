#!/usr/bin/env python3
# SPDX-License-Identifier: GPL-3.0-or-later
"""Every sentence of the windows can be translated: what lupdate collects holds each of them."""

import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree as ElementTree

ROOT = pathlib.Path(__file__).resolve().parents[2]
WINDOWS = (ROOT / "src" / "windows", ROOT / "src" / "app")

# Words that no person is shown as a sentence of ours, by the reason.
NOT_FOR_TRANSLATION = {
    # names of fonts
    "Albany AMT", "Courier New", "Cumberland AMT", "Helvetica", "Liberation Mono",
    "Liberation Sans", "Liberation Serif", "Nimbus Mono L", "Nimbus Mono PS", "Nimbus Roman",
    "Nimbus Roman No9 L", "Nimbus Sans", "Nimbus Sans L", "TeX Gyre Cursor", "TeX Gyre Heros",
    "TeX Gyre Termes", "Thorndale AMT", "Times New Roman",
    # series of edits, which only the program compares
    "border color",
    # part of a version's name
    " Beta",
    # widest texts, measured and never shown
    "Element 000",
    # stands in pages, not in windows
    "Powered by nVane ",
    # causes of errors: for reports and the terminal, like all the engine's
    "Type mismatch.", "Cannot print.", "the pen's width is no number of at least 1",
    ": the printer tells of an error",
}

LITERAL = re.compile(r'"((?:[^"\\\n]|\\.)*)"')
RUN = re.compile(r'(?:u?"(?:[^"\\\n]|\\.)*"(?:_s|_L1)?\s*)+')


def without_comments(text):
    """C++ without comments, includes, style sheets and what the terminal or a compiler is told."""
    text = re.sub(r'R"\w*\(.*?\)\w*"', '""', text, flags=re.S)
    text = re.sub(r'^\s*#.*$', "", text, flags=re.M)
    text = re.sub(r'("(?:[^"\\\n]|\\.)*")|//[^\n]*', lambda found: found[1] or "", text)
    return re.sub(r"(?:std::c(?:out|err)|static_assert)\b[^;]*;", "", text)


def literals(text):
    """The texts of C++, neighbours joined as the compiler joins them."""
    for run in RUN.finditer(without_comments(text)):
        joined = "".join(LITERAL.findall(run[0]))
        yield re.sub(r"\\(.)", lambda e: {"n": "\n", "r": "\r", "t": "\t"}.get(e[1], e[1]), joined)


def is_sentence(text):
    if re.search(r"\{ *[\w-]+: ", text):
        return False  # a style sheet
    return re.search(r"[A-Za-z]{2,}[.,:;?]? +[A-Za-z(%]|[A-Za-z%1] [a-z]", text.strip()) is not None


def text_of(source):
    """The text of an element, in which characters that XML cannot hold are elements."""
    text = source.text or ""
    for byte in source:
        text += chr(int(byte.get("value")[1:], 16)) + (byte.tail or "")
    return text


class Translations(unittest.TestCase):
    @classmethod
    def setUpClass(cls):
        lupdate = shutil.which("lupdate", path="/usr/lib/qt6/bin:/usr/bin")
        if not lupdate:
            print("There is no lupdate.")
            sys.exit(77)
        with tempfile.TemporaryDirectory() as folder:
            target = pathlib.Path(folder) / "windows.ts"
            done = subprocess.run(
                [lupdate, "-silent", "-I", ROOT / "src", *WINDOWS, ROOT / "src" / "engine",
                 "-ts", target],
                check=True, capture_output=True, text=True)
            cls.complaints = done.stderr
            messages = ElementTree.parse(target).getroot().iter("message")
            cls.sources = {text_of(message.find("source")) for message in messages}

    def test_the_reader_of_sources_finds_sentences(self):
        self.assertEqual(list(literals('f(u"One "\n  u"two."_s, "x"); // "no"\n')),
                         ["One two.", "x"])
        self.assertTrue(is_sentence("Select file"))
        self.assertTrue(is_sentence("Delete selected map ?"))
        self.assertFalse(is_sentence("mnuFile"))
        self.assertFalse(is_sentence(" ("))

    def test_every_class_that_translates_is_known_by_its_name(self):
        self.assertNotRegex(self.complaints, r"windows/.*(lacks Q_OBJECT|unknown namespace)")

    def test_every_sentence_of_the_windows_is_collected(self):
        lost = []
        for folder in WINDOWS:
            for file in sorted([*folder.rglob("*.cpp"), *folder.rglob("*.h")]):
                for text in literals(file.read_text(encoding="utf-8")):
                    if is_sentence(text) and text not in NOT_FOR_TRANSLATION and text not in self.sources:
                        lost.append(f"{file.relative_to(ROOT)}: {text!r}")
        self.assertFalse(lost, "\n".join(lost))

    def test_captions_of_commands_menus_tools_and_rows_are_collected(self):
        for text in ("Undo", "&File", "Html page", "Back color", "Sets forecast text", "Yes", "No",
                     "Bold italic", "Draw by hand", "Move symbol"):
            self.assertIn(text, self.sources)

    def test_what_tests_see_in_boxes_of_the_windows_is_collected(self):
        own = {text for folder in WINDOWS for file in folder.rglob("*.cpp")
               for text in literals(file.read_text(encoding="utf-8"))}
        asserted = set()
        for file in (ROOT / "tests" / "windows").rglob("*_test.cpp"):
            calls = re.findall(r'expectMessage\(\s*((?:"(?:[^"\\\n]|\\.)*"\s*)+)',
                               file.read_text(encoding="utf-8"))
            for call in calls:
                asserted.update(literals(call))
        self.assertGreater(len(asserted & own), 20)
        self.assertEqual([text for text in sorted(asserted & own) if text not in self.sources], [])

    def test_nothing_is_excused_that_is_not_there(self):
        written = {text for folder in WINDOWS for file in folder.rglob("*.[ch]*")
                   for text in literals(file.read_text(encoding="utf-8"))}
        self.assertEqual(sorted(NOT_FOR_TRANSLATION - written), [])


if __name__ == "__main__":
    unittest.main()
