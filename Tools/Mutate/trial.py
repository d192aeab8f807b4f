"""Switches faults on, one at a time, and tells which of them something finds."""

import collections
import concurrent.futures
import dataclasses
import json
import re

import suite


@dataclasses.dataclass
class Verdict:
    """`by` names what found the fault, "" when nothing did; `tried` says how many runs it took."""
    by: str
    how: str
    tried: int


def limit_of(without):
    return 10 * without.seconds + suite.BESIDES


COMPLAINT = re.compile(r"fail|error|wanted|expect|assert|crash|abort|SIG[A-Z]{3}", re.IGNORECASE)


def how(run):
    """The first line that complains of something."""
    if run.hung:
        return "it does not end"
    lines = [line.strip() for line in run.output.splitlines() if line.strip()]
    return next(filter(COMPLAINT.search, lines), lines[-1] if lines else "it ends badly")[:200]


def look(fault, runs, lucky):
    """Tries every run that passes the fault's place until one fails, and passes again without the fault. The quick ones
    come first, and those that have found others in the same file; `lucky` counts these."""
    tried, luck = 0, lucky.setdefault(fault.file, collections.Counter())
    passing = [(test, without) for test, without in runs.items() if fault.number in without.faults]
    for test, without in sorted(passing, key=lambda one: one[1].processor / (1 + 5 * luck[one[0].name])):
        tried += 1
        run = suite.run(test, fault=fault.number, limit=limit_of(without))
        if not run.passed and suite.run(test, limit=limit_of(without)).passed:
            luck[test.name] += 1
            return Verdict(test.name, how(run), tried)
    return Verdict("", "" if tried else "nothing passes it", tried)


class Record:
    """What is known of the faults tried so far, a line each in a file, so that a trial can go on. Throws SystemExit
    when the file is of other sources."""

    def __init__(self, file, identity):
        self.file, self.known = file, {}
        if file is None:
            return
        lines = [json.loads(line) for line in file.read_text().splitlines()] if file.exists() else []
        if not lines:
            file.write_text(json.dumps({"of": identity}) + "\n")
        elif lines[0] != {"of": identity}:
            raise SystemExit(f"{file} is of another state of the project: take another file")
        for line in lines[1:]:
            self.known[line["key"], line["what"]] = Verdict(**line["verdict"])

    def get(self, fault, what, find):
        known = self.known.get((fault.key, what))
        if known is None:
            known = self.known[fault.key, what] = find()
            if self.file:
                line = {"key": fault.key, "what": what, "verdict": dataclasses.asdict(known)}
                with self.file.open("a") as lines:
                    lines.write(json.dumps(line) + "\n")
        return known


class Trial:
    """`tests` and `monkey` are {test: its run without a fault}. With `alone`, the monkey tries what the tests have
    found as well."""

    def __init__(self, tests, monkey, record, alone):
        self.tests, self.monkey, self.record, self.alone = tests, monkey, record, alone
        self.lucky = {}

    def of(self, fault):
        """(what the tests say, what the monkey says or None when it was not asked)"""
        by_tests = self.record.get(fault, "tests", lambda: look(fault, self.tests, self.lucky))
        if by_tests.by and not self.alone:
            return by_tests, None
        if not self.monkey:
            return by_tests, None
        return by_tests, self.record.get(fault, "monkey", lambda: look(fault, self.monkey, self.lucky))

    def run(self, faults, jobs, tell):
        """Calls `tell` with each fault and its two verdicts as they come; gives {fault's number: verdicts}."""
        verdicts = {}
        with concurrent.futures.ThreadPoolExecutor(jobs) as pool:
            running = {pool.submit(self.of, fault): fault for fault in faults}
            for done in concurrent.futures.as_completed(running):
                fault = running[done]
                verdicts[fault.number] = done.result()
                tell(fault, *verdicts[fault.number])
        return verdicts
