"""Holds what a script prints against the agreed text; with --agree writes that text instead.

compare.py SIMULATOR SCRIPT GOLDEN [--agree] -- ARGUMENTS OF THE SCRIPT
"""

import difflib
import pathlib
import re
import subprocess
import sys


def main():
    split = sys.argv.index("--")
    simulator, script, golden, *options = sys.argv[1:split]
    run = subprocess.run(
        [simulator, "run", script, "--", *sys.argv[split + 1 :]], stdout=subprocess.PIPE, text=True, check=False
    )
    if run.returncode != 0:
        return run.returncode
    text = re.sub(r"\d+ expectations? held\n\Z", "", run.stdout)  # the simulator's own last word
    golden = pathlib.Path(golden)
    if "--agree" in options:
        golden.write_text(text, encoding="utf-8")
        return 0
    agreed = golden.read_text(encoding="utf-8") if golden.exists() else ""
    if agreed == text:
        return 0
    sys.stdout.writelines(
        difflib.unified_diff(agreed.splitlines(True), text.splitlines(True), str(golden), "printed")
    )
    return 1


sys.exit(main())
