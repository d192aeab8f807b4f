"""The benchmark programs of a build: what they can measure, and a world for them in which nothing of the machine's
settings counts."""

import subprocess

PROGRAMS = ("pendix-bench-home", "pendix-bench-pane")
# Foundation reads the preferred languages from the command line.
LANGUAGE = ["-AppleLanguages", "(en)"]


class Programs:
    def __init__(self, build, home):
        """`build` is a build's folder, `home` one in which the programs may write."""
        self.folder = build / "bin"
        self.home = home

    def cases(self):
        """The program of each case, in order."""
        found = {}
        for program in PROGRAMS:
            listed = subprocess.run([self.folder / program, "--list"], check=True, text=True, capture_output=True)
            found.update((name, program) for name in listed.stdout.split())
        return found

    def environment(self, **more):
        """All that a program gets to know of its surroundings; nothing of whoever measures."""
        return {"PATH": "/usr/local/bin:/usr/bin:/bin", "TZ": "UTC", "LANG": "C.UTF-8", "HOME": str(self.home),
                "XDG_CACHE_HOME": str(self.home / "cache"), **more}

    def run(self, command, environment):
        """What the command prints; raises RuntimeError with what it said when it failed."""
        done = subprocess.run(command, env=environment, text=True, capture_output=True)
        if done.returncode != 0:
            raise RuntimeError(f"{' '.join(map(str, command))}\n{done.stdout[-2000:]}{done.stderr[-2000:]}")
        return done.stdout
