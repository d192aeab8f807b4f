"""The reference tells all that scripts can say, and nothing else: docs/reference.md is what the program prints, and what
an interpreter and a device really have is in it."""

import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

PROGRAM, PAGE = None, None

# What Lua brings itself; the rest of an interpreter's globals is the simulator's.
LANGUAGE = set("""_G _VERSION args assert coroutine error getmetatable ipairs load math pcall rawequal rawget rawlen
rawset select setmetatable string table tonumber type utf8 xpcall""".split())


def call(*arguments):
    return subprocess.run([PROGRAM, *arguments], capture_output=True, text=True)


def printed(script):
    with tempfile.TemporaryDirectory() as folder:
        file = pathlib.Path(folder, "script.lua")
        file.write_text(script)
        run = call("run", str(file), "--out", folder)
        assert run.returncode == 0, run.stderr
        return set(run.stdout.split())


class Reference(unittest.TestCase):
    def test_the_page_is_what_the_program_prints(self):
        page = PAGE.read_text(encoding="utf-8")
        self.assertEqual(page, call("help", "--markdown").stdout,
                         "write it anew: pendix-sim help --markdown >docs/reference.md")

    def test_every_name_has_help(self):
        globals_ = printed("for name in pairs(_G) do print(name) end") - LANGUAGE
        fields = printed("""local seen = {}
            for _, view in ipairs(boot{}:all{}) do for name in pairs(view) do seen[name] = true end end
            for name in pairs(seen) do print(name) end""")
        self.assertIn("expect_near", globals_)
        self.assertIn("corner_radius", fields)
        for name in globals_:
            with self.subTest(name):
                self.assertRegex(call("help", name).stdout, rf"(?m)^{name}\(")
        view = call("help", "view").stdout
        for name in fields:
            with self.subTest(field=name):
                self.assertRegex(view, rf"(?m)^  {name} ")

    def test_one_thing_at_a_time(self):
        cases = {
            "badge": ["phone:badge(id, [n])", "0 or nil clears"],
            "phone:wait": ["how long", "run-loop"],
            "pane:toggle()": ["pane:toggle(label)"],
            "rotate": ["phone:rotate(orientation)", "pane:rotate(orientation)"],
            "events": ["Event: badge_set", "0 when cleared", "phone:events([kind])"],
            "boot": ["passcode_locked", "24 stock ones"],
            "apps": ["status_bar"],
            "query": ["overlay", "presented alpha above 0.01"],
            "devices": ["iPad mini 3", "iPhone7,1", "8.0, 8.1 and 8.3"],
            "IPHONE 6": ["375 x 667"],
            "settings": ["enable", "phone:settings()"],
            "finger": ["no_match  9", "phone:finger(event)"],
            "hide_classes": ["Options: boot"],
            "run": ["--seed", "phone:run(id)"],
        }
        for name, parts in cases.items():
            result = call("help", *name.split())
            with self.subTest(name):
                self.assertEqual((result.returncode, result.stderr), (0, ""))
                for part in parts:
                    self.assertIn(part, result.stdout)

    def test_an_unknown_name_gets_a_hint(self):
        result = call("help", "bagde")
        self.assertEqual((result.returncode, result.stdout), (2, ""))
        self.assertIn("did you mean 'badge'?", result.stderr)

    def test_lines_fit_a_terminal(self):
        names = re.findall(r"(?m)^- .*\(`help (\S+)`\)$", call("help", "--markdown").stdout)
        self.assertIn("touches", names)
        for name in names:
            for line in call("help", name).stdout.splitlines():
                self.assertLessEqual(len(line), 100, line)


if __name__ == "__main__":
    PROGRAM, PAGE = sys.argv.pop(1), pathlib.Path(sys.argv.pop(1))
    unittest.main()
