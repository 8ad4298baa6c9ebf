"""The program is killed while it records."""

import concurrent.futures
import os
import signal
import subprocess

from outside import sound
from outside.desktop import Desktop
from outside.waiting import Failed

from .played import Played
from .result import Result

EVENT = "SIGKILL, crash, abort at any instant of a recording"
PROMISE = "the last 1.0 s of sound"
MOST_LOST = 1.0
AT_A_TIME = 4
SIGNALS = (signal.SIGKILL, signal.SIGKILL, signal.SIGKILL, signal.SIGABRT, signal.SIGSEGV)


def run(tools, short):
    kills = [(number, tools.random.choice(SIGNALS), tools.random.uniform(1.1, 5)) for number in range(12 if short else 180)]
    with Desktop(tools.folder), sound.SoundServer(), Played(tools.random, tools.folder) as played:
        with concurrent.futures.ThreadPoolExecutor(AT_A_TIME) as pool:
            tries = [pool.submit(_kill_recorder, tools, played, *kill) for kill in kills]
            lost = [attempt.result() for attempt in tries]
    tools.tell(f"{len(lost)} recorders killed, at most {max(lost):.2f} s lost, {sum(lost) / len(lost):.2f} s on average")
    return Result(max(lost) <= MOST_LOST, f"{len(lost)} kills, at most {max(lost):.2f} s of sound lost, {sum(lost) / len(lost):.2f} s on average")


def _kill_recorder(tools, played, number, how, moment):
    """Gives the seconds that were heard and are not in the take."""
    path = os.path.join(tools.folder, f"take{number}.m4a")
    recorder = subprocess.Popen([tools.built("tests/audio/engine/RecordUntilKilled"), path], stdin=subprocess.DEVNULL,
                                stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True)
    recorded = 0.0
    for line in recorder.stdout:
        recorded = float(line)
        if recorded >= moment:
            break
    heard = played.now()
    recorder.send_signal(how)
    said = recorder.communicate()[1]
    try:
        if said or recorder.returncode != -how:
            raise Failed(f"the recorder ended with {recorder.returncode} and said {said!r}")
        take = sound.samples(path)
        # The witness may lag a little on a busy machine, and then the recorder's own word is the harder one.
        return max(heard - played.span(take, heard)[1], recorded - len(take) / sound.RATE)
    except Failed as failure:
        raise Failed(f"kill {number} ({how.name} at {recorded:.2f} s): {failure}; see {tools.keep(os.path.basename(path), path)}")
