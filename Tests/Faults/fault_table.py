"""Runs the standard day with one fault at a time and holds what is lost against the tables of Tests/Faults/losses.md.

fault_table.py SIMULATOR SOURCE STAGE KIND [--part I/N] [--jobs N] [--quick] [--write]

KIND is class, method, lookup, file or write; pair is every pair of hooked classes, for which there is no table: each has to
be survived, and what it loses beyond its two classes is told. With --write the table is written anew instead of compared; look at what
changed before you keep it."""
import argparse
import re
import subprocess
import sys
from concurrent.futures import ThreadPoolExecutor
from pathlib import Path

import fault_list

HERE = Path(__file__).parent
TITLES = {"class": "Class", "method": "Method", "lookup": "Look-up", "file": "File", "write": "Writes that fail"}
SUPPORT = "/Library/Application Support/Pendix/"


def place(fault):
    """The device, version and language on which the file counts."""
    language = re.search(r"Languages/(\w+)\.plist", fault)
    if "@3x" in fault:
        return "iPhone 6 Plus", "8.1", "en"
    if fault.endswith(".png") and "@2x" not in fault:
        return "iPad 2", "8.1", "en"
    return "iPhone 6", "8.1", language.group(1) if language else "en"


def faults(kind, source, stage):
    """(fault, device, version, language, which steps in Settings belong to its run)"""
    usual = ("iPhone 6", "8.1", "en")
    if kind == "class":
        return [(name, *usual, "all" if pane else "none") for name, pane in fault_list.classes(source)]
    if kind == "pair":
        return [(name, *usual, "none") for name in pairs(source)]
    if kind == "file":
        # The pane is walked through by its English labels; it has no Spanish.
        return [(name, *place(name), "none" if "/it.plist" in name else "looks") for name in fault_list.files(stage)]
    if kind == "write":
        return [(name, *usual, "all") for name in fault_list.writes()]
    names = fault_list.methods(source) if kind == "method" else fault_list.lookups(source)
    return [(name, *usual, "all" if name.startswith("ALApplicationList") else "none") for name in names]


def pairs(source):
    hooked = sorted({row[1] for row in fault_list.hook_rows(source)})
    return [f"{one}+{other}" for i, one in enumerate(hooked) for other in hooked[i + 1:]]


def groups(chosen, size):
    """Faults of one device side by side, so that they share the day without a fault."""
    batches = {}
    for fault, *rest in chosen:
        batches.setdefault(tuple(rest), []).append(fault)
    for key, names in batches.items():
        for at in range(0, len(names), size):
            yield key, names[at:at + size]


def run(simulator, kind, key, names):
    command = [simulator, "run", str(HERE / "one_at_a_time.lua"), "--", kind, *key, *names]
    done = subprocess.run(command, capture_output=True, text=True)
    rows, steps = {}, []
    for line in done.stdout.splitlines():
        parts = line.split("\t")
        if parts[0] == "steps":
            steps = parts[1].split("; ")
        if parts[0] == "row":
            rows[parts[1]] = (parts[2] if len(parts) > 2 else "", steps)
    problems = done.stderr if done.returncode else ""
    return rows, problems


def shown(text, steps):
    if text == "needed":
        return "cannot be absent: the library is linked against it"
    lost = text.split("; ") if text else []
    if len(lost) > len(steps) / 2:
        return "all but: " + "; ".join(step for step in steps if step not in lost)
    return text or "nothing"


def short(fault):
    return fault.replace(SUPPORT, "…/").replace("/Library/PreferenceBundles/", "…/").replace(
        "/System/Library/Frameworks/", "…/").replace("/Library/MobileSubstrate/DynamicLibraries/", "…/")


def table(kind, rows):
    lines = [f"| {TITLES[kind]} | What is lost |", "|---|---|"]
    return lines + [f"| `{short(name)}` | {shown(*rows[name])} |" for name in sorted(rows)]


def markers(kind):
    return f"<!-- faults, {kind}: begin -->", f"<!-- faults, {kind}: end -->"


def documented(text, kind):
    begin, end = markers(kind)
    body = text.split(begin)[1].split(end)[0]
    return [line for line in body.splitlines() if line.startswith("|")]


def replaced(text, kind, lines):
    begin, end = markers(kind)
    before, rest = text.split(begin)
    return before + begin + "\n" + "\n".join(lines) + "\n" + end + rest.split(end)[1]


def main():
    parser = argparse.ArgumentParser()
    parser.add_argument("simulator")
    parser.add_argument("source", type=Path)
    parser.add_argument("stage", type=Path)
    parser.add_argument("kind", choices=[*TITLES, "pair"])
    parser.add_argument("--part", default="1/1")
    parser.add_argument("--jobs", type=int, default=1)
    parser.add_argument("--quick", action="store_true", help="pictures only in every scale at once")
    parser.add_argument("--write", action="store_true")
    options = parser.parse_args()

    part, parts = map(int, options.part.split("/"))
    every = faults(options.kind, options.source, options.stage)
    chosen = [fault for fault in every if not (options.quick and fault[0].endswith(".png"))][part - 1::parts]
    rows, problems = {}, []
    with ThreadPoolExecutor(options.jobs) as pool:
        work = [pool.submit(run, options.simulator, options.kind, key, names) for key, names in groups(chosen, 20)]
        for job in work:
            some, trouble = job.result()
            rows.update(some)
            problems += [trouble] if trouble else []
    for name, *_ in chosen:
        if name not in rows:
            problems.append(f"no result for {name}")
    if options.kind == "pair":
        for name in sorted(rows):
            print(f"{name}: {shown(*rows[name])}")
        print("\n".join(problems) if problems else f"{len(rows)} pairs survived")
        return 1 if problems else 0
    document = options.source / "Tests" / "Faults" / "losses.md"
    text = document.read_text()
    lines = table(options.kind, rows)
    if options.write and parts == 1 and not options.quick:
        document.write_text(replaced(text, options.kind, lines))
    else:
        known = documented(text, options.kind)
        problems += [f"not in Tests/Faults/losses.md: {line}" for line in lines if line not in known]
        if len(known) - 2 != len(every):
            problems.append(f"Tests/Faults/losses.md knows {len(known) - 2} faults of this kind, there are {len(every)}")
    print("\n".join(problems) if problems else f"{len(rows)} faults survived, as Tests/Faults/losses.md says")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main())
