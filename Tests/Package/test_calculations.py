"""Proves that the product's calculations give a phone the numbers that the tests on this machine have seen: the same
ones in double, and within a float's precision on 32 bits. A failure shows a user a panel that stands elsewhere than
designed."""

import math
import re
import unittest

import built
import macho
from phone import Phone
from processor import SLIDE

HERE = [(name, float.fromhex(value)) for name, value in built.program("calculation_results")]
SLICES = sorted(built.PACKAGE.glob("calculations.*"))

# On 32 bits: a coordinate is at most some thousand points, of which a float keeps seven digits, and no calculation has
# more than a dozen steps. The pulse adds up its own results and runs in float everywhere.
RELATIVE, ABSOLUTE = 2e-6, 1e-4


class Calculator(Phone):
    """Runs `reportCalculations` and keeps what it reports."""

    def results(self):
        self.reported = []
        entry = next(symbol for symbol in self.processor.file.symbols if symbol.name == "_reportCalculations")
        thumb = not self.processor.is64
        self.processor.call(SLIDE + entry.address | thumb, self.processor.slot("report"))
        return self.reported

    def _report(self, processor):
        self.reported.append((processor.string(processor.argument(0)), processor.double_after(1)))


class Calculations(unittest.TestCase):
    def test_every_calculation_is_among_them(self):
        folder = built.ROOT / "Tests/Package/Calculations"
        included = set(re.findall(r'#include "((?:Tweak|PendixSettings)/[^"]+)\.hpp"',
                                  "\n".join(path.read_text("utf-8") for path in folder.iterdir())))
        calculations = {path.relative_to(built.ROOT).with_suffix("").as_posix() for path in built.sources.units(".cpp")}
        self.assertEqual(calculations - included, {"Tweak/Start/Constructor"}, "not run in the emulated processor")

    def test_results_are_the_same(self):
        self.assertTrue(SLICES)
        for path in SLICES:
            file, = macho.slices(path)
            found = Calculator(file).results()
            self.assertEqual([name for name, _ in found], [name for name, _ in HERE])
            for (name, value), (_, expected) in zip(found, HERE):
                same = (value == expected if file.is64
                        else math.isclose(value, expected, rel_tol=RELATIVE, abs_tol=ABSOLUTE))
                self.assertTrue(same, f"{file.architecture}, {name}: {value} here {expected}")


if __name__ == "__main__":
    unittest.main()
