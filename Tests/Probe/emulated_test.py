"""Proves that each slice of the probe, run in an emulated processor, puts itself before the methods that its sources
name and runs to the end of all its questions, where messages answer nil as well as where they answer an object. A
broken slice would end a phone's home screen.

PACKAGE names the folder that scripts/probe-package has built into."""

import os
import pathlib
import re
import sys
import unittest

ROOT = pathlib.Path(__file__).resolve().parents[2]
sys.path[:0] = [str(ROOT / "Tests/Package"), str(ROOT / "Packaging/device")]

import processor  # noqa: E402

import macho  # noqa: E402
import objc_metadata  # noqa: E402
from phone import Phone  # noqa: E402

LIBRARY = pathlib.Path(os.environ["PACKAGE"]) / "root/Library/MobileSubstrate/DynamicLibraries/PendixProbe.dylib"
SLICES = macho.slices(LIBRARY)
WATCHED = re.findall(r'watch<\d+,[^>]*>\("(\w+)", "([^"]+)"\)', (ROOT / "Probe/Calls.mm").read_text("utf-8"))
LAUNCH = ("SpringBoard", "applicationDidFinishLaunching:")


def installed(file, **missing):
    return [(row.target, row.selector) for row in Phone(file, **missing).start().installed]


def run(file, objects):
    """Runs every replacement, and every method of the class that asks; {what ran: messages sent}."""
    phone, sent = Phone(file).start(), {}
    phone.answer = phone.object if objects else 0
    entries = [(f"{row.target} {row.selector}", row.replacement) for row in phone.installed]
    methods = objc_metadata.Metadata(file).classes["PendixProbe"].methods
    entries += [(selector, method.implementation + processor.SLIDE) for selector, method in methods.items()]
    for name, implementation in entries:
        before = len(phone.messages)
        phone.processor.call(implementation, phone.object, 0, 0, 0)
        sent[name] = len(phone.messages) - before
    return sent


class Slices(unittest.TestCase):
    def test_the_methods_watched_are_those_of_the_sources(self):
        self.assertGreater(len(WATCHED), 15)
        for file in SLICES:
            self.assertEqual(installed(file), [*WATCHED, LAUNCH], file.architecture)

    def test_what_a_system_lacks_is_left_alone(self):
        for file in SLICES:
            self.assertEqual(installed(file, missing_classes={"SpringBoard"}), [], file.architecture)
            rows = installed(file, missing_methods={WATCHED[3]}, missing_classes={"SBBannerController"})
            self.assertEqual(rows, [row for row in [*WATCHED, LAUNCH]
                                    if row != WATCHED[3] and row[0] != "SBBannerController"], file.architecture)

    def test_everything_runs_to_its_end(self):
        for file in SLICES:
            for objects in (False, True):
                sent = run(file, objects)
                self.assertGreater(sent["-look"], 100, (file.architecture, objects))


if __name__ == "__main__":
    unittest.main()
