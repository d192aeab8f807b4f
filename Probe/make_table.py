"""Writes the table of what the probe asks about classes: every class of the platform's headers with its methods,
properties and open variables, every method of the agreed list of hooks, and every one of listed.txt.

    make_table.py OUT.cpp"""

import pathlib
import re
import sys

ROOT = pathlib.Path(__file__).resolve().parents[1]
HOOKS = ROOT / "Tests/Goldens/hook-table.txt"
LISTED = ROOT / "Probe/listed.txt"

_COMMENT = re.compile(r"//[^\n]*")
_INTERFACE = re.compile(r"@interface\s+(\w+)(.*?)@end", re.DOTALL)
_VARIABLES = re.compile(r"\{(.*?)\}", re.DOTALL)
_METHOD = re.compile(r"^([+-])\s*\([^;]*?;", re.MULTILINE | re.DOTALL)
_PROPERTY = re.compile(r"@property\s*\(([^)]*)\)\s*([^;]*);")
# The simulator's own, of which a phone has none.
_OPAQUE = re.compile(r"_\w+State$")
# Declared by the language's own library.
SKIPPED = {"NSObject", "NSString", "NSIndexPath"}


def without_types(text):
    """The text without what stands in parentheses, however deep."""
    kept, depth = [], 0
    for letter in text:
        depth += letter == "("
        if not depth:
            kept.append(letter)
        depth -= letter == ")"
    return "".join(kept)


def selector(declaration):
    bare = without_types(declaration).lstrip("+-").strip(" ;\n")
    parts = re.findall(r"(\w+\s*:)", bare)
    return "".join(part.replace(" ", "") for part in parts) if parts else re.match(r"\w+", bare)[0]


def accessors(attributes, declared):
    name = re.search(r"(\w+)\s*$", declared.split(")")[-1] if "^" not in declared else
                     re.search(r"\^(\w+)", declared)[1])[1]
    getter = re.search(r"getter\s*=\s*(\w+)", attributes)
    yield getter[1] if getter else name
    if "readonly" not in attributes:
        yield f"set{name[0].upper()}{name[1:]}:"


def read(text):
    """(class, methods, variables) of every interface and category in a header."""
    for name, body in _INTERFACE.findall(_COMMENT.sub("", text)):
        inner = _VARIABLES.search(body) if re.match(r"[^@+-]*\{", body) else None
        variables = re.findall(r"(\w+);", inner[1]) if inner else []
        rest = body.replace(inner[0], "") if inner else body
        methods = [match[1] + selector(match[0]) for match in _METHOD.finditer(rest)]
        for attributes, declared in _PROPERTY.findall(rest):
            methods += ["-" + accessor for accessor in accessors(attributes, declared)]
        yield name, methods, [variable for variable in variables if not _OPAQUE.match(variable)]


def listed():
    """The rows of listed.txt: class, method, types, versions."""
    return [line.split() for line in LISTED.read_text("utf-8").splitlines() if line and line[0] != "#"]


def headers():
    """The platform's, and those of the simulator that declare what the platform has beyond them."""
    return sorted((ROOT / "Platform").rglob("*.h")) + sorted((ROOT / "Simulator").rglob("*+Further.h"))


def table():
    """{class: (methods, variables)}, sets, in the classes' order."""
    found = {}
    for header in headers():
        for name, methods, variables in read(header.read_text("utf-8")):
            known = found.setdefault(name, (set(), set()))
            known[0].update(methods)
            known[1].update(variables)
    for line in HOOKS.read_text("utf-8").splitlines():
        name, method, kind = line.split()[:3]
        if kind == "hooked":
            found.setdefault(name, (set(), set()))[0].add("-" + method)
    for name, method, *_ in listed():
        found.setdefault(name, (set(), set()))[0].add(method)
    return {name: found[name] for name in sorted(found) if name not in SKIPPED}


def rows(members):
    return "".join(f'    {{"{owner}", "{name}"}},\n' for owner, name in members)


def main(out):
    known = table()
    methods = [(name, method) for name, (methods, _) in known.items() for method in sorted(methods)]
    variables = [(name, variable) for name, (_, variables) in known.items() for variable in sorted(variables)]
    names = "".join(f'    "{name}",\n' for name in known)
    text = (f'#include "Probe/Table.h"\n\nnamespace probe {{\n\nnamespace {{\n\n'
            f"const char *const kClasses[] = {{\n{names}}};\n\nconst Member kMethods[] = {{\n{rows(methods)}}};\n\n"
            f"const Member kVariables[] = {{\n{rows(variables)}}};\n\n}} // namespace\n\n"
            "std::span<const char *const> classes() { return kClasses; }\n"
            "std::span<const Member> methods() { return kMethods; }\n"
            "std::span<const Member> variables() { return kVariables; }\n\n} // namespace probe\n")
    pathlib.Path(out).parent.mkdir(parents=True, exist_ok=True)
    pathlib.Path(out).write_text(text, "utf-8")


if __name__ == "__main__":
    main(sys.argv[1])
