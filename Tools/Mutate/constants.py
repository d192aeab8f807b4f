"""Constants with another value: numbers, texts, YES and NO, and the platform's names of choices."""

import re

from clang.cindex import CursorKind as Kind

from faults import VALUE, Change
from syntax import extent

TRUTHS = {"YES": "NO", "NO": "YES", "true": "false", "false": "true"}
NUMBER = re.compile(r"(0x[0-9a-fA-F]+|\d+(?:\.\d*)?|\.\d+)([fFlLuU]*)")
TEXTS = (Kind.STRING_LITERAL, Kind.OBJC_STRING_LITERAL)


def other_number(code):
    """A whole number one more; a fraction half of it. None for what is written in another way."""
    match = NUMBER.fullmatch(code)
    if not match:
        return None
    digits, suffix = match.groups()
    if digits.startswith("0x"):
        return f"{int(digits, 16) + 1:#x}{suffix}"
    if "." not in digits:
        return f"{int(digits) + 1}{suffix}"
    value = float(digits)
    return f"{value / 2 if value else 1.0!r}{suffix}"


def other_character(code):
    match = re.fullmatch(r"([uUL]?|u8)'([0-9A-Za-y])'", code)
    return f"{match[1]}'{chr(ord(match[2]) + 1)}'" if match else None


def other_choice(place, node):
    """The next of the same enumeration, the first after the last."""
    choices = list(node.referenced.semantic_parent.get_children())
    names = [choice.spelling for choice in choices if choice.kind == Kind.ENUM_CONSTANT_DECL]
    values = {choice.spelling: choice.enum_value for choice in choices if choice.kind == Kind.ENUM_CONSTANT_DECL}
    code, own = place.code(node), node.referenced.spelling
    at = names.index(own)
    others = [name for name in names[at + 1:] + names[:at] if values[name] != values[own]]
    return code[:len(code) - len(own)] + others[0] if others and code.endswith(own) else None


def is_choice(node):
    return (node.kind == Kind.DECL_REF_EXPR and node.referenced is not None
            and node.referenced.kind == Kind.ENUM_CONSTANT_DECL)


def is_constant(place, node):
    code = place.code(node)
    return code in TRUTHS or code in ("nil", "nullptr") or NUMBER.fullmatch(code) or node.kind in TEXTS or is_choice(node)


def other(place, node):
    code = place.code(node)
    if code in TRUTHS and node.kind.is_expression():
        return TRUTHS[code]
    if node.kind in (Kind.INTEGER_LITERAL, Kind.FLOATING_LITERAL):
        return other_number(code)
    if node.kind == Kind.CHARACTER_LITERAL:
        return other_character(code)
    if node.kind in TEXTS and code.endswith('"'):
        return code[:-1] + '_"'
    return other_choice(place, node) if is_choice(node) else None


def faults(place, node):
    text = other(place, node)
    if text:
        yield place.fault("change", node, text, [Change(*extent(node), VALUE, text)])
