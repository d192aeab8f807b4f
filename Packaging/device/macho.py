"""Reads thin Mach-O files of the device, as the loader and the Objective-C runtime would."""

import dataclasses
import functools
import pathlib
import struct

ARM, ARM64 = 12, 0x0100000C
ARCHITECTURES = {ARM: "armv7", ARM64: "arm64"}
LIBRARY, BUNDLE = 6, 8

COMMANDS = {
    0x1: "LC_SEGMENT", 0x2: "LC_SYMTAB", 0xB: "LC_DYSYMTAB", 0xC: "LC_LOAD_DYLIB", 0xD: "LC_ID_DYLIB",
    0x11: "LC_ROUTINES", 0x19: "LC_SEGMENT_64", 0x1A: "LC_ROUTINES_64", 0x1B: "LC_UUID", 0x1D: "LC_CODE_SIGNATURE",
    0x21: "LC_ENCRYPTION_INFO", 0x25: "LC_VERSION_MIN_IPHONEOS", 0x26: "LC_FUNCTION_STARTS",
    0x29: "LC_DATA_IN_CODE", 0x2A: "LC_SOURCE_VERSION", 0x2C: "LC_ENCRYPTION_INFO_64", 0x32: "LC_BUILD_VERSION",
    0x80000018: "LC_LOAD_WEAK_DYLIB", 0x8000001C: "LC_RPATH", 0x8000001F: "LC_REEXPORT_DYLIB",
    0x80000022: "LC_DYLD_INFO_ONLY", 0x80000023: "LC_LOAD_UPWARD_DYLIB", 0x80000033: "LC_DYLD_EXPORTS_TRIE",
    0x80000034: "LC_DYLD_CHAINED_FIXUPS",
}
LOAD_WEAK = 0x80000018
LOADS = ("LC_LOAD_DYLIB", "LC_LOAD_WEAK_DYLIB", "LC_REEXPORT_DYLIB", "LC_LOAD_UPWARD_DYLIB")


@dataclasses.dataclass
class Section:
    name: str
    segment: str
    address: int
    size: int
    offset: int
    header: int  # the offset of its entry among the load commands


@dataclasses.dataclass
class Segment:
    name: str
    address: int
    size: int
    offset: int
    file_size: int
    sections: list[Section]
    header: int  # the offset of its load command


@dataclasses.dataclass
class Symbol:
    name: str
    address: int
    external: bool
    undefined: bool
    thumb: bool
    debugging: bool


def text(data, at=0):
    return data[at : data.index(b"\0", at)].decode("utf-8")


class MachO:
    """One slice. Addresses are those of the file, before the loader slides it."""

    def __init__(self, data):
        self.data = data
        magic, self.processor, _, self.kind, count, _, self.flags = struct.unpack_from("<7I", data)
        if magic not in (0xFEEDFACE, 0xFEEDFACF):
            raise ValueError("not a thin Mach-O file")
        self.is64 = magic == 0xFEEDFACF
        self.word = 8 if self.is64 else 4
        self.architecture = ARCHITECTURES.get(self.processor, str(self.processor))
        self.commands = []  # (name, offset)
        offset = self.commands_at = 32 if self.is64 else 28
        for _ in range(count):
            command, size = struct.unpack_from("<II", data, offset)
            self.commands.append((COMMANDS.get(command, f"{command:#x}"), offset))
            offset += size
        self.segments = [self._segment(at) for name, at in self.commands if name in ("LC_SEGMENT", "LC_SEGMENT_64")]

    def _segment(self, at):
        address, size, offset, file_size = struct.unpack_from("<4Q" if self.is64 else "<4I", self.data, at + 24)
        first, step = (72, 80) if self.is64 else (56, 68)
        count, = struct.unpack_from("<I", self.data, at + first - 8)
        sections = [self._section(at + first + step * index) for index in range(count)]
        name = self.data[at + 8 : at + 24].rstrip(b"\0").decode()
        return Segment(name, address, size, offset, file_size, sections, at)

    def _section(self, at):
        name, segment = (self.data[start : start + 16].rstrip(b"\0").decode() for start in (at, at + 16))
        address, size, offset = struct.unpack_from("<QQI" if self.is64 else "<III", self.data, at + 32)
        return Section(name, segment, address, size, offset, at)

    @functools.cached_property
    def sections(self):
        return {section.name: section for segment in self.segments for section in segment.sections}

    def command(self, name):
        """The offset of the load command, or None."""
        return next((at for found, at in self.commands if found == name), None)

    @property
    def library_commands(self):
        """The offsets of the libraries' load commands."""
        return [at for name, at in self.commands if name in LOADS]

    @functools.cached_property
    def libraries(self):
        """(path, load command), in the order that the bindings count by, from 1."""
        names = dict(map(reversed, self.commands))
        return [(text(self.data, at + struct.unpack_from("<I", self.data, at + 8)[0]), names[at])
                for at in self.library_commands]

    @functools.cached_property
    def symbols(self):
        start, count, strings, _ = struct.unpack_from("<4I", self.data, self.command("LC_SYMTAB") + 8)
        layout = "<IBBHQ" if self.is64 else "<IBBHI"
        found = []
        for index in range(count):
            name, kind, _, description, address = struct.unpack_from(
                layout, self.data, start + struct.calcsize(layout) * index)
            found.append(Symbol(text(self.data, strings + name), address, bool(kind & 1), kind & 0x0E == 0,
                                bool(description & 8), bool(kind & 0xE0)))
        return found

    def file_offset(self, address):
        for segment in self.segments:
            if segment.address <= address < segment.address + segment.file_size:
                return address - segment.address + segment.offset
        raise ValueError(f"{address:#x} is in no segment")

    def pointer(self, address):
        return struct.unpack_from("<Q" if self.is64 else "<I", self.data, self.file_offset(address))[0]

    def integer(self, address):
        return struct.unpack_from("<I", self.data, self.file_offset(address))[0]

    def string(self, address):
        return text(self.data, self.file_offset(address))

    def pointers(self, section):
        """The addresses of the words of a section; none where the file has no such section."""
        found = self.sections.get(section)
        return range(found.address, found.address + found.size, self.word) if found else ()


def slices_of(data):
    """Every slice of a universal file, or the one of a thin file."""
    if struct.unpack_from(">I", data)[0] != 0xCAFEBABE:
        return [MachO(data)]
    count, = struct.unpack_from(">I", data, 4)
    entries = (struct.unpack_from(">5I", data, 8 + 20 * index) for index in range(count))
    return [MachO(data[offset : offset + size]) for _, _, offset, size, _ in entries]


def slices(path):
    return slices_of(pathlib.Path(path).read_bytes())
