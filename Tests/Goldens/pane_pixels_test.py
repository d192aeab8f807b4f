"""Proves what no view tells of the colour page: each card runs from its own colour into the next one's, its corners are
round, and the icon's glow lies a little below the icon. A failure shows a user two cards of one colour, or a card that
ends in the wrong one."""

import os
import pathlib
import subprocess
import sys
import tempfile
import unittest

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent / "Resources"))

from picture import Picture  # noqa: E402

SCRIPT = HERE / "pane_pixels.lua"
COLORS = [(255, 0, 0), (255, 128, 0), (255, 255, 0), (0, 255, 0), (0, 255, 255), (0, 0, 255), (255, 0, 255),
          (128, 0, 128), (153, 102, 51), (128, 128, 128), (0, 0, 0), (255, 255, 255)]
PAGE = (239, 239, 244)
CORNER, BELOW_PREVIEW = 40, 100  # points
GLOW_DROP = 10 - 3  # a layer's shadow lies 3 points higher by itself


class Shots:
    """The pictures of one device, with the frames of what they show."""

    def __init__(self, test, scale, *profile):
        folder = tempfile.TemporaryDirectory()
        test.addCleanup(folder.cleanup)
        self.folder, self.scale = pathlib.Path(folder.name), scale
        told = subprocess.run([os.environ["SIMULATOR"], "run", SCRIPT, "--out", folder.name, "--", *profile], check=True,
                              capture_output=True, text=True).stdout
        rows = (line.split("\t") for line in told.splitlines())
        self.frames = {name: tuple(map(float, frame)) for name, *frame in rows}

    def picture(self, name):
        """What gives the colour at a point, from the left and the top of what the picture is about."""
        picture, (left, top, *_) = Picture(self.folder / f"{name}.png"), self.frames[name]
        return lambda x, y: picture.pixel(int((left + x) * self.scale), int((top + y) * self.scale))[:3]


def mixed(one, other, share):
    return [a + (b - a) * share for a, b in zip(one, other)]


class Pixels(unittest.TestCase):
    def near(self, color, wanted, tolerance, what):
        self.assertTrue(all(abs(a - b) <= tolerance for a, b in zip(color, wanted)), f"{what}: {color}, not {wanted}")

    def test_the_colour_page(self):
        for number, *profile in (12, 2, "iPhone 4S", "7.1", "1"), (2, 1, "iPad 2", "8.1", "11"):
            shots = Shots(self, *profile)
            cards = [(index, color) for index, color in enumerate(COLORS) if f"card{index + 1}" in shots.frames]
            self.assertEqual(len(cards), number)
            for index, color in cards:
                name = f"card{index + 1}"
                at, (_, _, width, height) = shots.picture(name), shots.frames[name]
                following = COLORS[index + 1] if index + 1 < len(COLORS) else COLORS[index - 1]
                length = height / 3 - BELOW_PREVIEW
                for share in (0.02, 0.3, 0.7):
                    self.near(at(width / 4, share * length), mixed(color, following, share), 4, f"{profile} {name} {share}")
                edge = CORNER * (1 - 0.5**0.5)
                for way in (lambda x: x, lambda x: width - x):
                    self.near(at(way(edge - 2), edge - 2), PAGE, 2, f"{profile} {name}: outside its corner")
                    self.near(at(way(edge + 2), edge + 2), color, 16, f"{profile} {name}: inside its corner")
            at, (_, _, width, height) = shots.picture("glow"), shots.frames["glow"]
            above, below = (at(width / 2, height / 2 + GLOW_DROP + way * 36) for way in (-1, 1))
            self.near(above, below, 2, f"{profile}: the glow is not even around its middle")
            self.assertLess(above[1], PAGE[1] - 20, f"{profile}: there is no glow")


if __name__ == "__main__":
    unittest.main()
