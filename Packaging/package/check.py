"""Refuses a package that would not install, or that lacks something which its own files name.

    check.py DEB

Prints every fault and exits with 1 when there is one; otherwise a summary, and what is known to be missing."""

import pathlib
import plistlib
import re
import subprocess
import sys

sys.path.insert(0, str(pathlib.Path(__file__).resolve().parents[1] / "device"))

import deb  # noqa: E402
import macho  # noqa: E402
import objc_metadata  # noqa: E402
import sources  # noqa: E402

FIELDS = """Package Name Version Architecture Section Maintainer Author Homepage Depends Description
    Installed-Size""".split()
# What the package managers of the era offer, as the package depends on it.
KNOWN = {"firmware", "mobilesubstrate", "preferenceloader", "libactivator", "applist", "libstatusbar"}
MEMBERS = ["debian-binary", "control.tar.gz", "data.tar.gz"]  # the devices' dpkg reads no other compression
SCRIPTS = {"/postinst", "/postrm"}

LIBRARY = "/Library/MobileSubstrate/DynamicLibraries/Pendix.dylib"
FILTER = LIBRARY.replace(".dylib", ".plist")
BUNDLE = "/Library/PreferenceBundles/PendixSettings.bundle/"
ENTRY = "/Library/PreferenceLoader/Preferences/PendixSettings.plist"
LISTENER = "/Library/Activator/Listeners/org.quillhub.Pendix/Info.plist"
LISTENER_ICONS = {"Icon": 60, "Icon-small": 29}  # points, as Activator shows them
LANGUAGES = "/Library/Application Support/Pendix/Languages/"
STATUS_BAR = "/System/Library/Frameworks/UIKit.framework/"
GLYPHS = {STATUS_BAR + style + name for style in ("Black_", "LockScreen_") for name in ("Pendix", "PendixSwitcher")}
INFO_KEYS = """CFBundleDevelopmentRegion CFBundleExecutable CFBundleIdentifier CFBundleInfoDictionaryVersion
    CFBundlePackageType CFBundleShortVersionString CFBundleSignature CFBundleVersion NSPrincipalClass""".split()
NOT_YET = pathlib.Path(__file__).with_name("not-yet.txt")


def control_faults(package):
    fields = package.fields
    yield from (f"control lacks {name}" for name in FIELDS if not fields.get(name))
    if not re.fullmatch(r"\d+(\.\d+)*(-\d+)?", fields.get("Version", "")):
        yield "the version is not a number"
    if package.name != f"{fields.get('Package')}_{fields.get('Version')}_{fields.get('Architecture')}.deb":
        yield f"the file's name {package.name} is not that of its fields"
    if fields.get("Architecture") != "iphoneos-arm":
        yield "the architecture is not iphoneos-arm"
    for dependency in fields.get("Depends", "").split(","):
        match = re.fullmatch(r"\s*([a-z0-9.+-]+)(?: \((?:<<|<=|=|>=|>>) [0-9.]+\))?", dependency)
        if not match or match[1] not in KNOWN:
            yield f"a dependency that nobody offers: {dependency.strip()}"
    domain = ".".join(reversed(fields.get("Package", "").split(".")[:2]))
    if not re.fullmatch(rf"https?://{re.escape(domain)}/\S*", fields.get("Homepage", "")):
        yield f"the homepage is not one of {domain}, which the identifier names"
    if package.members != MEMBERS:
        yield f"other members than {', '.join(MEMBERS)}: {', '.join(package.members)}"


def script_faults(package):
    if set(package.control.files) != SCRIPTS | {"/control"}:
        yield f"other control files than control, postinst and postrm: {', '.join(package.control.files)}"
    for path in SCRIPTS & set(package.control.files):
        text = package.control.read(path)
        result = subprocess.run(["sh", "-n"], input=text, capture_output=True)
        if result.returncode or not text.startswith(b"#!/bin/sh\n") or not text.endswith(b"\nexit 0\n"):
            yield f"{path} does not parse, or does not begin and end as it must: {result.stderr.decode().strip()}"
        if package.control.files[path].mode != 0o755:
            yield f"{path} cannot be run"


def file_faults(package):
    executables = {LIBRARY, BUNDLE + "PendixSettings"}
    for path, entry in package.system.entries.items():
        mode = 0o755 if entry.isdir() or path in executables else 0o644
        if not (entry.isdir() or entry.isfile()) or entry.mode != mode or (entry.uid, entry.gid) != (0, 0):
            yield f"{path} has the mode {entry.mode:o} and belongs to {entry.uid}:{entry.gid}"
        name = path.rsplit("/", 1)[1]
        if path.startswith(("/var", "/private")) or name.startswith(".") or (entry.isfile() and not entry.size):
            yield f"{path} is the user's, a left-over or empty"


class Contents:
    """What the package brings: property lists, classes, the texts of its code, pictures."""

    def __init__(self, package):
        self.package, self.files = package, package.system.files
        self.faults = []
        self.plists = {path: self._plist(path) for path in self.files if path.endswith(".plist")}
        self.slices = {path: macho.slices_of(package.system.read(path))
                       for path in (LIBRARY, BUNDLE + "PendixSettings") if path in self.files}
        self.pictures = {path for path in self.files if path.endswith(".png")}

    def _plist(self, path):
        try:
            return plistlib.loads(self.package.system.read(path))
        except Exception as error:  # the parser raises what its parts raise
            self.faults.append(f"{path} does not parse: {error}")
            return {}

    def lacks_class(self, name):
        return any(name not in objc_metadata.Metadata(file).classes
                   for slices in self.slices.values() for file in slices)


def plist_faults(contents):
    yield from contents.faults
    info, entry = contents.plists.get(BUNDLE + "Info.plist", {}), contents.plists.get(ENTRY, {}).get("entry", {})
    listener = contents.plists.get(LISTENER, {})
    yield from (f"the pane's Info.plist lacks {key}" for key in INFO_KEYS if not info.get(key))
    if {info.get("CFBundleShortVersionString"), info.get("CFBundleVersion")} != {contents.package.fields["Version"]}:
        yield "the pane has another version than the package"
    named = [LIBRARY, BUNDLE + str(info.get("CFBundleExecutable")), BUNDLE + str(entry.get("icon")),
             f"/Library/PreferenceBundles/{entry.get('bundle')}.bundle/Info.plist"]
    yield from (f"a property list names {path}, which is not there" for path in named if path not in contents.files)
    if contents.plists.get(FILTER) != {"Filter": {"Bundles": ["com.apple.springboard"]}}:
        yield "the filter does not name the home screen alone"
    if not entry.get("isController") or entry.get("cell") != "PSLinkCell" or not entry.get("label"):
        yield "the entry is not a labelled link to a controller"
    if listener.get("description") != contents.plists.get(LANGUAGES + "en.plist", {}).get("activator_desc"):
        yield "Activator describes the listener in other words than the library"
    if not listener.get("title") or len(listener.get("compatible-modes", ())) != 3:
        yield "the Activator listener lacks its title or a mode"


def missing_classes(contents):
    """The classes that a property list or a page of the pane names and a slice lacks."""
    info, entry = contents.plists.get(BUNDLE + "Info.plist", {}), contents.plists.get(ENTRY, {}).get("entry", {})
    named = {info.get("NSPrincipalClass"), entry.get("detail")} | sources.header_classes()
    return {name for name in named if name and contents.lacks_class(name)}


def language_faults(contents):
    tables = {path: set(table) for path, table in contents.plists.items() if path.startswith(LANGUAGES)}
    if len(tables) < 3:
        yield "fewer than three languages"
    for path, keys in tables.items():
        different = keys ^ next(iter(tables.values()))
        if different:
            yield f"{path} has not the keys of the others: {', '.join(sorted(different))}"


def size_of(png):
    return tuple(int.from_bytes(png[at : at + 4], "big") for at in (16, 20))


def listener_icon_faults(contents):
    folder = LISTENER.rsplit("/", 1)[0]
    for name, side in LISTENER_ICONS.items():
        path = f"{folder}/{name}.png"
        if path not in contents.pictures:
            yield f"Activator looks for {path}"
        elif size_of(contents.package.system.read(path)) != (side, side):
            yield f"{path} is not {side} points square"


def picture_faults(contents):
    plain = {re.sub(r"(@[23]x)?\.png$", "", path) for path in contents.pictures}
    yield from (f"the status bar looks for {path}.png" for path in sorted(GLYPHS - plain))
    for path in sorted(plain):
        files = [f"{path}{scale}.png" for scale in ("", "@2x", "@3x")]
        missing = [file for file in files if file not in contents.pictures]
        yield from (f"{file} is missing" for file in missing)
        if not missing:
            sizes = [size_of(contents.package.system.read(file)) for file in files]
            if any(size != tuple(side * scale for side in sizes[0]) for scale, size in enumerate(sizes, 1)):
                yield f"{path} has the sizes {sizes}"


def named_by_code(file):
    """The pictures that a slice's strings name: whole paths or plain names."""
    strings = re.findall(rb"[^\0]+\.png(?=\0)", file.data[: file.segments[0].file_size])
    found = {text.decode("utf-8", "replace") for text in strings}
    return {name for name in found if "%" not in name and name.isprintable()}


def code_faults(contents):
    names = {path.rsplit("/", 1)[1] for path in contents.pictures}
    for path, slices in contents.slices.items():
        for file in slices:
            for name in sorted(named_by_code(file)):
                if name not in (contents.pictures if name.startswith("/") else names):
                    yield f"{path} ({file.architecture}) names {name}, which is not there"


def not_yet():
    lines = NOT_YET.read_text("utf-8").splitlines() if NOT_YET.is_file() else []
    return {name: why for name, _, why in (line.partition(" | ") for line in lines if line and line[0] != "#")}


def main():
    package = deb.Package(sys.argv[1])
    contents = Contents(package)
    checks = (control_faults(package), script_faults(package), file_faults(package), plist_faults(contents),
              language_faults(contents), picture_faults(contents), listener_icon_faults(contents),
              code_faults(contents))
    faults = [fault for check in checks for fault in check]
    lacking, allowed = missing_classes(contents), not_yet()
    faults += [f"the class {name} is named, and a slice lacks it" for name in sorted(lacking - set(allowed))]
    for fault in faults:
        print(f"{package.name}: {fault}", file=sys.stderr)
    for name in sorted(lacking & set(allowed)):
        print(f"{package.name}: not yet: {name}, {allowed[name]}")
    for name in sorted(set(allowed) - lacking):
        print(f"{package.name}: {name} is there by now; {NOT_YET.name} need not name it")
    print(f"{package.name}: {len(package.system.files)} files, {len(contents.pictures)} of them pictures, "
          f"{len(contents.plists)} property lists")
    return 1 if faults else 0


if __name__ == "__main__":
    sys.exit(main())
