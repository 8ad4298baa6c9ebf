"""The program is killed while it records."""

import concurrent.futures

from outside import sound
from outside.desktop import Desktop

from . import killed, killed_program, killed_recorder
from .played import Played
from .result import Result
from .sitting import Sitting

EVENT = "SIGKILL, crash, abort at any instant of a recording"
PROMISE = "the last 1.0 s of sound; no notes older than 5 s, no time tag; nothing once Done was pressed"
MOST_LOST = 1.0
NOTES_SAFE = 5.0
AT_A_TIME = 4


def run(tools, short):
    of_recorder = list(killed_recorder.kills(tools.random, 12 if short else 170))
    with Desktop(tools.folder) as desktop, sound.SoundServer(), Played(tools.random, tools.folder) as played:
        with concurrent.futures.ThreadPoolExecutor(AT_A_TIME) as pool:
            tries = [pool.submit(killed_recorder.lost_by, tools, played, kill) for kill in of_recorder]
            lost = [attempt.result() for attempt in tries]
        tools.tell(f"{len(lost)} recorders killed, at most {max(lost).seconds:.2f} s lost, {_average(lost):.2f} s on average")
        sitting = Sitting(tools, desktop, played)
        trial = killed_program.Trial(tools, sitting, played)
        try:
            of_typing = [trial.at_any_instant(number, tools.random.choice(killed.SIGNALS), tools.random.uniform(0, killed_program.LONGEST))
                         for number in range(2 if short else 20)]
            of_done = [trial.during_done(number, tools.random.choice(killed.SIGNALS), number % 2 == 0) for number in range(2 if short else 14)]
        finally:
            sitting.program.stop()
        sitting.program.expect_silence()
    of_program = of_typing + of_done
    lost += [of_sound for of_sound, _ in of_program]
    notes = max(of_notes for _, of_notes in of_program)
    elsewhere = max(one.elsewhere for one in lost)
    held = all(one.seconds - one.waited <= MOST_LOST for one in lost) and elsewhere <= killed.MOST_ELSEWHERE
    starved = sum(1 for one in lost if one.seconds > MOST_LOST)
    without = f" ({starved} times more than {MOST_LOST} s, for which there was no processor)" if held and starved else ""
    return Result(held and notes <= NOTES_SAFE,
                  f"{len(lost)} kills, {len(of_program)} of them of the whole program, {len(of_done)} of these at Done: at most {max(lost).seconds:.2f} s of "
                  f"sound, {_average(lost):.2f} s on average{without}, {elsewhere:.2f} s where a take begins or beside a pause; at most {notes:.1f} s of notes; no time tag; nothing that was Done")


def _average(lost):
    return sum(one.seconds for one in lost) / len(lost)
