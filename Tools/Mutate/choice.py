"""Which faults are tried, and which of them change nothing that anybody could see."""

import hashlib
import tomllib


def chosen(faults, folders, seed, count):
    """By the words of each, so that a change elsewhere leaves the choice as it is. A folder may be a file."""
    starts = tuple(folder.rstrip("/") + "/" for folder in folders)
    some = [fault for fault in faults if not starts or (fault.file + "/").startswith(starts)]
    return sorted(some, key=lambda fault: hashlib.sha256(f"{seed} {fault.key}".encode()).digest())[:count]


def unseen(file, faults):
    """{fault's key: why nobody could see it}, as the file has it. Throws SystemExit when an entry fits no fault, for
    what it spoke of has changed, and when one gives no reason."""
    entries = tomllib.loads(file.read_text("utf-8")).get("fault", []) if file.exists() else []
    keys = {fault.key for fault in faults}
    wrong = [entry for entry in entries if entry.get("key") not in keys or not entry.get("why")]
    if wrong:
        raise SystemExit("\n".join([f"{file}: fits no fault that can be planted, or gives no reason:",
                                    *(f"  {entry.get('key')}" for entry in wrong)]))
    return {entry["key"]: entry["why"] for entry in entries}
