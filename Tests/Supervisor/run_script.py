"""Runs one script and checks how it ends and what it says.

The comment lines at the start of the script say what is wanted:
  -- options: WORDS   added to the command line
  -- exit: N          the exit status (0)
  -- stdout: TEXT     a part of the standard output; several in this order
  -- stderr: TEXT     the same of the standard error; without any, nothing may come there
In them, {here} stands for the script's path and {name} for its last part: Lua itself shortens a path of more than 59
characters where it names a place.
"""

import pathlib
import re
import shlex
import subprocess
import sys


def named(text, script):
    return text.replace("{here}", str(script)).replace("{name}", script.name)


def wanted(script):
    found = {"options": [], "exit": ["0"], "stdout": [], "stderr": []}
    given = {}
    for line in script.read_text().splitlines():
        if not line.startswith("--"):
            break
        match = re.match(r"-- (options|exit|stdout|stderr): (.*)", line)
        if match:
            given.setdefault(match[1], []).append(named(match[2], script))
    found.update(given)
    return found


def missing(parts, text):
    """The first part that does not follow the ones before it, or None."""
    at = 0
    for part in parts:
        at = text.find(part, at)
        if at < 0:
            return part
        at += len(part)
    return None


def main(program, script, pictures, *arguments):
    script = pathlib.Path(script)
    wants = wanted(script)
    command = [program, "run", str(script), "--out", pictures, *shlex.split(" ".join(wants["options"]))]
    if arguments:
        command += ["--", *arguments]
    result = subprocess.run(command, capture_output=True, text=True, errors="replace")
    problems = []
    if result.returncode != int(wants["exit"][0]):
        problems.append(f"exit status {result.returncode}, wanted {wants['exit'][0]}")
    for name, text in (("stdout", result.stdout), ("stderr", result.stderr)):
        part = missing(wants[name], text)
        if part is not None:
            problems.append(f"{name} lacks: {part}")
    if "failed: " in result.stderr and not any(part.startswith("failed: ") for part in wants["stderr"]):
        problems.append("an expectation failed that was to hold")
    if result.stderr and not wants["stderr"]:
        problems.append("nothing was to come on stderr")
    if problems:
        print("\n".join(problems))
        print(f"--- stdout\n{result.stdout}--- stderr\n{result.stderr}")
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
