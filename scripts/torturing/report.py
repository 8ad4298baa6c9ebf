"""The table of what was promised and what was found."""

import dataclasses
import datetime
import os
import platform

from .result import Result


@dataclasses.dataclass
class Line:
    event: str
    promise: str
    result: Result
    seconds: float


def table(lines):
    rows = [f"| {line.event} | {line.promise} | {'' if line.result.held else '**BROKEN** '}{line.result.figure} |" for line in lines]
    return "\n".join(["| event | at most lost | found |", "|---|---|---|", *rows])


def write(path, lines, chosen):
    """With what is needed to do it again."""
    os.makedirs(os.path.dirname(path), exist_ok=True)
    form = "short" if chosen.short else "whole"
    minutes = sum(line.seconds for line in lines) / 60
    with open(path, "w", encoding="utf-8") as file:
        file.write(f"# What was lost\n\n{datetime.date.today()}, the {form} form, seed {chosen.seed}, {minutes:.0f} minutes, "
                   f"{os.cpu_count()} cores, {platform.platform()}\n\n{table(lines)}\n")
