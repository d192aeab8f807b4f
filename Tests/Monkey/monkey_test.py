"""The monkey from the command line: a seed decides every event, a fault is found and made short, a run that was
interrupted goes on where it was."""

import json
import pathlib
import re
import shutil
import subprocess
import sys
import tempfile
import unittest

PROGRAM = PLANTED = None


class Monkey(unittest.TestCase):
    def setUp(self):
        folder = tempfile.TemporaryDirectory()
        self.addCleanup(folder.cleanup)
        self.folder = pathlib.Path(folder.name)

    def run_program(self, *arguments):
        return subprocess.run([PROGRAM, *map(str, arguments)], capture_output=True, text=True, cwd=self.folder)

    def monkey(self, name, *arguments, wanted=0):
        """Runs it and returns what it said and the lines that it did."""
        trace = self.folder / name
        result = self.run_program("monkey", "--trace", trace, *arguments)
        self.assertEqual(result.returncode, wanted, result.stdout + result.stderr)
        return result.stdout, trace.read_bytes() if trace.exists() else b""

    def test_a_seed_decides_every_event(self):
        run = ["--events", 300, "--session", 150]
        _, first = self.monkey("first", "--seed", 11, *run)
        _, second = self.monkey("second", "--seed", 11, *run)
        _, other = self.monkey("other", "--seed", 12, *run)
        self.assertEqual(first, second)
        self.assertNotEqual(first, other)
        self.assertEqual(len(first.splitlines()), 300 + 2, "a line an event and a boot a session")
        self.assertEqual(sum(line.startswith(b"local phone = boot") for line in first.splitlines()), 2)

    def test_few_events_are_refused(self):
        said, _ = self.monkey("trace", "--seed", 3, "--events", 600, "--session", 200)
        self.assertLess(float(re.search(r"([\d.]+) % refused", said)[1]), 10)
        self.assertGreater(int(re.search(r"(\d+) MB in a simulated process", said)[1]), 10, said)

    def plant(self):
        """A device folder with the faulty library."""
        root = self.folder / "root"
        shutil.copytree(PLANTED, root)
        return json.dumps({"root": str(root)})

    def test_a_fault_is_found_made_short_and_comes_again(self):
        said, _ = self.monkey("trace", "--seed", 4, "--events", 4000, "--session", 2000, "--device", "iPhone 5",
                              "--ios", "7.1", "--script", "found.lua", "--boot", self.plant(), wanted=1)
        for part in ("seed 4, iPhone 5, iOS 7.1, session 1", "plantedFault", "found.lua"):
            self.assertIn(part, said)
        script = (self.folder / "found.lua").read_text()
        self.assertIn("plantedFault", script.splitlines()[0], "what broke stands at the head")
        calls = re.findall(r"^phone:.*|^pane.*", script, re.MULTILINE)
        self.assertEqual(len(calls), 3, script)
        self.assertTrue(all("rotate" in call for call in calls), script)
        replayed = self.run_program("run", "found.lua")
        self.assertEqual(replayed.returncode, 1)
        self.assertIn("plantedFault", replayed.stderr)

    def test_a_run_goes_on_where_it_was(self):
        run = ["--seed", 5, "--session", 100]
        whole_said, whole = self.monkey("whole", *run, "--events", 400)
        _, first = self.monkey("first", *run, "--events", 200, "--resume", "progress.json")
        said, rest = self.monkey("rest", *run, "--events", 400, "--resume", "progress.json")
        self.assertEqual(first + rest, whole)
        figures = lambda text: re.findall(r"^ *\d+  .*|.*virtual hours|.*locked", text, re.MULTILINE)
        self.assertEqual(figures(said), figures(whole_said), "the summary is of the whole run")
        _, nothing = self.monkey("nothing", *run, "--events", 400, "--resume", "progress.json")
        self.assertEqual(nothing, b"", "a run that is done does nothing more")

    def test_the_progress_of_another_run_is_refused(self):
        self.monkey("trace", "--seed", 5, "--session", 50, "--events", 50, "--resume", "progress.json")
        for other in (["--seed", 6, "--session", 50], ["--seed", 5, "--session", 60],
                      ["--seed", 5, "--session", 50, "--device", "iPad 2"]):
            before = (self.folder / "progress.json").read_bytes()
            self.monkey("trace", *other, "--events", 100, "--resume", "progress.json", wanted=2)
            self.assertEqual((self.folder / "progress.json").read_bytes(), before)

    def test_a_device_that_there_is_not_is_refused(self):
        self.monkey("trace", "--device", "iPhone 6", "--ios", "7.0", wanted=2)


if __name__ == "__main__":
    PROGRAM, PLANTED = (str(pathlib.Path(path).resolve()) for path in sys.argv[1:3])
    unittest.main(argv=sys.argv[:1], verbosity=2)
