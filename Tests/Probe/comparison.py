"""Where two recordings of the probe differ: [(id, what one says, what the other says)]."""

import pathlib
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[2] / "Packaging/device"))

import type_encodings  # noqa: E402

# What a recording tells and no other device needs to share, each with why.
NOT_COMPARED = {
    "size": "the simulated classes have another layout",
    "windows.all": "depends on what else is installed",
    "status_bar.items": "depends on network, battery and settings",
    "application.settings.badge": "depends on whether an update waits",
    "device.machine": "a like model stands in for it",
    "device.version": "a like version stands in for it",
}

# How far numbers may lie apart: a phone's frames come every 60th of a second, and not always in time. Everything else
# differs by a 32-bit phone's rounding at most.
TOLERANCES = {".time": 0.06, ".ending": 0.06, ".shows": 0.08, ".shows_from_current": 0.08}
ROUNDING = 1e-4


def same_value(one, other, tolerance):
    if isinstance(one, (int, float)) and isinstance(other, (int, float)):
        return abs(one - other) <= tolerance + ROUNDING * abs(other)
    if isinstance(one, list) and isinstance(other, list):
        return len(one) == len(other) and all(same_value(a, b, tolerance) for a, b in zip(one, other))
    if isinstance(one, dict) and isinstance(other, dict):
        return one.keys() == other.keys() and all(same_value(one[key], other[key], tolerance) for key in one)
    return one == other


def same_types(one, other):
    return one is not None and other is not None and type_encodings.equal(one, other)


def declared_differences(one, other):
    for fact in sorted(one.keys() | other.keys()):
        first, second = one.get(fact, {}), other.get(fact, {})
        for part in sorted((first.keys() | second.keys()) - NOT_COMPARED.keys()):
            same = same_types if part == "types" else lambda a, b: a == b
            # Nothing but its absence is worth a line.
            if first.get("present") != second.get("present") and part != "present":
                continue
            if not same(first.get(part), second.get(part)):
                yield f"{fact}, {part}", first.get(part), second.get(part)


def value_differences(one, other):
    for question in sorted((one.keys() | other.keys()) - NOT_COMPARED.keys()):
        tolerance = next((near for end, near in TOLERANCES.items() if question.endswith(end)), ROUNDING)
        if not same_value(one.get(question), other.get(question), tolerance):
            yield question, one.get(question), other.get(question)


def first_calls(calls):
    """Each method once, in the order in which they were first called."""
    return list(dict.fromkeys(call["call"] for call in calls))


def call_differences(one, other):
    """Methods that were called in one recording only, and pairs that came in another order."""
    first, second = first_calls(one), first_calls(other)
    for call in sorted(set(first) ^ set(second)):
        yield f"call {call}", *("made" if call in calls else "not made" for calls in (first, second))
    first, second = ([call for call in calls if call in first and call in second] for calls in (first, second))
    for a, b in zip(first, second):
        if a != b:
            yield "calls, order", a, b
            return


def differences(one, other):
    return [*declared_differences(one["declared"], other["declared"]),
            *value_differences(one["values"], other["values"]),
            *call_differences(one["calls"], other["calls"])]
