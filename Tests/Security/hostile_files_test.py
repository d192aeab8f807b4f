"""Proves what docs/security.md says of spoilt settings, language tables and pictures: which of them the home screen and
the settings pane bear, and what they make of them."""

import os
import pathlib
import plistlib
import struct
import subprocess
import tempfile
import unittest
import zlib

ROOT = pathlib.Path(__file__).resolve().parents[2]
BUILD = pathlib.Path(os.environ["BUILD"])

SETTINGS = "var/mobile/Library/Preferences/org.quillhub.PendixSettings.plist"
ENGLISH = "Library/Application Support/Pendix/Languages/en.plist"
ITALIAN = "Library/Application Support/Pendix/Languages/it.plist"
SNAPSHOT = "var/mobile/Library/Caches/Snapshots/org.example.ada/org.example.ada/Portrait.png"
TEXTS = plistlib.loads((ROOT / "Resources/Languages/en.plist").read_bytes())
ITALIAN_TEXTS = plistlib.loads((ROOT / "Resources/Languages/it.plist").read_bytes())


def chunk(kind, data):
    return struct.pack(">I", len(data)) + kind + data + struct.pack(">I", zlib.crc32(kind + data))


def picture(width, height):
    """A small file that says it is a picture of that size, and is, in one bit a pixel."""
    row, packer = bytes(1 + (width + 7) // 8), zlib.compressobj(9)
    data = b"".join(packer.compress(row) for _ in range(height)) + packer.flush()
    return (b"\x89PNG\r\n\x1a\n" + chunk(b"IHDR", struct.pack(">IIBBBBB", width, height, 1, 0, 0, 0, 0)) +
            chunk(b"IDAT", data) + chunk(b"IEND", b""))


class Device:
    """A device folder that is thrown away after the test."""

    def __init__(self, test):
        folder = tempfile.TemporaryDirectory()
        test.addCleanup(folder.cleanup)
        self.root = pathlib.Path(folder.name)

    def file(self, path, content=None):
        """The path on this machine; with `content`, a file of it is made there."""
        file = self.root / path
        file.parent.mkdir(parents=True, exist_ok=True)
        if content is not None:
            file.write_bytes(content)
        return file

    def run(self, settings, *missing):
        """The home screen with these settings: {what the script tells: its text}."""
        return self.script("hostile_files.lua", settings, *(f"/{path}" for path in missing))

    def pane(self, *missing):
        """The settings pane: {what the script tells: its text}."""
        return self.script("hostile_pane.lua", *(f"/{path}" for path in missing))

    def script(self, name, *arguments):
        """What it tells; raises when an expectation failed."""
        with tempfile.TemporaryDirectory() as pictures:
            result = subprocess.run([BUILD / "bin/pendix-sim", "run", ROOT / "Tests/Security" / name, "--out", pictures,
                                     "--", self.root, *arguments], capture_output=True, text=True)
        if result.returncode:
            raise AssertionError(result.stdout + result.stderr)
        return dict(line.split("\t", 1) for line in result.stdout.splitlines() if "\t" in line)


class Settings(unittest.TestCase):
    def setUp(self):
        self.device = Device(self)

    def test_a_link_is_followed_when_read_and_replaced_when_written(self):
        elsewhere = self.device.file("var/mobile/elsewhere", plistlib.dumps({"enable": True}))
        before = elsewhere.read_bytes()
        self.device.file(SETTINGS).symlink_to(elsewhere)
        self.assertEqual(self.device.run("file")["visible"], "true")
        self.assertFalse(self.device.file(SETTINGS).is_symlink())
        self.assertEqual(elsewhere.read_bytes(), before)

    def test_a_link_into_itself_reads_as_no_settings(self):
        self.device.file(SETTINGS).symlink_to(self.device.file(SETTINGS))
        self.assertEqual(self.device.run("file")["visible"], "false")

    def test_what_cannot_be_read_is_borne(self):
        self.device.file(SETTINGS).mkdir()
        self.assertEqual(self.device.run("file")["visible"], "false")

    def test_names_that_look_like_paths_lead_nowhere(self):
        names = ["../../../../etc/passwd", "/etc/passwd", "%s%n%@", "a" * 100000]
        for name in names:
            texts = dict.fromkeys(("tint", "colors", "where", "position", "password"), name)
            self.device.file(SETTINGS, plistlib.dumps({"enable": True, "pass": True} | texts))
            self.assertEqual(self.device.run("file")["visible"], "true", name[:20])


class Texts(unittest.TestCase):
    def message(self, text):
        """The lock's message in place of "%d apps have badges"."""
        device = Device(self)
        device.file(ENGLISH, plistlib.dumps(TEXTS | {"you_have_badge": text}))
        return device.run("ask", ENGLISH)["message"]

    def test_a_text_is_no_format(self):
        for text, shown in (("%d of them", "3 of them"), ("%s %@ %n", "%s %@ %n"), ("%d %d %s", "3 %d %s"),
                            ("no number", "no number"), ("%", "%")):
            self.assertEqual(self.message(text), shown)

    def test_what_is_no_text_counts_as_missing(self):
        for text in (b"bytes", 7, True, ["a", "b"], {"a": "b"}):
            self.assertEqual(self.message(text), "(null)")


class PaneTexts(unittest.TestCase):
    """A table that lacks texts, and no English one to take them from."""

    LABELS = "configuration b rech position newb colors passw where change_pass contacts".split()
    NOTHING = "(null)"

    def test_a_text_that_no_table_has_shows_as_missing(self):
        labels = {key: ITALIAN_TEXTS[key] for key in self.LABELS}
        others = {key: ["a", "b"] for key in ITALIAN_TEXTS if key not in self.LABELS}
        for table in (labels, labels | others):
            device = Device(self)
            device.file(ITALIAN, plistlib.dumps(table))
            told = device.pane(ITALIAN, ENGLISH)
            self.assertEqual(told["footer"], self.NOTHING)
            self.assertEqual(told["restart"], self.list(self.NOTHING, self.NOTHING, 2))
            self.assertEqual(told["choices"], self.list(*[self.NOTHING] * 3))
            self.assertEqual(told["list"], self.list(3, self.NOTHING))
            self.assertEqual(told["color"], self.list(self.NOTHING, self.NOTHING, 1))
            self.assertEqual(told["moments"], self.list(3, self.NOTHING))
            self.assertEqual(told["sheet"], self.list(labels["change_pass"], self.NOTHING, self.NOTHING))
            self.assertEqual(told["code"], "1234")

    @staticmethod
    def list(*values):
        return "\t".join(str(value) for value in values)


class Pictures(unittest.TestCase):
    def test_snapshots_that_are_none_are_borne(self):
        for content in (b"", b"\x89PNG\r\n\x1a\n", picture(3, 3)[:-30], picture(40000, 10), picture(8000, 6000)):
            device = Device(self)
            device.file(SNAPSHOT, content)
            self.assertEqual(device.run("cards")["visible"], "true")

    def test_a_snapshot_that_leads_elsewhere_is_borne(self):
        for target in ("/dev/zero", "/dev/null", "/"):
            device = Device(self)
            device.file(SNAPSHOT).symlink_to(target)
            self.assertEqual(device.run("cards")["visible"], "true")


if __name__ == "__main__":
    unittest.main()
