"""Compares counted instructions with those that are stored."""

LIMIT = 0.05  # a greater rise fails


def compare(stored, counted):
    """(lines to tell, whether nothing has risen too far). Both are {case: {"all": …, "rest": …}}; what a case
    costs outside of its settings reads is compared too, for the reads would hide it."""
    lines, good, changes = [], True, []
    for name, wanted in stored.items():
        for part in ("all", "rest"):
            if part not in wanted:
                continue
            now = counted.get(name, {}).get(part)
            label = name if part == "all" else f"{name} outside of reads"
            if now is None:
                lines.append(f"{label}: not counted")
                good = False
                continue
            change = now / wanted[part] - 1
            changes.append((abs(change), f"{label} {change:+.2%}"))
            if change > LIMIT:
                lines.append(f"{label}: {now:,} instructions instead of {wanted[part]:,}, {change:+.1%}: too many")
                good = False
            elif change < -LIMIT:
                lines.append(f"{label}: {now:,} instructions instead of {wanted[part]:,}, {change:+.1%}: "
                             "scripts/bench --store keeps it so")
    if changes:
        lines.append(f"The largest change of {len(changes)} counts: {max(changes)[1]}.")
    return lines, good
