"""How long a process was ready to go on and got no processor, in the kernel's own words (schedstat)."""

import contextlib
import os
import threading
import time

INTERVAL = 0.05  # seconds between two looks


@contextlib.contextmanager
def watched(pid, now, counts=lambda _: True):
    """Looks all the time meanwhile, with the moment that `now` gives."""
    waited = Waited(pid, counts)
    over = threading.Event()

    def watch():
        while not over.wait(INTERVAL):
            waited.look(now())

    watcher = threading.Thread(target=watch)
    watcher.start()
    try:
        yield waited
    finally:
        over.set()
        watcher.join()


class Waited:
    """Of one process, by looks at it from time to time. What it sleeps, or waits for a disk or a lock, is not counted.
    Of its threads those are looked at whose folder in /proc `counts` says true to."""

    def __init__(self, pid, counts=lambda _: True):
        self._folder = f"/proc/{pid}/task"
        self._counts = counts
        self._looks = []  # (moment, {thread: seconds})
        self._ready = {}  # thread: (its turns until now, since when it is known to be ready without another one)

    def look(self, moment):
        """`moment` is any clock's."""
        now = time.monotonic()
        threads = {}
        try:
            there = os.listdir(self._folder)
        except OSError:  # it has ended
            return
        for thread in there:
            with contextlib.suppress(OSError):  # it has ended
                if self._counts(os.path.join(self._folder, thread)):
                    threads[thread] = self._of(thread, now)
        self._looks.append((moment, threads))

    @property
    def threads(self):
        """All that were looked at."""
        return {thread for _, threads in self._looks for thread in threads}

    def since(self, moment):
        """Of the thread that waited longest from the first look at or after the moment to the last one: at least so many seconds."""
        later = [threads for when, threads in self._looks if when >= moment]
        if not later:
            return 0.0
        first, last = later[0], later[-1]
        return max((last[thread] - first[thread] for thread in last if thread in first), default=0.0)

    def _of(self, thread, now):
        """Before its last turn, and since then as far as that was seen."""
        ran, waited, turns = self._read(thread, "schedstat").split()
        is_ready = self._read(thread, "stat").rpartition(")")[2].split()[0] == "R"
        before, since = self._ready.get(thread, (None, now))
        if not is_ready:
            self._ready.pop(thread, None)
            return int(waited) / 1e9
        if (ran, turns) != before:
            since = now
        self._ready[thread] = ((ran, turns), since)
        return int(waited) / 1e9 + now - since

    def _read(self, thread, name):
        with open(os.path.join(self._folder, thread, name), encoding="utf-8") as file:
            return file.read()
