"""Instructions, counted by callgrind: the same on every machine that has the same compiler and libraries."""

import re
from concurrent.futures import ThreadPoolExecutor

from .programs import LANGUAGE

# The C library chooses among variants of its functions by what the processor can do, which model it is and how large
# its caches are; these leave one choice. So does pixman. And memory that is given back joins its neighbours at once:
# otherwise that happens in heaps at times that vary.
HIDDEN_FEATURES = ("AVX512F AVX512VL AVX512BW AVX2 AVX FMA FMA4 ERMS FSRM BMI1 BMI2 LZCNT MOVBE RTM SSE4_2 SSE4_1 SSSE3 "
                   "AVX_Fast_Unaligned_Load Prefer_ERMS Prefer_FSRM Fast_Copy_Backward Slow_BSF").split()
TUNABLES = {
    "glibc.cpu.hwcaps": ",".join(["Fast_Unaligned_Load", *("-" + name for name in HIDDEN_FEATURES)]),
    "glibc.cpu.x86_data_cache_size": 1 << 15,
    "glibc.cpu.x86_shared_cache_size": 1 << 20,
    "glibc.cpu.x86_non_temporal_threshold": 1 << 30,
    "glibc.malloc.mxfast": 0,
    "glibc.malloc.trim_threshold": 1 << 30,
}
STEADY = {
    "GLIBC_TUNABLES": ":".join(f"{name}={value}" for name, value in TUNABLES.items()),
    "PIXMAN_DISABLE": "ssse3",
    # Devices otherwise lie in /dev/shm where there is one.
    "TMPDIR": "/tmp",
}


# Functions of the C library for processors that have more than all of this kind have.
VARIANT = re.compile(r"^c?fn=\(\d+\) (__\w+_(?:avx|evex|ssse3|sse4|fma|erms|movbe)\w*)", re.MULTILINE)


def variants(text):
    """The functions in a dump of callgrind's that another machine may not choose, sorted."""
    return sorted(set(VARIANT.findall(text)))


def dumps(prefix):
    """What callgrind left, by the name under which the program asked for it. Raises RuntimeError when it would differ on
    another machine."""
    found = {}
    for path in prefix.parent.glob(prefix.name + ".*"):
        text = path.read_text(encoding="utf-8", errors="replace")
        if chosen := variants(text):
            raise RuntimeError(f"{prefix.name}: chosen for this processor: {', '.join(chosen)}; see HIDDEN_FEATURES")
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
