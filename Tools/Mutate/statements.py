"""Statements that are left out, and results that are not given back."""

from clang.cindex import CursorKind as Kind
from clang.cindex import TypeKind

from conditions import is_condition
from constants import is_constant
from faults import STATEMENT, Change
from syntax import LOOPS, bare, extent, is_truth

JUMPS = (Kind.BREAK_STMT, Kind.CONTINUE_STMT)


def bodies(node):
    """The children of a node that stand as statements of their own."""
    children = list(node.get_children())
    if node.kind == Kind.COMPOUND_STMT:
        return children
    if node.kind == Kind.IF_STMT:
        return children[-2:] if len(children) > 2 else children[-1:]
    if node.kind == Kind.DO_STMT:
        return children[:1]
    if node.kind in LOOPS or node.kind in (Kind.CASE_STMT, Kind.DEFAULT_STMT):
        return children[-1:]
    return []


def dropped(place, statement):
    returns = statement.kind == Kind.RETURN_STMT
    if not (statement.kind.is_expression() or statement.kind in JUMPS or (returns and not list(statement.get_children()))):
        return
    start, end = extent(statement)
    end = place.source.after(end, ";")
    if end:
        yield place.fault("drop", statement, "nothing", [Change(start, end, STATEMENT, "")])


def unreturned(place, statement):
    value = next(iter(statement.get_children()), None)
    if value is None or value.type.kind == TypeKind.VOID or place.code(value) == "*this" or is_constant(place, bare(value)) or is_condition(place, bare(value)):
        return
    start, end = extent(statement)
    end = place.source.after(end, ";")
    if end:
        text = f"return !({place.code(value)});" if is_truth(value.type) else "return {};"
        yield place.fault("return", statement, text, [Change(start, end, STATEMENT, text)])


def faults(place, node):
    for statement in bodies(node):
        yield from dropped(place, statement)
    if node.kind == Kind.RETURN_STMT:
        yield from unreturned(place, node)
