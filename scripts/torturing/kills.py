"""The program is killed while it records."""

import collections
import concurrent.futures
import json
import os
import re
import shutil
import signal
import subprocess
import time

from outside import names, sound
from outside.desktop import Desktop
from outside.waiting import Failed

from . import student
from .played import Played
from .result import Result
from .sitting import Sitting
from .waited import watched

EVENT = "SIGKILL, crash, abort at any instant of a recording"
PROMISE = "the last 1.0 s of sound; no notes older than 5 s, no time tag"
MOST_LOST = 1.0
NOTES_SAFE = 5.0
TIME_TAG = re.compile(r"\d\d:\d\d:\d\d")
AT_A_TIME = 4
SLOW = 4  # every so many recorders write to a slow disk
SLOWNESS = "1500"  # milliseconds until it has taken what is forced to it
SIGNALS = (signal.SIGKILL, signal.SIGKILL, signal.SIGKILL, signal.SIGABRT, signal.SIGSEGV)

Lost = collections.namedtuple("Lost", "seconds waited")  # waited for a processor meanwhile, which nobody can write without


def run(tools, short):
    of_recorder = [(number, tools.random.choice(SIGNALS), tools.random.uniform(1.1, 5)) for number in range(12 if short else 170)]
    of_program = [(number, tools.random.choice(SIGNALS), tools.random.uniform(1.1, 9)) for number in range(2 if short else 30)]
    with Desktop(tools.folder) as desktop, sound.SoundServer(), Played(tools.random, tools.folder) as played:
        with concurrent.futures.ThreadPoolExecutor(AT_A_TIME) as pool:
            tries = [pool.submit(_kill_recorder, tools, played, *kill) for kill in of_recorder]
            lost = [attempt.result() for attempt in tries]
        tools.tell(f"{len(lost)} recorders killed, at most {max(lost).seconds:.2f} s lost, {_average(lost):.2f} s on average")
        sitting = Sitting(tools, desktop, played)
        try:
            of_notes = [_kill_program(tools, sitting, played, *kill) for kill in of_program]
        finally:
            sitting.program.stop()
        sitting.program.expect_silence()
    lost += [of_sound for of_sound, _ in of_notes]
    notes = max(of_typing for _, of_typing in of_notes)
    held = all(one.seconds - one.waited <= MOST_LOST for one in lost)
    starved = sum(1 for one in lost if one.seconds > MOST_LOST)
    without = f" ({starved} times more than {MOST_LOST} s, for which there was no processor)" if held and starved else ""
    return Result(held and notes <= NOTES_SAFE,
                  f"{len(lost)} kills, {len(of_notes)} of them of the whole program: at most {max(lost).seconds:.2f} s of sound, {_average(lost):.2f} s on "
                  f"average{without}; at most {notes:.1f} s of notes; no time tag")


def _tell_of_more(tools, lost, what):
    if lost.seconds > MOST_LOST:
        tools.tell(f"{what}; {lost.seconds:.2f} s are lost, and it waited {lost.waited:.2f} s for a processor meanwhile")


def _average(lost):
    return sum(one.seconds for one in lost) / len(lost)


def _kill_recorder(tools, played, number, how, moment):
    """Gives the seconds that were heard and are not in the take."""
    path = os.path.join(tools.folder, f"take{number}.m4a")
    slow = {"LD_PRELOAD": tools.built("tests/torture/SlowDisk.so"), "TORTURE_SLOWNESS": SLOWNESS} if number % SLOW == 0 else {}
    recorder = subprocess.Popen([tools.built("tests/audio/engine/RecordUntilKilled"), path], stdin=subprocess.DEVNULL,
                                stdout=subprocess.PIPE, stderr=subprocess.PIPE, text=True, env=os.environ | slow)
    recorded = 0.0
    with watched(recorder.pid, played.now) as waited:
        for line in recorder.stdout:
            recorded = float(line)
            if recorded >= moment:
                break
    heard = played.now()
    recorder.send_signal(how)
    # It may have told more by then; death may have cut its last line.
    recorded = max([recorded, *(float(line) for line in recorder.stdout.read().split("\n")[:-1])])
    said = recorder.communicate()[1]
    try:
        if said or recorder.returncode != -how:
            raise Failed(f"the recorder ended with {recorder.returncode} and said {said!r}")
        take = student.decoded(path)  # a kill in the middle of a write tears the last fragment
        # The witness may lag a little on a busy machine, and then the recorder's own word is the harder one.
        kept = played.span(take, heard)[1]
        lost = Lost(max(heard - kept, recorded - len(take) / sound.RATE), waited.since(kept))
        what = f"kill {number} ({how.name}{', slow disk' if slow else ''})"
        _tell_of_more(tools, lost, f"{what}: the recorder told {recorded:.2f} s, the file has {len(take) / sound.RATE:.2f} s")
        return lost
    except Failed as failure:
        raise Failed(f"kill {number} ({how.name} at {recorded:.2f} s): {failure}; see {tools.keep(os.path.basename(path), path)}")


def _kill_program(tools, sitting, played, number, how, moment):
    """Gives the seconds of sound and of typing that are not on the disk."""
    shutil.rmtree(sitting.home, ignore_errors=True)
    sitting.start()
    sitting.begin(f"Lecture {number}", "Notes:")
    with watched(sitting.program.pid, played.now) as waited:
        typed = _type_until(sitting, played.now() + moment, sets_tags=number % 2 == 0)
    heard, ended = played.now(), time.monotonic()
    sitting.program.send(how)
    sitting.program.expect_end(-how)
    take = next(os.path.join(sitting.home, "temp", name) for name in os.listdir(os.path.join(sitting.home, "temp"))
                if name.startswith("tempAudioFile"))
    try:
        kept = played.span(student.decoded(take), heard)[1]
        lost = Lost(heard - kept, waited.since(kept))
        _tell_of_more(tools, lost, f"kill {number} of the program ({how.name})")
        return lost, _typing_lost(os.path.join(sitting.home, "temp", "lecture.journal"), typed, ended)
    except Failed as failure:
        raise Failed(f"kill {number} of the program ({how.name}): {failure}; see {tools.keep(f'program{number}', sitting.home)}") from None


def _type_until(sitting, end, sets_tags):
    """Types and, if wanted, sets time tags, which have the journal written too. Gives what was seen to stand in the notes, and when."""
    seen = [(time.monotonic(), sitting.hands.text(names.NEW_LECTURE_WINDOW, names.NOTES))]
    count = 0
    while sitting.heard() < end:
        count += 1
        if sets_tags and count % 4 == 0:
            sitting.hands.press(names.NEW_LECTURE_WINDOW, "ctrl+t")
        else:
            sitting.hands.type(f" word{count}")
        seen.append((time.monotonic(), sitting.hands.text(names.NEW_LECTURE_WINDOW, names.NOTES)))
    return seen


def _typing_lost(journal, typed, ended):
    """How old the oldest is that was typed and is not in the journal; fails when it is a time tag."""
    with open(journal, "rb") as file:
        kept = json.loads(file.read().rstrip())["notes"]
    missing = sorted(set(TIME_TAG.findall(typed[-1][1])) - set(TIME_TAG.findall(kept)))
    if missing:
        raise Failed(f"the time tags {missing} are lost")
    return max((ended - when for when, text in typed if not kept.startswith(text)), default=0.0)
