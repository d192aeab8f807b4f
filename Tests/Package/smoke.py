"""Comparisons of a running slice with the simulated body; each gives a list of what differs."""

import objc_metadata
import type_encodings
from phone import Phone
from processor import SLIDE, Stopped

# Messages that answer with a structure. A 32-bit slice does not send them to nil.
STRUCTURES = {"frame", "bounds", "center", "size", "locationInView:", "translationInView:", "velocityInView:",
              "contentSize", "contentOffset", "transform", "rangeOfString:"}

# What a compiler adds for C++ members, each in its own way.
COMPILERS = "-.cxx_"


def rows(file, **missing):
    """The hook table as the slice installs it."""
    installed = Phone(file, **missing).start().installed
    return [(row.target, row.selector, row.kind, row.types) for row in installed]


def row_differences(file, expected, **missing):
    found = rows(file, **missing)
    different = [f"row {number}: {one}, expected {other}"
                 for number, (one, other) in enumerate(zip(found, expected), 1) if one != other]
    return different or ([] if len(found) == len(expected) else [f"{len(found)} rows, expected {len(expected)}"])


def storage_differences(file):
    """Every hook keeps the previous implementation in a word of its own, inside the slice."""
    hooks = [row for row in Phone(file).start().installed if row.kind == "hooked"]
    data = next(segment for segment in file.segments if segment.name == "__DATA")
    words = {row.original - SLIDE for row in hooks}
    outside = [f"{row.selector} keeps the previous implementation elsewhere" for row in hooks
               if not data.address <= row.original - SLIDE < data.address + data.size]
    return outside + ([] if len(words) == len(hooks) else ["two hooks share a word"])


def run_all(file, objects):
    """Runs every replacement on a phone where messages answer nil, or an object. Gives {row: messages sent} and what
    went wrong."""
    phone, sent, wrong = Phone(file).start(), {}, []
    phone.answer = phone.object if objects else 0
    for row in phone.installed:
        before = len(phone.messages)
        try:
            phone.processor.call(row.replacement, phone.object, 0, 0, 0)
        except Stopped as stopped:
            wrong.append(f"{row.target} {row.selector}: {stopped}")
        sent[row.target, row.selector] = [name for name in phone.messages[before:] if name not in STRUCTURES]
    return sent, wrong


def metadata_differences(file, superclasses, methods):
    """Superclasses, methods and their types are those of the simulated body."""
    metadata, different, own = objc_metadata.Metadata(file), [], set()
    for kind in (metadata.classes | metadata.categories).values():
        owner = kind.name if kind.name in metadata.classes else kind.base
        own |= {(owner, selector) for selector in kind.methods}
        if owner == kind.name and superclasses.get(owner) != kind.base:
            different.append(f"{owner} has the superclass {kind.base}, not {superclasses.get(owner)}")
        for selector, method in kind.methods.items():
            types = methods.get((owner, selector), "")
            if not type_encodings.equal(method.types, types) and not selector.startswith(COMPILERS):
                different.append(f"{owner} {selector} has the types {method.types}, not {types or 'in the body'}")
    different += [f"{owner} {selector} is lost" for owner, selector in sorted(methods)
                  if owner in metadata.classes and (owner, selector) not in own and not selector.startswith(COMPILERS)]
    return different
