"""The tests of the copy, as ctest knows them, and one run of one of them."""

import dataclasses
import json
import os
import pathlib
import re
import signal
import subprocess
import tempfile
import time

MEMORY = 4 << 30  # bytes of data that one process may take: a fault may ask for more and more
BESIDES = 20      # seconds that a run may take besides ten times what it took without a fault
MONKEY = "monkey"  # how the names of the tests begin that are runs of the monkey or prove it

running = set()  # processes, each the head of a group


@dataclasses.dataclass(frozen=True)
class Test:
    name: str
    command: tuple
    folder: str
    environment: tuple = ()
    expected: tuple = ()  # expressions one of which the output of a test that passes holds, if there are any


@dataclasses.dataclass
class Run:
    passed: bool
    seconds: float    # of this machine's clock
    processor: float  # seconds of processor time, with the processes that it started
    output: str
    hung: bool = False
    faults: frozenset = frozenset()  # whose places were passed


def end_all():
    """Ends what runs, with all that it has started."""
    for process in list(running):
        end_group(process)


def end_group(process):
    try:
        os.killpg(process, signal.SIGKILL)
    except ProcessLookupError:
        pass


def tests_of(build, root):
    """Every test but the monkey's. What looks at the sources looks at those of the project."""
    listing = subprocess.run(["ctest", "--test-dir", str(build), "--show-only=json-v1"], stdout=subprocess.PIPE, check=True)
    tree, found = str(build.parent.parent), []
    for test in json.loads(listing.stdout)["tests"]:
        properties = {one["name"]: one["value"] for one in test.get("properties", ())}
        if "command" not in test:
            continue
        command = tuple(str(root) if word == tree else word for word in test["command"])
        found.append(Test(test["name"], command, properties.get("WORKING_DIRECTORY", str(build)),
                          tuple(properties.get("ENVIRONMENT", ())), tuple(properties.get("PASS_REGULAR_EXPRESSION", ()))))
    return [test for test in found if not test.name.startswith(MONKEY)]


def in_scratch(command, scratch):
    """The command with what it writes moved to a folder of its own, for others run it at the same time."""
    words, moved = [], 0
    for before, word in zip(("", *command), command):
        if before in ("--out", "--script") or "/pictures/" in word:
            moved += 1
            word = str(pathlib.Path(scratch) / f"{moved}-{pathlib.Path(word).name}")
        words.append(word)
    return words


def is_stopped(process):
    """Whether somebody holds it up, as one does who needs the machine for a while."""
    try:
        return pathlib.Path(f"/proc/{process}/stat").read_text().rpartition(")")[2].split()[0] == "T"
    except OSError:
        return False


def wait(process, limit):
    """Waits so many seconds at the most, not counting those in which it was stopped; ends the process and all it has
    started. Gives what it used, and whether it had to be ended."""
    left, before, pause, hung = limit, time.monotonic(), 0.002, False
    while True:
        done, status, usage = os.wait4(process.pid, os.WNOHANG)
        if done:
            break
        now = time.monotonic()
        if not is_stopped(process.pid):
            left -= now - before
        before = now
        if not hung and left < 0:
            hung = True
            end_group(process.pid)
        time.sleep(pause)
        pause = min(pause * 1.5, 0.1)
    process.returncode = os.waitstatus_to_exitcode(status)
    end_group(process.pid)
    return usage, hung


def run(test, fault=None, count=0, limit=3600.0):
    """Runs it with that fault on, or none; `count` makes it tell which of so many places were passed."""
    with tempfile.TemporaryDirectory(prefix="mutate-") as scratch:
        environment = {name: value for name, value in os.environ.items() if len(value) < 4096}
        environment |= dict(entry.split("=", 1) for entry in test.environment)
        environment["TMPDIR"] = scratch
        passed_file, output_file = pathlib.Path(scratch, "passed"), pathlib.Path(scratch, "output")
        if fault is not None:
            environment["MUTANT"] = str(fault)
        if count:
            passed_file.write_bytes(bytes(count))
            environment["MUTANTS_PASSED"] = str(passed_file)
        command = ["prlimit", f"--data={MEMORY}", "--core=0", *in_scratch(test.command, scratch)]
        start = time.monotonic()
        with output_file.open("wb") as output:
            process = subprocess.Popen(command, cwd=test.folder, env=environment, stdin=subprocess.DEVNULL, stdout=output,
                                       stderr=subprocess.STDOUT, start_new_session=True)
            running.add(process.pid)
            usage, hung = wait(process, limit)
            running.discard(process.pid)
        text = output_file.read_text(errors="replace")
        good = any(re.search(one, text) for one in test.expected) if test.expected else process.returncode == 0
        marks = passed_file.read_bytes() if count else b""
        return Run(good and not hung, time.monotonic() - start, usage.ru_utime + usage.ru_stime, text, hung,
                   frozenset(number for number, mark in enumerate(marks) if mark))
