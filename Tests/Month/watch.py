"""Runs month.lua and writes the memory of its processes at the end of each hour of the device.

watch.py SIMULATOR OUT.csv [DAYS [SEED [DEVICE VERSION]]]

A line of the table has the hour, and MB of resident memory (VmRSS) of the supervisor, the home screen and Settings; nothing
for Settings where it does not run. What a process shares with the one that it was forked from counts as its own."""
import csv
import pathlib
import subprocess
import sys

SCRIPT = pathlib.Path(__file__).with_name("month.lua")
PROGRAMS = {"home screen": "pendix-home", "Settings": "pendix-settings"}


def status(pid, field):
    try:
        lines = pathlib.Path(f"/proc/{pid}/status").read_text().splitlines()
    except (FileNotFoundError, ProcessLookupError):
        return None
    return next((int(line.split()[1]) for line in lines if line.startswith(field + ":")), None)


def program_of(pid):
    try:
        return pathlib.Path(pathlib.Path(f"/proc/{pid}/cmdline").read_bytes().split(b"\0")[0].decode()).name
    except (FileNotFoundError, ProcessLookupError):
        return None


def children(pid):
    try:
        return [int(child) for child in pathlib.Path(f"/proc/{pid}/task/{pid}/children").read_text().split()]
    except (FileNotFoundError, ProcessLookupError):
        return []


def process_of(supervisor, program):
    """The one that a device lives in: borne by another of its program where processes are forked, or the supervisor's own."""
    found = None
    for child in children(supervisor):
        if program_of(child) == program:
            found = found or child
            for borne in children(child):
                return borne
    return found


def megabytes(pid):
    kilobytes = pid and status(pid, "VmRSS")
    return f"{kilobytes / 1024:.2f}" if kilobytes else ""


def main():
    simulator, out, *arguments = sys.argv[1:]
    run = subprocess.Popen([simulator, "run", str(SCRIPT), "--", *arguments], stdout=subprocess.PIPE, text=True)
    with open(out, "w", newline="") as file:
        table = csv.writer(file, lineterminator="\n")
        table.writerow(["hour", "supervisor", *PROGRAMS])
        for line in run.stdout:
            print(line, end="", flush=True)
            kind, *fields = line.rstrip("\n").split("\t")
            if kind != "hour":
                continue
            used = {name: megabytes(process_of(run.pid, program)) for name, program in PROGRAMS.items()}
            if fields[2] != "Settings":
                used["Settings"] = ""
            table.writerow([fields[0], megabytes(run.pid), *used.values()])
            file.flush()
    return run.wait()


if __name__ == "__main__":
    sys.exit(main())
