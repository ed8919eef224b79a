"""Programs that are killed while they save, and programs that save at the same time."""
import os
import random
import subprocess
import time
from concurrent.futures import ThreadPoolExecutor
from functools import partial

from harness import additions, expect, expect_equal, step_of_state

STEPS = 15  # that are saved in turn
LONGEST_RUN = 0.006  # seconds from the first save to the kill
LONG_AGO = 2 * 24 * 3600  # seconds; a draft may be in use for a day
SAVE = "".join(f"set cboMoveStep {step}\nclick cmdSaveState\nget cboMoveStep\n"
               for step in range(STEPS))
ADD = "click cmdMove\nclick cmdViewLog\nclose frmLog\nget frmMain.Visible\n"


def killed(shop, start, repeated, at):
    """The answers of a driver that was killed some time after the first one to `repeated`."""
    with subprocess.Popen(shop.driver_command(), stdin=subprocess.PIPE, stdout=subprocess.PIPE,
                          text=True) as program:
        try:
            program.stdin.write(start + repeated * 20)
            program.stdin.flush()
            answers = program.stdout.readline() + program.stdout.readline()
            time.sleep(at.uniform(0, LONGEST_RUN))
        finally:
            program.kill()
        return (answers + program.stdout.read()).splitlines()


def left_in(folder):
    return list(folder.glob(".tnwk-*"))


def forget(folders, seconds):
    """As if they had been left behind so long ago."""
    then = time.time() - seconds
    for folder in folders:
        os.utime(folder, (then, then))


def make_folder(shop, name):
    folder = shop.folder / name
    folder.mkdir()
    (folder / "neighbour").write_bytes(b"neighbour")
    return folder


def expect_only(folder, file):
    names = sorted(path.name for path in folder.iterdir())
    expect_equal(names, ["neighbour", file], "what lies in the folder")
    expect_equal((folder / "neighbour").read_bytes(), b"neighbour", "the neighbour")


def save_and_be_killed(shop, rounds, worker):
    """The state is that of the last save that was done, or of the one in which the kill came."""
    folder = make_folder(shop, f"folder {worker}")
    file = folder / "tnwk.usr"
    start = f"statefile {file}\nstart\nget cboMoveStep\n"
    at = random.Random(worker)
    saved = step_of_state_after(shop, start, file)
    for _ in range(rounds):
        restored, *answers = map(int, killed(shop, start, SAVE, at))
        expect_equal(restored, saved, "step at the start")
        saved = step_of_state(file.read_bytes().decode())
        last = answers[-1]
        expect(saved in (last, (last + 1) % STEPS), f"step {saved} after {last} was saved")
    left = left_in(folder)
    forget(left, LONG_AGO)
    step_of_state_after(shop, start, file)
    expect_only(folder, file.name)
    return len(left)


def step_of_state_after(shop, start, file):
    shop.answers(*start.splitlines(), "click cmdSaveState")
    return step_of_state(file.read_bytes().decode())


def killed_while_it_saves(shop, rounds):
    workers = range(os.cpu_count())
    with ThreadPoolExecutor(len(workers)) as pool:
        share = rounds // len(workers) + 1
        left = sum(pool.map(partial(save_and_be_killed, shop, share), workers))
    expect(left, "no kill came within a save")


def killed_while_it_keeps_logs(shop, rounds):
    folder = make_folder(shop, "folder")
    file = folder / "tnwk-log.txt"
    start = f"statefile {folder / 'tnwk.usr'}\nstart\nset chkLog 1\nget chkLog\n"
    at = random.Random(1)
    before, struck = "", 0
    for _ in range(rounds):
        done = len(killed(shop, start, ADD, at)) - 1
        text = file.read_bytes().decode()
        expect(text.startswith(before), "what was kept earlier is gone")
        added = additions(text[len(before):])
        expect(all(log.endswith("%).") for log in added), f"a log is cut: {added}")
        expect(len(added) in (done, done + 1), f"{len(added)} logs where {done} were kept")
        before = text
        left = left_in(folder)
        struck += bool(left)
        forget(left, LONG_AGO)
    expect(struck, "no kill came while a log was kept")
    expect_equal(shop.answers(*start.splitlines(), *ADD.splitlines(), "messages"), ["1", "1", "."],
                 "what the next program says")
    expect_only(folder, file.name)


def waits_for_one_that_was_killed(shop):
    """It cannot know that the other is not there any more: it waits, but not for long."""
    folder = make_folder(shop, "folder")
    turn = folder / ".tnwk-turn-0123456789abcdef"
    turn.mkdir()
    forget([turn], 8)
    answers = shop.answers(f"statefile {folder / 'tnwk.usr'}", "start", "set chkLog 1",
                           *ADD.splitlines(), "messages")
    expect_equal(answers, ["1", "."], "what the next program says")
    expect_only(folder, "tnwk-log.txt")


def many_at_once(shop, programs, rounds):
    """Each starts, logs and quits, over and over, in the same folder."""
    folder = make_folder(shop, "folder")
    file = folder / "tnwk.usr"

    def use(number):
        commands = [f"statefile {file}"]
        for at in range(rounds):
            commands += ["start", f"set cboMoveStep {number}", "set chkLog 1", "click cmdMove",
                         "click cmdViewLog", f"set frmLog.txbText {number}: {at}", "click cmdQuit"]
        return shop.answers(*commands, "start", "messages")

    with ThreadPoolExecutor(programs) as pool:
        for told in pool.map(use, range(programs)):
            expect_equal(told, ["."], "what is told")
    expect(step_of_state(file.read_bytes().decode()) < programs, "a step that nobody has saved")
    kept = folder / "tnwk-log.txt"
    logs = additions(kept.read_bytes().decode())
    for number in range(programs):
        own = [log for log in logs if log.startswith(f"{number}: ")]
        expect_equal(own, [f"{number}: {at}" for at in range(rounds)], "the logs of a program")
    expect_equal(len(logs), programs * rounds, "number of logs")
    kept.unlink()
    expect_only(folder, file.name)


def cases():
    yield "1000 kills during a save", partial(killed_while_it_saves, rounds=1000)
    yield "200 kills while a log is kept", partial(killed_while_it_keeps_logs, rounds=200)
    yield "a log is kept after a kill", waits_for_one_that_was_killed
    yield "4 programs save and quit at once", partial(many_at_once, programs=4, rounds=25)
