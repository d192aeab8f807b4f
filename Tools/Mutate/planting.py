"""Writes a source that holds all its faults, each behind the switch of Switch.hpp."""

import collections
import dataclasses

from faults import DECLARED, STATEMENT, TRUTH
from source import on_one_line

KEYWORD, USE = "keyword", "use"
ORDER = {STATEMENT: 0, TRUTH: 1}  # of changes at the same place, from the outside


@dataclasses.dataclass
class Edit:
    """One change of the text. `owner` is the fault's number, or the constant that it serves."""
    start: int
    end: int
    form: str
    text: str
    owner: object
    asks: str = "on"
    inside: list = dataclasses.field(default_factory=list)


def parts(edit):
    """What is written before and after the code that stays."""
    asked, text = f"::mutation::{edit.asks}({edit.owner})", edit.text
    if edit.form == STATEMENT:
        return f"{{ if ({asked}) {{ {text} }} else {{ ", " } }"
    if edit.form == TRUTH:
        return f"({asked} ? {text} : !!(", "))"
    if edit.form == DECLARED:
        return f"; {asked} ? !{text} : !!{text}", ""
    if edit.form == USE:
        return f"(::mutation::pass({text}), ", ")"
    return f"({asked} ? ({text}) : (", "))"


def nested(edits):
    """As a tree; one that only overlaps another is refused, for it would tear it."""
    root = Edit(-1, 1 << 60, "root", "", None)
    stack, refused = [root], []
    for edit in sorted(edits, key=lambda edit: (edit.start, -edit.end, ORDER.get(edit.form, 2))):
        while edit.start >= stack[-1].end:
            stack.pop()
        if edit.end > stack[-1].end:
            refused.append(edit)
            continue
        stack[-1].inside.append(edit)
        stack.append(edit)
    return root, refused


class Planted:
    """The text with its switches, and where in it each edit lies."""

    def __init__(self, source, edits, header):
        self.source, self.places, self.pieces, self.length = source, [], [], 0
        root, self.refused = nested(edits)
        self.write(f'#include "{header}"\n#line 1 "{source.name}"\n')
        self.children(root, 0, len(source.text))
        self.text = "".join(self.pieces)

    def write(self, text):
        self.pieces.append(text)
        self.length += len(text)

    def children(self, edit, start, end):
        for inner in edit.inside:
            self.write(self.source.text[start:inner.start])
            begin = self.length
            if inner.form == KEYWORD:
                self.write(inner.text)
            else:
                before, after = parts(inner)
                self.write(before)
                self.children(inner, inner.start, inner.end)
                self.write(after)
            self.places.append((begin, self.length, inner))
            start = inner.end
        self.write(self.source.text[start:end])

    def edits_at(self, offset):
        """From the inside."""
        return [edit for begin, end, edit in sorted(self.places, key=lambda place: place[1] - place[0]) if begin <= offset < end]

    def edits_behind(self, offset):
        """Those that begin between there and the end of the line."""
        line_end = self.text.find("\n", offset)
        return [edit for begin, end, edit in sorted(self.places, key=lambda place: place[0]) if offset <= begin < line_end]


class Planting:
    """The edits of all sources: their faults, the constants that those need switched, the places that use these."""

    def __init__(self, faults, found):
        self.found = found
        self.faults = collections.defaultdict(list)
        own = collections.defaultdict(set)
        for fault in faults:
            self.faults[fault.file].append(fault)
            if fault.constant >= 0:
                own[fault.file, fault.constant].add(fault.number)
        self.passed = {key: sorted(self.passed_with(key, own)) for key in found.constants}

    def passed_with(self, key, own):
        """The faults in the constant's definition and in those of the constants that it is made of."""
        seen, queue = set(), [key]
        while queue:
            one = queue.pop()
            if one not in seen:
                seen.add(one)
                queue += self.found.needs.get(one, ())
        return set().union(*(own[one] for one in seen if one in own))

    def edits(self, name):
        for fault in self.faults[name]:
            for change in fault.changes:
                asks = "on" if fault.constant < 0 else "defined"
                yield Edit(change.start, change.end, change.form, on_one_line(change.text), fault.number, asks)
        keywords = {constant.keyword: (key, constant) for key, constant in self.found.constants.items()
                    if constant.file == name and constant.keyword and self.passed[key] and not constant.fixed}
        for keyword, (key, constant) in keywords.items():
            yield Edit(*keyword, KEYWORD, constant.replacement, key)
        for use in sorted(self.found.uses.get(name, ()), key=lambda use: use.start):
            numbers = self.passed.get(use.constant)
            if numbers:
                yield Edit(use.start, use.end, USE, ", ".join(map(str, numbers)), use)

    def planted(self, name, header):
        return Planted(self.found.sources[name], list(self.edits(name)), header)
