"""Takes of eight and of twenty-five hours, recorded as fast as the machine can, and looked through from end to end."""

import concurrent.futures
import os
import subprocess

from outside.waiting import Failed

from .result import Result

EVENT = "eight hours of recording (real samples, faster than real time), twenty-five hours"
PROMISE = "nothing; memory flat; file plays, seeks, right length"
HOUR = 3600
MOST_GROWTH = 4.0  # in MiB, as with the benchmark of it


def run(tools, short):
    lengths = [HOUR // 6] if short else [8 * HOUR, 25 * HOUR]
    with concurrent.futures.ThreadPoolExecutor() as pool:
        takes = [take.result() for take in [pool.submit(_record, tools, length) for length in lengths]]
    grown = max(take["grown"] for take in takes)
    return Result(all(take["whole"] for take in takes) and grown <= MOST_GROWTH, "; ".join(map(_told, takes)))


def _record(tools, seconds):
    folder = os.path.join(tools.folder, f"soak-{seconds}")
    os.makedirs(folder)
    done = subprocess.run([tools.built("tests/torture/LongTake"), str(seconds), folder], stdin=subprocess.DEVNULL,
                          capture_output=True, text=True, check=False)
    report = tools.keep(f"take-{seconds}.txt", done.stdout + done.stderr)
    facts = dict(line.split(" ", 1) for line in done.stdout.splitlines())
    if "worst_jump" not in facts or done.stderr:
        raise Failed(f"the take of {_hours(seconds)} cannot be compared, see {report}")
    os.remove(os.path.join(folder, "long.m4a"))
    grown = float(facts["resident_most"]) - float(facts["resident_first"])
    tools.tell(f"{_hours(seconds)}: recorded in {facts['recorded_s']} s, finished in {facts['finished_s']} s, {facts['bytes']} bytes, "
               f"{facts['frames_played']} of {facts['frames_recorded']} samples, worst second {facts['worst_second']}, "
               f"worst of {facts['jumps']} jumps {facts['worst_jump']}, "
               f"its length is off by {facts['off_s']} s, memory grew by {grown:.2f} MiB")
    return {"seconds": seconds, "whole": done.returncode == 0, "grown": grown, **facts}


def _told(take):
    lost = int(take["frames_recorded"]) - int(take["frames_played"])
    return (f"{_hours(take['seconds'])}: {lost} samples lost, worst second agrees by {take['worst_second']}, {take['jumps']} jumps land, "
            f"memory grows by {take['grown']:.1f} MiB, finished in {float(take['finished_s']):.1f} s")


def _hours(seconds):
    return f"{seconds // HOUR} h" if seconds >= HOUR else f"{seconds // 60} min"
