"""Faults on purpose, in the machine code and the tables of the library that a phone loads: each must be noticed by what
the suite runs anyway. Each is one instruction or one entry, at a place that the table below names by its function."""

import concurrent.futures
import pathlib
import shutil
import struct
import subprocess
import sys
import tempfile

import body
import suite

sys.path.insert(0, str(body.ROOT / "Packaging/device"))

import macho  # noqa: E402

# How an instruction is recognised (mask, value), and which bits make it do something else.
INSTRUCTIONS = {
    "branch": [(0xFF000010, 0x54000000, 1), (0x7E000000, 0x34000000, 1 << 24), (0x7E000000, 0x36000000, 1 << 24)],
    "choice": [(0x1FE00C00, 0x1A800000, 1 << 12), (0xFF200C00, 0x1E200C00, 1 << 12)],
    "sum": [(0xFFE0FC00, 0x1E602800, 1 << 12), (0xFFE0FC00, 0x1E603800, 1 << 12)],
    "product": [(0xFFE0FC00, 0x1E600800, 1 << 12), (0xFFE0FC00, 0x1E601800, 1 << 12)],
    "constant": [(0xFFE01FE0, 0x1E601000, 1 << 16), (0x7F800000, 0x52800000, 1 << 5)],
}


class Library:
    """The arm64 slice in a file, to be changed where it lies."""

    def __init__(self, path):
        self.path = path
        self.data = bytearray(path.read_bytes())
        code, self.base = body.arm64_slice(path)
        self.macho = macho.MachO(bytes(code))

    def write(self):
        self.path.write_bytes(self.data)

    def word(self, offset, size=8):
        return int.from_bytes(self.data[self.base + offset : self.base + offset + size], "little")

    def put(self, offset, value, size=8):
        self.data[self.base + offset : self.base + offset + size] = value.to_bytes(size, "little")

    def function(self, name):
        """The file offsets of the one function whose readable name holds `name`."""
        symbols = sorted({(s.address, s.name) for s in self.macho.symbols if not s.undefined and not s.debugging})
        names = subprocess.run(["llvm-cxxfilt-14"], input="\n".join(n.removeprefix("_") for _, n in symbols), capture_output=True,
                               text=True, check=True).stdout.splitlines()
        # What lies in a function, such as a static variable, is called "function()::variable".
        found = [i for i, readable in enumerate(names)
                 if readable.startswith(name) and ")::" not in readable.removeprefix(name).replace("(anonymous namespace)::", "")]
        if len(found) != 1:
            raise ValueError(f"{len(found)} functions are called {name}")
        start = symbols[found[0]][0]
        end = next(address for address, _ in symbols[found[0] + 1 :] if address > start)
        return self.macho.file_offset(start), self.macho.file_offset(start) + end - start


def instruction(name, kind, index=0):
    def change(library):
        start, end = library.function(name)
        places = [(at, flip) for at in range(start, end, 4) for mask, value, flip in INSTRUCTIONS[kind]
                  if library.word(at, 4) & mask == value]
        at, flip = places[index]
        library.put(at, library.word(at, 4) ^ flip, 4)
    return change


def selector(wrong, right):
    """Every reference to one selector becomes one to another."""
    def change(library):
        places = {library.macho.string(library.macho.pointer(at)): at for at in library.macho.pointers("__objc_selrefs")}
        for at in library.macho.pointers("__objc_selrefs"):
            if library.macho.string(library.macho.pointer(at)) == right:
                library.put(library.macho.file_offset(at), library.macho.pointer(places[wrong]))
    return change


def text(right, wrong):
    """Every copy of a text; the linker keeps one of each unit."""
    def change(library):
        section = library.macho.sections["__cstring"]
        old, new = b"\0" + right.encode() + b"\0", b"\0" + wrong.encode() + b"\0"
        start = library.base + section.offset
        end = start + section.size
        library.data[start:end] = library.data[start:end].replace(old, new)
    return change


def variables(owner):
    """The second variable of a class keeps its offset where the first has its own: both are told one."""
    def change(library):
        file = library.macho
        for at in file.pointers("__objc_classlist"):
            data = file.pointer(file.pointer(at) + 32) & ~7
            if file.string(file.pointer(data + 24)) == owner:
                first = file.file_offset(file.pointer(data + 48) + 8)
                library.put(first + 32, library.word(first))
    return change


def method(owner, one, other):
    """Two methods of a class take each other's code."""
    def change(library):
        file = library.macho
        for at in file.pointers("__objc_classlist"):
            data = file.pointer(file.pointer(at) + 32) & ~7
            if file.string(file.pointer(data + 24)) != owner:
                continue
            start = file.pointer(data + 32)
            entries = {file.string(file.pointer(entry)): file.file_offset(entry + 16)
                       for entry in range(start + 8, start + 8 + 24 * file.integer(start + 4), 24)}
            first, second = library.word(entries[one]), library.word(entries[other])
            library.put(entries[one], second)
            library.put(entries[other], first)
    return change


def binding(symbol, instead=None):
    """The lazy binding of a symbol is lost, or is one to another symbol with a name of the same length."""
    def change(library):
        tables = struct.unpack_from("<10I", library.macho.data, library.macho.command("LC_DYLD_INFO_ONLY") + 8)
        start, end = library.base + tables[6], library.base + tables[6] + tables[7]
        name = symbol.encode() + b"\0"
        at = library.data.index(b"@" + name, start, end) + 1
        if instead:
            library.data[at : at + len(name)] = instead.encode() + b"\0"
        else:
            library.data[library.data.index(b"\x90", at + len(name), end)] = 0x51
    return change


EVENTS = "same.every_event"
# What is changed, how, and which of the suite's tests reach it.
FAULTS = [
    ("a sum in placePanel", instruction("pendix::placePanel", "sum"), [EVENTS]),
    ("a choice in placePanel", instruction("pendix::placePanel", "choice"), [EVENTS, "golden.iPhone_6.question"]),
    ("a product in cellFrame", instruction("pendix::cellFrame", "product"), [EVENTS]),
    ("another sum in badgeFrame", instruction("pendix::badgeFrame", "sum", 2), [EVENTS, "golden.iPhone_6.badge"]),
    ("a sum in badgeFrame", instruction("pendix::badgeFrame", "sum"), [EVENTS, "golden.iPhone_6.badge", "scenario.panel_badges"]),
    ("a product in dotsFrame", instruction("pendix::dotsFrame", "product"), ["scenario.panel_pages"]),
    ("a choice in nextPulseStep", instruction("pendix::nextPulseStep", "choice"), [EVENTS, "scenario.pulse_starts_and_ends"]),
    ("a constant in the turning of hands", instruction("pendix::(anonymous namespace)::turn(", "constant"), ["scenario.panel_clock"]),
    ("a branch in isOn", instruction("pendix::isOn(NSString*)", "branch"), ["scenario.indicator_follows_settings"]),
    ("a branch in addBadge", instruction("pendix::addBadge", "branch"), [EVENTS, "scenario.panel_badges"]),
    ("a branch in checkBadges", instruction("pendix::added::checkBadges", "branch"), [EVENTS, "scenario.badges_decide"]),
    ("a branch in tap", instruction("pendix::added::tap(", "branch"), [EVENTS]),
    ("a branch in dismisPendixUI", instruction("pendix::added::dismisPendixUI(", "branch"), [EVENTS, "scenario.panel_closes"]),
    ("a branch in longPressEvent", instruction("pendix::added::longPressEvent", "branch"), [EVENTS]),
    ("a branch in clickedMenuButton", instruction("pendix::hooked::clickedMenuButton", "branch"), [EVENTS]),
    ("a branch in matchesPasscode", instruction("pendix::matchesPasscode", "branch"), ["scenario.lock_keypad"]),
    ("a branch in isPasscode", instruction("pendix::isPasscode", "branch"), ["scenario.lock_opens_on_its_face"]),
    ("a constant in numberOfRows", instruction("pendix::numberOfRows", "constant"), [EVENTS, "scenario.panel_pages"]),
    ("a branch in systemVersion", instruction("pendix::systemVersion", "branch"), [EVENTS, "scenario.launch_on_every_device"]),
    ("a letter of a logged text", text("<Pendix> Loaded!", "<Pendix> Loadee!"), [EVENTS]),
    ("setCornerRadius: for setBorderWidth:", selector("setBorderWidth:", "setCornerRadius:"), [EVENTS]),
    ("isEqualToString: for hasPrefix:", selector("isEqualToString:", "hasPrefix:"), [EVENTS, "scenario.panel_cards"]),
    ("setAlpha: for setTag:", selector("setTag:", "setAlpha:"), [EVENTS]),
    ("a letter of the key paging", text("paging", "paginf"), ["golden.iPhone_6.paged"]),
    ("one offset for two variables of PendixTouchIDController", variables("PendixTouchIDController"), ["scenario.launch_records_touch_id"]),
    ("one offset for two variables of HeaderCellForPendix", variables("HeaderCellForPendix"), ["golden.iPhone_6.header"]),
    ("two methods of NewUIScrollView", method("NewUIScrollView", "scrollViewDidScroll:", "scrollViewDidEndDecelerating:"), [EVENTS]),
    ("the binding of CGRectGetMaxY lost", binding("_CGRectGetMaxY"), [EVENTS, "golden.iPhone_6.badge"]),
    ("CGRectGetMinY for CGRectGetMaxY", binding("_CGRectGetMaxY", "_CGRectGetMinY"),
     [EVENTS, "golden.iPhone_6.badge"]),
]

# Those that change nothing that anyone can see, and why.
UNSEEN = {
    "a branch in systemVersion": "8.0 for 8.1, or 7.0 for 7.1: nothing asks for more than what they share",
    "isEqualToString: for hasPrefix:": "the simulated devices name their models just so",
}


def plant(path, made, change):
    def spoil(root):
        library = Library(root / body.LIBRARY)
        before = bytes(library.data)
        change(library)
        if before == bytes(library.data):
            raise ValueError("nothing was changed")
        library.write()
        shutil.copy(root / body.LIBRARY, root / body.BUNDLE)
    return body.changed(made, path, spoil)


def first_notice(spoilt, tests):
    """The first test that notices, and the first line of what it says; None when none does."""
    known = {case.name: case for case in suite.cases(spoilt)}
    for test in tests:
        trouble, _ = suite.run_case(known[test])
        if trouble:
            return test, trouble.strip().splitlines()[0]
    return None


def run(made, only="", jobs=2):
    """Plants each in turn; prints a table, and returns how many went unnoticed that could have been seen."""
    missed = unseen = 0

    def one(fault):
        name, change, tests = fault
        with tempfile.TemporaryDirectory(prefix="planted-") as folder:
            spoilt = plant(pathlib.Path(folder) / "body", made, change)
            return name, first_notice(spoilt, tests)

    chosen = [fault for fault in FAULTS if only in fault[0]]
    with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
        for name, notice in pool.map(one, chosen):
            test, said = notice or ("nothing", UNSEEN.get(name, "NOT NOTICED"))
            print(f"| {name} | {test} | {said[:110]} |", flush=True)
            unseen += notice is None and name in UNSEEN
            missed += notice is None and name not in UNSEEN
    print(f"{len(chosen) - missed - unseen} of {len(chosen)} noticed, {unseen} cannot be seen")
    return missed
