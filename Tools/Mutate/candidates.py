"""All faults that can be planted into some sources: walks the syntax tree of each unit."""

import collections
import pathlib

from clang.cindex import CursorKind as Kind

import arguments
import conditions
import constants
import statements
from faults import Constant, Fault, Use, numbered
from source import Source
from syntax import FUNCTIONS, extent, parse

SHOWN = 160  # characters of the code that a fault tells of
FIXED_PARENTS = (Kind.ENUM_CONSTANT_DECL, Kind.STATIC_ASSERT, Kind.ALIGNED_ATTR)
TYPES = (Kind.STRUCT_DECL, Kind.CLASS_DECL)
SCOPES = (Kind.NAMESPACE, Kind.TRANSLATION_UNIT, Kind.LINKAGE_SPEC, *TYPES)


def shortened(code):
    return code if len(code) <= SHOWN else code[:SHOWN - 4] + " ..."


class Place:
    """Where a node stands: its source, the function around it and the constant whose definition it is part of."""

    def __init__(self, source, function="", constant=-1):
        self.source, self.function, self.constant = source, function, constant

    def code(self, node):
        return self.source.code(*extent(node))

    def fault(self, kind, node, after, changes):
        line = self.source.line_of(changes[0].start)
        return Fault(self.source.name, line, self.function, kind, shortened(self.code(node)), shortened(after), changes,
                     self.constant)


class Walk:
    def __init__(self, root, names):
        self.root = pathlib.Path(root)
        self.names = set(names)  # the sources that count, from the root
        self.sources = {}
        self.faults, self.constants, self.uses = {}, {}, collections.defaultdict(set)
        self.needs = collections.defaultdict(set)  # of one constant's definition: other constants
        self.fixed = set()

    def name_of(self, node):
        file = node.location.file
        path = pathlib.Path(file.name).resolve() if file else None
        name = path.relative_to(self.root).as_posix() if path and path.is_relative_to(self.root) else None
        return name if name in self.names else None

    def unit(self, tree):
        done = set(self.sources)
        for node in tree.cursor.get_children():
            name = self.name_of(node)
            if name and name not in done:
                self.sources.setdefault(name, Source(self.root, name))
                self.visit(Place(self.sources[name]), node, None, False)

    def visit(self, place, node, parent, fixed):
        if node.kind in FUNCTIONS:
            place = Place(place.source, node.spelling)
        elif node.kind in TYPES:
            place = Place(place.source, node.spelling)
        elif node.kind == Kind.VAR_DECL:
            place = self.variable(place, node)
        fixed = fixed or self.is_fixed(place, node, parent)
        self.use(place, node, fixed)
        if not fixed:
            for part in (statements, conditions, constants, arguments):
                for fault in part.faults(place, node):
                    words = tuple((change.start, change.end, change.text) for change in fault.changes)
                    self.faults.setdefault((fault.file, words), fault)
        if node.kind == Kind.OBJC_STRING_LITERAL:
            return
        for child in node.get_children():
            self.visit(place, child, node, fixed)

    def is_fixed(self, place, node, parent):
        """Whether the compiler has to know the value: a case, a bound, an argument of a template."""
        if parent is None or not node.kind.is_expression():
            return False
        if parent.kind in FIXED_PARENTS or (parent.kind == Kind.CASE_STMT and node == next(parent.get_children())):
            return True
        start, end = extent(node)
        before, after = place.source.text[:start].rstrip()[-1:], place.source.text[end:].lstrip()[:1]
        if parent.kind.is_declaration() and before == "[":
            return True
        return not parent.kind.is_statement() and before in "<," and after == ">"

    def variable(self, place, node):
        """A variable outside functions and every constexpr one: where its faults are passed is where it is used."""
        start, end = extent(node)
        at = node.location.offset
        tokens = [token for token in node.get_tokens() if token.extent.start.offset < at]
        keyword = next((token for token in tokens if token.spelling == "constexpr"), None)
        outside = node.semantic_parent is not None and node.semantic_parent.kind in SCOPES
        if not keyword and not outside:
            return place
        member = outside and node.semantic_parent.kind in TYPES
        span = extent(keyword) if keyword else None
        self.constants[place.source.name, at] = Constant(
            place.source.name, start, end, span, ("inline const" if member else "const") if keyword else "")
        return Place(place.source, place.function or node.spelling, at)

    def use(self, place, node, fixed):
        if node.kind != Kind.DECL_REF_EXPR or node.referenced is None or node.referenced.kind != Kind.VAR_DECL:
            return
        name = self.name_of(node.referenced)
        if not name:
            return
        constant = (name, node.referenced.location.offset)
        if fixed:
            self.fixed.add(constant)
        elif place.constant >= 0:
            self.needs[place.source.name, place.constant].add(constant)
        else:
            self.uses[place.source.name].add(Use(*extent(node), constant))


def walk(root, names, units):
    """`units` is {source: what it is compiled with}."""
    found = Walk(root, names)
    for unit, words in units:
        found.unit(parse(pathlib.Path(root) / unit, words))
    return found


def fix(found):
    """What a fixed constant needs, and what shares its declaration, is fixed, too."""
    shared = collections.defaultdict(list)
    for key, constant in found.constants.items():
        shared[constant.file, constant.keyword or key].append(key)
    queue = list(found.fixed)
    while queue:
        key = queue.pop()
        constant = found.constants.get(key)
        if constant is None or constant.fixed:
            continue
        constant.fixed = True
        queue += found.needs[key]
        queue += shared[constant.file, constant.keyword or key]


def candidates(root, names, units):
    found = walk(root, names, units)
    fix(found)
    faults = [fault for fault in found.faults.values()
              if fault.constant < 0 or not found.constants[fault.file, fault.constant].fixed]
    return numbered(faults), found
