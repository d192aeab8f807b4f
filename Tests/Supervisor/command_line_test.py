"""How the program answers calls that run no script: exit statuses, and which stream it speaks on."""

import os
import pathlib
import pty
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
                "an option before its command": (["--seed", "3", "run", str(broken)], "'--seed' stands after 'run'"),
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

    def test_what_is_wrong_in_a_script_is_named(self):
        # the script, what it says of it, and how it ends
        cases = {
            "a version of no device": ("boot{ ios = '9.0' }", "iOS 9.0 is not simulated; the iPhone 6 is with 8.0", 2),
            "a version before the device": ("boot{ ios = '7.1' }", "no iPhone 6 ever ran iOS 7.1", 2),
            "another model": ("boot{ device = 'iPhone7,3' }", "did you mean 'iPhone7,2'?", 2),
            "a call": ("wiat(1)", "(global 'wiat'); did you mean 'phone:wait'?", 1),
            "a table": ("error{ code = 1 }", "{code = 1}", 1),
            "a function": ("expect_equal(1, 1)", "did you mean 'expect_eq'?", 1),
            "a picture of another kind": ("boot{}:shot('x.jpg')", "'x.jpg' would have to end in .png", 1),
            "too long a wait": ("boot{}:wait(1e10)", "at most 1e9", 1),
            "a folder that cannot be": ("boot{}:shot('x')", "cannot make the folder /proc/none", 1),
        }
        with tempfile.TemporaryDirectory() as folder:
            script = pathlib.Path(folder, "script.lua")
            for name, (text, part, status) in cases.items():
                with self.subTest(name):
                    script.write_text(text)
                    result = call("run", str(script), "--out", "/proc/none")
                    self.assertEqual((result.returncode, result.stdout), (status, ""))
                    self.assertIn(part, result.stderr)

    def test_what_is_odd_becomes_a_warning(self):
        cases = {
            "a setting": ("boot{ settings = { enabel = true } }", "no setting 'enabel'; did you mean 'enable'?"),
            "a later setting": ("boot{ settings = { enable = true } }:set('tnit', 'red')", "did you mean 'tint'?"),
            "a setting of an application":
                ("boot{ settings = { ['x.y'] = { hide_perap = true } } }", "did you mean 'hide_perapp'?"),
            "a class": ("boot{}:find{ class = 'UILable' }", "no class 'UILable'; did you mean 'UILabel'?"),
            "a language": ("boot{ language = 'fr' }", "no texts in 'fr' and shows English ones; it has en, es and it"),
            "nothing": ("local p = boot{ device = 'iPhone7,2', settings = { ['x.y'] = { hide_perapp = true } } } "
                        "p:find{ class = 'UILabel' } p:set('enable', nil) boot{ extension = false, settings = { a = 1 } }",
                        None),
        }
        with tempfile.TemporaryDirectory() as folder:
            script = pathlib.Path(folder, "script.lua")
            for name, (text, part) in cases.items():
                with self.subTest(name):
                    script.write_text(f"local boot_, phones = boot, {{}} function boot(o) phones[#phones + 1] = boot_(o) "
                                      f"return phones[#phones] end {text} for _, phone in ipairs(phones) do "
                                      f"for _, event in ipairs(phone:events('warning')) do print(event.text) end end")
                    result = call("run", str(script))
                    self.assertEqual((result.returncode, result.stderr), (0, ""), "only a terminal is told")
                    if part is None:
                        self.assertEqual(result.stdout, "")
                    else:
                        self.assertIn(part, result.stdout)

    def test_a_picture_of_the_command_line(self):
        with tempfile.TemporaryDirectory() as folder:
            for name, part in (("x.jpg", "'" + folder + "/x.jpg' would have to end in .png"),
                               ("../../../../proc/none/x.png", "cannot make the folder")):
                result = call("shot", os.path.join(folder, name))
                self.assertEqual(result.returncode, 2)
                self.assertIn(part, result.stderr)
            result = call("shot", folder + "/x.png", "--language", "fr", "--set", "enabel=true")
            self.assertEqual(result.returncode, 0)
            self.assertIn("warning: the extension has no setting 'enabel'", result.stderr)
            self.assertIn("warning: the system has no texts in 'fr'", result.stderr)

    def test_a_terminal_is_told_more(self):
        with tempfile.TemporaryDirectory() as folder:
            script = pathlib.Path(folder, "long.lua")
            script.write_text("local phone = boot{ language = 'fr' } print('ready') phone:wait(1e9)")
            ours, theirs = pty.openpty()
            run = subprocess.Popen([PROGRAM, "run", str(script)], stdout=subprocess.DEVNULL, stderr=theirs)
            os.close(theirs)
            said = b""
            while b"of 1000000000 s" not in said:
                said += os.read(ours, 1000)
            run.send_signal(signal.SIGINT)
            try:
                while part := os.read(ours, 1000):
                    said += part
            except OSError:
                pass  # the other end is closed
            os.close(ours)
            self.assertEqual(run.wait(), 1)
            self.assertIn(b"waiting:", said)
            self.assertIn(b"warning: iPhone 6, iOS 8.1, at 0 s: the system has no texts", said)
            self.assertEqual(said.count(b"warning:"), 1)
            self.assertNotIn(b"traceback", said)

    def test_an_interrupted_run_cleans_up(self):
        cases = {"in the script": "while true do end", "in the device": "while true do phone:wait(1000) end",
                 "in a long wait": "phone:wait(1e9)"}
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
                    self.assertEqual(len(errors.splitlines()), 1, "quietly")
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
