"""The platform as far as an emulated slice notices: a runtime whose classes are names, messages that do nothing, and
the hook engine, which writes down what it is asked for."""

import dataclasses
import re

from processor import SLIDE, Processor, Stopped

# Imported symbols that are no functions.
DATA_SYMBOLS = re.compile(r"_OBJC_|__NSConcrete|___CFConstantString|_k[A-Z]|__objc_empty|_UIWindowLevel"
                          r"|_CG\w+(Zero|Identity)$|_CATransform3DIdentity$|_UIAccessibility(Trait|VoiceOverStatus)"
                          r"|_UIContentSizeCategory|_UIFontTextStyle|_(?!UIAccessibilityPost)\w+Notification$")

# Where messages answer with an object, those that answer with a number all the same.
NUMBERS = {"countByEnumeratingWithState:objects:count:": 0, "count": 2, "length": 2}

# Messages that answer with a structure of two words, not with a rectangle of four.
PAIRS = {"center", "position", "size", "contentSize", "contentOffset", "locationInView:", "translationInView:",
         "velocityInView:", "rangeOfString:", "sizeThatFits:", "sizeWithFont:", "defaultIconSize"}


@dataclasses.dataclass(frozen=True)
class Installed:
    """A row of the hook table as it was installed."""

    target: str
    selector: str
    kind: str
    types: str
    replacement: int
    original: int = 0  # where the previous implementation was stored


class Phone:
    """`missing_classes` and `missing_methods` ((class, selector)) are what this system lacks. Every message answers
    `answer`."""

    def __init__(self, file, missing_classes=(), missing_methods=(), answer=0):
        self.missing_classes, self.missing_methods, self.answer = missing_classes, missing_methods, answer
        self.installed, self.messages, self.classes = [], [], {}
        self.processor = Processor(file, lambda symbol: bool(DATA_SYMBOLS.match(symbol)), self._called)
        self.object = self.processor.allocate(0x400)

    def start(self):
        """Runs what the loader runs."""
        for at in self.processor.file.pointers("__mod_init_func"):
            self.processor.call(self.processor.read(SLIDE + at))
        return self

    def _called(self, symbol):
        if symbol.startswith("previous "):
            return self.answer
        handler = getattr(self, "_" + symbol.lstrip("_"), None)
        if not handler:
            return 0
        return handler(self.processor)

    # The runtime.

    def _objc_getClass(self, p):
        name = p.string(p.argument(0))
        if name in self.missing_classes:
            return 0
        if name not in self.classes:
            self.classes[name] = p.allocate(64)
        return self.classes[name]

    def _name_of(self, address):
        return next(name for name, at in self.classes.items() if at == address)

    def _sel_registerName(self, p):
        return p.argument(0)

    def _class_getInstanceMethod(self, p):
        return (self._name_of(p.argument(0)), p.string(p.argument(1))) not in self.missing_methods

    def _class_addMethod(self, p):
        self.installed.append(Installed(self._name_of(p.argument(0)), p.string(p.argument(1)), "added",
                                        p.string(p.argument(3)), p.argument(2)))
        return 1

    def _MSHookMessageEx(self, p):
        row = Installed(self._name_of(p.argument(0)), p.string(p.argument(1)), "hooked", "", p.argument(2),
                        p.argument(3))
        p.write(row.original, p.slot(f"previous {row.target} {row.selector}"))
        self.installed.append(row)
        return None

    # Messages.

    def _message(self, p, selector):
        name = p.string(selector)
        self.messages.append(name)
        p.clear_floats()
        return NUMBERS.get(name, self.answer) if self.answer else 0

    def _objc_msgSend(self, p):
        return self._message(p, p.argument(1))

    def _objc_msgSendSuper2(self, p):
        return self._message(p, p.argument(1))

    def _objc_msgSend_stret(self, p):
        pair = p.string(p.argument(2)) in PAIRS
        p.engine.mem_write(p.argument(0), bytes(8 if pair else 16))
        self._message(p, p.argument(2))

    _objc_msgSendSuper2_stret = _objc_msgSend_stret

    # The C and C++ libraries.

    def _cxa_guard_acquire(self, p):
        return not p.engine.mem_read(p.argument(0), 1)[0]

    def _cxa_guard_release(self, p):
        p.engine.mem_write(p.argument(0), b"\1")

    def _Znwm(self, p):
        return p.allocate(p.argument(0))

    _malloc = _Znwm

    def _memcpy(self, p):
        p.engine.mem_write(p.argument(0), bytes(p.engine.mem_read(p.argument(1), p.argument(2))))

    _memmove = _memcpy

    def _memset(self, p):
        p.engine.mem_write(p.argument(0), bytes([p.argument(1) & 0xFF]) * p.argument(2))

    def _bzero(self, p):
        p.engine.mem_write(p.argument(0), bytes(p.argument(1)))

    def _memcmp(self, p):
        one, other = (bytes(p.engine.mem_read(p.argument(index), p.argument(2))) for index in (0, 1))
        return (one > other) - (one < other)

    def _abort(self, p):
        raise Stopped("aborted")

    def _divsi3(self, p):
        dividend, divisor = (value - (1 << 32) if value >> 31 else value for value in map(p.argument, (0, 1)))
        return abs(dividend) // abs(divisor) * (1 if (dividend < 0) == (divisor < 0) else -1)

    def _udivsi3(self, p):
        return p.argument(0) // p.argument(1)
