"""The rows in their order. A row is a module here with EVENT and PROMISE, the texts of the table, and
run(tools, short), which gives a Result."""

import concurrent.futures
import importlib
import multiprocessing
import os
import pkgutil
import traceback

from .result import Result
from .tools import Tools

ORDER = ("kills", "power", "full", "faults", "devices", "clock", "reset", "soak")


def names():
    there = {found.name for found in pkgutil.iter_modules([os.path.dirname(os.path.abspath(__file__))])}
    return [name for name in ORDER if name in there]


def module(name):
    return importlib.import_module(f"torturing.{name}")


def result_of(name, short, *tools):
    """Runs the row in a process of its own: what it mounts, and the desktop that it talks to, is for a process as long as that lives."""
    with concurrent.futures.ProcessPoolExecutor(1, multiprocessing.get_context("spawn")) as process:
        try:
            return process.submit(_run, name, short, *tools).result()
        except concurrent.futures.process.BrokenProcessPool:
            return Result(False, "not shown: its process ended")


def _run(name, short, *tools):
    """A row that stumbles has shown nothing, and a promise that nothing shows is not kept."""
    its = Tools(*tools)
    try:
        with its:
            return module(name).run(its, short)
    except Exception as failure:
        its.keep("failure.txt", traceback.format_exc())
        return Result(False, f"not shown: {failure}")
