"""Links objects into a thin library or bundle for the device, against the lists of exports.txt, and signs it.

    link.py arm64|armv7 library|bundle OUT NAME OBJECT...

NAME is the path under which the file is installed; its last part is the signature's identifier. A symbol that no list
has is an error: either the list lacks it, or the device does."""

import pathlib
import subprocess
import sys

import exports
import after_link
import sign
import stubs


def symbols(objects, option):
    """The names that the objects leave open (--undefined-only), or those that they give (--defined-only)."""
    output = subprocess.run(["llvm-nm-14", option, "--just-symbol-name", *objects], check=True,
                            capture_output=True, text=True).stdout
    return {line for line in output.splitlines() if line and not line.endswith(":")}


def needed(libraries, objects, kind):
    """The libraries that the objects bind to; libSystem, which each file needs for its binder, and with a bundle those
    that are loaded for their classes alone."""
    wanted = symbols(objects, "--undefined-only") - symbols(objects, "--defined-only")
    unknown = wanted.difference(*(library.symbols for library in libraries))
    if unknown:
        raise SystemExit("no list of exports has these:\n  " + "\n  ".join(sorted(unknown)))
    system, *others = libraries
    return [system, *(library for library in others
                      if library.symbols & wanted or (library.for_pane and kind == "bundle"))]


def form(kind, name):
    """What the linkers are told of the file to make."""
    if kind == "bundle":
        return ["-bundle"]
    return ["-dylib", "-install_name", name, "-current_version", "1", "-compatibility_version", "1"]


def link_arm64(form, out, objects, libraries):
    files = stubs.make(libraries, "arm64", out.parent / "stubs-arm64")
    arguments = []
    for library in libraries:
        arguments += ["-weak_library", files[library.path]] if library.for_pane else [files[library.path]]
    subprocess.run([*stubs.ARM64_LINK, *form, "-dead_strip", "-o", out, *objects, *arguments], check=True)


def spacer(folder):
    """An object that moves what the old linker lays at the end of a page, and with it the gap behind the commands."""
    made = folder / "spacer.o"
    subprocess.run(["clang", "-target", "armv7-apple-ios7.0", "-x", "assembler", "-c", "-", "-o", made], check=True, text=True,
                   input=".section __TEXT,__const\n.private_extern _spacer\n_spacer:\n.space 64\n")
    return made


def link_armv7(form, out, objects, libraries):
    files = stubs.make(libraries, "armv7", out.parent / "stubs-armv7")
    link_old(form, out, objects, libraries, files)
    # By chance there may be none, or too little.
    if not sign.has_room(out.read_bytes()):
        link_old(form, out, [*objects, spacer(out.parent)], libraries, files)


def link_old(form, out, objects, libraries, files):
    # Never with -dead_strip: this linker would drop the list of classes.
    subprocess.run([*stubs.ARMV7_LINK, *form, "-o", out, *objects,
                    *(files[library.path] for library in libraries)], check=True)
    linked = after_link.rename(out.read_bytes(), after_link.LATER)
    out.write_bytes(after_link.weaken(linked, {library.path for library in libraries if library.for_pane}))


def main():
    architecture, kind, out, name, *objects = sys.argv[1:]
    out = pathlib.Path(out)
    libraries = needed(exports.read(), objects, kind)
    link = link_arm64 if architecture == "arm64" else link_armv7
    link(form(kind, name), out, objects, libraries)
    out.write_bytes(sign.signed(out.read_bytes(), name.rsplit("/", 1)[1]))


if __name__ == "__main__":
    main()
