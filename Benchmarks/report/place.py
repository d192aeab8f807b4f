"""Where instructions are counted: a copy of a build in a folder whose path has the same length on every machine, for
paths are joined, compared and hashed, and without the debugger's tables, which valgrind would read in every run."""

import contextlib
import os
import pathlib
import shutil
import subprocess
import tempfile

from .programs import PROGRAMS, Programs

LIBRARY = "Pendix.so"


def copy_build(build, target):
    """The programs, the extension and the staged files; links to the built extension lead to the copied one."""
    for folder, names in (("bin", PROGRAMS), ("lib", [LIBRARY])):
        (target / folder).mkdir()
        for name in names:
            subprocess.run(["objcopy", "--strip-debug", build / folder / name, target / folder / name], check=True)
    shutil.copytree(build / "stage", target / "stage", symlinks=True)
    for path in (target / "stage").rglob("*"):
        if path.is_symlink() and os.readlink(path).endswith(LIBRARY):
            path.unlink()
            path.symlink_to(target / "lib" / LIBRARY)


@contextlib.contextmanager
def counting_place(build):
    """The copy's Programs; gone afterwards. Not in TMPDIR, whose length differs."""
    with tempfile.TemporaryDirectory(prefix="pendix-count-", dir="/tmp") as folder:
        place = pathlib.Path(folder)
        (place / "home").mkdir()
        copy_build(build, place)
        yield Programs(place, place / "home")
