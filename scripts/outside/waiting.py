"""Waiting for a state of something in another process, and processes that end with this one."""

import ctypes
import signal
import subprocess
import time

PR_SET_PDEATHSIG = 1
LIBC = ctypes.CDLL(None, use_errno=True)


class Failed(Exception):
    """What was wanted did not come; the message says what."""


def wait_for(what, ask, seconds=30):
    """Asks until the answer is true, and gives that answer."""
    end = time.monotonic() + seconds
    while True:
        answer = ask()
        if answer:
            return answer
        if time.monotonic() > end:
            raise Failed(f"waited {seconds} s in vain for {what}")
        time.sleep(0.05)  # the pause between two questions, not a guess at how long something takes


class Entered:
    """Used within a `with`: `enter` begins it, `leave` ends it, also when it has begun in part only."""

    def __enter__(self):
        try:
            self.enter()
        except BaseException:
            self.leave()
            raise
        return self

    def __exit__(self, *_):
        self.leave()


def _die_with_parent():
    LIBC.prctl(PR_SET_PDEATHSIG, signal.SIGTERM)


class Children:
    """Processes started here; stop() ends them, the youngest first. They end too when this process is killed.

    A child with a pipe for its input ends by itself when the pipe closes, and then cleans up behind itself."""

    def __init__(self):
        self._running = []

    def start(self, *command, **options):
        options.setdefault("stdin", subprocess.DEVNULL)
        options.setdefault("stdout", subprocess.DEVNULL)
        options.setdefault("stderr", subprocess.DEVNULL)
        has_pipe = options["stdin"] == subprocess.PIPE
        child = subprocess.Popen(command, preexec_fn=None if has_pipe else _die_with_parent, **options)
        self._running.append(child)
        return child

    def stop(self):
        while self._running:
            child = self._running.pop()
            if child.stdin:
                child.stdin.close()
            else:
                child.terminate()
            try:
                child.wait(5)
            except subprocess.TimeoutExpired:
                child.kill()
                child.wait()
            if child.stdout:
                child.stdout.close()
