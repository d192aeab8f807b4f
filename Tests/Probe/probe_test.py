"""Proves that the probe, which phone owners are asked to run, does no harm, answers every question, and that a phone
that differs from the simulated one would be noticed, fact by fact."""

import copy
import os
import pathlib
import plistlib
import re
import subprocess
import sys
import tempfile
import unittest

HERE = pathlib.Path(__file__).resolve().parent
sys.path[:0] = [str(HERE), str(HERE.parents[1] / "Probe")]

import comparison  # noqa: E402
import make_table  # noqa: E402
import recording  # noqa: E402

BUILD = pathlib.Path(os.environ["BUILD"])
SIMULATOR = recording.Simulator(BUILD / "bin/pendix-sim", BUILD / "Probe/root")
ASKING = "var/mobile/Library/Preferences/org.quillhub.pendix.probe.asking.plist"

# A device for every system version; both processors, both idioms, all scales.
DEVICES = {"7.0": "iPhone 4", "7.1": "iPad 2", "8.0": "iPhone 6 Plus", "8.1": "iPhone 6", "8.3": "iPad Air 2"}
RECORDINGS = {version: SIMULATOR.record(device, version) for version, device in DEVICES.items()}


def compared(recorded):
    """What compare.py makes of a recording: its exit status and its lines."""
    with tempfile.NamedTemporaryFile(suffix=".plist") as file:
        file.write(recorded if isinstance(recorded, bytes) else plistlib.dumps(recorded))
        file.flush()
        result = subprocess.run([sys.executable, HERE / "compare.py", "--build", BUILD, file.name], capture_output=True,
                                text=True)
    return result.returncode, (result.stdout + result.stderr).splitlines()


def has(versions, version):
    return any(version == part or version.startswith(part + ".") for part in versions.split("+"))


class Recordings(unittest.TestCase):
    def test_every_question_is_answered_on_every_version(self):
        asked = None
        for version, recorded in RECORDINGS.items():
            given_up = {name for name, value in recorded["values"].items()
                        if value in ("unanswered", "ended the home screen")}
            self.assertEqual(given_up, set(), version)
            self.assertGreater(len(recorded["values"]), 70)
            asked = asked or set(recorded["values"])
            self.assertEqual(set(recorded["values"]), asked, version)

    def test_everything_that_the_extension_can_name_is_asked_for(self):
        wanted = set()
        for name, (methods, variables) in make_table.table().items():
            wanted.add(f"class {name}")
            wanted |= {f"method {method[0]}[{name} {method[1:]}]" for method in methods}
            wanted |= {f"variable {name}.{variable}" for variable in variables}
        for version, recorded in RECORDINGS.items():
            self.assertEqual(set(recorded["declared"]), wanted, version)

    def test_the_simulated_classes_are_as_listed(self):
        different = []
        for version, recorded in RECORDINGS.items():
            for name, method, types, versions in make_table.listed():
                fact = recorded["declared"][f"method {method[0]}[{name} {method[1:]}]"]
                if fact["present"] != has(versions, version):
                    different.append(f"{version}: {name} {method} is {'' if fact['present'] else 'not '}there")
                elif fact["present"] and types != "?" and not comparison.same_types(types, fact["types"]):
                    different.append(f"{version}: {name} {method} has the types {fact['types']}, not {types}")
        self.assertEqual(different, [])

    def test_calls_are_those_of_what_was_done(self):
        for version, recorded in RECORDINGS.items():
            calls = comparison.first_calls(recorded["calls"])
            self.assertIn("-[SBLockScreenViewController _handleDisplayTurnedOff]", calls, version)
            self.assertEqual(calls[0], "-[SpringBoard applicationDidFinishLaunching:]", version)

    def test_what_ended_the_home_screen_is_not_asked_again(self):
        left = plistlib.dumps({"asking": "icon.size", "ended": ["motions"]})
        values = SIMULATOR.record("iPhone 5s", "7.1", {ASKING: left})["values"]
        ended = {name for name, value in values.items() if value == "ended the home screen"}
        self.assertIn("icon.size", ended)
        self.assertIn("animation.completion.time", ended)
        self.assertEqual(values["icon.class"], "SBApplicationIcon")


class Comparison(unittest.TestCase):
    def test_the_simulated_device_does_not_differ_from_itself(self):
        for version in ("7.0", "8.3"):
            status, lines = compared(RECORDINGS[version])
            self.assertEqual((status, lines[:-1]), (0, []), version)

    def test_a_like_model_and_a_later_version_are_compared_with_the_nearest(self):
        recorded = copy.deepcopy(RECORDINGS["7.0"])
        recorded["values"] |= {"device.machine": "iPhone3,3", "device.version": "7.0.4"}
        self.assertEqual(compared(recorded)[0], 0)

    def test_each_fact_that_differs_is_named_and_no_other(self):
        recorded = copy.deepcopy(RECORDINGS["8.1"])
        declared, values = recorded["declared"], recorded["values"]
        declared["class SBUIController"]["superclass"] = ["SBSomething", "NSObject"]
        declared["class UIView"]["size"] += 8
        declared["method -[SBApplication willActivate]"]["types"] = "v20@0:8B16"
        declared["method -[UIView frame]"]["types"] = "{CGRect={CGPoint=ff}{CGSize=ff}}8@0:4"
        declared["method -[SBIconView icon]"] = {"present": False}
        del declared["variable PSSpecifier.target"]
        values["animation.completion.time"] += 1 / 60
        values["animation.replaced.ending"] = [True, 1.0]
        values["material.2030"]["blurRadius"] += 1
        values["windows.all"] = []
        recorded["calls"] = [call for call in recorded["calls"] if "clickedMenuButton" not in call["call"]]
        status, lines = compared(recorded)
        self.assertEqual(status, 1)
        self.assertEqual([line.split(": recorded")[0] for line in lines[:-1]],
                         ["class SBUIController, superclass", "method -[SBApplication willActivate], types",
                          "method -[SBIconView icon], present", "variable PSSpecifier.target, present",
                          "animation.replaced.ending", "material.2030", "call -[SBUIController clickedMenuButton]"])

    def test_a_file_of_no_use_is_refused_with_a_reason(self):
        other = copy.deepcopy(RECORDINGS["8.1"])
        other["values"]["device.machine"] = "iPhone2,1"
        for useless in (b"", b"bplist00", plistlib.dumps({"format": 2}), plistlib.dumps(other)):
            status, lines = compared(useless)
            self.assertEqual((status, len(lines)), (2, 1), lines)


class Limitations(unittest.TestCase):
    """docs/limitations.md, which tells how much of the simulated platform is known."""

    page = (HERE.parents[1] / "docs/limitations.md").read_text("utf-8")

    def test_every_class_of_the_platform_is_spoken_of(self):
        headers = (HERE.parents[1] / "Platform").rglob("*.h")
        declared = {name for path in headers for name in
                    re.findall(r"^@interface (\w+) *:", path.read_text("utf-8"), re.MULTILINE)}
        self.assertGreater(len(declared), 90)
        self.assertEqual(declared - set(re.findall(r"`(\w+)`", self.page)), set())

    def test_every_row_is_marked_and_names_questions_that_are_asked(self):
        asked = set(RECORDINGS["8.1"]["values"]) | {"calls, order"}
        marks = ("listed", "known", "inferred", "unknown", "differs", "left out", "by eye", "by design", "others left out",
                 "the latter")
        rows = [line.strip("| ").split(" | ") for line in self.page.splitlines() if line.startswith("| `")]
        for row in rows:
            if len(row) >= 3:
                self.assertTrue(row[2].strip(" |").startswith(marks), row)
            for question in re.findall(r"`([^`]+)`", row[3] if len(row) > 3 else ""):
                self.assertIn(question, asked, row)

    def test_every_question_settles_a_row(self):
        asked = set(RECORDINGS["8.1"]["values"]) - {"device.machine", "device.version", "screen.scale", "window.key.tag"}
        self.assertEqual(asked - set(re.findall(r"`([^`]+)`", self.page)), set())


if __name__ == "__main__":
    unittest.main()
