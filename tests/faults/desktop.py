"""The windows: pictures that are no good, and displays that are not there or go."""
import os
import shutil
import signal
import subprocess
import time
from contextlib import contextmanager
from functools import partial

from harness import PATIENCE, Fault, additions, expect, expect_equal, step_of_state

PICTURES = ("darkmoon.bmp", "1stquarter.bmp", "fullmoon.bmp", "lastquarter.bmp")
STEP = 7
MOMENT = "2451402"  # as Astronomical Julian Date
STATE = "Ostrel Systems/tnwk.usr"  # in the folder for the data of programs
SOME_STEPS = 2  # seconds for a move


def environment(shop, **more):
    """Without a display, unless it is named."""
    keep = {name: value for name, value in os.environ.items()
            if name not in ("DISPLAY", "WAYLAND_DISPLAY", "QT_QPA_PLATFORM")}
    return keep | {"XDG_CONFIG_HOME": str(shop.folder / "config")} | more


@contextmanager
def screen():
    """The name of a display, and the server that may be killed."""
    readable, writable = os.pipe()
    server = subprocess.Popen(["Xvfb", "-displayfd", str(writable), "-screen", "0", "1280x900x24"],
                              pass_fds=[writable], stderr=subprocess.DEVNULL)
    os.close(writable)
    try:
        with os.fdopen(readable) as number:
            yield ":" + number.readline().strip(), server
    finally:
        server.kill()
        server.wait()


class Program:
    """The real one, on a display."""

    def __init__(self, shop, display, folder=None):
        self.environment = environment(shop, DISPLAY=display)
        self.process = subprocess.Popen([(folder or shop.programs) / "tarnwick"],
                                        env=self.environment, stderr=subprocess.PIPE, text=True)

    def __enter__(self):
        return self

    def __exit__(self, *error):
        self.process.kill()
        self.process.communicate()

    def try_xdotool(self, *arguments):
        return subprocess.run(["xdotool", *arguments], env=self.environment, capture_output=True,
                              text=True, timeout=PATIENCE)

    def xdotool(self, *arguments):
        done = self.try_xdotool(*arguments)
        expect_equal(done.returncode, 0, f"xdotool {arguments}: {done.stderr}")

    def window(self, title):
        """Once it is there. A search fails where any window goes while it is under way."""
        end = time.monotonic() + PATIENCE
        while time.monotonic() < end:
            done = self.try_xdotool("search", "--onlyvisible", "--name", title)
            if done.returncode == 0:
                return done.stdout.split()[0]
            time.sleep(0.05)
        raise Fault(f"no window {title}: {done.stderr}")

    def press(self, title, *keys):
        """In a window, once it is there."""
        self.xdotool("windowfocus", "--sync", self.window(title), "key", "--delay", "50", *keys)

    def end(self):
        """What it said, and its status."""
        said = self.process.communicate(timeout=PATIENCE)[1]
        return self.process.returncode, said


def expect_end(program, status):
    found, said = program.end()
    expect_equal(found, status, f"status ({said})")


def quits(program):
    program.press("^Tarnwick ", "alt+q")
    expect_end(program, 0)


# Each spoils a picture that is there.

def missing(file):
    file.unlink()


def empty(file):
    file.write_bytes(b"")


def cut_in_its_header(file):
    file.write_bytes(file.read_bytes()[:20])


def cut_in_the_middle(file):
    file.write_bytes(file.read_bytes()[:5000])


def a_text(file):
    file.write_text("no picture\n" * 100)


def of_another_size(file, width, height):
    bytes_before = file.read_bytes()
    size = width.to_bytes(4, "little", signed=True) + height.to_bytes(4, "little", signed=True)
    file.write_bytes(bytes_before[:18] + size + bytes_before[26:])


def far_too_large(file):
    of_another_size(file, 2**31 - 1, 2**31 - 1)


def large(file):
    of_another_size(file, 8000, 8000)


def flat(file):
    of_another_size(file, 30000, 1)


def of_no_width(file):
    of_another_size(file, 0, -1)


def a_folder(file):
    file.unlink()
    file.mkdir()


def a_fifo(file):
    file.unlink()
    os.mkfifo(file)


def with_spoilt_pictures(shop, spoil, told):
    """The program starts, tells once of a picture that is not there, and works."""
    folder = shop.folder / "program"
    shutil.copytree(shop.programs / "assets", folder / "assets")
    shutil.copy(shop.programs / "tarnwick", folder)
    for name in PICTURES:
        spoil(folder / "assets" / name)
    with screen() as (display, _), Program(shop, display, folder) as program:
        if told:
            program.press("^Error$", "Return")
        quits(program)
    step_of_state((shop.folder / "config" / STATE).read_bytes().decode())


def without_display(shop, **more):
    """One line, and no fault."""
    done = subprocess.run([shop.programs / "tarnwick"], env=environment(shop, **more),
                          capture_output=True, text=True, timeout=PATIENCE)
    expect_equal(done.returncode, 1, f"status ({done.stderr})")
    lines = done.stderr.splitlines()
    expect(len(lines) == 1 and lines[0].startswith("tarnwick: no window can be opened: "),
           f"what is said: {lines}")


@contextmanager
def in_use(shop, moving):
    """The program with its display, at rest or in a repeated move: once it has been ended from
    outside, what Quit would save must have been saved all the same."""
    state = shop.folder / "config" / STATE
    state.parent.mkdir(parents=True)
    shop.answers(f"statefile {state}", "start", f"set cboMoveStep {STEP}", "set chkLog 1",
                 "set chkRepeatedly 1", "set cboRefreshPeriod 0", "click cmdSaveState")
    with screen() as (display, server), Program(shop, display) as program:
        program.press("^Tarnwick ", *MOMENT, "space", "A", "J", "D", "Return", "F1")
        program.press("^Help$", "Escape")  # so that what was typed before has been taken
        if moving:
            program.press("^Tarnwick ", "alt+v")
            time.sleep(SOME_STEPS)
        yield program, server
    text = state.read_bytes().decode()
    expect_equal(step_of_state(text), STEP, "the step that was saved before")
    moment = float(text.splitlines()[0])
    expect(moment > float(MOMENT) if moving else moment == float(MOMENT), f"saved: {moment}")
    logs = additions((state.parent / "tnwk-log.txt").read_bytes().decode())
    expect(len(logs) == 1 and f"{int(MOMENT):,}.0000 AJD" in logs[0], f"kept: {logs}")


def display_goes(shop, moving):
    with in_use(shop, moving) as (program, server):
        server.kill()
        expect_end(program, 1)


def signalled(shop, number, moving):
    with in_use(shop, moving) as (program, _):
        program.process.send_signal(number)
        expect_end(program, -number)


def cases():
    for spoil, told in [(missing, True), (empty, False), (cut_in_its_header, False),
                        (cut_in_the_middle, False), (a_text, False), (far_too_large, False),
                        (large, False), (flat, False), (of_no_width, False), (a_folder, True),
                        (a_fifo, True)]:
        name = spoil.__name__.replace("_", " ")
        yield f"pictures: {name}", partial(with_spoilt_pictures, spoil=spoil, told=told)
    yield "display: none", without_display
    yield "display: one that does not answer", partial(without_display, DISPLAY=":4321")
    yield "display: of an unknown kind", partial(without_display, QT_QPA_PLATFORM="none")
    yield "display: goes", partial(display_goes, moving=False)
    yield "display: goes during a move", partial(display_goes, moving=True)
    for number in (signal.SIGTERM, signal.SIGHUP, signal.SIGINT):
        yield f"signal: {number.name}", partial(signalled, number=number, moving=False)
    yield "signal: during a move", partial(signalled, number=signal.SIGTERM, moving=True)
