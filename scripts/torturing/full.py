"""The disk is full: disks of every size, from none at all, on which lectures are recorded until nothing goes on them."""

import concurrent.futures
import contextlib
import ctypes
import itertools
import os
import queue
import subprocess

from outside import sound
from outside.waiting import Failed

from . import student
from .result import Result

EVENT = "disk full"
PROMISE = "nothing recorded so far; the row is still stored when there is room for it"
LARGEST = 4096  # KiB
STEP = 64
SHORT_STEPS = (0, 64, 192, 448)
BYTES_A_SECOND = 10000  # of a take, a little less than it needs
AT_A_TIME = 2
UNSAFE = 0.05  # seconds that may be missing at the end of a take: the encoder's last two frames
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
    stored = sum(1 for _, _, is_stored in tries if is_stored)
    return Result(not losses, f"{len(tries)} disks of 0 to {max(disks)[0]} KiB, half of them filled up by something else: at most {max(most, 0):.2f} s of what the window showed lost, "
                              f"{stored} rows stored, as soon as the disk was larger or the rest was gone")


def own_mounts():
    """What is mounted from here on is seen by this process and those that it starts, and ends with them."""
    libc = ctypes.CDLL(None, use_errno=True)
    if libc.unshare(CLONE_NEWNS) != 0 or libc.mount(b"none", b"/", None, MS_REC_PRIVATE, None) != 0:
        raise Failed(f"small disks need root: {os.strerror(ctypes.get_errno())}")


@contextlib.contextmanager
def small_disk(folder, size):
    os.makedirs(folder, exist_ok=True)
    # A tmpfs of no size at all has no limit: the smallest has one page.
    mount("-t", "tmpfs", "-o", f"mode=0700,size={max(size, 4)}k", "tmpfs", folder)
    try:
        yield
    finally:
        subprocess.run(["umount", "--lazy", folder], check=True)


def mount(*options):
    subprocess.run(["mount", *options], check=True)


def on_a_disk(tools, folders, size, is_crowded):
    """What was lost in words or nothing, how many seconds of sound, and whether the row was stored in the end."""
    folder = folders.get()
    try:
        with small_disk(folder, size + FILLER * is_crowded):
            return (None, *fill(tools, folder, size, is_crowded))
    except Failed as failure:
        return f"{size} KiB{' beside something else' if is_crowded else ''}: {failure}", 0, False
    finally:
        folders.put(folder)


def fill(tools, folder, size, is_crowded):
    """Records longer than there is room, saves, and makes room: the disk becomes larger, or something else on it goes."""
    who = student.Student(tools, folder)
    filler = os.path.join(folder, "filler")
    if is_crowded:
        with open(filler, "wb") as file:
            os.posix_fallocate(file.fileno(), 0, FILLER * 1024)
    seconds = size * 1024 // BYTES_A_SECOND + 20
    process = who.start("record:Kepler:%d" % seconds, "wait")
    line = process.stdout.readline()
    recorded = float(line.split()[1]) if line else 0.0
    process.stdout.readline()  # it is saved, as far as it can be, and waits
    full = longest(who.home)
    if is_crowded:
        os.remove(filler)
    else:
        mount("-o", "remount,size=64m", folder)
    who.end(process, "\n")
    who.do("wait")
    lost = recorded - min(full, longest(who.home))
    if lost > UNSAFE:
        raise Failed(f"the window showed {recorded:.2f} s, {recorded - lost:.2f} s are there")
    is_stored = "Kepler" in student.rows_of(who.home)
    if not is_stored and recorded > 0:
        raise Failed("the row was not stored when there was room")
    return lost, is_stored


def longest(home):
    return max((len(student.decoded(path)) for path in student.sounds_of(home)), default=0) / sound.RATE
