"""Proves that Settings can find, name and load the pane: the entry, the bundle and the library agree. A failure shows a
user Settings without the pane, or a row that opens nothing."""

import plistlib
import re
import unittest

from project import PROJECT, STAGE, product_sources

BUNDLES = STAGE / "root/Library/PreferenceBundles"
ENTRIES = STAGE / "root/Library/PreferenceLoader/Preferences"


def read(path):
    return plistlib.loads(path.read_bytes())


class Bundle(unittest.TestCase):
    def setUp(self):
        (entry,) = ENTRIES.glob("*.plist")
        self.entry = read(entry)["entry"]
        self.bundle = BUNDLES / f"{self.entry['bundle']}.bundle"
        self.info = read(self.bundle / "Info.plist")

    def test_the_entry_leads_to_a_page_of_the_library(self):
        self.assertEqual(self.entry["cell"], "PSLinkCell")
        self.assertTrue(self.entry["isController"])
        self.assertEqual(self.entry["detail"], self.info["NSPrincipalClass"])
        classes = re.findall(r"@implementation (\w+)", "".join(product_sources().values()))
        self.assertIn(self.entry["detail"], classes)

    def test_the_bundle_holds_the_same_library_as_the_home_screen(self):
        library = STAGE / "root/Library/MobileSubstrate/DynamicLibraries/Pendix.dylib"
        self.assertTrue((self.bundle / self.info["CFBundleExecutable"]).samefile(library))

    def test_the_row_has_its_picture_at_every_scale(self):
        for scale in ("", "@2x", "@3x"):
            self.assertTrue((self.bundle / self.entry["icon"].replace(".", f"{scale}.")).is_file(), scale)

    def test_it_tells_the_version_that_was_built(self):
        (version,) = re.findall(r"project\(\w+ VERSION ([\d.]+)", (PROJECT / "CMakeLists.txt").read_text("utf-8"))
        self.assertEqual([self.info["CFBundleShortVersionString"], self.info["CFBundleVersion"]], [version] * 2)

    def test_header_cells_named_in_the_sources_exist(self):
        sources = "".join(product_sources().values())
        for name in re.findall(r'header\(@"(\w+)"\)', sources):
            self.assertIn(f"@implementation {name}\n", sources)


if __name__ == "__main__":
    unittest.main()
