"""Recorders, each killed at one instant of its take: while it begins, runs, pauses, goes on or is stopped."""

import collections
import os
import subprocess

from outside import sound
from outside.waiting import Failed

from . import killed

LONGEST = 5  # seconds
AROUND_STOP = 0.5  # seconds before and after it
MOST_AFTER_STOP = 0.05  # seconds that may be missing then: the encoder's last two frames

Kill = collections.namedtuple("Kill", "number how moment deeds")
Told = collections.namedtuple("Told", "what seconds heard")


def kills(random, count):
    """One of three takes is paused, and one of three is stopped about when it is killed."""
    for number in range(count):
        how, moment, deeds = random.choice(killed.SIGNALS), random.uniform(0, LONGEST), {}
        if number % 3 == 1:
            pause = random.uniform(0, LONGEST - 2)
            deeds = {"pause": pause, "resume": pause + random.uniform(0.1, 2)}
        elif number % 3 == 2:
            deeds = {"stop": random.uniform(AROUND_STOP, LONGEST - AROUND_STOP)}
            moment = deeds["stop"] + random.uniform(-AROUND_STOP, AROUND_STOP)
        yield Kill(number, how, moment, deeds)


def lost_by(tools, played, kill):
    """Gives what was heard and is not in the take."""
    path = os.path.join(tools.folder, f"take{kill.number}.m4a")
    slow = killed.slow_disk(tools, kill.number // 3)
    command = [tools.built("tests/torture/PausingRecorder"), path, *(f"{deed}:{1000 * when:.0f}" for deed, when in kill.deeds.items())]
    with subprocess.Popen(command, stdin=subprocess.DEVNULL, stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True,
                          env=os.environ | slow) as recorder:
        told, killer = _listen(recorder, played, kill)
        try:
            killed.expect_end(recorder, kill.how)
            lost = _judge(played, killer, told, killed.take_of(path))
        except Failed as failure:
            kept = tools.keep(os.path.basename(path), path) if os.path.exists(path) else "no file"
            raise Failed(f"{_words(kill, slow)}: {failure}; see {kept}") from None
    if lost.seconds > 1 or lost.elsewhere > killed.MOST_ELSEWHERE:
        tools.tell(f"{_words(kill, slow)}: {lost.seconds:.2f} s are lost, and it waited {lost.waited:.2f} s for a processor meanwhile; "
                   f"{lost.elsewhere:.2f} s where it begins or beside a pause")
    return lost


def _words(kill, slow):
    deeds = "".join(f", {deed} at {when:.2f} s" for deed, when in kill.deeds.items())
    return f"kill {kill.number} ({kill.how.name} at {kill.moment:.2f} s{deeds}{', slow disk' if slow else ''})"


def _listen(recorder, played, kill):
    """Until its death, which may cut its last line."""
    told, killer = [], None
    for line in recorder.stdout:
        if line.endswith("\n"):
            what, seconds = line.split()
            told.append(Told(what, float(seconds), played.now()))
            killer = killer or killed.Killer(played, recorder.pid, recorder.send_signal, kill.how, kill.moment)
    if not killer:
        raise Failed(f"the recorder did not begin: {recorder.communicate()[1]!r}")
    killer.join()
    return told, killer


def _judge(played, killer, told, take):
    recorded = max(one.seconds for one in told)
    pieces, begin = [], None
    for one in told:
        if one.what in ("begin", "resume"):
            begin = one.heard
        elif one.what in ("pause", "stop"):
            pieces.append(killed.Piece(begin, begin, one.heard))
            begin = None
    if begin is not None:
        pieces.append(killed.Piece(begin, begin, killer.heard))
    length = len(take) / sound.RATE
    if any(one.what == "stopped" for one in told) and recorded - length > MOST_AFTER_STOP:
        raise Failed(f"it was stopped, and {length:.2f} s of {recorded:.2f} s are there")
    return killed.lost_of(played, take, killer, pieces, recorded)
