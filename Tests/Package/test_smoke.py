"""Proves that each slice, run in an emulated processor, installs the very hook table that the simulated body reports,
holds the same classes, and that none of its code has been broken on the way through the linkers. A failure shows a user
a home screen that lacks a hook or restarts for ever."""

import re
import unittest

import built
import smoke

ROWS, SUPERCLASSES, METHODS = built.body()


class Smoke(unittest.TestCase):
    def test_the_rows_are_those_of_the_simulated_body(self):
        for name, file in built.slices():
            self.assertEqual(smoke.row_differences(file, ROWS), [], name)
            self.assertEqual(smoke.storage_differences(file), [], name)

    def test_nothing_is_installed_outside_the_home_screen(self):
        for name, file in built.slices():
            self.assertEqual(smoke.row_differences(file, [], missing_classes={"SpringBoard"}), [], name)

    def test_rows_of_a_missing_class_are_skipped(self):
        for target in sorted({target for target, *_ in ROWS} - {"SpringBoard"}):
            expected = [row for row in ROWS if row[0] != target]
            for name, file in built.slices():
                self.assertEqual(smoke.row_differences(file, expected, missing_classes={target}), [], (name, target))

    def test_hooks_of_missing_methods_are_skipped(self):
        added = [row for row in ROWS if row[2] == "added"]
        hooked = {row[:2] for row in ROWS if row[2] == "hooked"}
        for name, file in built.slices():
            self.assertEqual(smoke.row_differences(file, added, missing_methods=hooked), [], name)

    def test_every_replacement_runs_to_its_end(self):
        for name, file in built.slices():
            for objects in (False, True):
                self.assertEqual(smoke.run_all(file, objects)[1], [], (name, objects))

    def test_all_slices_send_the_same_messages(self):
        first, *others = (smoke.run_all(file, objects=False)[0] for _, file in built.slices())
        self.assertGreater(sum(map(len, first.values())), 100)
        for other in others:
            self.assertEqual(first, other)

    def test_classes_and_methods_are_those_of_the_simulated_body(self):
        for name, file in built.slices():
            self.assertEqual(smoke.metadata_differences(file, SUPERCLASSES, METHODS), [], name)

    def test_the_sources_do_not_ask_where_they_run(self):
        for path in built.sources.units(".h", ".hpp", ".mm", ".cpp"):
            asked = set(re.findall(r"^[ \t]*#\s*(?:el)?if.*", path.read_text("utf-8"), re.MULTILINE))
            self.assertLessEqual(asked, {"#if defined(__LP64__)"}, path)


if __name__ == "__main__":
    unittest.main()
