"""Proves that a setting is whole: a line in the header is a page in docs/settings.md, a text in every language, a
reader in the product, and, where it stands on a page of the pane, a row there. A failure says what is missing."""

import json
import re
import subprocess
import sys
import unittest

from project import PROJECT, STAGE, product_sources

SETTINGS = json.loads((STAGE / "settings.json").read_text("utf-8"))
SOURCES = {path: text for path, text in product_sources().items() if not path.endswith("SettingKeys.h")}
PANE = "\n".join(text for path, text in SOURCES.items() if path.startswith("PendixSettings/"))
HOME_SCREEN = "\n".join(text for path, text in SOURCES.items() if path.startswith("Tweak/"))


def names(source, setting):
    return re.search(rf'\bkeys::{setting["name"]}\b', source) is not None


class Settings(unittest.TestCase):
    def test_the_page_for_people_is_what_the_header_says(self):
        run = subprocess.run([sys.executable, PROJECT / "scripts/setting-table", "markdown", "--check",
                              PROJECT / "docs/settings.md"], capture_output=True, text=True)
        self.assertEqual(run.returncode, 0, run.stderr)

    def test_no_name_and_no_key_stands_twice(self):
        for field in ("name", "key"):
            values = [setting[field] for setting in SETTINGS]
            self.assertEqual(len(values), len(set(values)), f"a {field} stands twice")

    def test_each_setting_is_read(self):
        for setting in SETTINGS:
            with self.subTest(setting=setting["key"]):
                reader = PANE if setting["kind"] == "record" else HOME_SCREEN
                self.assertTrue(names(reader, setting), "nobody reads keys::" + setting["name"])

    def test_each_page_has_its_rows(self):
        for setting in SETTINGS:
            if setting["page"] != "none":
                with self.subTest(setting=setting["key"]):
                    self.assertTrue(names(PANE, setting), f'no row of the pane names keys::{setting["name"]}, which stands on the page '
                                     f'"{setting["page"]}"')

    def test_the_product_spells_no_key(self):
        call = re.compile(r'\b(?:isOn|setting|textSetting|color|writeSetting|toggle|segments|choice)\(@"(\w+)"')
        for path, text in SOURCES.items():
            # The switch of the lock is labelled with a text of its own.
            spelled = set(call.findall(text)) & {setting["key"] for setting in SETTINGS}
            self.assertEqual(spelled, set(), f"{path} spells a setting's key; keys:: has a name for it")


if __name__ == "__main__":
    unittest.main()
