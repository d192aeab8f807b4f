"""Runs a script twice, in different places of the machine, and compares all it says and draws byte for byte."""

import os
import pathlib
import subprocess
import sys
import tempfile


def run(program, script, folder):
    """The output and the pictures of one run that has `folder` for its own."""
    folder.mkdir()
    temporary = folder / "temporary"
    temporary.mkdir()
    result = subprocess.run([program, "run", script, "--out", "pictures"], cwd=folder, capture_output=True,
                            env=dict(os.environ, TMPDIR=str(temporary)))
    pictures = {str(file.relative_to(folder)): file.read_bytes() for file in sorted(folder.rglob("*.png"))}
    return result, pictures


def main(program, script):
    with tempfile.TemporaryDirectory() as folder:
        first, pictures = run(program, script, pathlib.Path(folder, "a"))
        second, again = run(program, script, pathlib.Path(folder, "a-longer-name"))
    problems = []
    for result in (first, second):
        if result.returncode != 0:
            problems.append(f"exit status {result.returncode}\n{result.stderr.decode(errors='replace')}")
    if first.stdout != second.stdout:
        lines = zip(first.stdout.splitlines(), second.stdout.splitlines())
        problems.append(f"other output: {next((pair for pair in lines if pair[0] != pair[1]), 'one is longer')}")
    if not first.stdout or not pictures:
        problems.append("nothing to compare")
    if pictures.keys() != again.keys():
        problems.append(f"other pictures: {sorted(pictures)} and {sorted(again)}")
    problems += [f"{name} differs" for name in pictures if pictures[name] != again.get(name)]
    print("\n".join(problems))
    return 1 if problems else 0


if __name__ == "__main__":
    sys.exit(main(*sys.argv[1:]))
