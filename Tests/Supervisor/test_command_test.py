"""`pendix-sim test`, as the author of tests meets it: what it prints and writes, and how it ends."""

import json
import os
import pathlib
import re
import shutil
import signal
import struct
import subprocess
import sys
import tempfile
import unittest
import xml.etree.ElementTree
import zlib

PROGRAM = None

TESTS = """
local phone = boot { extension = false, device = "iPhone 4S" }
test("holds", function() expect(true) end)
test("is wrong", function() expect_eq(1, 2, "numbers <&>\\27\\255") end)
test("ends in an error", function() phone:tap("nowhere") end)
test("goes on", function() expect(true) end)
"""


def chunks(png):
    """The kinds of a PNG file's chunks; their checksums have to be right."""
    at, kinds = 8, []
    while at < len(png):
        length, = struct.unpack_from(">I", png, at)
        assert zlib.crc32(png[at + 4:at + 8 + length]) == struct.unpack_from(">I", png, at + 8 + length)[0]
        kinds.append(png[at + 4:at + 8].decode())
        at += 12 + length
    return kinds


class TestCommand(unittest.TestCase):
    def setUp(self):
        self.folder = pathlib.Path(tempfile.mkdtemp(prefix="test-command-"))
        self.addCleanup(shutil.rmtree, self.folder)

    def write(self, name, text):
        file = self.folder / name
        file.parent.mkdir(exist_ok=True)
        file.write_text(text)
        return file

    def call(self, *arguments, **variables):
        environment = {name: value for name, value in os.environ.items() if name != "CI"} | variables
        return subprocess.run([PROGRAM, "test", *arguments], cwd=self.folder, env=environment, capture_output=True,
                              text=True, errors="replace", check=False)

    def lines(self, result):
        """How each test went, without its seconds, and the summary."""
        return [line.rsplit("  (", 1)[0] for line in result.stdout.splitlines()
                if line.startswith(("ok ", "failed  ")) or " passed, " in line]

    def test_how_it_ends_and_what_it_lists(self):
        self.write("a/tests.lua", TESTS)
        self.write("a/whole.lua", "print('quiet') expect(true)")
        self.write("a/Lua/hands.lua", "return {}")
        self.write("broken.lua", "local x =")
        self.write("boots.lua", "test('an early one', function() end) test('boots', function() boot { ios = '3' } end)")
        self.write("outside.lua", "test('one', function() end) expect(false, 'stray')")
        self.write("ends.lua", "test('one', function() end) error('early')")
        self.write("nested.lua", "test('one', function() test('two', print) end)")
        ok = {name: f"ok      a/{name}" for name in ("tests.lua: holds", "tests.lua: goes on", "whole.lua")}
        bad = [f"failed  a/tests.lua: {name}" for name in ("is wrong", "ends in an error")]
        holds, goes_on, whole = ok.values()
        # the call, its status, its lines, and what it says beside
        cases = [
            (["a"], 1, [holds, *bad, goes_on, whole, "3 passed, 2 failed"],
             ["a/tests.lua:4", "numbers <&>", "a touch needs a view", "1 of 3 expectations failed"]),
            (["a", "a/tests.lua", "a/../a/whole.lua", "--jobs", "3"], 1, [holds, *bad, goes_on, whole, "3 passed, 2 failed"], []),
            (["a", "--filter", "holds"], 0, [holds, "1 passed, 0 failed"], []),
            (["a", "--filter", "whole"], 0, [whole, "1 passed, 0 failed"], []),
            (["a", "--filter", "tests.lua: is"], 1, [bad[0], "0 passed, 1 failed"], []),
            (["a", "--filter", "none"], 2, ["0 passed, 0 failed"], ["no test's title holds 'none'"]),
            (["a/whole.lua", "broken.lua", "outside.lua"], 2,
             [whole, "failed  broken.lua", "ok      outside.lua: one", "failed  outside.lua: outside of its tests",
              "2 passed, 2 failed"], ["broken.lua:1: unexpected symbol", "stray"]),
            (["boots.lua"], 2, ["ok      boots.lua: an early one", "failed  boots.lua: boots", "1 passed, 1 failed"],
             ["iOS 3 is not simulated"]),
            (["outside.lua", "--filter", "none"], 2, ["0 passed, 0 failed"], []),
            (["ends.lua", "--filter", "none"], 1, ["failed  ends.lua: outside of its tests", "0 passed, 1 failed"], ["early"]),
            (["nested.lua"], 1, ["failed  nested.lua: one", "0 passed, 1 failed"], ["a test cannot stand in a test"]),
            (["nowhere"], 2, [], ["nowhere"]),
            (["a", "--jobs", "0"], 2, [], ["1 or more"]),
            (["a", "--junit", "/proc/none/x.xml", "--filter", "holds"], 2, [holds], ["cannot make the folder"]),
            ([], 2, [], ["PATH"]),
        ]
        for arguments, status, wanted, said in cases:
            with self.subTest(arguments):
                result = self.call(*arguments)
                self.assertEqual(result.returncode, status, result.stdout + result.stderr)
                self.assertEqual(self.lines(result), wanted)
                for part in said:
                    self.assertIn(part, result.stdout + result.stderr)
                self.assertNotIn("quiet", result.stdout, "who passes says nothing")
        (self.folder / "empty").mkdir()
        self.assertIn("there is no .lua file in empty", self.call("empty").stderr)

    def test_each_script_has_its_pictures_and_its_process(self):
        for folder in ("a", "b"):
            self.write(f"{folder}/shot.lua", "expect_eq(shared, nil) shared = 1 expect_eq(args[1], 'x') boot{ extension = false }:shot('p')")
        result = self.call("a", "b", "--jobs", "2", "--out", "deep/out", "--", "x")
        self.assertEqual(result.returncode, 0, result.stdout)
        self.assertEqual(sorted(str(file.relative_to(self.folder)) for file in self.folder.rglob("p.png")),
                         ["deep/out/shot-2/p.png", "deep/out/shot/p.png"])

    def test_junit(self):
        self.write("tests.lua", TESTS)
        self.call("tests.lua", "--junit", "deep/report.xml")
        report = xml.etree.ElementTree.parse(self.folder / "deep/report.xml").getroot()
        suite, = report
        for element in (report, suite):
            self.assertEqual((element.get("tests"), element.get("failures")), ("4", "2"))
        self.assertEqual([(case.get("classname"), case.get("name"), [failure.get("message") for failure in case])
                          for case in suite.iter("testcase")],
                         [("tests.lua", "holds", []),
                          ("tests.lua", "is wrong", ["tests.lua:4, called from tests.lua:4: numbers <&>\ufffd"]),
                          ("tests.lua", "ends in an error",
                           ["tests.lua:5: a touch needs a view or a point {x, y}, not \"nowhere\""]),
                          ("tests.lua", "goes on", [])])
        self.assertIn("1, wanted 2", suite.find("system-out").text)

    def test_a_trace_tells_every_step_and_changes_none(self):
        self.write("Lua/hands.lua", "return { open = function(phone)\n  phone:tap(phone:indicator().view)\nend }")
        self.write("a.lua", """local hands = require("hands")
local phone = boot { settings = { enable = true } }
test("news", function()
  phone:badge("com.apple.mobilemail", 3)
  expect(phone:find { window = "overlay" }, "looking is no step")
  phone:wait(1 / 3)
  hands.open(phone)
  expect(false, "</script>")
  phone:activate(phone:spoken()[1])
end)
local pane = phone:open_settings()
pane:toggle("Enable")
for _, event in ipairs(phone:events()) do print(event.t, event.kind) end
phone:tap("nowhere")""")
        self.write("b.lua", "expect(true)")
        plain, traced = (self.call("a.lua", "b.lua", *more) for more in ([], ["--trace", "deep/a.html", "--jobs", "2"]))
        self.assertEqual((plain.returncode, traced.returncode), (1, 1))
        self.assertEqual(*(re.sub(r"\(\d+\.\d+ s\)", "", result.stdout) for result in (plain, traced)))
        page = (self.folder / "deep/a.html").read_text()
        self.assertNotRegex(page, r"""(?i)(src|href)=["']?(?!data:)[a-z./]|@import|url\(|fetch\(|https?://(?!www\.w3\.org)""")
        data = page.split('<script type="application/json" id="trace">')[1].split("</script>")[0]
        trace, other = json.loads(data)
        self.assertEqual((other["script"], other["steps"]), ("b.lua", []))
        files = [source["file"] for source in trace["sources"]]
        steps = [(step["call"], [f"{os.path.basename(files[file])}:{line}" for file, line in step["places"]], step["test"],
                  step.get("failure")) for step in trace["steps"]]
        inside = ["a.lua:7", "a.lua:3"]
        self.assertEqual(steps, [
            ("boot", ["a.lua:2"], "", None),
            ('phone:badge("com.apple.mobilemail", 3)', ["a.lua:4", "a.lua:3"], "news", None),
            ("phone:wait(0.333333)", ["a.lua:6", "a.lua:3"], "news", None),
            (steps[3][0], ["hands.lua:2", *inside], "news", None),
            ("failed", ["a.lua:8"], "news", "</script>"),
            (steps[5][0], ["a.lua:9", "a.lua:3"], "news", None),
            ("open_settings", ["a.lua:11"], "", None),
            ('pane:toggle("Enable")', ["a.lua:12"], "", None),
            ("failed", ["a.lua:14"], "", 'a touch needs a view or a point {x, y}, not "nowhere"')])
        self.assertTrue(steps[3][0].startswith("phone:tap(UIStatusBar"), steps[3][0])
        self.assertRegex(steps[5][0], r"^phone:activate\(“[^{}]+”\)$")
        self.assertEqual(trace["screens"], ["iPhone 6, iOS 8.1", "Settings on iPhone 6, iOS 8.1"])
        self.assertEqual([round(step["to"], 3) for step in trace["steps"][:5]], [0, 0, 0.333, 0.433, 0.433])
        self.assertIn([0.0, "badge_set", "id com.apple.mobilemail  value 3"], trace["steps"][1]["events"])
        self.assertEqual([event[1] for event in trace["steps"][2]["events"] if event[1] != "original"], [], "told once")
        tree = [trace["lines"][line] for line in trace["trees"][trace["steps"][1]["tree"]]]
        self.assertTrue(any(line.lstrip().startswith("SBIconBadgeView (") for line in tree))
        self.assertTrue(tree[0].endswith("\t0 0 375 667"), tree[0])
        self.assertIn("cannot make the folder", self.call("b.lua", "--trace", "/proc/none/x.html").stderr)
        self.assertIn("cannot make the folder", subprocess.run([PROGRAM, "run", self.folder / "b.lua", "--trace", "/proc/none/x.html"],
                                                               capture_output=True, text=True, check=False).stderr)

    def test_pictures(self):
        shown = self.write("shown.lua", "phone = boot { extension = false, device = args[2] or 'iPhone 4S' } "
                                        "if args[1] then phone:badge('com.apple.mobilemail', tonumber(args[1])) end "
                                        "test('looks right', function() expect_picture('deep/home', allowed) end)")
        reference, left = self.folder / "pictures/deep/home.png", self.folder / "out/shown/deep"

        def compared(*arguments, status=0, **variables):
            shutil.rmtree(self.folder / "out", ignore_errors=True)
            result = self.call("shown.lua", *arguments, **variables)
            self.assertEqual(result.returncode, status, result.stdout + result.stderr)
            names = sorted(file.name for file in left.iterdir()) if left.is_dir() else []
            for name in names:
                self.assertIn(f"    out/shown/deep/{name}\n", result.stdout)
            return result.stdout + result.stderr, [name.removeprefix("home-").removesuffix(".png") for name in names]

        said, names = compared(status=1)
        self.assertEqual(names, ["result"])
        self.assertIn("there is no pictures/deep/home.png", said)
        self.assertIn("\"pendix-sim test shown.lua --update\" agrees", said)
        for variables in ({"CI": "true"}, {"CI": "1"}):
            self.assertIn("the environment variable CI says that nobody does", compared("--update", status=2, **variables)[0])
        self.assertFalse(reference.exists())
        compared("--update", CI="")
        agreed = reference.read_bytes()
        self.assertEqual(compared()[1], [])

        said, names = compared("--", "3", status=1)
        self.assertEqual(names, ["blink", "difference", "reference", "result"])
        self.assertRegex(said, r"[1-9]\d* pixels differ, wanted at most 0; the largest difference of a channel is \d+")
        self.assertEqual((left / "home-reference.png").read_bytes(), agreed)
        kinds = chunks((left / "home-blink.png").read_bytes())
        self.assertEqual([kind for kind in kinds if kind != "IDAT"], ["IHDR", "acTL", "fcTL", "fcTL", "fdAT", "IEND"])
        self.assertEqual(reference.read_bytes(), agreed)

        said, names = compared("--", "3", "iPhone 5", status=1)
        self.assertIn("640 x 1136 pixels, wanted 640 x 960", said)
        self.assertEqual(names, ["blink", "reference", "result"])

        differing, largest = map(int, re.search(r"(\d+) pixels differ.* channel is (\d+)", compared("--", "3", status=1)[0]).groups())
        text = shown.read_text()
        for allowed, status in ((f"{{ max_pixels = {differing} }}", 0), (f"{{ max_pixels = {differing - 1} }}", 1),
                                (f"{{ tolerance = {largest} }}", 0), (f"{{ tolerance = {largest - 1} }}", 1),
                                ("{ tolerence = 1 }", "did you mean 'tolerance'?"), ("7", "a table {tolerance"),
                                ("{ max_pixels = -1 }", "a whole number from 0 on, not -1")):
            with self.subTest(allowed):
                shown.write_text(f"allowed = {allowed} {text}")
                said, _ = compared("--", "3", status=status if isinstance(status, int) else 1)
                self.assertIn(status if isinstance(status, str) else "", said)
        shown.write_text(text)
        reference.write_text("no picture")
        self.assertIn("pictures/deep/home.png is no picture", compared(status=1)[0])
        shown.write_text("test('too early', function() expect_picture('x') end) "
                         "test('outside', function() boot { extension = false } expect_picture('../x') end)")
        said, _ = compared("--update", status=1)
        self.assertIn("there is no device yet", said)
        self.assertIn("must lead into the folder of pictures, not to '../x'", said)

    def test_who_is_interrupted_or_killed_tells_what_ended_before(self):
        self.write("a.lua", "test('one', function() end) test('endless', function() boot{ extension = false }:shot('ready') "
                            "while true do end end)")
        self.write("b.lua", "test('after', function() end)")
        ready = self.folder / "out/a/ready.png"
        ready.parent.mkdir(parents=True)
        os.mkfifo(ready)
        cases = {signal.SIGINT: (["ok      a.lua: one", "failed  a.lua: endless", "1 passed, 1 failed"], "interrupted\n"),
                 signal.SIGKILL: (["ok      a.lua: one", "failed  a.lua: the run of the script", "ok      b.lua: after",
                                   "2 passed, 1 failed"], "")}
        cases[signal.SIGTERM] = cases[signal.SIGINT]
        for number, (lines, errors) in cases.items():
            with self.subTest(number):
                run = subprocess.Popen([PROGRAM, "test", "a.lua", "b.lua"], cwd=self.folder, stdout=subprocess.PIPE,
                                       stderr=subprocess.PIPE, text=True)
                ready.read_bytes()
                child, = pathlib.Path(f"/proc/{run.pid}/task/{run.pid}/children").read_text().split()
                os.kill(int(child) if number == signal.SIGKILL else run.pid, number)
                result = subprocess.CompletedProcess([], 1, *run.communicate())
                self.assertEqual((run.returncode, self.lines(result), result.stderr), (1, lines, errors))


if __name__ == "__main__":
    PROGRAM = sys.argv.pop(1)
    unittest.main()
