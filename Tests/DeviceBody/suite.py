"""Holds a device body against what the tests of the build ask of any body: every scenario and every agreed text, and
what must agree with this machine's body byte for byte.

The list of tests is the build's own: whatever ctest runs with pendix-sim is run again with the body's, word for word."""

import argparse
import concurrent.futures
import json
import os
import pathlib
import re
import resource
import subprocess
import tempfile
import time

import body
import refusals

BUILD = body.ROOT / "build/dev"
SIMULATOR = str(BUILD / "bin/pendix-sim")

# These do not run what the package holds: they load small libraries made for this machine, or test the program around.
OTHER = {"scripting.troublemaker", "scripting.misfit", "command_line", "live_server", "monkey_runs", "forks",
         "supervisor_memory"}
# The monkey and the long tables of faults are for longer runs.
LONG = ("monkey.", "month.", "faults.class", "faults.method", "faults.lookup", "faults.file", "faults.write", "settings_files.", "growth.", "loader.mutated")
# Not among the shortest: what is left takes a few minutes.
QUICK = ("golden.", "scenario.badges", "scenario.indicator_follows", "scenario.indicator_takes", "scenario.display", "scenario.launch_records", "scenario.marks",
         "scenario.lock_keypad", "scenario.panel_closes", "determinism", "same.tour", "loader.", "stage.")
# Script, and the files that it writes.
SAME = {"tour": "scenarios/tour.lua", "panel_gallery": "scenarios/panel_gallery.lua", "lock_gallery": "scenarios/lock_gallery.lua",
        "every_event": "Tests/DeviceBody/every_event.lua"}


class Case:
    def __init__(self, name, run):
        self.name, self.run = name, run


def listed_tests():
    listed = subprocess.run(["ctest", "--test-dir", BUILD, "--show-only=json-v1"], capture_output=True, text=True, check=True)
    for test in json.loads(listed.stdout)["tests"]:
        if SIMULATOR in test.get("command", ()) and test["name"] not in OTHER:
            yield test


def ctest_case(made, test):
    properties = {entry["name"]: entry["value"] for entry in test.get("properties", ())}
    expected = properties.get("PASS_REGULAR_EXPRESSION")

    def run(folder):
        # What the test writes goes to a folder of this run's.
        command = [str(made.simulator) if part == SIMULATOR else part.replace(str(BUILD / "Tests"), str(folder))
                   for part in test["command"]]
        command = [original if "_root" in original else part for part, original in zip(command, test["command"])]
        done = subprocess.run(command, cwd=folder, stdout=subprocess.PIPE, stderr=subprocess.STDOUT, text=True, check=False)
        if expected:
            passed = any(re.search(text, done.stdout) for text in expected)
        else:
            passed = done.returncode == 0
        return "" if passed else done.stdout or f"exit {done.returncode}"

    return Case(test["name"], run)


def differences(folder, other):
    """Every file of the two folders that is not the same, byte for byte; nothing to compare is a difference, too."""
    names = {path.relative_to(top) for top in (folder, other) for path in top.rglob("*") if path.is_file()}
    if len(names) < 1:
        return ["nothing was written"]
    return [f"{name} differs" for name in sorted(names)
            if not (folder / name).is_file() or not (other / name).is_file()
            or (folder / name).read_bytes() != (other / name).read_bytes()]


def same_case(made, name, script):
    def run(folder):
        for simulator, where in ((made.simulator, "device"), (SIMULATOR, "x86-64")):
            out = folder / where
            out.mkdir()
            with (out / "events.log").open("w") as log:
                done = subprocess.run([simulator, "run", body.ROOT / script, "--out", out], stdout=log,
                                      stderr=subprocess.PIPE, text=True, check=False)
            if done.returncode:
                return f"{where}: {done.stderr}"
        return "\n".join(differences(folder / "device", folder / "x86-64"))

    return Case("same." + name, run)


def cases(made):
    """Everything there is to run."""
    yield from (ctest_case(made, test) for test in listed_tests())
    yield from (Case(name, run) for name, run in refusals.cases(made))
    yield from (same_case(made, name, script) for name, script in SAME.items())


def run_case(case):
    start = time.monotonic()
    with tempfile.TemporaryDirectory(prefix="device-body-") as folder:
        try:
            trouble = case.run(pathlib.Path(folder))
        except Exception as error:  # a fault of the test itself fails it
            trouble = f"{type(error).__name__}: {error}"
    return trouble, time.monotonic() - start


def chosen(made, options):
    for case in cases(made):
        if options.pattern:
            wanted = re.search(options.pattern, case.name)
        elif options.quick:
            wanted = case.name.startswith(QUICK) and not case.name.startswith(LONG)
        else:
            wanted = options.long or not case.name.startswith(LONG)
        if wanted:
            yield case


def main(made, arguments):
    parser = argparse.ArgumentParser(prog="scripts/device-body test", description=__doc__)
    parser.add_argument("pattern", nargs="?", help="run those whose names hold this regular expression, whatever they take")
    parser.add_argument("--quick", action="store_true", help="the agreed texts and short scenarios alone")
    parser.add_argument("--long", action="store_true", help="the monkey and the tables of faults, too")
    parser.add_argument("--jobs", type=int, default=os.cpu_count() or 1, help="at a time")
    options = parser.parse_args(arguments)
    # The list of tests comes from the build.
    subprocess.run(["cmake", "--preset", "dev"], cwd=body.ROOT, stdout=subprocess.DEVNULL, check=True)
    made.report.unlink(missing_ok=True)
    wanted = list(chosen(made, options))
    if not wanted:
        raise body.BodyError(f"no test's name holds '{options.pattern}'")
    log = made.path.parent / "logs"
    log.mkdir(parents=True, exist_ok=True)
    failed = []

    def run(case):
        trouble, seconds = run_case(case)
        print(f"{'FAILED' if trouble else 'passed'} {seconds:6.1f} s  {case.name}", flush=True)
        if trouble:
            failed.append(case.name)
            (log / f"{case.name}.log").write_text(trouble)

    with concurrent.futures.ThreadPoolExecutor(options.jobs) as pool:
        list(pool.map(run, wanted))
    used = resource.getrusage(resource.RUSAGE_CHILDREN)
    print(f"{len(wanted) - len(failed)} of {len(wanted)} passed, {(used.ru_utime + used.ru_stime) / 60:.1f} minutes of a processor")
    print(json.dumps(made.counts()))
    for name in failed:
        print(f"FAILED {name}, see {log / (name + '.log')}")
    return 1 if failed else 0
