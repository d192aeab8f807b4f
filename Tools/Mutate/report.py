"""What is printed."""

import pathlib

import suite
from trial import limit_of


def found_by(verdicts):
    return next((verdict for verdict in verdicts if verdict and verdict.by), None)


def found_share(verdicts):
    return sum(found_by(both) is not None for both in verdicts.values()) / len(verdicts) if verdicts else 1


def show_list(faults, named):
    for fault in faults:
        print(fault, f"[changes nothing: {named[fault.key]}]" if fault.key in named else "")
    print(f"{len(faults)} faults can be planted")
    return 0


def only(fault, tests, monkey):
    """Runs what passes the fault and prints what that says; 0 when something finds it."""
    print(f"{fault}\nkey: {fault.key}")
    for test, without in (tests | monkey).items():
        if fault.number not in without.faults:
            continue
        run = suite.run(test, fault=fault.number, limit=limit_of(without))
        print(f"== {test.name}: {'passes' if run.passed else 'does not end' if run.hung else 'FAILS'}")
        if not run.passed:
            print(run.output)
            return 0
    print("nothing finds it")
    return 1


class Report:
    def __init__(self, root, named, alone):
        self.root, self.named, self.alone = pathlib.Path(root), named, alone

    def tell(self, fault, tests, monkey):
        by = [f"{'found' if one.by else 'not found'} by {what}{f': {one.by}: {one.how}' if one.by else f' ({one.tried} runs)'}"
              for what, one in (("tests", tests), ("the monkey", monkey)) if one]
        print(f"{fault}: {'; '.join(by)}", flush=True)

    def excerpt(self, fault):
        lines = (self.root / fault.file).read_text("utf-8").splitlines()
        first, last = max(fault.line - 3, 0), min(fault.line + 2, len(lines))
        return [f"    {number + 1:4}{'>' if number + 1 == fault.line else ' '} {lines[number]}" for number in range(first, last)]

    def end(self, some, verdicts):
        survivors = [fault for fault in some if fault.number in verdicts and not found_by(verdicts[fault.number])]
        quiet = [fault for fault in some if fault.key in self.named]
        if quiet:
            print("\nChange nothing that anybody could see:")
            for fault in quiet:
                print(f"  {fault}\n    {self.named[fault.key]}")
        if survivors:
            print("\nSurvivors:")
        for fault in sorted(survivors, key=lambda fault: fault.number):
            tried = sum(one.tried for one in verdicts[fault.number] if one)
            print(f"\n  {fault}\n  {f'{tried} runs pass it' if tried else 'nothing passes it'}; key: {fault.key}")
            print("\n".join(self.excerpt(fault)))
        found = [found_by(both) for both in verdicts.values()]
        print(f"\nby the tests: {sum(bool(tests.by) for tests, _ in verdicts.values())} of {len(verdicts)}")
        if self.alone:
            alone = sum(bool(monkey and monkey.by) for _, monkey in verdicts.values())
            print(f"by the monkey alone: {alone} of {len(verdicts)}")
        print(f"found {sum(one is not None for one in found)} of {len(verdicts)}")
