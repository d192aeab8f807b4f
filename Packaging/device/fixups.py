"""What the loader changes in a slice before it runs: pointers that slide with it and symbols bound to libraries, as the
compressed tables of LC_DYLD_INFO_ONLY tell."""

import dataclasses
import struct


@dataclasses.dataclass(frozen=True)
class Binding:
    address: int
    symbol: str
    library: str  # the path of its load command; "" where the table names none
    addend: int = 0
    table: str = "bind"  # or lazy, weak


class Reader:
    def __init__(self, data):
        self.data, self.at = data, 0

    def __bool__(self):
        return self.at < len(self.data)

    def byte(self):
        self.at += 1
        return self.data[self.at - 1]

    def unsigned(self):
        value = shift = 0
        while True:
            byte = self.byte()
            value |= (byte & 0x7F) << shift
            shift += 7
            if not byte & 0x80:
                return value

    def signed(self):
        start = self.at
        value, bits = self.unsigned(), 7 * (self.at - start)
        return value - (1 << bits) if value >> (bits - 1) & 1 else value

    def string(self):
        end = self.data.index(b"\0", self.at)
        value, self.at = self.data[self.at : end].decode(), end + 1
        return value


def tables(macho):
    """{table: its bytes}."""
    at = macho.command("LC_DYLD_INFO_ONLY")
    numbers = struct.unpack_from("<10I", macho.data, at + 8)
    names = ("rebase", "bind", "weak", "lazy", "export")
    return {name: macho.data[numbers[2 * i] : numbers[2 * i] + numbers[2 * i + 1]] for i, name in enumerate(names)}


def rebases(macho):
    """The addresses of the words that slide with the slice."""
    reader, address, word = Reader(tables(macho)["rebase"]), 0, macho.word
    while reader:
        byte = reader.byte()
        operation, immediate = byte & 0xF0, byte & 0x0F
        count = skip = 0
        if operation == 0x00:
            return
        if operation == 0x10:
            if immediate != 1:
                raise ValueError("a rebase that is no pointer")
        elif operation == 0x20:
            address = macho.segments[immediate].address + reader.unsigned()
        elif operation == 0x30:
            address += reader.unsigned()
        elif operation == 0x40:
            address += immediate * word
        elif operation == 0x50:
            count = immediate
        elif operation == 0x60:
            count = reader.unsigned()
        elif operation == 0x70:
            count, skip = 1, reader.unsigned()
        elif operation == 0x80:
            count, skip = reader.unsigned(), reader.unsigned()
        else:
            raise ValueError(f"unknown rebase operation {byte:#x}")
        for _ in range(count):
            yield address
            address += word + skip


class BindState:
    def __init__(self, macho, table):
        self.macho, self.table = macho, table
        self.address = self.addend = 0
        self.symbol = self.library = ""

    def bind(self, skip=0):
        binding = Binding(self.address, self.symbol, self.library, self.addend, self.table)
        mask = (1 << (8 * self.macho.word)) - 1
        self.address = (self.address + self.macho.word + skip) & mask
        return binding

    def ordinal(self, number):
        special = {0: "this image", -1: "the main program", -2: "flat"}
        self.library = special.get(number) or self.macho.libraries[number - 1][0]


def bindings(macho, table="bind"):
    """The bindings of one table."""
    reader, state = Reader(tables(macho)[table]), BindState(macho, table)
    while reader:
        byte = reader.byte()
        operation, immediate = byte & 0xF0, byte & 0x0F
        if operation == 0x00:
            if table != "lazy":  # where it only ends one entry
                return
        elif operation == 0x10:
            state.ordinal(immediate)
        elif operation == 0x20:
            state.ordinal(reader.unsigned())
        elif operation == 0x30:
            state.ordinal(immediate - 16 if immediate else 0)
        elif operation == 0x40:
            state.symbol = reader.string()
        elif operation == 0x50:
            if immediate != 1:
                raise ValueError("a binding that is no pointer")
        elif operation == 0x60:
            state.addend = reader.signed()
        elif operation == 0x70:
            state.address = macho.segments[immediate].address + reader.unsigned()
        elif operation == 0x80:
            state.address += reader.unsigned()
        elif operation == 0x90:
            yield state.bind()
        elif operation == 0xA0:
            yield state.bind(reader.unsigned())
        elif operation == 0xB0:
            yield state.bind(immediate * macho.word)
        elif operation == 0xC0:
            count, skip = reader.unsigned(), reader.unsigned()
            for _ in range(count):
                yield state.bind(skip)
        else:
            raise ValueError(f"unknown bind operation {byte:#x}")


def all_bindings(macho):
    return [binding for table in ("bind", "lazy", "weak") for binding in bindings(macho, table)]


def exported(macho):
    """The names that the slice gives to others."""
    data, found = tables(macho)["export"], []

    def walk(at, prefix):
        reader = Reader(data)
        reader.at = at
        if reader.unsigned():
            found.append(prefix)
        reader.at = at
        size = reader.unsigned()
        reader.at += size
        for _ in range(reader.byte()):
            name = reader.string()
            walk(reader.unsigned(), prefix + name)

    if data:
        walk(0, "")
    return found
