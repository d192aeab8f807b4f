"""What the sources of a library say that it must hold: the product's, or those of other folders."""

import pathlib
import re

ROOT = pathlib.Path(__file__).resolve().parents[2]
FOLDERS = ("Tweak", "PendixSettings")
HOOK_TABLE = ROOT / "Tests/Goldens/hook-table.txt"

_IMPLEMENTATION = re.compile(r"^@implementation\s+(\w+)(?:\s*\(\s*(\w*)\s*\))?", re.MULTILINE)


def units(*suffixes, folders=FOLDERS):
    return sorted(path for folder in folders for path in (ROOT / folder).rglob("*") if path.suffix in suffixes)


def implementations(folders=FOLDERS):
    """The names of the classes, and those of the categories as Class(Category)."""
    classes, categories = set(), set()
    for path in units(".mm", folders=folders):
        for name, category in _IMPLEMENTATION.findall(path.read_text("utf-8")):
            if category:
                categories.add(f"{name}({category})")
            else:
                classes.add(name)
    return classes, categories


def header_classes():
    """The classes that pages of the pane name as their headers' cells, for the platform to look up."""
    return {name for path in units(".mm")
            for name in re.findall(r"\bheader\(@\"(\w+)\"\)", path.read_text("utf-8"))}


def hook_rows():
    """The agreed hook table, which the product's tests hold against the simulated body: lists of class, selector,
    kind, and the types of an added method."""
    return [line.split() for line in HOOK_TABLE.read_text("utf-8").splitlines()]
