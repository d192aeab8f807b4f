"""Reads exports.txt (its head tells the format)."""

import dataclasses
import pathlib

FILE = pathlib.Path(__file__).with_name("exports.txt")


@dataclasses.dataclass
class Library:
    path: str
    for_pane: bool = False
    re_exports: str = ""  # the path of the library of which it hands on all
    symbols: set[str] = dataclasses.field(default_factory=set)

    @property
    def classes(self):
        return {symbol for symbol in self.symbols if symbol.startswith("_OBJC_CLASS_$_")}

    @property
    def name(self):
        """A file name of its own for the library's stub."""
        return self.path.rsplit("/", 1)[1].removesuffix(".dylib")


def spelled(kind, name):
    """The linker's symbols for an entry."""
    if kind == "class":
        return {f"_OBJC_CLASS_$_{name}", f"_OBJC_METACLASS_$_{name}"}
    if kind == "ivar":
        return {f"_OBJC_IVAR_$_{name}"}
    if kind == "symbol":
        return {name}
    raise ValueError(f"neither class nor ivar nor symbol: {kind} {name}")


def read(file=FILE):
    """The libraries in the order of the file, which is the order of their load commands."""
    libraries = []
    for line in pathlib.Path(file).read_text("utf-8").splitlines():
        words = line.split("#")[0].split()
        if not words:
            continue
        if words[0].startswith("["):
            libraries.append(Library(words[0].strip("[]"), "pane" in words[1:]))
            if "re-exports" in words[1:]:
                libraries[-1].re_exports = words[-1]
            continue
        for name in words[1:]:
            libraries[-1].symbols |= spelled(words[0], name)
    handed_on = {library.re_exports for library in libraries}
    for library in libraries:
        if library.path in handed_on and library.classes:
            raise ValueError(f"classes of {library.name} stand with the library that hands them on: "
                             f"{', '.join(sorted(library.classes))}")
    return libraries
