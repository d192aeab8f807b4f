"""What the loader of a device's libraries refuses, and what it notices while their code runs: small libraries, each
wrong in one way, installed beside the package's in a device folder."""

import os
import pathlib
import shutil
import subprocess
import sys

import body
import samples  # which adds the folder of the next one

import macho

HERE = pathlib.Path(__file__).resolve().parent
FOLDER = "Library/MobileSubstrate/DynamicLibraries"

# Macro of Samples/Sample.mm, and what the boot says.
WRONG = {
    "MISSING_FUNCTION": "cannot load Sample.dylib: the platform has no _noSuchFunction",
    "MISSING_CLASS": "the platform has no _OBJC_CLASS_$_NoSuchClass",
    "SECOND_CLASS": "there is a class ",
    "LOAD_METHOD": "a +load method, which is not supported",
    "TEXT_OF_OTHERS": "a constant string that is not plain ASCII",
    "VARIABLE_MESSAGE": "it sends setWithObjects:, whose variable arguments",
    "VARIABLE_FUNCTION": "it calls snprintf, whose variable arguments",
    "VARIABLE_METHOD": "+[SampleClass stringWithFormat:] takes variable arguments",
    "PACKED_METHOD": "-[SampleClass a:b:c:d:e:f:g:] takes small arguments on the stack",
    "ODD_RESULT": "-[SampleClass oddTruth]: 2 among the results of messages where 0 or 1 should be",
    "ODD_ARGUMENT": "-[SampleClass take:]: 256 among the arguments of methods where 0 or 1 should be",
    "ODD_BLOCK": "512 among the arguments of blocks where 0 or 1 should be",
}


def cut(data):
    return data[: len(data) * 3 // 4]


def unknown_command(data):
    """The identifier's load command becomes that of chained fix-ups."""
    at = 32
    while int.from_bytes(data[at : at + 4], "little") != 0x1B:
        at += int.from_bytes(data[at + 4 : at + 8], "little")
    return data[:at] + (0x80000034).to_bytes(4, "little") + data[at + 4 :]


def other_processor(data):
    return data[:4] + (12).to_bytes(4, "little") + data[8:]


def moved_variable(data):
    """Another offset than the one that the code of a class below NSObject was compiled with."""
    file = macho.MachO(data)
    for at in file.pointers("__objc_classlist"):
        facts = file.pointer(file.pointer(at) + 32) & ~7
        if file.string(file.pointer(facts + 24)) == "SampleBase":
            slot = file.file_offset(file.pointer(file.pointer(facts + 48) + 8))
            return data[:slot] + (24).to_bytes(4, "little") + data[slot + 4 :]
    raise ValueError("there is no such class")


BROKEN = {
    "cut": (cut, "at 0x", "the file is cut short"),
    "unknown_command": (unknown_command, "at 0x", "an unknown load command, 0x80000034"),
    "other_processor": (other_processor, "at 0x", "not for arm64"),
    "moved_variable": (moved_variable, "SampleBase has its variable _count at 8, and its code was compiled for 24"),
}
MUTATED = 2000


def boot_with(made, folder, library):
    """Boots with a library of those bytes installed; what comes out, and the exit status."""
    place = folder / "root" / FOLDER
    shutil.rmtree(folder / "root", ignore_errors=True)
    place.mkdir(parents=True)
    (place / "Sample.dylib").write_bytes(library)
    shutil.copy(body.ROOT / "Tests/Supervisor/Extensions/Filter.plist", place / "Sample.plist")
    done = made.run("run", HERE / "with_library.lua", "--out", folder, "--", folder / "root", capture_output=True, text=True)
    return done.stdout + done.stderr, done.returncode


def built(folder, macro=None):
    return samples.build(folder / "Sample.dylib", macro).read_bytes()


def right(made, folder):
    said, status = boot_with(made, folder, built(folder))
    wanted = ("<Sample> 1 taken by SampleClass, 1.50", "<Sample> replaced by a category, which adds 7",
              "<Sample> 1, 1, 3, 4")
    return "" if status == 0 and all(text in said for text in wanted) else said or "nothing was said"


def wrong(made, folder, macro):
    said, status = boot_with(made, folder, built(folder, macro))
    return "" if status and WRONG[macro] in said else said or "nothing was noticed"


def broken(made, folder, name):
    change, *wanted = BROKEN[name]
    said, status = boot_with(made, folder, change(built(folder)))
    noticed = status and all(text in said for text in ("cannot load Sample.dylib: ", *wanted))
    return "" if noticed else said or "nothing was noticed"


def mutated(made, folder):
    """Broken copies of a library of which none runs, by the loader itself: refused or loaded, and never a crash."""
    built(folder, "NOTHING_RUNS")
    _, _, programs, sysroot = made.facts["made of"]
    command = body.emulated(pathlib.Path(programs) / body.TRIAL, sysroot)
    done = subprocess.run([*command, folder / "Sample.dylib", folder, str(MUTATED)], capture_output=True, text=True, check=False)
    return "" if done.returncode == 0 and f"of {MUTATED}\n" in done.stdout else done.stdout + done.stderr


def bad_packages(made, folder):
    """A package that is none, one without the library, and one whose library has no slice for arm64."""
    def refused(package, wanted):
        try:
            body.unpack(package, folder / "unpacked")
        except body.BodyError as error:
            return "" if wanted in str(error) else str(error)
        return f"{package} was taken"

    def packed(name, change):
        root = folder / name
        shutil.copytree(made.root, root)
        change(root / body.LIBRARY)
        (root / "DEBIAN").mkdir()
        (root / "DEBIAN/control").write_text("Package: x\nVersion: 1\nArchitecture: all\nMaintainer: x\nDescription: x\n")
        subprocess.run(["dpkg-deb", "-b", root, folder / f"{name}.deb"], check=True, capture_output=True)
        return folder / f"{name}.deb"

    def without_arm64(library):
        library.write_bytes(library.read_bytes().replace(body.ARM64.to_bytes(4, "big"), (7).to_bytes(4, "big"), 1))

    (folder / "none.deb").write_text("none")
    return (refused(folder / "none.deb", "cannot be unpacked")
            or refused(packed("empty", pathlib.Path.unlink), "holds no")
            or refused(packed("thin", without_arm64), "has no arm64 slice"))


def machine_without(folder, *missing, **instead):
    """The environment of a machine that lacks those programs, has scripts in the place of others, and has fetched
    nothing yet."""
    programs = folder / "programs"
    programs.mkdir()
    for name, script in instead.items():
        (programs / name.replace("_", "-")).write_text("#!/bin/sh\n" + script)
        (programs / name.replace("_", "-")).chmod(0o755)
    for place in os.environ["PATH"].split(os.pathsep):
        for program in pathlib.Path(place).glob("*"):
            if program.name not in missing and not (programs / program.name).exists():
                (programs / program.name).symlink_to(program)
    return {**os.environ, "PATH": str(programs), "XDG_CACHE_HOME": str(folder / "cache")}


def unprepared(environment, *wanted):
    """What device-body says on such a machine, and where: it stops, and says what to do."""
    done = subprocess.run([sys.executable, body.ROOT / "scripts/device-body", "prepare"], env=environment, capture_output=True,
                          text=True, check=False)
    noticed = done.returncode == 2 and all(text in done.stderr for text in wanted)
    return "" if noticed else done.stdout + done.stderr


def no_emulator(folder):
    environment = machine_without(folder, body.EMULATOR)
    return unprepared(environment, "there is no qemu-aarch64-static: apt-get install qemu-user-static")


def no_libraries(folder):
    environment = machine_without(folder, apt_get="echo 'Temporary failure resolving' >&2; exit 100\n")
    return unprepared(environment, "Temporary failure resolving", "The libraries for aarch64 could not be fetched",
                      "call scripts/device-sysroot again when the network is back")


def changed_archives(folder):
    """An archive that is not what it was when it was fetched is not unpacked, nor is one that is broken left out."""
    environment = machine_without(folder, apt_get="exit 0\n")
    archives = folder / "cache/pendix/aarch64/apt/archives"
    archives.mkdir(parents=True)
    (archives / "libc6.deb").write_text("another")
    known = archives.parent.parent / "archives.sha256"
    known.write_text(f"{'0' * 64}  ./libc6.deb\n")
    changed = unprepared(environment, "are not what they were:", "./libc6.deb", "Remove them and call scripts/device-sysroot again")
    known.unlink()
    return changed or unprepared(environment, "libc6.deb cannot be unpacked: remove it and call scripts/device-sysroot again")


def changed_stage(made, folder):
    """A file of the stage that is not the package's is noticed."""
    copy = folder / "copy"
    shutil.copytree(made.path, copy, symlinks=True)
    (copy / "stage/root" / body.LIBRARY).write_bytes(b"\x7fELF")
    try:
        body.Body(copy).check()
    except body.BodyError as error:
        return "" if "is not what the package holds" in str(error) else str(error)
    return "nothing was noticed"


def changed_text(made, folder):
    """One byte of a text that the library logs: the bytes of the package are those that run."""
    old, new = b"<Pendix> Loaded!", b"<Pendix> Loaded?"

    def change(root):
        library = root / body.LIBRARY
        code, offset = body.arm64_slice(library)
        data = library.read_bytes()
        library.write_bytes(data[:offset] + code.replace(old, new, 1) + data[offset + len(code) :])

    said = [subprocess.run([one.simulator, "run", HERE / "with_library.lua", "--out", folder, "--", folder / name],
                           capture_output=True, text=True, check=False).stdout
            for name, one in (("as_it_is", made), ("changed", body.changed(made, folder / "body", change)))]
    texts = [text.decode() in output for output in said for text in (old, new)]
    return "" if texts == [True, False, False, True] else "\n".join(said) or "nothing was logged"


def cases(made):
    """(name, function of a folder that returns what is wrong)."""
    yield "loader.right", lambda folder: right(made, folder)
    for macro in WRONG:
        yield f"loader.{macro.lower()}", lambda folder, macro=macro: wrong(made, folder, macro)
    for name in BROKEN:
        yield f"loader.{name}", lambda folder, name=name: broken(made, folder, name)
    yield "loader.mutated", lambda folder: mutated(made, folder)
    yield "stage.packages", lambda folder: bad_packages(made, folder)
    yield "stage.changed_text", lambda folder: changed_text(made, folder)
    yield "stage.changed", lambda folder: changed_stage(made, folder)
    if not body.is_native():
        yield "stage.no_emulator", no_emulator
        yield "stage.no_libraries", no_libraries
        yield "stage.changed_archives", changed_archives
