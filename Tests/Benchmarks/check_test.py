"""Proves that scripts/bench --check fails on counts that have risen by more than 5 %, and only on those, and that what
is counted does not depend on the machine's processor, folders and surroundings."""

import json
import pathlib
import subprocess
import sys
import tempfile
import unittest

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "Benchmarks"))
sys.dont_write_bytecode = True
from report import counting, place  # noqa: E402

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


def dump(*functions):
    """What callgrind writes of these."""
    return "desc: Trigger: Client Request: all tick\nfl=(1)\n" + "".join(
        f"cfn=({number}) {name}\ncalls=1 0\n+3 20\n" for number, name in enumerate(functions)) + "totals: 80\n"


class OtherMachines(unittest.TestCase):
    def test_functions_that_another_processor_does_not_choose(self):
        for functions, found in (
                (["__memcpy_avx_unaligned", "__memset_sse2_unaligned"], ["__memcpy_avx_unaligned"]),
                (["__strlen_evex", "__sin_fma", "__memcpy_ssse3_back", "__memmove_avx512_unaligned_erms"],
                 ["__memcpy_ssse3_back", "__memmove_avx512_unaligned_erms", "__sin_fma", "__strlen_evex"]),
                (["__memset_sse2_unaligned", "__sincos_sse2", "__memcpy_sse2_unaligned", "assemble(avx)"], [])):
            with self.subTest(functions=functions), tempfile.TemporaryDirectory() as folder:
                prefix = pathlib.Path(folder) / "callgrind.tick"
                prefix.with_name("callgrind.tick.1").write_text(dump(*functions))
                if found:
                    with self.assertRaisesRegex(RuntimeError, ", ".join(found)):
                        counting.dumps(prefix)
                else:
                    self.assertEqual(counting.dumps(prefix), {"all": 80})

    def test_the_c_library_knows_what_it_is_told(self):
        listed = subprocess.run(["/lib64/ld-linux-x86-64.so.2", "--list-tunables"], env=counting.STEADY, check=True,
                                text=True, capture_output=True).stdout
        told = dict(line.split(" ")[:2] for line in listed.splitlines() if " " in line)
        for name, value in counting.TUNABLES.items():
            if isinstance(value, int):
                self.assertEqual(int(told[name + ":"], 16), value, name)

    def test_a_build_is_copied_to_a_path_of_the_same_length(self):
        with tempfile.TemporaryDirectory() as folder:
            build = pathlib.Path(folder)
            for name in ("bin/pendix-bench-home", "bin/pendix-bench-pane", "lib/Pendix.so"):
                (build / name).parent.mkdir(exist_ok=True)
                (build / name).write_bytes(pathlib.Path("/bin/true").read_bytes())
            (build / "stage/root").mkdir(parents=True)
            (build / "stage/root/Pendix.dylib").symlink_to(build / "lib/Pendix.so")
            with place.counting_place(build) as first, place.counting_place(build) as second:
                self.assertEqual(len(str(first.folder)), len(str(second.folder)))
                self.assertEqual((second.folder / "../stage/root/Pendix.dylib").resolve().parent.parent,
                                 second.folder.parent)
                for value in second.environment(**counting.STEADY).values():
                    self.assertNotIn(folder, value)
            self.assertFalse(second.folder.exists())


if __name__ == "__main__":
    unittest.main()
