"""The rows in their order. A row is a module here with EVENT and PROMISE, the texts of the table, and
run(tools, short), which gives a Result."""

import importlib
import os
import pkgutil

ORDER = ("kills", "power", "full", "faults", "devices", "clock", "reset", "soak")


def names():
    there = {found.name for found in pkgutil.iter_modules([os.path.dirname(os.path.abspath(__file__))])}
    return [name for name in ORDER if name in there]


def module(name):
    return importlib.import_module(f"torturing.{name}")
