"""How long a process was ready and got no processor."""

import os
import subprocess
import sys
import unittest

sys.path.insert(0, os.path.join(os.path.dirname(os.path.abspath(__file__)), "..", "..", "scripts"))
sys.dont_write_bytecode = True

from outside.waiting import wait_for  # noqa: E402  (found by the path set above)
from torturing.waited import INTERVAL, Waited  # noqa: E402

BUSY = "while True: pass"


class WaitedTest(unittest.TestCase):
    def test_one_that_sleeps_waits_for_no_processor(self):
        looks = Looks(self._asleep())

        wait_for("ten looks", looks.are_ten)

        self.assertEqual(looks.waited.since(0), 0)

    def test_one_that_another_keeps_from_going_on_waits(self):
        processor = {min(os.sched_getaffinity(0))}
        looks = Looks(self._start(sys.executable, "-c", BUSY, preexec_fn=lambda: idle_on(processor)))
        self._start(sys.executable, "-c", BUSY, preexec_fn=lambda: os.sched_setaffinity(0, processor))

        wait_for("it to have waited", lambda: looks.another().since(0) > 5 * INTERVAL)

        self.assertLessEqual(looks.waited.since(looks.count - 1), looks.waited.since(0))

    def test_a_thread_that_is_not_asked_about_does_not_count(self):
        process = self._asleep()
        waited = Waited(process.pid, lambda thread: os.path.basename(thread) != str(process.pid))

        waited.look(0)
        waited.look(1)

        self.assertEqual(waited.threads, set())

    def test_what_was_before_does_not_count(self):
        looks = Looks(self._asleep())

        wait_for("ten looks", looks.are_ten)

        self.assertEqual(looks.waited.since(looks.count + 1), 0)

    def _asleep(self):
        """Also its start is over."""
        process = self._start("sleep", "1000")
        wait_for("it to sleep", lambda: state_of(process) == "S")
        return process

    def _start(self, *command, **options):
        process = subprocess.Popen(command, stdin=subprocess.DEVNULL, **options)
        self.addCleanup(process.wait)
        self.addCleanup(process.kill)
        return process


class Looks:
    """By a clock that counts them."""

    def __init__(self, process):
        self.waited = Waited(process.pid)
        self.count = 0

    def another(self):
        self.waited.look(self.count)
        self.count += 1
        return self.waited

    def are_ten(self):
        self.another()
        return self.count >= 10


def state_of(process):
    with open(f"/proc/{process.pid}/stat", encoding="utf-8") as file:
        return file.read().rpartition(")")[2].split()[0]


def idle_on(processor):
    os.sched_setaffinity(0, processor)
    os.sched_setscheduler(0, os.SCHED_IDLE, os.sched_param(0))


if __name__ == "__main__":
    unittest.main()
