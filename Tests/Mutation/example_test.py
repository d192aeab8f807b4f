"""Proves that faults are found and planted where a reader of the sources would: those of a small program are listed in
Example/faults.txt. Built once with all of them, it says what it says without them as long as none is on, and something
else for each that is, but for those that cannot be seen.

example_test.py [--agree]: writes the list instead"""

import difflib
import os
import pathlib
import shutil
import subprocess
import sys
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parent.parent
sys.path.insert(0, str(ROOT / "Tools/Mutate"))

from candidates import candidates  # noqa: E402
from compiling import Compiling  # noqa: E402
from planting import Planting  # noqa: E402
from tree import HEADER, Tree  # noqa: E402

AGREED = HERE / "Example/faults.txt"
PROGRAM, COMPILED, HEADERS = ["Program.cpp", "Sizes.cpp"], ["Messages.mm"], ["Sizes.hpp"]
WORDS = ["-std=c++20", "-Wall", "-Werror", f"-I{ROOT}"]
GCC = subprocess.run(["gcc", "-print-file-name=include"], stdout=subprocess.PIPE, text=True, check=True).stdout.strip()
MESSAGES = ["-fblocks", f"-I{ROOT}/Simulator/Runtime/Shim", "-fobjc-runtime=gcc", "-fconstant-string-class=NSConstantString", "-isystem", "/usr/include/GNUstep",
            "-idirafter", GCC]


def planted(folder):
    """The faults that compile and those that do not; the sources in the folder then hold the former."""
    units = {name: WORDS for name in PROGRAM} | {name: WORDS + MESSAGES for name in COMPILED}
    faults, found = candidates(folder, [*units, *HEADERS], list(units.items()))

    def plant(some, found):
        planting = Planting(some, found)
        result = {name: planting.planted(name, HEADER) for name in sorted(found.sources)}
        for name, text in result.items():
            (copy / name).write_text(text.text, "latin-1")
        return result

    copy = folder / "copy"
    shutil.copytree(folder, copy, dirs_exist_ok=True)
    compiling = Compiling(Tree(folder, copy), found, faults, units)
    return compiling.run(plant, os.cpu_count()), compiling.dropped


def built(folder, name):
    program = folder / name
    subprocess.run(["/usr/bin/clang++", *WORDS, *(str(folder / unit) for unit in PROGRAM), "-o", str(program)], check=True)
    return program


def said(program, **environment):
    try:
        run = subprocess.run([str(program)], stdout=subprocess.PIPE, env=environment, timeout=5, check=False)
        return run.returncode, run.stdout
    except subprocess.TimeoutExpired:
        return "it does not end"


def passed_by(program, folder, count):
    """A process whose own environment is empty asks the one that started it."""
    file = folder / "passed"
    file.write_bytes(bytes(count))
    subprocess.run(["/bin/sh", "-c", f"env -i {program}; true"], env={"MUTANTS_PASSED": str(file), "PATH": os.environ["PATH"]},
                   stdout=subprocess.DEVNULL, check=True)
    return {number for number, mark in enumerate(file.read_bytes()) if mark}


def listed(faults, dropped, plain, program, passed):
    """What the program makes of each fault; a fault that is not passed can change nothing."""
    for fault in sorted(faults + dropped, key=lambda fault: fault.number):
        if fault in dropped:
            seen = "does not compile"
        elif fault.file in COMPILED:
            seen = "compiles"
        else:
            differs = said(program, MUTANT=str(fault.number)) != plain
            assert fault.number in passed or not differs, f"not passed, yet it shows: {fault}"
            seen = "shows" if differs else "passed, unseen" if fault.number in passed else "not passed"
        yield f"{str(fault).removeprefix(f'{fault.number}: ')}: {seen}\n"


def main():
    with tempfile.TemporaryDirectory() as scratch:
        folder = pathlib.Path(scratch).resolve()
        shutil.copytree(HERE / "Example", folder, dirs_exist_ok=True)
        plain = said(built(folder, "plain"))
        faults, dropped = planted(folder)
        program = built(folder / "copy", "switched")
        assert said(program) == plain, f"with no fault on: {said(program)}, wanted {plain}"
        passed = passed_by(program, folder, 1 + max(fault.number for fault in faults))
        lines = list(listed(faults, dropped, plain, program, passed))
    if "--agree" in sys.argv:
        AGREED.write_text("".join(lines), "utf-8")
        return 0
    agreed = AGREED.read_text("utf-8").splitlines(True)
    sys.stdout.writelines(difflib.unified_diff(agreed, lines, str(AGREED), "found"))
    return 0 if lines == agreed else 1


sys.exit(main())
