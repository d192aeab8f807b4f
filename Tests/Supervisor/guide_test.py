"""Every script that docs/simulator.md shows runs as it stands, and what it expects holds."""

import pathlib
import re
import subprocess
import sys
import tempfile
import unittest

PROGRAM, PAGE = None, None


class Guide(unittest.TestCase):
    def test_every_recipe_runs(self):
        recipes = re.findall(r"^### ([^\n]+)\n```lua\n(.*?)^```$", PAGE.read_text(encoding="utf-8"), re.M | re.S)
        self.assertEqual([title.split(".")[0] for title, _ in recipes], [str(number) for number in range(1, 12)])
        for title, script in recipes:
            with self.subTest(title), tempfile.TemporaryDirectory() as folder:
                file = pathlib.Path(folder, "recipe.lua")
                file.write_text(script, encoding="utf-8")
                run = subprocess.run([PROGRAM, "run", str(file), "--out", folder], capture_output=True, text=True)
                self.assertEqual(run.returncode, 0, run.stderr)
                pictures = sorted(path.stem for path in pathlib.Path(folder).glob("*.png"))
                self.assertEqual(pictures, sorted(re.findall(r':(?:shot|filmstrip)\("(\w+)"', script)))


if __name__ == "__main__":
    PAGE = pathlib.Path(sys.argv.pop(2))
    PROGRAM = sys.argv.pop(1)
    unittest.main()
