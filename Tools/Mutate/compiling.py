"""Leaves out what does not compile: parses every unit of the copy and drops the edit that an error lies in."""

import concurrent.futures
import pathlib

from clang import cindex

from candidates import fix
from planting import KEYWORD, USE
from syntax import parse


def errors(job):
    """[[(file, offset), …], …]: for each error of a unit its own place and those of its notes."""
    file, words, root = job
    found = []
    for diagnostic in parse(file, [*words, "-ferror-limit=0"]).diagnostics:
        if diagnostic.severity < cindex.Diagnostic.Error:
            continue
        places = []
        for one in (diagnostic, *diagnostic.children):
            where = one.location
            if where.file and pathlib.Path(where.file.name).resolve().is_relative_to(root):
                places.append((pathlib.Path(where.file.name).resolve().relative_to(root).as_posix(), where.offset))
        found.append((f"{diagnostic}", places))
    return found


class Compiling:
    def __init__(self, tree, found, faults, units):
        self.tree, self.found, self.units = tree, found, units
        self.faults = {fault.number: fault for fault in faults}
        self.dropped = []
        self.planted = {}

    def culprit(self, places):
        """The edit to leave out. What a note points at goes first: it says which constant had to be one."""
        places = [(self.planted[name], offset) for name, offset in (*places[1:], *places[:1]) if name in self.planted]
        edits = [edit for planted, offset in places for edit in planted.edits_at(offset)]
        # Of a declaration only the name is told of.
        edits = edits or [edit for planted, offset in places for edit in planted.edits_behind(offset)]
        return next((edit for edit in edits if edit.form == KEYWORD), edits[0] if edits else None)

    def leave_out(self, edit):
        if edit.form == KEYWORD:
            self.found.fixed.add(edit.owner)
            fix(self.found)
            gone = [fault for fault in self.faults.values()
                    if fault.constant >= 0 and self.found.constants[fault.file, fault.constant].fixed]
        elif edit.form == USE:
            for uses in self.found.uses.values():
                uses.discard(edit.owner)
            gone = []
        else:
            gone = [self.faults[edit.owner]] if edit.owner in self.faults else []
        for fault in gone:
            self.dropped.append(self.faults.pop(fault.number))
        return gone

    def run(self, plant, jobs):
        """`plant(faults, found)` writes the copy anew and gives {name: Planted}."""
        pending = dict(self.units)
        while pending:
            self.planted = plant(list(self.faults.values()), self.found)
            for edit in [edit for planted in self.planted.values() for edit in planted.refused]:
                self.leave_out(edit)
            work = [(self.tree.folder / name, words, self.tree.folder) for name, words in pending.items()]
            with concurrent.futures.ProcessPoolExecutor(jobs) as pool:
                results = dict(zip(pending, pool.map(errors, work)))
            pending = {name: self.units[name] for name, found in results.items() if found}
            culprits = {}
            for message, places in (error for found in results.values() for error in found):
                edit = self.culprit(places)
                if edit is None:
                    raise SystemExit(f"the copy does not compile, and no fault is to blame: {message}")
                culprits[id(edit)] = edit
            for edit in culprits.values():
                self.leave_out(edit)
        return list(self.faults.values())
