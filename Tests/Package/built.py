"""What the tests look at: the package as scripts/package left it, and the programs of this machine's build. The
environment names both: PACKAGE and BUILD."""

import functools
import os
import pathlib
import subprocess

import processor  # noqa: F401  (makes the package's own tools importable)

import macho
import sources

ROOT = pathlib.Path(__file__).resolve().parents[2]
PACKAGE = pathlib.Path(os.environ["PACKAGE"])
BUILD = pathlib.Path(os.environ["BUILD"])

LIBRARY = PACKAGE / "root/Library/MobileSubstrate/DynamicLibraries/Pendix.dylib"
BUNDLE = PACKAGE / "root/Library/PreferenceBundles/PendixSettings.bundle/PendixSettings"
DEB, = PACKAGE.glob("*.deb")


@functools.cache
def slices():
    """(what it is, slice) of everything that a phone loads."""
    return [(f"{path.name}, {file.architecture}", file) for path in (LIBRARY, BUNDLE) for file in macho.slices(path)]


def program(name, *arguments):
    """The output of a program of this machine's build, as lists of fields."""
    output = subprocess.run([BUILD / "bin" / name, *arguments], check=True, capture_output=True, text=True).stdout
    return [line.split("\t") for line in output.splitlines()]


@functools.cache
def body():
    """What the simulated body reports of itself: hook rows, superclasses {class: name}, and types of methods
    {(class, selector): types} of every class that the sources implement or extend."""
    classes, categories = sources.implementations()
    extended = {category.partition("(")[0] for category in categories}
    report = program("simulated_body_report", *sorted(classes | extended))
    rows = [tuple(fields[1:]) for fields in report if fields[0] == "row"]
    superclasses = {name: base for kind, name, base, *_ in report if kind == "class"}
    methods = {(name, selector): types for kind, name, selector, types, *_ in (fields + [""] for fields in report)
               if kind == "method"}
    return rows, superclasses, methods
