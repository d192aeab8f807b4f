"""Makes what the linkers take for the device's libraries, from exports.txt."""

import subprocess

ARM64_LINKER = ["/usr/lib/llvm-14/bin/ld64.lld"]
ARMV7_LINKER = ["/usr/lib/llvm-13/bin/ld64.lld.darwinold"]

# What every library and bundle for the two architectures begins its link line with. 8.4 stands for the SDK.
# One thread: the file's identifier is a hash of hashes of the parts that the threads take.
ARM64_LINK = [*ARM64_LINKER, "-arch", "arm64", "-platform_version", "ios", "7.0", "8.4", "--threads=1"]
# The old linker leaves in the gaps between functions what its memory held: have it start from zeros.
ARMV7_LINK = ["env", "MALLOC_PERTURB_=255", *ARMV7_LINKER, "-arch", "armv7", "-ios_version_min", "7.0", "-sdk_version", "8.4"]


def text_stub(library):
    symbols = ", ".join(f"'{symbol}'" for symbol in sorted(library.symbols))
    return f"""--- !tapi-tbd
tbd-version: 4
targets: [ arm64-ios ]
install-name: '{library.path}'
current-version: 1
compatibility-version: 1
exports:
  - targets: [ arm64-ios ]
    symbols: [ {symbols} ]
...
"""


def arm64_stub(library, folder, _system):
    file = folder / f"{library.name}.tbd"
    file.write_text(text_stub(library), "utf-8")
    return file


def armv7_stub(library, folder, system):
    """A library of empty symbols, for the old linker reads no text stubs. It needs libSystem's stub itself."""
    assembly, object_file, file = (folder / f"{library.name}{suffix}" for suffix in (".s", ".o", ".dylib"))
    symbols = "".join(f'.globl "{symbol}"\n"{symbol}": .long 0\n' for symbol in sorted(library.symbols))
    code = ".section __TEXT,__text,regular,pure_instructions\n"
    assembly.write_text(f"{code}.data\n.align 2\n{symbols}.subsections_via_symbols\n", "utf-8")
    subprocess.run(["clang", "-target", "armv7-apple-ios7.0", "-c", assembly, "-o", object_file], check=True)
    subprocess.run([*ARMV7_LINK, "-dylib", "-install_name", library.path, "-current_version", "1",
                    "-compatibility_version", "1", "-o", file, object_file, *([system] if system else [])], check=True)
    return file


def make(libraries, architecture, folder):
    """{path of a library: its stub}. libSystem stands first."""
    folder.mkdir(parents=True, exist_ok=True)
    make_one = arm64_stub if architecture == "arm64" else armv7_stub
    files, system = {}, None
    for library in libraries:
        files[library.path] = make_one(library, folder, system)
        system = system or files[library.path]
    return files
