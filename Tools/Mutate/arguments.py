"""Neighbouring arguments of one type that change places."""

from clang.cindex import CursorKind as Kind
from clang.cindex import TypeKind

from faults import VALUE, Change
from syntax import extent, same_type

SYMMETRIC = {"min", "max", "fmin", "fmax", "MIN", "MAX", "swap"}


def arguments(place, node):
    children = list(node.get_children())
    if node.kind == Kind.CALL_EXPR:
        name = node.spelling
        return [] if name in SYMMETRIC or name.startswith("operator") else list(node.get_arguments())
    if node.kind == Kind.OBJC_MESSAGE_EXPR:
        if children and children[0].kind == Kind.OBJC_CLASS_REF:
            return children[1:]
        count = node.spelling.count(":")
        return children[-count:] if count else []
    return children if node.kind == Kind.INIT_LIST_EXPR else []


def by_reference(node):
    """Which arguments a call may write to: those can be no other expression."""
    called = node.referenced if node.kind == Kind.CALL_EXPR else None
    parameters = list(called.get_arguments()) if called is not None else []
    return [one.type.kind == TypeKind.LVALUEREFERENCE and not one.type.get_pointee().is_const_qualified() for one in parameters]


def movable(place, node, argument):
    """A value that is written where the call is: no default, no braces, no name of a member before it."""
    start, end = extent(argument)
    outer = extent(node)
    return outer[0] <= start < end <= outer[1] and not place.code(argument).startswith(("{", ".", "^"))


def faults(place, node):
    found = arguments(place, node)
    written = by_reference(node)
    for place_of_left, (left, right) in enumerate(zip(found, found[1:])):
        if any(written[place_of_left:place_of_left + 2]):
            continue
        if not (movable(place, node, left) and movable(place, node, right) and same_type(left.type, right.type)):
            continue
        one, two = place.code(left), place.code(right)
        if one == two or extent(left)[1] > extent(right)[0]:
            continue
        changes = [Change(*extent(left), VALUE, two), Change(*extent(right), VALUE, one)]
        yield place.fault("swap", node, f"{two} before {one}", changes)
