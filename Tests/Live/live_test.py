"""The live server as a page meets it: what is done is recorded and replays to the same events, two pages share one
device, a crash is followed by another boot, and bad input of every kind does no harm."""

import json
import os
import pathlib
import random
import shutil
import signal
import subprocess
import sys
import tempfile
import unittest

from socket_client import Closed, Live, Page, request

PROGRAM = TROUBLEMAKER = None
MAIL = "com.apple.mobilemail"


def lua(value):
    """The value as a script writes it."""
    if isinstance(value, bool):
        return str(value).lower()
    if value is None:
        return "nil"
    if isinstance(value, (int, float)):
        return repr(value)
    if isinstance(value, str):
        return '"' + "".join(f"\\{ord(c):03d}" if ord(c) < 32 or c in '"\\' else c for c in value) + '"'
    if isinstance(value, list):
        return "{" + ", ".join(map(lua, value)) + "}"
    return "{" + ", ".join(f"[{lua(name)}] = {lua(item)}" for name, item in value.items()) + "}"


def run(text):
    with tempfile.TemporaryDirectory() as folder:
        script = pathlib.Path(folder, "session.lua")
        script.write_text(text)
        return subprocess.run([PROGRAM, "run", str(script), "--out", folder], capture_output=True, text=True)


class Recording(unittest.TestCase):
    def use(self, page, seconds, seed):
        """Does what a person might, at moments that are no round numbers."""
        chance = random.Random(seed)
        step = lambda most: page.send("step", frames=chance.randint(1, most))
        touch = lambda: {"x": chance.randint(0, 3740) / 10, "y": chance.randint(0, 6660) / 10}

        def drag(pointer=1):
            page.send("down", pointer=pointer, **touch())
            for _ in range(chance.randint(0, 12)):
                page.send("move", pointer=pointer, **touch())
                step(2)
            page.send("up", pointer=pointer)

        def two_fingers():
            page.send("down", pointer=1, **touch())
            drag(2)
            page.send("up", pointer=1)

        doings = [lambda: page.call("badge", chance.choice([MAIL, "com.apple.MobileSMS"]), chance.randint(0, 120)),
                  lambda: page.call("home"), lambda: page.call("run", "com.apple.mobiletimer"),
                  lambda: page.call("set", "tint", chance.choice(["cyan", "orange"])),
                  lambda: page.call("restyle"), lambda: page.call("activator"), drag, drag, two_fingers]
        page.whole_script()
        while page.latest["whole-script"]["now"] < seconds * 1e9:
            chance.choice(doings)()
            step(90)
            page.whole_script()

    def test_two_minutes_replay_to_the_same_events(self):
        with Live(PROGRAM, "--set", "enable=true", "--set", "glow=true") as live:
            page = Page(live.port)
            self.use(page, 120, seed=7)
            script = page.whole_script()
            events = list(page.events)
            self.assertGreater(len(events), 100)
            self.assertGreater(script.count("phone:move"), 100)
            page.send("replay", hurry=True)
            verdict = page.wait_for("replayed")
            self.assertIsNone(verdict["difference"], "the device replays it to the same events and picture")
        result = run(f"{script}\nexpect_eq(phone:events(), {lua(events)})")
        self.assertEqual(result.returncode, 0, result.stderr[-3000:])

    def test_the_script_reads_as_a_person_would_write_it(self):
        with Live(PROGRAM, "--boot", '{"settings": {"enable": true, "a b": "\\"\\n"}}') as live:
            page = Page(live.port)

            def touch(x, y, frames=6, then=60):
                page.send("down", pointer=4, x=x, y=y)
                page.send("step", frames=frames)
                page.send("up", pointer=4)
                page.send("step", frames=then)

            page.send("step", frames=15)
            page.call("badge", MAIL, 3)
            page.send("step", frames=15)
            touch(150, 150)
            page.call("home")
            touch(298, 8)
            touch(120, 60, frames=30)
            touch(20, 400, frames=1)
            page.send("down", pointer=4, x=10, y=620.123)
            page.send("move", pointer=4, x=11, y=620)
            page.send("move", pointer=4, x=20, y=620)
            page.send("step", frames=1)
            page.send("up", pointer=4)
            page.call("badge", "com.apple.mail", 1)
            page.send("show", screen="settings")
            page.send("step", frames=60)
            touch(330, 310)
            touch(200, 400)
            touch(20, 40, frames=30)
            self.assertEqual(page.whole_script().splitlines()[1:], [
                'local phone = boot{settings = {["a b"] = "\\"\\010", enable = true}}',
                'local apps = {Mail = "com.apple.mobilemail"}',
                'local function item(name) return phone:find{ window = "overlay", name = apps[name] or name } end',
                "local function at(view, dx, dy) local s = view.screen "
                "return { s.x + s.w / 2 + dx, s.y + s.h / 2 + dy } end",
                "phone:wait(0.25)", f'phone:badge("{MAIL}", 3)', "phone:wait(0.25)",
                'phone:tap(phone:icon("com.apple.mobiletimer"))', "phone:wait(1)", "phone:home()",
                "phone:tap(phone:indicator().view)", "phone:wait(1)",
                'phone:hold(at(item("Mail"), 22.5, -27.5), 0.5)', "phone:wait(1)", "phone:tap{20, 400}",
                "phone:wait(0.916666666)", "phone:down{10, 620.12}", "phone:move(20, 620)", "phone:wait(0.016666667)",
                "phone:up()", "pane = phone:open_settings()", "phone:wait(1)", 'pane:toggle("Enable")', "phone:wait(1)",
                'pane:open("Configuration")', "phone:wait(1)", "pane:hold({44.75, 42}, 0.5)", "phone:wait(1)"])
            touch(200, 400)
            for _ in range(2):
                page.send("down", pointer=4, x=3, y=550)
                for way in range(1, 13):
                    page.send("move", pointer=4, x=3, y=550 - 40 * way)
                    page.send("step", frames=1)
                page.send("step", frames=8)
                page.send("up", pointer=4)
                page.send("step", frames=60)
            touch(247, 336)
            script = page.whole_script()
            self.assertEqual(script.splitlines()[-2:], ['pane:choose("Apps in a Row", "3")', "phone:wait(1)"])
            page.send("replay", hurry=True)
            self.assertIsNone(page.wait_for("replayed")["difference"])
            result = run(f"{script}\nexpect_eq(phone:events(), {lua(page.events)})")
            self.assertEqual(result.returncode, 0, result.stderr[-3000:])
            self.assertIn("did you mean", page.latest["notice"]["text"], "what was refused is not recorded")

    def test_places_that_come_together_are_reached_one_frame_after_the_other(self):
        with Live(PROGRAM) as live:
            page = Page(live.port)
            page.send("clock", speed=1)
            page.send("down", pointer=4, x=10, y=600)
            page.send("move", pointer=4, x=10, y=550)
            while "phone:move(10, 550)" not in page.whole_script():
                pass
            for y in (500, 400, 300):
                page.send("move", pointer=4, x=10, y=y)
            page.send("up", pointer=4)
            while "phone:up()" not in (script := page.whole_script()):
                pass
            self.assertRegex(
                script, r"phone:move\(10, 400\)\s*phone:wait\(0\.\d+\)\s*phone:move\(10, 300\)\s*phone:up\(\)")


class Commands(unittest.TestCase):
    def test_record_writes_the_script_at_the_end(self):
        with tempfile.TemporaryDirectory() as folder:
            file = pathlib.Path(folder, "session.lua")
            with Live(PROGRAM, "--script", str(file), '{"ios": "8.3"}', command="record") as live:
                page = Page(live.port)
                page.call("badge", MAIL, 2)
                page.send("step", frames=60)
                page.whole_script()
                self.assertEqual(live.end(), (0, ""))
            self.assertEqual(file.read_text().splitlines()[1:],
                             ['local phone = boot{ios = "8.3"}', f'phone:badge("{MAIL}", 2)', "phone:wait(1)"])

    def test_a_shot_is_what_a_script_would_take(self):
        with tempfile.TemporaryDirectory() as folder:
            shot, script = pathlib.Path(folder, "new", "shot.png"), pathlib.Path(folder, "same.lua")
            subprocess.run([PROGRAM, "shot", str(shot), "--device", "iPad 2", "--set", "enable=true", "--set", "tint=red",
                            "--badge", f"{MAIL}=4", "--do", "phone:run('com.apple.weather')", "--wait", "0.5"], check=True)
            script.write_text(f"""local phone = boot{{ device = "iPad 2", settings = {{ enable = true, tint = "red" }} }}
                phone:badge("{MAIL}", 4) phone:run("com.apple.weather") phone:wait(0.5) phone:shot("same")""")
            subprocess.run([PROGRAM, "run", str(script), "--out", folder], check=True)
            self.assertEqual(shot.read_bytes(), pathlib.Path(folder, "same.png").read_bytes())

    def test_wrong_calls_say_what_is_wrong(self):
        cases = {"a device": (["live", "--device", "iPhone 7"], "iPhone 7"), "JSON": (["live", "{"], "JSON"),
                 "no table": (["live", "[1]"], "object"), "no place": (["record"], "--script"),
                 "a badge": (["shot", "x.png", "--badge", "mail"], "com.apple.mobilemail=3"),
                 "a statement": (["shot", "x.png", "--do", "phone:hom()"], "did you mean 'home'"),
                 "a port": (["live", "--port", "99999"], "port")}
        for name, (arguments, text) in cases.items():
            with self.subTest(name):
                result = subprocess.run([PROGRAM, *arguments], capture_output=True, text=True)
                self.assertEqual(result.returncode, 2)
                self.assertIn(text, result.stderr)


class Sharing(unittest.TestCase):
    def test_a_second_page_sees_the_same_device(self):
        with Live(PROGRAM) as live:
            first, second = Page(live.port), Page(live.port)
            first.call("badge", MAIL, 5)
            seen = second.wait_for("events", lambda message: message["first"] > 0)
            self.assertIn({"kind": "badge_set", "id": MAIL, "value": 5, "t": 0}, seen["events"])
            self.assertEqual(second.script[-1], f'phone:badge("{MAIL}", 5)')
            second.wait_for("frame")
            # A finger of a page that goes is lifted.
            first.send("down", pointer=1, x=50, y=300)
            first.send("step", frames=10)
            first.whole_script()
            first.close()
            second.wait_for("script", lambda message: "hold" in message["lines"][-1])

    def test_settings_and_the_home_screen_take_turns(self):
        with Live(PROGRAM, "--set", "enable=true") as live:
            page = Page(live.port)
            shown = lambda settings: page.wait_for("device", lambda message: message["settings"] == settings)
            page.call("rotate", 3)
            page.send("show", screen="settings")
            shown(True)
            page.send("down", pointer=1, x=100, y=300)
            page.send("step", frames=30)
            page.send("show", screen="home")
            shown(False)
            page.send("show", screen="settings")
            page.call("rotate", 1)
            page.call("badge", MAIL, 1)
            shown(True)
            page.call("lock")
            shown(False)
            lines = page.whole_script().splitlines()
            self.assertEqual(lines[2:], [
                "phone:rotate(3)", "pane = phone:open_settings() pane:rotate(3)", "pane:hold({100, 300}, 0.5)",
                "-- The home screen is shown.", "-- Settings is shown.", "phone:rotate(1) pane:rotate(1)",
                f'phone:badge("{MAIL}", 1)', "-- The home screen is shown.", "phone:lock()"])
            page.send("show", screen="settings")
            shown(True)
            page.send("replay", hurry=True)
            self.assertIsNone(page.wait_for("replayed")["difference"])

    def test_settings_that_crashes_leaves_the_home_screen(self):
        with Live(PROGRAM, "--set", "enable=true") as live:
            page = Page(live.port)
            shown = lambda settings: page.wait_for("device", lambda message: message["settings"] == settings)
            for _ in range(2):
                page.send("show", screen="settings")
                shown(True)
                os.kill(live.child("pendix-settings"), signal.SIGKILL)
                page.send("step", frames=1)
                self.assertTrue(shown(False)["running"])
            page.call("badge", MAIL, 4)
            self.assertIn("badge", page.whole_script())

    def test_another_device_takes_its_place(self):
        with Live(PROGRAM) as live:
            page = Page(live.port)
            page.send("boot", options={"device": "iPad 2", "ios": "7.1", "language": "it"})
            device = page.wait_for("device", lambda message: message["boots"] == 2)
            self.assertEqual((device["name"], device["ios"], device["language"]), ("iPad 2", "7.1", "it"))
            page.send("boot", options={"ios": "9.0"})
            self.assertIn("is not simulated", page.wait_for("notice")["text"])
            page.call("badge", MAIL, 1)
            self.assertIn("badge", page.whole_script(), "the device that was goes on")

    def test_after_a_crash_the_device_boots_again(self):
        with tempfile.TemporaryDirectory() as folder:
            root = shutil.copytree(TROUBLEMAKER, pathlib.Path(folder, "root"), symlinks=True)
            boot = {"root": str(root), "settings": {"crash_after": 1.5}}
            with Live(PROGRAM, "--boot", json.dumps(boot)) as live:
                page = Page(live.port)
                page.send("step", frames=120)
                device = page.wait_for("device", lambda message: message["generation"] == 2)
                self.assertTrue(device["running"])
                page.wait_for("frame")
                crash = [event for event in page.events if event["kind"] == "crash"]
                self.assertEqual([event["signal"] for event in crash], ["SIGABRT"])


class BadInput(unittest.TestCase):
    def test_a_port_in_use(self):
        with Live(PROGRAM) as live:
            second = subprocess.run([PROGRAM, "live", "--port", str(live.port)], capture_output=True, text=True)
            self.assertEqual(second.returncode, 2)
            self.assertIn("is in use", second.stderr)

    def test_only_this_page_may_ask(self):
        with Live(PROGRAM) as live:
            host = f"Host: 127.0.0.1:{live.port}"
            upgrade = ["Connection: Upgrade", "Upgrade: websocket", "Sec-WebSocket-Version: 13",
                       "Sec-WebSocket-Key: AAAAAAAAAAAAAAAAAAAAAA=="]
            cases = {
                "the page": (["GET / HTTP/1.1", host], "200"),
                "no such file": (["GET /../package.json HTTP/1.1", host], "404"),
                "a change": (["POST / HTTP/1.1", host, "Content-Length: 0"], "405"),
                "another origin": (["GET /device HTTP/1.1", host, "Origin: http://elsewhere.example", *upgrade], "403"),
                "no origin of a server": (["GET /device HTTP/1.1", host, "Origin: null", *upgrade], "403"),
                "another port": (["GET /device HTTP/1.1", host, "Origin: http://127.0.0.1:1", *upgrade], "403"),
                "another name": (["GET / HTTP/1.1", f"Host: elsewhere.example:{live.port}"], "403"),
                "no name": (["GET / HTTP/1.1"], "403"),
                "another socket": (["GET /other HTTP/1.1", host, *upgrade], "404"),
            }
            for name, (lines, status) in cases.items():
                with self.subTest(name):
                    self.assertEqual(request(live.port, lines).split(" ")[1], status)

    def test_messages_that_make_no_sense(self):
        with Live(PROGRAM) as live:
            page = Page(live.port)
            cases = {
                "no JSON": (b"{", "no JSON"),
                "no object": (b"[1]", "without a"),
                "nothing to do": (b'{"do": "dance"}', "dance"),
                "a touch without a place": (b'{"do": "down", "pointer": 1}', "down"),
                "a call for scripts": (b'{"do": "call", "call": "shot", "arguments": ["x"]}', "shot"),
                "no call": (b'{"do": "call", "call": "home() os", "arguments": []}', "os"),
                "wrong arguments": (b'{"do": "call", "call": "badge", "arguments": [1, 2]}', "identifier"),
                "too many": (b'{"do": "call", "call": "home", "arguments": [1, 2]}', "no arguments"),
                "too many steps": (b'{"do": "step", "frames": 1000000}', "600"),
                "no screen": (b'{"do": "show", "screen": "moon"}', "moon"),
                "a boot option": (b'{"do": "boot", "options": {"devise": "iPhone 6"}}', "device"),
            }
            for name, (payload, text) in cases.items():
                with self.subTest(name):
                    page.latest.pop("notice", None)
                    page.send_bytes(payload)
                    self.assertIn(text, page.wait_for("notice")["text"])
            page.send_bytes(b"\xff\xfe", opcode=2)
            self.assertEqual(len(page.whole_script().splitlines()), 2, "nothing was done")
            page.send_bytes(b" " * 100_000)
            with self.assertRaises(Closed) as end:
                page.wait_for("never")
            self.assertIn(end.exception.args[0], (None, 1009))
            self.assertEqual(len(Page(live.port).whole_script().splitlines()), 2, "the device is still there")

    def test_a_thousand_touches_and_a_page_that_does_not_read(self):
        with Live(PROGRAM) as live:
            deaf, page = Page(live.port), Page(live.port)
            for _ in range(1000):
                deaf.send("down", pointer=1, x=187, y=520)
                deaf.send("move", pointer=1, x=188, y=520)
                deaf.send("up", pointer=1)
            for number in range(20):
                page.call("badge", MAIL, number + 1)
                page.send("step", frames=5)
                page.wait_for("frame")
            self.assertGreaterEqual(page.frames, 20, "the other page is served as ever")
            self.assertIn(f'phone:badge("{MAIL}", 20)', page.whole_script())
            self.assertEqual(live.end(), (0, ""), "it ends in order")


if __name__ == "__main__":
    TROUBLEMAKER = sys.argv.pop(2)
    PROGRAM = sys.argv.pop(1)
    unittest.main()
