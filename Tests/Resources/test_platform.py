"""Proves that the simulated phone has its applications, each with an icon of its own in every size, and a wallpaper
that covers every screen and leaves white labels legible."""

import json
import unittest

from picture import Picture
from project import STAGE

PLATFORM = STAGE / "platform"
ICONS = PLATFORM / "Icons"
ICON_PIXELS = {"@2x": 120, "@3x": 180, "~ipad": 76, "~ipad@2x": 152}
WALLPAPER_PIXELS = {"": 1024, "@2x": 2048, "@3x": 2208}
APPLICATIONS = json.loads((PLATFORM / "applications.json").read_text("utf-8"))
IDENTIFIERS = [application["id"] for application in APPLICATIONS]


def icon(name, suffix):
    return Picture(ICONS / f"{name}{suffix}.png")


def contrast_with_white(pixel):
    """The contrast ratio of white text on a colour, from 1 (none) to 21 (on black)."""
    channels = [value / 255 for value in pixel[:3]]
    red, green, blue = (c / 12.92 if c <= 0.04045 else ((c + 0.055) / 1.055) ** 2.4 for c in channels)
    return 1.05 / (0.2126 * red + 0.7152 * green + 0.0722 * blue + 0.05)


class Applications(unittest.TestCase):
    def test_the_list(self):
        self.assertEqual(len(set(IDENTIFIERS)), 24)
        for application in APPLICATIONS:
            self.assertEqual(set(application["name"]), {"en", "it", "es"}, application)
            self.assertLessEqual(set(application), {"id", "name", "folder", "dock", "status_bar"}, application)
            self.assertFalse("dock" in application and "folder" in application, application)

    def test_the_dock_and_the_folder(self):
        dock = [application["id"] for application in APPLICATIONS if application.get("dock")]
        names = ("mobilephone", "mobilemail", "mobilesafari", "Music")
        self.assertEqual(dock, [f"com.apple.{name}" for name in names])
        folders = [application["folder"] for application in APPLICATIONS if "folder" in application]
        self.assertEqual(folders, ["Social", "Social"])

    def test_no_two_names_are_alike(self):
        for language in ("en", "it", "es"):
            self.assertEqual(len({application["name"][language] for application in APPLICATIONS}), 24, language)


class Icons(unittest.TestCase):
    def test_every_application_and_the_placeholder_has_every_size(self):
        wanted = {f"{name}{suffix}.png" for name in [*IDENTIFIERS, "placeholder"] for suffix in ICON_PIXELS}
        self.assertEqual({path.name for path in ICONS.iterdir()} ^ wanted, set())
        for name in [*IDENTIFIERS, "placeholder"]:
            for suffix, pixels in ICON_PIXELS.items():
                with self.subTest(icon=name + suffix):
                    picture = icon(name, suffix)
                    self.assertEqual((picture.width, picture.height), (pixels, pixels))
                    self.assertEqual({pixel[3] for pixel in picture.pixels()}, {255}, "the square is not filled")

    def test_no_icon_passes_for_another(self):
        drawn = {}
        for name in [*IDENTIFIERS, "placeholder"]:
            data = (ICONS / f"{name}@2x.png").read_bytes()
            self.assertNotIn(data, drawn, f"{name} and {drawn.get(data)}")
            drawn[data] = name

    def test_the_clock_leaves_room_for_hands(self):
        picture = icon("com.apple.mobiletimer", "@2x")
        dial = [picture.pixel(x, y) for x in range(32, 88) for y in range(32, 88)]
        self.assertEqual(set(dial), {(255, 255, 255, 255)})
        middle = [pixel[0] < 128 for pixel in picture.row(60)]
        self.assertEqual(middle, middle[::-1], "the dial is not in the middle")


class Wallpaper(unittest.TestCase):
    def test_it_covers_the_longest_screen_of_each_scale(self):
        for suffix, pixels in WALLPAPER_PIXELS.items():
            data = (PLATFORM / f"Wallpapers/dusk{suffix}.png").read_bytes()
            self.assertEqual([int.from_bytes(data[at : at + 4], "big") for at in (16, 20)], [pixels, pixels])

    def test_white_labels_are_legible_all_over(self):
        picture = Picture(PLATFORM / "Wallpapers/dusk.png")
        for y in range(0, picture.height, 16):
            for x in range(0, picture.width, 16):
                self.assertGreater(contrast_with_white(picture.pixel(x, y)), 3, f"at {x}, {y}")


if __name__ == "__main__":
    unittest.main()
