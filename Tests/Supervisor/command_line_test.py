"""How the program answers calls that run no script: exit statuses, and which stream it speaks on."""

import os
import pathlib
import signal
import subprocess
import sys
import tempfile
import unittest

PROGRAM = None


def call(*arguments):
    return subprocess.run([PROGRAM, *arguments], capture_output=True, text=True)


class CommandLine(unittest.TestCase):
    def test_wrong_calls_end_with_two(self):
        with tempfile.TemporaryDirectory() as folder:
            broken = pathlib.Path(folder, "broken.lua")
            broken.write_text("local x =\n")
            compiled = pathlib.Path(folder, "compiled.lua")
            compiled.write_bytes(b"\x1bLua\x54\x00")
            cases = {
                "no command": ([], "a command is missing"),
                "unknown command": (["walk"], "there is no command 'walk'"),
                "a misspelt command": (["rn", "x"], "did you mean 'run'?"),
                "a script without a command": ([str(broken)], "pendix-sim run " + str(broken)),
                "an unknown option before a command": (["--hlep"], "did you mean '--help'?"),
                "a misspelt option": (["run", "--sede", "3", str(broken)], "'--sede'; did you mean '--seed'?"),
                "a misspelt option with its value": (["run", str(broken), "--sede=3"], "did you mean '--seed'?"),
                "no events": (["monkey", "--events", "0"], "--events: must be a whole number of 1 or more, not 0"),
                "words for events": (["monkey", "--events", "many"], "1 or more, not many"),
                "no file": (["run"], "FILE"),
                "a file that is not there": (["run", folder + "/none.lua"], "none.lua"),
                "a folder": (["run", folder], folder),
                "a word too many": (["run", str(broken), "word"], "word"),
                "a seed that is no number": (["run", str(broken), "--seed", "x"], "seed"),
                "a syntax error": (["run", str(broken)], "broken.lua:"),
                "a compiled script": (["run", str(compiled)], "compiled.lua"),
            }
            for name, (arguments, text) in cases.items():
                with self.subTest(name):
                    result = call(*arguments)
                    self.assertEqual(result.returncode, 2)
                    self.assertIn(text, result.stderr)
                    self.assertEqual(result.stdout, "")

    def test_an_interrupted_run_cleans_up(self):
        cases = {"in the script": "while true do end", "in the device": "while true do phone:wait(1000) end"}
        for name, loop in cases.items():
            for number in (signal.SIGINT, signal.SIGTERM):
                with self.subTest(name, signal=number), tempfile.TemporaryDirectory() as folder:
                    script = pathlib.Path(folder, "endless.lua")
                    script.write_text(f"local phone = boot {{ extension = false }} print('ready') {loop}\n")
                    own = pathlib.Path(folder, "temporary")
                    own.mkdir()
                    run = subprocess.Popen([PROGRAM, "run", str(script)], stdout=subprocess.PIPE,
                                           stderr=subprocess.PIPE, text=True, env=dict(os.environ, TMPDIR=str(own)))
                    self.assertEqual(run.stdout.readline(), "ready\n")
                    self.assertEqual(len(list(own.iterdir())), 1, "the device has a folder")
                    run.send_signal(number)
                    _, errors = run.communicate()
                    self.assertEqual(run.returncode, 1)
                    self.assertIn("interrupted", errors)
                    self.assertEqual(list(own.iterdir()), [], "nothing is left behind")

    def test_help_and_profiles(self):
        for arguments, texts in ((["--help"], ["run", "profiles"]), (["run", "--help"], ["--out", "--seed", "--gdb"]),
                                 (["--version"], ["pendix-sim 0."]), (["help"], ["monkey", "expect_near", "settings"]),
                                 (["profiles"], ["iPhone 6 Plus", "iPhone7,1", "@3x", "8.0, 8.1 and 8.3"])):
            with self.subTest(arguments):
                result = call(*arguments)
                self.assertEqual(result.returncode, 0)
                for text in texts:
                    self.assertIn(text, result.stdout)


if __name__ == "__main__":
    PROGRAM = sys.argv.pop(1)
    unittest.main()
