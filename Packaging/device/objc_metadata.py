"""The classes and categories that a slice brings, read from its metadata as the Objective-C runtime would."""

import dataclasses

import fixups

# Sections that hold classes and categories with a +load method.
EAGER = ("__objc_nlclslist", "__objc_nlcatlist")


@dataclasses.dataclass
class Method:
    selector: str
    types: str
    implementation: int


@dataclasses.dataclass
class Kind:
    """A class or a category. Class methods are spelled "+selector", instance methods "-selector"."""

    name: str
    base: str  # the superclass, or the class that the category is on
    methods: dict[str, Method]


class Metadata:
    def __init__(self, macho):
        self.macho = macho
        self.bound = {binding.address: binding.symbol for binding in fixups.all_bindings(macho)}
        self.classes = {kind.name: kind for kind in map(self._class, self._listed("__objc_classlist"))}
        self.categories = {f"{kind.base}({kind.name})": kind
                           for kind in map(self._category, self._listed("__objc_catlist"))}

    def _listed(self, section):
        return [self.macho.pointer(at) for at in self.macho.pointers(section)]

    def _string_at(self, address):
        return self.macho.string(self.macho.pointer(address))

    def _read_only(self, class_address):
        return self.macho.pointer(class_address + 4 * self.macho.word) & ~3

    def _class_name(self, pointer_at):
        """The name of the class that the word points to, here or in a library."""
        if pointer_at in self.bound:
            return self.bound[pointer_at].removeprefix("_OBJC_CLASS_$_").removeprefix("_OBJC_METACLASS_$_")
        target = self.macho.pointer(pointer_at)
        return self._name(self._read_only(target)) if target else ""

    def _name(self, read_only):
        return self._string_at(read_only + (16 if self.macho.is64 else 12) + self.macho.word)

    def _methods(self, list_at, mark):
        start = self.macho.pointer(list_at)
        if not start:
            return {}
        size, count, word = self.macho.integer(start) & ~3, self.macho.integer(start + 4), self.macho.word
        if size != 3 * word:
            raise ValueError(f"methods of {size} bytes")
        entries = range(start + 8, start + 8 + size * count, size)
        found = [Method(self._string_at(at), self._string_at(at + word), self.macho.pointer(at + 2 * word))
                 for at in entries]
        return {mark + method.selector: method for method in found}

    def _class(self, address):
        word, read_only = self.macho.word, self._read_only(address)
        methods_at = (16 if self.macho.is64 else 12) + 2 * word
        of_class = self._read_only(self.macho.pointer(address))
        return Kind(self._name(read_only), self._class_name(address + word),
                    self._methods(read_only + methods_at, "-") | self._methods(of_class + methods_at, "+"))

    def _category(self, address):
        word = self.macho.word
        return Kind(self._string_at(address), self._class_name(address + word),
                    self._methods(address + 2 * word, "-") | self._methods(address + 3 * word, "+"))
