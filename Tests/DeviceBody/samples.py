"""Builds the small libraries for a phone that the loader is tested with.

samples.py OUT [MACRO]     compiles and links Samples/Sample.mm, wrong in the way that MACRO stands for"""

import pathlib
import subprocess
import sys

HERE = pathlib.Path(__file__).resolve().parent
ROOT = HERE.parent.parent
sys.path.insert(0, str(ROOT / "Packaging/device"))
sys.dont_write_bytecode = True

import stubs  # noqa: E402


def build(out, macro=None):
    out = pathlib.Path(out)
    out.parent.mkdir(parents=True, exist_ok=True)
    flags = ["-Wno-undeclared-selector"] + ([f"-D{macro}"] if macro else [])
    object_file = out.with_suffix(".o")
    subprocess.run([ROOT / "Packaging/device/compile", "arm64", "Tests/DeviceBody/Samples/Sample.mm", object_file, *flags],
                   cwd=ROOT, check=True)
    # Nothing is held against a list of exports: what the platform lacks is the loader's to find.
    subprocess.run([*stubs.ARM64_LINK, "-dylib", "-install_name", "/Sample", "-undefined", "dynamic_lookup",
                    "-o", out, object_file], check=True)
    return out


if __name__ == "__main__":
    build(*sys.argv[1:])
