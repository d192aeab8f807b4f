"""The copy of the project that holds the faults, under build/mutate/tree, and its build."""

import os
import pathlib
import shutil
import subprocess

FOLDERS = ("Tweak/", "PendixSettings/")
LEFT_OUT = {"build", ".git", "node_modules", "__pycache__"}
HEADER = "Tools/Mutate/Switch.hpp"


def files_of(root):
    """{name: path} of all that a build may need."""
    found = {}
    for folder, folders, names in os.walk(root):
        folders[:] = sorted(name for name in folders if name not in LEFT_OUT)
        for name in names:
            path = pathlib.Path(folder, name)
            found[path.relative_to(root).as_posix()] = path
    return found


def sources_of(root, folders=FOLDERS):
    return sorted(name for name in files_of(root) if name.startswith(tuple(folders)) and name.endswith((".h", ".hpp", ".cpp", ".mm")))


def write(path, content):
    """Touches nothing that has that content already, so that nothing is built for it."""
    if not path.exists() or path.read_bytes() != content:
        path.parent.mkdir(parents=True, exist_ok=True)
        path.write_bytes(content)


class Tree:
    def __init__(self, root, folder):
        self.root, self.folder = pathlib.Path(root), pathlib.Path(folder)
        self.build = self.folder / "build/dev"

    def copy(self, but=()):
        """What is in the project, and nothing else; the sources named are left as they are in the copy."""
        wanted = files_of(self.root)
        for name, path in files_of(self.folder).items() if self.folder.exists() else ():
            if name not in wanted:
                path.unlink()
        for name, path in wanted.items():
            target = self.folder / name
            if name in but and target.exists():
                continue
            write(target, path.read_bytes())
            shutil.copymode(path, target)

    def plant(self, name, planted):
        write(self.folder / name, planted.text.encode("latin-1"))

    def configure(self):
        self.run(["cmake", "--preset", "dev"])

    def make(self, jobs):
        self.run(["cmake", "--build", "--preset", "dev", "--", "--quiet", f"-j{jobs}"])

    def run(self, command):
        log = self.folder.parent / "build.log"
        with log.open("w") as output:
            done = subprocess.run(command, cwd=self.folder, stdout=output, stderr=subprocess.STDOUT, check=False)
        if done.returncode:
            tail = "\n".join(log.read_text(errors="replace").splitlines()[-40:])
            raise SystemExit(f"{' '.join(command)} failed; the end of {log}:\n{tail}")
