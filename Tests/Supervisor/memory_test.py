"""What a script looked at and does not keep takes no memory of the supervisor's, and neither do old events.

With two numbers more, of looks and of events, it makes so many instead and tells what memory they took."""

import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

PROGRAM = CHATTER = None
MOST = 300  # MB, however long it takes
LOOKS = """local phone = boot { extension = false }
           for i = 1, %d do assert(phone:find { window = "statusbar" }) end"""
LINES = 1000
EVENTS = f"""local phone = boot {{ root = args[1], settings = {{ lines = {LINES} }} }}
             for i = 1, %d do phone:wait(1) end
             assert(#phone:events("crash") == 0)
             print(#phone:events("badge_set"))"""
END = 'print("done") while true do end'


def peak(text, *arguments):
    """Of the supervisor up to the script's end, in MB: the most memory that it had, and its file of old events; and
    what the script said."""
    with tempfile.TemporaryDirectory() as folder:
        script = pathlib.Path(folder, "script.lua")
        script.write_text(text + "\n" + END)
        run = subprocess.Popen([PROGRAM, "run", str(script), "--", *arguments], cwd=folder, stdout=subprocess.PIPE,
                               stderr=subprocess.PIPE, text=True)
        said = []
        while (line := run.stdout.readline().strip()) not in ("done", ""):
            said.append(line)
        if line != "done":
            raise AssertionError(run.communicate()[1])
        status = pathlib.Path(f"/proc/{run.pid}/status").read_text()
        files = sum(os.stat(file).st_size for file in pathlib.Path(f"/proc/{run.pid}/fd").iterdir()
                    if "pendix-sim-events" in os.readlink(file))
        run.terminate()
        run.communicate()
        most = int(next(line.split()[1] for line in status.splitlines() if line.startswith("VmHWM"))) / 1024
        return most, files / 2**20, said


class Memory(unittest.TestCase):
    def test_looks_that_nobody_keeps(self):
        looks = {"all": "phone:all {}", "the first": 'phone:find { window = "home" }',
                 "children": 'local top = phone:find { window = "home" }.children[1].children'}
        for name, look in looks.items():
            with self.subTest(name):
                text = "local phone = boot { extension = false } for i = 1, %d do " + look + " end"
                few, _, _ = peak(text % 20)
                many, _, _ = peak(text % 400)
                self.assertLess(many, few + 12, "MB")

    def test_a_view_that_is_kept_keeps_its_children(self):
        text = """local phone = boot { extension = false }
                  local kept = phone:find { window = "home" }
                  for i = 1, 100 do phone:find { window = "home" } end
                  local again, place = phone:find { window = "home" }
                  local function count(view)
                    local sum = 1
                    for _, child in ipairs(view.children) do sum = sum + count(child) end
                    return sum
                  end
                  print(count(kept), count(again), phone:again(kept).class == kept.class)"""
        _, _, said = peak(text)
        first, second, same = said[0].split()
        self.assertEqual((first, same), (second, "true"))
        self.assertGreater(int(first), 50)

    def test_events(self):
        few, _, _ = peak(EVENTS % 10, CHATTER)
        many, file, _ = peak(EVENTS % 100, CHATTER)
        self.assertGreater(file, 5, "MB")
        self.assertLess(many, few + 12, "MB")

    def test_old_events_can_still_be_read(self):
        text = """local phone = boot { root = args[1], settings = { lines = 100 } }
                  phone:badge("com.apple.mobilemail", 3)
                  phone:wait(60)
                  phone:badge("com.apple.mobilemail", 4)
                  local said, last, events = 0, 0, phone:events()
                  for _, event in ipairs(events) do
                    expect(event.t >= last, "in order")
                    last = event.t
                    if event.kind == "log" and event.text:find("to say: " .. said + 1 .. "$") then said = said + 1 end
                  end
                  local lines = 0
                  for _, line in ipairs(phone:log()) do lines = lines + (line:find("to say: ") and 1 or 0) end
                  local badges = phone:events("badge_set")
                  print(said, lines, #badges, badges[1].value, badges[2].value)"""
        _, _, said = peak(text, CHATTER)
        self.assertEqual(said, ["6000\t6000\t2\t3\t4"])


def long_run(looks, events):
    least = len("This is what I have to say: 1")
    made = {"looks": (looks, LOOKS % looks, 0), "events": (events, EVENTS % (events // LINES), events * least / 2**20)}
    passed = True
    for what, (count, text, wanted) in made.items():
        memory, files, _ = peak(text, CHATTER)
        print(f"{count:,} {what}: {memory:.0f} MB of memory, {files:.0f} MB on disk")
        passed = passed and memory < MOST and files >= wanted
    return 0 if passed else 1


if __name__ == "__main__":
    PROGRAM, CHATTER = sys.argv.pop(1), sys.argv.pop(1)
    if len(sys.argv) == 3:
        sys.exit(long_run(*map(int, sys.argv[1:])))
    unittest.main()
