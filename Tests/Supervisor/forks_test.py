"""A process that was forked says and draws what one that was started by itself does, dies like it, and what it was
forked from is gone with the supervisor, however that ends."""

import os
import pathlib
import select
import signal
import subprocess
import sys
import tempfile
import unittest

PROGRAM = SOURCES = TROUBLES = None

# Boots of several devices, one after the other and at once, each followed by all that can be said of it.
MANY_BOOTS = """
local function report(phone)
  for _, event in ipairs(phone:events()) do print(event) end
  print(phone:dump())
  print(phone:counters())
end
for round = 1, 2 do
  for _, device in ipairs { {"iPhone 6", "8.1", "en"}, {"iPad 2", "7.1", "it"}, {"iPhone 5s", "8.3", "en"} } do
    local phone = boot { device = device[1], ios = device[2], language = device[3], settings = { enable = true } }
    local other = boot { extension = false }
    phone:badge("com.apple.mobilemail", round)
    phone:wait(1)
    local name = round .. device[1]
    phone:shot(name)
    local pane = phone:open_settings()
    pane:wait(1)
    pane:shot(name .. " pane")
    print(pane:dump())
    print(pane:counters())
    other:respring()
    report(phone)
    report(other)
  end
end
"""


def run(script, arguments, *options):
    """What a run says, how it ends, and its pictures."""
    with tempfile.TemporaryDirectory() as folder:
        result = subprocess.run([PROGRAM, "run", str(script), "--out", "pictures", *options, "--", *arguments],
                                cwd=folder, capture_output=True)
        pictures = {file.name: file.read_bytes() for file in sorted(pathlib.Path(folder).rglob("*.png"))}
        return {"stdout": result.stdout.splitlines(), "stderr": result.stderr.splitlines(),
                "exit": result.returncode, **pictures}


def descendants(process):
    """The names of what a process has started, by their numbers."""
    try:
        found = {}
        for file in pathlib.Path(f"/proc/{process}/task").glob("*/children"):
            for child in file.read_text().split():
                found[int(child)] = pathlib.Path(f"/proc/{child}/comm").read_text().strip()
                found |= descendants(child)
        return found
    except FileNotFoundError:
        return {}


def wait_for_end(handle):
    return bool(select.select([handle], [], [], 60)[0])


class Running:
    """A run of a script that does not end by itself."""

    def __init__(self, folder, text, *options):
        script = pathlib.Path(folder, "script.lua")
        script.write_text(text)
        # A supervisor that is killed leaves the files of its devices there.
        self.process = subprocess.Popen([PROGRAM, "run", str(script), *options], stdout=subprocess.PIPE,
                                        stderr=subprocess.PIPE, text=True, env=dict(os.environ, TMPDIR=folder))

    def line(self):
        return self.process.stdout.readline().strip()

    def descendants(self):
        return descendants(self.process.pid)

    def end(self, number):
        self.process.send_signal(number)
        self.process.communicate()


class Forks(unittest.TestCase):
    def test_are_as_good_as_fresh_processes(self):
        with tempfile.TemporaryDirectory() as folder:
            many = pathlib.Path(folder, "many_boots.lua")
            many.write_text(MANY_BOOTS)
            scripts = {many: [], SOURCES / "scenarios/tour.lua": [],
                       SOURCES / "Tests/Scenarios/same_script_same_bytes.lua": [],
                       SOURCES / "Tests/Scenarios/settings_shares_the_device.lua": [],
                       SOURCES / "Tests/Supervisor/Scripts/crash.lua": [],
                       SOURCES / "Tests/Supervisor/Scripts/troublemaker.lua": [TROUBLES]}
            for script, arguments in scripts.items():
                forked, fresh = run(script, arguments), run(script, arguments, "--fresh")
                self.assertEqual(forked.keys(), fresh.keys())
                for name in fresh:
                    with self.subTest(script.stem, part=name):
                        self.assertTrue(forked[name] == fresh[name], "they differ")

    def test_are_made_unless_they_are_not_wanted(self):
        text = "local phone = boot {} local pane = phone:open_settings() print('ready') while true do end"
        for options, nurseries in (([], 2), (["--fresh"], 0)):
            with self.subTest(options), tempfile.TemporaryDirectory() as folder:
                run = Running(folder, text, *options)
                self.assertEqual(run.line(), "ready")
                names = sorted(run.descendants().values())
                run.end(signal.SIGTERM)
                self.assertEqual(names, ["nursery"] * nurseries + ["pendix-home", "pendix-settings"])

    def test_do_not_outlive_the_supervisor(self):
        boot = "local phone = boot { extension = false } print('ready') "
        for what in ("while true do phone:wait(1000) end", "while true do end"):
            for number in (signal.SIGKILL, signal.SIGTERM):
                with self.subTest(what, signal=number), tempfile.TemporaryDirectory() as folder:
                    run = Running(folder, boot + what)
                    self.assertEqual(run.line(), "ready")
                    handles = [os.pidfd_open(process) for process in run.descendants()]
                    self.assertEqual(len(handles), 2)
                    run.end(number)
                    for handle in handles:
                        self.assertTrue(wait_for_end(handle), "a process is left behind")
                        os.close(handle)

    def test_die_with_what_they_came_from_and_come_again(self):
        text = """local phone = boot { extension = false }
                  print('ready')
                  while #phone:events('crash') == 0 do phone:wait(1) end
                  print(phone:events('crash')[1].signal)
                  phone:respring()
                  phone:wait(1)
                  print(#phone:events('crash'))
                  while true do end"""
        with tempfile.TemporaryDirectory() as folder:
            run = Running(folder, text)
            self.assertEqual(run.line(), "ready")
            before = run.descendants()
            for process in [process for process, name in before.items() if name == "nursery"]:
                os.kill(process, signal.SIGKILL)
            self.assertEqual((run.line(), run.line()), ("SIGKILL", "1"))
            after = run.descendants()
            run.end(signal.SIGTERM)
            self.assertEqual(sorted(after.values()), ["nursery", "pendix-home"])
            self.assertFalse(before.keys() & after.keys())


if __name__ == "__main__":
    PROGRAM, TROUBLES = sys.argv.pop(1), sys.argv.pop(1)
    SOURCES = pathlib.Path(__file__).resolve().parents[2]
    unittest.main()
