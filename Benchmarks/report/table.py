"""The tables of docs/performance.md."""

import os
import platform
import re
import subprocess

FRAME = 1 / 60  # seconds


def machine(load):
    """A line that says on what it was measured."""
    with open("/proc/cpuinfo", encoding="utf-8") as file:
        model = re.search(r"model name\s*: (.*)", file.read())
    with open("/proc/meminfo", encoding="utf-8") as file:
        memory = int(re.search(r"MemTotal:\s*(\d+)", file.read())[1]) / 2**20
    compiler = subprocess.run(["clang", "--version"], text=True, capture_output=True).stdout.splitlines()[0]
    line = (f"Measured on {model[1] if model else platform.machine()}, {os.cpu_count()} processors, {memory:.0f} GiB, "
            f"Linux {platform.release()}, {compiler}; load average {load:.1f} at the start.")
    if load > 1:
        line += " **Other programs had the machine as well: the times are too long, the instructions are right.**"
    return line


def micro(seconds):
    return f"{seconds * 1e6:,.0f}" if seconds >= 1e-5 else f"{seconds * 1e6:.1f}"


def times(part, floor):
    return f"{part / floor:.1f}" if part and floor else ""


def million(count):
    return f"{count / 1e6:.2f}" if count else ""


def row(name, timed, counted):
    reads = timed["reads"]
    # A launch is measured whole.
    inside = timed["read_seconds"]
    rest = timed["seconds"] - inside if inside else None
    return [name.replace("_", " "), micro(timed["seconds"]), f"±{timed['variation']:.0%}",
            f"{reads:.4g}" if reads else "", micro(inside) if inside else "", times(inside, timed["read_floor_seconds"]),
            micro(rest) if rest else "",
            micro(timed["paint_floor_seconds"]) if timed["pixels"] else "",
            times(timed["seconds"], timed["paint_floor_seconds"]), million(counted.get("all")),
            million(counted.get("rest"))]


def lines(header, rows):
    yield "| " + " | ".join(header) + " |"
    yield "|---" * len(header) + "|"
    for cells in rows:
        yield "| " + " | ".join(cells) + " |"


def difference(name, first, second):
    """What the first costs more than the second."""
    return [name, micro(first[0]["seconds"] - second[0]["seconds"]), "", f"{first[0]['reads']:.0f}", "", "", "", "", "",
            million(first[1]["all"] - second[1]["all"]), ""]


def main_table(timed, counted):
    rows = []
    for name in timed:
        rows.append(row(name, timed[name], counted.get(name, {})))
        if name == "launch_without":
            both = [(timed[which], counted[which]) for which in ("launch", "launch_without")]
            rows.append(difference("the extension's part of the launch", *both))
    return lines(["what", "µs", "spread", "reads", "µs in reads", "× floor", "µs outside", "µs to paint bare", "× floor",
                  "M instructions", "M outside"], rows)


def growth(name, counted):
    """One row: what one more application costs between each two sizes, in thousands of instructions outside of reads,
    and how well a straight line fits (1: exactly)."""
    sizes = {int(case.split("/")[1]): counts["rest"] for case, counts in counted.items()
             if case.startswith(name + "/")}
    points = sorted(sizes.items())
    steps = [f"{(c2 - c1) / (n2 - n1) / 1000:,.0f} ({n1} to {n2})" for (n1, c1), (n2, c2) in zip(points, points[1:])]
    mean_n = sum(n for n, _ in points) / len(points)
    mean_c = sum(c for _, c in points) / len(points)
    slope = sum((n - mean_n) * (c - mean_c) for n, c in points) / sum((n - mean_n) ** 2 for n, _ in points)
    left = sum((c - mean_c - slope * (n - mean_n)) ** 2 for n, c in points)
    whole = sum((c - mean_c) ** 2 for _, c in points)
    return [name, ", ".join(steps), f"{mean_c - slope * mean_n:,.0f} + {slope:,.0f} × N", f"{1 - left / whole:.5f}"]


def growth_table(counted):
    return lines(["what", "thousand instructions for one more application", "line through all sizes", "R²"],
                 [growth(name, counted) for name in ("badge", "opening", "closing")])


def verdict(timed, counted):
    opening = timed["opening/200"]
    ratio = counted["opening/200"]["rest"] / counted["opening_bare/200"]["rest"]
    rest = opening["seconds"] - opening["read_seconds"]
    held = "under" if rest < FRAME else "**over**"
    return (f"Opening with 200 applications takes {rest * 1e3:.1f} ms outside of the settings reads, {held} one frame of "
            f"{FRAME * 1e3:.1f} ms. Its {opening['reads']:.0f} reads take {opening['read_seconds'] * 1e3:.1f} ms, "
            f"{opening['read_seconds'] / opening['read_floor_seconds']:.1f} times their floor. It takes {ratio:.2f} times the "
            "instructions that its views take, built bare.")


def report(timed, counted, load):
    return "\n".join([machine(load), "", *main_table(timed, counted), "", verdict(timed, counted), "", *growth_table(counted)])


def change(first, second, form):
    """Two cells: the first figure and the second, and the second over the first."""
    if not first or not second:
        return ["", ""]
    return [f"{form(first)} → {form(second)}", f"{second / first:.2f}"]


def outside(timed):
    return timed["seconds"] - timed["read_seconds"] if timed["read_seconds"] else None


def comparison_row(name, timed, counted):
    reads = [f"{one['reads']:.4g}" for one in timed]
    return [name.replace("_", " "), "" if reads == ["0", "0"] else " → ".join(reads),
            *change(timed[0]["seconds"], timed[1]["seconds"], micro), *change(outside(timed[0]), outside(timed[1]), micro),
            *change(counted[0]["all"], counted[1]["all"], million),
            *change(counted[0].get("rest"), counted[1].get("rest"), million)]


def comparison(timed, counted, load, missing):
    """Both are pairs, of the older build and of the newer; `missing` are the cases that the older does not know."""
    rows = [comparison_row(name, [one[name] for one in timed], [one[name] for one in counted]) for name in timed[0]]
    text = [machine(load), "", *lines(["what", "reads", "µs", "ratio", "µs outside", "ratio", "M instructions", "ratio",
                                       "M outside", "ratio"], rows)]
    if missing:
        text += ["", "Unknown to the older build: " + ", ".join(name.replace("_", " ") for name in missing) + "."]
    return "\n".join(text)
