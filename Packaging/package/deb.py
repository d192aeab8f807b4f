"""Reads a .deb: its control fields and scripts, and the files that it installs."""

import io
import pathlib
import subprocess
import tarfile


def fields_of(text):
    """{field: value}; a line that begins with a space goes on with the field before."""
    fields, name = {}, None
    for number, line in enumerate(text.splitlines(), 1):
        if line.startswith(" ") and name:
            fields[name] += "\n" + line[1:]
            continue
        name, colon, value = line.partition(":")
        if not colon or not name.strip() or name in fields:
            raise ValueError(f"line {number} of control is no field, or one that stood before: {line}")
        fields[name] = value.strip()
    return fields


class Tree:
    """One of the two archives. Paths are those on the device, with a leading slash."""

    def __init__(self, data):
        self.archive = tarfile.open(fileobj=io.BytesIO(data))
        self.entries = {"/" + entry.name.removeprefix("./"): entry for entry in self.archive if entry.name != "."}
        self.files = {path: entry for path, entry in self.entries.items() if entry.isfile()}

    def read(self, path):
        return self.archive.extractfile(self.files[path]).read()


class Package:
    def __init__(self, path):
        self.name = pathlib.Path(path).name
        self.members = subprocess.run(["ar", "t", path], check=True, capture_output=True,
                                      text=True).stdout.split()
        archives = ("--ctrl-tarfile", "--fsys-tarfile")
        self.control, self.system = (
            Tree(subprocess.run(["dpkg-deb", option, path], check=True, capture_output=True).stdout)
            for option in archives)
        self.fields = fields_of(self.control.read("/control").decode("utf-8"))
