"""The disk is full: with room of every size left beside two lectures, from none at all, a third one is recorded until nothing
goes on the disk, and one that is stored is changed there."""

import concurrent.futures
import contextlib
import ctypes
import itertools
import os
import queue
import subprocess

from outside.waiting import Failed

from . import judged, student
from .result import Result
from .works import COMING_BACK, KEPLER, LIGHT, OPTICS, RECORDED, Work

EVENT = "disk full"
PROMISE = "nothing recorded so far; the row is still stored when there is room for it"
LARGEST = 4096  # KiB
STEP = 64
SHORT_STEPS = (0, 64, 192, 448)
BYTES_A_SECOND = 10000  # of a take, a little less than it needs
AT_A_TIME = 2
WORK = Work("recording and editing on a full disk", new=frozenset({KEPLER}), changed=(OPTICS, LIGHT))
BEFORE = 65536  # KiB of the disk until it becomes small, and again when there is room
FILLER = 2048  # KiB of something else that lies on the disk and is removed
CLONE_NEWNS = 0x20000
MS_REC_PRIVATE = 0x4000 | 0x40000


def run(tools, short):
    own_mounts()
    disks = list(itertools.product(SHORT_STEPS if short else range(0, LARGEST + 1, STEP), (False, True)))
    folders = queue.Queue()
    for number in range(AT_A_TIME):
        folders.put(os.path.join(tools.folder, f"disk{number}"))
    with concurrent.futures.ThreadPoolExecutor(AT_A_TIME) as pool:
        tries = list(pool.map(lambda disk: on_a_disk(tools, folders, *disk), disks))
    losses = [loss for loss, _, _ in tries if loss]
    for line in losses:
        tools.tell(line)
    most = max(lost for _, lost, _ in tries)
    heard = sum(1 for _, _, recorded in tries if recorded > 0)
    return Result(not losses, f"{len(tries)} disks with 0 to {max(disks)[0]} KiB left, half of them filled up by something else, {heard} of which took some sound: "
                              f"at most {max(most, 0):.2f} s of what the window showed lost, {len(tries) - len(losses)} times the row and the change of another "
                              f"stored, as soon as the disk was larger or the rest was gone")


def own_mounts():
    """What is mounted from here on is seen by this process and those that it starts, and ends with them."""
    libc = ctypes.CDLL(None, use_errno=True)
    if libc.unshare(CLONE_NEWNS) != 0 or libc.mount(b"none", b"/", None, MS_REC_PRIVATE, None) != 0:
        raise Failed(f"small disks need root: {os.strerror(ctypes.get_errno())}")


@contextlib.contextmanager
def small_disk(folder):
    os.makedirs(folder, exist_ok=True)
    mount("-t", "tmpfs", "-o", f"mode=0700,size={BEFORE}k", "tmpfs", folder)
    try:
        yield
    finally:
        subprocess.run(["umount", "--lazy", folder], check=True)


def leave_room(folder, size):
    """So many KiB beside what lies there."""
    disk = os.statvfs(folder)
    resize(folder, (disk.f_blocks - disk.f_bfree) * disk.f_frsize // 1024 + size)


def resize(folder, size):
    mount("-o", f"remount,size={size}k", folder)


def mount(*options):
    subprocess.run(["mount", *options], check=True)


def on_a_disk(tools, folders, size, is_crowded):
    """What was lost in words or nothing, how many seconds of sound, and how many were recorded."""
    folder = folders.get()
    try:
        with small_disk(folder):
            return (None, *fill(tools, folder, size, is_crowded))
    except Failed as failure:
        return f"{size} KiB{' beside something else' if is_crowded else ''}: {failure}", 0, 0
    finally:
        folders.put(folder)


def fill(tools, folder, size, is_crowded):
    """Records longer than there is room, saves, changes another lecture, and makes room: the disk becomes larger, or something else
    on it goes."""
    who = student.Student(tools, folder)
    who.do(*RECORDED)
    judgement = judged.Judgement(WORK, who.home)
    filler = os.path.join(folder, "filler")
    if is_crowded:
        with open(filler, "wb") as file:
            os.posix_fallocate(file.fileno(), 0, FILLER * 1024)
    leave_room(folder, size)
    seconds = size * 1024 // BYTES_A_SECOND + 20
    with who.start("later", f"record:{KEPLER}:{seconds}", f"edit:{OPTICS}:{LIGHT}", "wait") as process:
        recorded = shown(process)
        judgement.expect_sound_kept(recorded)
        if is_crowded:
            os.remove(filler)
        else:
            resize(folder, BEFORE)
        who.end(process, "\n")
    rows = student.rows_of(who.home)
    if KEPLER not in rows:
        raise Failed("the row was not stored when there was room")
    # What could not be written may have reset the table, of which there is a copy.
    if LIGHT not in {lecture.subject for lecture in student.lectures_of(who.home) + student.copied_lectures_of(who.home)}:
        raise Failed("the change of another lecture was not stored when there was room")
    judgement.expect_all_there(recorded, who.told(*COMING_BACK))
    if LIGHT not in student.rows_of(who.home):
        raise Failed("the change of another lecture did not come back")
    return recorded - (judged.seconds_of(rows[KEPLER]) if rows[KEPLER] else 0), recorded


def shown(process):
    """By the window while the lecture was recorded, in seconds. Returns when all was saved as far as it can be."""
    recorded = 0.0
    for line in process.stdout:
        what, *rest = line.split()
        if what == "recorded":
            recorded = float(rest[0])
        elif what == "waiting":
            break
    return recorded
