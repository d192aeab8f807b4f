"""Compares Objective-C type encodings across processors, whose sizes of some types differ."""

import re

# The same C type as 64-bit phones, 32-bit phones and the simulated body encode it: CGFloat, NSInteger, NSUInteger and
# BOOL. A type that is the same everywhere stands for itself.
SAME = [set("df"), set("qil"), set("QIL"), set("BcC")]

# Names of structures and sizes of arrays and bit fields are kept, offsets into the arguments are not.
_PARTS = re.compile(r"(\{[^=}]*[=}]|\[\d+|b\d+)|\d+")


def without_offsets(types):
    return _PARTS.sub(lambda match: match[1] or "", types)


def equal(one, other):
    """Whether both say the same, in whichever of the spellings."""
    one, other = without_offsets(one), without_offsets(other)
    return len(one) == len(other) and all(
        a == b or any(a in same and b in same for same in SAME) for a, b in zip(one, other))
