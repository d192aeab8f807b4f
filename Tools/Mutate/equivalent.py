"""Faults that change nothing that anybody could see: a file names each, with the reason."""

import tomllib


def read(file, faults):
    """{fault's key: why nobody could see it}. Throws SystemExit when an entry fits no fault: what it spoke of has
    changed."""
    entries = tomllib.loads(file.read_text("utf-8")).get("fault", []) if file.exists() else []
    keys = {fault.key for fault in faults}
    wrong = [entry for entry in entries if entry.get("key") not in keys or not entry.get("why")]
    if wrong:
        raise SystemExit("\n".join([f"{file}: fits no fault that can be planted, or gives no reason:",
                                    *(f"  {entry.get('key')}" for entry in wrong)]))
    return {entry["key"]: entry["why"] for entry in entries}
