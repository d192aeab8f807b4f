"""Compares what the probe has recorded on a phone with what the simulated device answers to the same questions.

    compare.py [--build BUILD] FILE

Prints a line for each fact that differs and exits with 1 when there is one; with 2 when the file cannot be used."""

import argparse
import pathlib
import sys

from comparison import differences
from recording import Simulator, Unusable, read

ROOT = pathlib.Path(__file__).resolve().parents[2]


def main():
    parser = argparse.ArgumentParser(description=__doc__.splitlines()[0])
    parser.add_argument("--build", type=pathlib.Path, default=ROOT / "build/dev")
    parser.add_argument("file")
    arguments = parser.parse_args()
    simulator = Simulator(arguments.build / "bin/pendix-sim", arguments.build / "Probe/root")
    try:
        recorded = read(arguments.file)
        device, version = simulator.like(recorded)
    except Unusable as error:
        print(error, file=sys.stderr)
        return 2
    found = differences(recorded, simulator.record(device, version))
    for fact, one, other in found:
        print(f"{fact}: recorded {one!r}, simulated {other!r}")
    facts = len(recorded["declared"]) + len(recorded["values"])
    print(f"{facts} facts of {recorded['values']['device.machine']} with {recorded['values']['device.version']}, compared"
          f" with the simulated {device}, {version}: {len(found)} differ")
    return 1 if found else 0


if __name__ == "__main__":
    sys.exit(main())
