"""Proves that every language says the same things, that the settings pane can tell a key from its label, that labels
have room, and that no text which the product asks for is missing. A failure shows a user "(null)", a cut label, or a
switch that writes another switch's setting."""

import json
import plistlib
import re
import unittest

from project import PROJECT, STAGE, product_sources, text_keys

FOLDER = PROJECT / "Resources/Languages"
LANGUAGES = ("en", "it", "es")
TABLES = {language: plistlib.loads((FOLDER / f"{language}.plist").read_bytes()) for language in LANGUAGES}

SETTINGS = json.loads((STAGE / "settings.json").read_text("utf-8"))
# Those with words to choose from; numbers read alike in every language.
CHOICES = [setting for setting in SETTINGS if setting["kind"] == "choice" and not setting["values"][0].isdigit()]

# Characters that fit in one line of the narrowest screen, by where the text stands.
ROOM = {
    "beside a switch": (26, " ".join(
        "security" if setting["key"] == "pass" else setting["key"] for setting in SETTINGS if "toggle" in setting["kind"])),
    "half a panel's width": (12, "cancel delete passcode ok touch_ID"),
    "over the keypad": (24, "write try unlock_touchid fail"),
    "on a colour card": (32, "slide"),
    "beside a chosen value": (17, " ".join(setting["key"] for setting in CHOICES)),
    "a value beside its label": (16, " ".join(value for setting in CHOICES for value in setting["values"])),
}


class Languages(unittest.TestCase):
    def test_every_text_is_there_in_every_language(self):
        for language in LANGUAGES:
            self.assertEqual(set(TABLES[language]), set(TABLES["en"]), language)
            for key, text in TABLES[language].items():
                with self.subTest(language=language, key=key):
                    self.assertIsInstance(text, str)
                    self.assertTrue(text)
                    self.assertEqual(text, text.strip())

    def test_no_key_stands_twice_and_keys_are_sorted(self):
        for language in LANGUAGES:
            keys = re.findall(r"<key>(.*?)</key>", (FOLDER / f"{language}.plist").read_text("utf-8"))
            self.assertEqual(keys, sorted(set(keys)), language)

    def test_a_label_leads_back_to_its_key(self):
        for language in LANGUAGES:
            keys = {}
            for key, text in TABLES[language].items():
                self.assertNotIn(text, keys, f"{language}: {key} and {keys.get(text)} read alike")
                keys[text] = key

    def test_only_counts_are_formats(self):
        for language in LANGUAGES:
            formats = {key: re.findall("%.?", text) for key, text in TABLES[language].items() if "%" in text}
            self.assertEqual(formats, {"you_have_app": ["%d"], "you_have_badge": ["%d"], "spoken_new": ["%d"],
                                       **{f"spoken_{key}": ["%d", "%d"] for key in ("entered", "page", "step")}}, language)

    def test_footers_are_translated_sentences(self):
        for key, english in TABLES["en"].items():
            if not key.startswith("desc_"):
                continue
            for language in LANGUAGES:
                with self.subTest(language=language, key=key):
                    text = TABLES[language][key]
                    self.assertTrue(text.endswith("."), text)
                    self.assertTrue(language == "en" or text != english, "still English")

    def test_texts_have_room(self):
        for place, (most, words) in ROOM.items():
            for key in words.split():
                for language in LANGUAGES:
                    text = TABLES[language].get(key) or TABLES[language].get(key.replace("_", " "), "")
                    self.assertLessEqual(len(text), most, f"{place}, {language}: {text}")

    def test_the_tables_are_staged(self):
        staged = STAGE / "root/Library/Application Support/Pendix/Languages"
        self.assertEqual({path.name for path in staged.iterdir()}, {f"{language}.plist" for language in LANGUAGES})
        for language in LANGUAGES:
            self.assertEqual(plistlib.loads((staged / f"{language}.plist").read_bytes()), TABLES[language])

    def test_every_setting_has_a_label_in_every_language(self):
        for setting in SETTINGS:
            key = {"pass": "security", "password": "change_pass"}.get(setting["key"], setting["key"])
            for language in LANGUAGES if setting["page"] != "none" else ():
                self.assertTrue(TABLES[language].get(key), f'{language}.plist has no label for the setting "{setting["key"]}"')

    def test_every_text_the_product_asks_for_exists(self):
        for path, source in product_sources().items():
            for key in text_keys(source):
                self.assertIn(key, TABLES["en"], path)

    def test_the_search_for_keys_sees_every_form(self):
        source = 'Translator(@"ok"); Translator(many ? "one_app" : "touch ID"); footer(@"desc_b"); shownText(@"top"); other(@"no");'
        self.assertEqual(text_keys(source), {"ok", "one_app", "touch ID", "desc_b", "top"})


if __name__ == "__main__":
    unittest.main()
