"""The monkey as a row of runs that together take so much processor time without a fault."""

from suite import Test

EVENTS = 1000  # of one run: one device, from its boot
FIRST_RUNS = 4


def run_of(build, seed):
    """A run that says what it found and does not spend time on making that short."""
    command = (str(build / "bin/pendix-sim"), "monkey", "--seed", str(seed), "--events", str(EVENTS), "--replays", "1", "--script",
               "monkey.lua")
    return Test(f"monkey, seed {seed}", command, str(build))


def minute(build, seconds, measure, jobs):
    """`measure` runs some of them as the tests are; seeds from 1 on, until their time is up."""
    runs, seed = {}, 1
    while sum(run.processor for run in runs.values()) < seconds:
        some = [run_of(build, one) for one in range(seed, seed + max(jobs, FIRST_RUNS))]
        for test, run in zip(some, measure(some)):
            if sum(one.processor for one in runs.values()) < seconds:
                runs[test] = run
        seed += len(some)
    return runs
