#!/usr/bin/env python3
"""Shows whether two builds of the program behave alike, to the last control.

    walks.py record DRIVER FOLDER [N] [SEED]
    walks.py compare FOLDER OTHER [--without-enabled]

"record" carries out N random walks over all windows, and every flow of tests/flows, by the driver
and writes what they show into the folder, a file each. "compare" names the first difference of each
file; OTHER is another such folder, or a driver, which then repeats the commands of the first.

In a file a step is a line "> COMMAND", the answers (the command's own, then the messages, the
clipboard and the history) after two blanks each, and after "= " the lines of "dump" that changed.
"""
import random
import re
import subprocess
import sys
import tempfile
from itertools import zip_longest
from pathlib import Path

KINDS = "frm cmd opt chk cbo lbl img txb".split()
FLOWS = Path(__file__).parent.parent / "flows"
DAYS = ["", "1", "-1", "001", "29.5", "1,000.5", "36525", "+-5", "x", "1e9", "0", "-2,000,000"]
ENTRIES = ["{y}-{m:02}-{d:02} CE", "{y}-{m:02}-{d:02}", "{y}-{m}-{d} JC", "{any}-{m:02}-{d:02} CE",
           "4{y2}0-{m}-{d} ARC", "33-{s}-{m}-{d} SD", "{s}-{m}-{s2}-1 LLT", "1-{y2}-{m}-{d} KSG",
           "5{y2}0-{m}-{s2}-2 OLW", "{ajd}.{d} AJD", "{ajd} CJD", "{ajd}", "", " ", "x", "12:30",
           "2023-02-29 CE", "99999999999-1-1", "größe", "552282.9 AJD", "552283 AJD",
           "3912515 AJD", "3912515.0001 AJD", "2024.1.1 CE"]


def entry(at):
    text = at.choice(ENTRIES).format(
        y=at.randint(1500, 2500), y2=at.randint(10, 99), m=at.randint(1, 12), d=at.randint(1, 30),
        s=at.randint(1, 60), s2=at.randint(1, 4), any=at.randint(-3300, 6100),
        ajd=at.randint(552283, 3912515))
    return text + at.choice(["", "", " 06:30", " 23:59"])


def single(at, names):
    """One command on any control or window, often one that is refused at the time."""
    named = {kind: at.choice(names[kind]) for kind in KINDS}
    inside = at.choice(["press frmMain 27", "click cmdStop", "close frmMain", "dump"])
    answer = at.choice(["ok", "cancel", "yes", "no", "file", "file saved", "file nowhere/saved"])
    return [at.choice([
        f"click {named['cmd']}", f"click {named['cmd']}", f"click {named['opt']}",
        f"click {named['chk']}", f"click {named['lbl']}", f"click {named['img']}",
        f"set {named['cbo']} {at.randrange(16)}", f"set cboTimeZone {at.randrange(50)}",
        f"set frmHelp.lstPages {at.randrange(10)}", f"set {named['txb']} {at.choice(DAYS)}",
        f"set {named['txb']} {entry(at)}", f"set txbDate {entry(at)}", "start",
        f"press {at.choice([named['frm'], named['txb']])} {at.choice([13, 27])}",
        f"close {named['frm']}", f"minimise {named['frm']}", f"answer {answer}",
        f"select {named['txb']} {at.randrange(4)} {at.randrange(9)}", f"mouseup {named['txb']}",
        f"tick {at.randint(1, 4)}", f"during {at.randint(1, 3)} {inside}"])]


def scene(at, names):
    """Commands that belong together."""
    move = [at.choice(["tick", "tick 3", "click cmdPauseResume", "set cboRefreshPeriod 0",
                       *single(at, names)]) for _ in range(at.randint(1, 7))]
    end = at.choice(["click cmdStop", "click cmdStop", "click cmdPauseResume", "close frmMain"])
    leave = at.choice(["click cmdMove", "click optLocal", f"set txbDate {entry(at)}"])
    any_year = at.randint(-3200, 5990)
    side = at.choice(["Left", "Top", "Width", "Height"])
    moment, step, target = entry(at), at.randrange(20), at.choice([at.randrange(16), 6, 13])
    clock = (f"20{at.randint(10, 60)}-{at.randint(1, 12):02}-{at.randint(1, 28):02} "
             f"{at.randrange(24):02}:30:15 {at.randrange(-600, 601, 30)}")
    return at.choice([
        [f"set txbDate {moment}", "click cmdCompute"],
        [f"set txbDate {moment}", f"set txbPlusMinus {at.choice(DAYS)}", "press txbDate 13"],
        [f"set cboMoveStep {step}", "click cmdMove", "click cmdMove"],
        ["set chkRepeatedly 1", "click cmdMove", *move, end, "set chkRepeatedly 0"],
        [f"set cboTarget {target}", "click cmdSearch", "click cmdSearch"],
        ["set cboTarget 6", "click cmdSearch", f"set cboTarget {at.choice([6, 13])}", leave,
         f"click {at.choice(['optNext', 'optPrevious'])}", "click cmdSearch"],
        ["click cmdLogThisResult", "click cmdViewLog", "select frmLog.txbText 3 9",
         f"resize frmLog {at.randint(3000, 20000)} {at.randint(2000, 9000)}",
         f"get frmLog.txbText.{side}", f"get frmLog.cmdClose.{side}"],
        [f"set cboHistory {at.randrange(8)}", "click cmdDisplayCalendar"],
        [f"now {clock}", "tick", "click cmdNow"],
        ["click cmdSky", f"set frmSky.cboPlace {at.randrange(190)}", "tick frmSky.tmrMap 40",
         f"point frmSky.drwMap {at.random():.3f} {at.random():.3f}",
         f"set frmSky.cboSeenEclipse {at.choice([0, 1, 3])}", "click frmSky.cmdNextHere"],
        ["click cmdLists", f"set frmLists.cboKind {at.randrange(6)}",
         f"set frmLists.txbFrom {any_year}-01-01 CE",
         f"set frmLists.txbTo {any_year + at.randint(-1, 9)}-12-31 CE", "click frmLists.cmdList",
         "click frmLists.cmdStopList", f"sort frmLists.tblList {at.randrange(5)}",
         f"click frmLists.chkColumn({at.randrange(5)})", f"set frmLists.tblList {at.randrange(3)}",
         at.choice(["press frmLists.tblList 13", "answer file saved", "dump"]),
         f"click frmLists.{at.choice(['cmdSaveCSV', 'cmdSaveCalendar', 'cmdPrintList'])}"],
        ["click cmdHelp", f"set frmHelp.lstPages {target}", "click frmHelp.cmdCredits"],
        ["click cmdLogPreferences", "click frmLogPreferences.cmdClearAll", "set chkLog 1",
         f"click {at.choice(names['chk'])}", f"click {at.choice(names['chk'])}", "click cmdReset"],
        [at.choice(["click cmdSaveState", "answer no", "click cmdNow"]),
         at.choice(["click cmdQuit", "close frmMain"]), "start"]])


def walk(seed, names):
    at = random.Random(seed)
    commands = ["now 2024-03-05 12:34:56 60", "statefile state.txt", "start"]
    while len(commands) < 100:
        commands += at.choice([scene, single, single])(at, names)
    return commands


def controls(driver):
    """The windows, and the controls of each kind as "form.control"."""
    dump = subprocess.run([driver], input="start\ndump\n", stdout=subprocess.PIPE, encoding="utf-8")
    found = re.findall(r"(?m)^(\w+)\|([^|]+)\|.*\|", dump.stdout)
    names = {kind: [".".join(name) for name in found if name[1].startswith(kind)] for kind in KINDS}
    return names | {"frm": sorted({form for form, _ in found})}


def record(driver, commands, file):
    """Writes the steps of the commands and, as the last, what they left on the disc."""
    looks = ["messages", "clipboard", "items cboHistory", "#", "dump", "#"]
    lines = [line for command in commands for line in [command, *looks]]
    with tempfile.TemporaryDirectory() as folder:
        done = subprocess.run([driver], input="\n".join(lines) + "\n", stdout=subprocess.PIPE,
                              encoding="utf-8", errors="replace", cwd=folder, timeout=300)
        left = [f"exit status {done.returncode}"]
        for path in sorted(Path(folder).iterdir()):
            left += [path.name, *path.read_text(encoding="utf-8", errors="replace").splitlines()]
    # The driver does not know the command "#": its answer marks the places.
    parts = [part.splitlines() for part in done.stdout.split("error: unknown command: #\n")]
    text, shown = "", set()
    for command, answers, dump in zip(commands, parts[::2], parts[1::2]):
        text += f"> {command}\n" + "".join(f"  {line}\n" for line in answers)
        text += "".join(f"= {line}\n" for line in dump if line not in shown)
        shown = set(dump)
    left += parts[-1]
    file.write_text(text + "> (end)\n" + "".join(f"  {line}\n" for line in left), encoding="utf-8")


def steps(file, without_enabled):
    """The lines of each step; without Enabled also without those in which nothing else changed."""
    found, shown = [], {}
    for line in file.read_text(encoding="utf-8").split("\n"):
        if line.startswith("> "):
            found.append([])
        fields = re.fullmatch(r"(= (\w+\|[^|]+)\|.*\|)[01](\|[01]\|#[0-9a-f]{6}\|.*)", line)
        if without_enabled and fields:
            line = fields[1] + fields[3]
            if shown.get(fields[2]) == line:
                continue
            shown[fields[2]] = line
        found[-1].append(line)
    return found


def difference(old, new, without_enabled):
    """The first difference of two files, in words; empty if there is none."""
    pairs = zip_longest(steps(old, without_enabled), steps(new, without_enabled), fillvalue=[""])
    for number, (before, after) in enumerate(pairs, 1):
        for left, right in zip_longest(before, after, fillvalue="nothing"):
            if left != right:
                return f"step {number} {before[0]}\n    was {left}\n    is  {right}"
    return ""


def compare(folder, other, without_enabled):
    differing = 0
    with tempfile.TemporaryDirectory() as repeated:
        for old in sorted(folder.iterdir()):
            new = other / old.name
            if other.is_file():
                new = Path(repeated) / old.name
                commands = re.findall("^> (.*)\n", old.read_text(encoding="utf-8"), flags=re.M)
                record(other, commands[:-1], new)
            found = difference(old, new, without_enabled) if new.exists() else "missing"
            if found:
                differing += 1
                print(f"{old.name}: {found}")
    print(f"{differing} of {len(list(folder.iterdir()))} differ")
    return differing > 0


def main():
    if len(sys.argv) < 4 or sys.argv[1] not in ("record", "compare"):
        sys.exit(__doc__)
    task, first, second = sys.argv[1], Path(sys.argv[2]).resolve(), Path(sys.argv[3]).resolve()
    if task == "compare":
        return compare(first, second, "--without-enabled" in sys.argv)
    second.mkdir(parents=True, exist_ok=True)
    count, seed = (sys.argv[4:] + ["300", "1"][len(sys.argv) - 4:])
    names = controls(first)
    for number in range(int(count)):
        record(first, walk(f"{seed}/{number}", names), second / f"walk{number:04}")
    for flow in sorted(FLOWS.glob("*.flow")):
        commands = re.findall("^> (.*)\n", flow.read_text(encoding="utf-8"), flags=re.M)
        record(first, commands, second / flow.name)
    return 0


if __name__ == "__main__":
    sys.exit(main())
