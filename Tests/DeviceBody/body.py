"""A folder in which a device's bytes live: the installed files of a package for a phone, and simulated processes for
their kind of processor.

The folder is laid out as a build is, bin/ beside stage/, so that the programs find one another. The supervisor is this
machine's own; what it starts as pendix-home and pendix-settings is a line of shell that starts the process for aarch64,
emulated where this machine is of another kind."""

import hashlib
import json
import os
import pathlib
import platform
import shlex
import shutil
import subprocess
import tempfile

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
PROCESSES = ("pendix-home", "pendix-settings")
TRIAL = "loader_trial"
LIBRARY = "Library/MobileSubstrate/DynamicLibraries/Pendix.dylib"
BUNDLE = "Library/PreferenceBundles/PendixSettings.bundle/PendixSettings"
EMULATOR = "qemu-aarch64-static"
ARM64 = 0x0100000C


class BodyError(Exception):
    """Something is missing or is not what it should be; says what to do."""


def is_native():
    return platform.machine() == "aarch64"


def checksum(*paths):
    return hashlib.sha256(b"".join(pathlib.Path(path).read_bytes() for path in paths)).hexdigest()


def arm64_slice(path):
    """The bytes of the slice that runs, and where they begin in the file."""
    data = pathlib.Path(path).read_bytes()
    if int.from_bytes(data[:4], "little") == 0xFEEDFACF:
        return data, 0
    if data[:4] == b"\xca\xfe\xba\xbe":
        for at in range(8, 8 + 20 * int.from_bytes(data[4:8], "big"), 20):
            kind, _, offset, size, _ = (int.from_bytes(data[at + 4 * i : at + 4 * i + 4], "big") for i in range(5))
            if kind == ARM64:
                return data[offset : offset + size], offset
    raise BodyError(f"{path} has no arm64 slice: build the package with scripts/package")


def emulated(program, sysroot):
    """The command that runs a program for aarch64."""
    return [str(program)] if is_native() else [EMULATOR, "-L", str(sysroot), str(program)]


def starter(program, sysroot, report):
    """The program that the supervisor starts. Whoever wants to share the work of starting replaces this line."""
    command = shlex.join(emulated(program, sysroot))
    return f"#!/bin/sh\nexport SIM_LOADER_REPORT={shlex.quote(str(report))}\nexec {command} \"$@\"\n"


class Body:
    """`path` is a folder that make() has laid out."""

    def __init__(self, path):
        self.path = pathlib.Path(path)
        self.simulator = self.path / "bin/pendix-sim"
        self.root = self.path / "stage/root"
        self.report = self.path / "counts"
        self.facts = json.loads((self.path / "facts.json").read_text())

    def check(self):
        """The installed files are those of the package, and nothing of the extension is for this machine."""
        found = {path.relative_to(self.root).as_posix(): path for path in self.root.rglob("*") if path.is_file()}
        if set(found) != set(self.facts["files"]):
            raise BodyError(f"files came or went in {self.root}: remove {self.path} and try again")
        for name, path in found.items():
            if checksum(path) != self.facts["files"][name]:
                raise BodyError(f"{path} is not what the package holds: remove {self.path} and try again")
            if path.is_symlink() or path.read_bytes()[:4] == b"\x7fELF":
                raise BodyError(f"{path} is not the package's own")

    def describe(self):
        code, _ = arm64_slice(self.root / LIBRARY)
        how = "on this machine's own processor" if is_native() else f"emulated by {EMULATOR}"
        return (f"device body: arm64 slice {hashlib.sha256(code).hexdigest()[:16]} of Pendix.dylib, from "
                f"{self.facts['package']} {self.facts['checksum'][:16]}, {how}")

    def run(self, *arguments, **options):
        return subprocess.run([self.simulator, *map(str, arguments)], check=False, **options)

    def counts(self):
        """The sums of what the processes reported that ended by themselves."""
        total = {"processes": 0, "messages": 0, "small values": {}, "imports": {}}
        for line in self.report.read_text().splitlines() if self.report.exists() else ():
            one = json.loads(line)
            total["processes"] += 1
            total["messages"] += one["messages"]
            total["imports"] = one["imports"]
            for name, count in one["small values"].items():
                total["small values"][name] = total["small values"].get(name, 0) + count
        return total


def changed(made, path, change):
    """Another body at `path`, of the same parts; `change(root)` alters its installed files."""
    package, build, processes, sysroot = made.facts["made of"]
    return make(path, package, pathlib.Path(build), pathlib.Path(processes), sysroot, change)


def unpack(package, to):
    result = subprocess.run(["dpkg-deb", "-x", package, to], capture_output=True, text=True, check=False)
    if result.returncode:
        raise BodyError(f"{package} cannot be unpacked: {result.stderr.strip()}")
    if not (to / LIBRARY).is_file():
        raise BodyError(f"{package} holds no {LIBRARY}: it is not the package that scripts/package builds")
    for file in (LIBRARY, BUNDLE):
        arm64_slice(to / file)


def add_programs(path, build, processes, sysroot, report):
    (path / "bin").mkdir(parents=True)
    shutil.copy2(build / "bin/pendix-sim", path / "bin")
    for name in ("platform", "page", "trace", "Lua"):
        (path / "stage" / name).symlink_to(build / "stage" / name)
    shutil.copy2(build / "stage/settings.json", path / "stage")
    # Of somebody's extension too, the phone's library.
    manifest = json.loads((build / "stage/package.json").read_text())
    (path / "stage/package.json").write_text(json.dumps(manifest | {"extension_build": "build/phone"}))
    for name in PROCESSES:
        program = path / "bin" / name
        program.write_text(starter(processes / name, sysroot, report))
        program.chmod(0o755)


def make(path, package, build, processes, sysroot, change=None):
    """Lays out a body at `path`, in one step. `build` is the folder of this machine's build, `processes` that of the
    programs for aarch64; `change(root)` may alter the installed files first, for tests."""
    path.parent.mkdir(parents=True, exist_ok=True)
    with tempfile.TemporaryDirectory(dir=path.parent, prefix="new-") as made:
        new = pathlib.Path(made) / "body"
        root = new / "stage/root"
        root.mkdir(parents=True)
        unpack(package, root)
        if change:
            change(root)
        add_programs(new, build, processes, sysroot, path / "counts")
        files = {file.relative_to(root).as_posix(): checksum(file) for file in root.rglob("*") if file.is_file()}
        facts = {"package": pathlib.Path(package).name, "checksum": checksum(package), "files": files,
                 "made of": [str(part) for part in (package, build, processes, sysroot)]}
        (new / "facts.json").write_text(json.dumps(facts, indent=1))
        if path.exists():
            shutil.rmtree(path)
        os.rename(new, path)
    return Body(path)
