"""Proves, with this machine's dpkg on an empty file system, what a user keeps: installing, upgrading and removing the
package leave the settings alone, purging it takes them and only them."""

import pathlib
import re
import subprocess
import tempfile
import unittest

import built

SETTINGS, = re.findall(r'settingsFile = @"/(.*)"', (built.ROOT / "Tweak/Core/Names.h").read_text("utf-8"))
PACKAGE = "org.quillhub.pendix"


class Device:
    """A file system with a package manager's records and nothing installed."""

    def __init__(self, folder):
        self.root = pathlib.Path(folder)
        for name in ("info", "updates", "triggers"):
            (self.root / "var/lib/dpkg" / name).mkdir(parents=True)
        (self.root / "var/lib/dpkg/status").touch()
        self.settings, self.other = self.file(SETTINGS), self.file(f"{SETTINGS[:-6]}.probe.plist")

    def file(self, path):
        file = self.root / path
        file.parent.mkdir(parents=True, exist_ok=True)
        file.write_text("{ enable = YES; }")
        return file

    def dpkg(self, *call):
        """Its scripts run outside the file system, which has no shell; what a package needs is not there either."""
        subprocess.run(["dpkg", f"--root={self.root}", "--force-not-root", "--force-architecture", "--force-depends",
                        "--force-script-chrootless", "--force-bad-path", *call], check=True, capture_output=True)

    def installed(self):
        return (self.root / "Library/MobileSubstrate/DynamicLibraries/Pendix.dylib").is_file()


class Installation(unittest.TestCase):
    def test_the_settings_go_with_a_purge_alone(self):
        with tempfile.TemporaryDirectory() as folder:
            device = Device(folder)
            for call, installed, kept in ((("--install", built.DEB), True, True), (("--install", built.DEB), True, True),
                                          (("--remove", PACKAGE), False, True), (("--install", built.DEB), True, True),
                                          (("--purge", PACKAGE), False, False)):
                device.dpkg(*call)
                self.assertEqual((device.installed(), device.settings.exists()), (installed, kept), call)
            self.assertTrue(device.other.exists())

    def test_a_purge_after_a_removal_takes_them_too(self):
        with tempfile.TemporaryDirectory() as folder:
            device = Device(folder)
            for call in ("--install", built.DEB), ("--remove", PACKAGE), ("--purge", PACKAGE):
                device.dpkg(*call)
            self.assertFalse(device.settings.exists())

    def test_a_purge_without_settings_succeeds(self):
        with tempfile.TemporaryDirectory() as folder:
            device = Device(folder)
            device.settings.unlink()
            for call in ("--install", built.DEB), ("--purge", PACKAGE):
                device.dpkg(*call)


if __name__ == "__main__":
    unittest.main()
