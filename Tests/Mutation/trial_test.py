"""Proves that a trial says of a fault what is true: found by a test that fails with it and passes without it, or that does
not end; not found by one that fails anyway, nor by one that does not pass its place. And the choice, the file of what
nobody can see, and that a trial goes on where it was stopped."""

import os
import pathlib
import select
import sys
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
sys.path.insert(0, str(HERE.parent.parent / "Tools/Mutate"))

import choice  # noqa: E402
import suite  # noqa: E402
import trial  # noqa: E402
from faults import VALUE, Change, Fault, numbered  # noqa: E402

COUNT = 8
PASS = 'for place in {}; do printf "\\001" | dd of="${{MUTANTS_PASSED:-$TMPDIR/none}}" bs=1 seek=$place conv=notrunc 2>/dev/null; done;'


def test(name, script, passes=(1, 2, 3), **more):
    return suite.Test(name, ("/bin/sh", "-c", PASS.format(" ".join(map(str, passes))) + script), "/", **more)


def fault(number, file="Tweak/Panel/Tap.mm", after="nothing"):
    return Fault(file, number, "tap", "drop", f"call {number}", after, [Change(number, number + 1, VALUE, "")], number=number)


def runs(*tests):
    return {one: suite.run(one, count=COUNT) for one in tests}


def verdict(tests, number):
    suite.BESIDES = 0.5
    return trial.look(fault(number), tests, {})


def test_what_finds_a_fault():
    two = test("two", 'test "$MUTANT" != 2')
    always = test("always", "echo gone; false")
    loops = test("loops", 'while test "$MUTANT" = 3; do :; done', passes=(3,))
    cases = [
        ("fails with it", [two], 2, "two", 1),
        ("does not fail with another", [two], 1, "", 1),
        ("fails without it, too", [always], 1, "", 1),
        ("does not pass its place", [test("elsewhere", "false", passes=(4,))], 2, "", 0),
        ("does not end", [loops], 3, "loops", 1),
        ("says what it must not say", [test("said", 'echo "fault $MUTANT"', expected=("fault $",))], 2, "said", 1),
        ("one of two finds it", [test("other", "true"), two], 2, "two", None),
    ]
    for what, tests, number, by, tried in cases:
        found = verdict(runs(*tests), number)
        assert found.by == by and tried in (found.tried, None), f"{what}: {found}"


def ends(process):
    """Whether it is gone, or goes within some seconds."""
    try:
        end = select.poll()
        end.register(os.pidfd_open(process), select.POLLIN)
        return bool(end.poll(10_000))
    except ProcessLookupError:
        return True


def test_a_run_leaves_nothing():
    run = suite.run(test("writes", 'sleep 1000 & touch "$TMPDIR/file"; echo "$TMPDIR" $!'))
    folder, process = run.output.split()
    assert run.passed and not pathlib.Path(folder).exists(), run
    assert ends(int(process)), "what it had started still runs"


def test_outputs_are_moved_aside():
    command = ("/build/bin/sim", "run", "a.lua", "--out", "/build/pictures/a", "--", "--script", "found.lua", "/build/pictures/b")
    words = suite.in_scratch(command, "/scratch")
    assert words == ["/build/bin/sim", "run", "a.lua", "--out", "/scratch/1-a", "--", "--script", "/scratch/2-found.lua",
                     "/scratch/3-b"], words


def test_the_choice():
    faults = [fault(number, file) for number in range(1, 30) for file in ("Tweak/Panel/Tap.mm", "Tweak/Lock/Lock.mm")]
    first = choice.chosen(faults, [], 1, 10)
    assert first == choice.chosen(list(reversed(faults)), [], 1, 10)
    assert first != choice.chosen(faults, [], 2, 10)
    more = choice.chosen([*faults, fault(99)], [], 1, 11)
    assert [one for one in more if one.number != 99][:10] == first, "another fault changes the choice of the rest"
    assert {one.file for one in choice.chosen(faults, ["Tweak/Lock"], 1, 99)} == {"Tweak/Lock/Lock.mm"}
    assert len(choice.chosen(faults, ["Tweak/Panel/Tap.mm", "Tweak/Lock/"], 1, 99)) == len(faults)
    assert not choice.chosen(faults, ["Tweak/Loc"], 1, 99)


def test_keys_tell_apart_what_reads_the_same():
    same = [Fault("a.mm", line, "tap", "drop", "call", "nothing", [Change(line, line, VALUE, "")]) for line in (5, 3, 4)]
    assert [(one.line, one.number, one.key) for one in numbered(same)] == [
        (3, 1, "a.mm | tap | drop | call | nothing"), (4, 2, "a.mm | tap | drop | call | nothing | no. 2"),
        (5, 3, "a.mm | tap | drop | call | nothing | no. 3")]


def refused(what, call):
    try:
        call()
    except SystemExit as end:
        return str(end)
    raise AssertionError(f"{what} was not refused")


def test_what_nobody_can_see(folder):
    file = folder / "equivalent.toml"
    assert choice.unseen(file, [fault(1)]) == {}
    file.write_text(f"[[fault]]\nkey = '{fault(1).key}'\nwhy = 'it is drawn over'\n")
    assert choice.unseen(file, [fault(1), fault(2)]) == {fault(1).key: "it is drawn over"}
    assert fault(1).key in refused("an entry that fits nothing", lambda: choice.unseen(file, [fault(2)]))
    file.write_text(f"[[fault]]\nkey = '{fault(1).key}'\n")
    refused("an entry without a reason", lambda: choice.unseen(file, [fault(1)]))


def test_going_on(folder):
    file, asked = folder / "record", []

    def find(by):
        asked.append(by)
        return trial.Verdict(by, "it says so", 1)

    for _ in range(2):
        record = trial.Record(file, "these sources")
        assert record.get(fault(1), "tests", lambda: find("a test")).by == "a test"
        assert record.get(fault(1), "monkey", lambda: find("a seed")).by == "a seed"
    assert asked == ["a test", "a seed"], asked
    refused("the record of other sources", lambda: trial.Record(file, "others"))


def main():
    with tempfile.TemporaryDirectory() as scratch:
        for name, case in list(globals().items()):
            if name.startswith("test_"):
                case(*([pathlib.Path(scratch)] if case.__code__.co_argcount else []))
                print(f"{name} holds")


main()
