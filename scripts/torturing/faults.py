"""One call after the other fails, once: the second run has the second one fail, and so on until none is left.

Of the memory that is asked for, each piece that is asked for from somewhere else than all before, by the innermost sixteen of its callers."""

import collections
import concurrent.futures
import contextlib
import errno
import hashlib
import os
import queue
import shutil
import signal
import sqlite3
import subprocess

from outside.waiting import Failed, wait_for

from . import judged, student
from .result import Result
from .works import COMING_BACK, FAILING_NO_MORE, WORKS

EVENT = "every write, sync, rename, open, read, look into a folder, allocation failing once (ENOSPC, EIO, EINTR, short write, ENOMEM), one step further each time"
PROMISE = "nothing that was there before"
# Of the libraries that are driven through C. Qt and the C++ library end a program that has no memory left, and so does
# the sound server's: nobody can promise anything for those.
LIBRARIES = "libsqlite3 libavformat libavcodec libavutil libswresample"
ERRORS = {
    "write": (errno.ENOSPC, errno.EIO, errno.EINTR, "short"),
    "sync": (errno.EIO, errno.ENOSPC, errno.EINTR),
    "rename": (errno.ENOSPC, errno.EIO),
    "open": (errno.ENOSPC, errno.EIO, errno.EINTR, errno.ENOMEM),
    "read": (errno.EIO, errno.EINTR),
    "truncate": (errno.ENOSPC, errno.EIO, errno.EINTR),
    "unlink": (errno.ENOSPC, errno.EIO),
    "list": (errno.EMFILE, errno.EACCES, errno.EIO),
    "entry": (errno.EIO,),
    "memory": (errno.ENOMEM,),
}
Counts = collections.namedtuple("Counts", "calls places")  # by kind; and the numbers of those for memory that came from somewhere new
AT_A_TIME = 2
IN_SHORT = 1  # of each work and kind
# What the layer says when one of those does not look whether it got its memory.
ENDED_BY_LIBRARY = "ended by a library"
LOST_BY_END = 1.0  # seconds of a recording that runs then


def run(tools, short):
    desks = queue.Queue()
    for number in range(AT_A_TIME):
        desks.put(Desk(tools, number))
    with concurrent.futures.ThreadPoolExecutor(AT_A_TIME) as pool:
        calls = dict(zip(WORKS, pool.map(lambda work: on_a_desk(desks, lambda desk: desk.counts(work)), WORKS)))
        faults = list(all_faults(calls, tools.random, short, tools.all_memory))
        tried = list(pool.map(lambda fault: on_a_desk(desks, lambda desk: desk.lost_by(*fault)), faults))
    losses = [(fault, loss) for fault, (_, loss) in zip(faults, tried) if loss]
    for (name, loss), count in collections.Counter((fault[0].name, loss) for fault, loss in losses).most_common(20):
        tools.tell(f"{name}, {count} times: {loss}")
    if losses:
        tools.keep("losses.txt", "".join(f"{told(*fault)}: {loss}\n" for fault, loss in losses))
    struck = [fault for fault, (has_struck, _) in zip(faults, tried) if has_struck]
    refused = sum(1 for _, kind, _, _ in struck if kind == "memory")
    tools.tell(f"{len(struck)} of {len(faults)} faults struck: {dict(collections.Counter(kind for _, kind, _, _ in struck))}")
    ended = sum(desk.ended_by_library for desk in desks.queue)
    return Result(not losses, f"{len(struck)} faults in {len(WORKS)} works, and a start after each: {len(losses)} of them lost something, or left it twice; "
                  f"{refused} of them refused memory, {told_of_memory(calls)}"
                  + (f"; {len(faults) - len(struck)} more did not come about, since their work went another way" if len(struck) < len(faults) else "")
                  + (f"; {ended} times a library did not look whether it got its memory, which ended the program and cost what a kill costs" if ended else ""))


def told_of_memory(calls):
    asked = [counts for work, counts in calls.items() if asks_for_memory(work)]
    return f"which is asked for {sum(counts.calls['memory'] for counts in asked)} times, from {sum(len(counts.places) for counts in asked)} places in the works"


def asks_for_memory(work):
    """The student's start asks the same of SQLite as the whole program's."""
    return work.tasks is not None


def all_faults(calls, random, short, all_memory):
    """Work, kind, error and number of the call. Memory is refused to each place that asks for it once, else it would be days."""
    for work, counts in calls.items():
        for kind, errors in ERRORS.items():
            if kind == "memory" and not asks_for_memory(work):
                continue
            numbers = counts.places if kind == "memory" and not all_memory else range(1, counts.calls[kind] + 1)
            found = [(work, kind, error, number) for error in errors for number in numbers]
            yield from random.sample(found, min(IN_SHORT, len(found))) if short else found


def told(work, kind, error, number):
    return f"{work.name}, {kind} {number}, {errno.errorcode.get(error, error)}"


def on_a_desk(desks, act):
    """On the next one that is free."""
    desk = desks.get()
    try:
        return act(desk)
    finally:
        desks.put(desk)


def recorded_before(failure):
    """How many seconds have to be there though the program ended before its time."""
    said = getattr(failure, "said", [])
    may_be_lost = 0.0 if "stopped" in said else LOST_BY_END - judged.UNSAFE
    return max(0.0, student.recorded_of(said) - may_be_lost)


class Desk:
    """A folder with lectures in it, made anew for every fault."""

    def __init__(self, tools, number):
        self._tools = tools
        self._folder = os.path.join(tools.folder, f"desk{number}")
        self._count = self._folder + "-count"
        self._student = student.Student(tools, self._folder)
        self._prepared = {}  # a template and a judgement for each work
        self._judged = {}  # what became of a folder that was left so
        self.ended_by_library = 0

    def counts(self, work):
        self._perform(work, "")
        told = {kind: [int(number) for number in numbers] for kind, *numbers in map(str.split, self._told_by_layer())}
        places = sorted(told.pop("places"))
        return Counts({kind: count for kind, (count,) in told.items()}, places)

    def lost_by(self, work, kind, error, number):
        """Whether the call was made and failed; and what was lost in words, or nothing."""
        lost = self._lost_by(work, f"{kind} {error} {number}")
        return bool(self._told_by_layer()), lost

    def _lost_by(self, work, fault):
        try:
            recorded = self._perform(work, fault)
        except Failed as failure:
            lost = self._what_was_lost(work, recorded_before(failure))
            if ENDED_BY_LIBRARY in str(failure):
                self.ended_by_library += 1
                return lost
            return f"{failure}, {lost or 'and all is there after the next start'}"
        left = (work, recorded, self._state())
        if left not in self._judged:
            self._judged[left] = self._what_was_lost(work, recorded)
        return self._judged[left]

    def _told_by_layer(self):
        return student.content(self._count).decode().splitlines() if os.path.exists(self._count) else []

    def _what_was_lost(self, work, recorded):
        _, judgement = self._prepared[work]
        try:
            judgement.expect_nothing_lost(recorded)
            if work.spoiled:
                self._execute(FAILING_NO_MORE)
            said = self._student.told(*COMING_BACK)
        except Failed as failure:
            return str(failure)
        try:
            judgement.expect_all_there(recorded, said)
        except Failed as failure:
            return f"after the next start {failure}"
        return ""

    def _execute(self, statement):
        with contextlib.closing(sqlite3.connect(os.path.join(self._student.home, "TarveloInfo.db"))) as database, database:
            database.execute(statement)

    def _state(self):
        """Of two folders with the same in them the program makes the same."""
        state = hashlib.sha256()
        for root, folders, names in os.walk(self._student.home):
            folders.sort()
            for name in sorted(names):
                path = os.path.join(root, name)
                content = student.content(path)
                state.update(f"{os.path.relpath(path, self._student.home)} {len(content)}\n".encode() + content)
        return state.digest()

    def _prepare(self, work):
        if work in self._prepared:
            return
        shutil.rmtree(self._folder, ignore_errors=True)
        os.makedirs(self._folder)
        for session in work.before:
            self._student.do(*session)
        if work.spoiled:
            self._execute(work.spoiled)
        template = f"{self._folder}-before{len(self._prepared)}"
        shutil.copytree(self._folder, template)
        self._prepared[work] = template, judged.Judgement(work, self._student.home)

    def _perform(self, work, fault):
        self._prepare(work)
        student.renew(self._folder, self._prepared[work][0])
        with contextlib.suppress(FileNotFoundError):
            os.remove(self._count)
        layer = {"LD_PRELOAD": self._tools.built("tests/torture/OneFault.so"), "TORTURE_FAULT": fault, "TORTURE_FOLDER": self._student.home,
                 "TORTURE_LIBRARIES": LIBRARIES, "TORTURE_COUNT": self._count}
        if not work.tasks or "begin" not in work.tasks:
            layer["TORTURE_BEGIN"] = "1"
        return self._start_program(layer) if work.tasks is None else self._student.do(*work.tasks, **layer)

    def _start_program(self, layer):
        """The whole program, without a screen, until it shows its day or cannot; then it is asked to end."""
        environment = {"PATH": os.environ["PATH"], "HOME": self._folder, "XDG_DATA_HOME": self._folder, "XDG_CONFIG_HOME": self._folder + "/config",
                       "XDG_CACHE_HOME": self._folder + "/cache", "XDG_RUNTIME_DIR": self._folder + "/run", **student.ENVIRONMENT}
        os.makedirs(environment["XDG_RUNTIME_DIR"], mode=0o700)
        process = subprocess.Popen([self._tools.program], env=environment | layer, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE,
                                   stderr=subprocess.STDOUT, text=True)
        with contextlib.suppress(Failed):
            wait_for("the day", lambda: process.poll() is not None or self._holds_database(process.pid), 10)
        process.send_signal(signal.SIGTERM)
        said = [line for line in process.communicate(timeout=60)[0].splitlines() if line != "This plugin does not support raise()"]
        # A slow machine may ask it to end before it listens.
        if process.returncode not in (0, -signal.SIGTERM) or said:
            raise Failed(f"it ended with {process.returncode} and said {said[:3]}")
        return 0.0

    @staticmethod
    def _holds_database(pid):
        folder = f"/proc/{pid}/fd"
        with contextlib.suppress(OSError):
            return any(os.readlink(os.path.join(folder, name)).endswith("TarveloInfo.db") for name in os.listdir(folder))
        return False
