"""Everything that is known before the first fault is switched on: the faults that can be planted, the build that holds
them, and which test passes which. All of it is kept under build/mutate and made anew when what it comes from changed."""

import concurrent.futures
import hashlib
import os
import pathlib
import pickle

import candidates
import monkey
import suite
from compiling import Compiling
from planting import Planting
from syntax import units_of
from tree import FOLDERS, HEADER, Tree, files_of, sources_of, write

RECORD = 1  # the form of what is kept
NOT_MEASURED = ("docs/", "scripts/", "Tools/Mutate/", "Tests/Mutation/")


def digest(paths, *more):
    sums = hashlib.sha256(repr((RECORD, more)).encode())
    for path in sorted(paths):
        sums.update(str(path).encode() + b"\0" + hashlib.sha256(path.read_bytes()).digest())
    return sums.hexdigest()


class Kept:
    """A value in a file that counts as long as its digest is the same."""

    def __init__(self, file):
        self.file = file

    def get(self, wanted):
        try:
            found, value = pickle.loads(self.file.read_bytes())
        except (OSError, ValueError, EOFError, pickle.UnpicklingError, AttributeError):
            return None
        return value if found == wanted else None

    def put(self, wanted, value):
        self.file.write_bytes(pickle.dumps((wanted, value)))
        return value


class Plan:
    def __init__(self, root, jobs, say, folders=FOLDERS):
        self.root, self.jobs, self.say, self.folders = pathlib.Path(root), jobs, say, folders
        self.folder = self.root / "build/mutate"
        self.tree = Tree(self.root, self.folder / "tree")

    def plant(self):
        """The faults that can be planted; writes the copy of the sources that holds them all."""
        self.folder.mkdir(parents=True, exist_ok=True)
        names = sources_of(self.root, self.folders)
        own = [path for path in (self.root / "Tools/Mutate").iterdir() if path.is_file()]
        wanted = digest([self.root / name for name in names] + own, names)
        kept = Kept(self.folder / "faults.pickle")
        self.faults = kept.get(wanted)
        self.tree.copy(names if self.faults else ())
        if self.faults is None:
            self.say("looking for what can be planted")
            kept.put(None, None)
            self.faults = kept.put(wanted, self.planted(names))
        return self.faults

    def planted(self, names):
        self.tree.configure()
        units = units_of(self.tree.build, self.tree.folder, self.folders)
        original = {name: [word.replace(str(self.tree.folder), str(self.root)) for word in words] for name, words in units.items()}
        faults, found = candidates.candidates(self.root, names, list(original.items()))

        def plant(some, found):
            planting, result = Planting(some, found), {}
            for name in sorted(found.sources):
                result[name] = planting.planted(name, HEADER)
                self.tree.plant(name, result[name])
            return result

        return Compiling(self.tree, found, faults, units).run(plant, self.jobs)

    def build(self):
        self.say("building the copy that holds them all")
        self.tree.configure()
        self.tree.make(self.jobs)

    def measure(self, tests):
        """Runs each without a fault, and notes which faults' places it passes."""
        count = 1 + max(fault.number for fault in self.faults)
        with concurrent.futures.ThreadPoolExecutor(self.jobs) as pool:
            return list(pool.map(lambda test: suite.run(test, count=count), tests))

    def try_without(self, seconds):
        """{test: its run without a fault} for the tests that pass at least one place, quickest first, and the same for
        the monkey, whose runs take so many seconds of processor time together."""
        wanted = digest(self.measured_files(), seconds)
        kept = Kept(self.folder / "without.pickle")
        known = kept.get(wanted)
        if known is None:
            tests = suite.tests_of(self.tree.build, self.root)
            self.say(f"running {len(tests)} tests and the monkey without a fault")
            runs = dict(zip(tests, self.measure(tests)))
            minute = monkey.minute(self.tree.build, seconds, self.measure, self.jobs) if seconds else {}
            known = kept.put(wanted, (runs, minute))
        return tuple(self.usable(runs) if runs else {} for runs in known)

    def identity(self):
        """What verdicts depend on."""
        return digest(self.measured_files())

    def measured_files(self):
        return [path for name, path in files_of(self.tree.folder).items() if not name.startswith(NOT_MEASURED)]

    def usable(self, runs):
        for test, run in runs.items():
            if not run.passed:
                self.say(f"left out, for it fails without a fault: {test.name}")
        some = {test: run for test, run in runs.items() if run.passed and run.faults}
        if not some:
            raise SystemExit("no run passes any fault: the copy does not work")
        return dict(sorted(some.items(), key=lambda entry: entry[1].processor))


def jobs_here():
    return len(os.sched_getaffinity(0))
