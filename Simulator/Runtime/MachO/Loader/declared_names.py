"""Writes, as C++, what a loader has to know of the declarations that a device's code is compiled against and that are
implemented here: which methods and functions take variable arguments, and which functions give a BOOL.

Usage: declared_names.py OUT HEADER-OR-FOLDER..."""

import pathlib
import re
import sys

COMMENT = re.compile(r"/\*.*?\*/|//[^\n]*", re.DOTALL)
METHOD = re.compile(r"^[ \t]*[-+][ \t]*\([^;{]*?;", re.MULTILINE | re.DOTALL)
VARIADIC_FUNCTION = re.compile(r"\b(\w+)\s*\((?:[^()]|\([^()]*\))*,\s*\.\.\.\s*\)")
TRUTH_FUNCTION = re.compile(r"^[ \t]*(?:extern[ \t]+|[A-Z_]*EXPORT[A-Z_]*[ \t]+)*(?:BOOL|bool)\s+(\w+)\s*\(", re.MULTILINE)


def selector_of(declaration):
    """The selector of a method's declaration: its keywords, without types and arguments."""
    previous, text = None, declaration
    while text != previous:
        previous, text = text, re.sub(r"\([^()]*\)", " ", text)
    return "".join(keyword + ":" for keyword in re.findall(r"(\w+)\s*:", text))


def headers(places):
    for place in map(pathlib.Path, places):
        yield from sorted(place.rglob("*.h")) if place.is_dir() else [place]


def array(name, values):
    rows = "".join(f'    "{value}",\n' for value in sorted(values))
    return f"inline constexpr std::string_view {name}[] = {{\n{rows}}};\n"


def main(out, places):
    selectors, functions, truths = set(), set(), set()
    for path in headers(places):
        text = COMMENT.sub(" ", path.read_text(encoding="utf-8", errors="replace"))
        for declaration in METHOD.findall(text):
            if re.search(r",\s*\.\.\.", declaration):
                selectors.add(selector_of(declaration))
        text = METHOD.sub("", text)
        functions.update(VARIADIC_FUNCTION.findall(text))
        truths.update(TRUTH_FUNCTION.findall(text))
    body = array("kVariadicSelectors", selectors) + array("kVariadicFunctions", functions) + array("kTruthFunctions", truths)
    pathlib.Path(out).write_text(f"// Made by declared_names.py.\n#pragma once\n#include <string_view>\nnamespace sim {{\n{body}}}\n",
                                 encoding="utf-8")


if __name__ == "__main__":
    main(sys.argv[1], sys.argv[2:])
