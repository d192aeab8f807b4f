"""Times, measured by Google Benchmark in processor time."""

import json

from .programs import LANGUAGE

REPETITIONS = 5
SECONDS = 0.1  # a repetition lasts at least this long


def time_case(programs, program, name, folder):
    """A unit's figures, medians of the repetitions: "seconds", their spread "variation" (standard deviation over mean),
    and the program's counters."""
    out = folder / ("time." + name.replace("/", "_") + ".json")
    programs.run([programs.folder / program, "time", name, f"--benchmark_out={out}", "--benchmark_out_format=json",
                  f"--benchmark_repetitions={REPETITIONS}", f"--benchmark_min_time={SECONDS}", *LANGUAGE],
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
