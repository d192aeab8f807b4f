"""What a planted fault is, and the changes of the text that plant it."""

import dataclasses

STATEMENT, VALUE, TRUTH, DECLARED = "statement", "value", "truth", "declared"


@dataclasses.dataclass(frozen=True)
class Change:
    """Stands in the source at [start, end); `text` replaces it when the fault is on. A truth becomes a bool;
    what is declared in a condition, whose name the text is, is asked behind its declaration."""
    start: int
    end: int
    form: str
    text: str


@dataclasses.dataclass
class Fault:
    """`kind` is one of drop, flip, change, operate, return, swap; `before` and `after` are shown to people."""
    file: str
    line: int
    function: str
    kind: str
    before: str
    after: str
    changes: list
    constant: int = -1  # offset of the constant's definition that it changes, if it does
    number: int = 0
    ordinal: int = 0  # among those whose words are the same

    @property
    def key(self):
        """What stays when lines move: words, not numbers."""
        words = [self.file, self.function, self.kind, self.before, self.after]
        return " | ".join(words + ([f"no. {self.ordinal + 1}"] if self.ordinal else []))

    def __str__(self):
        return f"{self.number}: {self.file}:{self.line}: {self.kind} in {self.function}: {self.before} -> {self.after}"


@dataclasses.dataclass
class Constant:
    """A constant that the compiler computes; `keyword` is the range of its `constexpr`. `fixed` when something needs
    it as early as that, so that no switch can stand in it."""
    file: str
    start: int
    end: int
    keyword: tuple
    replacement: str
    fixed: bool = False


@dataclasses.dataclass(frozen=True)
class Use:
    """A place at which a constant is used when the program runs."""
    start: int
    end: int
    constant: tuple  # file and offset


def numbered(faults):
    """In the order of the text, and with what tells apart those whose words are the same."""
    faults.sort(key=lambda fault: (fault.file, fault.changes[0].start, -fault.changes[0].end, fault.kind, fault.after))
    seen = {}
    for number, fault in enumerate(faults, 1):
        fault.number = number
        words = (fault.file, fault.function, fault.kind, fault.before, fault.after)
        fault.ordinal = seen[words] = seen.get(words, -1) + 1
    return faults
