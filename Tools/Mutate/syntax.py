"""The compiler's syntax tree of a unit: parsing, and small questions about a node."""

import json
import pathlib
import re
import shlex

from clang import cindex
from clang.cindex import CursorKind as Kind

LOOPS = (Kind.FOR_STMT, Kind.WHILE_STMT, Kind.DO_STMT, Kind.CXX_FOR_RANGE_STMT, Kind.OBJC_FOR_COLLECTION_STMT)
FUNCTIONS = (Kind.FUNCTION_DECL, Kind.CXX_METHOD, Kind.CONSTRUCTOR, Kind.DESTRUCTOR, Kind.FUNCTION_TEMPLATE,
             Kind.CONVERSION_FUNCTION, Kind.OBJC_INSTANCE_METHOD_DECL, Kind.OBJC_CLASS_METHOD_DECL)
INTEGERS = {getattr(cindex.TypeKind, name) for name in
            "CHAR_U UCHAR CHAR16 CHAR32 USHORT UINT ULONG ULONGLONG CHAR_S SCHAR WCHAR SHORT INT LONG LONGLONG".split()}
FLOATS = {getattr(cindex.TypeKind, name) for name in "FLOAT DOUBLE LONGDOUBLE".split()}


def arguments_of(entry):
    """What a unit is compiled with, without the compiler and its files."""
    words = [word for word in shlex.split(entry["command"]) if word != "ccache"][1:]
    kept, skip = [], False
    for word in words:
        if skip or word in ("-c", entry["file"]):
            skip = False
        elif word == "-o":
            skip = True
        else:
            kept.append(word)
    return kept


def units_of(build, tree, folders):
    """{source, from the tree: what it is compiled with} for every unit in those folders."""
    found = {}
    for entry in json.loads((pathlib.Path(build) / "compile_commands.json").read_text()):
        name = pathlib.Path(entry["file"])
        if name.is_relative_to(tree) and name.relative_to(tree).as_posix().startswith(tuple(folders)):
            found.setdefault(name.relative_to(tree).as_posix(), arguments_of(entry))
    return dict(sorted(found.items()))


def parse(file, arguments):
    """Throws TranslationUnitLoadError when there is no such file."""
    return cindex.Index.create().parse(str(file), arguments)


def extent(node):
    return node.extent.start.offset, node.extent.end.offset


def bare(node):
    """Without the conversions and parentheses around it."""
    while node.kind in (Kind.UNEXPOSED_EXPR, Kind.PAREN_EXPR):
        inside = list(node.get_children())
        if len(inside) != 1:
            break
        node = inside[0]
    return node


def is_truth(kind):
    return kind.spelling in ("BOOL", "bool", "const BOOL", "const bool", "Boolean")


def is_number(kind):
    return kind.get_canonical().kind in INTEGERS | FLOATS


def same_type(left, right):
    def plain(kind):
        return re.sub(r"\bconst\b|[&\s]", "", kind.get_canonical().spelling)
    return plain(left) == plain(right)


def operator_of(source, node):
    """The operator between the two sides of a binary one; None where a macro hides it."""
    sides = list(node.get_children())
    if len(sides) != 2:
        return None
    between = source.code(sides[0].extent.end.offset, sides[1].extent.start.offset)
    return between if re.fullmatch(r"[-+*/%<>=!&|^]+", between) else None


def for_condition(source, node):
    """A for statement's children do not tell which of them are missing: the semicolons do."""
    children = list(node.get_children())
    start = node.extent.start.offset
    depth, ends = 0, []
    for match in re.finditer(r"//[^\n]*|/\*.*?\*/|\"(?:\\.|[^\"])*\"|[(){}\[\];]", source.text[start:extent(children[-1])[0]], re.S):
        depth += {"(": 1, "{": 1, "[": 1, ")": -1, "}": -1, "]": -1}.get(match[0], 0)
        if match[0] == ";" and depth == 1:
            ends.append(start + match.start())
    if len(ends) != 2:
        return None
    return next((child for child in children[:-1] if ends[0] < extent(child)[0] and extent(child)[1] <= ends[1]), None)
