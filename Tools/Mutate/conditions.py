"""Conditions that are turned round, and operators that are others."""

from clang.cindex import CursorKind as Kind

from faults import DECLARED, TRUTH, VALUE, Change
from syntax import INTEGERS, bare, extent, for_condition, is_number, operator_of

OPPOSITE = {"==": "!=", "!=": "==", "<": ">=", ">=": "<", ">": "<=", "<=": ">"}
BOUNDARY = {"<": "<=", "<=": "<", ">": ">=", ">=": ">"}
LOGICAL = {"&&": "||", "||": "&&"}
ARITHMETIC = {"+": "-", "-": "+", "*": "/", "/": "*", "%": "*", "&": "|", "|": "&"}
ASSIGNING = {"+=": "-=", "-=": "+=", "*=": "/=", "/=": "*=", "&=": "|=", "|=": "&="}


def binary(place, node):
    return operator_of(place.source, node) if node.kind == Kind.BINARY_OPERATOR else None


def is_negation(place, node):
    return node.kind == Kind.UNARY_OPERATOR and place.code(node).startswith("!")


def is_condition(place, node):
    """Whether its kind alone makes it one, wherever it stands."""
    return binary(place, node) in OPPOSITE | LOGICAL or is_negation(place, node)


def conditions(place, node):
    """The children of a node whose truth is all that counts."""
    children = list(node.get_children())
    if node.kind == Kind.FOR_STMT:
        found = for_condition(place.source, node)
        return [found] if found else []
    if node.kind in (Kind.IF_STMT, Kind.WHILE_STMT, Kind.CONDITIONAL_OPERATOR):
        return children[:1] if children[0].kind.is_expression() else []
    if node.kind == Kind.DO_STMT:
        return children[-1:]
    return children if binary(place, node) in LOGICAL else []


def with_operator(place, node, other):
    left, right = node.get_children()
    return f"{place.code(left)} {other} {place.code(right)}"


def declared(place, node):
    """if (View *view = …): what is asked is what has been declared."""
    children = list(node.get_children())
    if node.kind == Kind.IF_STMT and children[0].kind == Kind.VAR_DECL:
        end, name = extent(children[0])[1], children[0].spelling
        yield place.fault("flip", children[0], f"!{name}", [Change(end, end, DECLARED, name)])


def flipped(place, node):
    for condition in conditions(place, node):
        if not is_condition(place, bare(condition)):
            text = f"!({place.code(condition)})"
            yield place.fault("flip", condition, text, [Change(*extent(condition), TRUTH, text)])
    if is_negation(place, node):
        inside = next(node.get_children())
        if not is_condition(place, bare(inside)):
            yield place.fault("flip", node, place.code(inside), [Change(*extent(node), TRUTH, f"!!({place.code(inside)})")])
    operator = binary(place, node)
    for table in (OPPOSITE, LOGICAL):
        if operator in table:
            text = with_operator(place, node, table[operator])
            yield place.fault("flip", node, text, [Change(*extent(node), TRUTH, f"({text})")])
    # Of fractions the boundary itself hardly ever comes.
    if operator in BOUNDARY and all(side.type.get_canonical().kind in INTEGERS for side in node.get_children()):
        text = with_operator(place, node, BOUNDARY[operator])
        yield place.fault("flip", node, text, [Change(*extent(node), TRUTH, f"({text})")])


def operated(place, node):
    operator = binary(place, node)
    if node.kind == Kind.COMPOUND_ASSIGNMENT_OPERATOR:
        operator = operator_of(place.source, node)
    other = (ARITHMETIC | ASSIGNING).get(operator)
    if other and all(is_number(side.type) for side in node.get_children()):
        text = with_operator(place, node, other)
        yield place.fault("operate", node, text, [Change(*extent(node), VALUE, text)])
    code = place.code(node)
    if node.kind == Kind.UNARY_OPERATOR and code.startswith("-") and not code.startswith("--"):
        inside = next(node.get_children())
        if not inside.kind in (Kind.INTEGER_LITERAL, Kind.FLOATING_LITERAL):
            text = place.code(inside)
            yield place.fault("operate", node, text, [Change(*extent(node), VALUE, text)])


def faults(place, node):
    yield from flipped(place, node)
    yield from declared(place, node)
    yield from operated(place, node)
