"""Times, measured by Google Benchmark in processor time."""

import json

from .programs import LANGUAGE

REPETITIONS = 5
SECONDS = 0.1  # a repetition lasts at least this long
# When builds take turns: how often each, and the length of one turn.
TURNS = 4
TURN = {"repetitions": 3, "seconds": 0.03}


def time_case(programs, program, name, folder, repetitions=REPETITIONS, seconds=SECONDS):
    """A unit's figures, medians of the repetitions: "seconds", their spread "variation" (standard deviation over mean),
    and the program's counters."""
    out = folder / ("time." + name.replace("/", "_") + ".json")
    programs.run([programs.folder / program, "time", name, f"--benchmark_out={out}", "--benchmark_out_format=json",
                  f"--benchmark_repetitions={repetitions}", f"--benchmark_min_time={seconds}", *LANGUAGE],
                 programs.environment())
    runs = json.loads(out.read_text(encoding="utf-8"))["benchmarks"]
    of = {run["aggregate_name"]: run for run in runs if run["run_type"] == "aggregate"}
    median = of["median"]
    counters = ("reads", "read_seconds", "read_floor_seconds", "pixels", "paint_floor_seconds")
    return {"seconds": median["real_time"] * 1e-6 / median["units"], "variation": of["cv"]["real_time"],
            **{counter: median[counter] for counter in counters}}


def time_all(programs, names, folder):
    """One after the other, so that they do not disturb each other."""
    where = programs.cases()
    return {name: time_case(programs, where[name], name, folder) for name in names}


def time_in_turns(builds, names, folder):
    """For each of the builds' Programs what time_all gives, from the turn in which the case took least. What slows the
    machine down for a while slows all builds down, and the turn that it spared most counts."""
    where = [programs.cases() for programs in builds]
    best = [{} for _ in builds]
    for name in names:
        for turn in range(TURNS):
            for which in list(range(len(builds)))[::1 if turn % 2 else -1]:
                timed = time_case(builds[which], where[which][name], name, folder, **TURN)
                if name not in best[which] or timed["seconds"] < best[which][name]["seconds"]:
                    best[which][name] = timed
    return best
