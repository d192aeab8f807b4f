"""Instructions, counted by callgrind: the same on every machine that has the same compiler and libraries."""

import re
from concurrent.futures import ThreadPoolExecutor

from .programs import LANGUAGE

# The libraries choose among variants of their functions by what the processor can do; these leave one choice. And
# memory that is given back joins its neighbours at once: otherwise that happens in heaps at times that vary.
STEADY = {
    "GLIBC_TUNABLES": "glibc.cpu.hwcaps=-AVX512F,-AVX512VL,-AVX512BW,-AVX2,-AVX,-FMA,-FMA4,-ERMS,-FSRM,-BMI1,-BMI2,"
                      "-LZCNT,-MOVBE,-RTM,-SSE4_2,-SSE4_1,-SSSE3"
                      ":glibc.malloc.mxfast=0:glibc.malloc.trim_threshold=1073741824",
    "PIXMAN_DISABLE": "ssse3",
}


def dumps(prefix):
    """What callgrind left, by the name under which the program asked for it."""
    found = {}
    for path in prefix.parent.glob(prefix.name + ".*"):
        text = path.read_text(encoding="utf-8", errors="replace")
        name = re.search(r"^desc: Trigger: Client Request: (.*)$", text, re.MULTILINE)
        total = re.search(r"^totals: (\d+)", text, re.MULTILINE)
        if name and total:
            found[name[1].split()[0]] = int(total[1])
    return found


def count_case(programs, program, name, folder):
    """{"all": instructions a unit, "rest": those outside of settings reads}; a launch has only the former."""
    prefix = folder / ("callgrind." + name.replace("/", "_"))
    for old in (prefix, *folder.glob(prefix.name + ".*")):
        old.unlink(missing_ok=True)
    output = programs.run(
        ["valgrind", "--tool=callgrind", "--instr-atstart=no", "--collect-atstart=no",
         f"--callgrind-out-file={prefix}", programs.folder / program, "count", name, *LANGUAGE],
        programs.environment(**STEADY))
    units = int(re.search(r"^units (\d+)$", output, re.MULTILINE)[1])
    result = {key: round(value / units) for key, value in sorted(dumps(prefix).items())}
    if "all" not in result:
        raise RuntimeError(f"callgrind counted nothing for {name}")
    return result


def count(programs, names, folder, jobs):
    """The counts of these cases by name."""
    where = programs.cases()
    with ThreadPoolExecutor(jobs) as pool:
        work = {name: pool.submit(count_case, programs, where[name], name, folder) for name in names}
        return {name: future.result() for name, future in work.items()}
