"""Proves that the gate, the smoke test and the package check notice what they are there for: each fault is made in a
copy of what was built, and must be reported. A check that lets its fault pass proves nothing of the package either."""

import copy
import pathlib
import shutil
import subprocess
import tempfile
import unittest

import built
import exports
import load_gate
import macho
import objc_metadata
import sign
import smoke
import sources
from phone import Phone
from processor import SLIDE, Stopped

LIBRARIES = exports.read()
ROWS, SUPERCLASSES, METHODS = built.body()


def gate(file, libraries=LIBRARIES):
    classes, categories = sources.implementations()
    checks = (load_gate.command_faults(file), load_gate.import_faults(file, libraries),
              load_gate.class_faults(file, libraries), load_gate.start_faults(file), load_gate.code_faults(file),
              load_gate.metadata_faults(file, classes, categories, sources.hook_rows()),
              sign.faults(file))
    return "\n".join(fault for check in checks for fault in check)


def patched(file, address, content):
    data = bytearray(file.data)
    at = file.file_offset(address)
    data[at : at + len(content)] = content
    return macho.MachO(bytes(data))


def pointers_to(file, text):
    """The addresses of the words that point to the C string `text`."""
    wanted = text.encode() + b"\0"
    for segment in file.segments[:2]:
        for at in range(segment.address, segment.address + segment.file_size - file.word, file.word):
            target = file.pointer(at)
            if any(part.address <= target < part.address + part.file_size for part in file.segments[:1]):
                start = file.file_offset(target)
                if file.data[start : start + len(wanted)] == wanted:
                    yield at


class Gate(unittest.TestCase):
    def setUp(self):
        self.files = [file for _, file in built.slices()]

    def test_what_was_built_passes(self):
        for file in self.files:
            self.assertEqual(gate(file), "")

    def test_a_removed_export(self):
        for symbol in ("_MSHookMessageEx", "_OBJC_CLASS_$_UIWindow", "_CGRectZero"):
            libraries = copy.deepcopy(LIBRARIES)
            for library in libraries:
                library.symbols.discard(symbol)
            for file in self.files:
                self.assertIn(f": {symbol}", gate(file, libraries))

    def test_an_export_of_another_library(self):
        libraries = copy.deepcopy(LIBRARIES)
        libraries[0].symbols.add("_NSLog")
        next(library for library in libraries if library.name == "Foundation").symbols.remove("_NSLog")
        for file in self.files:
            self.assertIn("import not in the list", gate(file, libraries))

    def test_a_class_that_is_bound_past_the_library_that_hands_it_on(self):
        foundation = next(library for library in LIBRARIES if library.re_exports)
        libraries = copy.deepcopy(LIBRARIES)
        for library in libraries:
            # As if another one handed on what Foundation has.
            library.re_exports = foundation.path if library.name == "UIKit" else ""
        for file in self.files:
            self.assertIn("_OBJC_CLASS_$_NSArray is bound to", gate(file, libraries))

    def test_a_class_that_stands_with_the_wrong_library(self):
        text = exports.FILE.read_text("utf-8")
        core = "[/System/Library/Frameworks/CoreFoundation.framework/CoreFoundation]\n"
        with tempfile.TemporaryDirectory() as folder:
            wrong = pathlib.Path(folder) / "exports.txt"
            wrong.write_text(text.replace(core, core + "class NSRunLoop\n"), "utf-8")
            with self.assertRaisesRegex(ValueError, "NSRunLoop"):
                exports.read(wrong)

    def test_a_class_that_is_lost(self):
        for file in self.files:
            first, second = file.pointers("__objc_classlist")[:2]
            lost = patched(file, second, file.pointer(first).to_bytes(file.word, "little"))
            self.assertIn("class lost", gate(lost))

    def test_a_page_that_was_changed_after_signing(self):
        for file in self.files:
            self.assertIn("is not what was signed", gate(patched(file, file.sections["__text"].address, b"\xff\xff")))

    def test_a_wrong_type_encoding(self):
        one, *others = (file for file in self.files)
        method_types = next(iter(next(iter(objc_metadata.Metadata(one).classes.values())).methods.values())).types
        wrong = patched(one, one.pointer(next(pointers_to(one, method_types))), b"q")
        self.assertNotEqual(smoke.metadata_differences(wrong, SUPERCLASSES, METHODS), [])
        if others:
            self.assertNotEqual(list(load_gate.encoding_faults(wrong, others[0])), [])

    def test_a_wrong_encoding_of_a_row(self):
        types = "v@:@iii"
        for file in self.files:
            at = file.segments[0].address + file.data[: file.segments[0].file_size].index(b"\0" + types.encode()) + 1
            wrong = patched(file, at, b"v@:@iif")
            self.assertIn("is not in the library", gate(wrong))
            self.assertIn("v@:@iif", "".join(smoke.row_differences(wrong, ROWS)))


class BrokenShim(unittest.TestCase):
    """The old linker's own: a tail call from Thumb code into a library."""

    SOURCE = "int kill(int, int);\n__attribute__((visibility(\"default\"))) int tail(int a) { return kill(a, 9); }\n"

    def linked(self, folder, *flags):
        source, object_file, out = (pathlib.Path(folder) / f"tail{suffix}" for suffix in (".c", ".o", ".dylib"))
        source.write_text(self.SOURCE)
        subprocess.run(["clang", "-target", "armv7-apple-ios7.0", "-Os", *flags, "-c", source, "-o", object_file],
                       check=True)
        link = built.ROOT / "Packaging/device/link.py"
        subprocess.run(["/usr/bin/python3", link, "armv7", "library", out, "/tail", object_file], check=True)
        file, = macho.slices(out)
        return file

    @staticmethod
    def run_tail(file):
        entry = next(symbol for symbol in file.symbols if symbol.name == "_tail")
        return Phone(file).processor.call(SLIDE + entry.address | 1, 7)

    def test_it_is_found_and_does_not_run(self):
        if not any(file.architecture == "armv7" for _, file in built.slices()):
            self.skipTest("the package has no slice for armv7")
        with tempfile.TemporaryDirectory() as folder:
            broken = self.linked(folder)
            self.assertIn("1 broken shims", "".join(load_gate.code_faults(broken)))
            with self.assertRaises(Stopped):
                self.run_tail(broken)
            sound = self.linked(folder, "-fno-optimize-sibling-calls")
            self.assertEqual(list(load_gate.code_faults(sound)), [])
            self.assertEqual(self.run_tail(sound), 0)


class Package(unittest.TestCase):
    SUPPORT = "Library/Application Support/Pendix/"
    FAULTS = {
        f"{SUPPORT}close@3x.png": "close@3x.png is missing",
        "System/Library/Frameworks/UIKit.framework/LockScreen_Pendix@2x.png": "LockScreen_Pendix@2x.png is missing",
        f"{SUPPORT}Languages/it.plist": "fewer than three languages",
        "Library/PreferenceBundles/PendixSettings.bundle/Info.plist": "Info.plist lacks",
        "DEBIAN/postinst": "other control files",
        "Library/Activator/Listeners/org.quillhub.Pendix/Icon-small.png": "Activator looks for",
    }

    def check(self, root, folder):
        """The faults that the check reports of a package made from `root`."""
        deb = pathlib.Path(folder) / built.DEB.name
        subprocess.run(["dpkg-deb", "-Zgzip", "-z1", "--root-owner-group", "--build", root, deb], check=True,
                       capture_output=True)
        result = subprocess.run(["/usr/bin/python3", built.ROOT / "Packaging/package/check.py", deb],
                                capture_output=True, text=True)
        self.assertEqual(result.returncode, 1 if result.stderr else 0)
        return result.stderr

    def test_files_that_are_missing(self):
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder) / "root"
            shutil.copytree(built.PACKAGE / "root", root)
            self.assertEqual(self.check(root, folder), "")
            for path, fault in self.FAULTS.items():
                kept = (root / path).rename(pathlib.Path(folder) / "kept")
                self.assertIn(fault, self.check(root, folder), path)
                kept.rename(root / path)

    def test_a_foreign_homepage_and_icons_of_another_size(self):
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder) / "root"
            shutil.copytree(built.PACKAGE / "root", root)
            control, listener = root / "DEBIAN/control", root / "Library/Activator/Listeners/org.quillhub.Pendix"
            control.write_text(control.read_text().replace("https://quillhub.org", "https://quillhub.org.example"))
            for scale in ("", "@2x", "@3x"):
                shutil.copy(listener / f"Icon{scale}.png", listener / f"Icon-small{scale}.png")
            report = self.check(root, folder)
            self.assertIn("the homepage is not one of quillhub.org", report)
            self.assertIn("Icon-small.png is not 29 points square", report)

    def test_a_file_of_the_user_and_a_wrong_mode(self):
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder) / "root"
            shutil.copytree(built.PACKAGE / "root", root)
            settings = root / "var/mobile/Library/Preferences/org.quillhub.PendixSettings.plist"
            settings.parent.mkdir(parents=True)
            settings.write_text("{}")
            (root / f"{self.SUPPORT}close.png").chmod(0o600)
            report = self.check(root, folder)
            self.assertIn("is the user's", report)
            self.assertIn("close.png has the mode 600", report)


if __name__ == "__main__":
    unittest.main()
