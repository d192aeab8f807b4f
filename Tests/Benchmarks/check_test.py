"""Proves that scripts/bench --check fails on counts that have risen by more than 5 %, and only on those."""

import json
import pathlib
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
STORED = ROOT / "Benchmarks/instructions.json"


def check(counts, stored=STORED):
    """(exit status, output) of the check with these counts."""
    with tempfile.TemporaryDirectory() as folder:
        path = pathlib.Path(folder) / "counts.json"
        path.write_text(json.dumps(counts))
        done = subprocess.run([sys.executable, ROOT / "scripts/bench", "--check", "--counts", path, "--stored", stored],
                              text=True, capture_output=True)
    return done.returncode, done.stdout + done.stderr


def changed(case, part, factor):
    counts = json.loads(STORED.read_text())
    counts[case][part] = round(counts[case][part] * factor)
    return counts


class Check(unittest.TestCase):
    def test_the_stored_counts_hold(self):
        self.assertEqual(check(json.loads(STORED.read_text()))[0], 0)

    def test_every_main_benchmark_is_stored(self):
        stored = json.loads(STORED.read_text())
        for case in ("launch", "tick", "badge/1", "badge/20", "badge/200", "opening/1", "opening/200", "closing/200",
                     "opening_frame", "open_frame", "keypad_digit", "pane_page"):
            self.assertGreater(stored[case]["all"], 0, case)

    def test_changes(self):
        for case in json.loads(STORED.read_text()):
            for factor, status, said in ((1.06, 1, "too many"), (1.04, 0, ""), (0.96, 0, ""), (0.5, 0, "--store")):
                with self.subTest(case=case, factor=factor):
                    found, output = check(changed(case, "all", factor))
                    self.assertEqual(found, status, output)
                    self.assertIn(said, output)

    def test_a_rise_that_the_reads_would_hide(self):
        status, output = check(changed("badge/200", "rest", 1.06))
        self.assertEqual(status, 1)
        self.assertIn("badge/200 outside of reads", output)

    def test_a_case_that_was_not_counted(self):
        counts = json.loads(STORED.read_text())
        del counts["tick"]
        status, output = check(counts)
        self.assertEqual(status, 1)
        self.assertIn("tick: not counted", output)


if __name__ == "__main__":
    unittest.main()
