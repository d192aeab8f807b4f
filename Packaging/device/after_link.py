"""Mends what the old linker for armv7 leaves in a thin Mach-O file, or cannot be asked for (armv7.sed)."""

import macho

# While linking: in the file.
LATER = {"__later_imginfo": "__objc_imageinfo", "__later_catlist": "__objc_catlist"}


def rename(data, names):
    """The file with its sections under other names, {old: new}."""
    changed = bytearray(data)
    for section in macho.MachO(data).sections.values():
        if section.name in names:
            changed[section.header : section.header + 16] = names[section.name].encode().ljust(16, b"\0")
    return bytes(changed)


def weaken(data, paths):
    """The libraries of these paths may be missing where the file is loaded; this linker has no option for it."""
    changed = bytearray(data)
    for (path, _), at in zip(macho.MachO(data).libraries, macho.MachO(data).library_commands):
        if path in paths:
            changed[at : at + 4] = macho.LOAD_WEAK.to_bytes(4, "little")
    return bytes(changed)
