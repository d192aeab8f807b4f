"""What a probe has written: reading it, and having the simulated device write one."""

import pathlib
import plistlib
import re
import shutil
import subprocess
import tempfile

HERE = pathlib.Path(__file__).resolve().parent
FILE = "var/mobile/Library/Preferences/org.quillhub.pendix.probe.plist"
FORMAT = 1

# Models that differ from a simulated one in their radio or their colour only.
SAME_AS = {
    "iPhone3,2": "iPhone3,1", "iPhone3,3": "iPhone3,1", "iPhone5,1": "iPhone5,2", "iPhone5,3": "iPhone5,2",
    "iPhone5,4": "iPhone5,2", "iPhone6,2": "iPhone6,1", "iPad2,2": "iPad2,1", "iPad2,3": "iPad2,1",
    "iPad2,4": "iPad2,1", "iPad4,2": "iPad4,1", "iPad4,3": "iPad4,1", "iPad5,4": "iPad5,3", "iPad4,8": "iPad4,7",
    "iPad4,9": "iPad4,7",
}


class Unusable(Exception):
    """A file that is no recording, or one of a device that is not simulated."""


def read(path):
    try:
        recording = plistlib.loads(pathlib.Path(path).read_bytes())
        complete = recording["format"] == FORMAT and recording["declared"] and recording["values"]
    except Exception as error:  # the parser raises what its parts raise
        raise Unusable(f"{path} is no recording of the probe: {error!r}") from error
    if not complete:
        raise Unusable(f"{path} is a recording of another kind, or not complete")
    return recording


class Simulator:
    """`program` is pendix-sim, `library` the folder that the probe's library was built into."""

    def __init__(self, program, library):
        self.program, self.library = program, library

    def profiles(self):
        """{machine: (device, versions)}"""
        lines = subprocess.run([self.program, "profiles"], check=True, capture_output=True, text=True).stdout
        found = {}
        for line in lines.splitlines():
            machine = re.search(r"(iPhone|iPad)\d,\d", line)
            if machine:
                found[machine[0]] = (line[: machine.start()].strip(), re.findall(r"\b[78]\.\d\b", line))
        return found

    def like(self, recording):
        """The device and the latest system version that it is simulated with and that is not past the recorded one."""
        machine, version = recording["values"]["device.machine"], recording["values"]["device.version"]
        profiles = self.profiles()
        device, versions = profiles.get(SAME_AS.get(machine, machine), (None, ()))
        before = [known for known in versions if known[0] == version[0] and known <= version[:3]]
        if not before:
            raise Unusable(f"a {machine} with {version} is not simulated")
        return device, max(before)

    def record(self, device, version, left=None):
        """What the probe writes on that device. `left` are files, {path: bytes}, that lie there before."""
        with tempfile.TemporaryDirectory() as folder:
            root = pathlib.Path(folder) / "root"
            shutil.copytree(self.library, root)
            for path, content in (left or {}).items():
                file = root / path
                file.parent.mkdir(parents=True, exist_ok=True)
                file.write_bytes(content)
            result = subprocess.run([self.program, "run", HERE / "record.lua", "--out", folder, "--", device, version,
                                     root], capture_output=True, text=True)
            if result.returncode:
                raise RuntimeError(f"{device}, {version}: {result.stdout}{result.stderr}")
            return read(root / FILE)
