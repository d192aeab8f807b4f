"""Proves that every picture the product asks for is installed at every scale, in the size its place needs, and that it
does what its kind of picture must: tint, join, swap in place. A failure shows a user a gap, a black box or a jump."""

import unittest

from picture import Picture
from project import PROJECT, STAGE, picture_names, product_sources

ROOT = STAGE / "root"
SUPPORT = "Library/Application Support/Pendix/"
STATUS_BAR = "System/Library/Frameworks/UIKit.framework/"
SCALES = {1: "", 2: "@2x", 3: "@3x"}


def read_manifest():
    """{path: (drawing, width, height, use)}, sizes in points."""
    entries = {}
    for line in (PROJECT / "Resources/images.txt").read_text("utf-8").splitlines():
        if line and not line.startswith("#"):
            drawing, path, size, use = (column.strip() for column in line.split("|"))
            width, height = (int(number) for number in size.split(" x "))
            assert path not in entries, f"{path} stands twice"
            entries[path] = (drawing, width, height, use)
    return entries


MANIFEST = read_manifest()


def staged(path, scale):
    return ROOT / f"{path}{SCALES[scale]}.png"


def steepest(lines):
    """The greatest difference of any channel between a line of pixels and the next."""
    return max(abs(a - b) for one, two in zip(lines, lines[1:]) for p, q in zip(one, two) for a, b in zip(p, q))


class Images(unittest.TestCase):
    def test_every_picture_is_drawn_at_every_scale(self):
        for path, (_, width, height, _) in MANIFEST.items():
            for scale in SCALES:
                with self.subTest(path=path, scale=scale):
                    picture = Picture(staged(path, scale))
                    self.assertEqual((picture.width, picture.height), (width * scale, height * scale))

    def test_nothing_else_is_staged(self):
        wanted = {staged(path, scale) for path in MANIFEST for scale in SCALES}
        self.assertEqual(set(ROOT.rglob("*.png")) ^ wanted, set())
        others = {path.parent.name for path in (ROOT / SUPPORT).rglob("*") if path.is_file() and path.suffix != ".png"}
        self.assertLessEqual(others, {"Languages"})

    def test_every_drawing_is_used(self):
        drawings = {path.stem for path in (PROJECT / "Resources/Images").iterdir()}
        self.assertEqual(drawings, {drawing for drawing, *_ in MANIFEST.values()})

    def test_the_status_bar_finds_both_glyphs_in_both_styles(self):
        for name in ("Pendix", "PendixSwitcher"):
            for style in ("Black_", "LockScreen_"):
                self.assertIn(STATUS_BAR + style + name, MANIFEST)

    def test_templates_are_black_on_nothing(self):
        for path, (*_, use) in MANIFEST.items():
            for scale in SCALES if use.startswith("template") else ():
                with self.subTest(path=path, scale=scale):
                    picture = Picture(staged(path, scale))
                    inked = [pixel for pixel in picture.pixels() if pixel[3]]
                    self.assertEqual({pixel[:3] for pixel in inked}, {(0, 0, 0)})
                    self.assertEqual({pixel[3] for pixel in picture.corners()}, {0})
                    self.assertTrue(any(pixel[3] > 180 for pixel in inked), "too faint to read")
                    self.assertLess(len(inked), 0.75 * picture.width * picture.height, "hardly a shape")

    def test_the_pattern_joins_without_a_seam(self):
        for scale in SCALES:
            picture = Picture(staged(SUPPORT + "background", scale))
            columns = [picture.column(x) for x in range(picture.width)]
            rows = [picture.row(y) for y in range(picture.height)]
            for lines in (columns, rows):
                self.assertLessEqual(steepest([lines[-1], lines[0]]), steepest(lines) + 1)
            self.assertEqual({pixel[3] for pixel in picture.pixels()}, {255})

    def test_a_typed_digit_swaps_in_place(self):
        dash, dot = (MANIFEST[SUPPORT + name] for name in ("dash", "dot"))
        self.assertEqual(dash[1:3], dot[1:3])
        ink = [sum(pixel[3] for pixel in Picture(staged(SUPPORT + name, 2)).pixels()) for name in ("dash", "dot")]
        self.assertGreater(ink[1], 2 * ink[0], "a typed digit hardly stands out")

    def test_icons_of_rows_have_round_corners(self):
        for path, (_, width, *_) in MANIFEST.items():
            if width == 29:
                picture = Picture(staged(path, 3))
                self.assertEqual({pixel[3] for pixel in picture.corners()}, {0}, path)
                self.assertEqual({pixel[3] for pixel in picture.row(43)}, {255}, path)

    def test_every_picture_the_product_names_is_staged(self):
        plain = {path.name for path in ROOT.rglob("*.png")}
        for path, source in product_sources().items():
            for name in picture_names(source):
                there = (ROOT / name[1:]).is_file() if name.startswith("/") else name.rpartition("/")[2] in plain
                self.assertTrue(there, f"{path} names {name}")

    def test_the_search_for_names_sees_paths_and_plain_names(self):
        source = 'load(@"/Library/a b/c@2x.png"); return "dot.png"; format(@"%@.png");'
        self.assertEqual(picture_names(source), {"/Library/a b/c@2x.png", "dot.png"})


if __name__ == "__main__":
    unittest.main()
