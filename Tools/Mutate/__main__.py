"""Plants faults into the product's sources, one at a time, and tells which of them no test notices: see docs/mutation.md."""

import argparse
import os
import pathlib
import re
import signal
import sys

import suite
from choice import chosen, unseen
from plan import Plan, jobs_here
from report import Report, found_share, only, show_list
from trial import Record, Trial

ROOT = pathlib.Path(__file__).resolve().parent.parent.parent
EQUIVALENT = ROOT / "Tests/Mutation/equivalent.toml"


def command_line():
    parser = argparse.ArgumentParser(prog="scripts/mutate", description=__doc__)
    parser.add_argument("folders", nargs="*", metavar="FOLDER", help="of the product: Tweak/Panel; default: all of it")
    parser.add_argument("--seed", type=int, default=1, help="chooses the faults (1)")
    parser.add_argument("--count", type=int, default=200, help="how many (200)")
    parser.add_argument("--jobs", type=int, default=jobs_here(), help="how many at the same time (one a processor)")
    parser.add_argument("--monkey", type=float, default=60, metavar="SECONDS",
                        help="of processor time that the monkey has for what the tests do not find (60); 0: none")
    parser.add_argument("--monkey-alone", action="store_true", help="the monkey tries all of them, and is counted by itself")
    parser.add_argument("--list", action="store_true", help="only list what can be planted")
    parser.add_argument("--only", type=int, metavar="NUMBER", help="one fault of the list, with the output of its tests")
    parser.add_argument("--resume", type=pathlib.Path, metavar="FILE", help="keep what is known there, and go on from it")
    parser.add_argument("--least", type=float, default=0, metavar="PERCENT", help="fail when fewer are found")
    parser.add_argument("--leave-out", metavar="REGEX", help="tests that are not tried: 'faults|settings_files' are the long ones")
    return parser.parse_args()


def stop(*_):
    suite.end_all()
    os._exit(2)


def main():
    arguments = command_line()
    for end in (signal.SIGINT, signal.SIGTERM):
        signal.signal(end, stop)
    plan = Plan(ROOT, arguments.jobs, lambda text: print(f"== {text}", file=sys.stderr, flush=True))
    faults = plan.plant()
    named = unseen(EQUIVALENT, faults)
    some = chosen(faults, arguments.folders, arguments.seed, len(faults) if arguments.list else arguments.count)
    if arguments.list:
        return show_list(sorted(some, key=lambda fault: fault.number), named)
    plan.build()
    tests, monkey = plan.try_without(arguments.monkey)
    if arguments.leave_out:
        tests = {test: run for test, run in tests.items() if not re.search(arguments.leave_out, test.name)}
    if arguments.only is not None:
        return only(next(fault for fault in faults if fault.number == arguments.only), tests, monkey)
    report = Report(ROOT, named, bool(arguments.monkey_alone and monkey))
    record = Record(arguments.resume, f"{plan.identity()} {arguments.leave_out}")
    trial = Trial(tests, monkey, record, arguments.monkey_alone)
    trying = [fault for fault in some if fault.key not in named]
    verdicts = trial.run(trying, arguments.jobs, report.tell)
    report.end(some, verdicts)
    return 0 if found_share(verdicts) * 100 >= arguments.least else 1


sys.exit(main())
