"""Proves that the product's sources take their faults: some units of each kind compile with all of theirs, but for a few
that are left out.

product_test.py BUILD"""

import collections
import os
import pathlib
import shutil
import sys
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
sys.path.insert(0, str(ROOT / "Tools/Mutate"))

from candidates import candidates  # noqa: E402
from compiling import Compiling  # noqa: E402
from planting import Planting  # noqa: E402
from syntax import units_of  # noqa: E402
from tree import FOLDERS, HEADER, Tree, sources_of  # noqa: E402

UNITS = ["Tweak/Lock/FaceLayout.cpp", "Tweak/Panel/CloseIcon.mm", "Tweak/Start/HookTable.mm", "PendixSettings/Icon/cards.mm"]
KINDS = {"drop", "flip", "change", "operate", "return", "swap"}
MOST_LEFT_OUT = 2  # percent


def main():
    with tempfile.TemporaryDirectory() as scratch:
        copy = pathlib.Path(scratch).resolve()
        for folder in FOLDERS:
            shutil.copytree(ROOT / folder, copy / folder)
        units = {name: words for name, words in units_of(sys.argv[1], ROOT, FOLDERS).items() if name in UNITS}
        assert sorted(units) == sorted(UNITS), f"the build has {sorted(units)} of {UNITS}"
        faults, found = candidates(ROOT, sources_of(ROOT), list(units.items()))
        kinds = collections.Counter(fault.kind for fault in faults)
        assert set(kinds) == KINDS, kinds

        def plant(some, found):
            planting, result = Planting(some, found), {}
            for name in sorted(found.sources):
                result[name] = planting.planted(name, HEADER)
                assert not result[name].refused, f"{name}: changes overlap: {result[name].refused}"
                (copy / name).write_text(result[name].text, "latin-1")
            return result

        own = {name: [f"-I{copy}", *words] for name, words in units.items()}
        compiling = Compiling(Tree(ROOT, copy), found, faults, own)
        left = compiling.run(plant, os.cpu_count())
        out = "\n".join(map(str, compiling.dropped))
        assert len(compiling.dropped) * 100 <= MOST_LEFT_OUT * len(faults), f"left out:\n{out}"
        print(f"{len(left)} of {len(faults)} compile; left out:\n{out}")


main()
