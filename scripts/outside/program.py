"""Tarvelo as a process: started, left, and held to its silence."""

import os
import subprocess

from . import names
from .hands import Hands
from .waiting import Children, Failed


class Program:
    """One program file, started any number of times in a desktop, one at a time. `hands` act on what runs."""

    def __init__(self, path, desktop):
        self._path = os.path.abspath(path)
        self._desktop = desktop
        self._children = Children()
        self._outputs = []
        self._process = None
        self.hands = Hands(names.APPLICATION)

    def start(self, which):
        """Returns when the main window stands. What the program says goes to a file of this start."""
        output_path = os.path.join(self._desktop.folder, f"output-{which}.txt")
        self._outputs.append(output_path)
        with open(output_path, "wb") as output:
            # As of a careless user, so that what is private is so by the program's doing.
            self._process = self._children.start(self._path, stdout=output, stderr=output, umask=0)
        self.hands.watch(self._process)
        self.hands.window(names.MAIN_WINDOW)
        self.hands.control(names.MAIN_WINDOW, names.NEW_LECTURE)

    @property
    def pid(self):
        return self._process.pid

    def send(self, signal):
        self._process.send_signal(signal)

    def is_running(self):
        return self._process.poll() is None

    def quit(self):
        self.hands.press(names.MAIN_WINDOW, names.QUIT_KEYS)
        self.expect_end()

    def expect_end(self, status=0):
        try:
            found = self._process.wait(30)
        except subprocess.TimeoutExpired:
            raise Failed("Tarvelo does not quit") from None
        if found != status:
            raise Failed(f"Tarvelo ended with status {found}")

    def expect_silence(self):
        """Nothing has been said at any start."""
        for path in self._outputs:
            with open(path, encoding="utf-8", errors="replace") as file:
                said = file.read()
            if said:
                raise Failed(f"Tarvelo wrote to its output ({os.path.basename(path)}):\n{said}")

    def stop(self):
        """Ends what still runs."""
        self._children.stop()
