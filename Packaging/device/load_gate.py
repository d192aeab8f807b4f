"""Refuses a library or bundle that iOS 7 would not load, or that has lost a part of the product on its way.

    load_gate.py [--exports FILE] [--sources FOLDER] FILE...

Each FILE is thin or universal. Of other sources than the product's the hook table is not looked for. Prints every fault and exits with 1 when there is one; otherwise one line a slice."""

import argparse
import pathlib
import struct
import sys

import exports
import fixups
import macho
import objc_metadata
import sign
import sources
import type_encodings

REQUIRED = {"LC_DYLD_INFO_ONLY", "LC_SYMTAB", "LC_DYSYMTAB", "LC_VERSION_MIN_IPHONEOS", "LC_LOAD_DYLIB",
            "LC_CODE_SIGNATURE"}
ALLOWED = REQUIRED | {"LC_SEGMENT", "LC_SEGMENT_64", "LC_ID_DYLIB", "LC_UUID", "LC_ENCRYPTION_INFO",
                      "LC_ENCRYPTION_INFO_64", "LC_SOURCE_VERSION", "LC_LOAD_WEAK_DYLIB", "LC_FUNCTION_STARTS",
                      "LC_DATA_IN_CODE"}
SEGMENTS = ["__TEXT", "__DATA", "__LINKEDIT"]
# What newer loaders and runtimes know and iOS 7 does not, and the names that stand in while the old linker is at work.
FORBIDDEN_SECTIONS = ("__auth_", "__thread_", "__objc_stubs", "__objc_methlist", "__init_offsets", "__later_")
IOS_7 = 7 << 16

# What the old linker makes of a tail call from Thumb code into a library: ldr r12, [pc, #4]; add pc, pc; bx r12. The
# addition has the wrong register.
BROKEN_SHIM = bytes.fromhex("dff804c0ff446047")


def command_faults(file):
    names = {name for name, _ in file.commands}
    yield from (f"{name} is missing" for name in sorted(REQUIRED - names))
    yield from (f"iOS 7 does not expect {name}" for name in sorted(names - ALLOWED))
    if ("LC_ID_DYLIB" in names) != (file.kind == macho.LIBRARY) or file.kind not in (macho.LIBRARY, macho.BUNDLE):
        yield "neither a library with a name nor a bundle without"
    version = file.command("LC_VERSION_MIN_IPHONEOS")
    if version and struct.unpack_from("<I", file.data, version + 8)[0] != IOS_7:
        yield "the least system version is not 7.0"
    if [segment.name for segment in file.segments] != SEGMENTS:
        yield f"other segments than {', '.join(SEGMENTS)}"
    yield from (f"iOS 7 does not know the section {name}" for name in file.sections
                if name.startswith(FORBIDDEN_SECTIONS))


def import_faults(file, libraries):
    """Every import is in the list of the library it binds to, and nothing undefined is left without a binding."""
    lists = {library.path: library for library in libraries}
    bound = fixups.all_bindings(file)
    for binding in sorted({(b.symbol, b.library, b.table == "weak") for b in bound}):
        symbol, library, weak = binding
        if weak or library not in lists or symbol not in lists[library].symbols:
            yield f"import not in the list of {library or 'any library'}: {symbol}"
    names = {binding.symbol for binding in bound}
    yield from (f"undefined and never bound: {symbol.name}" for symbol in file.symbols
                if symbol.undefined and not symbol.debugging and symbol.name not in names)
    used = {binding.library for binding in bound}
    for path, command in file.libraries:
        if path not in lists:
            yield f"loads {path}, of which there is no list"
        elif lists[path].for_pane and (command != "LC_LOAD_WEAK_DYLIB" or file.kind != macho.BUNDLE):
            yield f"loads {path} other than for the pane, which does without it if need be"
        elif not lists[path].for_pane and path not in used | {"/usr/lib/libSystem.B.dylib"}:
            yield f"loads {path} for nothing"
    yield from (f"exports {name}" for name in fixups.exported(file))


def class_faults(file, libraries):
    """Which of the two a class lies in that one library hands on from another, nobody has to know."""
    owners = {library.re_exports: library.name for library in libraries if library.re_exports}
    bound = {(b.symbol, b.library) for b in fixups.all_bindings(file) if b.symbol.startswith("_OBJC_CLASS_$_")}
    for symbol, library in sorted(bound):
        if library in owners:
            yield f"{symbol} is bound to {library}, and {owners[library]} hands it on"


def start_faults(file):
    """One constructor, which the loader runs after it has handed the classes to the runtime, and nothing earlier."""
    constructors = len(file.pointers("__mod_init_func"))
    if constructors != 1:
        yield f"{constructors} constructors, not one"
    yield from (f"runs code before the runtime is ready: {name}" for name in objc_metadata.EAGER if file.pointers(name))


def code_faults(file):
    text = file.sections["__text"]
    if file.architecture == "armv7":
        broken = file.data[text.offset : text.offset + text.size].count(BROKEN_SHIM)
        if broken:
            yield f"{broken} broken shims between Thumb and ARM code"
    sliding = set(fixups.rebases(file))
    for at in (*file.pointers("__mod_init_func"), *file.pointers("__objc_classlist"), *file.pointers("__objc_catlist")):
        if at not in sliding:
            yield f"the pointer at {at:#x} does not slide"


def metadata_faults(file, classes, categories, rows):
    """Classes, categories and the strings of the hook table are those of the sources; methods point to code."""
    if "__objc_imageinfo" not in file.sections:
        yield "the runtime does not see its classes without __objc_imageinfo"
    metadata, text = objc_metadata.Metadata(file), file.sections["__text"]
    for what, wanted, found in (("class", classes, metadata.classes), ("category", categories, metadata.categories)):
        yield from (f"{what} lost: {name}" for name in sorted(wanted - set(found)))
        yield from (f"{what} that no source has: {name}" for name in sorted(set(found) - wanted))
    for name, kind in (metadata.classes | metadata.categories).items():
        for selector, method in kind.methods.items():
            address = method.implementation
            if not text.address <= address < text.address + text.size or (address & 1) != (not file.is64):
                yield f"{name} {selector} does not point to code"
    strings = set(file.data[file.segments[0].offset :][: file.segments[0].file_size].split(b"\0"))
    for row in rows:
        for word in [*row[:2], *row[3:]]:
            if word.encode() not in strings:
                yield f"hook row {' '.join(row)}: {word} is not in the library"


def encoding_faults(one, other):
    """The methods of two slices have the same types."""
    kinds = [metadata.classes | metadata.categories for metadata in map(objc_metadata.Metadata, (one, other))]
    for name in sorted(set(kinds[0]) & set(kinds[1])):
        methods = [kind[name].methods for kind in kinds]
        yield from (f"{name} {selector} is not in both slices"
                    for selector in sorted(set(methods[0]) ^ set(methods[1])))
        for selector in sorted(set(methods[0]) & set(methods[1])):
            types = [method[selector].types for method in methods]
            if not type_encodings.equal(*types):
                yield f"{name} {selector} has the types {types[0]} and {types[1]}"


def faults(path, libraries, folder=None):
    found, slices = [], macho.slices(path)
    classes, categories = sources.implementations([folder] if folder else sources.FOLDERS)
    rows = [] if folder else sources.hook_rows()
    for file in slices:
        checks = (command_faults(file), import_faults(file, libraries), class_faults(file, libraries),
                  start_faults(file), code_faults(file),
                  metadata_faults(file, classes, categories, rows), sign.faults(file))
        found += [f"{file.architecture}: {fault}" for check in checks for fault in check]
    for other in slices[1:]:
        found += encoding_faults(slices[0], other)
    return found


def summary(file):
    metadata = objc_metadata.Metadata(file)
    imports = {binding.symbol for binding in fixups.all_bindings(file)}
    return (f"{file.architecture}: {len(file.data)} bytes, "
            f"{len(imports)} imports from {len(file.libraries)} libraries, "
            f"{len(metadata.classes)} classes, {len(metadata.categories)} categories")


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--exports", default=exports.FILE)
    parser.add_argument("--sources")
    parser.add_argument("files", nargs="+")
    arguments = parser.parse_args()
    libraries, failed = exports.read(arguments.exports), False
    for path in arguments.files:
        name = pathlib.Path(path).name
        for fault in faults(path, libraries, arguments.sources):
            failed = True
            print(f"{name}: {fault}", file=sys.stderr)
        for file in macho.slices(path):
            print(f"{name}, {summary(file)}")
    return 1 if failed else 0


if __name__ == "__main__":
    sys.exit(main())
