"""What the cases have in common: a folder to work in, file systems, and the driver."""
import os
import re
import shutil
import stat
import subprocess
import tempfile
from pathlib import Path

PATIENCE = 30  # seconds, for anything that the program should do
RECORDS = 27  # of a saved state

# An administrator may write anything: the program is run without that power.
AS_A_USER = ["setpriv", "--bounding-set=-dac_override,-dac_read_search", "--inh-caps=-all"]


def as_a_user(*command):
    return [*(AS_A_USER if os.geteuid() == 0 else []), *command]


class Fault(Exception):
    pass


class Skipped(Exception):
    pass


def expect(good, what):
    if not good:
        raise Fault(what)


def expect_equal(found, expected, what):
    expect(found == expected, f"{what}: {found!r} instead of {expected!r}")


class Workshop:
    """A folder of the case's own, and what is mounted in it."""

    def __init__(self, programs):
        self.programs = programs

    def __enter__(self):
        self.folder = Path(tempfile.mkdtemp(prefix="tarnwick-faults-"))
        self.mounted = []
        return self

    def __exit__(self, *error):
        for folder in reversed(self.mounted):
            subprocess.run(["umount", "--lazy", folder], check=True, timeout=PATIENCE)
        subprocess.run(["chmod", "-R", "u+rwX", self.folder], check=True, timeout=PATIENCE)
        shutil.rmtree(self.folder)

    def mount(self, folder, *options):
        folder.mkdir(exist_ok=True)
        done = subprocess.run(["mount", *options, str(folder)], capture_output=True, text=True,
                              timeout=PATIENCE)
        if done.returncode != 0:
            raise Skipped(f"nothing can be mounted here: {done.stderr.strip()}")
        self.mounted.append(folder)

    def driver_command(self):
        return as_a_user(str(self.programs / "tarnwick_driver"))

    def answers(self, *commands):
        """The lines that the driver answers to commands, none of which may be in error."""
        done = subprocess.run(self.driver_command(), input="".join(f"{c}\n" for c in commands),
                              capture_output=True, text=True, timeout=PATIENCE)
        expect_equal((done.returncode, done.stderr), (0, ""), f"end of the driver: {done.stdout}")
        return done.stdout.splitlines()


def step_of_state(text):
    """The number of the step in a saved state, which must be whole."""
    lines = text.split("\r\n")
    expect(len(lines) == RECORDS + 1 and lines[-1] == "", f"no whole state: {text!r}")
    return int(lines[6])


def additions(text):
    """The texts in a file of kept logs, each of which must be whole."""
    parts = re.split(r"^==== \d{4}-\d\d-\d\d \d\d:\d\d:\d\d ====\r\n\r\n", text, flags=re.MULTILINE)
    expect(parts[0] == "" and all(p.endswith("\r\n\r\n") for p in parts[1:]),
           f"additions are not whole: {text!r}")
    return [part.removesuffix("\r\n\r\n") for part in parts[1:]]


def look_of(path):
    """Kind, permissions and, of an ordinary file that can be read, what is in it."""
    status = path.lstat()
    if stat.S_ISLNK(status.st_mode):
        return status.st_mode, os.readlink(path)
    readable = stat.S_ISREG(status.st_mode) and os.access(path, os.R_OK)
    return status.st_mode, path.read_bytes() if readable else None


def everything_in(folder):
    return {str(path.relative_to(folder)): look_of(path) for path in folder.rglob("*")}
