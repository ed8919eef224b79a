"""Something stands in the way of a file that the program writes."""
import errno
import os
import socket
import stat
import subprocess
from functools import partial
from itertools import count

from harness import (PATIENCE, Skipped, additions, as_a_user, everything_in, expect, expect_equal,
                     step_of_state)

EARLIER_STEP = 3
STEP = 5
LOG = "words of the log"
LOGGED = ["set chkLog 1", "click cmdMove", "click cmdViewLog", f"set frmLog.txbText {LOG}"]


class State:
    name = "state"
    file = "tnwk.usr"

    @staticmethod
    def earlier(shop):
        spare = shop.folder / "spare.usr"
        shop.answers(f"statefile {spare}", "start", f"set cboMoveStep {EARLIER_STEP}",
                     "click cmdSaveState")
        text = spare.read_bytes()
        spare.unlink()
        return text

    @staticmethod
    def commands(file):
        return [f"statefile {file}", "start", f"set cboMoveStep {STEP}", "click cmdSaveState",
                "get cboMoveStep"]

    shown = str(STEP)
    told = "exclamation|ok|Save state|Error when attempting to save the state: "

    @staticmethod
    def expect_saved(file, before):
        expect_equal(step_of_state(file.read_bytes().decode()), STEP, "the saved step")


class SavedLog:
    name = "saved log"
    file = "log.txt"

    @staticmethod
    def earlier(shop):
        return b"an earlier log\r\n"

    @staticmethod
    def commands(file):
        return ["start", *LOGGED, f"answer file {file}", "click frmLog.cmdSaveAs",
                "get frmLog.txbText"]

    shown = LOG
    told = "exclamation|ok|Save log|Error when attempting to save the log: "

    @staticmethod
    def expect_saved(file, before):
        expect_equal(file.read_bytes().decode(), LOG, "the saved log")


class KeptLog(SavedLog):
    name = "kept log"
    file = "tnwk-log.txt"

    @staticmethod
    def commands(file):
        return [f"statefile {file.parent / 'tnwk.usr'}", "start", *LOGGED, "close frmLog",
                "get frmLog.txbText"]

    @staticmethod
    def earlier(shop):
        return b"==== 2020-01-01 00:00:00 ====\r\n\r\nearlier\r\n\r\n"

    @staticmethod
    def expect_saved(file, before):
        kept = file.read_bytes()
        expect(kept.startswith(before), "what was kept earlier is gone")
        expect_equal(additions(kept[len(before):].decode()), [LOG], "what has been added")


# Each puts an obstacle at the file, in a folder that has nothing but a neighbour, and returns the
# file in which the text is to be found nevertheless.

def nothing(shop, file, earlier):
    return file


def a_file(shop, file, earlier):
    file.write_bytes(earlier)
    return file


def a_link(shop, file, earlier):
    file.symlink_to("far/file")
    (file.parent / "far").mkdir()
    return a_file(shop, file.parent / "far" / "file", earlier)


def a_dangling_link(shop, file, earlier):
    a_link(shop, file, earlier).unlink()
    return file.parent / "far" / "file"


def a_link_to_nowhere(shop, file, earlier):
    file.symlink_to("none/file")


def a_link_to_itself(shop, file, earlier):
    file.symlink_to(file.name)


def a_folder(shop, file, earlier):
    file.mkdir()


def a_fifo(shop, file, earlier):
    os.mkfifo(file)


def a_socket(shop, file, earlier):
    with socket.socket(socket.AF_UNIX) as listener:
        listener.bind(str(file))


def a_device(shop, file, earlier):
    """One of the case's own: a fault in the program must not reach those of the system."""
    try:
        os.mknod(file, stat.S_IFCHR | 0o666, os.makedev(1, 7))
    except PermissionError as error:
        raise Skipped(f"no device can be made here: {error}") from error


def a_read_only_file(shop, file, earlier):
    a_file(shop, file, earlier).chmod(0o444)


def a_secret_file(shop, file, earlier):
    a_file(shop, file, earlier).chmod(0)


def no_folder(shop, file, earlier):
    (file.parent / "neighbour").unlink()
    file.parent.rmdir()


def a_file_for_the_folder(shop, file, earlier):
    no_folder(shop, file, earlier)
    file.parent.write_bytes(b"neighbour")


def a_read_only_folder(shop, file, earlier):
    a_file(shop, file, earlier)
    file.parent.chmod(0o555)
    if subprocess.run(as_a_user("test", "-w", file.parent), timeout=PATIENCE).returncode == 0:
        raise Skipped("an administrator's powers cannot be laid down here")


def a_read_only_disk(shop, file, earlier):
    a_file(shop, file, earlier)
    subprocess.run(["mount", "-o", "remount,bind,ro", file.parent], check=True, timeout=PATIENCE)


def no_bytes_left(shop, file, earlier):
    a_file(shop, file, earlier)
    with open(file.parent / "filler", "wb", buffering=0) as filler:
        fill(lambda: filler.write(bytes(4096)))


def no_inodes_left(shop, file, earlier):
    a_file(shop, file, earlier)
    fillers = (file.parent / f"filler {i}" for i in count())
    fill(lambda: next(fillers).touch())


def one_inode_left(shop, file, earlier):
    no_inodes_left(shop, file, earlier)
    (file.parent / "filler 0").unlink()


def fill(add):
    while True:
        try:
            add()
        except OSError as error:
            expect_equal(error.errno, errno.ENOSPC, "error of a full disk")
            return


NO_FILE = "No such file or directory"
NO_SPACE = "No space left on device"
NOT_ORDINARY = "This is not an ordinary file."
DENIED = "Permission denied"
DISK = "size=64k,nr_inodes=16"

# What stands in the way; the options of the disk that it needs; what the user is told, where the
# text cannot be written.
TABLE = [
    (nothing, None, None),
    (a_file, None, None),
    (a_link, None, None),
    (a_dangling_link, None, None),
    (a_link_to_nowhere, None, NO_FILE),
    (a_link_to_itself, None, "Too many levels of symbolic links"),
    (a_folder, None, "This is a folder."),
    (a_fifo, None, NOT_ORDINARY),
    (a_socket, None, NOT_ORDINARY),
    (a_device, None, NOT_ORDINARY),
    (a_read_only_file, None, DENIED),
    (a_secret_file, None, DENIED),
    (no_folder, None, NO_FILE),
    (a_file_for_the_folder, None, "Not a directory"),
    (a_read_only_folder, None, DENIED),
    (a_read_only_disk, DISK, "Read-only file system"),
    (no_bytes_left, DISK, NO_SPACE),
    (no_inodes_left, DISK, NO_SPACE),
    (one_inode_left, DISK, NO_SPACE),
]


def run(shop, place, obstacle, disk, complaint):
    earlier = place.earlier(shop)
    folder = shop.folder / "folder"
    folder.mkdir()
    if disk:
        shop.mount(folder, "-t", "tmpfs", "-o", disk, "tmpfs")
    (folder / "neighbour").write_bytes(b"neighbour")
    file = folder / place.file
    written = obstacle(shop, file, earlier)
    if written and not written.exists():
        earlier = b""
    before = everything_in(shop.folder)
    save(shop, place, file, complaint)
    after = everything_in(shop.folder)
    if complaint is None:
        place.expect_saved(written, earlier)
        for state in before, after:
            state.pop(str(written.relative_to(shop.folder)), None)
    expect_equal(after, before, "what lies there")

    fillers = list(folder.glob("filler*"))
    for filler in fillers:
        filler.unlink()
    if fillers:  # there is room again
        save(shop, place, file, None)
        place.expect_saved(file, earlier)


def save(shop, place, file, complaint):
    *answers, end = shop.answers(*place.commands(file), "messages")
    told = [line for line in answers if line.startswith("exclamation")]
    if complaint is None:
        expect_equal(told, [], "what is told")
    else:
        expect_equal(told, [place.told + complaint], "what is told")
        expect(place.shown in answers, f"what could not be saved is no longer shown: {answers}")


def cases():
    for place in State, SavedLog, KeptLog:
        for obstacle, *row in TABLE:
            name = obstacle.__name__.replace("_", " ")
            yield f"{place.name}: {name}", partial(run, place=place, obstacle=obstacle,
                                                   disk=row[0], complaint=row[1])
