"""What the loader of a device's libraries refuses, and what it notices while their code runs: small libraries, each
wrong in one way, installed beside the package's in a device folder."""

import pathlib
import random
import shutil
import subprocess

import body
import samples

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


BROKEN = {"cut": (cut, "the file is cut short"), "unknown_command": (unknown_command, "an unknown load command, 0x80000034"),
          "other_processor": (other_processor, "not for arm64")}
MUTATED = 24


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
    wanted = ("<Sample> 1 taken by SampleClass, 1.50", "<Sample> replaced by a category, which adds 7")
    return "" if status == 0 and all(text in said for text in wanted) else said or "nothing was said"


def wrong(made, folder, macro):
    said, status = boot_with(made, folder, built(folder, macro))
    return "" if status and WRONG[macro] in said else said or "nothing was noticed"


def broken(made, folder, name):
    change, wanted = BROKEN[name]
    said, status = boot_with(made, folder, change(built(folder)))
    return "" if status and "cannot load Sample.dylib: at 0x" in said and wanted in said else said or "nothing was noticed"


def mutated(made, folder):
    """Files with faults outside of their code, of which none runs: refused or loaded, and never a crash."""
    whole = built(folder, "NOTHING_RUNS")
    start = random.Random(7)
    for number in range(MUTATED):
        data = bytearray(whole)
        for _ in range(3):
            at = start.choice((start.randrange(32, 0x800), start.randrange(0x8000, len(data))))
            data[at] ^= 1 << start.randrange(8)
        said, status = boot_with(made, folder, bytes(data))
        if status and "cannot load Sample.dylib: " not in said:
            return f"file {number}: {said}"
    return ""


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
